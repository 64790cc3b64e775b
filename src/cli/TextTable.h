#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace parlate::cli {

/// Rows of cells for a person to read: columns as wide as their widest cell, a head above a rule.
/// Cells are UTF-8; a line break within one shows as a blank.
///
/// The table keeps no rows, since a row can be far larger than what it was made from: every row is
/// handed in twice, first to be measured, then to be written.
class TextTable {
 public:
  explicit TextTable(std::vector<std::string> head);
  void Measure(const std::vector<std::string>& cells);
  void WriteHead(std::ostream& out) const;
  void WriteRow(std::ostream& out, const std::vector<std::string>& cells) const;

 private:
  std::vector<std::string> head_;
  std::vector<std::size_t> widths_;
};

}  // namespace parlate::cli

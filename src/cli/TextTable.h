#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace parlate::cli {

/// Rows of cells for a person to read: columns as wide as their widest cell, a head above a rule.
/// Cells are UTF-8; a line break within one shows as a blank.
class TextTable {
 public:
  explicit TextTable(std::vector<std::string> head);
  void AddRow(std::vector<std::string> cells);
  void Write(std::ostream& out) const;

 private:
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace parlate::cli

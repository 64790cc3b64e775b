#include "cli/TextTable.h"

#include <algorithm>
#include <utility>

namespace parlate::cli {

namespace {

/// Characters, not bytes.
std::size_t WidthOf(const std::string& utf8) {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
  }));
}

void OnOneLine(std::string& cell) {
  std::replace_if(
      cell.begin(), cell.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
}

}  // namespace

TextTable::TextTable(std::vector<std::string> head) { rows_.push_back(std::move(head)); }

void TextTable::AddRow(std::vector<std::string> cells) {
  for (std::string& cell : cells) OnOneLine(cell);
  cells.resize(rows_.front().size());
  rows_.push_back(std::move(cells));
}

void TextTable::Write(std::ostream& out) const {
  std::vector<std::size_t> widths(rows_.front().size(), 0);
  for (const auto& row : rows_) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], WidthOf(row[i]));
  }
  const auto writeRow = [&](const std::vector<std::string>& row) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) line += "  ";
      line += row[i];
      if (i + 1 < row.size()) line.append(widths[i] - WidthOf(row[i]), ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
  };
  writeRow(rows_.front());
  std::vector<std::string> rule;
  for (const std::size_t width : widths) rule.emplace_back(width, '-');
  writeRow(rule);
  for (std::size_t i = 1; i < rows_.size(); ++i) writeRow(rows_[i]);
}

}  // namespace parlate::cli

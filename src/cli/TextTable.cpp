#include "cli/TextTable.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace parlate::cli {

namespace {

/// Characters, not bytes.
std::size_t WidthOf(const std::string& utf8) {
  return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
  }));
}

void WriteOnOneLine(std::ostream& out, std::string_view cell) {
  std::replace_copy_if(
      cell.begin(), cell.end(), std::ostreambuf_iterator<char>(out),
      [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
}

void WriteMany(std::ostream& out, std::size_t count, char c) {
  std::fill_n(std::ostreambuf_iterator<char>(out), count, c);
}

}  // namespace

TextTable::TextTable(std::vector<std::string> head) : head_(std::move(head)) {
  widths_.resize(head_.size());
  Measure(head_);
}

void TextTable::Measure(const std::vector<std::string>& cells) {
  for (std::size_t i = 0; i < cells.size() && i < widths_.size(); ++i) {
    widths_[i] = std::max(widths_[i], WidthOf(cells[i]));
  }
}

void TextTable::WriteHead(std::ostream& out) const {
  WriteRow(out, head_);
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    if (i > 0) out << "  ";
    WriteMany(out, widths_[i], '-');
  }
  out << '\n';
}

void TextTable::WriteRow(std::ostream& out, const std::vector<std::string>& cells) const {
  // Blanks wait until something stands behind them, so that no line ends in any.
  std::size_t pending = 0;
  for (std::size_t i = 0; i < cells.size() && i < widths_.size(); ++i) {
    const std::string& cell = cells[i];
    const std::size_t last = cell.find_last_not_of(" \r\n\t");
    if (last != std::string::npos) {
      WriteMany(out, std::exchange(pending, cell.size() - last - 1), ' ');
      WriteOnOneLine(out, std::string_view(cell).substr(0, last + 1));
    } else {
      pending += cell.size();
    }
    pending += widths_[i] - WidthOf(cell) + 2;
  }
  out << '\n';
}

}  // namespace parlate::cli

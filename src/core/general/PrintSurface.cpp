#include "general/PrintSurface.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace parlate {

namespace {

/// Calls back with each line of the text and whether it is the last.
template <class Visit>
void ForEachLine(std::string_view text, Visit visit) {
  for (;;) {
    // Printing measures every text many times; find_first_of is slow with so short a list.
    std::size_t end = 0;
    while (end < text.size() && text[end] != '\r' && text[end] != '\n') ++end;
    if (end == text.size()) break;
    visit(text.substr(0, end), false);
    const bool both = text.substr(end).starts_with("\r\n");
    text.remove_prefix(end + (both ? 2 : 1));
  }
  visit(text, true);
}

}  // namespace

Twips ToTwips(double value) {
  constexpr double kLow = std::numeric_limits<Twips>::min();
  constexpr double kHigh = std::numeric_limits<Twips>::max();
  return static_cast<Twips>(std::clamp(std::nearbyint(value), kLow, kHigh));
}

Twips PrintSurface::TextWidth(std::string_view text) const {
  double width = 0;
  ForEachLine(text, [&](std::string_view line, bool) { width = std::max(width, LineWidth(line)); });
  return ToTwips(width);
}

Twips PrintSurface::TextHeight(std::string_view text) const {
  int lines = 0;
  ForEachLine(text, [&](std::string_view, bool) { ++lines; });
  return ToTwips(lines * LineHeight());
}

void PrintSurface::Print(std::string_view text, After after) {
  // Every line of a text stands under the first, so that it keeps its place on the page.
  const Twips left = CurrentX;
  ForEachLine(text, [&](std::string_view line, bool last) {
    DrawText(line);
    if (last && after != After::NextLine) {
      CurrentX = ToTwips(left + LineWidth(line));
    } else {
      CurrentY = ToTwips(CurrentY + LineHeight());
    }
  });
  if (after == After::NextLine) CurrentX = 0;
  if (after != After::Zone) return;
  const double zone = LineWidth(kZone);
  if (zone > 0) CurrentX = ToTwips((std::floor(CurrentX / zone) + 1) * zone);
}

void PrintSurface::Line(int x1, int y1, int x2, int y2) {
  DrawLine(ToTwips(x1), ToTwips(y1), ToTwips(x2), ToTwips(y2));
}

void PrintSurface::Box(int x1, int y1, int x2, int y2) {
  DrawBox(ToTwips(x1), ToTwips(y1), ToTwips(x2), ToTwips(y2));
}

void PrintSurface::NewPage() {
  OnNewPage();
  CurrentX = 0;
  CurrentY = 0;
}

}  // namespace parlate

#pragma once

#include <cstdint>
#include <string>

#include "general/PrintSurface.h"

namespace parlate {

/// Body text of events; everything else is in "Arial".
inline constexpr const char* kBodyFont = "Courier New";
inline constexpr const char* kHeadingFont = "Arial";

/// Gap that a rule takes: half of it above the rule, half below.
inline constexpr int kRuleGap = 200;

/// The pages of a print run: their margins, their number and what stands at their foot. The sizes
/// of the fonts come from the settings in place.
class PrintPages {
 public:
  explicit PrintPages(PrintSurface& newSurface) : surface(newSurface) {}

  PrintSurface& surface;
  std::int16_t PrintPageNumber = 1;  ///< Of the page that is being printed.

  /// Left edge of the text, a twentieth of the width.
  [[nodiscard]] Twips Left() const { return ToTwips(surface.ScaleWidth() / 20.0); }
  /// Top edge of the text, a twentieth of the height.
  [[nodiscard]] Twips Top() const { return ToTwips(surface.ScaleHeight() / 20.0); }
  /// Where the text ends.
  [[nodiscard]] Twips Bottom() const { return ToTwips(surface.ScaleHeight() - Top()); }

  /// The rule and the page number at the foot. The font stays as it was used last.
  void PrintPageFooter();
  /// Ends a page, with its footer if the settings ask for one, and counts on.
  void PrintNewPage(Twips top);
  /// A rule across the page, below the pen, which moves beyond it.
  void PrintRule(int x);
  /// A text in bold on a grey bar across the page.
  void PrintBar(int x, const std::string& text);
  /// The pen's font becomes a heading's, larger than the body by `larger` points.
  void UseHeadingFont(int larger);
};

}  // namespace parlate

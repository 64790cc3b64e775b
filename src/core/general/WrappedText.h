#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "general/Boolean.h"
#include "general/PrintSurface.h"

namespace parlate {

/// A text broken into lines for a surface and its font. Each text is broken once and then both
/// measured and printed. The views point into the text.
///
/// Two properties of the rule are meant, so that printed pages match those of old: after a break
/// at a blank the characters read beyond it are no longer measured, so the next line can be too
/// long by up to a word; and after a break inside a word the character at the break begins the
/// next part once more. What is measured ends 2000 twips before the width of the whole paper,
/// counted from the left edge of what can be printed on.
class WrappedText {
 public:
  /// The first line begins at `firstX`, the others at `nextX`.
  WrappedText(const PrintSurface& surface, int firstX, int nextX, std::string_view text);

  /// Of all lines.
  [[nodiscard]] Twips Height() const { return ToTwips(height_); }
  void Print(PrintSurface& surface) const;

 private:
  struct WrappedLine {
    Twips x;
    std::string_view text;
  };

  std::vector<WrappedLine> lines_;
  double height_ = 0;
};

/// Prints a text within the page, or only measures it; returns its height.
Twips PrintWrappedText(PrintSurface& surface, int firstX, int nextX, std::string_view text,
                       Boolean bCalculateHeightOnly);

}  // namespace parlate

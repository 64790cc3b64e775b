#include "general/WrappedText.h"

namespace parlate {

namespace {

constexpr int kRightReserve = 2000;

}  // namespace

WrappedText::WrappedText(const PrintSurface& surface, int firstX, int nextX,
                         std::string_view text) {
  constexpr std::size_t kNone = std::string_view::npos;
  int x = firstX;
  std::size_t lineStart = 0;  // of what is printed
  std::size_t measured = 0;   // start of what is measured
  std::size_t lastBlank = kNone;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == ' ') lastBlank = i;
    const std::string_view line = text.substr(measured, i + 1 - measured);
    if (surface.TextWidth(line) <= surface.Width() - x - kRightReserve) continue;
    height_ += surface.TextHeight(line);
    if (lastBlank == kNone) {
      lines_.push_back({ToTwips(x), line});
      lineStart = i;
    } else {
      lines_.push_back({ToTwips(x), text.substr(lineStart, lastBlank - lineStart)});
      lineStart = lastBlank + 1;
      lastBlank = kNone;
    }
    x = nextX;
    measured = i + 1;
  }
  height_ += surface.TextHeight(text.substr(measured));
  lines_.push_back({ToTwips(x), text.substr(lineStart)});
}

void WrappedText::Print(PrintSurface& surface) const {
  for (const WrappedLine& line : lines_) {
    surface.CurrentX = line.x;
    surface.Print(line.text);
  }
}

Twips PrintWrappedText(PrintSurface& surface, int firstX, int nextX, std::string_view text,
                       Boolean bCalculateHeightOnly) {
  const WrappedText wrapped(surface, firstX, nextX, text);
  if (!bCalculateHeightOnly) wrapped.Print(surface);
  return wrapped.Height();
}

}  // namespace parlate

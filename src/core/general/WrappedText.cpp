#include "general/WrappedText.h"

namespace parlate {

namespace {

constexpr int kRightReserve = 2000;

}  // namespace

WrappedText::WrappedText(const PrintSurface& surface, int firstX, int nextX,
                         std::string_view text) {
  constexpr std::size_t kNone = std::string_view::npos;
  const int right = surface.Width() - kRightReserve;
  int x = firstX;
  std::size_t lineStart = 0;  // of what is printed
  std::size_t measured = 0;   // start of what counts for the height
  std::size_t lastLine = 0;   // start of its last line; the lines above it fit already
  std::size_t lastBlank = kNone;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == ' ') lastBlank = i;
    if (text[i] == '\r' || text[i] == '\n') lastLine = i + 1;
    const int width = surface.TextWidth(text.substr(lastLine, i + 1 - lastLine));
    if (width <= right - x) continue;
    const std::string_view line = text.substr(measured, i + 1 - measured);
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
    lastLine = measured;
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

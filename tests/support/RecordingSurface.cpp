#include "support/RecordingSurface.h"

#include <cstdio>

#include "general/RuntimeError.h"

namespace parlate::testing_support {

namespace {

std::string Corners(Twips x1, Twips y1, Twips x2, Twips y2) {
  return std::to_string(x1) + "," + std::to_string(y1) + " " + std::to_string(x2) + "," +
         std::to_string(y2);
}

}  // namespace

void RecordingSurface::Keep(std::string call) {
  if (callsUntilFailure == 0) throw RuntimeError(RuntimeError::kPrinterError);
  if (callsUntilFailure > 0) --callsUntilFailure;
  calls_.push_back(std::move(call));
}

void RecordingSurface::DrawText(std::string_view line) {
  std::string font = Font.Name.empty() ? "Default" : Font.Name;
  font += " " + std::to_string(Font.Size);
  if (Font.Bold) font += " bold";
  if (Font.Italic) font += " italic";
  if (!FontTransparent) font += " opaque";
  Keep(std::to_string(CurrentX) + "," + std::to_string(CurrentY) + " " + font + ": " +
       std::string(line));
}

void RecordingSurface::DrawLine(Twips x1, Twips y1, Twips x2, Twips y2) {
  Keep("line " + Corners(x1, y1, x2, y2));
}

void RecordingSurface::DrawBox(Twips x1, Twips y1, Twips x2, Twips y2) {
  char color[16];
  std::snprintf(color, sizeof(color), "%06X", static_cast<unsigned>(FillColor));
  Keep("box " + Corners(x1, y1, x2, y2) + (FillStyle == kSolid ? " solid " : " empty ") + color);
}

std::unique_ptr<PrintSurface> RecordingPrinters::ShowPrinterDialog(const std::string& dialogTitle) {
  ++shown;
  title = dialogTitle;
  if (cancels) return nullptr;
  if (fails) throw RuntimeError(RuntimeError::kPrinterError);
  auto surface = std::make_unique<RecordingSurface>(calls, paper);
  surface->FontTransparent = !opaque;
  surface->callsUntilFailure = callsUntilFailure;
  return surface;
}

std::vector<std::string> RecordingPrinters::Texts() const {
  std::vector<std::string> texts;
  for (const std::string& call : calls) {
    const std::size_t at = call.find(": ");
    if (at != std::string::npos && at + 2 < call.size()) texts.push_back(call.substr(at + 2));
  }
  return texts;
}

}  // namespace parlate::testing_support

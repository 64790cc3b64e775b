#include "model/printing/PrintPages.h"

#include "model/Workspace.h"

namespace parlate {

namespace {

constexpr std::int32_t kBarGrey = 0xCCCCCC;

const ConversationDefaults& Defaults() { return Workspace::Current().defaults; }

}  // namespace

void PrintPages::UseHeadingFont(int larger) {
  surface.Font.Name = kHeadingFont;
  surface.Font.Size = static_cast<std::int16_t>(Defaults().PrintFontSize + larger);
}

void PrintPages::PrintRule(int x) {
  const int y = surface.CurrentY + kRuleGap / 2;
  surface.Line(x, y, surface.ScaleWidth() - x, y);
  surface.CurrentY = ToTwips(surface.CurrentY + kRuleGap);
}

void PrintPages::PrintPageFooter() {
  const int x = Left();
  const Twips y = ToTwips(surface.ScaleHeight() - Top() / 2.0);
  surface.Line(x, y, surface.ScaleWidth() - x, y);
  UseHeadingFont(2);
  const std::string text = "Page " + std::to_string(PrintPageNumber);
  surface.CurrentY = ToTwips(y + 30);
  surface.CurrentX = ToTwips(surface.Width() / 2.0 - surface.TextWidth(text) / 2.0);
  surface.Print(text);
}

void PrintPages::PrintNewPage(Twips top) {
  if (Defaults().bPrintFooters) PrintPageFooter();
  surface.NewPage();
  surface.CurrentY = top;
  ++PrintPageNumber;
}

void PrintPages::PrintBar(int x, const std::string& text) {
  surface.Print();
  const Twips y = surface.CurrentY;
  UseHeadingFont(2);
  surface.FillColor = kBarGrey;
  surface.FillStyle = PrintSurface::kSolid;
  surface.Box(x - 50, y - 20, surface.ScaleWidth() - x, y + surface.TextHeight(text) + 20);
  surface.FillStyle = PrintSurface::kTransparent;
  surface.FillColor = 0;
  surface.CurrentY = y;
  surface.CurrentX = ToTwips(x);
  surface.Font.Bold = true;
  surface.SetBkMode(PrintSurface::kTransparent);
  surface.Print(text);
  surface.Font.Bold = false;
  surface.CurrentY = ToTwips(surface.CurrentY + 50);
}

}  // namespace parlate

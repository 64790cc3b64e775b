// Lines of a text within the page. At size 10 a character is 100 twips wide and a line 200 high;
// a text at the left edge ends before 9000 twips, which is 90 characters.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "general/WrappedText.h"
#include "support/RecordingSurface.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::RecordingPrinters;

class Wrapped : public testing::Test {
 protected:
  Wrapped() { surface_->Font.Name = "Arial"; }
  /// The printed lines without their font.
  std::vector<std::string> Print(int firstX, int nextX, const std::string& text) {
    height_ = PrintWrappedText(*surface_, firstX, nextX, text, false);
    std::vector<std::string> lines;
    for (const std::string& call : printers_.calls) {
      lines.push_back(call.substr(0, call.find(' ')) + " " + call.substr(call.find(": ") + 2));
    }
    return lines;
  }

  RecordingPrinters printers_;
  std::unique_ptr<PrintSurface> surface_ = printers_.ShowPrinterDialog();
  Twips height_ = 0;
};

TEST_F(Wrapped, AShortTextStandsOnOneLine) {
  EXPECT_THAT(Print(500, 800, "Hello there"), ElementsAre("500,0 Hello there"));
  EXPECT_EQ(height_, 200);
  EXPECT_EQ(surface_->CurrentY, 200);
  EXPECT_EQ(surface_->CurrentX, 0);
}

TEST_F(Wrapped, ATextThatFillsTheLineToTheLastTwipIsNotBroken) {
  EXPECT_THAT(Print(0, 0, std::string(90, 'x')), ElementsAre("0,0 " + std::string(90, 'x')));
}

TEST_F(Wrapped, ALineEndsAtItsLastBlankAndTheNextIsMeasuredFromBeyondTheBreak) {
  // The line is too long at its 91st character, the third of the last word. The two before it are
  // not measured again, so the next line may be as much longer.
  const std::string text = std::string(87, 'a') + " bbb ccc";
  EXPECT_THAT(Print(0, 300, text), ElementsAre("0,0 " + std::string(87, 'a'), "300,200 bbb ccc"));
  EXPECT_EQ(height_, 400);
}

TEST_F(Wrapped, TheLineAfterABreakCanBeLongerThanTheMeasureByAWord) {
  // 80 characters, a blank, and 15 of which 10 are read when the line is ended. Of the second
  // line only what follows is measured: 90 more characters are let pass.
  const std::string first(80, 'a');
  const std::string second = std::string(15, 'b') + " " + std::string(84, 'c');
  EXPECT_THAT(Print(0, 0, first + " " + second), ElementsAre("0,0 " + first, "0,200 " + second));
}

TEST_F(Wrapped, AWordLongerThanALineBreaksWithoutABlankAndItsBreakCharacterShowsTwice) {
  const std::string text = std::string(90, 'x') + "YZ";
  EXPECT_THAT(Print(0, 0, text), ElementsAre("0,0 " + std::string(90, 'x') + "Y", "0,200 YZ"));
  EXPECT_EQ(height_, 400);
}

TEST_F(Wrapped, TheReserveCountsFromTheWidthOfThePaperAndTheLeftEdge) {
  EXPECT_THAT(Print(1000, 1000, std::string(80, 'x')),
              ElementsAre("1000,0 " + std::string(80, 'x')));
  printers_.calls.clear();
  EXPECT_EQ(Print(1000, 1000, std::string(81, 'x')).size(), 2U);
}

TEST_F(Wrapped, AnEmptyTextHasTheHeightOfOneLineAndPrintsAnEmptyOne) {
  EXPECT_THAT(Print(500, 500, ""), ElementsAre("500,0 "));
  EXPECT_EQ(height_, 200);
  EXPECT_EQ(surface_->CurrentY, 200);
}

TEST_F(Wrapped, MeasuringPrintsNothingAndGivesTheSameHeight) {
  const std::string text = std::string(87, 'a') + " bbb ccc";
  EXPECT_EQ(PrintWrappedText(*surface_, 0, 300, text, true), 400);
  EXPECT_THAT(printers_.calls, IsEmpty());
  EXPECT_EQ(surface_->CurrentY, 0);
}

TEST_F(Wrapped, ALineBreakOfTheTextIsOneOnPaperAndCountsForTheHeight) {
  EXPECT_THAT(Print(500, 500, "one\rtwo\r\nthree"),
              ElementsAre("500,0 one", "500,200 two", "500,400 three"));
  EXPECT_EQ(height_, 600);
}

TEST_F(Wrapped, ATextTallerThanAnyNumberStopsAtTheHighest) {
  EXPECT_EQ(PrintWrappedText(*surface_, 0, 0, std::string(20000, 'x'), true), 32767);
}

TEST(Surface, RoundsHalfToEvenAndStopsAtSixteenBits) {
  EXPECT_EQ(ToTwips(0.5), 0);
  EXPECT_EQ(ToTwips(1.5), 2);
  EXPECT_EQ(ToTwips(-2.5), -2);
  EXPECT_EQ(ToTwips(40000), 32767);
  EXPECT_EQ(ToTwips(-40000), -32768);
}

TEST(Surface, APrintZoneIsFourteenColumnsOfTheFont) {
  RecordingPrinters printers;
  const auto surface = printers.ShowPrinterDialog();
  surface->CurrentX = 100;
  surface->Print("Jump", PrintSurface::After::Zone);
  EXPECT_EQ(surface->CurrentX, 1400);
  EXPECT_EQ(surface->CurrentY, 0);
  surface->Print("Zoe", PrintSurface::After::Zone);
  EXPECT_EQ(surface->CurrentX, 2800) << "a text that begins a zone is followed by the next";
  surface->Print("x");
  EXPECT_EQ(surface->CurrentX, 0);
  EXPECT_EQ(surface->CurrentY, 200);
}

}  // namespace
}  // namespace parlate

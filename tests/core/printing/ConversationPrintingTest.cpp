// Pages of a conversation, held against places worked out by hand: see RecordingSurface for the
// metrics. The left edge of the text is 500, its top 600 and its bottom 11400.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PrintedConversation.h"
#include "general/RuntimeError.h"

namespace parlate {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using namespace testing_support;

TEST_F(PrintedConversation, WithNoEventsPrintsNoTitle) {
  EXPECT_THAT(Print(), IsEmpty());
  EXPECT_FALSE(result_);
}

TEST_F(PrintedConversation, StandsUnderItsTitleWithFlagsLabelsAndEvents) {
  AddFlag(con_.flagRefs, 2, true);
  AddFlag(con_.flagRefs, 3, false);
  AddSpeech(1, "Hello", "Start");
  AddComment("A comment");
  AddSpeech(0, "Hi");
  Add(kEnd, EventEnd(), "Stop");
  EXPECT_THAT(
      Print(true),
      ElementsAre(
          "500,600 Arial 14: Conversation: Zoe - greeting", "line 500,980 9500,980",
          "500,1080 Arial 12: Conversation Flags", "1000,1370 Arial 12: Door = True",
          "1000,1610 Arial 12: Lamp = False", "line 500,2000 9500,2000",
          // a blank line of size 10, and the bar below it
          "500,2100 Arial 10: ", "box 450,2280 9500,2560 solid CCCCCC", "background 1",
          "500,2300 Arial 12 bold: Start",
          // meant: the heading keeps the size of the bar
          "750,2590 Arial 12: Zoe", "1000,2830 Courier New 10: Hello", "0,3030 Courier New 10: ",
          "750,3230 Arial 10: Comment", "1000,3430 Courier New 10: A comment",
          "0,3630 Courier New 10: ", "750,3830 Arial 10: Alex", "1000,4030 Courier New 10: Hi",
          "0,4230 Courier New 10: ", "500,4430 Arial 10: ", "box 450,4610 9500,4890 solid CCCCCC",
          "background 1", "500,4630 Arial 12 bold: Stop", "750,4920 Arial 12: End",
          "0,5160 Courier New 10: "));
  EXPECT_TRUE(result_);
  EXPECT_EQ(surface_->CurrentY, 5360) << "the heading of End, and a blank line of the body's font";
  EXPECT_EQ(surface_->FillStyle, PrintSurface::kTransparent);
  EXPECT_EQ(surface_->FillColor, 0);
  EXPECT_EQ(surface_->Font, PrintFont{});
}

TEST_F(PrintedConversation, LeavesTheFlagsOutWithoutTheDetailedHeader) {
  AddFlag(con_.flagRefs, 2, true);
  AddSpeech(1, "Hello");
  EXPECT_THAT(Print(false), Not(Contains("500,1080 Arial 12: Conversation Flags")));
}

TEST_F(PrintedConversation, LeavesTheFlagsBlockOutWhenItHasNone) {
  AddSpeech(1, "Hello");
  EXPECT_THAT(Print(true),
              ElementsAre("500,600 Arial 14: Conversation: Zoe - greeting", "line 500,980 9500,980",
                          "750,1080 Arial 10: Zoe", "1000,1280 Courier New 10: Hello",
                          "0,1480 Courier New 10: "));
}

TEST_F(PrintedConversation, HasNoBlankLinesBetweenEventsWithoutTheSetting) {
  Settings().bPrintBlankLines = false;
  AddSpeech(1, "Hello");
  AddComment("A comment");
  EXPECT_THAT(PrintBelowTitle(),
              ElementsAre("750,1080 Arial 10: Zoe", "1000,1280 Courier New 10: Hello",
                          "750,1480 Arial 10: Comment", "1000,1680 Courier New 10: A comment"));
}

TEST_F(PrintedConversation, TakesItsSizesFromTheSetting) {
  Settings().PrintFontSize = 12;
  AddSpeech(1, "Hello", "Start");
  EXPECT_THAT(Print(), ElementsAre("500,600 Arial 16: Conversation: Zoe - greeting",
                                   "line 500,1020 9500,1020", "500,1120 Arial 10: ",
                                   "box 450,1300 9500,1620 solid CCCCCC", "background 1",
                                   "500,1320 Arial 14 bold: Start", "750,1650 Arial 14: Zoe",
                                   "1000,1930 Courier New 12: Hello", "0,2170 Courier New 12: "));
}

TEST_F(PrintedConversation, OfSpeechAloneHasNoOtherEventsNoLabelBarsAndNoTargetsOfChoices) {
  Settings().bPrintSpeechOnly = true;
  AddSpeech(1, "Hello", "Start");
  Add(kTrigger, EventTrigger());
  EventChoice choices;
  auto choice = std::make_shared<ChoiceItem>();
  choice->text = "Yes";
  choice->label = "Start";
  choice->skillID = 1;
  choices.Choices.Add(0, choice);
  Add(kChoice, choices);
  AddComment("A comment");
  EXPECT_THAT(PrintBelowTitle(),
              ElementsAre("750,1080 Arial 10: Zoe", "1000,1280 Courier New 10: Hello",
                          "0,1480 Courier New 10: ", "750,1680 Arial 10: Choice",
                          "1000,1880 Courier New 10: \x95 Yes",
                          "0,2080 Courier New 10: ", "750,2280 Arial 10: Comment",
                          "1000,2480 Courier New 10: A comment", "0,2680 Courier New 10: "));
}

TEST_F(PrintedConversation, GoesOnOverleafWithAContinuedTitleAndAFooter) {
  surface_->CurrentY = 10600;
  AddSpeech(1, "Hello");
  AddSpeech(0, "Hi");
  // The title ends at 11080; the first speech takes 500 by the measure.
  EXPECT_THAT(
      Print(),
      ElementsAre("500,10600 Arial 14: Conversation: Zoe - greeting", "line 500,10980 9500,10980",
                  // footer: 12000 - 300, in the middle of the paper
                  "line 500,11700 9500,11700", "5140,11730 Arial 12: Page 1", "new page",
                  "500,600 Arial 14: Conversation: Zoe - greeting (continued)",
                  "line 500,980 9500,980",  // meant: the headings keep the size of the footer
                  "750,1080 Arial 12: Zoe", "1000,1320 Courier New 10: Hello",
                  "0,1520 Courier New 10: ", "750,1720 Arial 12: Alex",
                  "1000,1960 Courier New 10: Hi", "0,2160 Courier New 10: "));
  EXPECT_EQ(pages_.PrintPageNumber, 2);
}

TEST_F(PrintedConversation, ATitleThatDoesNotFitBeginsANewPage) {
  surface_->CurrentY = 11000;  // 480 more pass 11400
  Settings().bPrintFooters = false;
  AddSpeech(1, "Hello");
  EXPECT_THAT(Print(), ElementsAre("new page", "500,600 Arial 14: Conversation: Zoe - greeting",
                                   "line 500,980 9500,980", "750,1080 Arial 10: Zoe",
                                   "1000,1280 Courier New 10: Hello", "0,1480 Courier New 10: "));
}

TEST_F(PrintedConversation, AnEventTallerThanAPageRunsOverItsEndOnTheSecondTry) {
  Settings().bPrintFooters = false;
  AddComment(std::string(std::size_t{95} * 90, 'x'));
  const auto& calls = Print();
  EXPECT_EQ(calls.at(2), "new page");
  EXPECT_EQ(calls.at(5), "750,1080 Arial 10: Comment");
  EXPECT_GT(calls.size(), 90U);
  EXPECT_THAT(calls, Contains(testing::StartsWith("1000,18080 Courier New 10: ")))
      << "it goes on below the page";
}

TEST_F(PrintedConversation, AFrameWhoseSpeechDoesNotFitStandsAtTheFootAndAllIsPrintedOverleaf) {
  // Measured from the left edge the text takes one line, printed from 1000 on it takes two.
  Settings().bPrintFooters = false;
  surface_->CurrentY = 600;
  AddSpeech(1, std::string(85, 'x'));
  surface_->CurrentY = 10420;  // the title ends at 10900, and 500 more are 11400
  EXPECT_THAT(
      Print(),
      ElementsAre("500,10420 Arial 14: Conversation: Zoe - greeting", "line 500,10800 9500,10800",
                  "750,10900 Arial 10: Zoe", "0,11100 Courier New 10: ", "new page",
                  "500,600 Arial 14: Conversation: Zoe - greeting (continued)",
                  "line 500,980 9500,980", "750,1080 Arial 10: Zoe",
                  "1000,1280 Courier New 10: " + std::string(81, 'x'),
                  "1000,1480 Courier New 10: " + std::string(5, 'x'), "0,1680 Courier New 10: "));
}

TEST_F(PrintedConversation, ThePageBreakOptionEndsThePageOnlyIfSomethingStandsOnIt) {
  Settings().bConPageBreaks = true;
  Settings().bPrintFooters = false;
  AddSpeech(1, "Hello");
  EXPECT_EQ(Print().back(), "new page");
  EXPECT_EQ(surface_->CurrentY, 600);
  EXPECT_EQ(pages_.PrintPageNumber, 2);
}

TEST_F(PrintedConversation, AnOwnerWithoutARowIsARunTimeError) {
  con_.NPCID = 9;
  AddSpeech(1, "Hello");
  EXPECT_THROW(Print(), RuntimeError);
}

TEST_F(PrintedConversation, AnEventOfMoreThanThePaperMeasuresIsPrintedWholeAllTheSame) {
  // Places stop at 32767 twips; an event that is higher than that must not be lost.
  Settings().bPrintFooters = false;
  std::string high = "First";
  for (int line = 0; line < 200; ++line) high += " " + std::string(70, 'x');
  high += " Last";
  const auto expectWhole = [this] {
    printers_.calls.clear();
    surface_->CurrentY = 600;
    Print();
    EXPECT_THAT(printers_.calls, Contains(testing::HasSubstr("First")));
    EXPECT_THAT(printers_.calls, Contains(testing::HasSubstr("Last")));
    con_.events.Clear();
  };
  AddSpeech(1, high);
  expectWhole();
  AddComment(high);
  expectWhole();
  EventChoice choices;
  auto choice = std::make_shared<ChoiceItem>();
  choice->text = high;
  choice->skillID = -1;
  choices.Choices.Add(0, choice);
  Add(kChoice, choices);
  expectWhole();
}

TEST_F(PrintedConversation, AfterAnEventThatRanOverThePageTheNextBeginsOverleaf) {
  Settings().bPrintFooters = false;
  AddComment(std::string(std::size_t{81} * 70, 'x'));
  AddSpeech(1, "Hello");
  const auto& calls = Print();
  const std::vector<std::string> end(calls.end() - 6, calls.end());
  EXPECT_THAT(end,
              ElementsAre("new page", "500,600 Arial 14: Conversation: Zoe - greeting (continued)",
                          "line 500,980 9500,980", "750,1080 Arial 10: Zoe",
                          "1000,1280 Courier New 10: Hello", "0,1480 Courier New 10: "));
}

TEST_F(PrintedConversation, FlagsThatPassTheBottomTurnThePageThoughNoEventIsPrinted) {
  Settings().bPrintSpeechOnly = true;
  for (int i = 10; i < 60; ++i) {
    space_.AddRows(kFlagTable, {{i, "Flag" + std::to_string(i)}});
    AddFlag(con_.flagRefs, i, true);
  }
  Add(kTrigger, EventTrigger());
  const auto& calls = Print(true);
  const std::vector<std::string> end(calls.end() - 5, calls.end());
  EXPECT_THAT(end,
              ElementsAre("line 500,11700 9500,11700", "5140,11730 Arial 12: Page 1", "new page",
                          "500,600 Arial 14: Conversation: Zoe - greeting (continued)",
                          "line 500,980 9500,980"));
}

TEST_F(PrintedConversation, AnEventThatEndsAtTheBottomIsOnThePageAndOneTwipMoreIsNot) {
  // Measured: a label of 200, an actor of 200, 100 and a line of 200. The title takes 480.
  Settings().bPrintFooters = false;
  for (const bool speechOnly : {false, true}) {
    // The label counts for the height though no bar is drawn for speech alone.
    Settings().bPrintSpeechOnly = speechOnly;
    for (const int tooFar : {0, 1}) {
      printers_.calls.clear();
      con_.events.Clear();
      AddSpeech(1, "Hello", "Start");
      surface_->CurrentY = ToTwips(11400 - 700 - 480 + tooFar);
      Print();
      EXPECT_EQ(printers_.calls.at(2) == "new page", tooFar == 1) << speechOnly << tooFar;
    }
  }
}

TEST_F(PrintedConversation, PlacesOnAPageOfOddMeasuresAreRoundedHalfToEven) {
  // Left 500.55, top 601, half of it 300.5, the middle of the foot 5500.5 - 360.
  printers_.paper = {.scaleWidth = 10011, .scaleHeight = 12020, .width = 11001};
  surface_ = printers_.ShowPrinterDialog();
  PrintPages pages(*surface_);
  EXPECT_EQ(pages.Left(), 501);
  EXPECT_EQ(pages.Top(), 601);
  EXPECT_EQ(pages.Bottom(), 11419);
  surface_->CurrentY = 11000;
  AddSpeech(1, "Hello");
  con_.PrintConversation(pages, false);
  EXPECT_THAT(printers_.calls,
              ElementsAre("line 501,11720 9510,11720", "5140,11750 Arial 12: Page 1", "new page",
                          "501,601 Arial 14: Conversation: Zoe - greeting", "line 501,981 9510,981",
                          "751,1081 Arial 12: Zoe", "1001,1321 Courier New 10: Hello",
                          "0,1521 Courier New 10: "));
}

TEST_F(PrintedConversation, OfThe32767EventsThatACountCanTellIsPrintedToItsLast) {
  Settings().bPrintBlankLines = false;
  for (int i = 0; i < 32767; ++i) AddSpeech(i % 2, "Line" + std::to_string(i));
  Print();
  int lines = 0;
  int pages = 1;
  for (const std::string& call : printers_.calls) {
    if (call.ends_with(": Line" + std::to_string(lines))) ++lines;
    if (call == "new page") ++pages;
  }
  EXPECT_EQ(lines, 32767) << "each in its order";
  EXPECT_EQ(pages, pages_.PrintPageNumber);
  EXPECT_GT(pages, 1000);
}

}  // namespace
}  // namespace parlate

// Whole pages, held against places worked out by hand: see RecordingSurface for the metrics. The
// left edge of the text is 500, its top 600 and its bottom 11400.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/printing/PrintPages.h"
#include "support/ConversationScript.h"
#include "support/RecordingSurface.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using namespace testing_support;

class PrintedConversation : public testing::Test {
 protected:
  PrintedConversation() {
    space_.AddRows(kActorTable, {{0, "Alex"}, {1, "Zoe"}});
    space_.AddRows(kSkillTable, {{1, "Swim"}});
    space_.AddRows(kFlagTable, {{2, "Door"}, {3, "Lamp"}});
    space_.AddRows(kObjectTable, {{4, "Key"}});
    con_.conName = "greeting";
    con_.NPCID = 1;
    surface_->CurrentY = 600;
  }

  ConversationDefaults& Settings() { return space_.workspace.defaults; }

  template <class Event>
  Event& Add(std::int32_t type, Event event, const std::string& label = "") {
    auto item = std::make_shared<EventItem>();
    item->key = con_.NextEventKey();
    item->eventLabel = label;
    Event& added = item->SetEventObject(type, std::move(event));
    con_.events.Add(item->key, item);
    return added;
  }
  EventSpeech& AddSpeech(std::int32_t speaker, const std::string& text,
                         const std::string& label = "") {
    EventSpeech speech;
    speech.ActorSpeakerID = speaker;
    speech.speech = text;
    return Add(kSpeech, speech, label);
  }
  EventComment& AddComment(const std::string& text) {
    EventComment comment;
    comment.commentText = text;
    return Add(kComment, comment);
  }
  static void AddFlag(FlagList& flags, std::int32_t id, bool value) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = id;
    flag->bValue = value;
    flags.Add(id, flag);
  }

  const std::vector<std::string>& Print(bool detailed = false) {
    result_ = con_.PrintConversation(pages_, detailed);
    return printers_.calls;
  }
  /// What stands below the title, which is printed first and takes two calls.
  std::vector<std::string> PrintBelowTitle() {
    const auto& calls = Print();
    return {calls.begin() + 2, calls.end()};
  }

  TestWorkspace space_;
  RecordingPrinters printers_;
  std::unique_ptr<PrintSurface> surface_ = printers_.ShowPrinterDialog();
  PrintPages pages_{*surface_};
  Conversation con_;
  bool result_ = false;
};

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
          "box 450,2280 9500,2560 solid CCCCCC", "background 1", "500,2300 Arial 12 bold: Start",
          // meant: the heading keeps the size of the bar
          "750,2590 Arial 12: Zoe", "1000,2830 Courier New 10: Hello", "750,3230 Arial 10: Comment",
          "1000,3430 Courier New 10: A comment", "750,3830 Arial 10: Alex",
          "1000,4030 Courier New 10: Hi", "box 450,4610 9500,4890 solid CCCCCC", "background 1",
          "500,4630 Arial 12 bold: Stop", "750,4920 Arial 12: End"));
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
                          "750,1080 Arial 10: Zoe", "1000,1280 Courier New 10: Hello"));
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
                                   "line 500,1020 9500,1020", "box 450,1300 9500,1620 solid CCCCCC",
                                   "background 1", "500,1320 Arial 14 bold: Start",
                                   "750,1650 Arial 14: Zoe", "1000,1930 Courier New 12: Hello"));
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
                          "750,1680 Arial 10: Choice", "1000,1880 Courier New 10: \x95 Yes",
                          "750,2280 Arial 10: Comment", "1000,2480 Courier New 10: A comment"));
}

TEST_F(PrintedConversation, NamesTheAudioFilesOfSpeechAndChoices) {
  Settings().bPrintAudioNames = true;
  AddSpeech(1, "Hello").audioFile = "a.mp3";
  EventChoice choices;
  auto choice = std::make_shared<ChoiceItem>();
  choice->text = "Yes";
  choice->audioFile = "b.mp3";
  choice->skillID = -1;
  choices.Choices.Add(0, choice);
  Add(kChoice, choices);
  EXPECT_THAT(PrintBelowTitle(),
              ElementsAre("750,1080 Arial 10: Zoe", "1000,1280 Courier New 10: Hello",
                          // a blank line, the name, and the blank line behind the event
                          "1300,1680 Courier New 10: [Audio Filename = a.mp3]",
                          "750,2080 Arial 10: Choice", "1000,2280 Courier New 10: \x95 Yes",
                          "1300,2680 Courier New 10: [Audio Filename = b.mp3]"));
  EXPECT_EQ(surface_->CurrentY, 3280) << "a blank line after the name and one after the event";
}

TEST_F(PrintedConversation, ShowsWhereAChoiceLeadsAndWhatItTakesInItalics) {
  EventChoice choices;
  auto choice = std::make_shared<ChoiceItem>();
  choice->text = "Yes";
  choice->label = "Start";
  choice->skillID = 1;
  choice->skillLevel = 2;
  AddFlag(choice->flagRefs, 2, true);
  AddFlag(choice->flagRefs, 3, false);
  choices.Choices.Add(0, choice);
  const EventChoice& added = Add(kChoice, choices);
  EXPECT_THAT(PrintBelowTitle(),
              ElementsAre("750,1080 Arial 10: Choice", "1000,1280 Courier New 10: \x95 Yes",
                          "1300,1480 Courier New 10 italic: Jump To: Start",
                          "1300,1680 Courier New 10 italic: Requires Skill Swim",
                          "1300,1880 Courier New 10 italic: Flags: Door = True, Lamp = False"));
  EXPECT_EQ(added.GetEventPrintHeight(*surface_), 900) << "four lines and a gap of 100";
}

TEST_F(PrintedConversation, TheGapOfAChoiceIsInItsHeightOnly) {
  EventChoice choices;
  for (int i = 0; i < 2; ++i) {
    auto choice = std::make_shared<ChoiceItem>();
    choice->text = "Yes";
    choice->skillID = -1;
    choices.Choices.Add(i, choice);
  }
  const EventChoice& added = Add(kChoice, choices);
  EXPECT_EQ(added.GetEventPrintHeight(*surface_), 600);
  EXPECT_THAT(PrintBelowTitle(),
              ElementsAre("750,1080 Arial 10: Choice", "1000,1280 Courier New 10: \x95 Yes",
                          "1000,1480 Courier New 10: \x95 Yes"));
}

TEST_F(PrintedConversation, OtherHeadingsNameTheTypeAndTheActorInTheNextZone) {
  EventTrade trade;
  trade.PawnID = 0;
  Add(kTrade, trade);
  EventTransferObject transfer;
  transfer.objectID = 4;
  transfer.fromPawnID = 0;
  transfer.toPawnID = 1;
  transfer.transferCount = 1;
  Add(kTransferObject, transfer);
  const auto calls = PrintBelowTitle();
  ASSERT_GE(calls.size(), 4U);
  EXPECT_EQ(calls[0], "750,1080 Arial 10: Buy/Sell/Trade");
  EXPECT_EQ(calls[1], "2800,1080 Arial 10: Alex") << "14 characters from 750 end beyond zone 1";
  EXPECT_EQ(calls[2], "1000,1280 Courier New 10: Trade");
  EXPECT_EQ(calls[3], "750,1680 Arial 10: Transfer Object") << "the body names both actors";
}

TEST_F(PrintedConversation, PrintsFlagEventsFlagByFlagAndNoTarget) {
  EventSetFlag set;
  AddFlag(set.flagRefs, 2, true);
  Add(kSetFlags, set);
  EventCheckFlag check;
  AddFlag(check.flagRefs, 2, false);
  AddFlag(check.flagRefs, 3, true);
  check.failLabel = "Away";
  const EventCheckFlag& added = Add(kCheckFlags, check);
  EXPECT_THAT(
      PrintBelowTitle(),
      ElementsAre("750,1080 Arial 10: Set Flags", "1000,1280 Courier New 10: Door = True",
                  "750,1680 Arial 10: Check Flags", "1000,1880 Courier New 10: Door = False",
                  "1000,2080 Courier New 10: Lamp = True"));
  EXPECT_EQ(added.GetEventPrintHeight(*surface_), 400);
}

TEST_F(PrintedConversation, TheFirstTargetOfARandomJumpSharesTheLineOfItsCaption) {
  EventRandom random;
  random.ResizeLabels(1);
  random.AssignLabel(0, "One");
  random.AssignLabel(1, "Two");
  const EventRandom& added = Add(kRandomLabel, random);
  EXPECT_THAT(
      PrintBelowTitle(),
      ElementsAre("750,1080 Arial 10: Random Label", "1000,1280 Courier New 10: Random Targets:",
                  "1250,1280 Courier New 10: One", "1250,1480 Courier New 10: Two"));
  EXPECT_EQ(added.GetEventPrintHeight(*surface_), 600);
}

TEST_F(PrintedConversation, SaysPrimaryOfEveryGoalThatIsNotCompleted) {
  EventAddGoal open;
  open.goalName = "Find";
  open.goalText = "Find the key";
  Add(kAddGoal, open);
  EventAddGoal done;
  done.goalName = "Find";
  done.bGoalCompleted = true;
  Add(kAddGoal, done);
  EXPECT_THAT(PrintBelowTitle(), ElementsAre("750,1080 Arial 10: Add/Complete Goal",
                                             "1000,1280 Courier New 10: Goal Name: Find",
                                             "1000,1480 Courier New 10: Goal Text: Find the key",
                                             "1000,1680 Courier New 10: (Primary Goal)",
                                             "750,2080 Arial 10: Add/Complete Goal",
                                             "1000,2280 Courier New 10: Goal Name: Find",
                                             "1000,2480 Courier New 10: Completed"));
}

TEST_F(PrintedConversation, PrintsTheRowOfMostEventsOnOneLine) {
  EventAddCredits credits;
  credits.creditsToAdd = 5;
  Add(kAddCredits, credits);
  EventTrigger trigger;
  trigger.triggerTag = std::string(100, 'x');
  const EventTrigger& added = Add(kTrigger, trigger);
  EXPECT_THAT(PrintBelowTitle(),
              ElementsAre("750,1080 Arial 10: Add Credits",
                          "1000,1280 Courier New 10: Add 5 Credits", "750,1680 Arial 10: Trigger",
                          "1000,1880 Courier New 10: Trigger " + std::string(100, 'x')));
  EXPECT_EQ(added.GetEventPrintHeight(*surface_), 400) << "measured as if it were wrapped";
}

TEST_F(PrintedConversation, CheckPersonaIsAHeadingWithoutABody) {
  Add(kCheckPersona, EventCheckPersona());
  EXPECT_THAT(PrintBelowTitle(), ElementsAre("750,1080 Arial 10: Check Persona"));
  EXPECT_EQ(EventCheckPersona().GetEventPrintHeight(*surface_), 0);
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
                  "750,1720 Arial 12: Alex", "1000,1960 Courier New 10: Hi"));
  EXPECT_EQ(pages_.PrintPageNumber, 2);
}

TEST_F(PrintedConversation, ATitleThatDoesNotFitBeginsANewPage) {
  surface_->CurrentY = 11000;  // 480 more pass 11400
  Settings().bPrintFooters = false;
  AddSpeech(1, "Hello");
  EXPECT_THAT(Print(), ElementsAre("new page", "500,600 Arial 14: Conversation: Zoe - greeting",
                                   "line 500,980 9500,980", "750,1080 Arial 10: Zoe",
                                   "1000,1280 Courier New 10: Hello"));
}

TEST_F(PrintedConversation, AnEventTallerThanAPageRunsOverItsEndOnTheSecondTry) {
  Settings().bPrintFooters = false;
  AddComment(std::string(95 * 90, 'x'));
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
  EXPECT_THAT(Print(),
              ElementsAre("500,10420 Arial 14: Conversation: Zoe - greeting",
                          "line 500,10800 9500,10800", "750,10900 Arial 10: Zoe", "new page",
                          "500,600 Arial 14: Conversation: Zoe - greeting (continued)",
                          "line 500,980 9500,980", "750,1080 Arial 10: Zoe",
                          "1000,1280 Courier New 10: " + std::string(81, 'x'),
                          "1000,1480 Courier New 10: " + std::string(5, 'x')));
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

}  // namespace
}  // namespace parlate

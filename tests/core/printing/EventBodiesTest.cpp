// What each type of event prints below its heading, held against places worked out by hand.

#include "PrintedConversation.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

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
  EXPECT_THAT(
      PrintBelowTitle(),
      ElementsAre(
          "750,1080 Arial 10: Zoe", "1000,1280 Courier New 10: Hello",
          // a blank line, the name, and the blank line behind the event
          "1300,1480 Courier New 10: ", "1300,1680 Courier New 10: [Audio Filename = a.mp3]",
          "1000,1880 Courier New 10: ", "750,2080 Arial 10: Choice",
          "1000,2280 Courier New 10: \x95 Yes",
          "1300,2480 Courier New 10: ", "1300,2680 Courier New 10: [Audio Filename = b.mp3]",
          "0,2880 Courier New 10: ", "0,3080 Courier New 10: "));
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
                          "1300,1880 Courier New 10 italic: Flags: Door = True, Lamp = False",
                          "0,2080 Courier New 10: "));
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
                          "1000,1480 Courier New 10: \x95 Yes", "0,1680 Courier New 10: "));
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
  ASSERT_GE(calls.size(), 6U);
  EXPECT_EQ(calls[0], "750,1080 Arial 10: Buy/Sell/Trade");
  EXPECT_EQ(calls[1], "2800,1080 Arial 10: Alex") << "14 characters from 750 end beyond zone 1";
  EXPECT_EQ(calls[2], "1000,1280 Courier New 10: Trade");
  EXPECT_EQ(calls[4], "750,1680 Arial 10: Transfer Object") << "the body names both actors";
  EXPECT_EQ(calls[5], "1000,1880 Courier New 10: Transfer Key from Alex to Zoe");
}

TEST_F(PrintedConversation, PrintsFlagEventsFlagByFlagAndNoTarget) {
  EventSetFlag set;
  AddFlag(set.flagRefs, 2, true);
  const EventSetFlag& addedSet = Add(kSetFlags, set);
  EXPECT_EQ(addedSet.GetEventPrintHeight(*surface_), 200);
  EventCheckFlag check;
  AddFlag(check.flagRefs, 2, false);
  AddFlag(check.flagRefs, 3, true);
  check.failLabel = "Away";
  const EventCheckFlag& added = Add(kCheckFlags, check);
  EXPECT_THAT(PrintBelowTitle(),
              ElementsAre("750,1080 Arial 10: Set Flags", "1000,1280 Courier New 10: Door = True",
                          "0,1480 Courier New 10: ", "750,1680 Arial 10: Check Flags",
                          "1000,1880 Courier New 10: Door = False",
                          "1000,2080 Courier New 10: Lamp = True", "0,2280 Courier New 10: "));
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
      ElementsAre("750,1080 Arial 10: Random Label",
                  "1000,1280 Courier New 10: Random Targets:", "1250,1280 Courier New 10: One",
                  "1250,1480 Courier New 10: Two", "0,1680 Courier New 10: "));
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
  EXPECT_THAT(PrintBelowTitle(),
              ElementsAre("750,1080 Arial 10: Add/Complete Goal",
                          "1000,1280 Courier New 10: Goal Name: Find",
                          "1000,1480 Courier New 10: Goal Text: Find the key",
                          "1000,1680 Courier New 10: (Primary Goal)",
                          "0,1880 Courier New 10: ", "750,2080 Arial 10: Add/Complete Goal",
                          "1000,2280 Courier New 10: Goal Name: Find",
                          "1000,2480 Courier New 10: Completed", "0,2680 Courier New 10: "));
}

TEST_F(PrintedConversation, PrintsTheRowOfMostEventsOnOneLine) {
  EventAddCredits credits;
  credits.creditsToAdd = 5;
  Add(kAddCredits, credits);
  EventTrigger trigger;
  trigger.triggerTag = std::string(100, 'x');
  const EventTrigger& added = Add(kTrigger, trigger);
  EXPECT_THAT(
      PrintBelowTitle(),
      ElementsAre("750,1080 Arial 10: Add Credits", "1000,1280 Courier New 10: Add 5 Credits",
                  "0,1480 Courier New 10: ", "750,1680 Arial 10: Trigger",
                  "1000,1880 Courier New 10: Trigger " + std::string(100, 'x'),
                  "0,2080 Courier New 10: "));
  EXPECT_EQ(added.GetEventPrintHeight(*surface_), 400) << "measured as if it were wrapped";
}

TEST_F(PrintedConversation, CheckPersonaIsAHeadingWithoutABody) {
  Add(kCheckPersona, EventCheckPersona());
  EXPECT_THAT(PrintBelowTitle(),
              ElementsAre("750,1080 Arial 10: Check Persona", "0,1280 Courier New 10: "));
  EXPECT_EQ(EventCheckPersona().GetEventPrintHeight(*surface_), 0);
}

TEST_F(PrintedConversation, EachOneLineBodyIsMeasuredAndPrintedAsItsRow) {
  EventAddNote note;
  note.noteText = "A note";
  EventAddSkillPoints points;
  points.pointsToAdd = 3;
  EventAnimation animation;
  animation.SeqName = "Wave";
  animation.PawnID = -1;
  EventCheckObject check;
  check.objectID = 4;
  EventJump jump;
  jump.label = "Start";
  EventMoveCamera camera;
  EventTransferObject transfer;
  transfer.objectID = 4;
  transfer.fromPawnID = 0;
  transfer.toPawnID = 1;
  transfer.transferCount = 1;
  EventAddCredits credits;
  credits.creditsToAdd = 5;
  Settings().bPrintBlankLines = false;
  const auto expectRow = [this](std::int32_t type, const auto& event) {
    const EventObject& body = Add(type, event);
    EXPECT_EQ(body.GetEventPrintHeight(*surface_), 200) << type;
    printers_.calls.clear();
    surface_->CurrentY = 600;
    con_.PrintConversation(pages_, false);
    EXPECT_EQ(printers_.calls.back(), "1000,1280 Courier New 10: " + body.BuildEventListString())
        << type;
    EXPECT_FALSE(body.BuildEventListString().empty()) << type;
    con_.events.Clear();
  };
  expectRow(kAddNote, note);
  expectRow(kAddSkillPoints, points);
  expectRow(kPlayAnimation, animation);
  expectRow(kCheckObject, check);
  expectRow(kJump, jump);
  expectRow(kMoveCamera, camera);
  expectRow(kTrade, EventTrade());
  expectRow(kTransferObject, transfer);
  expectRow(kAddCredits, credits);
}

TEST_F(PrintedConversation, ASpeechIsMeasuredWithTheNameOfItsAudioFileIfThatIsPrinted) {
  EventSpeech speech;
  speech.speech = "Hello";
  EXPECT_EQ(speech.GetEventPrintHeight(*surface_), 200);
  speech.audioFile = "a.mp3";
  EXPECT_EQ(speech.GetEventPrintHeight(*surface_), 200);
  Settings().bPrintAudioNames = true;
  EXPECT_EQ(speech.GetEventPrintHeight(*surface_), 400);
  EventComment comment;
  comment.commentText = std::string(91, 'x');
  EXPECT_EQ(comment.GetEventPrintHeight(*surface_), 400) << "90 characters fit from 0";
}

TEST_F(PrintedConversation, ASpeechThatDeclinesStillNamesItsAudioFile) {
  Settings().bPrintAudioNames = true;
  EventSpeech speech;
  speech.speech = "Hello";
  speech.audioFile = "a.mp3";
  surface_->CurrentY = 11300;
  EXPECT_FALSE(speech.PrintEvent(*surface_, 1000, 11400));
  EXPECT_THAT(printers_.Texts(), ElementsAre("[Audio Filename = a.mp3]"));
  EXPECT_EQ(surface_->CurrentX, 1000);
}

TEST_F(PrintedConversation, AChoiceIsMeasuredWithItsAudioFileButWithoutTheBlankLinesRoundIt) {
  EventChoice choices;
  auto choice = std::make_shared<ChoiceItem>();
  choice->text = "Yes";
  choice->audioFile = "b.mp3";
  choice->skillID = -1;
  choices.Choices.Add(0, choice);
  EXPECT_EQ(choices.GetEventPrintHeight(*surface_), 300);
  Settings().bPrintAudioNames = true;
  EXPECT_EQ(choices.GetEventPrintHeight(*surface_), 500) << "two lines and the gap";
  Settings().bPrintSpeechOnly = true;
  EXPECT_EQ(choices.GetEventPrintHeight(*surface_), 400) << "no gap";
}

TEST_F(PrintedConversation, WrappedChoicesAndTheirFlagsGoOn300FurtherIn) {
  // 80 characters fit from 1000, 77 from 1300 and 74 from 1600.
  EventChoice choices;
  auto choice = std::make_shared<ChoiceItem>();
  choice->text = std::string(77, 'a') + " bb";
  choice->skillID = -1;
  space_.AddRows(kFlagTable, {{8, std::string(60, 'f')}});
  AddFlag(choice->flagRefs, 8, true);
  AddFlag(choice->flagRefs, 3, false);
  choices.Choices.Add(0, choice);
  Add(kChoice, choices);
  EXPECT_THAT(
      PrintBelowTitle(),
      ElementsAre("750,1080 Arial 10: Choice",
                  "1000,1280 Courier New 10: \x95 " + std::string(77, 'a'),
                  "1300,1480 Courier New 10: bb",
                  "1300,1680 Courier New 10 italic: Flags: " + std::string(60, 'f') + " = True,",
                  "1600,1880 Courier New 10 italic: Lamp = False", "0,2080 Courier New 10: "));
}

TEST_F(PrintedConversation, AGoalIsMeasuredByTheTextBelowItsRow) {
  EventAddGoal goal;
  goal.goalName = "Find";
  goal.goalText = "Find the key";
  EXPECT_EQ(goal.GetEventPrintHeight(*surface_), 600) << "the text ends with a line end";
  goal.bPrimaryGoal = true;
  EXPECT_EQ(goal.GetEventPrintHeight(*surface_), 600);
  goal.bGoalCompleted = true;
  EXPECT_EQ(goal.GetEventPrintHeight(*surface_), 400);
}

TEST_F(PrintedConversation, AnEndIsAHeadingWithoutABody) {
  EXPECT_EQ(EventEnd().GetEventPrintHeight(*surface_), 0);
  Settings().bPrintBlankLines = false;
  Add(kEnd, EventEnd());
  EXPECT_THAT(PrintBelowTitle(), ElementsAre("750,1080 Arial 10: End"));
}

}  // namespace
}  // namespace parlate

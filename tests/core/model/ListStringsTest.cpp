// What the event list shows of each type, with the list expanded and not.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/EventItem.h"
#include "support/FakeControls.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::ErrorOf;
using testing_support::FakeListBox;
using testing_support::TestWorkspace;

std::shared_ptr<FlagRef> NewFlag(std::int32_t id, bool value, std::int32_t expiration = 0) {
  auto flag = std::make_shared<FlagRef>();
  flag->flagID = id;
  flag->bValue = value;
  flag->expiration = expiration;
  return flag;
}

FlagList DoorAndLamp() {
  FlagList flags;
  flags.Add(2, NewFlag(2, true, 4));
  flags.Add(3, NewFlag(3, false));
  return flags;
}

std::shared_ptr<ChoiceItem> NewChoice(std::int32_t id, const std::string& text) {
  auto choice = std::make_shared<ChoiceItem>();
  choice->ID = id;
  choice->text = text;
  choice->skillID = -1;
  return choice;
}

EventChoice TwoChoices() {
  EventChoice event;
  auto spoken = NewChoice(0, "Yes");
  spoken->label = "Start";
  spoken->skillID = 1;
  spoken->bDisplayAsSpeech = true;
  spoken->audioFile = "yes.mp3";
  spoken->flagRefs = DoorAndLamp();
  event.Choices.Add(0, spoken);
  event.Choices.Add(1, NewChoice(1, "No"));
  return event;
}

EventRandom RandomOf(const std::vector<std::string>& labels) {
  EventRandom event;
  event.ResizeLabels(static_cast<std::int32_t>(labels.size()) - 1);
  for (std::size_t i = 0; i < labels.size(); ++i) {
    event.AssignLabel(static_cast<std::int32_t>(i), labels[i]);
  }
  return event;
}

template <class Event>
Event With(const std::function<void(Event&)>& fill) {
  Event event;
  fill(event);
  return event;
}

EventTransferObject Transfer(std::int32_t from, const std::string& failLabel) {
  return With<EventTransferObject>([&](auto& e) { e.Update(4, 3, from, 0, failLabel); });
}

EventMoveCamera Camera(std::int32_t type) {
  return With<EventMoveCamera>([&](auto& e) {
    e.cameraType = type;
    e.cameraPosition = 3;
    e.rotationPitch = 10;
    e.rotationYaw = -20;
    e.rotationRoll = 30;
    e.cameraX = 1;
    e.cameraY = -2;
    e.cameraZ = 3;
    e.heightModifier = 1.5;
    e.centerModifier = -0.25;
    e.distanceMultiplier = 2;
  });
}

EventAnimation Animation(std::int32_t mode, std::int32_t length, bool finish) {
  return With<EventAnimation>([&](auto& e) {
    e.PawnID = 5;
    e.SeqName = "Wave";
    e.playMode = mode;
    e.playLength = length;
    e.bFinishAnim = finish;
  });
}

EventAddGoal Goal(bool completed, bool primary) {
  return With<EventAddGoal>([&](auto& e) { e.Update("Escape", completed, "Find it", primary); });
}

EventCheckPersona Persona() {
  return With<EventCheckPersona>([](auto& e) { e.Update(2, 3, "77", "Start"); });
}

EventCheckObject CheckObject(const std::string& failLabel) {
  return With<EventCheckObject>([&](auto& e) { e.Update(4, failLabel); });
}

struct Shown {
  std::string name;
  std::shared_ptr<EventObject> event;
  std::int32_t actor;
  std::string plain;
  std::string expanded;
  std::string subText;
};

template <class Event>
Shown Row(std::string name, Event event, std::int32_t actor, std::string plain,
          std::string expanded, std::string subText) {
  return {std::move(name),
          std::make_shared<Event>(std::move(event)),
          actor,
          std::move(plain),
          std::move(expanded),
          std::move(subText)};
}

std::vector<Shown> ShownEvents() {
  const auto speech = With<EventSpeech>([](auto& e) {
    e.ActorSpeakerID = 1;
    e.speech = "Hello";
    e.audioFile = "hello.mp3";
  });
  const auto silent = With<EventSpeech>([](auto& e) { e.speech = "Hm"; });
  const auto setFlag = With<EventSetFlag>([](auto& e) { e.Update(DoorAndLamp()); });
  const auto checkFlag = With<EventCheckFlag>([](auto& e) { e.Update(DoorAndLamp(), "End"); });
  const auto noFlags = With<EventCheckFlag>([](auto& e) { e.Update(FlagList(), "End"); });
  const auto trade = With<EventTrade>([](auto& e) { e.PawnID = 5; });
  const auto trigger = With<EventTrigger>([](auto& e) { e.Update("Alarm"); });
  const auto note = With<EventAddNote>([](auto& e) { e.Update("A note"); });
  const auto points = With<EventAddSkillPoints>([](auto& e) { e.Update(250, "Well done"); });
  const auto credits = With<EventAddCredits>([](auto& e) { e.Update(-50); });
  const auto comment = With<EventComment>([](auto& e) { e.Update("A comment"); });
  const std::string noConversation = "Jump to Start [Invalid Conversation - Please fix]";
  const auto lostJump = With<EventJump>([](auto& e) { e.Update("Start", -1); });
  const auto deletedJump = With<EventJump>([](auto& e) { e.Update("Start", 99); });
  const auto jump = With<EventJump>([](auto& e) { e.Update("Start", 7); });
  const std::string choices =
      "- Yes      [Goto: Start]      [Requires Skill Computers]    [Audio File: yes.mp3]\r"
      "    [Flags: Door = True, Lamp = False]\r- No";
  return {
      Row("Speech", speech, 1, "Hello", "hello.mp3", "Hello"),
      Row("SpeechWithoutAudio", silent, -1, "Hm", "", "Hm"),
      Row("Choice", TwoChoices(), -1, "Yes[Start], No", "", choices),
      Row("SetFlags", setFlag, -1, "Set Door = True, Lamp = False", "",
          "Door = True        (exp. 4)\rLamp = False\r"),
      Row("CheckFlags", checkFlag, -1, "If Door = True, Lamp = False,  then Jump to End",
          "Jump to End", "Door = True\rLamp = False\r"),
      Row("CheckNoFlags", noFlags, -1, "If  then Jump to End", "Jump to End", ""),
      Row("CheckObject", CheckObject("End"), -1, "Check For Object Key on fail jump to End",
          "Check For Object Key on fail jump to End", ""),
      Row("CheckObjectGoingOn", CheckObject(""), -1, "Check For Object Key", "Check For Object Key",
          ""),
      Row("Transfer", Transfer(5, "End"), 0, "Transfer Key from Bob to Alex on fail jump to End",
          "Transfer Key from Bob to Alex on fail jump to End", ""),
      Row("Give", Transfer(-1, ""), 0, "Give Key to Alex", "Give Key to Alex", ""),
      Row("GiveOrFail", Transfer(-1, "End"), 0, "Give Key to Alex on fail jump to End",
          "Give Key to Alex on fail jump to End", ""),
      Row("CameraPredefined", Camera(0), -1, "Predefined: Side, Above 45 Degrees",
          "Predefined: Side, Above 45 Degrees", ""),
      Row("CameraSpeakers", Camera(1), -1, "Based on Speakers", "Based on Speakers",
          "Pitch, Yaw, Roll = 10, -20, 30Height Modifier = 1.5Center Modifier = -0.25"
          "Distance Multiplier = 2"),
      Row("CameraActor", Camera(2), -1, "Based on Actor", "Based on Actor",
          "Actor = Camera X, Y, Z = 1, -2, 3Pitch, Yaw, Roll = 10, -20, 30"),
      Row("CameraRandom", Camera(3), -1, "Random", "Random", ""),
      Row("CameraUnknown", Camera(4), -1, "", "", ""),
      Row("CameraNegative", Camera(-1), -1, "", "", ""),
      Row("AnimationLoop", Animation(0, 0, false), 5, "Play Animation: 'Wave', Loop Animation",
          "Play Animation: 'Wave', Loop Animation", ""),
      Row("AnimationOnce", Animation(1, 12, true), 5,
          "Play Animation: 'Wave', Play Animation Once for 12 seconds, wait for Animation to "
          "finish",
          "Play Animation: 'Wave', Play Animation Once for 12 seconds, wait for Animation to "
          "finish",
          ""),
      Row("AnimationOddModeAndLength", Animation(-1, -3, false), 5,
          "Play Animation: 'Wave', Play Animation Once",
          "Play Animation: 'Wave', Play Animation Once", ""),
      Row("Trade", trade, 5, "Trade", "Trade", ""),
      Row("Jump", jump, -1, "Jump to Start", "Jump to Start", ""),
      Row("JumpNowhere", lostJump, -1, noConversation, noConversation, ""),
      Row("JumpToDeleted", deletedJump, -1, noConversation, noConversation, ""),
      Row("Random", RandomOf({"One", "Two"}), -1, "Target Labels: One, Two", "",
          "Target Labels: \rOne\rTwo\r"),
      Row("Trigger", trigger, -1, "Trigger Alarm", "Trigger Alarm", ""),
      Row("Goal", Goal(false, false), -1, "Find it", "", "Goal Name: Escape\rGoal Text: Find it\r"),
      Row("GoalPrimary", Goal(false, true), -1, "Find it", "",
          "Goal Name: Escape\rGoal Text: Find it\r(Primary Goal)"),
      Row("GoalCompleted", Goal(true, true), -1, "", "", "Goal Name: Escape\rCompleted"),
      Row("Note", note, -1, "A note", "A note", ""),
      Row("SkillPoints", points, -1, "Add 250 Skill Points", "Add 250 Skill Points", ""),
      Row("Credits", credits, -1, "Add -50 Credits", "Add -50 Credits", ""),
      Row("Persona", Persona(), -1, "", "", ""),
      Row("Comment", comment, -1, "A comment", "", "A comment"),
      Row("End", EventEnd(), -1, "", "", ""),
  };
}

class ListStrings : public testing::TestWithParam<Shown> {
 protected:
  void SetUp() override {
    space_.AddSampleTables();
    space_.conversations.Add(7, 0, "Leaving");
  }

  TestWorkspace space_;
};

TEST_P(ListStrings, ShowTheEvent) {
  const Shown& shown = GetParam();
  space_.workspace.defaults.ExpandListEnabled = false;
  EXPECT_EQ(shown.event->BuildEventListString(), shown.plain);
  EXPECT_EQ(shown.event->BuildEventListSubString(), shown.subText);
  space_.workspace.defaults.ExpandListEnabled = true;
  EXPECT_EQ(shown.event->BuildEventListString(), shown.expanded);
  EXPECT_EQ(shown.event->BuildEventListSubString(), shown.subText);
  EXPECT_EQ(shown.event->GetActorID(), shown.actor);
}

INSTANTIATE_TEST_SUITE_P(OfEachType, ListStrings, testing::ValuesIn(ShownEvents()),
                         [](const auto& tested) { return tested.param.name; });

TEST(ListString, NamesEachCameraPosition) {
  for (std::size_t i = 0; i < cameraPositionNames.size(); ++i) {
    EventMoveCamera camera;
    camera.cameraPosition = static_cast<std::int32_t>(i);
    EXPECT_EQ(camera.BuildEventListString(), "Predefined: " + std::string(cameraPositionNames[i]));
  }
  EventMoveCamera outside;
  outside.cameraPosition = 15;
  EXPECT_EQ(ErrorOf([&] { (void)outside.BuildEventListString(); }), 9);
  outside.cameraPosition = -1;
  EXPECT_EQ(ErrorOf([&] { (void)outside.BuildEventListString(); }), 9);
}

TEST(ListString, LeavesAudioNamesOutWhenTheyAreNotToBeShown) {
  TestWorkspace space;
  space.AddSampleTables();
  space.workspace.defaults.bShowAudioFiles = false;
  EventSpeech speech;
  speech.audioFile = "hello.mp3";
  EXPECT_EQ(speech.BuildEventListString(), "");
  EXPECT_EQ(TwoChoices().BuildEventListSubString(),
            "- Yes      [Goto: Start]      [Requires Skill Computers]\r"
            "    [Flags: Door = True, Lamp = False]\r- No");
}

TEST(ListString, LeavesOutTheAudioNameOfAChoiceThatIsNotSpoken) {
  const TestWorkspace space;
  EventChoice event;
  event.Choices.Add(0, NewChoice(0, "No"));
  event.Choices.At(0).audioFile = "no.mp3";
  EXPECT_EQ(event.BuildEventListSubString(), "- No");
  event.Choices.At(0).bDisplayAsSpeech = true;
  EXPECT_EQ(event.BuildEventListSubString(), "- No    [Audio File: no.mp3]");
}

TEST(ListString, OfAChoiceEventWithoutChoicesFailsOnlyInOneLine) {
  TestWorkspace space;
  const EventChoice event;
  EXPECT_EQ(event.BuildEventListSubString(), "");
  EXPECT_EQ(event.BuildEventListString(), "");
  space.workspace.defaults.ExpandListEnabled = false;
  EXPECT_EQ(ErrorOf([&] { (void)event.BuildEventListString(); }), 5);
}

TEST(ListString, OfARandomEventWithoutLabelsFails) {
  TestWorkspace space;
  const EventRandom event;
  EXPECT_EQ(ErrorOf([&] { (void)event.BuildEventListSubString(); }), 9);
  space.workspace.defaults.ExpandListEnabled = false;
  EXPECT_EQ(ErrorOf([&] { (void)event.BuildEventListString(); }), 9);
}

TEST(ListString, FailsForARowThatIsGone) {
  TestWorkspace space;
  space.workspace.defaults.ExpandListEnabled = false;
  EXPECT_EQ(ErrorOf([] { (void)CheckObject("").BuildEventListString(); }), 5);
  EXPECT_EQ(ErrorOf([] { (void)Transfer(-1, "").BuildEventListString(); }), 5);
  EXPECT_EQ(ErrorOf([] { (void)BuildFlagsString(DoorAndLamp()); }), 5);
}

TEST(ListString, OfAChoiceRowPartsTextLabelAndSkill) {
  TestWorkspace space;
  space.AddSampleTables();
  FakeListBox list({{"old row"}});
  EventChoice event = TwoChoices();
  event.Choices.At(0).label = "";
  event.Choices.At(1).label = "End";
  event.Choices.Add(6, NewChoice(6, "Maybe"));
  event.PopulateList(list);
  EXPECT_EQ(list.rows, (std::vector<testing_support::FakeRow>{
                           {"Yes;;Skill Required: Computers", 0}, {"No;End;", 1}, {"Maybe;;", 6}}));
}

}  // namespace
}  // namespace parlate

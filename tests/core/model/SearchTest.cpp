// Which text of each event class the search looks at.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "model/EventItem.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

constexpr const char* kNeedle = "Needle";

struct Field {
  std::string name;
  std::shared_ptr<EventObject> event;
  bool searched;
};

template <class Event, class Fill>
Field With(const std::string& name, bool searched, Fill fill) {
  auto event = std::make_shared<Event>();
  fill(*event);
  return {name, event, searched};
}

EventRandom RandomNeedle() {
  EventRandom random;
  random.ResizeLabels(0);
  random.AssignLabel(0, kNeedle);
  return random;
}

std::vector<Field> Fields() {
  const auto choice = [](EventChoice& e) {
    auto item = std::make_shared<ChoiceItem>();
    item->text = kNeedle;
    item->label = kNeedle;
    item->audioFile = kNeedle;
    e.Choices.Add(0, item);
  };
  return {
      With<EventSpeech>("Speech", true, [](auto& e) { e.speech = "a Needle here"; }),
      With<EventSpeech>("SpeechAudioFile", false, [](auto& e) { e.audioFile = kNeedle; }),
      With<EventChoice>("Choice", false, choice),
      With<EventSetFlag>("SetFlags", false, [](auto&) {}),
      With<EventCheckFlag>("CheckFlagsLabel", false, [](auto& e) { e.failLabel = kNeedle; }),
      With<EventCheckObject>("CheckObjectLabel", false, [](auto& e) { e.failLabel = kNeedle; }),
      With<EventTransferObject>("TransferLabel", false, [](auto& e) { e.failLabel = kNeedle; }),
      With<EventMoveCamera>("Camera", false, [](auto&) {}),
      With<EventAnimation>("AnimationSequence", false, [](auto& e) { e.SeqName = kNeedle; }),
      With<EventTrade>("Trade", false, [](auto&) {}),
      With<EventJump>("JumpLabel", false, [](auto& e) { e.label = kNeedle; }),
      With<EventRandom>("RandomLabel", false, [](auto& e) { e = RandomNeedle(); }),
      With<EventTrigger>("Trigger", true, [](auto& e) { e.triggerTag = kNeedle; }),
      With<EventAddGoal>("GoalName", true, [](auto& e) { e.goalName = kNeedle; }),
      With<EventAddGoal>("GoalText", true, [](auto& e) { e.goalText = kNeedle; }),
      With<EventAddGoal>("NameOfACompletedGoal", true,
                         [](auto& e) {
                           e.goalName = kNeedle;
                           e.bGoalCompleted = true;
                         }),
      With<EventAddGoal>("TextOfACompletedGoal", false,
                         [](auto& e) {
                           e.goalText = kNeedle;
                           e.bGoalCompleted = true;
                         }),
      With<EventAddNote>("Note", true, [](auto& e) { e.noteText = "xNeedlex"; }),
      With<EventAddSkillPoints>("AwardMessage", false, [](auto& e) { e.awardMessage = kNeedle; }),
      With<EventAddCredits>("Credits", false, [](auto&) {}),
      With<EventCheckPersona>("PersonaLabel", false, [](auto& e) { e.jumpLabel = kNeedle; }),
      With<EventComment>("Comment", true, [](auto& e) { e.commentText = kNeedle; }),
      With<EventEnd>("End", false, [](auto&) {}),
  };
}

class Search : public testing::TestWithParam<Field> {};

TEST_P(Search, LooksAtTheFieldsOfTheClass) {
  const EventObject& event = *GetParam().event;
  const bool searched = GetParam().searched;
  EXPECT_EQ(event.FindString("Needle", false, CompareMethod::Binary), searched);
  EXPECT_EQ(event.FindString("NEEDLE", false, CompareMethod::Text), searched);
  EXPECT_EQ(event.FindString("Need", true, CompareMethod::Binary), searched)
      << "whole words have no effect";
  EXPECT_FALSE(event.FindString("NEEDLE", false, CompareMethod::Binary));
  EXPECT_FALSE(event.FindString("Pin", false, CompareMethod::Text));
}

INSTANTIATE_TEST_SUITE_P(OfEachField, Search, testing::ValuesIn(Fields()),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace parlate

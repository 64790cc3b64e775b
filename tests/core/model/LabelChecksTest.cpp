// Which labels of each event class have to exist, and what is reported when one does not.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "model/Conversation.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::TestWorkspace;

class LabelChecks : public testing::Test {
 protected:
  LabelChecks() { con_.AddLabel("Start"); }

  /// Checks the event and expects the labels that it reports; nothing reported means valid.
  void ExpectBad(const EventObject& event, const std::vector<std::string>& labels) {
    space_.badLabels.reports.clear();
    EXPECT_EQ(event.AreLabelsValid(con_), labels.empty());
    EXPECT_EQ(space_.badLabels.Labels(), labels);
    for (const auto& report : space_.badLabels.reports) {
      EXPECT_EQ(report.con, &con_);
      EXPECT_EQ(report.event, &event);
    }
  }

  TestWorkspace space_;
  Conversation con_;
};

EventChoice ChoiceOf(const std::vector<std::string>& labels) {
  EventChoice event;
  for (const std::string& label : labels) {
    auto choice = std::make_shared<ChoiceItem>();
    choice->ID = event.nextID();
    choice->label = label;
    event.Choices.Add(choice->ID, choice);
  }
  return event;
}

TEST_F(LabelChecks, ReportEveryBadLabelOfAChoice) {
  ExpectBad(ChoiceOf({"Start", "", "START"}), {});
  ExpectBad(ChoiceOf({"Gone", "Start", "Lost", "Gone"}), {"Gone", "Lost", "Gone"});
}

TEST_F(LabelChecks, ReportEveryBadLabelOfARandomEvent) {
  EventRandom random;
  random.ResizeLabels(3);
  random.AssignLabel(0, "Gone");
  random.AssignLabel(1, "start");
  random.AssignLabel(2, "Lost");
  ExpectBad(random, {"Gone", "Lost"});
}

TEST_F(LabelChecks, ReportTheOneLabelOfCheckAndTransferEvents) {
  EventCheckFlag flags;
  EventCheckObject object;
  EventTransferObject transfer;
  for (const char* label : {"", "Start", "sTART"}) {
    flags.failLabel = object.failLabel = transfer.failLabel = label;
    ExpectBad(flags, {});
    ExpectBad(object, {});
    ExpectBad(transfer, {});
  }
  flags.failLabel = object.failLabel = transfer.failLabel = "Gone";
  ExpectBad(flags, {"Gone"});
  ExpectBad(object, {"Gone"});
  ExpectBad(transfer, {"Gone"});
}

TEST_F(LabelChecks, LookForTheLabelOfAJumpInItsTarget) {
  Conversation& target = space_.conversations.Add(7, 0, "Leaving");
  target.AddLabel("Exit");
  EventJump jump;
  jump.Update("Exit", 7);
  ExpectBad(jump, {});
  jump.Update("", 7);
  ExpectBad(jump, {});
  jump.Update("Start", 7);
  ExpectBad(jump, {"Start"});  // exists here, but not there
}

TEST_F(LabelChecks, LetAJumpPassThatPointsNowhere) {
  EventJump jump;
  jump.Update("Gone", -1);
  ExpectBad(jump, {});
  jump.Update("Gone", 99);
  ExpectBad(jump, {});
}

TEST_F(LabelChecks, LetAPersonaPassWhateverItsLabel) {
  EventCheckPersona persona;
  persona.jumpLabel = "Gone";
  ExpectBad(persona, {});
}

TEST_F(LabelChecks, LetAllOtherEventsPass) {
  EventSpeech speech;
  speech.speech = "Gone";
  EventTrigger trigger;
  trigger.triggerTag = "Gone";
  ExpectBad(speech, {});
  ExpectBad(trigger, {});
  ExpectBad(EventSetFlag(), {});
  ExpectBad(EventMoveCamera(), {});
  ExpectBad(EventAnimation(), {});
  ExpectBad(EventTrade(), {});
  ExpectBad(EventAddGoal(), {});
  ExpectBad(EventAddNote(), {});
  ExpectBad(EventAddSkillPoints(), {});
  ExpectBad(EventAddCredits(), {});
  ExpectBad(EventComment(), {});
  ExpectBad(EventEnd(), {});
}

TEST_F(LabelChecks, AreForwardedByTheItem) {
  EventItem item;
  EventCheckObject object;
  object.failLabel = "Gone";
  item.SetEventObject(kCheckObject, std::move(object));
  EXPECT_FALSE(item.AreLabelsValid(con_));
  EXPECT_THAT(space_.badLabels.Labels(), ElementsAre("Gone"));
}

TEST_F(LabelChecks, AnswerAlsoWhenNobodyListens) {
  space_.workspace.badLabels = nullptr;
  EXPECT_FALSE(ChoiceOf({"Gone"}).AreLabelsValid(con_));
  EXPECT_THAT(space_.badLabels.reports, IsEmpty());
}

}  // namespace
}  // namespace parlate

// The label of an event in the editor: its rule, and what the conversation knows of it.

#include <gmock/gmock.h>

#include "editors/EventEditorFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class FrmEventLabel : public EventEditorTest {
 protected:
  [[nodiscard]] std::vector<std::string> KnownLabels(std::int32_t con) {
    std::vector<std::string> known;
    for (const LabelItem& label : Con(con).Labels) known.push_back(label.Name);
    return known;
  }
  [[nodiscard]] std::vector<std::string> LabelsOfEvents(std::int32_t con) {
    std::vector<std::string> labels;
    for (const EventItem& event : Con(con).events) labels.push_back(event.eventLabel);
    return labels;
  }
  /// Leaves the editor open on an event with the label "Here" that was deleted from the second
  /// conversation, which had no other.
  void OpenAndDelete() {
    program_.workspace.defaults.bConfirmationEventDelete = false;
    program_.ClickNode("C1");
    Add(kEnd);
    Type("txtLabel", "Here");
    Click("cmdUpdate");
    program_.Choose("mnuEventsDelete");
    ASSERT_THAT(KeysInOrder(1), IsEmpty());
    ASSERT_THAT(KnownLabels(1), IsEmpty());
    ASSERT_EQ(TextOf("txtLabel"), "Here");
  }
};

TEST_F(FrmEventLabel, AnEventWithAnEmptyLabelCanBeStoredAnyNumberOfTimes) {
  for (int i = 0; i < 3; ++i) {
    Add(kEnd);
    Click("cmdUpdate");
  }
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
  EXPECT_EQ(Con().events.At(8).eventLabel, "");
}

TEST_F(FrmEventLabel, AnUnchangedLabelOfItsOwnPassesTheTest) {
  Edit(4);
  Click("cmdUpdate");
  EXPECT_EQ(Con().events.At(5).eventLabel, "Stop");
  EXPECT_TRUE(Con().IsValidLabel("Stop"));
  EXPECT_THAT(program_.messages.shown, IsEmpty());
}

TEST_F(FrmEventLabel, ALabelOfAnotherEventIsRefusedInWhateverCase) {
  Add(kEnd);
  Type("txtLabel", "sTOP");
  program_.messages.Expect(Answer::Ok);
  Click("cmdUpdate");
  EXPECT_EQ(LastBox().title, "Duplicate Label");
  EXPECT_EQ(LastBox().text, "The Event Label you entered is not unique, please choose another.");
  EXPECT_EQ(LastBox().icon, MessageBox::Icon::Exclamation);
  EXPECT_EQ(LastBox().buttons, MessageBox::Buttons::Ok);
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5)) << "nothing was stored";
  EXPECT_TRUE(Label().hasFocus());
  EXPECT_EQ(Label().selectedText(), "sTOP");
  EXPECT_TRUE(IsEnabled("cboEvents")) << "it is still a new event";
}

TEST_F(FrmEventLabel, ItsOwnLabelInOtherCaseCountsAsTaken) {
  Edit(4);
  Type("txtLabel", "STOP");
  program_.messages.Expect(Answer::Ok);
  Click("cmdUpdate");
  EXPECT_EQ(Con().events.At(5).eventLabel, "Stop");
}

TEST_F(FrmEventLabel, BlanksAroundALabelAreRemovedAtUpdate) {
  Add(kEnd);
  Type("txtLabel", "  Far away ");
  Click("cmdUpdate");
  EXPECT_EQ(TextOf("txtLabel"), "Far away");
  EXPECT_EQ(Con().events.At(6).eventLabel, "Far away");
  Add(kEnd);
  Type("txtLabel", " far away  ");
  program_.messages.Expect(Answer::Ok);
  Click("cmdUpdate");
  EXPECT_EQ(TextOf("txtLabel"), "far away") << "the shortened text is what is compared";
}

TEST_F(FrmEventLabel, ARenamedLabelTakesThePlaceOfTheOldOne) {
  Edit(4);
  Type("txtLabel", "Halt");
  Click("cmdUpdate");
  EXPECT_TRUE(Con().IsValidLabel("Halt"));
  EXPECT_FALSE(Con().IsValidLabel("Stop"));
  Type("txtLabel", "");
  Click("cmdUpdate");
  EXPECT_FALSE(Con().IsValidLabel("Halt")) << "the label stored last is the one that goes";
}

TEST_F(FrmEventLabel, LabelsOfOtherConversationsAreFree) {
  program_.ClickNode("C1");
  Add(kEnd);
  Type("txtLabel", "Stop");
  Click("cmdUpdate");
  EXPECT_EQ(Con(1).events.At(1).eventLabel, "Stop");
}

TEST_F(FrmEventLabel, LabelCombosOfferTheLabelsOfTheOthersInTheirOrder) {
  Edit(3);
  EXPECT_THAT(Entries("cboJumpLabel"), ElementsAre("Start", "Stop"));
  Type("txtLabel", "Here");
  Click("cmdUpdate");
  EXPECT_THAT(Entries("cboJumpLabel"), ElementsAre("Start", "Stop"))
      << "the label of the event itself is not offered";
  Add(kCheckFlags);
  EXPECT_THAT(Entries("cboCheckFlagGoto"), ElementsAre("Start", "Here", "Stop"));
}

TEST_F(FrmEventLabel, ShowsALabelThatNoEventDefines) {
  Add(kEnd);
  QtComboBox combo;
  combo.AddItem("start");
  combo.AddItem("Start");
  Editor().SelectLabelValue("Start", combo);
  EXPECT_EQ(combo.ListIndex(), 1) << "the exact text";
  Editor().SelectLabelValue("Gone", combo);
  EXPECT_EQ(combo.ListIndex(), 1) << "a selection stays";
  combo.SetListIndex(-1);
  Editor().SelectLabelValue("Gone", combo);
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(combo.Text(), "Gone");
}

TEST_F(FrmEventLabel, OfANewEventIsKnownWhereTheEventIsStored) {
  Add(kEnd);
  program_.ClickNode("C1");
  Type("txtLabel", "Here");
  Click("cmdUpdate");
  EXPECT_THAT(KnownLabels(0), ElementsAre("Start", "Stop"));
  EXPECT_THAT(KnownLabels(1), ElementsAre("Here"));
  EXPECT_EQ(Con(1).events.At(1).eventLabel, "Here");
  Add(kEnd);
  Type("txtLabel", "here");
  program_.messages.Expect(Answer::Ok);
  Click("cmdUpdate");
  ASSERT_EQ(program_.messages.shown.size(), 1U);
  EXPECT_EQ(LastBox().title, "Duplicate Label");
  EXPECT_THAT(KeysInOrder(1), ElementsAre(1));
}

TEST_F(FrmEventLabel, OfTheConversationWhereANewEventWasBegunIsFreeWhereItIsStored) {
  Add(kEnd);
  program_.ClickNode("C1");
  Type("txtLabel", "Stop");
  Click("cmdUpdate");
  EXPECT_THAT(program_.messages.shown, IsEmpty());
  EXPECT_THAT(LabelsOfEvents(1), ElementsAre("Stop"));
  EXPECT_THAT(KnownLabels(1), ElementsAre("Stop"));
  EXPECT_THAT(KnownLabels(0), ElementsAre("Start", "Stop"));
  EXPECT_EQ(Con(0).currentEventKey, 5) << "no key was used up there";
}

TEST_F(FrmEventLabel, OfTheConversationWhereANewEventIsStoredIsTaken) {
  program_.ClickNode("C1");
  Add(kEnd);
  program_.ClickNode("C0");
  Type("txtLabel", "stop");
  program_.messages.Expect(Answer::Ok);
  Click("cmdUpdate");
  ASSERT_EQ(program_.messages.shown.size(), 1U);
  EXPECT_EQ(LastBox().title, "Duplicate Label");
  EXPECT_THAT(KeysInOrder(0), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_THAT(KeysInOrder(1), IsEmpty());
  EXPECT_THAT(KnownLabels(1), IsEmpty());
}

TEST_F(FrmEventLabel, OfAnEditedEventStaysInItsConversationWhicheverIsSelected) {
  Edit(4);
  program_.ClickNode("C1");
  ASSERT_EQ(TextOf("txtLabel"), "Stop");
  Type("txtLabel", "Halt");
  Click("cmdUpdate");
  EXPECT_THAT(KnownLabels(0), ElementsAre("Start", "Halt"));
  EXPECT_EQ(Con(0).events.At(5).eventLabel, "Halt");
  EXPECT_THAT(KnownLabels(1), IsEmpty());
}

TEST_F(FrmEventLabel, OfADeletedEventDoesNotComeBackWithAnUpdate) {
  ASSERT_NO_FATAL_FAILURE(OpenAndDelete());
  Click("cmdUpdate");
  EXPECT_THAT(KnownLabels(1), IsEmpty());
  Type("txtLabel", "There");
  Click("cmdUpdate");
  EXPECT_THAT(KnownLabels(1), IsEmpty());
  EXPECT_THAT(KeysInOrder(1), IsEmpty());
  Add(kEnd);
  Type("txtLabel", "There");
  Click("cmdUpdate");
  EXPECT_THAT(program_.messages.shown, IsEmpty()) << "nobody bears it";
  EXPECT_THAT(LabelsOfEvents(1), ElementsAre("There"));
}

TEST_F(FrmEventLabel, OfADeletedEventIsLeftToTheOneThatBearsItNow) {
  ASSERT_NO_FATAL_FAILURE(OpenAndDelete());
  const auto heir = std::make_shared<EventItem>();
  heir->key = Con(1).NextEventKey();
  heir->eventLabel = "Here";
  heir->SetEventObject(kEnd, EventEnd());
  Con(1).AddLabel("Here");
  program_.shell().UpdateAddEvent(heir, true);
  Type("txtLabel", "Gone");
  Click("cmdUpdate");
  EXPECT_THAT(KnownLabels(1), ElementsAre("Here"));
  EXPECT_THAT(LabelsOfEvents(1), ElementsAre("Here"));
}

}  // namespace
}  // namespace parlate

// The panels that jump, to one label or to one of several.

#include <gmock/gmock.h>

#include "editors/EventEditorFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class FrmEventJump : public EventEditorTest {};
class FrmEventRandom : public EventEditorTest {
 protected:
  void AddLabel(const char* label) {
    Type("cboRandomLabels", label);
    Click("cmdRandomAddLabel");
  }
  std::vector<std::string> Targets() {
    std::vector<std::string> labels;
    const auto& list = The<QtListBox>("lstLabels");
    labels.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int i = 0; i < list.ListCount(); ++i) labels.push_back(list.List(i));
    return labels;
  }
  void SelectTarget(int row) {
    auto& list = The<QtListBox>("lstLabels");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(row)).center());
  }
};

TEST_F(FrmEventJump, OffersTheConversationsWithTheSelectedOneChosen) {
  Add(kJump);
  EXPECT_EQ(CaptionOf("cboJumpConv"), "Conversation:");
  EXPECT_EQ(CaptionOf("cboJumpLabel"), "Jump to Label:");
  EXPECT_THAT(Entries("cboJumpConv"), ElementsAre("greeting", "Arrival", "Leaving"));
  EXPECT_EQ(Combo("cboJumpConv").Text(), "greeting");
  EXPECT_THAT(Entries("cboJumpLabel"), ElementsAre("Start", "Stop"));
  EXPECT_EQ(Combo("cboJumpLabel").Text(), "");
  EXPECT_FALSE(CanUpdate());
}

TEST_F(FrmEventJump, OffersTheLabelsOfTheConversationThatIsChosen) {
  program_.ClickNode("C1");
  Add(kJump);
  EXPECT_THAT(Entries("cboJumpLabel"), IsEmpty());
  Focus("cboJumpConv");
  Press(Qt::Key_Home);
  EXPECT_EQ(Combo("cboJumpConv").Text(), "greeting");
  EXPECT_THAT(Entries("cboJumpLabel"), ElementsAre("Start", "Stop"));
  QtComboBox labels;
  Editor().PopulateJumpLabelCombo(labels);
  EXPECT_EQ(labels.ListCount(), 2);
}

TEST_F(FrmEventJump, NeedsAConversationAndALabel) {
  Add(kJump);
  Type("cboJumpLabel", "Anywhere");
  EXPECT_TRUE(CanUpdate());
  Combo("cboJumpConv").SetListIndex(-1);
  EXPECT_FALSE(CanUpdate());
  Combo("cboJumpConv").SetListIndex(2);
  EXPECT_FALSE(CanUpdate()) << "another conversation has other labels";
  Type("cboJumpLabel", "Anywhere");
  EXPECT_TRUE(CanUpdate());
  Type("cboJumpLabel", "");
  EXPECT_FALSE(CanUpdate());
}

TEST_F(FrmEventJump, GoesTheWholeWayToTheFileAndBack) {
  program_.ClickNode("C2");
  Add(kJump);
  Focus("cboJumpConv");
  Press(Qt::Key_Home);
  Type("cboJumpLabel", "Stop");
  Click("cmdUpdate");
  SaveAndReload();
  const auto& jump = EventOf<EventJump>(2, 2);
  EXPECT_EQ(jump.label, "Stop");
  EXPECT_EQ(jump.conID, 0);
}

TEST_F(FrmEventJump, ShowsTheTargetOfAnEvent) {
  program_.ClickNode("C2");
  Edit(0);
  EXPECT_EQ(Combo("cboJumpConv").Text(), "greeting");
  EXPECT_EQ(Combo("cboJumpLabel").Text(), "Start");
  EXPECT_EQ(Combo("cboJumpLabel").ListIndex(), 0);
  EXPECT_TRUE(CanUpdate());
}

TEST_F(FrmEventJump, AJumpToNowhereShowsTheSelectedConversation) {
  EventOf<EventJump>(1, 2).conID = -1;
  program_.ClickNode("C2");
  Edit(0);
  EXPECT_EQ(Combo("cboJumpConv").Text(), "Leaving");
  EXPECT_EQ(Combo("cboJumpLabel").Text(), "Start") << "a label that is not there stays in sight";
  EXPECT_EQ(Combo("cboJumpLabel").ListIndex(), -1);
}

TEST_F(FrmEventRandom, SaysWhatItsControlsAre) {
  Add(kRandomLabel);
  EXPECT_EQ(CaptionOf("cboRandomLabels"), "Label Targets:");
  EXPECT_EQ(CaptionOf("lstLabels"), "Labels:");
  EXPECT_EQ(ButtonCaption("cmdRandomAddLabel"), "Add Label");
  EXPECT_EQ(ButtonCaption("cmdLabelRemove"), "&Remove");
  EXPECT_EQ(ButtonCaption("cmdLabelRemoveAll"), "&Remove All");
  EXPECT_EQ(ButtonCaption("chkRandomCycle"), "Cycle Events ");
  EXPECT_EQ(ButtonCaption("chkCycleOnce"), "Only Cycle Once ");
  EXPECT_EQ(ButtonCaption("chkCycleRandom"), "Random after Cycle");
  EXPECT_THAT(Entries("cboRandomLabels"), ElementsAre("Start", "Stop"));
}

TEST_F(FrmEventRandom, NeedsTwoLabels) {
  Add(kRandomLabel);
  EXPECT_FALSE(CanUpdate());
  AddLabel("Start");
  EXPECT_FALSE(CanUpdate());
  AddLabel("Stop");
  EXPECT_TRUE(CanUpdate());
  SelectTarget(0);
  Click("cmdLabelRemove");
  EXPECT_FALSE(CanUpdate());
}

TEST_F(FrmEventRandom, GoesTheWholeWayToTheFileAndBack) {
  Add(kRandomLabel);
  AddLabel("Stop");
  AddLabel("Start");
  AddLabel("Gone");
  Click("chkRandomCycle");
  Click("chkCycleRandom");
  Click("cmdUpdate");
  EXPECT_THAT(Targets(), ElementsAre("Stop", "Start", "Gone"));
  WhenFormShows("frmMissingLabels", [](QWidget& form) {
    QTest::mouseClick(&ControlNamed<QAbstractButton>(form, "cmdYes"), Qt::LeftButton);
  });
  SaveAndReload();
  const auto& random = EventOf<EventRandom>(6);
  EXPECT_THAT(random.Labels(), ElementsAre("Stop", "Start", "Gone"));
  EXPECT_TRUE(random.bCycleEvents);
  EXPECT_FALSE(random.bCycleOnce);
  EXPECT_TRUE(random.bCycleRandom);
  Edit(5);
  EXPECT_THAT(Targets(), ElementsAre("Stop", "Start", "Gone"));
  EXPECT_TRUE(IsTicked("chkRandomCycle"));
  EXPECT_FALSE(IsTicked("chkCycleOnce"));
  EXPECT_TRUE(IsTicked("chkCycleRandom"));
  EXPECT_TRUE(IsEnabled("chkCycleOnce"));
}

TEST_F(FrmEventRandom, AddEmptiesTheComboAndADuplicateStaysInIt) {
  Add(kRandomLabel);
  EXPECT_FALSE(IsEnabled("cmdRandomAddLabel"));
  Type("cboRandomLabels", "Start");
  EXPECT_TRUE(IsEnabled("cmdRandomAddLabel"));
  Click("cmdRandomAddLabel");
  EXPECT_EQ(Combo("cboRandomLabels").Text(), "");
  EXPECT_FALSE(IsEnabled("cmdRandomAddLabel"));
  AddLabel("Start");
  EXPECT_THAT(Targets(), ElementsAre("Start"));
  EXPECT_EQ(Combo("cboRandomLabels").Text(), "Start");
  AddLabel("start");
  EXPECT_THAT(Targets(), ElementsAre("Start", "start")) << "compared letter by letter";
}

TEST_F(FrmEventRandom, ReturnInTheComboAddsItsLabel) {
  Add(kRandomLabel);
  AddLabel("Start");
  AddLabel("Stop");
  Type("cboRandomLabels", "Third");
  Press(Qt::Key_Return);
  EXPECT_THAT(Targets(), ElementsAre("Start", "Stop", "Third"));
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5)) << "nothing was stored";
}

TEST_F(FrmEventRandom, RemoveNeedsARowAndRemoveAllAnyRow) {
  Add(kRandomLabel);
  EXPECT_FALSE(IsEnabled("cmdLabelRemove"));
  EXPECT_FALSE(IsEnabled("cmdLabelRemoveAll"));
  AddLabel("a");
  AddLabel("b");
  EXPECT_FALSE(IsEnabled("cmdLabelRemove"));
  EXPECT_TRUE(IsEnabled("cmdLabelRemoveAll"));
  SelectTarget(1);
  EXPECT_TRUE(IsEnabled("cmdLabelRemove"));
  Click("cmdLabelRemove");
  EXPECT_THAT(Targets(), ElementsAre("a"));
  EXPECT_FALSE(IsEnabled("cmdLabelRemove")) << "no neighbour is selected in its place";
  AddLabel("c");
  Click("cmdLabelRemoveAll");
  EXPECT_THAT(Targets(), IsEmpty());
  EXPECT_FALSE(IsEnabled("cmdLabelRemove"));
  EXPECT_FALSE(IsEnabled("cmdLabelRemoveAll"));
  EXPECT_FALSE(CanUpdate());
  EXPECT_THAT(program_.messages.shown, IsEmpty());
}

TEST_F(FrmEventRandom, ASecondPressOfRemoveDoesNotReachRemoveAll) {
  Add(kRandomLabel);
  for (const char* label : {"a", "b", "c"}) AddLabel(label);
  SelectTarget(0);
  Focus("cmdLabelRemove");
  Press(Qt::Key_Space);
  EXPECT_THAT(Targets(), ElementsAre("b", "c"));
  EXPECT_TRUE(The<QWidget>("lstLabels").hasFocus());
  Press(Qt::Key_Space);
  EXPECT_THAT(Targets(), ElementsAre("b", "c"));
}

TEST_F(FrmEventRandom, FocusGoesBackToTheComboAfterAddAndAfterRemoveAll) {
  Add(kRandomLabel);
  for (const char* label : {"a", "a", "b"}) {
    Type("cboRandomLabels", label);
    Focus("cmdRandomAddLabel");
    Press(Qt::Key_Space);
    EXPECT_TRUE(Combo("cboRandomLabels").hasFocus()) << label;
  }
  EXPECT_THAT(Targets(), ElementsAre("a", "b"));
  Focus("cmdLabelRemoveAll");
  Press(Qt::Key_Space);
  EXPECT_THAT(Targets(), IsEmpty());
  EXPECT_TRUE(Combo("cboRandomLabels").hasFocus());
}

TEST_F(FrmEventRandom, TargetsAreTakenOutForTheNextNewEvent) {
  Add(kRandomLabel);
  AddLabel("Start");
  AddLabel("Stop");
  Click("cmdUpdate");
  Click("cmdAddEvent");
  EXPECT_THAT(Targets(), IsEmpty());
  EXPECT_FALSE(CanUpdate());
  EXPECT_THAT(EventOf<EventRandom>(6).Labels(), ElementsAre("Start", "Stop"));
  AddLabel("Stop");
  Combo("cboEvents").SetListIndex(kComment);
  Click("cmdAddEvent");
  Combo("cboEvents").SetListIndex(kRandomLabel);
  EXPECT_THAT(Targets(), IsEmpty()) << "whatever panel is shown";
}

TEST_F(FrmEventRandom, CycleOptionsGoWithTheCycleAndKeepTheirTicks) {
  Add(kRandomLabel);
  EXPECT_FALSE(IsEnabled("chkCycleOnce"));
  EXPECT_FALSE(IsEnabled("chkCycleRandom"));
  Click("chkRandomCycle");
  EXPECT_TRUE(IsEnabled("chkCycleOnce"));
  EXPECT_TRUE(IsEnabled("chkCycleRandom"));
  Click("chkCycleOnce");
  Click("chkRandomCycle");
  EXPECT_FALSE(IsEnabled("chkCycleOnce"));
  EXPECT_FALSE(IsEnabled("chkCycleRandom"));
  EXPECT_TRUE(IsTicked("chkCycleOnce"));
  Click("cmdAddEvent");
  EXPECT_FALSE(IsTicked("chkCycleOnce"));
}

TEST_F(FrmEventRandom, OptionsOfAnEventThatDoesNotCycleAreNotShown) {
  Add(kRandomLabel);
  AddLabel("Start");
  AddLabel("Stop");
  Click("cmdUpdate");
  EventOf<EventRandom>(6).bCycleOnce = true;
  Edit(0);
  Edit(5);
  EXPECT_FALSE(IsTicked("chkCycleOnce"));
  EXPECT_FALSE(IsEnabled("chkCycleOnce"));
}

}  // namespace
}  // namespace parlate

// What the shell and an open event editor have to do with each other.

#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class ShellEditor : public ShellTest {
 protected:
  ShellEditor() {
    OpenHarbour();
    Click("C0");
    program_.view.editorUnloads = 0;
  }
  std::shared_ptr<EventItem> NewComment(const std::string& text) {
    auto event = std::make_shared<EventItem>();
    event->SetEventObject(kComment, EventComment{}).commentText = text;
    event->key = Window().SelectedCon()->NextEventKey();
    return event;
  }
  std::vector<std::int32_t> EditedKeys() {
    std::vector<std::int32_t> keys;
    for (const auto& edited : program_.view.edited) keys.push_back(edited.event->key);
    return keys;
  }
  std::shared_ptr<EventItem> Event(std::int32_t key) { return ConOf(0).events.Share(key); }
  [[nodiscard]] std::int32_t Selected() { return Window().lstEvents().ListIndex(); }
};

/// Tells the shell of a change of the selection, as the window does.
class SelectionTeller final : public ListRowsListener {
 public:
  explicit SelectionTeller(Shell& shell) : shell_(shell) { shell_.lstEvents().SetListener(this); }
  ~SelectionTeller() override { shell_.lstEvents().SetListener(nullptr); }
  SelectionTeller(const SelectionTeller&) = delete;
  SelectionTeller& operator=(const SelectionTeller&) = delete;
  void RowsReset() override {}
  void RowInserted(std::size_t) override {}
  void RowRemoved(std::size_t) override {}
  void RowTextChanged(std::size_t) override {}
  void RowColorChanged(std::size_t) override {}
  void ListIndexChanged() override { shell_.ListSelectionChanged(); }

 private:
  Shell& shell_;
};

TEST_F(ShellEditor, OpensToAddAnEventToTheSelectedConversation) {
  Window().AddEvent(kJump, 1);
  ASSERT_EQ(program_.view.added.size(), 1U);
  EXPECT_EQ(program_.view.added[0].eventType, kJump);
  EXPECT_EQ(program_.view.added[0].con, Window().SelectedCon());
  EXPECT_THAT(program_.view.edited, IsEmpty());
}

TEST_F(ShellEditor, AppendsANewEventAlsoWithARowSelectedAndGoesOnWithIt) {
  ClickRow(1);
  Window().AddEvent(kComment, 1);
  Window().UpdateAddEvent(NewComment("new"), false);
  EXPECT_THAT(RowKeys(), ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(Selected(), 5);
  EXPECT_THAT(EditedKeys(), ElementsAre(6));
  EXPECT_EQ(program_.view.edited[0].con, Window().SelectedCon());
}

TEST_F(ShellEditor, InsertsANewEventAheadOfTheSelectedRow) {
  ClickRow(1);
  Window().AddEvent(kComment, 0);
  Window().UpdateAddEvent(NewComment("new"), false);
  EXPECT_THAT(RowKeys(), ElementsAre(1, 6, 2, 3, 4, 5));
  EXPECT_EQ(ConOf(0).events.KeyAt(2), 6);
  EXPECT_THAT(ListPositions(), ElementsAre(0, 1, 2, 3, 4, 5));
  EXPECT_EQ(Selected(), 1);
  EXPECT_THAT(EditedKeys(), ElementsAre(6));
}

TEST_F(ShellEditor, InsertingWithNoSelectedRowAppends) {
  Window().AddEvent(kComment, 0);
  Window().UpdateAddEvent(NewComment("new"), false);
  EXPECT_THAT(RowKeys(), ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_THAT(ListPositions(), ElementsAre(0, 1, 2, 3, 4, 5));
}

TEST_F(ShellEditor, IsNotOpenedForAnEventThatIsAddedSilently) {
  Window().UpdateAddEvent(NewComment("new"), true);
  EXPECT_THAT(program_.view.edited, IsEmpty());
}

TEST_F(ShellEditor, OpensOnTheSelectedEvent) {
  Window().EditSelectedEvent();
  EXPECT_THAT(program_.view.edited, IsEmpty()) << "no row is selected";
  ClickRow(2);
  Window().EditSelectedEvent();
  EXPECT_THAT(EditedKeys(), ElementsAre(3));
  EXPECT_EQ(program_.view.edited[0].con, Window().SelectedCon());
}

TEST_F(ShellEditor, StepsUpAndDownTheListAndStopsAtItsEnds) {
  ClickRow(1);
  Window().EditPreviousEvent(Event(2).get());
  EXPECT_EQ(Selected(), 0);
  Window().EditPreviousEvent(Event(1).get());
  EXPECT_EQ(Selected(), 0) << "there is none before the first";
  ClickRow(3);
  Window().EditNextEvent(Event(4).get());
  EXPECT_EQ(Selected(), 4);
  Window().EditNextEvent(Event(5).get());
  EXPECT_EQ(Selected(), 4) << "there is none after the last";
  EXPECT_THAT(EditedKeys(), ElementsAre(1, 5));
}

TEST_F(ShellEditor, StepsFromItsEventWithNoRowSelected) {
  Window().EditNextEvent(Event(3).get());
  EXPECT_EQ(Selected(), 3);
  Window().lstEvents().SetListIndex(-1);
  Window().EditPreviousEvent(Event(3).get());
  EXPECT_EQ(Selected(), 1);
  EXPECT_THAT(EditedKeys(), ElementsAre(4, 2));
}

TEST_F(ShellEditor, WithoutRowAndEventGoesDownToTheFirstRowAndUpToNone) {
  Window().EditPreviousEvent(nullptr);
  EXPECT_EQ(Selected(), -1);
  EXPECT_THAT(EditedKeys(), IsEmpty());
  Window().EditNextEvent(nullptr);
  EXPECT_EQ(Selected(), 0);
  EXPECT_THAT(EditedKeys(), ElementsAre(1));
}

TEST_F(ShellEditor, StepsNowhereFromAnEventWhoseRowWent) {
  const auto last = Event(5);
  Window().SetSelectedCon(Window().GetConFromID(2));
  ASSERT_EQ(RowKeys().size(), 1U) << "a list that is shorter than the row";
  Window().EditPreviousEvent(last.get());
  EXPECT_EQ(Selected(), -1);
  EXPECT_THAT(EditedKeys(), IsEmpty());
  Window().EditNextEvent(last.get());
  EXPECT_EQ(Selected(), 0) << "the first row, as with no event at all";
}

TEST_F(ShellEditor, FollowsTheSelectionWhileItIsOpen) {
  const SelectionTeller teller(Window());
  ClickRow(2);
  EXPECT_THAT(EditedKeys(), IsEmpty()) << "it is not open";
  program_.view.editorVisible = true;
  ClickRow(0);
  Window().lstEvents().SetListIndex(-1);
  EXPECT_THAT(EditedKeys(), ElementsAre(1)) << "no row is nothing to open";
}

TEST_F(ShellEditor, FollowsNoRowWhileAnEventIsAdded) {
  const SelectionTeller teller(Window());
  program_.view.editorVisible = true;
  Window().UpdateAddEvent(NewComment("new"), true);
  EXPECT_EQ(Selected(), 5);
  EXPECT_THAT(EditedKeys(), IsEmpty());
  ClickRow(0);
  EXPECT_THAT(EditedKeys(), ElementsAre(1)) << "and follows again after that";
}

TEST_F(ShellEditor, UpdateOfADeletedEventLeavesTheOtherRowsAlone) {
  const auto gone = Event(2);
  ClickRow(1);
  Window().DeleteSelectedEvent(true);
  const auto before = RowTexts();
  gone->As<EventComment>()->commentText = "Changed";
  gone->eventLabel = "Mark";
  Window().UpdateEditEvent(*gone);
  EXPECT_EQ(RowTexts(), before);
  EXPECT_EQ(Window().lstEvents().Row(1).subText, "Hi");
}

TEST_F(ShellEditor, UpdateOfTheDeletedLastEventHasNoRowToShowItIn) {
  const auto gone = Event(5);
  ClickRow(4);
  Window().DeleteSelectedEvent(true);
  Window().UpdateEditEvent(*gone);
  EXPECT_EQ(RowKeys().size(), 4U);
}

TEST_F(ShellEditor, UpdateOfAnEventOfAnotherConversationLeavesTheRowsAlone) {
  const auto event = Event(1);
  Click("C2");
  const auto before = RowTexts();
  Window().UpdateEditEvent(*event);
  EXPECT_EQ(RowTexts(), before);
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellEditor, UpdateWithItsConversationDeletedChangesNoRow) {
  const auto event = Event(1);
  Window().DeleteConversation(true);
  ASSERT_EQ(Window().SelectedCon(), nullptr);
  Window().UpdateEditEvent(*event);
  EXPECT_THAT(RowTexts(), IsEmpty());
}

TEST_F(ShellEditor, NewEventWithAKeyOfAnotherConversationGetsOneOfItsOwn) {
  Click("C2");
  const auto event = NewComment("new");
  event->key = 1;
  Window().UpdateAddEvent(event, true);
  EXPECT_THAT(RowKeys(), ElementsAre(1, 3)) << "2 was given out to the event before";
  EXPECT_EQ(event->key, 3);
}

TEST_F(ShellEditor, IsUnloadedBeforeAFileIsSavedClosedOpenedOrMade) {
  program_.view.editorVisible = true;
  EXPECT_TRUE(Window().SaveConFile(false));
  EXPECT_EQ(program_.view.editorUnloads, 1);
  Open(HarbourFile(), "other.con");
  EXPECT_GE(program_.view.editorUnloads, 2);
  program_.view.editorUnloads = 0;
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_GE(program_.view.editorUnloads, 1);
}

}  // namespace
}  // namespace parlate

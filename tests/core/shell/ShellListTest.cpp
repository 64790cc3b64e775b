// The list of events: its rows, and adding, editing, deleting and clicking.

#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

constexpr std::int32_t kPlain = -1;
constexpr std::int32_t kRed = 0xC0C0FF;
constexpr std::int32_t kCyan = 0xFFFFC0;
constexpr std::int32_t kGreen = 0xC0FFC0;
constexpr std::int32_t kGrey = 0xE0E0E0;

class ShellList : public ShellTest {
 protected:
  ShellList() {
    OpenHarbour();
    Click("C0");
  }
  std::shared_ptr<EventItem> NewComment(const std::string& text, const std::string& label = "") {
    auto event = std::make_shared<EventItem>();
    event->SetEventObject(kComment, EventComment{}).commentText = text;
    event->key = Window().SelectedCon()->NextEventKey();
    event->eventLabel = label;
    Window().SelectedCon()->AddLabel(label);
    return event;
  }
  std::vector<std::int32_t> KeysInOrder() {
    std::vector<std::int32_t> keys;
    for (const EventItem& event : Window().SelectedCon()->events) keys.push_back(event.key);
    return keys;
  }
  [[nodiscard]] std::int32_t Selected() { return Window().lstEvents().ListIndex(); }
};

TEST_F(ShellList, HasARowPerEventInTheirOrder) {
  EXPECT_THAT(RowTexts(), ElementsAre("Start;Speech;Zoe;hello.mp3", ";Comment;;", ";Speech;Alex;",
                                      ";Jump;;Jump to Start", "Stop;End;;"));
  EXPECT_THAT(RowKeys(), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_THAT(ListPositions(), ElementsAre(0, 1, 2, 3, 4));
  EXPECT_EQ(Selected(), -1);
}

TEST_F(ShellList, ColoursItsRowsByWhatIsWrongThenByTheLabel) {
  EXPECT_THAT(RowColors(), ElementsAre(kGreen, kGrey, kCyan, kPlain, kGreen));
}

TEST_F(ShellList, ShowsTheSecondTextOnlyWhenExpanded) {
  EXPECT_EQ(Window().lstEvents().Row(0).subText, "Hello");
  EXPECT_EQ(Window().lstEvents().Row(1).subText, "A comment");
  EXPECT_EQ(Window().lstEvents().Row(4).subText, "");
  Defaults().ExpandListEnabled = false;
  Window().UpdateEventsList(Window().SelectedCon());
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(Window().lstEvents().Row(i).subText, "");
  EXPECT_EQ(RowTexts().at(0), "Start;Speech;Zoe;Hello") << "the first text tells it instead";
}

TEST_F(ShellList, DoesNothingWhileAFileIsRead) {
  Window().Loading = true;
  Window().UpdateEventsList(nullptr);
  EXPECT_EQ(RowKeys().size(), 5U);
}

TEST_F(ShellList, OfNoConversationInParticularIsThatOfTheSelectedOne) {
  ConOf(0).EventRemove(5);
  Window().UpdateEventsList(nullptr);
  EXPECT_EQ(RowKeys().size(), 4U);
}

TEST_F(ShellList, IsBuiltAnewOnlyForAnotherConversation) {
  ClickRow(2);
  Window().SetSelectedCon(Window().SelectedCon());
  EXPECT_EQ(Selected(), 2) << "the same one again does nothing";
  Window().SelectConversation();
  EXPECT_EQ(Selected(), -1);
}

TEST_F(ShellList, FindsItsSelectedEvent) {
  EXPECT_EQ(Window().GetSelectedEvent(), nullptr);
  ClickRow(2);
  EXPECT_EQ(Window().GetSelectedEvent()->key, 3);
  Window().lstEvents().Assign({ListRow{"no event", "", -1, -1}});
  Window().lstEvents().SetListIndex(0);
  EXPECT_EQ(Window().GetSelectedEvent(), nullptr);
}

TEST_F(ShellList, KnowsWhetherThereAreRowsAroundTheSelectedOne) {
  EXPECT_FALSE(Window().IsPreviousEvent());
  EXPECT_TRUE(Window().IsNextEvent());
  ClickRow(0);
  EXPECT_FALSE(Window().IsPreviousEvent());
  ClickRow(1);
  EXPECT_TRUE(Window().IsPreviousEvent());
  EXPECT_TRUE(Window().IsNextEvent());
  ClickRow(4);
  EXPECT_FALSE(Window().IsNextEvent());
}

TEST_F(ShellList, AddsAnEventAtTheEndAndSelectsIt) {
  program_.moment = 45100;
  ClickRow(1);
  Window().UpdateAddEvent(NewComment("new", "Fresh"), true);
  EXPECT_THAT(RowKeys(), ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(KeysInOrder(), RowKeys());
  EXPECT_EQ(Selected(), 5);
  EXPECT_EQ(ListPositions().back(), 5);
  EXPECT_EQ(RowColors().back(), kGreen);
  EXPECT_EQ(Window().lstEvents().Row(5).subText, "new");
  EXPECT_TRUE(Window().GetConFile()->IsModified());
  EXPECT_EQ(ConOf(0).LastUpdated, 45100);
}

TEST_F(ShellList, IgnoresAnAddWithoutEventOrConversation) {
  const auto event = NewComment("new");
  Window().UpdateAddEvent(nullptr, true);
  Click("A1");
  Window().UpdateAddEvent(event, true);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
  EXPECT_EQ(ConOf(0).events.Count(), 5U);
}

TEST_F(ShellList, MendsTheColoursOfOthersWhenALabelComes) {
  ConOf(0).events.At(4).As<EventJump>()->label = "Fresh";
  Window().UpdateEventsList(nullptr);
  ASSERT_EQ(RowColors().at(3), kRed);
  Window().UpdateAddEvent(NewComment("new", "Fresh"), true);
  EXPECT_EQ(RowColors().at(3), kPlain);
}

TEST_F(ShellList, ShowsAnEditedEventAtItsRow) {
  EventItem& event = ConOf(0).events.At(2);
  event.As<EventComment>()->commentText = "Changed";
  event.eventLabel = "Mark";
  ConOf(0).AddLabel("Mark");
  ConOf(0).events.At(4).As<EventJump>()->label = "Gone";
  Window().UpdateEditEvent(event);
  EXPECT_EQ(RowTexts().at(1), "Mark;Comment;;");
  EXPECT_EQ(Window().lstEvents().Row(1).subText, "Changed");
  EXPECT_THAT(RowColors(), ElementsAre(kGreen, kGreen, kCyan, kRed, kGreen));
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellList, AsksBeforeAnEventIsDeleted) {
  ClickRow(1);
  program_.messages.Expect(Answer::No);
  Window().DeleteSelectedEvent(false);
  EXPECT_THAT(LastBox(), IsBox("Delete?", "Are you sure you wish to Delete this event?",
                               MessageBox::Icon::Question, MessageBox::Buttons::YesNo));
  EXPECT_EQ(RowKeys().size(), 5U);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
  program_.messages.Expect(Answer::Yes);
  Window().DeleteSelectedEvent(false);
  EXPECT_THAT(RowKeys(), ElementsAre(1, 3, 4, 5));
}

TEST_F(ShellList, AsksNothingBeforeADeleteWithoutTheSetting) {
  Defaults().bConfirmationEventDelete = false;
  ClickRow(1);
  Window().DeleteSelectedEvent(false);
  EXPECT_THAT(RowKeys(), ElementsAre(1, 3, 4, 5));
  EXPECT_EQ(KeysInOrder(), RowKeys());
  EXPECT_THAT(ListPositions(), ElementsAre(0, 1, 2, 3));
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellList, SelectsTheRowThatMovedUpElseTheLastElseNone) {
  ClickRow(3);
  Window().DeleteSelectedEvent(true);
  EXPECT_EQ(Selected(), 3);
  Window().DeleteSelectedEvent(true);
  EXPECT_EQ(Selected(), 2);
  ClickRow(0);
  for (int left = 3; left > 0; --left) Window().DeleteSelectedEvent(true);
  EXPECT_THAT(RowKeys(), IsEmpty());
  EXPECT_EQ(Selected(), -1);
}

TEST_F(ShellList, DeletesNothingWithNoRowSelected) {
  Window().DeleteSelectedEvent(false);
  EXPECT_EQ(RowKeys().size(), 5U);
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellList, ReddensTheRowsWhoseLabelWentWithAnEvent) {
  ClickRow(0);
  Window().DeleteSelectedEvent(true);
  EXPECT_THAT(RowColors(), ElementsAre(kGrey, kCyan, kRed, kGreen));
  ASSERT_FALSE(Window().badLabels.colBadLabels.empty());
  EXPECT_EQ(Window().badLabels.colBadLabels.back().strLabel, "Start");
}

TEST_F(ShellList, SecondClickOnARowDeselectsItAndTheThirdSelectsIt) {
  ClickRow(2);
  EXPECT_EQ(Selected(), 2);
  ClickRow(2);
  EXPECT_EQ(Selected(), -1);
  ClickRow(2);
  EXPECT_EQ(Selected(), 2);
  ClickRow(3);
  EXPECT_EQ(Selected(), 3) << "a click on another row selects that";
}

TEST_F(ShellList, ClickAfterAPopupKeepsTheSelection) {
  ClickRow(2);
  Window().bSkipNextClick = true;
  ClickRow(2);
  EXPECT_EQ(Selected(), 2);
  EXPECT_FALSE(Window().bSkipNextClick);
  EXPECT_EQ(Window().lastClickedRow, 2);
  ClickRow(2);
  EXPECT_EQ(Selected(), -1) << "the one after that counts again";
}

TEST(ReselectListIndex, KeepsTheIndexOrGoesToTheLastRowOrLeavesNone) {
  ListRows rows;
  ReselectListIndex(rows, 0);
  EXPECT_EQ(rows.ListIndex(), -1);
  rows.Assign({ListRow{"a", "", 1, -1}, ListRow{"b", "", 2, -1}});
  ReselectListIndex(rows, 1);
  EXPECT_EQ(rows.ListIndex(), 1);
  ReselectListIndex(rows, 0);
  EXPECT_EQ(rows.ListIndex(), 0);
  ReselectListIndex(rows, 2);
  EXPECT_EQ(rows.ListIndex(), 1);
}

}  // namespace
}  // namespace parlate

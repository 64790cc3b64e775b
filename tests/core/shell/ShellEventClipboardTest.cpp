// The program's own clipboard: events, within a file and from file to file.

#include "support/ShellFixture.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class ShellEventClipboard : public ShellTest {
 protected:
  ShellEventClipboard() {
    OpenHarbour();
    Click("C0");
  }
};

TEST_F(ShellEventClipboard, PasteAddsAtTheEndWithNoRowSelected) {
  ClickRow(1);
  Window().CopySelectedEvent();
  Window().lstEvents().SetListIndex(-1);
  Window().PasteEvent();
  EXPECT_THAT(RowKeys(), ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(Window().lstEvents().ListIndex(), 5);
  EXPECT_EQ(RowTexts().back(), ";Comment;;");
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellEventClipboard, PasteInsertsAboveTheSelectedRow) {
  ClickRow(1);
  Window().CopySelectedEvent();
  ClickRow(3);
  Window().PasteEvent();
  EXPECT_THAT(RowKeys(), ElementsAre(1, 2, 3, 6, 4, 5));
  EXPECT_EQ(Window().lstEvents().ListIndex(), 3);
  EXPECT_THAT(ListPositions(), ElementsAre(0, 1, 2, 3, 4, 5));
  std::vector<std::int32_t> keys;
  for (const EventItem& event : ConOf(0).events) keys.push_back(event.key);
  EXPECT_EQ(keys, RowKeys());
}

TEST_F(ShellEventClipboard, TwoPastesOfOneCopyShareNothing) {
  ClickRow(1);
  Window().CopySelectedEvent();
  Window().lstEvents().SetListIndex(-1);
  Window().PasteEvent();
  Window().lstEvents().SetListIndex(-1);
  Window().PasteEvent();
  ConOf(0).events.At(6).As<EventComment>()->commentText = "first";
  EXPECT_EQ(ConOf(0).events.At(7).As<EventComment>()->commentText, "A comment");
  EXPECT_EQ(ConOf(0).events.At(2).As<EventComment>()->commentText, "A comment");
  EXPECT_EQ(ConOf(0).currentEventKey, 7);
}

TEST_F(ShellEventClipboard, CopyIsNotTouchedByALaterEdit) {
  ClickRow(1);
  Window().CopySelectedEvent();
  ConOf(0).events.At(2).As<EventComment>()->commentText = "later";
  Window().PasteEvent();
  EXPECT_EQ(ConOf(0).events.At(6).As<EventComment>()->commentText, "A comment");
}

TEST_F(ShellEventClipboard, CutAsksNothingAndPastesInAnotherConversation) {
  ClickRow(1);
  Window().CutSelectedEvent();
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_THAT(RowKeys(), ElementsAre(1, 3, 4, 5));
  EXPECT_EQ(Window().lstEvents().ListIndex(), 1);
  EXPECT_TRUE(Window().GetConFile()->IsModified());
  Click("C1");
  Window().PasteEvent();
  EXPECT_THAT(RowTexts(), ElementsAre(";Comment;;"));
  EXPECT_EQ(ConOf(1).events.Place(1)->As<EventComment>()->commentText, "A comment");
  EXPECT_EQ(ConOf(1).events.Place(1)->key, 1);
}

TEST_F(ShellEventClipboard, PastedLabelCountsInItsConversation) {
  ClickRow(0);
  Window().CutSelectedEvent();
  EXPECT_FALSE(ConOf(0).IsValidLabel("Start"));
  Click("C1");
  Window().PasteEvent();
  EXPECT_TRUE(ConOf(1).IsValidLabel("Start"));
  EXPECT_EQ(ConOf(1).events.Place(1)->eventLabel, "Start");
}

TEST_F(ShellEventClipboard, PastedLabelMayStandTwice) {
  ClickRow(0);
  Window().CopySelectedEvent();
  Window().PasteEvent();
  EXPECT_EQ(RowTexts().at(0), RowTexts().at(1));
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellEventClipboard, PastedReferenceThatIsBrokenThereShowsRed) {
  auto check = std::make_shared<EventItem>();
  check->key = ConOf(0).NextEventKey();
  check->SetEventObject(kCheckFlags, EventCheckFlag{}).failLabel = "Start";
  ConOf(0).events.Add(check->key, check);
  Click("C0");
  ClickRow(5);
  EXPECT_EQ(RowColors().at(5), -1);
  Window().CopySelectedEvent();
  Click("C1");
  Window().PasteEvent();
  EXPECT_THAT(RowColors(), ElementsAre(0xC0C0FF));
}

TEST_F(ShellEventClipboard, PasteWithNoConversationSelectedDoesNothing) {
  ClickRow(1);
  Window().CopySelectedEvent();
  Click("A1");
  Window().PasteEvent();
  EXPECT_FALSE(Window().GetConFile()->IsModified());
  Window().CloseConFile();
  Window().PasteEvent();
  EXPECT_THAT(RowKeys(), IsEmpty());
}

TEST_F(ShellEventClipboard, CommandsWithNoRowSelectedOrNothingCopiedDoNothing) {
  Window().CopySelectedEvent();
  Window().CutSelectedEvent();
  Window().PasteEvent();
  EXPECT_FALSE(Window().Predicates().eventBuffered);
  EXPECT_EQ(RowKeys().size(), 5U);
}

TEST_F(ShellEventClipboard, OutlivesTheFileAndKeepsItsRowNumbers) {
  ClickRow(0);
  Window().CopySelectedEvent();
  TableFields tables;
  tables.actors = {{0, "Bob"}, {1, "Carl"}};
  Open(FileOf(tables, {Con(0, "Other", {0, "Bob"})}), "second.con");
  Click("C0");
  Window().PasteEvent();
  EXPECT_THAT(RowTexts(), ElementsAre("Start;Speech;Carl;hello.mp3"))
      << "events are not linked anew by name";
}

TEST_F(ShellEventClipboard, JumpToAConversationThatIsNotInTheFileFailsWithTheEventInItsPlace) {
  ClickRow(3);
  Window().CopySelectedEvent();
  TableFields tables;
  tables.actors = {{0, "Bob"}};
  Open(FileOf(tables, {Con(4, "Other", {0, "Bob"}, {Comment(1, "", "here")})}), "second.con");
  Click("C4");
  EXPECT_EQ(ErrorOf([this] { Window().PasteEvent(); }), RuntimeError::kObjectVariableNotSet);
  ASSERT_EQ(ConOf(4).events.Count(), 2U);
  const auto* jump = ConOf(4).events.Place(2)->As<EventJump>();
  ASSERT_NE(jump, nullptr);
  EXPECT_EQ(jump->label, "Start");
  EXPECT_EQ(jump->conID, 0);
  EXPECT_THAT(RowTexts(), ElementsAre(";Comment;;",
                                      ";Jump;;Jump to Start [Invalid Conversation - Please fix]"));
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellEventClipboard, JumpLeadsToWhatHasThatKeyInAnotherFileByChance) {
  ClickRow(3);
  Window().CopySelectedEvent();
  TableFields tables;
  tables.actors = {{6, "Bob"}};
  Open(FileOf(tables, {Con(0, "Stranger", {6, "Bob"}), Con(4, "Other", {6, "Bob"})}), "second.con");
  Click("C4");
  for (int paste = 0; paste < 2; ++paste) Window().PasteEvent();
  ASSERT_EQ(ConOf(4).events.Count(), 2U);
  for (const std::string& row : RowTexts()) EXPECT_EQ(row, ";Jump;;Jump to Start");
  // The second one stands above the first, and was copied from it here.
  const auto* second = ConOf(4).events.Place(1)->As<EventJump>();
  EXPECT_EQ(second->conID, 0);
  EXPECT_EQ(second->conName, "Stranger");
  EXPECT_EQ(second->conOwner, 6);
  const auto* first = ConOf(4).events.Place(2)->As<EventJump>();
  EXPECT_EQ(first->conID, 0);
  EXPECT_EQ(first->conName, "greeting");
}

}  // namespace
}  // namespace parlate

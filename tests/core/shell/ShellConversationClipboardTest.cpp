// The program's own clipboard: a conversation, within a file and from file to file.

#include "model/Tables.h"
#include "support/ShellFixture.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

class ShellConClipboard : public ShellTest {
 protected:
  /// A file whose rows have other numbers: Zoe is 7, the flag Lamp is 2 and Door is 3.
  void OpenOther(bool withZoe = true) {
    TableFields tables;
    tables.actors = {{5, "Bob"}};
    if (withZoe) tables.actors.emplace_back(7, "Zoe");
    tables.flags = {{2, "Lamp"}, {9, "Door"}};
    Open(FileOf(tables, {Con(4, "Local", {5, "Bob"})}), "other.con");
  }
  std::vector<std::int32_t> FlagIDs(std::int32_t conKey) {
    std::vector<std::int32_t> ids;
    for (const FlagRef& flag : ConOf(conKey).flagRefs) ids.push_back(flag.flagID);
    return ids;
  }
};

TEST_F(ShellConClipboard, PasteInTheSameFileGivesASecondOneUnderTheSameName) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  EXPECT_FALSE(Window().GetConFile()->IsModified());
  Window().PasteConversation();
  EXPECT_EQ(Window().GetConFile()->Conversations.Count(), 4U);
  EXPECT_EQ(Window().SelectedCon()->key, 3);
  EXPECT_EQ(ConOf(3).conName, "greeting");
  EXPECT_EQ(Window().tvCons().SelectedItem(), Window().tvCons().FindConversation(3));
  EXPECT_EQ(Window().tvCons().FindConversation(3)->row,
            Window().tvCons().FindConversation(0)->row + 1)
      << "equal names keep the order of insertion";
  EXPECT_TRUE(Window().GetConFile()->IsModified());
  EXPECT_EQ(GetTable(kActorTable)->Count(), 2U);
  EXPECT_EQ(GetTable(kFlagTable)->Count(), 2U);
  EXPECT_EQ(RowKeys().size(), 5U);
}

TEST_F(ShellConClipboard, PasteInTheSameFileMarksEveryFlagAsAdjusted) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  Window().PasteConversation();
  EXPECT_THAT(FlagIDs(3), ElementsAre(2, 3));
  for (const FlagRef& flag : ConOf(3).flagRefs) EXPECT_TRUE(flag.bAdjustedID);
  for (const FlagRef& flag : ConOf(0).flagRefs) EXPECT_FALSE(flag.bAdjustedID);
}

TEST_F(ShellConClipboard, JumpToItselfPointsAtTheOriginalWhileThatIsThere) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  Window().PasteConversation();
  EXPECT_EQ(ConOf(3).events.At(4).As<EventJump>()->conID, 0);
}

TEST_F(ShellConClipboard, PastesAgainAndAgain) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  Window().PasteConversation();
  Window().PasteConversation();
  ASSERT_NE(Window().GetConFile()->Conversations.Find(4), nullptr);
  EXPECT_NE(&ConOf(3).events.At(1), &ConOf(4).events.At(1));
  ConOf(3).events.At(1).As<EventSpeech>()->speech = "changed";
  EXPECT_EQ(ConOf(4).events.At(1).As<EventSpeech>()->speech, "Hello");
  EXPECT_EQ(ConOf(4).Labels.Count(), ConOf(0).Labels.Count());
}

TEST_F(ShellConClipboard, PasteInAnotherFileLinksTheRowsByTheirNames) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  OpenOther();
  Window().PasteConversation();
  const Conversation& pasted = *Window().SelectedCon();
  EXPECT_EQ(pasted.key, 5);
  EXPECT_EQ(pasted.NPCID, 7);
  EXPECT_EQ(pasted.events.At(1).As<EventSpeech>()->ActorSpeakerID, 7);
  EXPECT_EQ(Window().tvCons().FindConversation(5)->parent->text, "Zoe");
  EXPECT_EQ(GetTable(kActorTable)->Count(), 3U) << "Alex came along, nobody else";
  const std::int32_t alex = pasted.events.At(3).As<EventSpeech>()->ActorSpeakerID;
  EXPECT_EQ(GetTableItemName(kActorTable, alex), "Alex");
}

TEST_F(ShellConClipboard, PasteInAnotherFileLinksTheFlagsByTheirNames) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  OpenOther();
  Window().PasteConversation();
  EXPECT_THAT(FlagIDs(5), ElementsAre(9, 2)) << "Door is 9 there, and Lamp is 2";
  EXPECT_TRUE(ConOf(5).flagRefs.At(9).bValue);
  EXPECT_THAT(TreeLines(), testing::IsSupersetOf(
                               {std::string("    Door = True"), std::string("    Lamp = False")}));
  EXPECT_EQ(GetTable(kFlagTable)->Count(), 2U);
}

TEST_F(ShellConClipboard, CopyOfAPastedConversationKeepsItsFlagNumbersInAnotherFile) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  Window().PasteConversation();
  ASSERT_THAT(FlagIDs(3), ElementsAre(2, 3)) << "Door and Lamp";
  Click("C3");
  Window().CopyConversation();
  TableFields tables;
  tables.actors = {{7, "Zoe"}};
  tables.flags = {{2, "Lamp"}, {3, "Bell"}, {9, "Door"}};
  program_.messages.Expect(Answer::No);
  Open(FileOf(tables, {}), "other.con");
  Window().PasteConversation();
  const Conversation& pasted = *Window().SelectedCon();
  EXPECT_EQ(pasted.NPCID, 7) << "all but the conditions is linked by name";
  EXPECT_THAT(FlagIDs(pasted.key), ElementsAre(2, 3))
      << "the mark of the first paste came along, though these are Lamp and Bell here";
}

TEST_F(ShellConClipboard, CopyOfAPastedConversationFailsWhereAFlagNumberIsMissing) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  Window().PasteConversation();
  Click("C3");
  Window().CopyConversation();
  program_.messages.Expect(Answer::No);
  OpenOther();  // Flags 2 and 9, but no 3.
  EXPECT_EQ(ErrorOf([this] { Window().PasteConversation(); }), RuntimeError::kInvalidProcedureCall);
}

TEST_F(ShellConClipboard, CopyOfAPastedConversationIsLinkedAnewOnceItsFileWasLoadedAgain) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  Window().PasteConversation();
  ASSERT_TRUE(Window().SaveConFile(false));
  Window().OpenConFile(Path("harbour.con"));
  Click("C3");
  Window().CopyConversation();
  OpenOther();
  Window().PasteConversation();
  EXPECT_THAT(FlagIDs(5), ElementsAre(9, 2));
}

TEST_F(ShellConClipboard, PasteInAnotherFileAddsTheRowsThatItLacks) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  OpenOther(false);
  Window().PasteConversation();
  const TableItem* zoe = FindTableItemByName(kActorTable, "Zoe");
  ASSERT_NE(zoe, nullptr);
  EXPECT_EQ(Window().SelectedCon()->NPCID, zoe->ID);
}

TEST_F(ShellConClipboard, SecondCopyForgetsTheRowsOfTheFirst) {
  OpenHarbour();
  for (const char* key : {"C0", "C1"}) {
    Click(key);
    Window().CopyConversation();
  }
  OpenOther(false);
  Window().PasteConversation();
  EXPECT_NE(FindTableItemByName(kActorTable, "Zoe"), nullptr);
  EXPECT_EQ(FindTableItemByName(kActorTable, "Alex"), nullptr);
}

TEST_F(ShellConClipboard, NamesOfRowsAreComparedInTheirCase) {
  OpenHarbour();
  Click("C1");
  Window().CopyConversation();
  TableFields tables;
  tables.actors = {{0, "ZOE"}};
  Open(FileOf(tables, {}), "other.con");
  Window().PasteConversation();
  EXPECT_EQ(GetTable(kActorTable)->Count(), 2U);
  EXPECT_EQ(TreeLines().at(0), "Zoe");
}

TEST_F(ShellConClipboard, SecondPasteInAnotherFileLinksAsTheFirst) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  OpenOther();
  Window().PasteConversation();
  Window().PasteConversation();
  EXPECT_EQ(ConOf(6).NPCID, ConOf(5).NPCID);
  EXPECT_EQ(FlagIDs(6), FlagIDs(5));
  EXPECT_EQ(ConOf(6).events.At(1).As<EventSpeech>()->ActorSpeakerID, 7);
}

TEST_F(ShellConClipboard, LinkOfAnyTableTakesTheOwnerAlong) {
  // The owner is actor 5 and the object is row 5 as well, which becomes another number.
  TableFields tables;
  tables.actors = {{5, "Bob"}};
  tables.objects = {{5, "Key"}};
  Open(FileOf(tables, {Con(0, "Search", {5, "Bob"}, {CheckObject(1, 5, "Key")})}));
  Click("C0");
  Window().CopyConversation();
  TableFields target;
  target.actors = {{5, "Bob"}, {8, "Carl"}};
  target.objects = {{8, "Key"}};
  Open(FileOf(target, {}), "other.con");
  Window().PasteConversation();
  EXPECT_EQ(Window().SelectedCon()->events.At(1).As<EventCheckObject>()->objectID, 8);
  EXPECT_EQ(Window().SelectedCon()->NPCID, 8) << "any table whose number agrees";
}

TEST_F(ShellConClipboard, ChainOfFlagNumbersIsFollowedOnceInAListOfConditions) {
  TableFields tables;
  tables.actors = {{0, "Bob"}};
  tables.flags = {{1, "One"}, {2, "Two"}};
  const std::vector<FlagFields> one = {{1, "One", true, 0}};
  Open(FileOf(tables,
              {Con(0, "Chain", {0, "Bob"}, {SetFlags(1, one), SetFlags(2, {{2, "Two"}})}, one)}));
  Click("C0");
  Window().CopyConversation();
  TableFields target;
  target.actors = {{0, "Bob"}};
  target.flags = {{2, "One"}, {3, "Two"}};
  Open(FileOf(target, {}), "other.con");
  Window().PasteConversation();
  const Conversation& pasted = *Window().SelectedCon();
  EXPECT_EQ(pasted.flagRefs.Place(1)->flagID, 2);
  EXPECT_EQ(pasted.events.At(1).As<EventSetFlag>()->flagRefs.Place(1)->flagID, 3)
      << "an event that sets flags follows the chain to its end";
}

TEST_F(ShellConClipboard, CutAsksNothingAndPastesInAnotherFile) {
  OpenHarbour();
  Click("C0");
  Window().CutConversation();
  EXPECT_EQ(Window().GetConFile()->Conversations.Find(0), nullptr);
  EXPECT_EQ(Window().SelectedCon(), nullptr);
  EXPECT_TRUE(Window().GetConFile()->IsModified());
  program_.messages.Expect(Answer::No);
  OpenOther();
  EXPECT_EQ(BoxCount(), 1U) << "only about the changes";
  Window().PasteConversation();
  EXPECT_EQ(ConOf(5).conName, "greeting");
  EXPECT_EQ(ConOf(5).NPCID, 7);
}

TEST_F(ShellConClipboard, JumpElsewherePointsAtTheConversationOfThatNameOrAtItself) {
  OpenHarbour();
  Click("C2");  // Leaving jumps to greeting
  Window().CopyConversation();
  Window().PasteConversation();
  EXPECT_EQ(ConOf(3).events.At(1).As<EventJump>()->conID, 0);
  program_.messages.Expect(Answer::No);
  OpenOther();
  Window().PasteConversation();
  EXPECT_EQ(ConOf(5).events.At(1).As<EventJump>()->conID, 5);
}

TEST_F(ShellConClipboard, JumpToItselfIsLostByACut) {
  OpenHarbour();
  Click("C0");
  Window().CutConversation();
  Window().PasteConversation();
  EXPECT_EQ(ConOf(3).events.At(4).As<EventJump>()->conID, -1)
      << "the links to what is deleted go, also its own";
}

TEST_F(ShellConClipboard, SwapOfTwoFlagNumbersFailsAndTheFileCanBeRescued) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  TableFields tables = HarbourTables();
  tables.flags = {{2, "Lamp"}, {3, "Door"}};
  Open(FileOf(tables, {Con(0, "Local", kZoe)}), "other.con");
  int number = 0;
  try {
    Window().PasteConversation();
  } catch (const RuntimeError& error) {
    number = error.Number();
  }
  EXPECT_EQ(number, RuntimeError::kKeyAlreadyAssociated);
  const std::string path = Window().WriteRecoveryFile(Path("rescue"));
  program_.messages.Expect(Answer::No);
  Window().SetModified(true, nullptr);
  Window().OpenConFile(path);
  EXPECT_EQ(Window().GetConFile()->Conversations.Count(), 2U);
  EXPECT_EQ(Window().tvCons().FindConversation(1)->text, "greeting");
}

TEST_F(ShellConClipboard, CopyOfAReferenceToAMissingRowFails) {
  OpenHarbour();
  Click("C0");
  RemoveTableItemByName(kFlagTable, "Door");
  try {
    Window().CopyConversation();
    FAIL() << "the row is gone";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), RuntimeError::kInvalidProcedureCall);
  }
}

TEST_F(ShellConClipboard, CommandsWithNothingSelectedOrCopiedDoNothing) {
  OpenHarbour();
  Window().CopyConversation();
  Window().CutConversation();
  Window().PasteConversation();
  EXPECT_FALSE(Window().Predicates().conBuffered);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellConClipboard, FollowsAChangedLinkOfTheOpenFile) {
  OpenHarbour();
  Window().ChangeConTableLink(kActorTable, 1, 0);  // nothing on the clipboard: nothing happens
  Click("C1");
  Window().CopyConversation();
  Window().ChangeConTableLink(kActorTable, 1, 0);
  Window().PasteConversation();
  EXPECT_EQ(Window().SelectedCon()->NPCID, 0);
}

}  // namespace
}  // namespace parlate

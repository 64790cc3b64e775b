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
using testing_support::ErrorOf;
using testing_support::TestWorkspace;

class ConversationTest : public testing::Test {
 protected:
  /// An event of its own with a label, at the end of the conversation.
  static EventItem& AddEvent(Conversation& con, std::int32_t key, const std::string& label) {
    auto item = std::make_shared<EventItem>();
    item->key = key;
    item->eventLabel = label;
    item->eventType = kComment;
    item->CreateEventObject(kComment);
    con.AddLabel(label);
    con.events.Add(key, item);
    return *item;
  }
  static EventJump& AddJump(Conversation& con, std::int32_t key, std::int32_t conID) {
    AddEvent(con, key, "");
    EventJump jump;
    jump.conID = conID;
    return con.events.At(key).SetEventObject(kJump, std::move(jump));
  }
  static void AddFlag(FlagList& flags, std::int32_t id) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = id;
    flags.Add(id, flag);
  }
  static std::vector<std::string> LabelsOf(const Conversation& con) {
    std::vector<std::string> names;
    for (const LabelItem& label : con.Labels) names.push_back(label.Name);
    return names;
  }

  TestWorkspace space_;
};

TEST_F(ConversationTest, IsStampedAndEmptyWhenNew) {
  const Conversation con;
  EXPECT_EQ(con.key, 0);
  EXPECT_EQ(con.NPCID, 0);
  EXPECT_EQ(con.conName + con.Description + con.notes, "");
  EXPECT_FALSE(con.bHoloCallCon || con.bDisplayOnce || con.bFirstPerson || con.bNonInteractive ||
               con.bRandomCamera || con.bCanBeInterrupted || con.bCannotBeInterrupted ||
               con.bInvokeBump || con.bInvokeFrob || con.bInvokeSight || con.bInvokeRadius);
  EXPECT_EQ(con.invokeRadius, 0);
  EXPECT_EQ(con.currentEventKey, 0);
  EXPECT_EQ(con.CreationDate, testing_support::kSavedAt);
  EXPECT_EQ(con.LastUpdated, testing_support::kSavedAt);
  EXPECT_EQ(con.CreatedBy, testing_support::kSavedBy);
  EXPECT_EQ(con.LastUpdatedBy, testing_support::kSavedBy);
  EXPECT_EQ(con.events.Count() + con.flagRefs.Count() + con.Labels.Count(), 0U);
}

TEST_F(ConversationTest, GivesEventKeysFromOneOn) {
  Conversation con;
  EXPECT_EQ(con.NextEventKey(), 1);
  EXPECT_EQ(con.NextEventKey(), 2);
  EXPECT_EQ(con.NextEventKey(), 3);
  con.UndoLastEventKey();
  EXPECT_EQ(con.NextEventKey(), 3);
  con.EventRemoveAll();
  EXPECT_EQ(con.NextEventKey(), 1);
  con.currentEventKey = INT32_MAX;
  EXPECT_EQ(ErrorOf([&] { con.NextEventKey(); }), 6);
}

TEST_F(ConversationTest, CannotTakeBackAKeyBelowZero) {
  Conversation con;
  con.UndoLastEventKey();
  EXPECT_EQ(con.currentEventKey, 0);
  con.currentEventKey = -3;
  con.UndoLastEventKey();
  EXPECT_EQ(con.currentEventKey, -3);
}

TEST_F(ConversationTest, HoldsALabelOnceWhateverItsCase) {
  Conversation con;
  EXPECT_TRUE(con.AddLabel("start"));
  EXPECT_FALSE(con.AddLabel("Start"));
  EXPECT_TRUE(con.IsValidLabel("START"));
  EXPECT_FALSE(con.IsValidLabel("Stop"));
}

TEST_F(ConversationTest, TakesAnEmptyLabelAsValidButDoesNotAddIt) {
  Conversation con;
  EXPECT_TRUE(con.IsValidLabel(""));
  EXPECT_FALSE(con.AddLabel(""));
  EXPECT_EQ(con.Labels.Count(), 0U);
}

TEST_F(ConversationTest, DropsTheOldLabelEvenWhenTheNewOneIsRefused) {
  Conversation con;
  con.AddLabel("a");
  con.AddLabel("b");
  EXPECT_FALSE(con.UpdateLabel("a", "b"));
  EXPECT_THAT(LabelsOf(con), ElementsAre("b"));
  EXPECT_FALSE(con.UpdateLabel("B", ""));
  EXPECT_THAT(LabelsOf(con), ElementsAre());
  EXPECT_TRUE(con.UpdateLabel("not there", "c"));
  EXPECT_THAT(LabelsOf(con), ElementsAre("c"));
  EXPECT_TRUE(con.UpdateLabel("c", "C")) << "a change of case alone";
  EXPECT_THAT(LabelsOf(con), ElementsAre("C"));
}

TEST_F(ConversationTest, RemovesALabelThatIsNotThereWithoutAnError) {
  Conversation con;
  con.AddLabel("a");
  con.RemoveLabel("b");
  con.RemoveLabel("");
  EXPECT_THAT(LabelsOf(con), ElementsAre("a"));
  con.RemoveLabel("A");
  EXPECT_THAT(LabelsOf(con), ElementsAre());
}

TEST_F(ConversationTest, LosesASharedLabelWithTheFirstOfItsEvents) {
  Conversation con;
  AddEvent(con, 1, "Start");
  AddEvent(con, 2, "start");
  EXPECT_THAT(LabelsOf(con), ElementsAre("Start"));
  con.EventRemove(1);
  EXPECT_EQ(con.events.Count(), 1U);
  EXPECT_FALSE(con.IsValidLabel("start"));
  EXPECT_EQ(ErrorOf([&] { con.EventRemove(1); }), 5);
}

TEST_F(ConversationTest, RemovesAllEventsAndTheirLabelsButNoOthers) {
  Conversation con;
  AddEvent(con, 1, "One");
  AddEvent(con, 2, "");
  AddEvent(con, 3, "ONE");
  con.AddLabel("Kept");
  con.EventRemoveAll();
  EXPECT_TRUE(con.events.Empty());
  EXPECT_THAT(LabelsOf(con), ElementsAre("Kept"));
}

TEST_F(ConversationTest, CopiesEveryFieldDeep) {
  Conversation source;
  source.key = 4;
  source.conName = "Greeting";
  source.Description = "hello";
  source.NPCID = 5;
  source.notes = "notes";
  source.bHoloCallCon = source.bFirstPerson = source.bRandomCamera = true;
  source.bCannotBeInterrupted = source.bInvokeFrob = source.bInvokeRadius = true;
  source.invokeRadius = 320;
  source.CreationDate = 1;
  source.CreatedBy = "anna";
  source.LastUpdated = 2;
  source.LastUpdatedBy = "ben";
  source.currentEventKey = 60;
  AddEvent(source, 17, "Start");
  AddEvent(source, 3, "");
  AddFlag(source.flagRefs, 2);
  source.AddLabel("Extra");
  Conversation copy;
  copy.Copy(source);
  EXPECT_EQ(copy.key, 4);
  EXPECT_EQ(copy.conName, "Greeting");
  EXPECT_EQ(copy.Description, "hello");
  EXPECT_EQ(copy.NPCID, 5);
  EXPECT_EQ(copy.notes, "notes");
  EXPECT_TRUE(copy.bHoloCallCon && copy.bFirstPerson && copy.bRandomCamera &&
              copy.bCannotBeInterrupted && copy.bInvokeFrob && copy.bInvokeRadius);
  EXPECT_FALSE(copy.bDisplayOnce || copy.bNonInteractive || copy.bCanBeInterrupted ||
               copy.bInvokeBump || copy.bInvokeSight);
  EXPECT_EQ(copy.invokeRadius, 320);
  EXPECT_EQ(copy.CreationDate, 1.0);
  EXPECT_EQ(copy.CreatedBy, "anna");
  EXPECT_EQ(copy.LastUpdated, 2.0);
  EXPECT_EQ(copy.LastUpdatedBy, "ben");
  EXPECT_EQ(copy.currentEventKey, 60);
  EXPECT_THAT(LabelsOf(copy), ElementsAre("Start", "Extra"));
  ASSERT_EQ(copy.events.Count(), 2U);
  EXPECT_EQ(copy.events.KeyAt(1), 17);
  EXPECT_NE(&copy.events.At(17), &source.events.At(17));
  EXPECT_NE(&copy.flagRefs.At(2), &source.flagRefs.At(2));
}

TEST_F(ConversationTest, CopiesTheOtherMarksToo) {
  Conversation source;
  source.bDisplayOnce = source.bNonInteractive = source.bCanBeInterrupted = true;
  source.bInvokeBump = source.bInvokeSight = true;
  Conversation copy;
  copy.Copy(source);
  EXPECT_TRUE(copy.bDisplayOnce && copy.bNonInteractive && copy.bCanBeInterrupted &&
              copy.bInvokeBump && copy.bInvokeSight);
  EXPECT_FALSE(copy.bHoloCallCon || copy.bFirstPerson || copy.bRandomCamera ||
               copy.bCannotBeInterrupted || copy.bInvokeFrob || copy.bInvokeRadius);
}

TEST_F(ConversationTest, FindsCopiedJumpsAgainByOwnerAndName) {
  space_.conversations.Add(7, 5, "Leaving");
  Conversation con;
  con.key = 2;
  EventJump& unfilled = AddJump(con, 1, 99);
  EventJump& found = AddJump(con, 2, 50);
  found.conOwner = 5;
  found.conName = "LEAVING";
  EventJump& gone = AddJump(con, 3, 7);
  gone.conOwner = 6;
  gone.conName = "Leaving";
  con.FixJumpReferences();
  EXPECT_EQ(unfilled.conID, 99) << "a jump without a name was never copied";
  EXPECT_EQ(unfilled.conOwner, 0);
  EXPECT_EQ(found.conID, 7);
  EXPECT_EQ(gone.conID, 2) << "a target that is gone becomes the conversation itself";
  for (const EventJump* jump : {&found, &gone}) {
    EXPECT_EQ(jump->conOwner, -1);
    EXPECT_EQ(jump->conName, "");
  }
}

TEST_F(ConversationTest, CutsJumpsToARemovedConversation) {
  Conversation con;
  const EventJump& into = AddJump(con, 1, 7);
  const EventJump& elsewhere = AddJump(con, 2, 8);
  AddEvent(con, 3, "");
  con.RemoveConversationLinks(7);
  EXPECT_EQ(into.conID, -1);
  EXPECT_EQ(elsewhere.conID, 8);
}

TEST_F(ConversationTest, RefersToItsOwnerItsFlagsAndTheRowsOfItsEvents) {
  Conversation con;
  con.NPCID = 5;
  AddFlag(con.flagRefs, 6);
  AddEvent(con, 1, "");
  con.events.At(1).SetEventObject(kTrade, EventTrade{}).PawnID = 7;
  EXPECT_TRUE(con.IsTableItemReferenced(5, kActorTable));
  EXPECT_TRUE(con.IsTableItemReferenced(7, kActorTable));
  EXPECT_TRUE(con.IsTableItemReferenced(6, kFlagTable));
  EXPECT_FALSE(con.IsTableItemReferenced(5, kFlagTable));
  EXPECT_FALSE(con.IsTableItemReferenced(5, kSkillTable));
  EXPECT_FALSE(con.IsTableItemReferenced(5, kMissionTable));
  EXPECT_FALSE(con.IsTableItemReferenced(8, kActorTable));
}

TEST_F(ConversationTest, MovesItsOwnerWithALinkOfAnyTable) {
  Conversation con;
  for (std::int32_t table = 0; table <= 4; ++table) {
    con.NPCID = 5;
    con.ChangeConTableLink(table, 5, 9);
    EXPECT_EQ(con.NPCID, 9) << "table " << table;
    con.ChangeConTableLink(table, 5, 11);
    EXPECT_EQ(con.NPCID, 9);
  }
}

TEST_F(ConversationTest, BuffersItsOwnerThenItsFlagsThenItsEvents) {
  TestWorkspace::AddRows(kActorTable, {{5, "Bob"}, {7, "Zoe"}});
  TestWorkspace::AddRows(kFlagTable, {{5, "Door"}});
  Conversation con;
  con.NPCID = 5;
  AddFlag(con.flagRefs, 5);
  AddEvent(con, 1, "");
  con.events.At(1).SetEventObject(kTrade, EventTrade{}).PawnID = 7;
  con.StoreTableData();
  std::vector<std::string> names;
  for (const BufferItem& item : space_.workspace.tables.tableBuffer) names.push_back(*item.Name);
  EXPECT_THAT(names, ElementsAre("Bob", "Door", "Zoe"));
  con.NPCID = 6;
  EXPECT_EQ(ErrorOf([&] { con.StoreTableData(); }), 5) << "a row that is gone";
  con.NPCID = -1;
  EXPECT_EQ(ErrorOf([&] { con.StoreTableData(); }), 0);
}

/// A conversation that goes through the clipboard from one set of tables to another.
class PasteTest : public ConversationTest {
 protected:
  PasteTest() {
    AddFlag(con_.flagRefs, 1);
    AddFlag(con_.flagRefs, 2);
    AddEvent(con_, 1, "");
    AddFlag(con_.events.At(1).SetEventObject(kSetFlags, EventSetFlag{}).flagRefs, 1);
    AddEvent(con_, 2, "");
    con_.events.At(2).SetEventObject(kTrade, EventTrade{}).PawnID = 3;
    con_.NPCID = 3;
  }
  void Paste(const testing_support::Rows& actors, const testing_support::Rows& flags) {
    TestWorkspace::AddRows(kActorTable, {{3, "Bob"}});
    TestWorkspace::AddRows(kFlagTable, {{1, "Door"}, {2, "Lamp"}});
    ClearTableBuffer();
    con_.StoreTableData();
    ClearTables();
    TestWorkspace::AddRows(kActorTable, actors);
    TestWorkspace::AddRows(kFlagTable, flags);
    RestoreBufferedTableItems();
    con_.FixTableReferences();
  }
  [[nodiscard]] std::vector<std::int32_t> Flags() const { return IdsOf(con_.flagRefs); }
  [[nodiscard]] std::vector<std::int32_t> SetFlags() {
    return IdsOf(con_.events.At(1).As<EventSetFlag>()->flagRefs);
  }
  static std::vector<std::int32_t> IdsOf(const FlagList& flags) {
    std::vector<std::int32_t> ids;
    for (const FlagRef& flag : flags) ids.push_back(flag.flagID);
    return ids;
  }

  Conversation con_;
};

TEST_F(PasteTest, WithinOneFileReplacesEachFlagByAnEqualOneWithItsMark) {
  Paste({{3, "Bob"}}, {{1, "Door"}, {2, "Lamp"}});
  for (const BufferItem& item : space_.workspace.tables.tableBuffer) {
    EXPECT_EQ(item.RestoredID, item.ID);
  }
  EXPECT_THAT(Flags(), ElementsAre(1, 2));
  EXPECT_TRUE(con_.flagRefs.At(1).bAdjustedID);
  EXPECT_TRUE(con_.flagRefs.At(2).bAdjustedID);
  EXPECT_EQ(con_.NPCID, 3);
}

TEST_F(PasteTest, RewritesAnActorThatTheTargetKnowsUnderAnotherId) {
  Paste({{7, "Bob"}}, {{1, "Door"}, {2, "Lamp"}});
  EXPECT_EQ(con_.NPCID, 7);
  EXPECT_EQ(con_.events.At(2).As<EventTrade>()->PawnID, 7);
  EXPECT_EQ(GetTable(kActorTable)->Count(), 1U) << "no row is added";
}

TEST_F(PasteTest, AddsARowForAnUnknownNameThatNobodyElseRefersTo) {
  Paste({{0, "Ann"}}, {{1, "Door"}, {2, "Lamp"}});
  EXPECT_EQ(GetTableItemName(kActorTable, 1), "Bob");
  EXPECT_TRUE(con_.IsTableItemReferenced(1, kActorTable));
  EXPECT_FALSE(con_.IsTableItemReferenced(0, kActorTable));
}

TEST_F(PasteTest, RewritesAFlagOnceWhenNumbersChainButThatOfASetTwice) {
  // In the target the door is 2 and the lamp is 3: the lamp's old number is the door's new one.
  con_.flagRefs.Remove(2);
  AddEvent(con_, 3, "");
  AddFlag(con_.events.At(3).SetEventObject(kSetFlags, EventSetFlag{}).flagRefs, 2);
  Paste({{3, "Bob"}}, {{2, "Door"}, {3, "Lamp"}});
  EXPECT_THAT(Flags(), ElementsAre(2));
  EXPECT_THAT(SetFlags(), ElementsAre(3));
}

TEST_F(PasteTest, SendsARowAgainForEachReferenceWhenNumbersGoInACircle) {
  // The two actors have each other's number in the target. The rows stand in the buffer as they
  // are referred to: 3 for the owner, 3 for the trade, 4 for the second trade.
  AddEvent(con_, 3, "");
  con_.events.At(3).SetEventObject(kTrade, EventTrade{}).PawnID = 4;
  AddEvent(con_, 4, "");
  con_.events.At(4).SetEventObject(kTrade, EventTrade{}).PawnID = 3;
  const auto name = std::make_shared<const std::string>("x");
  space_.workspace.tables.tableBuffer = {
      {kActorTable, 3, 4, name}, {kActorTable, 4, 3, name}, {kActorTable, 3, 4, name}};
  con_.FixTableReferences();
  // 3 to 4 makes all of them 4, 4 to 3 all of them 3, and the second 3 to 4 all of them 4.
  EXPECT_EQ(con_.NPCID, 4);
  EXPECT_EQ(con_.events.At(2).As<EventTrade>()->PawnID, 4);
  EXPECT_EQ(con_.events.At(3).As<EventTrade>()->PawnID, 4);
  EXPECT_EQ(con_.events.At(4).As<EventTrade>()->PawnID, 4);
}

TEST_F(PasteTest, MovesTheOwnerAlongWithASkillOfHisNumber) {
  space_.workspace.tables.tableBuffer = {
      {kSkillTable, 3, 8, std::make_shared<const std::string>("Computers")}};
  con_.FixTableReferences();
  EXPECT_EQ(con_.NPCID, 8);
  EXPECT_EQ(con_.events.At(2).As<EventTrade>()->PawnID, 3);
}

}  // namespace
}  // namespace parlate

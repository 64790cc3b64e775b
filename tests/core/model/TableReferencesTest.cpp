// The IDs gathered in one walk are those for which the question for a single one is answered yes.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::OpenFile;
using testing_support::SampleFile;
using testing_support::TestWorkspace;

constexpr std::int32_t kHighest = 20;

FlagList FlagsOf(const std::vector<std::int32_t>& ids) {
  FlagList flags;
  for (const std::int32_t id : ids) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = id;
    flags.Add(id, flag);
  }
  return flags;
}

void ExpectGatheredAsAsked(const EventObject& event, const std::string& name) {
  for (std::int32_t table = -1; table <= 5; ++table) {
    IDSet ids;
    event.GatherTableItems(table, ids);
    for (std::int32_t id = -2; id <= kHighest; ++id) {
      EXPECT_EQ(ids.Contains(id), event.IsTableItemReferenced(id, table))
          << name << ", table " << table << ", row " << id;
    }
  }
}

void ExpectGatheredAsAsked(const ConversationFile& file) {
  for (std::int32_t table = -1; table <= 5; ++table) {
    const IDSet ids = file.ReferencedTableItems(table);
    for (std::int32_t id = -2; id <= kHighest; ++id) {
      EXPECT_EQ(ids.Contains(id), bool{file.IsTableItemReferenced(id, table)})
          << "table " << table << ", row " << id;
    }
  }
}

TEST(TableReferences, OfEveryTypeInAFileAreGatheredAsAsked) {
  for (const int version : {14, 17, 28}) {
    TestWorkspace space;
    OpenFile open(space);
    ASSERT_TRUE(open.Load(SampleFile(version)));
    ExpectGatheredAsAsked(open.file);
    for (const EventItem& event : open.file.Conversations.Place(1)->events) {
      ExpectGatheredAsAsked(*event.eventObject(), "type " + std::to_string(event.eventType));
    }
  }
}

TEST(TableReferences, OfAFileAreThoseThatItsEventsNameAndNoMore) {
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(28)));
  const IDSet actors = open.file.ReferencedTableItems(kActorTable);
  for (const std::int32_t id : {0, 1, 5}) EXPECT_TRUE(actors.Contains(id)) << id;
  EXPECT_FALSE(actors.Contains(2));
  const IDSet flags = open.file.ReferencedTableItems(kFlagTable);
  EXPECT_TRUE(flags.Contains(2));
  EXPECT_TRUE(flags.Contains(3));
  EXPECT_FALSE(flags.Contains(1));
  const IDSet skills = open.file.ReferencedTableItems(kSkillTable);
  EXPECT_TRUE(skills.Contains(1));
  EXPECT_FALSE(skills.Contains(2));
  const IDSet objects = open.file.ReferencedTableItems(kObjectTable);
  EXPECT_TRUE(objects.Contains(4));
  EXPECT_FALSE(objects.Contains(9)) << "nobody asks for the rope";
}

TEST(TableReferences, OfSpeechAreBothActors) {
  EventSpeech speech;
  ExpectGatheredAsAsked(speech, "a speech of nobody");
  speech.ActorSpeakerID = 11;
  speech.ActorSpeakingToID = 12;
  ExpectGatheredAsAsked(speech, "speech");
}

TEST(TableReferences, OfChoicesAreSkillsAndFlagsOfEachOfThem) {
  EventChoice event;
  ExpectGatheredAsAsked(event, "no choices");
  for (const std::int32_t skill : {11, -1, 12}) {
    auto choice = std::make_shared<ChoiceItem>();
    choice->ID = event.nextID();
    choice->skillID = skill;
    choice->flagRefs = FlagsOf({skill + 2, 3});
    event.Choices.Add(choice->ID, choice);
  }
  ExpectGatheredAsAsked(event, "choices");
}

TEST(TableReferences, OfFlagEventsFollowTheIdOfTheEntryAndNotItsKey) {
  EventSetFlag set;
  set.Update(FlagsOf({1, 5}));
  set.ChangeTableLink(kFlagTable, 1, 9);
  ExpectGatheredAsAsked(set, "set flags");
  EventCheckFlag check;
  check.Update(FlagsOf({1, 5}), "x");
  ExpectGatheredAsAsked(check, "check flags");
}

TEST(TableReferences, OfObjectsAndPawnsStandInTheirOwnTables) {
  EventCheckObject check;
  check.Update(11, "");
  ExpectGatheredAsAsked(check, "check object");
  EventTransferObject transfer;
  transfer.Update(11, 1, 12, 13, "");
  ExpectGatheredAsAsked(transfer, "transfer");
  transfer.Update(11, 1, -1, 13, "");
  ExpectGatheredAsAsked(transfer, "gift from nowhere");
  EventAnimation animation;
  animation.PawnID = 14;
  ExpectGatheredAsAsked(animation, "animation");
  EventTrade trade;
  trade.PawnID = 15;
  ExpectGatheredAsAsked(trade, "trade");
}

TEST(TableReferences, OfAJumpAreTheCachedOwnerThatIsZeroAfterALoad) {
  EventJump jump;
  IDSet ids;
  jump.GatherTableItems(kActorTable, ids);
  EXPECT_TRUE(ids.Contains(0));
  ExpectGatheredAsAsked(jump, "loaded jump");
  jump.conOwner = 11;
  jump.conID = 12;
  ExpectGatheredAsAsked(jump, "copied jump");
}

TEST(TableReferences, OfAConversationAreItsOwnerAndItsFlagsToo) {
  const TestWorkspace space;
  ConversationFile file;
  ExpectGatheredAsAsked(file);
  auto con = std::make_shared<Conversation>();
  con->NPCID = 7;
  con->flagRefs = FlagsOf({8, 9});
  file.Conversations.Add(0, con);
  ExpectGatheredAsAsked(file);
  EXPECT_TRUE(file.ReferencedTableItems(kActorTable).Contains(7));
  EXPECT_TRUE(file.ReferencedTableItems(kFlagTable).Contains(8));
  EXPECT_FALSE(file.ReferencedTableItems(kFlagTable).Contains(7));
}

TEST(RemovingTableItems, GoesByTheIdAndWithoutOneByTheName) {
  const TestWorkspace space;
  TestWorkspace::AddRows(kSkillTable, {{1, "Swim"}, {2, "Sing"}, {3, "Swim"}});
  RemoveTableItem(kSkillTable, 3, "Sing");
  EXPECT_EQ(GetTable(kSkillTable)->Find(3), nullptr);
  EXPECT_NE(GetTable(kSkillTable)->Find(2), nullptr);
  RemoveTableItem(kSkillTable, 9, "Swim");
  EXPECT_EQ(GetTable(kSkillTable)->Find(1), nullptr);
  RemoveTableItem(kSkillTable, 9, "Swim");
  EXPECT_EQ(GetTable(kSkillTable)->Count(), 1U);
}

TEST(RemovingTableItems, TakesManyAtOnceAndLeavesTheNextIdAlone) {
  const TestWorkspace space;
  TestWorkspace::AddRows(kSkillTable, {{5, "a"}, {2, "b"}, {9, "c"}, {1, "d"}});
  IDSet ids;
  for (const std::int32_t id : {5, 9, 77}) ids.Add(id);
  RemoveTableItems(kSkillTable, ids);
  EXPECT_EQ(GetTable(kSkillTable)->Count(), 2U);
  EXPECT_EQ(GetTable(kSkillTable)->Place(1)->Name, "b");
  EXPECT_EQ(GetTable(kSkillTable)->Place(2)->Name, "d");
  EXPECT_EQ(AddTableItem(kSkillTable, "e").ID, 10);
}

}  // namespace
}  // namespace parlate

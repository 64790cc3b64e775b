// Which table rows each event class refers to, and how the references are rewritten.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "model/Conversation.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::ErrorOf;
using testing_support::TestWorkspace;

using Link = std::pair<std::int32_t, std::int32_t>;  // table type and ID

FlagList FlagsOf(const std::vector<std::int32_t>& ids) {
  FlagList flags;
  for (const std::int32_t id : ids) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = id;
    flags.Add(id, flag);
  }
  return flags;
}

std::vector<std::int32_t> IdsOf(const FlagList& flags) {
  std::vector<std::int32_t> ids;
  for (const FlagRef& flag : flags) ids.push_back(flag.flagID);
  return ids;
}

void AddChoice(EventChoice& event, std::int32_t skillID, FlagList flags) {
  auto choice = std::make_shared<ChoiceItem>();
  choice->ID = event.nextID();
  choice->skillID = skillID;
  choice->flagRefs = std::move(flags);
  event.Choices.Add(choice->ID, choice);
}

struct Linked {
  std::string name;
  std::shared_ptr<EventObject> event;
  std::vector<Link> stored;  ///< What `StoreTableData` buffers, in order.
};

template <class Event, class Fill>
Linked With(const std::string& name, std::vector<Link> stored, Fill fill) {
  auto event = std::make_shared<Event>();
  fill(*event);
  return {name, event, std::move(stored)};
}

// Every row is referred to under an ID of its own from 11 on, so that a reference that is looked
// for in the wrong table, or not at all, shows.
std::vector<Linked> LinkedEvents() {
  return {
      With<EventSpeech>("Speech", {{0, 11}, {0, 12}},
                        [](auto& e) {
                          e.ActorSpeakerID = 11;
                          e.ActorSpeakingToID = 12;
                        }),
      With<EventSpeech>("SpeechOfNobody", {}, [](auto&) {}),
      With<EventChoice>("Choice", {{1, 11}, {2, 12}, {2, 13}, {2, 14}},
                        [](auto& e) {
                          AddChoice(e, 11, FlagsOf({12, 13}));
                          AddChoice(e, -1, FlagsOf({14}));
                        }),
      With<EventSetFlag>("SetFlags", {{2, 11}, {2, 12}},
                         [](auto& e) {
                           e.Update(FlagsOf({11, 12}));
                         }),
      With<EventCheckFlag>("CheckFlags", {{2, 11}, {2, 12}},
                           [](auto& e) {
                             e.Update(FlagsOf({11, 12}), "x");
                           }),
      With<EventCheckObject>("CheckObject", {{3, 11}}, [](auto& e) { e.Update(11, ""); }),
      With<EventTransferObject>("Transfer", {{0, 12}, {0, 13}, {3, 11}},
                                [](auto& e) { e.Update(11, 1, 12, 13, ""); }),
      With<EventTransferObject>("Give", {{0, 13}, {3, 11}},
                                [](auto& e) { e.Update(11, 1, -1, 13, ""); }),
      With<EventMoveCamera>("Camera", {}, [](auto& e) { e.cameraPosition = 11; }),
      With<EventAnimation>("Animation", {{0, 11}}, [](auto& e) { e.PawnID = 11; }),
      With<EventTrade>("Trade", {{0, 11}}, [](auto& e) { e.PawnID = 11; }),
      With<EventRandom>("Random", {}, [](auto&) {}),
      With<EventTrigger>("Trigger", {}, [](auto&) {}),
      With<EventAddGoal>("Goal", {}, [](auto&) {}),
      With<EventAddNote>("Note", {}, [](auto&) {}),
      With<EventAddSkillPoints>("SkillPoints", {}, [](auto& e) { e.pointsToAdd = 11; }),
      With<EventAddCredits>("Credits", {}, [](auto& e) { e.creditsToAdd = 11; }),
      With<EventCheckPersona>("Persona", {}, [](auto& e) { e.value = 11; }),
      With<EventComment>("Comment", {}, [](auto&) {}),
      With<EventEnd>("End", {}, [](auto&) {}),
  };
}

std::vector<Link> BufferedBy(const EventObject& event) {
  ClearTableBuffer();
  event.StoreTableData();
  std::vector<Link> links;
  for (const BufferItem& item : Workspace::Current().tables.tableBuffer) {
    links.emplace_back(item.tableType, item.ID);
  }
  return links;
}

void AddAllRows() {
  for (std::int32_t type = 0; type <= 3; ++type) {
    for (std::int32_t id = 11; id <= 14; ++id) {
      AddFixedTableItem(type, "row", id);
      AddFixedTableItem(type, "moved", id + 100);
    }
  }
}

class TableLinks : public testing::TestWithParam<Linked> {};

TEST_P(TableLinks, AreFoundInTheirOwnTableOnly) {
  const TestWorkspace space;
  const auto& [name, event, stored] = GetParam();
  for (std::int32_t table = -1; table <= 5; ++table) {
    for (std::int32_t id = 10; id <= 15; ++id) {
      const bool expected =
          std::find(stored.begin(), stored.end(), Link(table, id)) != stored.end();
      EXPECT_EQ(event->IsTableItemReferenced(id, table), expected) << table << ", " << id;
    }
  }
}

TEST_P(TableLinks, AreBufferedInOrderAndFollowAChange) {
  const TestWorkspace space;
  AddAllRows();
  const auto& [name, event, stored] = GetParam();
  EXPECT_EQ(BufferedBy(*event), stored);
  for (const auto& [table, id] : stored) {
    event->ChangeTableLink(table + 1, id, 999);
    event->ChangeTableLink(table, 999, 998);
  }
  EXPECT_EQ(BufferedBy(*event), stored) << "neither another table nor another ID counts";
  std::vector<Link> moved;
  for (const auto& [table, id] : stored) {
    event->ChangeTableLink(table, id, id + 100);
    moved.emplace_back(table, id + 100);
  }
  EXPECT_EQ(BufferedBy(*event), moved);
  for (const auto& [table, id] : stored) event->ChangeTableLink(table, id + 100, id);
}

INSTANTIATE_TEST_SUITE_P(OfEachType, TableLinks, testing::ValuesIn(LinkedEvents()),
                         [](const auto& tested) { return tested.param.name; });

TEST(JumpLinks, LookAtTheCachedOwnerAlone) {
  const TestWorkspace space;
  EventJump jump;
  EXPECT_TRUE(jump.IsTableItemReferenced(0, 0)) << "0 until a copy fills it";
  jump.conOwner = 11;
  jump.conID = 12;
  EXPECT_TRUE(jump.IsTableItemReferenced(11, 0));
  EXPECT_FALSE(jump.IsTableItemReferenced(12, 0));
  EXPECT_FALSE(jump.IsTableItemReferenced(11, 2));
  jump.ChangeTableLink(0, 11, 13);
  EXPECT_EQ(jump.conOwner, 11) << "nothing is rewritten";
  EXPECT_THAT(BufferedBy(jump), IsEmpty());
}

TEST(FlagLinks, OfACheckMoveToTheEndAndAreRewrittenOnce) {
  EventCheckFlag check;
  check.Update(FlagsOf({1, 5}), "x");
  check.ChangeTableLink(2, 1, 2);
  EXPECT_THAT(IdsOf(check.flagRefs), ElementsAre(5, 2));
  EXPECT_TRUE(check.flagRefs.At(2).bAdjustedID);
  EXPECT_FALSE(check.flagRefs.At(5).bAdjustedID);
  check.ChangeTableLink(2, 2, 3);
  EXPECT_THAT(IdsOf(check.flagRefs), ElementsAre(5, 2)) << "the mark keeps the entry as it is";
}

TEST(FlagLinks, OfAChoiceMoveToTheEndAndAreRewrittenOnce) {
  EventChoice event;
  AddChoice(event, -1, FlagsOf({1, 5}));
  const FlagList& flags = event.Choices.Place(1)->flagRefs;
  event.ChangeTableLink(2, 1, 2);
  EXPECT_THAT(IdsOf(flags), ElementsAre(5, 2));
  EXPECT_TRUE(flags.At(2).bAdjustedID);
  event.ChangeTableLink(2, 2, 3);
  EXPECT_THAT(IdsOf(flags), ElementsAre(5, 2)) << "the mark keeps the entry as it is";
}

TEST(FlagLinks, OfASetAreRewrittenInPlaceUnderTheirOldKeyAndAgain) {
  EventSetFlag set;
  set.Update(FlagsOf({1, 5}));
  set.ChangeTableLink(2, 1, 2);
  EXPECT_THAT(IdsOf(set.flagRefs), ElementsAre(2, 5));
  EXPECT_EQ(set.flagRefs.KeyAt(1), 1);
  EXPECT_FALSE(set.flagRefs.At(1).bAdjustedID);
  set.ChangeTableLink(2, 2, 3);
  EXPECT_THAT(IdsOf(set.flagRefs), ElementsAre(3, 5));
  set.ChangeTableLink(2, 3, 5);
  EXPECT_THAT(IdsOf(set.flagRefs), ElementsAre(5, 5)) << "no key is touched, so none can clash";
}

TEST(FlagLinks, FailWhenTheNewIdIsInTheListAlready) {
  FlagList flags = FlagsOf({1, 2});
  EXPECT_EQ(ErrorOf([&] { ChangeFlagRefLink(flags, 1, 2); }), 457);
}

TEST(FlagLinks, ToTheSameIdAreMarkedAndMoveToTheEnd) {
  FlagList flags = FlagsOf({1, 2});
  flags.At(1).bValue = true;
  flags.At(1).expiration = 6;
  ChangeFlagRefLink(flags, 1, 1);
  EXPECT_THAT(IdsOf(flags), ElementsAre(2, 1));
  EXPECT_TRUE(flags.At(1).bAdjustedID);
  EXPECT_TRUE(flags.At(1).bValue);
  EXPECT_EQ(flags.At(1).expiration, 6);
}

TEST(TableBuffer, KeepsTheNameOfARowAndNothingForNone) {
  const TestWorkspace space;
  AddFixedTableItem(kFlagTable, "Door", 2);
  BufferTableItem(kFlagTable, -1);
  BufferTableItem(kFlagTable, -7);
  EXPECT_THAT(space.workspace.tables.tableBuffer, IsEmpty());
  BufferTableItem(kFlagTable, 2);
  BufferTableItem(kFlagTable, 2);
  ASSERT_EQ(space.workspace.tables.tableBuffer.size(), 2U);
  const BufferItem& item = space.workspace.tables.tableBuffer[1];
  EXPECT_EQ(item.tableType, kFlagTable);
  EXPECT_EQ(item.ID, 2);
  EXPECT_EQ(item.RestoredID, 0);
  EXPECT_EQ(*item.Name, "Door");
  EXPECT_EQ(item.Name, space.workspace.tables.tableBuffer[0].Name) << "one text for both";
  EXPECT_EQ(ErrorOf([] { BufferTableItem(kFlagTable, 3); }), 5) << "a row that is not there";
  ClearTableBuffer();
  EXPECT_THAT(space.workspace.tables.tableBuffer, IsEmpty());
}

TEST(TableBuffer, FindsRowsByNameInTheNewFileOrAddsThem) {
  TestWorkspace space;
  space.workspace.tables.tableBuffer = {{0, 3, 0, std::make_shared<const std::string>("Bob")},
                                        {0, 4, 0, std::make_shared<const std::string>("bob")},
                                        {2, 3, 0, std::make_shared<const std::string>("Bob")},
                                        {0, 9, 0, std::make_shared<const std::string>("Bob")}};
  TestWorkspace::AddRows(kActorTable, {{7, "Bob"}});
  RestoreBufferedTableItems();
  const auto& buffer = space.workspace.tables.tableBuffer;
  EXPECT_EQ(buffer[0].RestoredID, 7);
  EXPECT_EQ(buffer[1].RestoredID, 8) << "names are compared exactly, so a row is added";
  EXPECT_EQ(buffer[2].RestoredID, 0) << "the first flag of the new file";
  EXPECT_EQ(buffer[3].RestoredID, 7);
  EXPECT_EQ(GetTable(kActorTable)->Count(), 2U);
}

}  // namespace
}  // namespace parlate

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "general/BinaryFile.h"
#include "model/Tables.h"
#include "model/records/RecordReader.h"
#include "support/FileBytes.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing_support::ErrorOf;
using testing_support::FileBytes;
using testing_support::TableFields;
using testing_support::TestWorkspace;

class Tables : public testing::Test {
 protected:
  /// Reads a table block of a version into the tables in place.
  static void Load(const std::string& bytes, int version = 28) {
    MemorySource source(bytes);
    BinaryReader reader(source);
    RecordReader in{reader, version, {}};
    EXPECT_TRUE(LoadTables(in));
    EXPECT_EQ(reader.Remaining(), 0U);
  }
  static std::string Save() {
    MemorySink sink;
    BinaryWriter writer(sink);
    SaveTables(writer);
    writer.Flush();
    return sink.Bytes();
  }
  static std::vector<std::pair<std::int32_t, std::string>> RowsOf(std::int32_t type) {
    std::vector<std::pair<std::int32_t, std::string>> rows;
    for (const TableItem& row : *GetTable(type)) rows.emplace_back(row.ID, row.Name);
    return rows;
  }

  TestWorkspace space_;
  std::array<std::int32_t, 6>& next_ = space_.workspace.tables.nextTableID;
};

TEST_F(Tables, HaveTheirNames) {
  std::vector<std::string> names;
  for (std::int32_t type = -1; type <= 5; ++type) names.push_back(GetTableName(type));
  EXPECT_THAT(names, ElementsAre("", "Actors/Pawn", "Skill", "Flag", "Object", "Mission", ""));
  EXPECT_EQ(GetTable(-1), nullptr);
  EXPECT_EQ(GetTable(5), nullptr);
  for (std::int32_t type = 0; type <= 4; ++type) EXPECT_TRUE(GetTable(type)->Empty());
}

TEST_F(Tables, GiveRowsTheNextIdInTheOrderOfInsertion) {
  EXPECT_EQ(AddTableItem(kActorTable, "Zoe").ID, 0);
  EXPECT_EQ(AddTableItem(kActorTable, "Bob").ID, 1);
  EXPECT_EQ(AddTableItem(kFlagTable, "Bob").ID, 0) << "each table counts for itself";
  EXPECT_EQ(AddTableItem(kActorTable, "Bob").ID, 1) << "a row of that name is there";
  EXPECT_EQ(AddTableItem(kActorTable, "bob").ID, 2) << "the comparison is exact";
  EXPECT_THAT(RowsOf(kActorTable),
              ElementsAre(std::pair(0, "Zoe"), std::pair(1, "Bob"), std::pair(2, "bob")));
  EXPECT_EQ(next_[kActorTable], 3);
}

TEST_F(Tables, DoNotGiveTheIdOfADeletedRowAgain) {
  AddTableItem(kSkillTable, "A");
  AddTableItem(kSkillTable, "B");
  RemoveTableItemByName(kSkillTable, "B");
  EXPECT_EQ(AddTableItem(kSkillTable, "C").ID, 2);
  RemoveTableItemByName(kSkillTable, "none");
  EXPECT_EQ(GetTable(kSkillTable)->Count(), 2U);
}

TEST_F(Tables, FindAndRemoveTheFirstRowOfAName) {
  TestWorkspace::AddRows(kObjectTable, {{4, "Key"}, {5, "Rope"}, {6, "Key"}});
  EXPECT_EQ(FindTableItemByName(kObjectTable, "Key")->ID, 4);
  EXPECT_EQ(FindTableItemByName(kObjectTable, "key"), nullptr);
  RemoveTableItemByName(kObjectTable, "Key");
  EXPECT_EQ(FindTableItemByName(kObjectTable, "Key")->ID, 6);
  EXPECT_EQ(GetTableItemName(kObjectTable, 5), "Rope");
  EXPECT_EQ(ErrorOf([] { (void)GetTableItemName(kObjectTable, 4); }), 5);
}

TEST_F(Tables, LeaveNextIdAndDuplicatesAloneForAFixedRow) {
  AddFixedTableItem(kSkillTable, "A", 8);
  AddFixedTableItem(kSkillTable, "A", 9);
  EXPECT_EQ(next_[kSkillTable], 0);
  EXPECT_EQ(GetTable(kSkillTable)->Count(), 2U);
  EXPECT_EQ(ErrorOf([] { AddFixedTableItem(kSkillTable, "B", 9); }), 457);
}

TEST_F(Tables, RefuseARowWhenTheIdsAreUsedUp) {
  next_[kActorTable] = INT32_MAX;
  EXPECT_EQ(ErrorOf([] { AddTableItem(kActorTable, "One too many"); }), 6);
  EXPECT_TRUE(GetTable(kActorTable)->Empty()) << "a row whose ID no file can hold";
}

TEST_F(Tables, HaveNoNextIdOfATypeOutsideOfTheSix) {
  for (const std::int32_t type : {6, 7, INT32_MAX, -1, INT32_MIN}) {
    EXPECT_EQ(ErrorOf([type] { AppendTableItem(type, "Row"); }), 9) << type;
  }
  EXPECT_THAT(next_, ElementsAre(0, 0, 0, 0, 0, 0));
}

TEST_F(Tables, HealAReferenceByItsIdThenItsNameThenANewRow) {
  TestWorkspace::AddRows(kActorTable, {{3, "Bob"}, {7, "Zoe"}});
  EXPECT_EQ(ResolveTableItem(kActorTable, 3, "Zoe"), 3) << "the name is not compared";
  EXPECT_EQ(ResolveTableItem(kActorTable, 4, "Zoe"), 7);
  EXPECT_EQ(ResolveTableItem(kActorTable, 4, "Ann"), 8);
  EXPECT_EQ(ResolveTableItem(kActorTable, 5, "Ann"), 8);
}

TEST_F(Tables, HoldEighteenMissionsWithoutAThirteenth) {
  TestWorkspace::AddRows(kMissionTable, {{13, "old"}});
  next_[kMissionTable] = 5;
  BuildMissionTable();
  std::vector<std::pair<std::int32_t, std::string>> expected;
  for (int i = 0; i <= 16; ++i) {
    if (i == 13) continue;
    const std::string number = std::to_string(i);
    expected.emplace_back(i, (i < 10 ? "Mission 0" : "Mission ") + number);
  }
  expected.emplace_back(98, "Intro");
  expected.emplace_back(99, "EndGame");
  EXPECT_EQ(expected.size(), 18U);
  EXPECT_EQ(RowsOf(kMissionTable), expected);
  EXPECT_EQ(GetTable(kMissionTable)->Find(13), nullptr);
  EXPECT_EQ(next_[kMissionTable], 5) << "IDs of missions are not given out";
}

TEST_F(Tables, AreEmptiedButForTheSpareCounter) {
  space_.AddSampleTables();
  BuildMissionTable();
  next_[5] = 77;
  ClearTables();
  for (std::int32_t type = 0; type <= 4; ++type) EXPECT_TRUE(GetTable(type)->Empty());
  EXPECT_THAT(next_, ElementsAre(0, 0, 0, 0, 0, 77));
}

TEST_F(Tables, LoadInTheOrderOfTheFileWhichIsNotThatOfTheCodes) {
  const TableFields tables = testing_support::SampleTables();
  const std::string bytes = FileBytes(28).Tables(tables).Bytes();
  // Three rows of actors, two of flags, one of skills, two of objects, and four counts.
  EXPECT_EQ(bytes.substr(0, 4), std::string("\x75\0\0\0", 4));
  Load(bytes);
  EXPECT_EQ(RowsOf(kActorTable), tables.actors);
  EXPECT_EQ(RowsOf(kFlagTable), tables.flags);
  EXPECT_EQ(RowsOf(kSkillTable), tables.skills);
  EXPECT_EQ(RowsOf(kObjectTable), tables.objects);
  EXPECT_EQ(next_[kActorTable], 6);
  EXPECT_EQ(next_[kSkillTable], 2);
  EXPECT_EQ(next_[kFlagTable], 4);
  EXPECT_EQ(next_[kObjectTable], 10);
  EXPECT_EQ(GetTable(kMissionTable)->Count(), 18U);
  EXPECT_EQ(Save(), bytes);
}

TEST_F(Tables, ReadNoBlockSizeBelowVersionTwelve) {
  const std::string bytes = FileBytes(28).Tables(testing_support::SampleTables()).Bytes();
  Load(bytes.substr(4), 11);
  EXPECT_EQ(GetTable(kActorTable)->Count(), 3U);
}

TEST_F(Tables, IgnoreTheBlockSizeThatIsStored) {
  const std::string bytes = FileBytes(28).Tables(testing_support::SampleTables()).Bytes();
  Load(testing_support::WithI32At(bytes, 0, -12345));
  EXPECT_EQ(Save(), bytes) << "and write the right one";
}

TEST_F(Tables, CountFourBytesForAnEmptyTableAndStartItsIdsAtZero) {
  Load(FileBytes(28).I32(16).I32(0).I32(0).I32(0).I32(0).Bytes());
  EXPECT_THAT(next_, ElementsAre(0, 0, 0, 0, 0, 0));
  EXPECT_EQ(GetTableSize(*GetTable(kActorTable)), 4);
  EXPECT_EQ(Save(), FileBytes(28).I32(16).I32(0).I32(0).I32(0).I32(0).Bytes());
}

TEST_F(Tables, GiveTheHighestIdAgainAfterAReloadButNoGap) {
  for (const char* name : {"A", "B", "C"}) AddTableItem(kActorTable, name);
  RemoveTableItemByName(kActorTable, "C");
  const std::string highestGone = Save();
  ClearTables();
  Load(highestGone);
  EXPECT_EQ(next_[kActorTable], 2);
  AddTableItem(kActorTable, "D");
  RemoveTableItemByName(kActorTable, "B");
  const std::string middleGone = Save();
  ClearTables();
  Load(middleGone);
  EXPECT_EQ(next_[kActorTable], 3);
}

TEST_F(Tables, KeepTwoRowsOfOneNameButRefuseTwoOfOneId) {
  const auto block = [](std::int32_t second) {
    TableFields tables;
    tables.flags = {{1, "Door"}, {second, "Door"}};
    return FileBytes(28).Tables(tables).Bytes();
  };
  Load(block(2));
  EXPECT_EQ(GetTable(kFlagTable)->Count(), 2U);
  ClearTables();
  EXPECT_EQ(ErrorOf([&] { Load(block(1)); }), 457);
}

TEST_F(Tables, StartAtZeroWhenAllIdsAreBelowMinusOne) {
  TableFields tables;
  tables.skills = {{-5, "Odd"}};
  Load(FileBytes(28).Tables(tables).Bytes());
  EXPECT_EQ(next_[kSkillTable], 0);
}

TEST(TableItem, HasASizeOfSixteenBits) {
  TableItem row;
  row.Name = "caf\xE9";
  EXPECT_EQ(row.GetSize(), 12);
  row.Name.assign(32767 - 8, 'x');
  EXPECT_EQ(row.GetSize(), 32767);
  row.Name += 'x';
  EXPECT_EQ(ErrorOf([&] { (void)row.GetSize(); }), 6);
}

}  // namespace
}  // namespace parlate

// Saves that cannot be finished, and references to rows that are gone.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "support/FileBytes.h"
#include "support/SampleFile.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::ErrorOf;
using testing_support::FileBytes;
using testing_support::OneEventFile;
using testing_support::OpenFile;
using testing_support::SampleFile;
using testing_support::SampleFileSaved;
using testing_support::SampleTables;
using testing_support::TableFields;
using testing_support::TestWorkspace;

/// A disk that takes a number of bytes and is full then.
class SmallDisk final : public ByteSink {
 public:
  explicit SmallDisk(std::size_t room) : room_(room) {}
  void Write(const char* bytes, std::size_t size) override {
    const std::size_t fits = std::min(size, room_ - bytes_.size());
    bytes_.append(bytes, fits);
    if (fits < size) throw RuntimeError(RuntimeError::kDiskFull);
  }
  [[nodiscard]] const std::string& Bytes() const { return bytes_; }

 private:
  std::size_t room_;
  std::string bytes_;
};

int ErrorOfSaving(OpenFile& open, ByteSink& sink) {
  return ErrorOf([&] {
    BinaryWriter writer(sink);
    open.file.SaveConversations(writer, open.Host());
  });
}

TEST(Saving, RaisesSixtyOneWhereverTheDiskIsFull) {
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(28)));
  const std::string whole = SampleFileSaved(28);
  for (std::size_t room = 0; room < whole.size(); ++room) {
    open.file.SetModified(true, nullptr);
    SmallDisk disk(room);
    ASSERT_EQ(ErrorOfSaving(open, disk), 61) << "room for " << room;
    ASSERT_EQ(disk.Bytes(), whole.substr(0, room)) << "written up to where the disk was full";
    ASSERT_TRUE(open.file.IsModified()) << "an unfinished save settles nothing";
    ASSERT_TRUE(open.progress.showing);
  }
  SmallDisk disk(whole.size());
  EXPECT_EQ(ErrorOfSaving(open, disk), 0);
  EXPECT_EQ(disk.Bytes(), whole);
}

TEST(Saving, RaisesSixtyOneForAFileThatIsLargerThanTheWritersBuffer) {
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(28)));
  open.file.notes.assign(400000, 'n');
  open.file.Conversations.Place(1)->notes.assign(300000, 'c');
  for (const std::size_t room : {0U, 50U, 262144U, 400100U, 600000U, 700500U}) {
    SmallDisk disk(room);
    EXPECT_EQ(ErrorOfSaving(open, disk), 61) << "room for " << room;
    EXPECT_LE(disk.Bytes().size(), room);
  }
}

TEST(Saving, StopsAtAReferenceToARowThatIsGone) {
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(28)));
  const std::pair<std::int32_t, const char*> rows[] = {{kActorTable, "Bob"},
                                                       {kFlagTable, "Lamp"},
                                                       {kSkillTable, "Computers"},
                                                       {kObjectTable, "Key"}};
  for (const auto& [type, name] : rows) {
    const std::int32_t id = FindTableItemByName(type, name)->ID;
    RemoveTableItemByName(type, name);
    EXPECT_EQ(ErrorOf([&] { (void)open.Save(); }), 5) << name;
    EXPECT_TRUE(open.progress.showing);
    AddFixedTableItem(type, name, id);
  }
  EXPECT_EQ(ErrorOf([&] { (void)open.Save(); }), 0);
}

TEST(Saving, LeavesTheBytesUpToTheFailureInTheFile) {
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(28)));
  open.Event(1, 12).As<EventTrade>()->PawnID = 77;
  SmallDisk disk(1000000);
  EXPECT_EQ(ErrorOfSaving(open, disk), 5);
  const std::string whole = SampleFileSaved(28);
  EXPECT_GT(disk.Bytes().size(), 500U);
  EXPECT_EQ(disk.Bytes().substr(0, disk.Bytes().size() - 4),
            whole.substr(0, disk.Bytes().size() - 4))
      << "the number of the missing row is the last thing written";
}

TEST(Saving, FailsForAnObjectOfMinusOneButNotForAnActor) {
  const std::string payloads[] = {
      FileBytes(28).I32(-1).Str("").Str("").Bytes(),
      FileBytes(28).I32(-1).Str("").I32(1).I32(-1).I32(-1).Str("").Bytes()};
  for (const std::int32_t type : {kCheckObject, kTransferObject}) {
    TestWorkspace space;
    OpenFile open(space);
    ASSERT_TRUE(
        open.Load(OneEventFile(28, SampleTables(), type, payloads[type - kCheckObject]).Bytes()));
    EXPECT_EQ(ErrorOf([&] { (void)open.Save(); }), 5);
  }
  TestWorkspace space;
  OpenFile open(space);
  const std::string noActors =
      FileBytes(28).I32(4).Str("Key").I32(1).I32(-1).I32(-1).Str("").Bytes();
  ASSERT_TRUE(open.Load(OneEventFile(28, SampleTables(), kTransferObject, noActors).Bytes()));
  EXPECT_TRUE(open.Save().ends_with(noActors)) << "and no name stands behind their numbers";
}

TEST(Saving, WithMissingNamesAllowedWritesThemEmpty) {
  TestWorkspace space;
  space.workspace.writeMissingNames = true;
  OpenFile open(space);
  const std::string payload = FileBytes(28).I32(8).Str("gone").Str("").Bytes();
  ASSERT_TRUE(open.Load(OneEventFile(28, SampleTables(), kCheckObject, payload).Bytes()));
  EXPECT_TRUE(open.Save().ends_with(FileBytes(28).I32(8).Str("").Str("").Bytes()));
}

class Healing : public testing::Test {
 protected:
  /// Loads trades with the given references to actors and returns the IDs that they come to have.
  std::vector<std::int32_t> TradesOf(const std::vector<testing_support::ActorFields>& actors) {
    TableFields tables;
    tables.actors = {{0, "Alex"}, {5, "Bob"}};
    FileBytes file(28);
    file.Start().Header({}).Tables(tables).I32(1).I32(1).Conversation({});
    file.I32(static_cast<std::int32_t>(actors.size()));
    std::int32_t key = 0;
    for (const auto& actor : actors) {
      ++key;
      file.Event(0, key, kTrade, "").Actor(actor);
    }
    EXPECT_TRUE(open_.Load(file.Bytes()));
    std::vector<std::int32_t> ids;
    for (const EventItem& event : open_.file.Conversations.Place(1)->events) {
      ids.push_back(event.As<EventTrade>()->PawnID);
    }
    return ids;
  }

  TestWorkspace space_;
  OpenFile open_{space_};
};

TEST_F(Healing, GivesAMissingActorTheRowOfItsNameOrANewOne) {
  using Ids = std::vector<std::int32_t>;
  EXPECT_EQ(TradesOf({{9, "Bob"}, {8, "Ann"}, {12, "Ann"}, {6, "Bob"}, {3, "bob"}, {5, "Ann"}}),
            (Ids{5, 6, 6, 6, 7, 5}))
      << "the new row of Ann has ID 6, and an ID that is there counts whatever its name";
  EXPECT_EQ(GetTableItemName(kActorTable, 6), "Ann");
  EXPECT_EQ(GetTableItemName(kActorTable, 7), "bob");
  EXPECT_EQ(GetTable(kActorTable)->Count(), 4U);
}

TEST_F(Healing, LeavesMinusOneAndBelowAsTheyAre) {
  EXPECT_EQ(TradesOf({{-1, ""}, {-7, ""}}), (std::vector<std::int32_t>{-1, -7}));
}

TEST_F(Healing, IsNotDoneForFlagsSkillsAndObjects) {
  const std::string payload = FileBytes(28).Flags({{8, "Door", true, 0}}).Bytes();
  ASSERT_TRUE(open_.Load(OneEventFile(28, SampleTables(), kSetFlags, payload).Bytes()));
  EXPECT_EQ(open_.Event(1, 1).As<EventSetFlag>()->flagRefs.KeyAt(1), 8)
      << "though the table knows the name";
  EXPECT_EQ(ErrorOf([&] { (void)open_.Event(1, 1).BuildEventListSubString(); }), 5);
  EXPECT_EQ(ErrorOf([&] { (void)open_.Save(); }), 5);
}

TEST_F(Healing, TakesTheNameOfTheTableWhenTheStoredOneIsStale) {
  const std::string stale = FileBytes(28).Flags({{2, "Old name", true, 0}}).Bytes();
  ASSERT_TRUE(open_.Load(OneEventFile(28, SampleTables(), kSetFlags, stale).Bytes()));
  EXPECT_TRUE(open_.Save().ends_with(FileBytes(28).Flags({{2, "Door", true, 0}}).Bytes()));
}

}  // namespace
}  // namespace parlate

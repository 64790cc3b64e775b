#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

#include "general/Date.h"
#include "general/Paths.h"
#include "persistence/Recovery.h"
#include "support/SampleFile.h"
#include "support/TemporaryFolder.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::OpenFile;
using testing_support::ReadBytes;
using testing_support::SampleFile;
using testing_support::SampleFileSaved;
using testing_support::TemporaryFolder;
using testing_support::TestWorkspace;
using testing_support::WriteBytes;

TEST(Recovery, IsNamedByTheFileAndTheMoment) {
  const Date moment = MakeDate(2026, 3, 14, 17, 45, 3);
  EXPECT_EQ(RecoveryFileName("/data/harbour.con", moment), "harbour-20260314-174503.con");
  EXPECT_EQ(RecoveryFileName("", moment), "untitled-20260314-174503.con");
  EXPECT_EQ(RecoveryFileName("x.con", MakeDate(1999, 12, 31, 23, 59, 59)), "x-19991231-235959.con");
}

TEST(Recovery, KeepsAllOfTheNameAheadOfItsLastPoint) {
  const Date moment = MakeDate(2026, 3, 14, 17, 45, 3);
  EXPECT_EQ(RecoveryFileName("/data/act.one.con", moment), "act.one-20260314-174503.con");
  EXPECT_EQ(RecoveryFileName("/data/.hidden.con", moment), ".hidden-20260314-174503.con");
  EXPECT_EQ(RecoveryFileName("/data/.hidden", moment), ".hidden-20260314-174503.con");
  EXPECT_EQ(RecoveryFileName("/da.ta/harbour", moment), "harbour-20260314-174503.con");
}

TEST(Recovery, WritesAllConversationsThoughTheTreeKnowsThemNoMore) {
  const TemporaryFolder folder;
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(28)));
  open.tree.keys.clear();
  const std::string path = WriteRecovery(open.file, folder.File("new/rescue"), "a.con");
  EXPECT_EQ(path, folder.File("new/rescue/a.con"));
  EXPECT_EQ(ReadBytes(path), SampleFileSaved(28));
}

TEST(Recovery, WritesAReferenceToAMissingRowWithoutItsName) {
  const TemporaryFolder folder;
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(28)));
  RemoveTableItemByName(kFlagTable, "Door");
  const std::string path = WriteRecovery(open.file, folder.Path(), "a.con");
  ASSERT_NE(path, "");
  EXPECT_FALSE(space.workspace.writeMissingNames) << "an ordinary save is strict again";
  ClearTables();
  OpenFile again(space);
  ASSERT_TRUE(again.Load(ReadBytes(path)));
  EXPECT_EQ(again.file.Conversations.Place(1)->flagRefs.Count(), 2U);
}

TEST(Recovery, WritesAFlagThatAnEventSetsTwiceAsItsFirstEntryHasIt) {
  const TemporaryFolder folder;
  TestWorkspace space;
  space.AddSampleTables();
  auto set = std::make_shared<EventItem>();
  set->key = 1;
  FlagList& flags = set->SetEventObject(kSetFlags, EventSetFlag{}).flagRefs;
  for (const std::int32_t expiration : {6, 4}) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = 2;
    flag->expiration = expiration;
    flags.Add(expiration == 6 ? 3 : 2, flag);  // the later one alone bears the flag's own key
  }
  auto end = std::make_shared<EventItem>();
  end->key = 2;
  end->SetEventObject(kEnd, EventEnd{});
  auto con = std::make_shared<Conversation>();
  con->NPCID = 1;
  con->events.Add(1, set);
  con->events.Add(2, end);
  ConversationFile file;
  file.Conversations.Add(0, con);
  const std::string path = WriteRecovery(file, folder.Path(), "a.con");
  ASSERT_NE(path, "");
  ClearTables();
  OpenFile again(space);
  ASSERT_TRUE(again.Load(ReadBytes(path)));
  const FlagList& read = again.Event(1, 1).As<EventSetFlag>()->flagRefs;
  ASSERT_EQ(read.Count(), 1U);
  EXPECT_EQ(read.At(2).expiration, 6);
  EXPECT_EQ(again.Event(1, 2).eventType, kEnd) << "the count agrees with what was written";
}

TEST(Recovery, GivesNoPathWhenItCannotBeWritten) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("taken"), "a file");
  const TestWorkspace space;
  ConversationFile file;
  EXPECT_EQ(WriteRecovery(file, folder.File("taken"), "a.con"), "");
}

}  // namespace
}  // namespace parlate

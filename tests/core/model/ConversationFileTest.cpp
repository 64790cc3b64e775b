#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "model/ConversationFile.h"
#include "support/FakeControls.h"
#include "support/FileBytes.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::ErrorOf;
using testing_support::FakeListBox;
using testing_support::FileBytes;
using testing_support::OpenFile;
using testing_support::SampleFile;
using testing_support::TestWorkspace;

class ConversationFileTest : public testing::Test {
 protected:
  Conversation& Add(std::int32_t key, const std::string& name) {
    auto con = std::make_shared<Conversation>();
    con->key = key;
    con->conName = name;
    file_.Conversations.Add(key, con);
    return file_.Conversations.At(key);
  }

  TestWorkspace space_;
  ConversationFile file_;
};

TEST_F(ConversationFileTest, IsStampedAndEmptyWhenNew) {
  EXPECT_EQ(file_.versionNum, 28);
  EXPECT_EQ(file_.CreationDate, testing_support::kSavedAt);
  EXPECT_EQ(file_.LastUpdated, testing_support::kSavedAt);
  EXPECT_EQ(file_.CreatedBy, testing_support::kSavedBy);
  EXPECT_EQ(file_.LastUpdatedBy, testing_support::kSavedBy);
  EXPECT_EQ(file_.notes, "");
  EXPECT_EQ(file_.AudioPackage, "");
  EXPECT_FALSE(file_.IsModified());
  EXPECT_EQ(file_.GetMissionCount(), 0);
  EXPECT_EQ(ErrorOf([&] { (void)file_.GetFirstMission(); }), 9);
  EXPECT_TRUE(file_.Conversations.Empty());
}

TEST_F(ConversationFileTest, GivesKeysZeroOneTwoAndTakesTheLastBack) {
  file_.UndoLastKey();
  EXPECT_EQ(file_.NextKey(), 0);
  EXPECT_EQ(file_.NextKey(), 1);
  EXPECT_EQ(file_.NextKey(), 2);
  file_.UndoLastKey();
  EXPECT_EQ(file_.NextKey(), 2);
  EXPECT_EQ(file_.CurrentKey(), 3);
}

TEST_F(ConversationFileTest, StartsItsKeysAnewWhenAllConversationsAreRemoved) {
  Add(file_.NextKey(), "One");
  file_.ConversationRemove(0);
  EXPECT_EQ(file_.NextKey(), 1) << "the key of a removed conversation stays used";
  EXPECT_EQ(ErrorOf([&] { file_.ConversationRemove(0); }), 5);
  Add(1, "Two");
  file_.ConversationRemoveAll();
  EXPECT_TRUE(file_.Conversations.Empty());
  EXPECT_EQ(file_.NextKey(), 0);
}

TEST_F(ConversationFileTest, StampsTheFileAndTheConversation) {
  Conversation& con = Add(0, "One");
  space_.moment = 46000.25;
  // A clock that goes on: a second look at it would give the two different moments.
  space_.workspace.now = [this] { return space_.moment++; };
  space_.workspace.defaults.Username = "carl";
  file_.SetModified(true, &con);
  EXPECT_TRUE(file_.IsModified());
  EXPECT_EQ(file_.LastUpdated, 46000.25);
  EXPECT_EQ(file_.LastUpdatedBy, "carl");
  EXPECT_EQ(con.LastUpdated, 46000.25);
  EXPECT_EQ(con.LastUpdatedBy, "carl");
  EXPECT_EQ(file_.CreationDate, testing_support::kSavedAt);
  EXPECT_EQ(file_.CreatedBy, testing_support::kSavedBy);
}

TEST_F(ConversationFileTest, StampsTheFileAloneWithoutAConversationAndAlsoForFalse) {
  const Conversation& con = Add(0, "One");
  space_.moment = 46000.25;
  file_.SetModified(true, nullptr);
  EXPECT_EQ(file_.LastUpdated, 46000.25);
  EXPECT_EQ(con.LastUpdated, testing_support::kSavedAt);
  space_.moment = 46001;
  file_.SetModified(false, nullptr);
  EXPECT_FALSE(file_.IsModified());
  EXPECT_EQ(file_.LastUpdated, 46001.0);
}

TEST_F(ConversationFileTest, TellsNamesApartByTheirCase) {
  Add(0, "Greeting").NPCID = 5;
  EXPECT_TRUE(file_.IsConNameInUse("Greeting"));
  EXPECT_FALSE(file_.IsConNameInUse("greeting"));
  EXPECT_FALSE(file_.IsConNameInUse(""));
}

TEST_F(ConversationFileTest, ReplacesItsMissionsByThoseOfTheList) {
  file_.SaveMissions(FakeListBox({{"Intro", 98}, {"Mission 03", 3}}));
  EXPECT_EQ(file_.GetMissionCount(), 2);
  EXPECT_EQ(file_.GetFirstMission(), 98);
  EXPECT_EQ(file_.GetMission(1), 3);
  EXPECT_EQ(ErrorOf([&] { (void)file_.GetMission(2); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)file_.GetMission(-1); }), 9);
  file_.SaveMissions(FakeListBox({{"EndGame", 99}}));
  EXPECT_EQ(file_.GetMissionCount(), 1);
  EXPECT_EQ(file_.GetFirstMission(), 99);
}

TEST_F(ConversationFileTest, CannotStoreAnEmptyListOfMissions) {
  EXPECT_EQ(ErrorOf([&] { file_.SaveMissions(FakeListBox()); }), 9);
  EXPECT_EQ(file_.GetMissionCount(), 0);
}

TEST_F(ConversationFileTest, AsksEachConversationForATableRow) {
  EXPECT_FALSE(file_.IsTableItemReferenced(0, kActorTable)) << "no conversations";
  Add(0, "One").NPCID = 5;
  Add(1, "Two").NPCID = 6;
  EXPECT_TRUE(file_.IsTableItemReferenced(6, kActorTable));
  EXPECT_FALSE(file_.IsTableItemReferenced(7, kActorTable));
  EXPECT_FALSE(file_.IsTableItemReferenced(6, kSkillTable));
}

TEST_F(ConversationFileTest, CutsTheJumpsOfAllConversationsToARemovedOne) {
  for (std::int32_t key = 0; key < 2; ++key) {
    auto item = std::make_shared<EventItem>();
    item->key = 1;
    item->SetEventObject(kJump, EventJump{}).conID = 9;
    Add(key, "Con").events.Add(1, item);
  }
  file_.RemoveConversationLinks(9);
  for (const Conversation& con : file_.Conversations) {
    EXPECT_EQ(con.events.At(1).As<EventJump>()->conID, -1);
  }
}

TEST(SavedFile, GoesOnWithTheStoredKeyThoughTheHighestConversationIsGone) {
  TestWorkspace space;
  std::string bytes;
  {
    OpenFile open(space);
    ASSERT_TRUE(open.Load(SampleFile(28)));
    open.file.ConversationRemove(7);
    open.tree.keys.pop_back();
    bytes = open.Save();
  }
  ClearTables();
  OpenFile again(space);
  ASSERT_TRUE(again.Load(bytes));
  EXPECT_EQ(again.file.Conversations.Count(), 1U);
  EXPECT_EQ(again.file.NextKey(), 12);
}

TEST(SavedFile, HasNoNextKeyWhenTheKeysOf32BitsAreUsedUp) {
  for (const std::int32_t left : {1, 0}) {
    TestWorkspace space;
    OpenFile open(space);
    const std::int32_t stored = INT32_MAX - left;
    ASSERT_TRUE(open.Load(FileBytes(28).Start().Header({}).Tables({}).I32(stored).I32(0).Bytes()));
    if (left == 1) {
      EXPECT_EQ(open.file.NextKey(), 2147483646);
    }
    EXPECT_EQ(ErrorOf([&] { open.file.NextKey(); }), 6);
    EXPECT_EQ(open.file.CurrentKey(), 2147483647) << "and the file can still be saved as it is";
  }
}

TEST(SavedFile, ReportsItsOldVersionUntilItIsReopened) {
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(20)));
  const std::string bytes = open.Save();
  EXPECT_EQ(open.file.versionNum, 20);
  ClearTables();
  ASSERT_TRUE(open.Load(bytes));
  EXPECT_EQ(open.file.versionNum, 28);
}

TEST(SavedFile, HasAsManyMissionsAsItsCountSaysAfterARefusedList) {
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(28)));
  EXPECT_EQ(ErrorOf([&] { open.file.SaveMissions(FakeListBox()); }), 9);
  const std::string bytes = open.Save();
  ClearTables();
  EXPECT_TRUE(open.Load(bytes)) << "the count and the numbers behind it have to agree";
  EXPECT_EQ(open.file.GetMissionCount(), 0);
}

}  // namespace
}  // namespace parlate

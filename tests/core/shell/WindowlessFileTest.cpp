#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "general/RuntimeError.h"
#include "shell/WindowlessFile.h"
#include "support/ConversationScript.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

/// Keeps the messages.
class HeardFile final : public WindowlessFile {
 public:
  /// The text of the error that ended the reading, or nothing.
  std::string ReadBytes(const std::string& bytes) {
    MemorySource source(bytes);
    BinaryReader reader(source);
    try {
      loaded = Read(reader);
    } catch (const RuntimeError& error) {
      return error.what();
    }
    return {};
  }
  [[nodiscard]] std::vector<std::int32_t> Order() const {
    std::vector<std::int32_t> keys;
    WalkConversations([&keys](std::int32_t key) { keys.push_back(key); });
    return keys;
  }

  bool loaded = false;
  std::vector<std::string> heard;

 private:
  Answer Show(const MessageBox& box) override {
    heard.push_back(box.text);
    return Answer::Ok;
  }
};

std::string FileWithALostFlag() {
  return FileOf(HarbourTables(),
                {Con(0, "Zoo", kZoe), Con(1, "Arrival", kZoe),
                 Con(2, "Middle", kZoe, {}, {{8, "Gone", true, 0}}), Con(3, "Last", kZoe)});
}

TEST(WindowlessFile, KeepsTheConversationsInTheOrderOfTheTree) {
  HeardFile file;
  EXPECT_EQ(file.ReadBytes(HarbourFile()), "");
  EXPECT_TRUE(file.loaded);
  EXPECT_THAT(file.Order(), ElementsAre(1, 0, 2));
  EXPECT_EQ(file.tree.FindFlag(0, 2), nullptr) << "without nodes for flags";
}

TEST(WindowlessFile, AddsNodesForFlagsWhereTheyAreAskedFor) {
  HeardFile file;
  file.showsFlags = true;
  EXPECT_EQ(file.ReadBytes(HarbourFile()), "");
  ASSERT_NE(file.tree.FindFlag(0, 2), nullptr);
  EXPECT_NE(file.tree.FindFlag(0, 3), nullptr);
}

TEST(WindowlessFile, ReadsAFlagWithoutARowUnlessItIsShown) {
  HeardFile file;
  EXPECT_EQ(file.ReadBytes(FileWithALostFlag()), "");
  EXPECT_EQ(file.file.Conversations.Count(), 4U);
}

TEST(WindowlessFile, KeepsWhatStandsAheadOfTheDamageInOrder) {
  HeardFile file;
  file.showsFlags = true;
  EXPECT_THAT(file.ReadBytes(FileWithALostFlag()),
              testing::StartsWith("conversation 3 of 4 (Middle), flag 1, the table Flag has no row "
                                  "8 (offset "));
  EXPECT_FALSE(file.loaded);
  EXPECT_THAT(file.Order(), ElementsAre(1, 2, 0));
}

TEST(WindowlessFile, LeavesAMessageToItsHeir) {
  HeardFile file;
  EXPECT_EQ(file.ReadBytes("something else"), "");
  EXPECT_FALSE(file.loaded);
  EXPECT_THAT(file.heard, ElementsAre("This is not a valid Conversation File!!"));
}

TEST(WindowlessFile, FindsAConversationByKeyAndByOwnerAndName) {
  HeardFile file;
  file.ReadBytes(HarbourFile());
  EXPECT_EQ(file.GetConFromID(1)->conName, "Arrival");
  EXPECT_EQ(file.GetConFromID(9), nullptr);
  EXPECT_EQ(file.GetConIDFromName(1, "GREETING"), 0);
  EXPECT_EQ(file.GetConIDFromName(0, "greeting"), -1) << "of another owner";
}

TEST(WindowlessFile, StampsASaveByItsOwnWorkspace) {
  HeardFile file;
  file.ReadBytes(HarbourFile());
  file.workspace.defaults.Username = "carl";
  file.workspace.now = [] { return Date{40000.5}; };
  MemorySink sink;
  file.Write(sink);
  EXPECT_EQ(file.file.LastUpdatedBy, "carl");
  HeardFile again;
  EXPECT_EQ(again.ReadBytes(sink.Bytes()), "");
  EXPECT_EQ(again.file.LastUpdatedBy, "carl");
  EXPECT_EQ(again.file.LastUpdated, 40000.5);
}

}  // namespace
}  // namespace parlate

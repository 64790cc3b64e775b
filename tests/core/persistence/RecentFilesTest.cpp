#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "persistence/RecentFiles.h"

namespace parlate {
namespace {

using testing::ElementsAre;

class RecentFiles : public testing::Test {
 protected:
  RecentFiles() {
    for (const char* path : {"/d.con", "/c.con", "/b.con", "/a.con"}) Add(path);
  }
  void Add(const std::string& path) { AddRecentFile(defaults_, path); }
  [[nodiscard]] std::vector<std::string> Files() const {
    return {defaults_.LastFiles(0), defaults_.LastFiles(1), defaults_.LastFiles(2),
            defaults_.LastFiles(3)};
  }

  ConversationDefaults defaults_;
};

TEST_F(RecentFiles, StandNewestFirst) {
  EXPECT_THAT(Files(), ElementsAre("/a.con", "/b.con", "/c.con", "/d.con"));
}

TEST_F(RecentFiles, DropTheOldestForAFifth) {
  Add("/e.con");
  EXPECT_THAT(Files(), ElementsAre("/e.con", "/a.con", "/b.con", "/c.con"));
}

TEST_F(RecentFiles, BringAnOldOneToTheFrontAndCloseItsGap) {
  Add("/c.con");
  EXPECT_THAT(Files(), ElementsAre("/c.con", "/a.con", "/b.con", "/d.con"));
  Add("/d.con");
  EXPECT_THAT(Files(), ElementsAre("/d.con", "/c.con", "/a.con", "/b.con"));
  Add("/d.con");
  EXPECT_THAT(Files(), ElementsAre("/d.con", "/c.con", "/a.con", "/b.con"));
}

TEST_F(RecentFiles, CompareWithoutRegardToCaseAndTakeTheNewSpelling) {
  Add("/B.CON");
  EXPECT_THAT(Files(), ElementsAre("/B.CON", "/a.con", "/c.con", "/d.con"));
}

TEST_F(RecentFiles, FoldTheCaseOfAccentedLettersToo) {
  Add("/Caf\xC3\x89.con");
  Add("/caf\xC3\xA9.con");
  EXPECT_THAT(Files(), ElementsAre("/caf\xC3\xA9.con", "/a.con", "/b.con", "/c.con"));
}

TEST_F(RecentFiles, FoldTheCaseOfALetterBesideOneThatIsNotOfTheCodePage) {
  Add("/k/\xC4\x85\xC3\x89.con");
  Add("/k/\xC4\x85\xC3\xA9.con");
  EXPECT_THAT(Files(), ElementsAre("/k/\xC4\x85\xC3\xA9.con", "/a.con", "/b.con", "/c.con"));
}

TEST_F(RecentFiles, TellLettersApartThatAreNotOfTheCodePage) {
  Add("/k/\xE6\x97\xA5.con");
  Add("/k/\xE6\x9C\xAC.con");
  Add("/k/?.con");
  EXPECT_THAT(Files(),
              ElementsAre("/k/?.con", "/k/\xE6\x9C\xAC.con", "/k/\xE6\x97\xA5.con", "/a.con"));
}

TEST_F(RecentFiles, TellBytesApartThatAreNoUtf8) {
  Add("/k/\xFF.con");
  Add("/k/\xFE.con");
  EXPECT_THAT(Files(), ElementsAre("/k/\xFE.con", "/k/\xFF.con", "/a.con", "/b.con"));
  Add("/k/\xC3\xA9.con");
  Add("/k/\xE9.con");
  EXPECT_THAT(Files(), ElementsAre("/k/\xE9.con", "/k/\xC3\xA9.con", "/k/\xFE.con", "/k/\xFF.con"))
      << "a byte of the code page is not the letter that it stands for there";
}

TEST_F(RecentFiles, TellALetterApartFromTheSameInMoreBytesThanItTakes) {
  Add("/\xC1\x81.con");
  EXPECT_THAT(Files(), ElementsAre("/\xC1\x81.con", "/a.con", "/b.con", "/c.con"));
}

TEST_F(RecentFiles, IgnoreAnEmptyPath) {
  Add("");
  EXPECT_THAT(Files(), ElementsAre("/a.con", "/b.con", "/c.con", "/d.con"));
}

TEST_F(RecentFiles, CloseAGapThatWasLeftInTheMiddle) {
  defaults_.SetLastFiles(1, "");
  Add("/e.con");
  EXPECT_THAT(Files(), ElementsAre("/e.con", "/a.con", "", "/c.con"));
}

}  // namespace
}  // namespace parlate

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "shell/CommandLine.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CommandLine, IsOnePathTakenWhole) {
  EXPECT_EQ(PathOfCommandLine("/cons/a b.con"), "/cons/a b.con");
  EXPECT_EQ(PathOfCommandLine(" /cons/a.con "), " /cons/a.con ");
  EXPECT_EQ(PathOfCommandLine("-h"), "-h") << "there are no switches";
  EXPECT_EQ(PathOfCommandLine(""), "");
}

TEST(CommandLine, LosesTheQuotesRoundAPath) {
  EXPECT_EQ(PathOfCommandLine("\"/cons/a b.con\""), "/cons/a b.con");
  EXPECT_EQ(PathOfCommandLine("\"\""), "");
  EXPECT_EQ(PathOfCommandLine("\""), "");
}

TEST(CommandLine, LosesItsLastCharacterBehindAQuoteWhateverItIs) {
  EXPECT_EQ(PathOfCommandLine("\"/cons/a.con"), "/cons/a.co");
}

TEST(CommandLine, KeepsAQuoteThatDoesNotStandFirst) {
  EXPECT_EQ(PathOfCommandLine("a\"b\""), "a\"b\"");
}

TEST(CommandLine, PutsAPathBehindTheWorkingFolderAndLeavesAnEmptyOneEmpty) {
  const std::string here = std::filesystem::current_path().string() + "/";
  EXPECT_EQ(AbsolutePath(""), "");
  EXPECT_EQ(AbsolutePath("a b.con"), here + "a b.con");
  EXPECT_EQ(AbsolutePath("./a.con"), here + "a.con");
  EXPECT_EQ(AbsolutePath("link/../x.con"), here + "link/../x.con");
}

TEST(CommandLine, LeavesAnAbsolutePathAsItIs) {
  EXPECT_EQ(AbsolutePath("/cons/a.con"), "/cons/a.con");
  EXPECT_EQ(AbsolutePath("/cons/../b/./a.con"), "/cons/../b/./a.con");
}

TEST(CommandLine, NamesTheFileThatTheSystemMeansBehindALink) {
  const testing_support::TemporaryFolder folder;
  std::filesystem::create_directories(folder.File("far/deep"));
  std::filesystem::create_directory_symlink("far/deep", folder.File("link"));
  testing_support::WriteBytes(folder.File("far/x.con"), "meant");
  testing_support::WriteBytes(folder.File("x.con"), "another");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  const std::string path = AbsolutePath("link/../x.con");
  std::filesystem::current_path(before);
  EXPECT_EQ(testing_support::ReadBytes(path), "meant");
}

TEST(CommandLine, SplitsAtBlanksAndTabs) {
  EXPECT_THAT(GetCommandLine("one  two\tthree "), ElementsAre("one", "two", "three"));
  EXPECT_THAT(GetCommandLine(" \t "), IsEmpty());
  EXPECT_THAT(GetCommandLine(""), IsEmpty());
}

TEST(CommandLine, SplitsIntoNoMoreThanWasAskedFor) {
  EXPECT_THAT(GetCommandLine("a b c", 2), ElementsAre("a", "b"));
  EXPECT_THAT(GetCommandLine("a b c", 0), IsEmpty());
  EXPECT_EQ(GetCommandLine("1 2 3 4 5 6 7 8 9 10 11 12").size(), 10U);
}

}  // namespace
}  // namespace parlate

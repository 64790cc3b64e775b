#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include "CliRun.h"
#include "cli/OutputFile.h"
#include "general/Date.h"
#include "general/Paths.h"
#include "general/RuntimeError.h"
#include "support/SampleFile.h"
#include "support/TemporaryFolder.h"

namespace parlate::cli {
namespace {

using testing::IsEmpty;
using testing::StartsWith;
using testing_support::ConversationFields;
using testing_support::FileBytes;
using testing_support::ReadBytes;
using testing_support::SampleFile;
using testing_support::SampleFileSaved;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

class Convert : public testing::Test {
 protected:
  Ran RunOn(const std::string& bytes, const std::vector<std::string>& options = {}) {
    WriteBytes(in_, bytes);
    std::vector<std::string> arguments = {"convert", in_, out_};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunTool(arguments);
  }
  /// How many files there are in the folder, half-written ones counted.
  [[nodiscard]] std::size_t FileCount() const {
    using Walk = std::filesystem::directory_iterator;
    return static_cast<std::size_t>(std::distance(Walk(folder_.Path()), Walk()));
  }

  TemporaryFolder folder_;
  std::string in_ = folder_.File("in.con");
  std::string out_ = folder_.File("out.con");
};

TEST_F(Convert, WritesVersion28OfEveryVersion) {
  for (int version = 14; version <= 28; ++version) {
    const Ran ran = RunOn(SampleFile(version), {"--user", "carl", "--now", "46000.25"});
    EXPECT_EQ(ran.code, 0) << version << ran.err;
    EXPECT_THAT(ran.out + ran.err, IsEmpty());
    EXPECT_EQ(ReadBytes(out_), SampleFileSaved(version, 46000.25, "carl")) << version;
  }
  EXPECT_EQ(FileCount(), 2U) << "nothing else is left in the folder";
}

TEST_F(Convert, SignsWithTheUserOfTheSystemAndThePresentMoment) {
  const char* user = std::getenv("USER");
  const std::string before = user == nullptr ? "" : user;
  ::setenv("USER", "Ren\xC3\xA9", 1);
  ASSERT_EQ(RunOn(SampleFile(28)).code, 0);
  ::setenv("USER", before.c_str(), 1);
  const std::string bytes = ReadBytes(out_);
  // Creation date, a name of four letters, and then the moment of the save.
  double saved = 0;
  bytes.copy(reinterpret_cast<char*>(&saved), 8, 30 + 8 + 8);
  EXPECT_NEAR(saved, SystemNow(), 1.0);
  EXPECT_EQ(bytes.substr(54, 8), FileBytes(28).Str("Ren\xE9").Bytes());
}

TEST_F(Convert, TakesTheNameAsUtf8) {
  ASSERT_EQ(RunOn(SampleFile(28), {"--user", "Ren\xC3\xA9", "--now", "45000.5"}).code, 0);
  EXPECT_EQ(ReadBytes(out_), SampleFileSaved(28, 45000.5, "Ren\xE9"));
}

TEST_F(Convert, PutsTheConversationsInTheOrderOfTheTree) {
  // Owners in the order of their first conversation, and under each the conversations by name.
  testing_support::TableFields tables;
  tables.actors = {{0, "Alex"}, {1, "Bob"}};
  const auto compose = [&](const std::vector<std::pair<std::int32_t, std::string>>& cons) {
    testing_support::HeaderFields header;
    header.lastUpdated = 1;
    header.lastUpdatedBy = "carl";
    FileBytes file(28);
    file.Start().Header(header).Tables(tables).I32(9).I32(static_cast<std::int32_t>(cons.size()));
    for (const auto& [owner, name] : cons) {
      ConversationFields con;
      con.key = static_cast<unsigned char>(name[0]);
      con.conName = name;
      con.owner = {owner, owner == 0 ? "Alex" : "Bob"};
      file.Conversation(con).I32(0);
    }
    return file.Bytes();
  };
  const std::string mixed = compose({{1, "beta"}, {0, "Zoo"}, {1, "Alpha"}, {0, "yard"}});
  ASSERT_EQ(RunOn(mixed, {"--user", "carl", "--now", "1"}).code, 0);
  EXPECT_EQ(ReadBytes(out_), compose({{1, "Alpha"}, {1, "beta"}, {0, "yard"}, {0, "Zoo"}}));
}

TEST_F(Convert, CanReplaceItsOwnInput) {
  WriteBytes(in_, SampleFile(20) + std::string(5000, 'x'));
  EXPECT_EQ(RunTool({"convert", in_, in_, "--user", "tester", "--now", "45000.5"}).code, 0);
  EXPECT_EQ(ReadBytes(in_), SampleFileSaved(20)) << "and leaves no bytes of the old one behind";
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Convert, LeavesNothingBehindWhenTheInputIsDamaged) {
  const std::string whole = SampleFile(28);
  EXPECT_EQ(RunOn(whole.substr(0, whole.size() - 1)).code, 2);
  EXPECT_FALSE(FileExists(out_));
  WriteBytes(out_, "precious");
  EXPECT_EQ(RunOn(whole.substr(0, 100)).code, 2);
  EXPECT_EQ(ReadBytes(out_), "precious");
  EXPECT_EQ(FileCount(), 2U);
}

TEST_F(Convert, LeavesNothingBehindWhenTheSaveStumbles) {
  testing_support::TableFields tables;
  tables.actors = {{0, "Alex"}};
  const std::string payload = FileBytes(28).I32(8).Str("gone").Str("").Bytes();
  WriteBytes(out_, "precious");
  const Ran ran = RunOn(testing_support::OneEventFile(28, tables, 4, payload).Bytes());
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err,
            "parlate-cli: conversation \"Con\" (key 0), event 1, the table Object has no row 8\n");
  EXPECT_EQ(ReadBytes(out_), "precious");
  EXPECT_EQ(FileCount(), 2U);
}

TEST_F(Convert, FailsForAFolderThatIsNotThere) {
  out_ = folder_.File("none/out.con");
  const Ran ran = RunOn(SampleFile(28));
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err, "parlate-cli: " + out_ + ": Path not found\n");
}

TEST_F(Convert, FailsForAFolderThatCannotBeWritten) {
  // Nobody, not even the administrator, can make a file in the root of this file system.
  const std::string closed = ::geteuid() == 0 ? "/sys/" : folder_.File("closed/");
  ::mkdir(folder_.File("closed").c_str(), 0555);
  out_ = closed + "out.con";
  const Ran ran = RunOn(SampleFile(28));
  EXPECT_EQ(ran.code, 2);
  EXPECT_THAT(ran.err, StartsWith("parlate-cli: " + out_ + ": "));
  EXPECT_FALSE(FileExists(out_));
  EXPECT_TRUE(std::filesystem::is_empty(folder_.File("closed")));
}

TEST_F(Convert, FailsForAFolderInPlaceOfTheOutput) {
  out_ = folder_.Path();
  EXPECT_EQ(RunOn(SampleFile(28)).code, 2);
  out_ = folder_.File("in.con/out.con");
  EXPECT_EQ(RunOn(SampleFile(28)).code, 2);
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Convert, GivesANewFileTheUsualMode) {
  const mode_t before = ::umask(0027);
  const Ran ran = RunOn(SampleFile(28));
  ::umask(before);
  ASSERT_EQ(ran.code, 0);
  struct stat status {};
  ASSERT_EQ(::stat(out_.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0640U);
}

TEST_F(Convert, OutputAppearsOnlyWhenItIsWhole) {
  {
    OutputFile output(out_);
    output.Write("half", 4);
    EXPECT_FALSE(FileExists(out_));
    EXPECT_EQ(FileCount(), 1U) << "it grows under another name";
  }
  EXPECT_EQ(FileCount(), 0U);
  {
    OutputFile output(out_);
    output.Write("whole", 5);
    output.Commit();
  }
  EXPECT_EQ(ReadBytes(out_), "whole");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Convert, WritesIntoAPipeAndLeavesItThere) {
  ASSERT_EQ(::mkfifo(out_.c_str(), 0600), 0);
  std::string received;
  std::thread reader([&] { received = ReadBytes(out_); });
  const Ran ran = RunOn(SampleFile(28), {"--user", "carl", "--now", "46000.25"});
  reader.join();
  EXPECT_EQ(ran.code, 0) << ran.err;
  EXPECT_EQ(received, SampleFileSaved(28, 46000.25, "carl"));
  EXPECT_TRUE(std::filesystem::is_fifo(out_));
}

TEST_F(Convert, WritesTheFileThatALinkStandsForAndKeepsTheLink) {
  const std::string target = folder_.File("target.con");
  WriteBytes(target, "old");
  std::filesystem::create_symlink(target, out_);
  const Ran ran = RunOn(SampleFile(28), {"--user", "carl", "--now", "46000.25"});
  EXPECT_EQ(ran.code, 0) << ran.err;
  EXPECT_TRUE(std::filesystem::is_symlink(out_));
  EXPECT_EQ(ReadBytes(target), SampleFileSaved(28, 46000.25, "carl"));
}

}  // namespace
}  // namespace parlate::cli

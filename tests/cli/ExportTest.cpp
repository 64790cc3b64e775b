#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "CliRun.h"
#include "general/Paths.h"
#include "support/ConversationScript.h"
#include "support/TemporaryFolder.h"

namespace parlate::cli {
namespace {

using namespace testing_support;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Export : public testing::Test {
 protected:
  Ran RunOn(const std::string& bytes, const std::vector<std::string>& options = {}) {
    WriteBytes(in_, bytes);
    std::vector<std::string> arguments = {"export", in_, out_};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunTool(arguments);
  }
  [[nodiscard]] std::size_t FileCount() const {
    using Walk = std::filesystem::directory_iterator;
    return static_cast<std::size_t>(std::distance(Walk(folder_.Path()), Walk()));
  }

  TemporaryFolder folder_;
  std::string in_ = folder_.File("in.con");
  std::string out_ = folder_.File("out.txt");
};

const std::string kDashes = std::string(65, '-') + "\r\n";

TEST_F(Export, WritesTheDialogWithCommentsUnlessToldOtherwise) {
  const std::string dialog = kDashes + "[Owner: Zoe]\r\n[Name:  Arrival]\r\n\r\n" + kDashes +
                             "[Owner: Zoe]\r\n[Name:  greeting]\r\n\r\n"
                             "[SPEECH: Zoe]\r\nHello\r\n\r\n"
                             "[COMMENT]\r\nA comment\r\n\r\n"
                             "[SPEECH: Alex]\r\nHi\r\n\r\n" +
                             kDashes + "[Owner: Alex]\r\n[Name:  Leaving]\r\n\r\n";
  const Ran ran = RunOn(HarbourFile());
  EXPECT_EQ(ran.code, 0);
  EXPECT_THAT(ran.out + ran.err, IsEmpty());
  EXPECT_EQ(ReadBytes(out_), dialog);
  EXPECT_EQ(RunOn(HarbourFile(), {"--mode", "dialog"}).code, 0);
  EXPECT_EQ(ReadBytes(out_), dialog);
  EXPECT_EQ(RunOn(HarbourFile(), {"--no-comments"}).code, 0);
  EXPECT_THAT(ReadBytes(out_), Not(HasSubstr("[COMMENT]")));
}

TEST_F(Export, WritesOneLineForEachSpokenLine) {
  EXPECT_EQ(RunOn(HarbourFile(), {"--mode", "filenames"}).code, 0);
  EXPECT_EQ(ReadBytes(out_),
            "Zoe^Audio07^greeting^Hello^Audio07\\Zoe\\greeting\\Zoe01.mp3\r\n"
            "Alex^Audio07^greeting^Hi^Audio07\\Zoe\\greeting\\Alex01.mp3\r\n");
}

TEST_F(Export, RefusesAModeThatThereIsNot) {
  const Ran ran = RunOn(HarbourFile(), {"--mode", "audio"});
  EXPECT_EQ(ran.code, 2);
  EXPECT_THAT(ran.err, StartsWith("parlate-cli: --mode: audio not in {"));
  EXPECT_FALSE(FileExists(out_));
}

TEST_F(Export, WritesNothingWhenASpeakerHasNoRow) {
  const Ran ran =
      RunOn(FileOf(HarbourTables(), {Con(0, "greeting", kZoe, {Speech(1, "", {}, "Who?", "")})}));
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err,
            "parlate-cli: conversation \"greeting\" (key 0), event 1, the table Actors/Pawn has no "
            "row -1\n");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Export, WritesNothingWhenTheDiskIsFull) {
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  auto* handler = std::signal(SIGXFSZ, SIG_IGN);
  WriteBytes(in_, HarbourFile());
  const rlimit small = {100, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  const Ran ran = RunTool({"export", in_, out_});
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err, "parlate-cli: " + out_ + ": Disk full\n");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Export, FailsForAFolderThatIsNotThere) {
  out_ = folder_.File("none/out.txt");
  EXPECT_EQ(RunOn(HarbourFile()).code, 2);
}

}  // namespace
}  // namespace parlate::cli

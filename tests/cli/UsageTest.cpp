// How the tool answers a command line that asks for help or cannot be understood.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "CliRun.h"
#include "support/SampleFile.h"
#include "support/TemporaryFolder.h"
#include "support/UnopenableFile.h"

namespace parlate::cli {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::StartsWith;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

void ExpectOneErrorLine(const Ran& ran) {
  EXPECT_THAT(ran.err, StartsWith("parlate-cli: "));
  EXPECT_EQ(std::count(ran.err.begin(), ran.err.end(), '\n'), 1) << ran.err;
  EXPECT_EQ(ran.err.back(), '\n');
  EXPECT_THAT(ran.out, IsEmpty());
}

struct Helped {
  std::string command;
  std::vector<std::string> words;
};

class Help : public testing::TestWithParam<Helped> {};

TEST_P(Help, NamesWhatTheCommandTakes) {
  std::vector<std::string> arguments = {"--help"};
  if (!GetParam().command.empty()) arguments.insert(arguments.begin(), GetParam().command);
  const Ran ran = RunTool(arguments);
  EXPECT_EQ(ran.code, 0);
  EXPECT_THAT(ran.err, IsEmpty());
  for (const std::string& word : GetParam().words) EXPECT_THAT(ran.out, HasSubstr(word));
}

INSTANTIATE_TEST_SUITE_P(
    OfEachCommand, Help,
    testing::Values(Helped{"",
                           {"dump", "list", "check", "convert", "export", "import", "audio",
                            "stats", "paste", "print", "--version"}},
                    Helped{"dump", {"FILE", "JSON", "Infinity and NaN are written as null"}},
                    Helped{"print",
                           {"IN", "OUT.pdf", "--listing", "--con", "--no-header", "--speech-only",
                            "--audio-names", "--no-blank-lines", "--no-footers", "--page-breaks",
                            "--font-size"}},
                    Helped{"list",
                           {"FILE", "--json", "--no-expand", "--no-audio-files", "--no-highlight"}},
                    Helped{"check", {"FILE", "--json"}},
                    Helped{"convert", {"IN", "OUT", "--user", "--now"}},
                    Helped{"export", {"IN", "OUT", "--mode", "filenames", "--no-comments"}},
                    Helped{"import", {"IN", "TEXT", "OUT", "--user", "--now", "REASON"}},
                    Helped{"audio", {"IN", "OUT", "--user", "--now", "replaced"}},
                    Helped{"stats", {"FILE", "--json"}},
                    Helped{"paste", {"FROM", "KEY", "INTO", "OUT", "--user", "--now"}}),
    [](const auto& tested) {
      return tested.param.command.empty() ? std::string("tool") : tested.param.command;
    });

TEST(Version, IsANumber) {
  const Ran ran = RunTool({"--version"});
  EXPECT_EQ(ran.code, 0);
  EXPECT_THAT(ran.out, MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(Usage, ErrorsAreOneLineAndTwo) {
  const std::vector<std::vector<std::string>> wrong = {{},
                                                       {"frobnicate"},
                                                       {"dump"},
                                                       {"dump", "a", "b"},
                                                       {"dump", "--json", "a"},
                                                       {"list", "--unknown", "a"},
                                                       {"check"},
                                                       {"convert", "a"},
                                                       {"convert", "a", "b", "--now"},
                                                       {"convert", "a", "b", "--now", "soon"},
                                                       {"export", "a"},
                                                       {"import", "a", "b"},
                                                       {"audio", "a"},
                                                       {"stats"},
                                                       {"paste", "a", "0", "b"},
                                                       {"--unknown"}};
  for (const auto& arguments : wrong) {
    const Ran ran = RunTool(arguments);
    EXPECT_EQ(ran.code, 2) << testing::PrintToString(arguments);
    ExpectOneErrorLine(ran);
  }
}

TEST(Usage, NamesTheWordThatIsNoCommand) {
  EXPECT_EQ(RunTool({"chek", "x"}).err, "parlate-cli: no such command: chek\n");
  EXPECT_EQ(RunTool({"chek", "--json", "x"}).err, "parlate-cli: no such command: chek\n");
  EXPECT_EQ(RunTool({"--chek"}).err, "parlate-cli: no such option: --chek\n");
}

TEST(Usage, SaysOfACommandWhatItLacksOrDoesNotKnow) {
  EXPECT_THAT(RunTool({}).err, HasSubstr("subcommand is required"));
  EXPECT_THAT(RunTool({"check"}).err, HasSubstr("FILE is required"));
  EXPECT_THAT(RunTool({"check", "--unknown", "a"}).err, HasSubstr("--unknown"));
  EXPECT_THAT(RunTool({"dump", "a", "extra"}).err, HasSubstr("extra"));
}

TEST(Usage, NamesAFileThatCannotBeOpenedOnce) {
  const TemporaryFolder folder;
  const std::string none = folder.File("none.con");
  const std::string out = folder.File("out");
  const std::string line = "parlate-cli: " + none + ", File not found\n";
  EXPECT_EQ(RunTool({"import", none, none, out}).err, line);
  EXPECT_EQ(RunTool({"paste", none, "0", none, out}).err, line);
  const std::string good = folder.File("in.con");
  WriteBytes(good, testing_support::SampleFile(28));
  EXPECT_EQ(RunTool({"import", good, none, out}).err, line);
  EXPECT_EQ(RunTool({"paste", good, "0", none, out}).err, line);
  EXPECT_EQ(RunTool({"paste", folder.Path(), "0", good, out}).err,
            "parlate-cli: " + folder.Path() + ", Path/File access error\n");
}

class EachCommand : public testing::TestWithParam<std::string> {
 protected:
  Ran RunOn(const std::string& path) {
    std::vector<std::string> arguments = {GetParam(), path};
    for (const char* writes : {"convert", "export", "audio"}) {
      if (GetParam() == writes) arguments.push_back(folder_.File("out.con"));
    }
    return RunTool(arguments);
  }
  Ran RunOnBytes(const std::string& bytes) {
    WriteBytes(folder_.File("in.con"), bytes);
    return RunOn(folder_.File("in.con"));
  }

  TemporaryFolder folder_;
};

TEST_P(EachCommand, FailsForAFileThatIsNotThere) {
  const Ran ran = RunOn(folder_.File("none.con"));
  EXPECT_EQ(ran.code, 2);
  ExpectOneErrorLine(ran);
  EXPECT_EQ(ran.err, "parlate-cli: " + folder_.File("none.con") + ", File not found\n");
}

TEST_P(EachCommand, FailsForAFolder) {
  const Ran ran = RunOn(folder_.Path());
  EXPECT_EQ(ran.code, 2);
  ExpectOneErrorLine(ran);
  EXPECT_EQ(ran.err, "parlate-cli: " + folder_.Path() + ", Path/File access error\n");
}

TEST_P(EachCommand, FailsForAFileThatIsThereAndCannotBeOpened) {
  const std::string path = folder_.File("in.con");
  const testing_support::UnopenableFile file(path);
  ASSERT_TRUE(file.Bound());
  const Ran ran = RunOn(path);
  EXPECT_EQ(ran.code, 2);
  ExpectOneErrorLine(ran);
  EXPECT_EQ(ran.err, "parlate-cli: " + path + ", Device I/O error\n");
}

TEST_P(EachCommand, RefusesWhatIsNoConversationFile) {
  for (const char* bytes : {"", "Orrivex", "something else that is long enough"}) {
    const Ran ran = RunOnBytes(bytes);
    EXPECT_EQ(ran.code, 3);
    ExpectOneErrorLine(ran);
    EXPECT_THAT(ran.err, HasSubstr("This is not a valid Conversation File!!"));
  }
}

TEST_P(EachCommand, RefusesAFileThatIsTooOldOrTooNew) {
  const std::string sample = testing_support::SampleFile(28);
  const Ran old = RunOnBytes(testing_support::WithI32At(sample, 26, 13));
  EXPECT_EQ(old.code, 3);
  ExpectOneErrorLine(old);
  EXPECT_THAT(old.err, AllOf(HasSubstr("is version 13."), HasSubstr("The last supported version "
                                                                    "is 14.")));
  const Ran young = RunOnBytes(testing_support::WithI32At(sample, 26, 29));
  EXPECT_EQ(young.code, 3);
  ExpectOneErrorLine(young);
  EXPECT_THAT(young.err, HasSubstr("created with a newer version of Parlate."));
}

TEST_P(EachCommand, TellsTheRecordAndTheByteOfADamage) {
  // Twelve conversations; the third has five events, and the fifth is a comment that is too long.
  testing_support::TableFields tables;
  tables.actors = {{0, "Alex"}};
  testing_support::FileBytes file(28);
  file.Start().Header({}).Tables(tables).I32(12).I32(12);
  for (std::int32_t key = 0; key < 3; ++key) {
    testing_support::ConversationFields con;
    con.key = key;
    con.owner = {0, "Alex"};
    file.Conversation(con).I32(key < 2 ? 0 : 5);
  }
  for (std::int32_t key = 1; key <= 4; ++key) file.Event(0, key, 18, "");
  file.Event(0, 5, 17, "");
  const std::string place = std::to_string(file.Size());
  file.I32(70000).Raw("far too short");
  const Ran ran = RunOnBytes(file.Bytes());
  EXPECT_EQ(ran.code, 2);
  ExpectOneErrorLine(ran);
  EXPECT_EQ(ran.err,
            "parlate-cli: " + folder_.File("in.con") +
                ", conversation 3 of 12, event 5, string of 70000 bytes runs past the end of the "
                "file (offset " +
                place + ")\n");
}

TEST_P(EachCommand, FailsForADamagedFileAtEveryLength) {
  const std::string whole = testing_support::SampleFile(28);
  for (std::size_t length = 25; length < whole.size(); length += 7) {
    const Ran ran = RunOnBytes(whole.substr(0, length));
    ASSERT_EQ(ran.code, 2) << length;
    ASSERT_THAT(ran.err, HasSubstr("(offset "));
    ASSERT_THAT(ran.out, IsEmpty()) << "nothing is written of a damaged file";
  }
}

TEST_P(EachCommand, FailsForAConversationWhoseOwnerHasNoRow) {
  testing_support::FileBytes file(28);
  file.Start().Header({}).Tables({}).I32(1).I32(1).Conversation({}).I32(0);
  const Ran ran = RunOnBytes(file.Bytes());
  EXPECT_EQ(ran.code, 2);
  ExpectOneErrorLine(ran);
  EXPECT_THAT(ran.err, HasSubstr("conversation 1 of 1 (Con), the table Actors/Pawn has no row -1"));
}

INSTANTIATE_TEST_SUITE_P(OfTheTool, EachCommand,
                         testing::Values("dump", "list", "check", "convert", "export", "audio",
                                         "stats"),
                         [](const auto& tested) { return tested.param; });

/// A stream that takes nothing, as a closed pipe or a full disk.
class ClosedBuffer final : public std::streambuf {};

TEST(Output, ThatCannotBeWrittenIsAFailure) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("in.con"), testing_support::SampleFile(28));
  for (const char* command : {"dump", "list", "check", "stats"}) {
    ClosedBuffer closed;
    std::ostream out(&closed);
    std::ostringstream err;
    EXPECT_EQ(parlate::cli::Run({command, folder.File("in.con")}, {out, err}), 2) << command;
    EXPECT_EQ(err.str(), "parlate-cli: the output cannot be written\n");
  }
}

}  // namespace
}  // namespace parlate::cli

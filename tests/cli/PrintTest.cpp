#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "CliRun.h"
#include "support/ConversationScript.h"
#include "support/RecordingSurface.h"
#include "support/TemporaryFolder.h"

namespace parlate::cli {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using namespace testing_support;

class Print : public testing::Test {
 protected:
  Print() { WriteBytes(in_, HarbourFile()); }
  /// Prints onto the recorder, which leaves the file itself empty.
  Ran RunWith(const std::vector<std::string>& options) {
    std::vector<std::string> arguments = {"print", in_, out_};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunTool(arguments, [this](const std::shared_ptr<ByteSink>&) {
      return printers_.ShowPrinterDialog();
    });
  }
  std::vector<std::string> Texts(const std::vector<std::string>& options) {
    printers_.calls.clear();
    const Ran ran = RunWith(options);
    EXPECT_EQ(ran.code, 0) << ran.err;
    return printers_.Texts();
  }

  TemporaryFolder folder_;
  std::string in_ = folder_.File("harbour.con");
  std::string out_ = folder_.File("harbour.pdf");
  RecordingPrinters printers_;
};

TEST_F(Print, PutsEveryConversationWithEventsOnPaper) {
  EXPECT_THAT(Texts({}),
              testing::IsSupersetOf({"Conversation: Zoe - greeting", "Conversation Flags", "Hello",
                                     "Conversation: Alex - Leaving"}));
  EXPECT_EQ(printers_.calls.back(), "end");
  EXPECT_TRUE(std::filesystem::exists(out_));
}

TEST_F(Print, ListsNamesAlone) {
  EXPECT_THAT(Texts({"--listing"}), ElementsAre("Conversation Listing", "harbour.con", "Zoe",
                                                "Arrival", "greeting", "Alex", "Leaving"));
}

TEST_F(Print, PrintsOneConversationByItsName) {
  EXPECT_THAT(Texts({"--con", "Leaving"}), Not(Contains("Hello")));
  EXPECT_THAT(printers_.Texts(), Contains("Conversation: Alex - Leaving"));
}

TEST_F(Print, FailsForANameThatNoConversationHas) {
  const Ran ran = RunWith({"--con", "leaving"});
  EXPECT_EQ(ran.code, 2);
  EXPECT_THAT(ran.err, HasSubstr("no conversation of the name leaving"));
  EXPECT_FALSE(std::filesystem::exists(out_));
}

TEST_F(Print, LeavesOutWhatIsAskedToBe) {
  EXPECT_THAT(Texts({"--no-header"}), Not(Contains("Conversation Flags")));
  EXPECT_THAT(Texts({"--speech-only"}), Not(Contains("Jump")));
  EXPECT_THAT(Texts({"--page-breaks"}), Contains("Page 1"));
  EXPECT_THAT(Texts({"--page-breaks", "--no-footers"}), Not(Contains("Page 1")));
}

TEST_F(Print, NamesTheAudioFilesAsTheEditorWouldGiveThemOut) {
  EXPECT_THAT(Texts({"--audio-names"}), Contains(testing::EndsWith("Zoe01.mp3]")));
  EXPECT_EQ(ReadBytes(in_), HarbourFile()) << "the file itself is not touched";
}

TEST_F(Print, TakesTheSizeOfTheText) {
  Texts({"--font-size", "24"});
  EXPECT_THAT(printers_.calls, Contains(HasSubstr("Courier New 24: Hello")));
  for (const char* size : {"4", "25", "x"}) {
    EXPECT_EQ(RunWith({"--font-size", size}).code, 2) << size;
  }
}

TEST_F(Print, LeavesBlankLinesBetweenEventsUnlessToldNotTo) {
  Texts({"--no-header"});
  EXPECT_THAT(printers_.calls, Contains("750,2210 Arial 10: Comment"));
  printers_.calls.clear();
  RunWith({"--no-header", "--no-blank-lines"});
  EXPECT_THAT(printers_.calls, Contains("750,2010 Arial 10: Comment"));
}

TEST_F(Print, SaysSoInABuildWithoutTheToolkit) {
  const Ran ran = RunTool({"print", in_, out_});
  EXPECT_EQ(ran.code, 2);
  EXPECT_THAT(ran.err, HasSubstr("printing needs the program parlate-print"));
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(out_));
}

TEST_F(Print, SaysWhereItCannotWrite) {
  out_ = folder_.File("nowhere/harbour.pdf");
  const Ran ran = RunWith({});
  EXPECT_EQ(ran.code, 2);
  EXPECT_THAT(ran.err, HasSubstr("nowhere/harbour.pdf: Path not found"));
  EXPECT_THAT(printers_.calls, IsEmpty());
}

TEST_F(Print, NamesTheConversationThatCannotBeTold) {
  WriteBytes(in_, FileOf(HarbourTables(), {Con(6, "c", kZoe, {CheckObject(1, 99, "gone")})}));
  const Ran ran = RunWith({});
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err, "parlate-cli: conversation \"c\" (key 6), the table Object has no row 99\n");
  EXPECT_FALSE(std::filesystem::exists(out_));
}

TEST_F(Print, LeavesNothingBehindWhenThePrinterFails) {
  printers_.callsUntilFailure = 5;
  const Ran ran = RunWith({});
  EXPECT_EQ(ran.code, 2);
  EXPECT_FALSE(std::filesystem::exists(out_));
}

}  // namespace
}  // namespace parlate::cli

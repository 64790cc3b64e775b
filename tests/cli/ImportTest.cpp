#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "CliRun.h"
#include "general/Paths.h"
#include "support/ConversationScript.h"
#include "support/TemporaryFolder.h"

namespace parlate::cli {
namespace {

using namespace testing_support;
using testing::IsEmpty;

class Import : public testing::Test {
 protected:
  Ran RunOn(const std::string& text) {
    WriteBytes(in_, HarbourFile());
    WriteBytes(text_, text);
    return RunTool({"import", in_, text_, out_, "--user", "carl", "--now", "46000.25"});
  }
  /// The file as JSON.
  [[nodiscard]] nlohmann::json Saved() const {
    return nlohmann::json::parse(RunTool({"dump", out_}).out);
  }
  [[nodiscard]] std::string SpeechAt(std::size_t con, std::size_t event) const {
    return Saved()["Conversations"][con]["events"][event]["eventObject"]["speech"];
  }

  TemporaryFolder folder_;
  std::string in_ = folder_.File("in.con");
  std::string text_ = folder_.File("text.txt");
  std::string out_ = folder_.File("out.con");
};

TEST_F(Import, BringsTheTextsBackAndStampsTheFile) {
  const Ran ran =
      RunOn("[Owner: Zoe]\r\n[Name:  greeting]\r\n\r\n[SPEECH: Zoe]\r\nGood day, Ren\xE9\r\n");
  EXPECT_EQ(ran.code, 0);
  EXPECT_THAT(ran.out + ran.err, IsEmpty());
  EXPECT_EQ(SpeechAt(1, 0), "Good day, Ren\xC3\xA9") << "the conversations stand as in the tree";
  EXPECT_EQ(SpeechAt(1, 2), "Hi");
  EXPECT_EQ(Saved()["LastUpdated"], 46000.25);
  EXPECT_EQ(Saved()["LastUpdatedBy"], "carl");
  EXPECT_EQ(Saved()["Conversations"][1]["LastUpdatedBy"], "ben");
}

TEST_F(Import, TellsLineByLineWhatItCouldNotMatch) {
  const Ran ran = RunOn(
      "[Owner: Nobody]\r\n[Name:  Gone]\r\n\r\n[SPEECH: X]\r\nlost\r\n-----------\r\n"
      "[Owner: Zoe]\r\n[Name:  greeting]\r\n\r\n[NOTE:]\r\nno note here\r\n\r\n"
      "[WHISPER: Zo\xEB]\r\npsst\r\n\r\nnot\ta field\r\n");
  EXPECT_EQ(ran.code, 0);
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_EQ(ran.err,
            text_ + ":1: [Owner:Nobody]: the file has no conversation \"Gone\" of \"Nobody\"\n" +
                text_ +
                ":10: [NOTE:]: no event of the type Add Note is left in the conversation\n" +
                text_ + ":13: [WHISPER:Zo\xC3\xAB]: no field that is imported here\n" + text_ +
                ":16: not a field: not a field; the rest of the conversation is passed over\n");
}

TEST_F(Import, TellsOfATextUnderNoConversationAndOfAFieldWithoutAText) {
  const Ran ran = RunOn(
      "[SPEECH: Zoe]\r\nlost\r\n[Owner: Zoe]\r\n[Name:  greeting]\r\n[SPEECH: Zoe]\r\n\r\n"
      "[COMMENT]\r\n[SPEECH: Zoe ----------]\r\n[Owner: Zoe]\r\n[Name:  greeting]\r\n"
      "[SPEECH: Zoe]\r\n");
  EXPECT_EQ(ran.code, 0);
  EXPECT_EQ(ran.err, text_ + ":1: [SPEECH: Zoe]: stands under no conversation\n" + text_ +
                         ":5: [SPEECH:Zoe]: takes the next field for its text\n" + text_ +
                         ":8: [SPEECH: Zoe ----------]: ten dashes end the conversation\n" + text_ +
                         ":11: [SPEECH:Zoe]: has no text line\n");
}

TEST_F(Import, ShowsOnlyTheBeginningOfALongLine) {
  const Ran ran = RunOn("[Owner: Zoe]\r\n[Name:  greeting]\r\n" + std::string(5000, 'x') + "\r\n");
  EXPECT_EQ(ran.err, text_ + ":3: " + std::string(60, 'x') +
                         ": not a field; the rest of the conversation is passed over\n");
}

TEST_F(Import, ShowsControlCharactersAsBlanks) {
  const Ran ran = RunOn(
      "[Owner: Zoe]\r\n[Name:  greeting]\r\n"
      "a\x1B"
      "b\x7F"
      "c\x81"
      "d\x8D"
      "e\x8F"
      "f\x90"
      "g\x9D"
      "h\x80"
      "\r\n");
  EXPECT_EQ(ran.err, text_ +
                         ":3: a b c d e f g h\xE2\x82\xAC: not a field; the rest of the "
                         "conversation is passed over\n");
}

TEST_F(Import, SavesEvenIfNothingMatched) {
  const Ran ran = RunOn("");
  EXPECT_EQ(ran.code, 0);
  EXPECT_EQ(ran.err, text_ + ":0: the text names no owner of a conversation\n");
  EXPECT_EQ(Saved()["LastUpdatedBy"], "carl");
}

TEST_F(Import, WritesNothingWithoutATextToRead) {
  WriteBytes(in_, HarbourFile());
  Ran ran = RunTool({"import", in_, folder_.File("none.txt"), out_});
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err, "parlate-cli: " + folder_.File("none.txt") + ", File not found\n");
  ran = RunTool({"import", in_, folder_.Path(), out_});
  EXPECT_EQ(ran.code, 2);
  EXPECT_FALSE(FileExists(out_));
}

TEST_F(Import, OfARunThatFailsOnlyTheFailureIsTold) {
  WriteBytes(text_, "[Owner: Nobody]\r\n[Name:  Gone]\r\n");
  WriteBytes(in_, FileOf(HarbourTables(), {Con(0, "c", kZoe, {CheckObject(1, 99, "gone")})}));
  const Ran ran = RunTool({"import", in_, text_, out_});
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err,
            "parlate-cli: conversation \"c\" (key 0), event 1, the table Object has no row 99\n");
  EXPECT_FALSE(FileExists(out_));
}

}  // namespace
}  // namespace parlate::cli

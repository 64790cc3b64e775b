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
using nlohmann::json;
using testing::HasSubstr;
using testing::IsEmpty;

class Tool : public testing::Test {
 protected:
  [[nodiscard]] json Dump(const std::string& path) const {
    return json::parse(RunTool({"dump", path}).out);
  }
  std::string Put(const std::string& name, const std::string& bytes) {
    WriteBytes(folder_.File(name), bytes);
    return folder_.File(name);
  }

  TemporaryFolder folder_;
  std::string out_ = folder_.File("out.con");
};

class Audio : public Tool {};
class Stats : public Tool {};
class Paste : public Tool {};

TEST_F(Audio, NamesTheFilesOfAllLinesAndStampsTheFile) {
  const Ran ran =
      RunTool({"audio", Put("in.con", HarbourFile()), out_, "--user", "carl", "--now", "46000.25"});
  EXPECT_EQ(ran.code, 0);
  EXPECT_THAT(ran.out + ran.err, IsEmpty());
  const json saved = Dump(out_);
  EXPECT_EQ(saved["LastUpdated"], 46000.25);
  const json& events = saved["Conversations"][1]["events"];
  EXPECT_EQ(events[0]["eventObject"]["audioFile"], "Audio07\\Zoe\\greeting\\Zoe01.mp3");
  EXPECT_EQ(events[2]["eventObject"]["audioFile"], "Audio07\\Zoe\\greeting\\Alex01.mp3");
  EXPECT_EQ(saved["Conversations"][1]["LastUpdatedBy"], "ben");
}

TEST_F(Audio, WritesNothingWhenASpeakerHasNoRow) {
  const std::string in =
      Put("in.con", FileOf(HarbourTables(), {Con(0, "c", kZoe, {Speech(1, "", {}, "Who?", "")})}));
  const Ran ran = RunTool({"audio", in, out_});
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err,
            "parlate-cli: conversation \"c\" (key 0), event 1, the table Actors/Pawn has no row "
            "-1\n");
  EXPECT_FALSE(FileExists(out_));
}

TEST_F(Stats, AreATableForAReader) {
  const Ran ran = RunTool({"stats", Put("in.con", HarbourFile())});
  EXPECT_EQ(ran.code, 0);
  EXPECT_EQ(ran.out,
            "Speaker  Lines\n"
            "-------  -----\n"
            "Alex     1\n"
            "Zoe      1\n"
            "\n"
            "Speakers: 2\n"
            "Lines: 2\n");
}

TEST_F(Stats, AreJsonForAProgram) {
  const Ran ran = RunTool({"stats", Put("in.con", HarbourFile()), "--json"});
  EXPECT_EQ(ran.code, 0);
  EXPECT_EQ(json::parse(ran.out), json::parse(R"({"rows": [{"speaker": "Alex", "lines": 1},
            {"speaker": "Zoe", "lines": 1}], "totalSpeakers": 2, "totalLines": 2})"));
}

TEST_F(Stats, GiveEachLineOfASpeakerWithASemicolonARowOfItsOwn) {
  const ActorFields speaker = {0, "B;ack"};
  TableFields tables;
  tables.actors = {{speaker.id, speaker.name}};
  const std::string in = Put("in.con", FileOf(tables, {Con(0, "c", speaker,
                                                           {Speech(1, "", speaker, "One", ""),
                                                            Speech(2, "", speaker, "Two", "")})}));
  const Ran ran = RunTool({"stats", in});
  EXPECT_EQ(ran.out,
            "Speaker  Lines\n"
            "-------  -----\n"
            "B;ack    1\n"
            "B;ack    1\n"
            "\n"
            "Speakers: 2\n"
            "Lines: 2\n");
}

TEST_F(Stats, FailWhenASpeakerHasNoRow) {
  const std::string in =
      Put("in.con", FileOf(HarbourTables(), {Con(0, "c", kZoe, {Speech(1, "", {}, "Who?", "")})}));
  const Ran ran = RunTool({"stats", in, "--json"});
  EXPECT_EQ(ran.code, 2);
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_EQ(ran.err,
            "parlate-cli: conversation \"c\" (key 0), event 1, the table Actors/Pawn has no row "
            "-1\n");
}

/// A file whose actors are other rows than those of the harbour.
std::string OtherFile() {
  TableFields tables;
  tables.actors = {{0, "Bob"}, {7, "Zoe"}};
  return FileOf(tables, {Con(4, "greeting", {0, "Bob"})});
}

TEST_F(Paste, FindsTheRowsByNameAndAddsThoseThatAreMissing) {
  const Ran ran =
      RunTool({"paste", Put("from.con", HarbourFile()), "0", Put("into.con", OtherFile()), out_,
               "--user", "carl", "--now", "46000.25"});
  EXPECT_EQ(ran.code, 0) << ran.err;
  EXPECT_THAT(ran.out + ran.err, IsEmpty());
  const json saved = Dump(out_);
  EXPECT_EQ(saved["LastUpdatedBy"], "carl");
  EXPECT_EQ(saved["tables"]["Actors/Pawn"],
            json::parse(R"([{"ID": 0, "Name": "Bob"}, {"ID": 7, "Name": "Zoe"},
                            {"ID": 8, "Name": "Alex"}])"));
  ASSERT_EQ(saved["Conversations"].size(), 2U);
  const json& pasted = saved["Conversations"][1];
  EXPECT_EQ(pasted["key"], 5) << "the next of the file";
  EXPECT_EQ(pasted["conName"], "greeting") << "a name is neither changed nor tested";
  EXPECT_EQ(pasted["NPCID"], 7);
  EXPECT_EQ(pasted["events"][0]["eventObject"]["ActorSpeakerID"], 7);
  EXPECT_EQ(pasted["events"][2]["eventObject"]["ActorSpeakerID"], 8);
  EXPECT_EQ(pasted["events"][3]["eventObject"]["conID"], 5) << "a jump within comes along";
}

TEST_F(Paste, IntoItsOwnFileMakesASecondOne) {
  const std::string file = Put("from.con", HarbourFile());
  ASSERT_EQ(RunTool({"paste", file, "2", file, out_}).code, 0);
  const json saved = Dump(out_);
  EXPECT_EQ(saved["Conversations"].size(), 4U);
  EXPECT_EQ(saved["tables"], Dump(file)["tables"]);
}

TEST_F(Paste, TellsWhichFileItIsAbout) {
  const std::string good = Put("good.con", HarbourFile());
  const std::string none = folder_.File("none.con");
  const std::string text = Put("text.con", "no conversation file");
  EXPECT_EQ(RunTool({"paste", none, "0", good, out_}).err,
            "parlate-cli: " + none + ", File not found\n");
  EXPECT_EQ(RunTool({"paste", good, "0", none, out_}).err,
            "parlate-cli: " + none + ", File not found\n");
  const Ran refused = RunTool({"paste", good, "0", text, out_});
  EXPECT_EQ(refused.code, 3);
  EXPECT_THAT(refused.err, HasSubstr(text + ", This is not a valid Conversation File!!"));
  const Ran cut = RunTool({"paste", good, "0", Put("cut.con", HarbourFile().substr(0, 300)), out_});
  EXPECT_EQ(cut.code, 2);
  EXPECT_THAT(cut.err, HasSubstr("cut.con, "));
  EXPECT_THAT(cut.err, HasSubstr("(offset "));
  EXPECT_FALSE(FileExists(out_));
}

TEST_F(Paste, TellsWhereTheReferenceToAMissingRowIs) {
  const std::string from =
      Put("from.con", FileOf(HarbourTables(), {Con(3, "c", kZoe, {CheckObject(5, 99, "Lost")})}));
  const Ran ran = RunTool({"paste", from, "3", Put("into.con", OtherFile()), out_});
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err, "parlate-cli: " + from +
                         ", conversation \"c\" (key 3), event 5, the table Object has no row 99\n");
  EXPECT_FALSE(FileExists(out_));
}

TEST_F(Paste, RefusesAKeyThatIsNotInTheFileOrNoNumber) {
  const std::string file = Put("from.con", HarbourFile());
  const Ran ran = RunTool({"paste", file, "9", file, out_});
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err, "parlate-cli: " + file + " has no conversation with the key 9\n");
  EXPECT_EQ(RunTool({"paste", file, "nine", file, out_}).code, 2);
  EXPECT_EQ(RunTool({"paste", file, "-1", file, out_}).code, 2);
  EXPECT_FALSE(FileExists(out_));
}

}  // namespace
}  // namespace parlate::cli

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "CliRun.h"
#include "cli/TextTable.h"
#include "support/FileBytes.h"
#include "support/SampleFile.h"
#include "support/TemporaryFolder.h"

namespace parlate::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing_support::ConversationFields;
using testing_support::FileBytes;
using testing_support::TableFields;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

/// A speech, a choice with a broken label, an end with a label and a comment.
std::string ListedFile() {
  TableFields tables;
  tables.actors = {{0, "Zo\xEB"}};
  ConversationFields con;
  con.key = 7;
  con.conName = "Greeting";
  con.owner = {0, "Zo\xEB"};
  FileBytes file(28);
  file.Start().Header({}).Tables(tables).I32(8).I32(1).Conversation(con).I32(5);
  file.Event(0, 1, 0, "").Actor({0, "Zo\xEB"}).Actor({}).Str("Hi;\rthere").Str("hi.mp3");
  file.Bool(false).Bool(false).I32(0);
  file.Event(1, 2, 0, "").Actor({}).Actor({}).Str("Hm").Str("");
  file.Bool(false).Bool(false).I32(0);
  testing_support::ChoiceFields choice;
  choice.text = "Yes";
  choice.label = "Gone";
  file.Event(2, 3, 1, "").I32(1).Bool(false).I32(1).Choice(choice);
  file.Event(3, 4, 18, "Exit");
  return file.Event(4, 5, 17, "").Str("A comment").Bytes();
}

class List : public testing::Test {
 protected:
  List() { WriteBytes(path_, ListedFile()); }
  [[nodiscard]] Ran RunWith(const std::vector<std::string>& options) const {
    std::vector<std::string> arguments = {"list", path_};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return RunTool(arguments);
  }
  /// The rows of the one conversation, as JSON.
  [[nodiscard]] nlohmann::json Rows(std::vector<std::string> options) const {
    options.emplace_back("--json");
    const Ran ran = RunWith(options);
    EXPECT_EQ(ran.code, 0);
    EXPECT_THAT(ran.err, IsEmpty());
    const nlohmann::json all = nlohmann::json::parse(ran.out);
    EXPECT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0]["key"], 7);
    EXPECT_EQ(all[0]["conName"], "Greeting");
    return all[0]["events"];
  }
  static std::vector<std::string> TextsOf(const nlohmann::json& rows, const char* field) {
    std::vector<std::string> texts;
    for (const auto& row : rows) texts.push_back(row[field].is_null() ? "-" : row[field]);
    return texts;
  }

  TemporaryFolder folder_;
  std::string path_ = folder_.File("in.con");
};

TEST_F(List, GivesRowSubTextAndColourOfEachEvent) {
  const nlohmann::json rows = Rows({});
  EXPECT_EQ(rows[4]["key"], 5);
  EXPECT_THAT(TextsOf(rows, "row"), ElementsAre(";Speech;Zo\xC3\xAB;hi.mp3", ";Speech;;",
                                                ";Choice;;", "Exit;End;;", ";Comment;;"));
  EXPECT_THAT(TextsOf(rows, "subText"),
              ElementsAre("Hi;\rthere", "Hm", "- Yes      [Goto: Gone]", "", "A comment"));
  EXPECT_THAT(TextsOf(rows, "color"), ElementsAre("-", "FFFFC0", "C0C0FF", "C0FFC0", "E0E0E0"));
}

TEST_F(List, GivesOneLineEachWithoutExpansion) {
  const nlohmann::json rows = Rows({"--no-expand"});
  EXPECT_THAT(TextsOf(rows, "row"),
              ElementsAre(";Speech;Zo\xC3\xAB;Hi;\rthere", ";Speech;;Hm", ";Choice;;Yes[Gone]",
                          "Exit;End;;", ";Comment;;A comment"));
  EXPECT_THAT(TextsOf(rows, "subText"), ElementsAre("", "", "", "", ""));
}

TEST_F(List, LeavesOutAudioFileNames) {
  EXPECT_EQ(Rows({"--no-audio-files"})[0]["row"], ";Speech;Zo\xC3\xAB;");
}

TEST_F(List, DoesNotMarkMissingAudioWithoutHighlighting) {
  EXPECT_THAT(TextsOf(Rows({"--no-highlight"}), "color"),
              ElementsAre("-", "-", "C0C0FF", "C0FFC0", "E0E0E0"));
}

TEST_F(List, ShowsATableToAReader) {
  const Ran ran = RunWith({});
  EXPECT_EQ(ran.code, 0);
  EXPECT_EQ(ran.out,
            "Zo\xC3\xAB - Greeting (key 7)\n"
            "Key  Label  Action   NPC  Description              Remark\n"
            "---  -----  -------  ---  -----------------------  ------------\n"
            "1           Speech   Zo\xC3\xAB  hi.mp3  Hi; there\n"
            "2           Speech        Hm                       no audio\n"
            "3           Choice        - Yes      [Goto: Gone]  broken label\n"
            "4    Exit   End                                    label\n"
            "5           Comment       A comment                comment\n"
            "\n");
}

TEST_F(List, KeepsASemicolonInTheLastField) {
  EXPECT_THAT(RunWith({"--no-expand"}).out, HasSubstr("Zo\xC3\xAB  Hi; there"));
}

TEST_F(List, WritesNothingWhenARowCannotBeTold) {
  TableFields tables;
  tables.actors = {{0, "Alex"}};
  const std::string payload = FileBytes(28).I32(8).Str("gone").Str("").Bytes();
  WriteBytes(path_, testing_support::OneEventFile(28, tables, 4, payload).Bytes());
  const Ran ran = RunWith({});
  EXPECT_EQ(ran.code, 2);
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_EQ(ran.err,
            "parlate-cli: conversation \"Con\" (key 0), event 1, the table Object has no row 8\n");
}

TEST_F(List, TellsEveryTypeOfTheSampleOfEveryVersion) {
  for (int version = 14; version <= 28; ++version) {
    WriteBytes(path_, testing_support::SampleFile(version));
    const Ran ran = RunWith({});
    EXPECT_EQ(ran.code, 0) << version << ran.err;
    EXPECT_THAT(ran.out, HasSubstr("Maya \xC3\xA9 - Greeting (key 0)\n"));
    EXPECT_THAT(ran.out, HasSubstr("Alex - Leaving (key 7)\n"));
  }
}

TEST(TextTable, MakesColumnsAsWideAsTheirWidestCell) {
  TextTable table({"A", "Wide", "Z"});
  const std::vector<std::string> first = {"long cell", "", "x"};
  const std::vector<std::string> second = {"\xC3\xA9\xC3\xA9", "two\r\nlines"};
  table.Measure(first);
  table.Measure(second);
  std::ostringstream out;
  table.WriteHead(out);
  table.WriteRow(out, first);
  table.WriteRow(out, second);
  EXPECT_EQ(out.str(),
            "A          Wide        Z\n"
            "---------  ----------  -\n"
            "long cell              x\n"
            "\xC3\xA9\xC3\xA9         two  lines\n");
}

}  // namespace
}  // namespace parlate::cli

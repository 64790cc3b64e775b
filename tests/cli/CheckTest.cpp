#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "CliRun.h"
#include "support/FileBytes.h"
#include "support/SampleFile.h"
#include "support/TemporaryFolder.h"

namespace parlate::cli {
namespace {

using testing::IsEmpty;
using testing_support::ConversationFields;
using testing_support::FileBytes;
using testing_support::TableFields;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

class Check : public testing::Test {
 protected:
  [[nodiscard]] Ran RunOn(const std::string& bytes, bool json = false) const {
    const std::string path = folder_.File("in.con");
    WriteBytes(path, bytes);
    return json ? RunTool({"check", "--json", path}) : RunTool({"check", path});
  }
  /// Two conversations of one owner; the second comes first by name. Labels meet without case.
  static std::string BrokenFile() {
    TableFields tables;
    tables.actors = {{0, "Alex"}};
    FileBytes file(28);
    file.Start().Header({}).Tables(tables).I32(2).I32(2);
    ConversationFields con;
    con.owner = {0, "Alex"};
    con.conName = "Second";
    file.Conversation(con).I32(2);
    file.Event(0, 4, 10, "Start").I32(3).Str("START").Str("Gone").Str("Gone");
    file.Bool(false).Bool(false).Bool(false);
    file.Event(1, 9, 9, "").Str("Lost").I32(1);
    con.conName = "first \xE9";
    con.key = 1;
    file.Conversation(con).I32(1);
    return file.Event(0, 6, 9, "").Str("Exit").I32(0).Bytes();
  }

  TemporaryFolder folder_;
};

TEST_F(Check, FindsNothingInASoundFile) {
  TableFields tables;
  tables.actors = {{0, "Alex"}};
  const std::string sound = testing_support::OneEventFile(28, tables, 18, "").Bytes();
  EXPECT_EQ(RunOn(sound).code, 0);
  EXPECT_EQ(RunOn(sound).out, "All label references are valid.\n");
  EXPECT_EQ(RunOn(sound, true).code, 0);
  EXPECT_EQ(RunOn(sound, true).out, "[]\n");
}

TEST_F(Check, ReportsBrokenReferencesInTheOrderOfTheTree) {
  const Ran ran = RunOn(BrokenFile());
  EXPECT_EQ(ran.code, 1);
  EXPECT_THAT(ran.err, IsEmpty());
  EXPECT_EQ(ran.out,
            "Conversation  Label  Event key\n"
            "------------  -----  ---------\n"
            "first \xC3\xA9       Exit   6\n"
            "Second        Gone   4\n"
            "Second        Gone   4\n"
            "Second        Lost   9\n");
}

TEST_F(Check, LooksForTheLabelOfAJumpInItsTarget) {
  const Ran ran = RunOn(testing_support::SampleFile(28), true);
  EXPECT_EQ(ran.code, 1);
  EXPECT_EQ(
      nlohmann::json::parse(ran.out),
      nlohmann::json::parse(R"([{"conversation": "Greeting", "label": "Start", "eventKey": 22}])"))
      << "the label exists in the conversation of the jump alone";
}

TEST_F(Check, ReportsThemAsJson) {
  const Ran ran = RunOn(BrokenFile(), true);
  EXPECT_EQ(ran.code, 1);
  const auto entry = [](const char* conversation, const char* label, int key) {
    return nlohmann::json{{"conversation", conversation}, {"label", label}, {"eventKey", key}};
  };
  EXPECT_EQ(nlohmann::json::parse(ran.out),
            (nlohmann::json{entry("first \xC3\xA9", "Exit", 6), entry("Second", "Gone", 4),
                            entry("Second", "Gone", 4), entry("Second", "Lost", 9)}));
}

/// Three conversations; a flag of the second one's own has no row.
class CheckLostFlag : public Check {
 protected:
  CheckLostFlag() {
    TableFields tables;
    tables.actors = {{0, "Alex"}};
    tables.flags = {{2, "Door"}};
    FileBytes file(28);
    file.Start().Header({}).Tables(tables).I32(3).I32(3);
    ConversationFields con;
    con.owner = {0, "Alex"};
    con.conName = "Arrival";
    file.Conversation(con).I32(0);
    startOfSecond_ = file.Size();
    con.key = 1;
    con.conName = "Qu\xE9rel\n";
    con.flags = {{2, "Door", true, 0}, {8, "Lamp", true, 0}};
    file.Conversation(con).I32(1).Event(0, 1, 18, "");
    con.key = 2;
    con.conName = "Parting";
    con.flags.clear();
    bytes_ = file.Conversation(con).I32(0).Bytes();
  }

  std::string bytes_;
  std::size_t startOfSecond_ = 0;
};

TEST_F(CheckLostFlag, OfAConversationIsToldWithItsPlaceSinceTheEditorReadsNoFurther) {
  for (const bool json : {false, true}) {
    const Ran ran = RunOn(bytes_, json);
    EXPECT_EQ(ran.code, 2);
    EXPECT_THAT(ran.out, IsEmpty());
    EXPECT_EQ(
        ran.err,
        "parlate-cli: " + folder_.File("in.con") +
            ", conversation 2 of 3 (Qu\xC3\xA9rel ), flag 2, the table Flag has no row 8 (offset " +
            std::to_string(startOfSecond_) + ")\n");
  }
}

TEST_F(CheckLostFlag, StopsNoCommandThatShowsTheFileAsItIs) {
  WriteBytes(folder_.File("in.con"), bytes_);
  const Ran dump = RunTool({"dump", folder_.File("in.con")});
  EXPECT_EQ(dump.code, 0);
  EXPECT_EQ(nlohmann::json::parse(dump.out)["Conversations"].size(), 3U);
  const Ran list = RunTool({"list", "--json", folder_.File("in.con")});
  EXPECT_EQ(list.code, 0);
  EXPECT_EQ(nlohmann::json::parse(list.out).size(), 3U);
}

TEST_F(CheckLostFlag, EndsAConversionWithTheNameOfTheConversation) {
  WriteBytes(folder_.File("in.con"), bytes_);
  const Ran ran = RunTool({"convert", folder_.File("in.con"), folder_.File("out.con")});
  EXPECT_EQ(ran.code, 2);
  EXPECT_EQ(ran.err,
            "parlate-cli: conversation \"Qu\xC3\xA9rel \" (key 1), the table Flag has no row 8\n");
}

TEST_F(CheckLostFlag, OfAnEventIsNoneOfItsBusiness) {
  TableFields tables;
  tables.actors = {{0, "Alex"}};
  const std::string payload = FileBytes(28).Flags({{8, "Lamp", true, 0}}).Bytes();
  EXPECT_EQ(RunOn(testing_support::OneEventFile(28, tables, 2, payload).Bytes()).code, 0)
      << "the editor reads such a file to its end";
}

}  // namespace
}  // namespace parlate::cli

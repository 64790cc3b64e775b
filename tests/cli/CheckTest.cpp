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

}  // namespace
}  // namespace parlate::cli

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "integrity/LabelCheck.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::OpenFile;
using testing_support::TestWorkspace;

class LabelCheckTest : public testing::Test {
 protected:
  LabelCheckTest() { space_.workspace.badLabels = &labels_; }

  Conversation& AddConversation(std::int32_t key, const std::string& name) {
    auto con = std::make_shared<Conversation>();
    con->key = key;
    con->conName = name;
    open_.file.Conversations.Add(key, con);
    open_.tree.keys.push_back(key);
    return *con;
  }
  static void AddRandom(Conversation& con, const std::vector<std::string>& labels) {
    EventRandom random;
    random.ResizeLabels(static_cast<std::int32_t>(labels.size()) - 1);
    for (std::size_t i = 0; i < labels.size(); ++i) {
      random.AssignLabel(static_cast<std::int32_t>(i), labels[i]);
    }
    auto item = std::make_shared<EventItem>();
    item->key = con.NextEventKey();
    item->SetEventObject(kRandomLabel, std::move(random));
    con.events.Add(item->key, item);
  }
  /// What is broken, as "conversation:label:event key".
  std::vector<std::string> Check() {
    std::vector<std::string> texts;
    for (const BadLabelRow& row : CheckLabels(open_.file, open_.tree, labels_)) {
      texts.push_back(*row.conversation + ":" + row.label + ":" + std::to_string(row.eventKey));
    }
    return texts;
  }

  TestWorkspace space_;
  OpenFile open_{space_};
  BadLabels labels_;
};

TEST_F(LabelCheckTest, FindsNothingInAnEmptyTree) {
  EXPECT_THAT(Check(), IsEmpty());
  auto con = std::make_shared<Conversation>();
  AddRandom(*con, {"Gone"});
  open_.file.Conversations.Add(0, con);
  EXPECT_THAT(Check(), IsEmpty()) << "a conversation that the tree does not show";
}

TEST_F(LabelCheckTest, ReportsInTheOrderOfTheTreeAndOfTheEvents) {
  Conversation& first = AddConversation(0, "First");
  AddRandom(first, {"A"});
  AddRandom(first, {"B"});
  AddRandom(AddConversation(1, "Second"), {"C"});
  EXPECT_THAT(Check(), ElementsAre("First:A:1", "First:B:2", "Second:C:1"));
  open_.tree.keys = {1, 0};
  EXPECT_THAT(Check(), ElementsAre("Second:C:1", "First:A:1", "First:B:2"));
}

TEST_F(LabelCheckTest, ReportsALabelAsOftenAsItIsReferredTo) {
  Conversation& con = AddConversation(0, "First");
  AddRandom(con, {"A", "B", "A"});
  AddRandom(con, {"A"});
  EXPECT_THAT(Check(), ElementsAre("First:A:1", "First:B:1", "First:A:1", "First:A:2"));
  ASSERT_EQ(labels_.colBadLabels.size(), 4U);
  EXPECT_EQ(labels_.colBadLabels[3].conObj, &con);
  EXPECT_EQ(labels_.colBadLabels[3].eventObj, con.events.At(2).eventObject());
  EXPECT_EQ(labels_.colBadLabels[3].strLabel, "A");
}

TEST_F(LabelCheckTest, PassesLabelsThatExistWhateverTheirCase) {
  Conversation& con = AddConversation(0, "First");
  con.AddLabel("start");
  AddRandom(con, {"Start", "START", ""});
  EXPECT_THAT(Check(), IsEmpty());
}

TEST_F(LabelCheckTest, ForgetsWhatWasReportedBefore) {
  Conversation& con = AddConversation(0, "First");
  AddRandom(con, {"A"});
  labels_.AddBadLabel(con, *con.events.At(1).eventObject(), "left by the colouring of the list");
  EXPECT_THAT(Check(), ElementsAre("First:A:1"));
  EXPECT_EQ(labels_.colBadLabels.size(), 1U);
  con.AddLabel("A");
  EXPECT_THAT(Check(), IsEmpty());
  EXPECT_THAT(labels_.colBadLabels, IsEmpty());
}

}  // namespace
}  // namespace parlate

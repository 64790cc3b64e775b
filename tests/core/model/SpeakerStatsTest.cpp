#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "model/SpeakerStats.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::ErrorOf;
using testing_support::TestWorkspace;

class SpeakerStatsTest : public testing::Test {
 protected:
  SpeakerStatsTest() {
    TestWorkspace::AddRows(kActorTable, {{7, "Zoe"}, {3, "alex"}, {9, "Bob"}, {12, "bob"}});
    AddConversation();
  }

  void AddConversation() {
    auto con = std::make_shared<Conversation>();
    con->key = file_.NextKey();
    file_.Conversations.Add(con->key, con);
    con_ = con.get();
  }
  EventItem& AddItem() {
    auto item = std::make_shared<EventItem>();
    item->key = con_->NextEventKey();
    con_->events.Add(item->key, item);
    return *con_->events.Place(con_->events.Count());
  }
  void AddSpeech(std::int32_t speaker, std::int32_t listener = -1) {
    EventSpeech speech;
    speech.ActorSpeakerID = speaker;
    speech.ActorSpeakingToID = listener;
    AddItem().SetEventObject(kSpeech, std::move(speech));
  }
  EventChoice& AddChoice(int count) {
    EventItem& item = AddItem();
    auto& choice = item.SetEventObject(kChoice, EventChoice());
    for (int i = 0; i < count; ++i) {
      auto option = std::make_shared<ChoiceItem>();
      option->ID = choice.nextID();
      choice.Choices.Add(option->ID, option);
    }
    return choice;
  }
  /// The rows as "name:lines".
  std::vector<std::string> Build() {
    stats_.BuildSpeakerStats(file_);
    return Rows();
  }
  [[nodiscard]] std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (const SpeakerRow& row : stats_.Rows()) {
      rows.push_back(row.name + ":" + std::to_string(row.lines));
    }
    return rows;
  }

  TestWorkspace space_;
  ConversationFile file_;
  Conversation* con_ = nullptr;
  SpeakerStats stats_;
};

TEST_F(SpeakerStatsTest, AFileWithoutEventsGivesNoRowsAndTotalsOfZero) {
  EXPECT_THAT(Build(), IsEmpty());
  EXPECT_EQ(stats_.totalSpeakers, 0);
  EXPECT_EQ(stats_.totalLines, 0);
}

TEST_F(SpeakerStatsTest, CountsTheSpeechesOfEachSpeakerInAllConversations) {
  AddSpeech(7, 3);
  AddSpeech(3);
  AddConversation();
  AddSpeech(7);
  EXPECT_THAT(Build(), ElementsAre("alex:1", "Zoe:2")) << "whoever is spoken to does not count";
  EXPECT_EQ(stats_.totalSpeakers, 2);
  EXPECT_EQ(stats_.totalLines, 3);
}

TEST_F(SpeakerStatsTest, EveryChoiceIsALineOfThePlayerSpokenOrNot) {
  AddChoice(3).Choices.Place(2)->bDisplayAsSpeech = true;
  AddChoice(1);
  AddSpeech(7);
  EXPECT_THAT(Build(), ElementsAre("MKHollis:4", "Zoe:1"));
  EXPECT_EQ(stats_.totalSpeakers, 2);
  EXPECT_EQ(stats_.totalLines, 5);
}

TEST_F(SpeakerStatsTest, AChoiceEventWithoutChoicesMakesNoRow) {
  AddChoice(0);
  EXPECT_THAT(Build(), IsEmpty());
  EXPECT_EQ(stats_.totalSpeakers, 0);
}

TEST_F(SpeakerStatsTest, AnActorThatBearsThePlayersNameSharesItsRow) {
  TestWorkspace::AddRows(kActorTable, {{20, "MKHollis"}});
  AddSpeech(20);
  AddChoice(2);
  EXPECT_THAT(Build(), ElementsAre("MKHollis:3"));
  EXPECT_EQ(stats_.totalSpeakers, 1);
}

TEST_F(SpeakerStatsTest, OtherEventsCountForNothing) {
  AddItem().SetEventObject(kComment, EventComment());
  AddItem().SetEventObject(kAddGoal, EventAddGoal());
  AddItem().SetEventObject(kAddNote, EventAddNote());
  AddItem().SetEventObject(kPlayAnimation, EventAnimation()).PawnID = 7;
  EXPECT_THAT(Build(), IsEmpty());
  EXPECT_EQ(stats_.totalLines, 0);
}

TEST_F(SpeakerStatsTest, NamesThatDifferInCaseAloneAreTwoSpeakersInTheOrderOfTheirFirstLine) {
  AddSpeech(12);
  AddSpeech(7);
  AddSpeech(9);
  AddSpeech(12);
  EXPECT_THAT(Build(), ElementsAre("bob:2", "Bob:1", "Zoe:1"));
}

TEST_F(SpeakerStatsTest, TwoActorsOfOneNameAreOneSpeaker) {
  TestWorkspace::AddRows(kActorTable, {{21, "Zoe"}});
  AddSpeech(7);
  AddSpeech(21);
  AddSpeech(7);
  EXPECT_THAT(Build(), ElementsAre("Zoe:3"));
  EXPECT_EQ(stats_.totalSpeakers, 1);
}

TEST_F(SpeakerStatsTest, NamesStandAsInTheTreeFoldedByCodePageByte) {
  TestWorkspace::AddRows(kActorTable, {{30, "\xC9va"}, {31, "Eva"}, {32, "_x"}, {33, "zz"}});
  for (const std::int32_t id : {30, 33, 31, 32, 7}) AddSpeech(id);
  EXPECT_THAT(Build(), ElementsAre("_x:1", "Eva:1", "Zoe:1", "zz:1", "\xC9va:1"));
}

TEST_F(SpeakerStatsTest, ASecondCountGrowsTheRowsAndFindsNoNewSpeakers) {
  AddSpeech(7);
  AddSpeech(3);
  AddChoice(2);
  EXPECT_THAT(Build(), ElementsAre("alex:1", "MKHollis:2", "Zoe:1"));
  EXPECT_THAT(Build(), ElementsAre("alex:2", "MKHollis:4", "Zoe:2"));
  EXPECT_EQ(stats_.totalSpeakers, 0);
  EXPECT_EQ(stats_.totalLines, 4) << "the lines of the last count alone";
  AddSpeech(9);
  EXPECT_THAT(Build(), ElementsAre("alex:3", "Bob:1", "MKHollis:6", "Zoe:3"));
  EXPECT_EQ(stats_.totalSpeakers, 1);
}

TEST_F(SpeakerStatsTest, ANameWithASemicolonIsNeverFoundAndMakesARowForEachLine) {
  TestWorkspace::AddRows(kActorTable, {{40, "B;ack"}});
  for (const std::int32_t id : {40, 7, 40, 7}) AddSpeech(id);
  EXPECT_THAT(Build(), ElementsAre("B;ack:1", "B;ack:1", "Zoe:2"));
  EXPECT_EQ(stats_.totalSpeakers, 3);
  EXPECT_EQ(stats_.totalLines, 4);
  EXPECT_THAT(Build(), ElementsAre("B;ack:1", "B;ack:1", "B;ack:1", "B;ack:1", "Zoe:4"));
  EXPECT_EQ(stats_.totalSpeakers, 2) << "the new rows of the second count";
  EXPECT_EQ(stats_.totalLines, 4);
}

TEST_F(SpeakerStatsTest, ANameFindsTheFirstRowWhoseFirstColumnItIsAndTakesItOver) {
  TestWorkspace::AddRows(kActorTable, {{40, "B;ack"}, {41, "B"}});
  for (const std::int32_t id : {40, 40, 41, 40, 41}) AddSpeech(id);
  EXPECT_THAT(Build(), ElementsAre("B:3", "B;ack:1", "B;ack:1"));
  EXPECT_EQ(stats_.totalSpeakers, 3);
  EXPECT_EQ(stats_.totalLines, 5);
}

TEST_F(SpeakerStatsTest, RowsAreSortedByTheirFirstColumnAlone) {
  TestWorkspace::AddRows(kActorTable, {{40, "b;z"}, {41, "B;a"}, {42, "B-"}});
  for (const std::int32_t id : {42, 40, 41}) AddSpeech(id);
  EXPECT_THAT(Build(), ElementsAre("b;z:1", "B;a:1", "B-:1"));
}

TEST_F(SpeakerStatsTest, ASpeakerWithoutAnActorRowIsARuntimeError) {
  AddSpeech(7);
  AddSpeech(-1);
  EXPECT_EQ(ErrorOf([&] { stats_.BuildSpeakerStats(file_); }), 5);
  EXPECT_THAT(Rows(), ElementsAre("Zoe:1")) << "what was counted up to there stays";
}

}  // namespace
}  // namespace parlate

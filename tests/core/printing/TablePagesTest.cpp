// Tables and statistics on paper: margins of 1000 and 1000 on the recorder's page, whose text ends
// at 11000.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "printing/TablePages.h"
#include "support/RecordingSurface.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class PrintedTable : public testing::Test {
 protected:
  [[nodiscard]] PrintingDoors Doors() { return {printers_, messages_}; }
  void ExpectBox(const MessageBox& box) {
    ASSERT_EQ(messages_.shown.size(), 1U);
    EXPECT_EQ(messages_.shown[0].title, box.title);
    EXPECT_EQ(messages_.shown[0].text, box.text);
    EXPECT_EQ(messages_.shown[0].icon, box.icon);
    EXPECT_EQ(messages_.shown[0].buttons, MessageBox::Buttons::Ok);
  }

  TestWorkspace space_;
  RecordingPrinters printers_;
  ScriptedMessageBoxes messages_;
};

TEST_F(PrintedTable, HasAHeadingInCapitalsARuleAndItsRows) {
  messages_.Expect(Answer::Ok);
  PrintTable({"Alex", "Zoe"}, "Actors/Pawns \xE9", Doors());
  // The heading is 29 characters of 200 twips; the rule is 100 longer. The blank line has its size.
  EXPECT_THAT(printers_.calls, ElementsAre("1000,1000 Arial 20: Parlate Table: ACTORS/PAWNS \xC9",
                                           "line 1000,1400 6900,1400",
                                           "0,1400 Arial 20: ", "1000,1800 Default 10: Alex",
                                           "1000,2000 Default 10: Zoe", "end"));
  ExpectBox({"Table Printed", "Table Actors/Pawns \xE9 Printed to Recorder.",
             MessageBox::Icon::Information});
}

TEST_F(PrintedTable, NumbersItsPagesFromTheSecondOn) {
  messages_.Expect(Answer::Ok);
  // Rows begin at 1800 and 46 of them end at 11000, where the page is full.
  PrintTable(std::vector<std::string>(47, "row"), "Flags", Doors());
  EXPECT_EQ(printers_.calls.at(48), "1000,10800 Default 10: row");
  EXPECT_EQ(printers_.calls.at(49), "new page");
  EXPECT_EQ(printers_.calls.at(50), "1000,1000 Arial 20: Parlate Table: FLAGS (page 2)");
  EXPECT_EQ(printers_.calls.at(53), "1000,1800 Default 10: row");
}

TEST_F(PrintedTable, RoundsTheMarginsOfAPageOfOddMeasuresHalfToEven) {
  // A tenth of the width is 1000.5, a twelfth of the height 1001.5.
  printers_.paper = {.scaleWidth = 10005, .scaleHeight = 12018, .width = 11001};
  messages_.Expect(Answer::Ok);
  PrintTable({"Alex"}, "A", Doors());
  EXPECT_THAT(printers_.calls,
              ElementsAre("1000,1002 Arial 20: Parlate Table: A", "line 1000,1402 4300,1402",
                          "0,1402 Arial 20: ", "1000,1802 Default 10: Alex", "end"));
  EXPECT_EQ(printers_.title, "") << "the dialog bears the system's title";
}

TEST_F(PrintedTable, OnAPrinterThatCannotBeStartedIsTold) {
  printers_.fails = true;
  messages_.Expect(Answer::Ok);
  PrintTable({"Alex"}, "Actors/Pawns", Doors());
  ExpectBox({"Error Printing!", "An Error Occurred While Printing.", MessageBox::Icon::Critical});
}

TEST_F(PrintedTable, IsNothingWhenTheUserCancels) {
  printers_.cancels = true;
  PrintTable({"Alex"}, "Actors/Pawns", Doors());
  EXPECT_THAT(printers_.calls, IsEmpty());
  EXPECT_THAT(messages_.shown, IsEmpty());
}

TEST_F(PrintedTable, OnAPrinterThatVanishesIsToldAndNotCalledPrinted) {
  printers_.callsUntilFailure = 3;
  messages_.Expect(Answer::Ok);
  PrintTable({"Alex", "Zoe"}, "Actors/Pawns", Doors());
  ExpectBox({"Error Printing!", "An Error Occurred While Printing.", MessageBox::Icon::Critical});
}

TEST_F(PrintedTable, OfSpeakersHasTheirCountsAndTheTwoTotals) {
  ConversationFile file;
  TestWorkspace::AddRows(kActorTable, {{1, "Zoe"}});
  auto con = std::make_shared<Conversation>();
  for (int i = 1; i <= 2; ++i) {
    auto item = std::make_shared<EventItem>();
    item->key = i;
    EventSpeech speech;
    speech.ActorSpeakerID = 1;
    item->SetEventObject(kSpeech, speech);
    con->events.Add(i, item);
  }
  file.Conversations.Add(0, con);
  SpeakerStats stats;
  stats.BuildSpeakerStats(file);
  messages_.Expect(Answer::Ok);
  PrintStats(stats, "harbour.con", Doors());
  EXPECT_THAT(
      printers_.calls,
      ElementsAre("1000,1000 Arial 20: Parlate Table: CONVERSATION STATS, FILE = "
                  "HARBOUR.CON",
                  "line 1000,1400 11700,1400", "0,1400 Arial 20: ", "1000,1800 Default 10: Zoe",
                  "5000,1800 Default 10: 2", "1000,2000 Default 10: Total Unique Speakers:   1",
                  "1000,2200 Default 10: Total Speech Events:   2", "end"));
  ExpectBox({"Stats Printed", "Stats Printed to Recorder.", MessageBox::Icon::Information});
}

TEST_F(PrintedTable, OfSpeakersAfterASecondCountTellsOfNoSpeakers) {
  ConversationFile file;
  TestWorkspace::AddRows(kActorTable, {{1, "Zoe"}});
  auto con = std::make_shared<Conversation>();
  auto item = std::make_shared<EventItem>();
  item->key = 1;
  EventSpeech speech;
  speech.ActorSpeakerID = 1;
  item->SetEventObject(kSpeech, speech);
  con->events.Add(1, item);
  file.Conversations.Add(0, con);
  SpeakerStats stats;
  stats.BuildSpeakerStats(file);
  stats.BuildSpeakerStats(file);
  messages_.Expect(Answer::Ok);
  PrintStats(stats, "harbour.con", Doors());
  EXPECT_THAT(printers_.Texts(),
              ElementsAre("Parlate Table: CONVERSATION STATS, FILE = HARBOUR.CON", "Zoe", "2",
                          "Total Unique Speakers:   0", "Total Speech Events:   1"));
}

TEST_F(PrintedTable, OfSpeakersGoesOnOverleafWithItsHeadingAlsoForATotal) {
  // The heading has 56 characters. 45 speakers leave one line of the first page, for the first
  // total.
  ConversationFile file;
  auto con = std::make_shared<Conversation>();
  for (int i = 1; i <= 45; ++i) {
    TestWorkspace::AddRows(kActorTable, {{i, "Actor" + std::to_string(100 + i)}});
    auto item = std::make_shared<EventItem>();
    item->key = i;
    EventSpeech speech;
    speech.ActorSpeakerID = i;
    item->SetEventObject(kSpeech, speech);
    con->events.Add(i, item);
  }
  file.Conversations.Add(0, con);
  SpeakerStats stats;
  stats.BuildSpeakerStats(file);
  messages_.Expect(Answer::Ok);
  PrintStats(stats, "a.con", Doors());
  const std::vector<std::string> end(printers_.calls.end() - 8, printers_.calls.end());
  EXPECT_THAT(end, ElementsAre("5000,10600 Default 10: 1",
                               "1000,10800 Default 10: Total Unique Speakers:   45", "new page",
                               "1000,1000 Arial 20: Parlate Table: CONVERSATION STATS, FILE = "
                               "A.CON (page 2)",
                               "line 1000,1400 12300,1400", "0,1400 Arial 20: ",
                               "1000,1800 Default 10: Total Speech Events:   45", "end"));
}

}  // namespace
}  // namespace parlate

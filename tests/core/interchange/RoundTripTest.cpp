// What a text that is exported and imported unchanged does to the file that it came from.

#include <map>

#include "InterchangeFixture.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;
using testing::IsEmpty;

/// Each text that the interchange can touch, under the place where it stands.
using Places = std::map<std::string, std::string>;

void AddPlaces(Places& places, const Conversation& con, const EventItem& event) {
  const std::string place = con.conName + " " + std::to_string(event.key) + " ";
  if (const auto* speech = event.As<EventSpeech>()) {
    places[place + "speech"] = speech->speech;
  } else if (const auto* choice = event.As<EventChoice>()) {
    for (const ChoiceItem& item : choice->Choices) {
      places[place + "choice " + std::to_string(item.ID)] = item.text;
    }
  } else if (const auto* comment = event.As<EventComment>()) {
    places[place + "comment"] = comment->commentText;
  } else if (const auto* goal = event.As<EventAddGoal>()) {
    places[place + "goal"] = goal->goalText;
  } else if (const auto* note = event.As<EventAddNote>()) {
    places[place + "note"] = note->noteText;
  }
}

class RoundTrip : public InterchangeTest {
 protected:
  [[nodiscard]] Places AllPlaces() {
    Places places;
    for (const Conversation& con : File().Conversations) {
      for (const EventItem& event : con.events) AddPlaces(places, con, event);
    }
    return places;
  }
  /// Exports, imports, and returns each place that has changed, as "place: new text".
  std::vector<std::string> GoRound() {
    const Places before = AllPlaces();
    const std::string text = Exported();
    MemorySource source(text);
    TextReader reader(source);
    ConversationImport(File(), reader).ImportConversations(open_.progress);
    std::vector<std::string> changed;
    for (const auto& [place, now] : AllPlaces()) {
      if (before.at(place) != now) changed.emplace_back(place).append(": ").append(now);
    }
    return changed;
  }
};

TEST_F(RoundTrip, OfTheExampleChangesNothingButTheStampOfTheFile) {
  const std::string bytes = ReadBytes(PARLATE_EXAMPLES "/lantern-quay.con");
  std::string saved;
  {
    TestWorkspace space;
    OpenFile plain(space);
    ASSERT_TRUE(plain.Load(bytes));
    saved = plain.Save();
  }
  ClearTables();
  ASSERT_TRUE(open_.Load(bytes));
  EXPECT_EQ(AllPlaces().size(), 183U) << "the texts of the example";
  // Of a completed goal no text is stored, so this one shows nowhere.
  EXPECT_THAT(GoRound(), ElementsAre("ElevenMinutes 18 goal: Somebody on the quay has the third "
                                     "wheel of the tower clock."));
  EXPECT_TRUE(File().IsModified());
  EXPECT_EQ(open_.Save(), saved) << "the same file, with the stamp that any save gives it";
}

TEST_F(RoundTrip, ChangesEachTextThatALineOfItsOwnCannotCarry) {
  AddCon(0, "Talk");
  AddSpeech(0, "  blanks at both ends  ");
  AddChoices({"plain", " blank in front"});
  AddNote("kept - as it is\t");
  AddSpeech(0, "\ttabs\t");
  EXPECT_THAT(GoRound(),
              ElementsAre("Talk 1 speech: blanks at both ends", "Talk 2 choice 1: blank in front"));
  EXPECT_THAT(GoRound(), IsEmpty()) << "the second time";
}

TEST_F(RoundTrip, OfATextOfTwoLinesKeepsTheFirstAndLeavesTheRestOfTheConversation) {
  AddCon(0, "Talk");
  AddSpeech(0, "one\r\ntwo");
  AddNote(" not imported");
  AddCon(0, "Next");
  AddNote(" imported");
  EXPECT_THAT(GoRound(), ElementsAre("Next 1 note: imported", "Talk 1 speech: one"));
}

TEST_F(RoundTrip, OfAnEmptyTextTakesTheNextFieldInItsPlace) {
  AddCon(0, "Talk");
  AddSpeech(0, "");
  AddNote("lost");
  EXPECT_THAT(GoRound(), ElementsAre("Talk 1 speech: [NOTE:]"));
}

TEST_F(RoundTrip, OfAnEmptyTextAtTheEndOfAConversationTakesTheDashes) {
  AddCon(0, "Talk");
  AddSpeech(0, "");
  AddCon(0, "Next");
  AddSpeech(0, " not imported");
  // The line that would end the conversation is gone, so the next header is a field like any other.
  EXPECT_THAT(GoRound(), ElementsAre("Talk 1 speech: " + kDashes));
}

TEST_F(RoundTrip, OfAnEmptyChoiceTakesTheFieldOfTheNextOneAndGoesOnBehindTheChoices) {
  AddCon(0, "Talk");
  AddChoices({"", "second"});
  AddNote(" imported");
  // The text of the second choice stands where a field has to be, which ends the choices alone.
  EXPECT_THAT(GoRound(), ElementsAre("Talk 1 choice 0: [CHOICE:]", "Talk 2 note: imported"));
}

TEST_F(RoundTrip, OfAnEmptyCommentGoalOrNoteTakesTheNextFieldToo) {
  AddCon(0, "Comment");
  AddComment("");
  AddNote(" not imported");
  AddCon(0, "Goal");
  AddGoal("", false);
  AddNote(" not imported");
  AddCon(0, "Note");
  AddNote("");
  AddNote(" not imported");
  EXPECT_THAT(GoRound(), ElementsAre("Comment 1 comment: [NOTE:]", "Goal 1 goal: [NOTE:]",
                                     "Note 1 note: [NOTE:]"));
}

TEST_F(RoundTrip, OfATextOfBlanksAloneIsThatOfAnEmptyOne) {
  AddCon(0, "Talk");
  AddSpeech(0, "   ");
  AddNote("lost");
  EXPECT_THAT(GoRound(), ElementsAre("Talk 1 speech: [NOTE:]"));
}

TEST_F(RoundTrip, ALineBreakAtEitherEndOfATextIsLost) {
  AddCon(0, "Talk");
  AddSpeech(0, "\r\nleading");
  AddSpeech(0, "trailing\r\n");
  AddNote(" imported");
  EXPECT_THAT(GoRound(), ElementsAre("Talk 1 speech: leading", "Talk 2 speech: trailing",
                                     "Talk 3 note: imported"));
}

TEST_F(RoundTrip, OfASecondLineThatIsAFieldGoesToTheNextEventOfItsType) {
  AddCon(0, "Talk");
  AddSpeech(0, "one\r\n[NOTE:]\r\ntwo");
  AddNote("old");
  AddNote("last");
  // Both notes of the text find an event, and the third finds none.
  EXPECT_THAT(GoRound(), ElementsAre("Talk 1 speech: one", "Talk 2 note: two", "Talk 3 note: old"));
}

TEST_F(RoundTrip, OfASecondLineThatHoldsOwnerBeginsNoOtherConversation) {
  AddCon(0, "Talk");
  AddSpeech(0, "one\r\n[Owner: Alex]\r\n[Name: Other]\r\n[NOTE:]\r\ntwo");
  AddNote("old");
  AddCon(0, "Then");
  AddSpeech(0, "one\r\nThe Owner: of this");
  AddNote(" not imported");
  // Within a conversation that is read, a line in brackets is only a field, and unknown: its text
  // line goes with it. A line without brackets ends the conversation.
  EXPECT_THAT(GoRound(),
              ElementsAre("Talk 1 speech: one", "Talk 2 note: two", "Then 1 speech: one"));
}

TEST_F(RoundTrip, OfAnOpenGoalGoesToACompletedOneAheadOfIt) {
  AddCon(0, "Talk");
  AddGoal("", true);
  AddGoal("find it", false);
  EXPECT_THAT(GoRound(), ElementsAre("Talk 1 goal: find it"));
}

TEST_F(RoundTrip, OfAConversationOrAnOwnerWithABlankInItsNameImportsNothing) {
  TestWorkspace::AddRows(kActorTable, {{8, "Mr Grey"}});
  AddCon(0, "Small talk");
  AddSpeech(0, " kept");
  AddCon(8, "Talk");
  AddSpeech(0, " kept");
  EXPECT_THAT(GoRound(), IsEmpty());
}

TEST_F(RoundTrip, OfTwoConversationsOfOneNameAndOwnerPutsBothIntoTheFirst) {
  AddCon(0, "Talk");
  AddSpeech(0, "first");
  AddCon(0, "Talk");
  EventSpeech& second = AddSpeech(0, "second");
  GoRound();
  EXPECT_EQ(File().Conversations.Place(1)->events.Place(1)->As<EventSpeech>()->speech, "second");
  EXPECT_EQ(second.speech, "second");
}

TEST_F(RoundTrip, OfAnEmptyChoiceEventLosesTheFieldBehindIt) {
  AddCon(0, "Talk");
  AddChoices({});
  AddSpeech(0, " not imported");
  AddSpeech(0, "second");
  EXPECT_THAT(GoRound(), ElementsAre("Talk 2 speech: second"));
}

TEST_F(RoundTrip, OfDashesInTheSpeakersNameEndsTheConversation) {
  TestWorkspace::AddRows(kActorTable, {{8, "----------"}});
  AddCon(0, "Talk");
  AddSpeech(8, " not imported");
  AddSpeech(0, " not imported");
  EXPECT_THAT(GoRound(), IsEmpty());
}

}  // namespace
}  // namespace parlate

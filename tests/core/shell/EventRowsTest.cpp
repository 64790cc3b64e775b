#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "shell/EventRows.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing_support::TestWorkspace;

class EventRows : public testing::Test {
 protected:
  EventRows() { con_.AddLabel("Here"); }

  /// A spoken choice that leads to a label.
  static std::unique_ptr<EventItem> Choice(const std::string& target, const std::string& audioFile,
                                           bool spoken = true) {
    auto event = std::make_unique<EventItem>();
    auto item = std::make_shared<ChoiceItem>();
    item->ID = 1;
    item->text = "Yes";
    item->skillID = -1;
    item->bDisplayAsSpeech = spoken;
    item->label = target;
    item->audioFile = audioFile;
    event->SetEventObject(kChoice, EventChoice{}).Choices.Add(1, item);
    return event;
  }
  static std::unique_ptr<EventItem> SpeechOf(const std::string& audioFile) {
    auto event = std::make_unique<EventItem>();
    auto& speech = event->SetEventObject(kSpeech, EventSpeech{});
    speech.speech = "Hello";
    speech.audioFile = audioFile;
    return event;
  }
  static std::unique_ptr<EventItem> CommentOf(const std::string& text) {
    auto event = std::make_unique<EventItem>();
    event->SetEventObject(kComment, EventComment{}).commentText = text;
    return event;
  }
  std::int32_t ColorOf(const std::unique_ptr<EventItem>& event, const std::string& label = "") {
    event->eventLabel = label;
    return EventRowColor(con_, *event);
  }

  TestWorkspace space_;
  Conversation con_;
};

TEST_F(EventRows, HaveTheColoursOfTheirMeaning) {
  EXPECT_EQ(kDefaultRow, -1);
  EXPECT_EQ(kBrokenLabelRow, 0xC0C0FF);
  EXPECT_EQ(kMissingAudioRow, 0xFFFFC0);
  EXPECT_EQ(kLabelRow, 0xC0FFC0);
  EXPECT_EQ(kCommentRow, 0xE0E0E0);
}

TEST_F(EventRows, WithABrokenLabelAreRedWhateverElseHolds) {
  EXPECT_EQ(ColorOf(Choice("Gone", "")), kBrokenLabelRow);
  EXPECT_EQ(ColorOf(Choice("Gone", ""), "Here"), kBrokenLabelRow);
  space_.workspace.defaults.bHighlightMissingAudio = false;
  EXPECT_EQ(ColorOf(Choice("Gone", "a.mp3"), "Here"), kBrokenLabelRow);
}

TEST_F(EventRows, ReportEachBrokenLabelOnTheWay) {
  (void)ColorOf(Choice("Gone", ""));
  (void)ColorOf(Choice("Here", ""));
  (void)ColorOf(Choice("", ""));
  EXPECT_THAT(space_.badLabels.Labels(), ElementsAre("Gone"));
}

TEST_F(EventRows, WithMissingAudioAreCyanAheadOfTheLabel) {
  EXPECT_EQ(ColorOf(SpeechOf(""), "Here"), kMissingAudioRow);
  EXPECT_EQ(ColorOf(SpeechOf("")), kMissingAudioRow);
  EXPECT_EQ(ColorOf(Choice("Here", ""), "Here"), kMissingAudioRow);
}

TEST_F(EventRows, WithMissingAudioAreAsOthersWhenThatIsNotHighlighted) {
  space_.workspace.defaults.bHighlightMissingAudio = false;
  EXPECT_EQ(ColorOf(SpeechOf(""), "Here"), kLabelRow);
  EXPECT_EQ(ColorOf(SpeechOf("")), kDefaultRow);
  EXPECT_EQ(ColorOf(Choice("", "")), kDefaultRow);
}

TEST_F(EventRows, WithAudioOrNothingSpokenAreNotCyan) {
  EXPECT_EQ(ColorOf(SpeechOf("a.mp3")), kDefaultRow);
  EXPECT_EQ(ColorOf(Choice("", "a.mp3")), kDefaultRow);
  EXPECT_EQ(ColorOf(Choice("", "", false)), kDefaultRow);
}

TEST_F(EventRows, WithALabelAreGreenAndACommentWithoutOneIsGrey) {
  EXPECT_EQ(ColorOf(SpeechOf("a.mp3"), "Here"), kLabelRow);
  EXPECT_EQ(ColorOf(CommentOf("note"), "Here"), kLabelRow);
  EXPECT_EQ(ColorOf(CommentOf("note")), kCommentRow);
}

TEST_F(EventRows, HaveASecondTextOnlyInTheExpandedList) {
  EXPECT_EQ(EventRowSubText(*SpeechOf("")), "Hello");
  space_.workspace.defaults.ExpandListEnabled = false;
  EXPECT_EQ(EventRowSubText(*SpeechOf("")), "");
}

TEST_F(EventRows, CarryTextKeyAndColourTogether) {
  const auto event = CommentOf("note");
  event->key = 17;
  event->eventLabel = "Here";
  const ListRow row = BuildEventRow(con_, *event);
  EXPECT_EQ(row.text, "Here;Comment;;");
  EXPECT_EQ(row.subText, "note");
  EXPECT_EQ(row.itemData, 17);
  EXPECT_EQ(row.color, kLabelRow);
}

}  // namespace
}  // namespace parlate

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <typeindex>
#include <vector>

#include "model/EventItem.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAreArray;
using testing_support::ErrorOf;
using testing_support::TestWorkspace;

const std::vector<std::string> kTypeTexts = {"Speech",
                                             "Choice",
                                             "Set Flags",
                                             "Check Flags",
                                             "Check Object",
                                             "Transfer Object",
                                             "Move Camera",
                                             "Play Animation",
                                             "Buy/Sell/Trade",
                                             "Jump",
                                             "Random Label",
                                             "Trigger",
                                             "Add/Complete Goal",
                                             "Add Note",
                                             "Add Skill Points",
                                             "Add Credits",
                                             "Check Persona",
                                             "Comment",
                                             "End"};

TEST(Vocabulary, NamesEveryEventType) {
  EXPECT_THAT(eventTypeNames, ElementsAreArray(kTypeTexts));
  EXPECT_EQ(kEventTypeCount, 19);
}

TEST(Vocabulary, CutsTheSecondSkillLevelShort) {
  EXPECT_THAT(skillLevelNames, testing::ElementsAre("Novice", "Intermedia", "Advanced", "Master"));
}

TEST(Vocabulary, NamesCameraPositionsTransitionsAndFonts) {
  EXPECT_THAT(cameraTransitionNames, testing::ElementsAre("Jump", "Spline"));
  EXPECT_THAT(speechFontNames, testing::ElementsAre("Normal", "Computer"));
  EXPECT_THAT(cameraPositionNames,
              testing::ElementsAre("Side, Tight", "Side, Mid", "Side, Above",
                                   "Side, Above 45 Degrees", "Shoulders, Left", "Shoulders, Right",
                                   "Head Shot, Tight", "Head Shot, Mid", "Head Shot, Left",
                                   "Head Shot, Right", "Head Shot, Slight Right",
                                   "Head Shot, Slight Left", "Straight Above, Looking Down",
                                   "Straight Below, Looking Up", "Below, Looking Up"));
}

struct Remap {
  int version;
  std::int32_t stored;
  std::int32_t present;
};

/// The whole table of moved codes; a code that is not in it stays.
const std::vector<Remap>& Remaps() {
  static const std::vector<Remap> remaps = [] {
    std::vector<Remap> all = {{14, 17, 18}, {15, 11, 17}, {15, 12, 18}};
    for (int version = 16; version <= 20; ++version) {
      all.push_back({version, 14, 17});
      all.push_back({version, 15, 18});
    }
    for (int version = 21; version <= 23; ++version) {
      all.push_back({version, 16, 17});
      all.push_back({version, 17, 18});
    }
    return all;
  }();
  return remaps;
}

std::int32_t ExpectedType(int version, std::int32_t stored) {
  for (const Remap& remap : Remaps()) {
    if (remap.version == version && remap.stored == stored) return remap.present;
  }
  return stored;
}

TEST(EventItem, MovesTheLastTwoCodesOfOldVersionsAndNoOthers) {
  for (int version = 14; version <= 28; ++version) {
    for (std::int32_t stored = -2; stored <= 30; ++stored) {
      EXPECT_EQ(RemapEventType(stored, version), ExpectedType(version, stored))
          << "code " << stored << " of version " << version;
    }
  }
}

TEST(EventItem, KeepsCodeThirteenOfVersionsSixteenToTwenty) {
  for (int version = 16; version <= 20; ++version) EXPECT_EQ(RemapEventType(13, version), 13);
}

template <class Event>
bool CreatesA(std::int32_t type) {
  EventItem item;
  item.CreateEventObject(type);
  return item.As<Event>() != nullptr && item.eventObject() == item.As<Event>();
}

TEST(EventItem, CreatesTheClassOfEachCode) {
  EXPECT_TRUE(CreatesA<EventSpeech>(0));
  EXPECT_TRUE(CreatesA<EventChoice>(1));
  EXPECT_TRUE(CreatesA<EventSetFlag>(2));
  EXPECT_TRUE(CreatesA<EventCheckFlag>(3));
  EXPECT_TRUE(CreatesA<EventCheckObject>(4));
  EXPECT_TRUE(CreatesA<EventTransferObject>(5));
  EXPECT_TRUE(CreatesA<EventMoveCamera>(6));
  EXPECT_TRUE(CreatesA<EventAnimation>(7));
  EXPECT_TRUE(CreatesA<EventTrade>(8));
  EXPECT_TRUE(CreatesA<EventJump>(9));
  EXPECT_TRUE(CreatesA<EventRandom>(10));
  EXPECT_TRUE(CreatesA<EventTrigger>(11));
  EXPECT_TRUE(CreatesA<EventAddGoal>(12));
  EXPECT_TRUE(CreatesA<EventAddNote>(13));
  EXPECT_TRUE(CreatesA<EventAddSkillPoints>(14));
  EXPECT_TRUE(CreatesA<EventAddCredits>(15));
  EXPECT_TRUE(CreatesA<EventCheckPersona>(16));
  EXPECT_TRUE(CreatesA<EventComment>(17));
  EXPECT_TRUE(CreatesA<EventEnd>(18));
}

TEST(EventItem, HasNoObjectForACodeOutsideAndFailsOnEachForwardedCall) {
  const TestWorkspace space;
  const Conversation con;
  for (const std::int32_t type : {-1, 19, INT32_MAX, INT32_MIN}) {
    EventItem item;
    item.CreateEventObject(0);
    item.CreateEventObject(type);
    EXPECT_EQ(item.eventObject(), nullptr);
    EXPECT_EQ(ErrorOf([&] { (void)item.BuildEventListString(); }), 91);
    EXPECT_EQ(ErrorOf([&] { (void)item.BuildEventListSubString(); }), 91);
    EXPECT_EQ(ErrorOf([&] { (void)item.AreLabelsValid(con); }), 91);
    EXPECT_EQ(ErrorOf([&] { (void)item.IsTableItemReferenced(0, 0); }), 91);
    EXPECT_EQ(ErrorOf([&] { item.ChangeTableLink(0, 1, 2); }), 91);
    EXPECT_EQ(ErrorOf([&] { item.StoreTableData(); }), 91);
    EXPECT_EQ(ErrorOf([&] { (void)item.FindString("", false, CompareMethod::Text, -1); }), 91);
  }
}

TEST(EventItem, IsBlankWhenNew) {
  const EventItem item;
  EXPECT_EQ(item.listPos, 0);
  EXPECT_EQ(item.key, 0);
  EXPECT_EQ(item.eventType, 0);
  EXPECT_EQ(item.eventLabel, "");
  EXPECT_EQ(item.eventObject(), nullptr);
}

TEST(EventItem, HasTwoForwardersThatNobodyAnswers) {
  EventItem item;
  item.CreateEventObject(kComment);
  EXPECT_EQ(ErrorOf([&] { item.ExportEventDialog(1); }), 438);
  EXPECT_EQ(ErrorOf([&] { item.ExportEventFilenames(1, "text", 1); }), 438);
}

EventItem& MakeComment(EventItem& item, const std::string& text) {
  EventComment comment;
  comment.commentText = text;
  item.SetEventObject(kComment, std::move(comment));
  return item;
}

TEST(EventItem, CopiesDeepAndKeepsTheKey) {
  EventItem source;
  MakeComment(source, "first");
  source.listPos = 4;
  source.key = 17;
  source.eventLabel = "Start";
  EventItem copy;
  copy.Copy(source);
  source.As<EventComment>()->commentText = "changed";
  EXPECT_EQ(copy.listPos, 4);
  EXPECT_EQ(copy.key, 17);
  EXPECT_EQ(copy.eventType, kComment);
  EXPECT_EQ(copy.eventLabel, "Start");
  EXPECT_EQ(copy.As<EventComment>()->commentText, "first");
}

TEST(EventItem, AsksTheObjectWhenTheFilterIsAnyTypeOrItsOwn) {
  EventItem item;
  MakeComment(item, "Look here");
  const auto find = [&](const char* text, CompareMethod method, std::int32_t type) {
    return static_cast<bool>(item.FindString(text, false, method, type));
  };
  EXPECT_TRUE(find("look", CompareMethod::Text, -1));
  EXPECT_TRUE(find("look", CompareMethod::Text, kComment));
  EXPECT_FALSE(find("look", CompareMethod::Text, kSpeech));
  EXPECT_FALSE(find("look", CompareMethod::Binary, -1));
  EXPECT_TRUE(item.FindString("oo", true, CompareMethod::Binary, -1))
      << "whole words are not asked for by any class";
}

TEST(EventItem, DoesNotAskTheObjectWhenTheFilterIsAnotherType) {
  const EventItem item;  // asking it would raise, as it has no object
  EXPECT_FALSE(item.FindString("x", false, CompareMethod::Text, kComment));
}

TEST(EventItem, BuildsItsLineOfFourFields) {
  TestWorkspace space;
  space.AddSampleTables();
  space.workspace.defaults.ExpandListEnabled = false;
  EventItem item;
  item.eventLabel = "Start";
  EventSpeech speech;
  speech.ActorSpeakerID = 5;
  speech.speech = "Well; yes";
  item.SetEventObject(kSpeech, std::move(speech));
  EXPECT_EQ(item.BuildEventListString(), "Start;Speech;Bob;Well; yes");
  item.eventLabel = "";
  EXPECT_EQ(item.BuildEventListString(), ";Speech;Bob;Well; yes");
}

TEST(EventItem, LeavesTheActorEmptyForMinusOneAndFailsForAMissingRow) {
  TestWorkspace space;
  EventItem item;
  item.SetEventObject(kTrade, EventTrade{});
  EXPECT_EQ(item.BuildEventListString(), ";Buy/Sell/Trade;;Trade");
  item.As<EventTrade>()->PawnID = 3;
  EXPECT_EQ(ErrorOf([&] { (void)item.BuildEventListString(); }), 5);
}

}  // namespace
}  // namespace parlate

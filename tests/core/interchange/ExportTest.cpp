#include "InterchangeFixture.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;

class Export : public InterchangeTest {};

TEST_F(Export, AConversationWithNothingToSayHasItsDashesTwoHeaderLinesAndAnEmptyLine) {
  AddCon(1, "Silent");
  Add(kTrigger, EventTrigger());
  Add(kEnd, EventEnd());
  EXPECT_EQ(Exported(), Text({kDashes, "[Owner: Zoe]", "[Name:  Silent]", ""}))
      << "one blank in the owner's line and two in the name's";
}

TEST_F(Export, WritesEachKindOfTextInTheOrderOfTheEvents) {
  AddCon(0, "Talk");
  AddSpeech(1, "Hello there");
  Add(kJump, EventJump());
  AddChoices({"Yes", " No "});
  AddComment("A remark");
  AddGoal("Find it", false);
  AddNote("Remember; this");
  EXPECT_EQ(Exported(), Text({kDashes,
                              "[Owner: Alex]",
                              "[Name:  Talk]",
                              "",
                              "[SPEECH: Zoe]",
                              "Hello there",
                              "",
                              "[CHOICES:2]",
                              "",
                              "[CHOICE:]",
                              "Yes",
                              "",
                              "[CHOICE:]",
                              " No ",
                              "",
                              "[COMMENT]",
                              "A remark",
                              "",
                              "[GOAL:]",
                              "Find it",
                              "",
                              "[NOTE:]",
                              "Remember; this",
                              ""}));
}

TEST_F(Export, EventsWithoutSpeechLeaveNoTrace) {
  AddCon(0, "Mute");
  const std::string before = Exported();
  for (std::int32_t type = 2; type <= 18; ++type) {
    if (type == kAddGoal || type == kAddNote || type == kComment) continue;
    auto item = std::make_shared<EventItem>();
    item->key = con_->NextEventKey();
    item->eventType = type;
    ASSERT_NE(item->CreateEventObject(type), nullptr);
    con_->events.Add(item->key, item);
  }
  EXPECT_EQ(con_->events.Count(), 14U);
  EXPECT_EQ(Exported(), before);
  EXPECT_EQ(Exported(kExportFilenames), "");
}

TEST_F(Export, ACompletedGoalLeavesNothingAndAnOpenOneItsText) {
  AddCon(0, "Goals");
  AddGoal("done", true);
  AddGoal("open", false);
  EXPECT_EQ(Exported(),
            Text({kDashes, "[Owner: Alex]", "[Name:  Goals]", "", "[GOAL:]", "open", ""}));
}

TEST_F(Export, WithoutCommentsNoCommentIsWritten) {
  AddCon(0, "C");
  AddComment("A remark");
  AddNote("A note");
  EXPECT_EQ(Exported(kExportDialog, false),
            Text({kDashes, "[Owner: Alex]", "[Name:  C]", "", "[NOTE:]", "A note", ""}));
}

TEST_F(Export, AChoiceEventWithoutChoicesHasTheNumberZero) {
  AddCon(0, "C");
  AddChoices({});
  AddNote("After");
  EXPECT_EQ(Exported(), Text({kDashes, "[Owner: Alex]", "[Name:  C]", "", "[CHOICES:0]", "",
                              "[NOTE:]", "After", ""}));
}

TEST_F(Export, ALineBreakWithinASpeechStaysAsItIs) {
  AddCon(0, "C");
  AddSpeech(0, "one\r\ntwo\nthree\rfour");
  EXPECT_EQ(Exported(), Text({kDashes, "[Owner: Alex]", "[Name:  C]", "", "[SPEECH: Alex]"}) +
                            "one\r\ntwo\nthree\rfour\r\n\r\n");
}

TEST_F(Export, AllBytesOfTheCodePageGoOutAsTheyAre) {
  AddCon(0, "C");
  std::string all;
  for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
  AddSpeech(0, all);
  EXPECT_NE(Exported().find(all + "\r\n\r\n"), std::string::npos);
}

TEST_F(Export, FollowsTheOrderOfTheTree) {
  AddCon(0, "First");
  AddCon(1, "Second");
  open_.tree.keys = {1, 0};
  EXPECT_EQ(Exported(), Text({kDashes, "[Owner: Zoe]", "[Name:  Second]", "", kDashes,
                              "[Owner: Alex]", "[Name:  First]", ""}));
}

TEST_F(Export, FilenamesAreOneLineForEachSpokenLineWithFiveFields) {
  AddCon(1, "Talk");
  AddSpeech(1, "Hello^there").audioFile = "typed by hand";
  AddComment("A remark");
  AddGoal("A goal", false);
  AddNote("A note");
  AddChoices({"Yes", "No"});
  AddSpeech(0, "");
  EXPECT_EQ(Exported(kExportFilenames),
            Text({"Zoe^Pack^Talk^Hello^there^Pack\\Zoe\\Talk\\Zoe01.mp3",
                  "MKHollis^Pack^Talk^Yes^Pack\\Zoe\\Talk\\Choice01a.mp3",
                  "MKHollis^Pack^Talk^No^Pack\\Zoe\\Talk\\Choice01b.mp3",
                  "Alex^Pack^Talk^^Pack\\Zoe\\Talk\\Alex01.mp3"}));
}

TEST_F(Export, FilenamesAreThoseThatTheAudioCommandWouldGiveAndAreNotStored) {
  AddCon(1, "Talk");
  AddSpeech(1, "a");
  AddChoices({"b"});
  EventSpeech& last = AddSpeech(1, "c");
  const std::string listed = Exported(kExportFilenames);
  EXPECT_EQ(last.audioFile, "");
  GenerateAudio();
  EXPECT_EQ(last.audioFile, "Pack\\Zoe\\Talk\\Zoe02.mp3");
  EXPECT_NE(listed.find("^" + last.audioFile + "\r\n"), std::string::npos);
}

TEST_F(Export, TheProgressShowsEachConversation) {
  AddCon(0, "First");
  AddCon(1, "Second");
  Exported();
  EXPECT_EQ(open_.progress.caption, "Exporting Conversations...");
  EXPECT_THAT(open_.progress.tops, ElementsAre(2));
  EXPECT_THAT(open_.progress.texts, ElementsAre("", "First", "Second"));
  EXPECT_THAT(open_.progress.values, ElementsAre(1, 2));
  EXPECT_FALSE(open_.progress.showing);
  Exported(kExportFilenames);
  EXPECT_EQ(open_.progress.caption, "Exporting Conversations...");
  GenerateAudio();
  EXPECT_EQ(open_.progress.caption, "Generating Audio Filenames...");
}

TEST_F(Export, AnOwnerOfMinusOneEndsTheWalkAndLeavesTheProgressOnTheScreen) {
  AddCon(0, "First");
  AddSpeech(0, "Kept");
  AddCon(-1, "Second");
  AddCon(0, "Third");
  EXPECT_EQ(Exported(),
            Text({kDashes, "[Owner: Alex]", "[Name:  First]", "", "[SPEECH: Alex]", "Kept", ""}));
  EXPECT_TRUE(open_.progress.showing);
  EXPECT_EQ(open_.progress.texts.back(), "Second");
}

TEST_F(Export, ASpeakerOfMinusOneEndsTheWalkWhereItStands) {
  AddCon(0, "First");
  AddNote("Kept");
  AddSpeech(-1, "Lost");
  AddNote("Lost too");
  EXPECT_EQ(Exported(),
            Text({kDashes, "[Owner: Alex]", "[Name:  First]", "", "[NOTE:]", "Kept", ""}));
  EXPECT_EQ(Exported(kExportFilenames), "");
  EXPECT_TRUE(open_.progress.showing);
}

}  // namespace
}  // namespace parlate

#include "editors/panels/AnimationPanel.h"
#include "editors/panels/PanelFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

class AnimationPanelTest : public PanelTest<AnimationPanel> {
 protected:
  static EventAnimation Animation(std::int32_t mode, std::int32_t length, bool finish) {
    EventAnimation event;
    event.PawnID = 4;
    event.SeqName = "Wave";
    event.playMode = mode;
    event.playLength = length;
    event.bFinishAnim = finish;
    return event;
  }
  void ExpectTimed(bool timed) {
    EXPECT_EQ(IsEnabled("lblAnimTimed(0)"), timed);
    EXPECT_EQ(IsEnabled("txtAnimLength"), timed);
    EXPECT_EQ(IsEnabled("lblAnimTimed(1)"), timed);
  }
};

TEST_F(AnimationPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 7);
  EXPECT_EQ(panel_.objectName(), "fraEvents(7)");
  EXPECT_EQ(panel_.title(), "Play Animation");
  EXPECT_EQ(LabelOf("cboPawnAnimate"), "Pawn to Animate:");
  EXPECT_EQ(Caption("cmdEditNPCTable(1)"), "Edit NPC Table");
  EXPECT_EQ(LabelOf("txtSeqName"), "Sequence  to Play:");
  const auto* frame = qobject_cast<QGroupBox*>(Button("optAnimPlayOnce").parentWidget());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->title(), "Animation Duration");
  EXPECT_EQ(Caption("optAnimPlayOnce"), "Play Once");
  EXPECT_EQ(Caption("optAnimLoop"), "Loop Animation");
  EXPECT_EQ(Caption("chkFinishAnim"), "Wait for Animation to Finish");
  EXPECT_EQ(Caption("chkAnimTimed"), "Animation Timed");
  EXPECT_EQ(The<QLabel>("lblAnimTimed(0)").text(), "Play For:");
  EXPECT_EQ(The<QLabel>("lblAnimTimed(1)").text(), "seconds");
  EXPECT_EQ(Spoken("txtAnimLength"), "Play For: seconds");
  EXPECT_EQ(Spoken("cmdEditNPCTable(1)"), "Edit NPC Table Pawn to Animate:");
}

TEST_F(AnimationPanelTest, TabGoesThroughThePanelFromTopToBottom) {
  Click("chkAnimTimed");
  EXPECT_EQ(TabOrder(),
            (Names{"cboPawnAnimate", "cmdEditNPCTable(1)", "txtSeqName", "optAnimPlayOnce",
                   "chkFinishAnim", "chkAnimTimed", "txtAnimLength"}));
}

TEST_F(AnimationPanelTest, ANewEventPlaysOnceAndIsNotTimed) {
  EXPECT_TRUE(IsSet("optAnimPlayOnce"));
  EXPECT_FALSE(IsSet("optAnimLoop"));
  EXPECT_FALSE(IsSet("chkFinishAnim"));
  EXPECT_TRUE(IsEnabled("chkFinishAnim"));
  EXPECT_FALSE(IsSet("chkAnimTimed"));
  EXPECT_EQ(TextOf("txtAnimLength"), "");
  ExpectTimed(false);
  EXPECT_EQ(Combo("cboPawnAnimate").ListCount(), 2);
}

TEST_F(AnimationPanelTest, LoopingClearsAndGreysTheWaitForTheEnd) {
  Click("chkFinishAnim");
  EXPECT_TRUE(IsSet("chkFinishAnim"));
  Click("optAnimLoop");
  EXPECT_FALSE(IsSet("chkFinishAnim"));
  EXPECT_FALSE(IsEnabled("chkFinishAnim"));
  Click("optAnimPlayOnce");
  EXPECT_FALSE(IsSet("chkFinishAnim"));
  EXPECT_TRUE(IsEnabled("chkFinishAnim"));
}

TEST_F(AnimationPanelTest, ALengthCanBeTypedOnlyWhenTimed) {
  Click("chkAnimTimed");
  ExpectTimed(true);
  Type("txtAnimLength", "30");
  Click("chkAnimTimed");
  ExpectTimed(false);
  EXPECT_EQ(TextOf("txtAnimLength"), "");
}

TEST_F(AnimationPanelTest, NeedsASequenceAndAnActor) {
  EXPECT_FALSE(IsComplete());
  Type("txtSeqName", "Wave");
  EXPECT_FALSE(IsComplete());
  Type("cboPawnAnimate", "Bob");
  EXPECT_TRUE(IsComplete());
  Type("txtSeqName", "");
  EXPECT_FALSE(IsComplete());
  Type("txtSeqName", "Wave");
  Combo("cboPawnAnimate").SetText("Keycard");
  EXPECT_FALSE(IsComplete());
}

TEST_F(AnimationPanelTest, OnlyTheSequenceAndTheActorAskWhetherTheEventIsComplete) {
  changed_.clear();
  Line("txtSeqName").setText("x");
  EXPECT_EQ(changed_.size(), 1);
  Combo("cboPawnAnimate").SetListIndex(0);
  EXPECT_EQ(changed_.size(), 2);
  Click("chkAnimTimed");
  Line("txtAnimLength").setText("5");
  EXPECT_EQ(changed_.size(), 2);
}

TEST_F(AnimationPanelTest, WhatWasTypedIsStored) {
  Type("cboPawnAnimate", "Bob");
  Type("txtSeqName", "Bow down");
  Click("chkFinishAnim");
  Click("chkAnimTimed");
  Type("txtAnimLength", "30");
  EXPECT_TRUE(IsComplete());
  const auto& stored = Stored<EventAnimation>();
  EXPECT_EQ(stored.PawnID, 2);
  EXPECT_EQ(stored.SeqName, "Bow down");
  EXPECT_EQ(stored.playMode, 1);
  EXPECT_EQ(stored.playLength, 30);
  EXPECT_TRUE(stored.bFinishAnim);
}

TEST_F(AnimationPanelTest, ALoopIsStoredAsModeZero) {
  Click("optAnimLoop");
  EXPECT_EQ(Stored<EventAnimation>().playMode, 0);
  EXPECT_FALSE(Stored<EventAnimation>().bFinishAnim);
}

TEST_F(AnimationPanelTest, TheLengthIsTheNumberThatTheTextBeginsWith) {
  Click("chkAnimTimed");
  Type("txtAnimLength", "12 seconds");
  EXPECT_EQ(Stored<EventAnimation>().playLength, 12);
  Type("txtAnimLength", "long");
  EXPECT_EQ(Stored<EventAnimation>().playLength, 0);
  Type("txtAnimLength", "");
  EXPECT_EQ(Stored<EventAnimation>().playLength, 0);
}

TEST_F(AnimationPanelTest, ATimedEventIsShownAndStoredBackAsItWas) {
  Show(Animation(1, 20, true));
  EXPECT_EQ(Combo("cboPawnAnimate").Text(), "Zoe");
  EXPECT_EQ(TextOf("txtSeqName"), "Wave");
  EXPECT_TRUE(IsSet("optAnimPlayOnce"));
  EXPECT_TRUE(IsSet("chkFinishAnim"));
  EXPECT_TRUE(IsSet("chkAnimTimed"));
  EXPECT_EQ(TextOf("txtAnimLength"), "20");
  ExpectTimed(true);
  const auto& stored = Stored<EventAnimation>();
  EXPECT_EQ(stored.PawnID, 4);
  EXPECT_EQ(stored.SeqName, "Wave");
  EXPECT_EQ(stored.playMode, 1);
  EXPECT_EQ(stored.playLength, 20);
  EXPECT_TRUE(stored.bFinishAnim);
}

TEST_F(AnimationPanelTest, ALoopIsShownWithoutWaitOrLength) {
  Show(Animation(0, 0, true));
  EXPECT_TRUE(IsSet("optAnimLoop"));
  EXPECT_FALSE(IsSet("chkFinishAnim"));
  EXPECT_FALSE(IsEnabled("chkFinishAnim"));
  EXPECT_FALSE(IsSet("chkAnimTimed"));
  EXPECT_EQ(TextOf("txtAnimLength"), "");
}

TEST_F(AnimationPanelTest, AnyModeButZeroIsShownAsPlayedOnceAndANegativeLengthAsNone) {
  Click("optAnimLoop");
  Show(Animation(7, -5, false));
  EXPECT_TRUE(IsSet("optAnimPlayOnce"));
  EXPECT_FALSE(IsSet("chkFinishAnim"));
  EXPECT_TRUE(IsEnabled("chkFinishAnim"));
  EXPECT_FALSE(IsSet("chkAnimTimed"));
  EXPECT_EQ(TextOf("txtAnimLength"), "");
}

TEST_F(AnimationPanelTest, TheSmallButtonEditsTheActors) {
  tables_.chosen = 2;
  Click("cmdEditNPCTable(1)");
  EXPECT_EQ(tables_.opened, std::vector<std::int32_t>{0});
  EXPECT_EQ(Combo("cboPawnAnimate").Text(), "Bob");
}

TEST_F(AnimationPanelTest, TypingAnUnknownActorAsksAndOnNoTheTextStaysSelectedInTheField) {
  space_.messages.Expect(Answer::No);
  Type("txtSeqName", "Wave");
  Type("cboPawnAnimate", "Stranger");
  Focus(after_);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Combo("cboPawnAnimate").hasFocus(); }));
  ASSERT_EQ(space_.messages.shown.size(), 1U);
  EXPECT_EQ(space_.messages.shown[0].title, "Add Item?");
  EXPECT_EQ(Combo("cboPawnAnimate").lineEdit()->selectedText(), "Stranger");
  EXPECT_FALSE(panel_.IsComplete());
}

TEST_F(AnimationPanelTest, ClearingEmptiesTheFieldsAndPlaysOnce) {
  Show(Animation(0, 9, false));
  panel_.ClearFields();
  EXPECT_EQ(Combo("cboPawnAnimate").ListIndex(), -1);
  EXPECT_EQ(TextOf("txtSeqName"), "");
  EXPECT_TRUE(IsSet("optAnimPlayOnce"));
  EXPECT_EQ(TextOf("txtAnimLength"), "");
  EXPECT_FALSE(IsSet("chkFinishAnim"));
}

}  // namespace
}  // namespace parlate

#include "editors/panels/CommentPanel.h"
#include "editors/panels/EndPanel.h"
#include "editors/panels/NotePanel.h"
#include "editors/panels/PanelFixture.h"
#include "editors/panels/TriggerPanel.h"

namespace parlate {
namespace {

using namespace testing_support;

using TriggerPanelTest = PanelTest<TriggerPanel>;
using NotePanelTest = PanelTest<NotePanel>;
using CommentPanelTest = PanelTest<CommentPanel>;
using EndPanelTest = PanelTest<EndPanel>;

TEST_F(TriggerPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 11);
  EXPECT_EQ(panel_.objectName(), "fraEvents(11)");
  EXPECT_EQ(panel_.title(), "Trigger");
  EXPECT_EQ(LabelOf("txtTriggerTag"), "Trigger Tag:");
  EXPECT_EQ(Spoken("txtTriggerTag"), "Trigger Tag:");
}

TEST_F(TriggerPanelTest, NeedsATag) {
  EXPECT_FALSE(IsComplete());
  changed_.clear();
  Type("txtTriggerTag", "a");
  EXPECT_EQ(changed_.size(), 1);
  EXPECT_TRUE(IsComplete());
  Type("txtTriggerTag", "");
  EXPECT_FALSE(IsComplete());
}

TEST_F(TriggerPanelTest, WhatWasTypedIsStored) {
  Type("txtTriggerTag", "Open the gate");
  EXPECT_EQ(Stored<EventTrigger>().triggerTag, "Open the gate");
}

TEST_F(TriggerPanelTest, AnEventIsShownAndStoredBackByteByByte) {
  EventTrigger event;
  event.triggerTag = "Zo\xEB\r\nand\ttab";
  Show(event);
  EXPECT_EQ(TextOf("txtTriggerTag"), "Zo\xEB\r\nand\ttab");
  EXPECT_EQ(Stored<EventTrigger>().triggerTag, "Zo\xEB\r\nand\ttab");
  panel_.ClearFields();
  EXPECT_EQ(TextOf("txtTriggerTag"), "");
}

TEST_F(TriggerPanelTest, ANewEventStartsEmpty) {
  Line("txtTriggerTag").setText("left over");
  panel_.Ready();
  EXPECT_EQ(TextOf("txtTriggerTag"), "");
}

TEST_F(NotePanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 13);
  EXPECT_EQ(panel_.objectName(), "fraEvents(13)");
  EXPECT_EQ(panel_.title(), "Add Note");
  EXPECT_EQ(LabelOf("txtNote"), "Note Text:");
  EXPECT_EQ(Spoken("txtNote"), "Note Text:");
}

TEST_F(NotePanelTest, NeedsAText) {
  EXPECT_FALSE(IsComplete());
  changed_.clear();
  Type("txtNote", "a");
  EXPECT_EQ(changed_.size(), 1);
  EXPECT_TRUE(IsComplete());
  Type("txtNote", "");
  EXPECT_FALSE(IsComplete());
}

TEST_F(NotePanelTest, WhatWasTypedIsStoredWithItsLines) {
  Type("txtNote", "Find the key");
  QTest::keyClick(&Box("txtNote"), Qt::Key_Return);
  QTest::keyClicks(&Box("txtNote"), "in the hall");
  EXPECT_EQ(Stored<EventAddNote>().noteText, "Find the key\r\nin the hall");
}

TEST_F(NotePanelTest, AnEventIsShownAndStoredBackByteByByte) {
  EventAddNote event;
  event.noteText = "lone\rreturn, lone\nfeed, \r\npair, Zo\xEB";
  Show(event);
  EXPECT_EQ(Box("txtNote").blockCount(), 4);
  EXPECT_EQ(Stored<EventAddNote>().noteText, event.noteText);
  panel_.ClearFields();
  EXPECT_EQ(Box("txtNote").Text(), "");
}

TEST_F(NotePanelTest, ANewEventStartsEmpty) {
  Box("txtNote").SetText("left over");
  panel_.Ready();
  EXPECT_EQ(Box("txtNote").Text(), "");
}

TEST_F(NotePanelTest, TabLeavesTheText) { EXPECT_EQ(TabOrder(), Names{"txtNote"}); }

TEST_F(NotePanelTest, TheTextTakesTheRoomThatTheWindowGains) {
  const int before = Box("txtNote").height();
  window_.resize(window_.width(), window_.height() + 200);
  QCoreApplication::processEvents();
  EXPECT_GE(Box("txtNote").height(), before + 150);
}

TEST_F(CommentPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 17);
  EXPECT_EQ(panel_.objectName(), "fraEvents(17)");
  EXPECT_EQ(panel_.title(), "Comment");
  EXPECT_EQ(LabelOf("txtComment"), "Comment Text:");
  EXPECT_EQ(Spoken("txtComment"), "Comment Text:");
}

TEST_F(CommentPanelTest, NeedsAText) {
  EXPECT_FALSE(IsComplete());
  changed_.clear();
  Type("txtComment", "a");
  EXPECT_EQ(changed_.size(), 1);
  EXPECT_TRUE(IsComplete());
  Type("txtComment", "");
  EXPECT_FALSE(IsComplete());
}

TEST_F(CommentPanelTest, WhatWasTypedIsStored) {
  Type("txtComment", "Ask the writer");
  EXPECT_EQ(Stored<EventComment>().commentText, "Ask the writer");
}

TEST_F(CommentPanelTest, AnEventIsShownAndStoredBackByteByByte) {
  EventComment event;
  event.commentText = "a\nb\rc";
  Show(event);
  EXPECT_EQ(Box("txtComment").blockCount(), 3);
  EXPECT_EQ(Stored<EventComment>().commentText, "a\nb\rc");
}

TEST_F(CommentPanelTest, OnlyClearingEmptiesTheText) {
  Box("txtComment").SetText("left over");
  panel_.Ready();
  EXPECT_EQ(Box("txtComment").Text(), "left over");
  panel_.ClearFields();
  EXPECT_EQ(Box("txtComment").Text(), "");
}

TEST_F(EndPanelTest, SaysThatTheConversationEndsAndIsAlwaysComplete) {
  EXPECT_EQ(panel_.EventType(), 18);
  EXPECT_EQ(panel_.objectName(), "fraEvents(18)");
  EXPECT_EQ(panel_.title(), "End");
  const QList<QLabel*> labels = panel_.findChildren<QLabel*>();
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels[0]->text(), "End Conversation");
  EXPECT_TRUE(panel_.IsComplete());
  EXPECT_EQ(TabOrder(), Names{});
}

TEST_F(EndPanelTest, StoresAnEventOfItsType) {
  Stored<EventEnd>();
  EXPECT_EQ(item_.eventType, 18);
}

}  // namespace
}  // namespace parlate

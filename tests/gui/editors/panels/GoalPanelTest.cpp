#include <QClipboard>
#include <QGuiApplication>

#include "editors/panels/GoalPanel.h"
#include "editors/panels/PanelFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

class GoalPanelTest : public PanelTest<GoalPanel> {
 protected:
  static EventAddGoal Goal(bool completed) {
    EventAddGoal event;
    event.goalName = "Find_Key-2";
    event.bGoalCompleted = completed;
    event.goalText = "Find\nthe key";
    event.bPrimaryGoal = true;
    return event;
  }
  void ExpectText(bool enabled) {
    EXPECT_EQ(IsEnabled("lblGoal"), enabled);
    EXPECT_EQ(IsEnabled("txtGoal"), enabled);
    EXPECT_EQ(IsEnabled("chkPrimaryGoal"), enabled);
  }
};

TEST_F(GoalPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 12);
  EXPECT_EQ(panel_.objectName(), "fraEvents(12)");
  EXPECT_EQ(panel_.title(), "Add/Complete Goal");
  EXPECT_EQ(LabelOf("txtGoalName"), "Goal Name:");
  EXPECT_EQ(Caption("optGoalAdd"), "Add Goal:");
  EXPECT_EQ(Caption("optGoalCompleted"), "Goal Completed");
  EXPECT_EQ(The<QLabel>("lblGoal").text(), "Goal Text:");
  EXPECT_EQ(LabelOf("txtGoal"), "Goal Text:");
  EXPECT_EQ(Caption("chkPrimaryGoal"), "Primary Goal");
}

TEST_F(GoalPanelTest, TabGoesThroughThePanelFromTopToBottom) {
  EXPECT_EQ(TabOrder(), (Names{"txtGoalName", "optGoalAdd", "txtGoal", "chkPrimaryGoal"}));
}

TEST_F(GoalPanelTest, ANewEventAddsAGoal) {
  EXPECT_TRUE(IsSet("optGoalAdd"));
  EXPECT_FALSE(IsSet("optGoalCompleted"));
  EXPECT_EQ(TextOf("txtGoalName"), "");
  EXPECT_EQ(Box("txtGoal").Text(), "");
  EXPECT_FALSE(IsSet("chkPrimaryGoal"));
  ExpectText(true);
}

TEST_F(GoalPanelTest, AGoalToAddNeedsNameAndText) {
  EXPECT_FALSE(IsComplete());
  Type("txtGoalName", "Key");
  EXPECT_FALSE(IsComplete());
  Type("txtGoal", "Find it");
  EXPECT_TRUE(IsComplete());
  Type("txtGoalName", "");
  EXPECT_FALSE(IsComplete());
}

TEST_F(GoalPanelTest, ACompletedGoalNeedsOnlyItsName) {
  Click("optGoalCompleted");
  EXPECT_FALSE(IsComplete());
  Type("txtGoalName", "Key");
  EXPECT_TRUE(IsComplete());
  Click("optGoalAdd");
  EXPECT_FALSE(IsComplete());
}

TEST_F(GoalPanelTest, EveryChangeThatCountsAsksWhetherTheEventIsComplete) {
  changed_.clear();
  Line("txtGoalName").setText("a");
  EXPECT_EQ(changed_.size(), 1);
  QTest::keyClicks(&Box("txtGoal"), "b");
  EXPECT_EQ(changed_.size(), 2);
  Click("optGoalCompleted");
  EXPECT_GT(changed_.size(), 2);
  changed_.clear();
  Click("optGoalAdd");
  EXPECT_EQ(changed_.size(), 1);
}

TEST_F(GoalPanelTest, CompletedAndBackLeavesTheTextEmpty) {
  Type("txtGoal", "Find it");
  Click("chkPrimaryGoal");
  EXPECT_TRUE(IsSet("chkPrimaryGoal"));
  Click("optGoalCompleted");
  ExpectText(false);
  EXPECT_FALSE(IsSet("chkPrimaryGoal"));
  Click("optGoalAdd");
  ExpectText(true);
  EXPECT_EQ(Box("txtGoal").Text(), "");
  EXPECT_FALSE(IsSet("chkPrimaryGoal"));
}

TEST_F(GoalPanelTest, TypingDropsWhatIsNoNameCharacter) {
  Type("txtGoalName", "a b.c;Z-_9&!");
  EXPECT_EQ(TextOf("txtGoalName"), "abcZ-_9");
  TypeText(Line("txtGoalName"), QStringLiteral(u"\u00EB\u03A9"));
  EXPECT_EQ(TextOf("txtGoalName"), "abcZ-_9");
  QTest::keyClick(&Line("txtGoalName"), Qt::Key_Backspace);
  EXPECT_EQ(TextOf("txtGoalName"), "abcZ-_");
}

TEST_F(GoalPanelTest, TheKeysThatEditAndLeaveTheNameStillWork) {
  Type("txtGoalName", "abc");
  QTest::keyClick(&Line("txtGoalName"), Qt::Key_Home);
  QTest::keyClick(&Line("txtGoalName"), Qt::Key_Delete);
  EXPECT_EQ(TextOf("txtGoalName"), "bc");
  QTest::keyClick(&Line("txtGoalName"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(TextOf("txtGoalName"), "abc");
  QTest::keyClick(&Line("txtGoalName"), Qt::Key_Tab);
  EXPECT_TRUE(Button("optGoalAdd").hasFocus());
}

TEST_F(GoalPanelTest, APastedNameIsTakenAsItIs) {
  QGuiApplication::clipboard()->setText(QStringLiteral("two words"));
  Focus(Line("txtGoalName"));
  QTest::keyClick(&Line("txtGoalName"), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(TextOf("txtGoalName"), "two words");
}

TEST_F(GoalPanelTest, WhatWasTypedIsStored) {
  Type("txtGoalName", "Find_Key");
  Type("txtGoal", "Find the key.");
  Click("chkPrimaryGoal");
  EXPECT_TRUE(IsComplete());
  const auto& stored = Stored<EventAddGoal>();
  EXPECT_EQ(stored.goalName, "Find_Key");
  EXPECT_FALSE(stored.bGoalCompleted);
  EXPECT_EQ(stored.goalText, "Find the key.");
  EXPECT_TRUE(stored.bPrimaryGoal);
}

TEST_F(GoalPanelTest, ACompletedGoalIsStoredWithoutText) {
  Type("txtGoalName", "Find_Key");
  Click("optGoalCompleted");
  const auto& stored = Stored<EventAddGoal>();
  EXPECT_EQ(stored.goalName, "Find_Key");
  EXPECT_TRUE(stored.bGoalCompleted);
  EXPECT_EQ(stored.goalText, "");
  EXPECT_FALSE(stored.bPrimaryGoal);
}

TEST_F(GoalPanelTest, AGoalToAddIsShownAndStoredBackAsItWas) {
  Click("optGoalCompleted");
  Show(Goal(false));
  EXPECT_TRUE(IsSet("optGoalAdd"));
  ExpectText(true);
  EXPECT_EQ(TextOf("txtGoalName"), "Find_Key-2");
  EXPECT_EQ(Box("txtGoal").Text(), "Find\nthe key");
  EXPECT_TRUE(IsSet("chkPrimaryGoal"));
  const auto& stored = Stored<EventAddGoal>();
  EXPECT_EQ(stored.goalName, "Find_Key-2");
  EXPECT_FALSE(stored.bGoalCompleted);
  EXPECT_EQ(stored.goalText, "Find\nthe key");
  EXPECT_TRUE(stored.bPrimaryGoal);
}

TEST_F(GoalPanelTest, ACompletedGoalIsShownWithItsNameAlone) {
  Show(Goal(false));
  Show(Goal(true));
  EXPECT_TRUE(IsSet("optGoalCompleted"));
  ExpectText(false);
  EXPECT_EQ(TextOf("txtGoalName"), "Find_Key-2");
  EXPECT_EQ(Box("txtGoal").Text(), "");
  EXPECT_FALSE(IsSet("chkPrimaryGoal"));
}

TEST_F(GoalPanelTest, ClearingLeavesNeitherTextNorCompletion) {
  Show(Goal(false));
  panel_.ClearFields();
  EXPECT_EQ(TextOf("txtGoalName"), "");
  EXPECT_EQ(Box("txtGoal").Text(), "");
  EXPECT_FALSE(IsSet("chkPrimaryGoal"));
  Show(Goal(true));
  panel_.ClearFields();
  EXPECT_FALSE(IsSet("optGoalCompleted"));
  EXPECT_FALSE(IsSet("optGoalAdd"));
  panel_.Ready();
  EXPECT_TRUE(IsSet("optGoalAdd"));
  ExpectText(true);
}

}  // namespace
}  // namespace parlate

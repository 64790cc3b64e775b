#include "editors/panels/PanelFixture.h"
#include "editors/panels/TradePanel.h"

namespace parlate {
namespace {

using namespace testing_support;

using TradePanelTest = PanelTest<TradePanel>;

TEST_F(TradePanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 8);
  EXPECT_EQ(panel_.objectName(), "fraEvents(8)");
  EXPECT_EQ(panel_.title(), "Trade");
  EXPECT_EQ(LabelOf("cboPawnTrade"), "Pawn to Initiate Trade:");
  EXPECT_EQ(Caption("cmdEditNPCTable(2)"), "Edit NPC Table");
  EXPECT_EQ(Spoken("cmdEditNPCTable(2)"), "Edit NPC Table Pawn to Initiate Trade:");
}

TEST_F(TradePanelTest, TabGoesThroughThePanelFromTopToBottom) {
  EXPECT_EQ(TabOrder(), (Names{"cboPawnTrade", "cmdEditNPCTable(2)"}));
}

TEST_F(TradePanelTest, NeedsAnActorOfTheTable) {
  EXPECT_FALSE(IsComplete());
  changed_.clear();
  Type("cboPawnTrade", "Zoe");
  EXPECT_GE(changed_.size(), 3);
  EXPECT_TRUE(IsComplete());
  Combo("cboPawnTrade").SetText("Zo");
  EXPECT_FALSE(IsComplete());
  Combo("cboPawnTrade").SetText("zoe");
  EXPECT_FALSE(IsComplete());
}

TEST_F(TradePanelTest, AnActorOnAPanelThatIsNotShownCountsForNothing) {
  Combo("cboPawnTrade").SetListIndex(0);
  panel_.hide();
  EXPECT_FALSE(panel_.IsComplete());
  panel_.show();
  EXPECT_TRUE(panel_.IsComplete());
}

TEST_F(TradePanelTest, WhatWasTypedIsStored) {
  Type("cboPawnTrade", "Zoe");
  EXPECT_TRUE(IsComplete());
  EXPECT_EQ(Stored<EventTrade>().PawnID, 4);
}

TEST_F(TradePanelTest, AnEventIsShownAndStoredBackAsItWas) {
  EventTrade event;
  event.PawnID = 2;
  Show(event);
  EXPECT_EQ(Combo("cboPawnTrade").Text(), "Bob");
  EXPECT_TRUE(IsComplete());
  EXPECT_EQ(Stored<EventTrade>().PawnID, 2);
}

TEST_F(TradePanelTest, AnActorThatIsGoneIsShownAsNone) {
  Combo("cboPawnTrade").SetListIndex(0);
  EventTrade event;
  event.PawnID = 99;
  Show(event);
  EXPECT_EQ(Combo("cboPawnTrade").ListIndex(), -1);
  EXPECT_EQ(Combo("cboPawnTrade").Text(), "");
}

TEST_F(TradePanelTest, TheSmallButtonEditsTheActorsAndKeepsTheOneChosenBefore) {
  Combo("cboPawnTrade").SetListIndex(1);
  Click("cmdEditNPCTable(2)");
  EXPECT_EQ(tables_.opened, std::vector<std::int32_t>{0});
  EXPECT_EQ(Combo("cboPawnTrade").Text(), "Zoe");
}

TEST_F(TradePanelTest, LeavingAnUnknownActorAsks) {
  space_.messages.Expect(Answer::Yes);
  Type("cboPawnTrade", "Anna");
  Focus(after_);
  ASSERT_TRUE(QTest::qWaitFor([this] { return space_.messages.shown.size() == 1; }));
  EXPECT_TRUE(IsComplete());
  EXPECT_EQ(Stored<EventTrade>().PawnID, 5);
}

TEST_F(TradePanelTest, ClearingTakesTheChoiceBack) {
  Combo("cboPawnTrade").SetListIndex(1);
  panel_.ClearFields();
  EXPECT_EQ(Combo("cboPawnTrade").ListIndex(), -1);
}

}  // namespace
}  // namespace parlate

#include "editors/panels/CheckObjectPanel.h"
#include "editors/panels/PanelFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

using CheckObjectPanelTest = PanelTest<CheckObjectPanel>;

TEST_F(CheckObjectPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 4);
  EXPECT_EQ(panel_.objectName(), "fraEvents(4)");
  EXPECT_EQ(panel_.title(), "Check Object");
  EXPECT_EQ(LabelOf("cboCheckObject"), "Object to Look For:");
  EXPECT_EQ(LabelOf("cboCheckObjectFail"), "If Object Not Found, Jump to Label:");
  EXPECT_EQ(Caption("cmdCheckObject"), "...");
}

TEST_F(CheckObjectPanelTest, EachFieldIsReadOutWithItsLabel) {
  EXPECT_EQ(Spoken("cboCheckObject"), "Object to Look For:");
  EXPECT_EQ(Spoken("cmdCheckObject"), "... Object to Look For:");
  EXPECT_EQ(Spoken("cboCheckObjectFail"), "If Object Not Found, Jump to Label:");
}

TEST_F(CheckObjectPanelTest, TabGoesThroughThePanelFromTopToBottom) {
  EXPECT_EQ(TabOrder(), (Names{"cboCheckObject", "cmdCheckObject", "cboCheckObjectFail"}));
}

TEST_F(CheckObjectPanelTest, ANewEventOffersObjectsByNameAndTheLabels) {
  EXPECT_EQ(Combo("cboCheckObject").ListCount(), 2);
  EXPECT_EQ(Combo("cboCheckObject").List(0), "Keycard");
  EXPECT_EQ(Combo("cboCheckObject").ItemData(0), 7);
  EXPECT_EQ(Combo("cboCheckObject").ListIndex(), -1);
  EXPECT_EQ(Combo("cboCheckObjectFail").ListCount(), 3);
  EXPECT_EQ(Combo("cboCheckObjectFail").List(1), "End");
  EXPECT_EQ(Combo("cboCheckObjectFail").Text(), "");
}

TEST_F(CheckObjectPanelTest, NeedsAnObjectOfTheTableAndALabel) {
  EXPECT_FALSE(IsComplete());
  Type("cboCheckObject", "Keycard");
  EXPECT_FALSE(IsComplete());
  Type("cboCheckObjectFail", "loop");
  EXPECT_TRUE(IsComplete());
  Type("cboCheckObjectFail", "");
  EXPECT_FALSE(IsComplete());
  Type("cboCheckObjectFail", "loop");
  Type("cboCheckObject", "Keycar");
  EXPECT_FALSE(panel_.IsComplete());
}

TEST_F(CheckObjectPanelTest, EveryChangeOfAComboAsksWhetherTheEventIsComplete) {
  changed_.clear();
  Combo("cboCheckObject").SetListIndex(1);
  EXPECT_EQ(changed_.size(), 1);
  Combo("cboCheckObjectFail").SetListIndex(1);
  EXPECT_EQ(changed_.size(), 2);
  Combo("cboCheckObjectFail").SetText("x");
  EXPECT_EQ(changed_.size(), 3);
}

TEST_F(CheckObjectPanelTest, WhatWasTypedIsStored) {
  Type("cboCheckObject", "Keycard");
  Type("cboCheckObjectFail", "loop");
  EXPECT_TRUE(IsComplete());
  const auto& stored = Stored<EventCheckObject>();
  EXPECT_EQ(stored.objectID, 7);
  EXPECT_EQ(stored.failLabel, "loop");
}

TEST_F(CheckObjectPanelTest, AnEventIsShownAndStoredBackAsItWas) {
  EventCheckObject event;
  event.objectID = 9;
  event.failLabel = "gone";
  Show(event);
  EXPECT_EQ(Combo("cboCheckObject").Text(), "Lockpick");
  EXPECT_EQ(Combo("cboCheckObjectFail").Text(), "gone");
  EXPECT_EQ(Combo("cboCheckObjectFail").ListIndex(), -1);
  EXPECT_TRUE(IsComplete());
  EXPECT_EQ(Stored<EventCheckObject>().objectID, 9);
  EXPECT_EQ(Stored<EventCheckObject>().failLabel, "gone");
}

TEST_F(CheckObjectPanelTest, AnUnknownObjectIsAskedAboutAndAddedOnYes) {
  space_.messages.Expect(Answer::Yes);
  Type("cboCheckObject", "Medkit");
  Focus(after_);
  ASSERT_TRUE(QTest::qWaitFor([this] { return space_.messages.shown.size() == 1; }));
  EXPECT_EQ(space_.messages.shown[0].title, "Add Item?");
  EXPECT_EQ(space_.messages.shown[0].text,
            "This entry does not exist in the table, would you like to add it?");
  EXPECT_EQ(Combo("cboCheckObject").ListCount(), 3);
  Type("cboCheckObjectFail", "loop");
  EXPECT_TRUE(IsComplete());
  EXPECT_EQ(Stored<EventCheckObject>().objectID, 10);
}

TEST_F(CheckObjectPanelTest, AnUnknownObjectStaysSelectedInItsFieldOnNo) {
  space_.messages.Expect(Answer::No);
  Type("cboCheckObject", "Medkit");
  Focus(after_);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Combo("cboCheckObject").hasFocus(); }));
  EXPECT_EQ(Combo("cboCheckObject").lineEdit()->selectedText(), "Medkit");
  EXPECT_FALSE(panel_.IsComplete());
}

TEST_F(CheckObjectPanelTest, TheSmallButtonEditsTheObjectsAndTakesTheOneSelectedThere) {
  tables_.chosen = 9;
  changed_.clear();
  Click("cmdCheckObject");
  EXPECT_EQ(tables_.opened, std::vector<std::int32_t>{3});
  EXPECT_EQ(Combo("cboCheckObject").Text(), "Lockpick");
  EXPECT_GE(changed_.size(), 1);
}

TEST_F(CheckObjectPanelTest, ClearingEmptiesEveryField) {
  Combo("cboCheckObject").SetListIndex(1);
  Combo("cboCheckObjectFail").SetListIndex(1);
  panel_.ClearFields();
  EXPECT_EQ(Combo("cboCheckObject").ListIndex(), -1);
  EXPECT_EQ(Combo("cboCheckObject").Text(), "");
  EXPECT_EQ(Combo("cboCheckObjectFail").Text(), "");
}

}  // namespace
}  // namespace parlate

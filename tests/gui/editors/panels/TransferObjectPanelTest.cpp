#include "editors/panels/PanelFixture.h"
#include "editors/panels/TransferObjectPanel.h"

namespace parlate {
namespace {

using namespace testing_support;

class TransferObjectPanelTest : public PanelTest<TransferObjectPanel> {
 protected:
  void TypeAll() {
    Type("cboTransferObject", "Keycard");
    Type("txtTransferCount", "12");
    Type("cboTransferFrom", "Bob");
    Type("cboTransferTo", "Zoe");
    Type("cboTransferObjectFail", "loop");
  }
};

TEST_F(TransferObjectPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 5);
  EXPECT_EQ(panel_.objectName(), "fraEvents(5)");
  EXPECT_EQ(panel_.title(), "Transfer Object");
  EXPECT_EQ(LabelOf("cboTransferObject"), "Object to Transfer:");
  EXPECT_EQ(LabelOf("txtTransferCount"), "Number of items to transfer (only if stackable!)");
  EXPECT_EQ(LabelOf("cboTransferFrom"), "Transfer From:");
  EXPECT_EQ(LabelOf("cboTransferTo"), "Transfer To:");
  EXPECT_EQ(LabelOf("cboTransferObjectFail"), "On Fail Jump To:");
  EXPECT_EQ(Caption("cmdTransferObject"), "...");
  EXPECT_EQ(Caption("cmdTransferFrom"), "Edit NPC Table");
  EXPECT_EQ(Caption("cmdTransferTo"), "Edit NPC Table");
}

TEST_F(TransferObjectPanelTest, ButtonsOfOneCaptionAreReadOutApart) {
  EXPECT_EQ(Spoken("cmdTransferFrom"), "Edit NPC Table Transfer From:");
  EXPECT_EQ(Spoken("cmdTransferTo"), "Edit NPC Table Transfer To:");
  EXPECT_EQ(Spoken("txtTransferCount"), "Number of items to transfer (only if stackable!)");
}

TEST_F(TransferObjectPanelTest, TabGoesThroughThePanelFromTopToBottom) {
  EXPECT_EQ(TabOrder(),
            (Names{"cboTransferObject", "cmdTransferObject", "txtTransferCount", "cboTransferFrom",
                   "cmdTransferFrom", "cboTransferTo", "cmdTransferTo", "cboTransferObjectFail"}));
}

TEST_F(TransferObjectPanelTest, ANewEventStartsWithCountOne) {
  EXPECT_EQ(TextOf("txtTransferCount"), "1");
  EXPECT_EQ(Combo("cboTransferObject").ListCount(), 2);
  EXPECT_EQ(Combo("cboTransferFrom").ListCount(), 2);
  EXPECT_EQ(Combo("cboTransferTo").ListCount(), 2);
  EXPECT_EQ(Combo("cboTransferObjectFail").ListCount(), 3);
}

TEST_F(TransferObjectPanelTest, TheCountIsEmptiedFromOutside) {
  panel_.ClearTransferCount();
  EXPECT_EQ(TextOf("txtTransferCount"), "");
}

TEST_F(TransferObjectPanelTest, NeedsAnObjectAndBothActors) {
  EXPECT_FALSE(IsComplete());
  Type("cboTransferObject", "Keycard");
  EXPECT_FALSE(IsComplete());
  Type("cboTransferFrom", "Bob");
  EXPECT_FALSE(IsComplete());
  Type("cboTransferTo", "Zoe");
  EXPECT_TRUE(IsComplete());
  for (const char* combo : {"cboTransferObject", "cboTransferFrom", "cboTransferTo"}) {
    const int row = Combo(combo).ListIndex();
    Combo(combo).SetListIndex(-1);
    EXPECT_FALSE(IsComplete()) << combo;
    Combo(combo).SetListIndex(row);
    EXPECT_TRUE(IsComplete()) << combo;
  }
}

TEST_F(TransferObjectPanelTest, TheCountAndTheFailLabelMayBeEmpty) {
  TypeAll();
  Type("txtTransferCount", "");
  Type("cboTransferObjectFail", "");
  EXPECT_TRUE(IsComplete());
}

TEST_F(TransferObjectPanelTest, AnActorIsNoObjectAndAnObjectNoActor) {
  Combo("cboTransferObject").SetText("Bob");
  Combo("cboTransferFrom").SetText("Bob");
  Combo("cboTransferTo").SetText("Zoe");
  EXPECT_FALSE(IsComplete());
  Combo("cboTransferObject").SetText("Keycard");
  EXPECT_TRUE(IsComplete());
  Combo("cboTransferTo").SetText("Keycard");
  EXPECT_FALSE(IsComplete());
}

TEST_F(TransferObjectPanelTest, TheCountHasNoSayInWhetherTheEventIsComplete) {
  changed_.clear();
  Line("txtTransferCount").setText("9");
  EXPECT_EQ(changed_.size(), 0);
  int told = 0;
  for (const char* combo :
       {"cboTransferObject", "cboTransferFrom", "cboTransferTo", "cboTransferObjectFail"}) {
    Combo(combo).SetListIndex(0);
    EXPECT_EQ(changed_.size(), ++told) << combo;
  }
}

TEST_F(TransferObjectPanelTest, WhatWasTypedIsStored) {
  TypeAll();
  EXPECT_TRUE(IsComplete());
  const auto& stored = Stored<EventTransferObject>();
  EXPECT_EQ(stored.objectID, 7);
  EXPECT_EQ(stored.transferCount, 12);
  EXPECT_EQ(stored.fromPawnID, 2);
  EXPECT_EQ(stored.toPawnID, 4);
  EXPECT_EQ(stored.failLabel, "loop");
}

TEST_F(TransferObjectPanelTest, ACountThatIsNoNumberIsARunTimeError) {
  TypeAll();
  Type("txtTransferCount", "many");
  EXPECT_EQ(ErrorOf([this] { Stored<EventTransferObject>(); }), RuntimeError::kTypeMismatch);
  Type("txtTransferCount", "");
  EXPECT_EQ(ErrorOf([this] { Stored<EventTransferObject>(); }), RuntimeError::kTypeMismatch);
  Type("txtTransferCount", "2147483648");
  EXPECT_EQ(ErrorOf([this] { Stored<EventTransferObject>(); }), RuntimeError::kOverflow);
}

TEST_F(TransferObjectPanelTest, AnEventIsShownAndStoredBackAsItWas) {
  EventTransferObject event;
  event.Update(9, -3, 4, 2, "End");
  Show(event);
  EXPECT_EQ(Combo("cboTransferObject").Text(), "Lockpick");
  EXPECT_EQ(TextOf("txtTransferCount"), "-3");
  EXPECT_EQ(Combo("cboTransferFrom").Text(), "Zoe");
  EXPECT_EQ(Combo("cboTransferTo").Text(), "Bob");
  EXPECT_EQ(Combo("cboTransferObjectFail").ListIndex(), 1);
  const auto& stored = Stored<EventTransferObject>();
  EXPECT_EQ(stored.objectID, 9);
  EXPECT_EQ(stored.transferCount, -3);
  EXPECT_EQ(stored.fromPawnID, 4);
  EXPECT_EQ(stored.toPawnID, 2);
  EXPECT_EQ(stored.failLabel, "End");
}

TEST_F(TransferObjectPanelTest, AGiftFromNowhereIsShownButNotStoredAnew) {
  EventTransferObject event;
  event.Update(9, 1, -1, 2, "");
  Show(event);
  EXPECT_EQ(Combo("cboTransferFrom").ListIndex(), -1);
  EXPECT_EQ(Combo("cboTransferFrom").Text(), "");
  EXPECT_FALSE(IsComplete());
}

TEST_F(TransferObjectPanelTest, EachButtonEditsTheTableOfItsCombo) {
  tables_.chosen = 7;
  Click("cmdTransferObject");
  EXPECT_EQ(Combo("cboTransferObject").Text(), "Keycard");
  tables_.chosen = 2;
  Click("cmdTransferFrom");
  EXPECT_EQ(Combo("cboTransferFrom").Text(), "Bob");
  EXPECT_EQ(Combo("cboTransferTo").Text(), "");
  tables_.chosen = 4;
  Click("cmdTransferTo");
  EXPECT_EQ(Combo("cboTransferTo").Text(), "Zoe");
  EXPECT_EQ(tables_.opened, (std::vector<std::int32_t>{3, 0, 0}));
}

TEST_F(TransferObjectPanelTest, LeavingAnUnknownEntryAsksInEachCombo) {
  std::size_t asked = 0;
  for (const char* combo : {"cboTransferObject", "cboTransferFrom", "cboTransferTo"}) {
    space_.messages.Expect(Answer::Yes);
    Type(combo, "New");
    Focus(after_);
    ++asked;
    EXPECT_TRUE(QTest::qWaitFor([&] { return space_.messages.shown.size() == asked; })) << combo;
    // The actor that was added for one combo is a row for the other.
    if (asked == 2) space_.workspace.tables.tables[kActorTable].Remove(5);
  }
  EXPECT_TRUE(IsComplete());
}

TEST_F(TransferObjectPanelTest, ClearingEmptiesEveryField) {
  TypeAll();
  panel_.ClearFields();
  EXPECT_EQ(TextOf("txtTransferCount"), "");
  for (const char* combo :
       {"cboTransferObject", "cboTransferFrom", "cboTransferTo", "cboTransferObjectFail"}) {
    EXPECT_EQ(Combo(combo).ListIndex(), -1) << combo;
    EXPECT_EQ(Combo(combo).Text(), "") << combo;
  }
}

}  // namespace
}  // namespace parlate

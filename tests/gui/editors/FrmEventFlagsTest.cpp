// The panels that set and check flags.

#include <gmock/gmock.h>

#include <QPushButton>

#include "editors/EventEditorFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class FrmEventFlags : public EventEditorTest {
 protected:
  /// Stores a new Set Flags event with both flags under the key 6 and leaves it open.
  void AddBothFlags() {
    Add(kSetFlags);
    PickFlags({0, 1}, "12");
    Click("cmdSetFlagAdd");
    Click("cmdUpdate");
  }
};

TEST_F(FrmEventFlags, PanelsSayWhatTheirControlsAre) {
  Add(kSetFlags);
  EXPECT_EQ(CaptionOf("lstSetFlags"), "Flags to Set:");
  EXPECT_EQ(Heads("lstSetFlags"), (QStringList{"Flag Name", "Value", "Exp."}));
  EXPECT_EQ(ButtonCaption("cmdSetFlagAdd"), "Add &Flag");
  EXPECT_EQ(ButtonCaption("cmdSetFlagDelete"), "&Delete");
  EXPECT_EQ(CaptionOf("lstCheckFlags"), "Flags to Check:");
  EXPECT_EQ(Heads("lstCheckFlags"), (QStringList{"Flag Name", "Value"}));
  EXPECT_EQ(ButtonCaption("cmdCheckFlagAdd"), "Add &Flag");
  EXPECT_EQ(ButtonCaption("cmdCheckFlagDelete"), "&Delete");
  EXPECT_EQ(CaptionOf("cboCheckFlagGoto"), "If Flags Set Jump To:");
}

TEST_F(FrmEventFlags, SetFlagsGoTheWholeWayToTheFileAndBack) {
  Add(kSetFlags);
  EXPECT_FALSE(CanUpdate());
  EXPECT_FALSE(IsEnabled("cmdSetFlagDelete"));
  PickFlags({0, 1}, "12");
  Click("cmdSetFlagAdd");
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Door;True;12", "Lamp;True;12"));
  EXPECT_TRUE(CanUpdate());
  DoubleClickRowOf("lstSetFlags", 1);
  Click("cmdUpdate");
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Door;True;12", "Lamp;False;12"));
  SaveAndReload();
  const FlagList& flags = EventOf<EventSetFlag>(6).flagRefs;
  ASSERT_EQ(flags.Count(), 2U);
  EXPECT_EQ(flags.Place(1)->flagID, 2);
  EXPECT_TRUE(flags.Place(1)->bValue);
  EXPECT_EQ(flags.Place(1)->expiration, 12);
  EXPECT_EQ(flags.Place(2)->flagID, 3);
  EXPECT_FALSE(flags.Place(2)->bValue);
  EXPECT_EQ(flags.Place(2)->expiration, 12);
}

TEST_F(FrmEventFlags, CheckFlagsGoTheWholeWayToTheFileAndBack) {
  Add(kCheckFlags);
  PickFlags({1});
  Click("cmdCheckFlagAdd");
  EXPECT_THAT(RowsOf("lstCheckFlags"), ElementsAre("Lamp;True"));
  EXPECT_FALSE(CanUpdate()) << "the label is missing";
  Type("cboCheckFlagGoto", "Stop");
  EXPECT_TRUE(CanUpdate());
  Click("cmdUpdate");
  SaveAndReload();
  const auto& check = EventOf<EventCheckFlag>(6);
  EXPECT_EQ(check.failLabel, "Stop");
  ASSERT_EQ(check.flagRefs.Count(), 1U);
  EXPECT_EQ(check.flagRefs.Place(1)->flagID, 3);
  EXPECT_TRUE(check.flagRefs.Place(1)->bValue);
  EXPECT_EQ(check.flagRefs.Place(1)->expiration, 0);
}

TEST_F(FrmEventFlags, CheckFlagsNeedAFlagAndALabel) {
  Add(kCheckFlags);
  Type("cboCheckFlagGoto", "Anywhere");
  EXPECT_FALSE(CanUpdate());
  PickFlags({0});
  Click("cmdCheckFlagAdd");
  EXPECT_TRUE(CanUpdate()) << "the label need not exist";
  Type("cboCheckFlagGoto", "");
  EXPECT_FALSE(CanUpdate());
  Type("cboCheckFlagGoto", "x");
  ClickRowOf("lstCheckFlags", 0);
  Click("cmdCheckFlagDelete");
  EXPECT_FALSE(CanUpdate());
}

TEST_F(FrmEventFlags, ALabelThatIsGoneStaysInTheFieldAndCanBeStored) {
  Add(kCheckFlags);
  PickFlags({0});
  Click("cmdCheckFlagAdd");
  Type("cboCheckFlagGoto", "Gone");
  Click("cmdUpdate");
  Edit(0);
  Edit(5);
  EXPECT_EQ(Combo("cboCheckFlagGoto").Text(), "Gone");
  EXPECT_EQ(Combo("cboCheckFlagGoto").ListIndex(), -1);
  ASSERT_TRUE(CanUpdate());
  Click("cmdUpdate");
  EXPECT_EQ(EventOf<EventCheckFlag>(6).failLabel, "Gone");
}

TEST_F(FrmEventFlags, ACancelledPickerChangesNothing) {
  Add(kSetFlags);
  WhenFormShows("frmFlagList", [](QWidget& form) {
    ControlNamed<QtListBox>(form, "lstFlags").SetSelected(0, true);
    QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
  });
  Click("cmdSetFlagAdd");
  EXPECT_THAT(RowsOf("lstSetFlags"), IsEmpty());
}

TEST_F(FrmEventFlags, DoubleClickTogglesAFlagAtOnceAndCloseKeepsIt) {
  AddBothFlags();
  DoubleClickRowOf("lstSetFlags", 0);
  EXPECT_EQ(List("lstSetFlags").Rows().ListIndex(), 0) << "the row stays selected";
  EXPECT_FALSE(EventOf<EventSetFlag>(6).flagRefs.At(2).bValue);
  Click("cmdClose");
  EXPECT_FALSE(EventOf<EventSetFlag>(6).flagRefs.At(2).bValue);
}

TEST_F(FrmEventFlags, SpaceTogglesTheSelectedFlagAndWithoutOneNothing) {
  AddBothFlags();
  Focus("lstSetFlags");
  Press(Qt::Key_Space);
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Door;True;12", "Lamp;True;12"));
  Press(Qt::Key_End);
  Press(Qt::Key_Space);
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Door;True;12", "Lamp;False;12"));
  EXPECT_FALSE(EventOf<EventSetFlag>(6).flagRefs.At(3).bValue);
}

TEST_F(FrmEventFlags, DeletedFlagIsGoneFromTheEventAtOnceWithoutAQuestion) {
  AddBothFlags();
  ClickRowOf("lstSetFlags", 0);
  Click("cmdSetFlagDelete");
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Lamp;True;12"));
  EXPECT_EQ(List("lstSetFlags").Rows().ListIndex(), 0) << "the row that moved up";
  EXPECT_EQ(EventOf<EventSetFlag>(6).flagRefs.Count(), 1U);
  Click("cmdSetFlagDelete");
  EXPECT_FALSE(IsEnabled("cmdSetFlagDelete"));
  EXPECT_FALSE(CanUpdate());
  EXPECT_TRUE(EventOf<EventSetFlag>(6).flagRefs.Empty());
}

TEST_F(FrmEventFlags, DeleteButtonKeepsTheFocusWhileThereIsAFlag) {
  AddBothFlags();
  ClickRowOf("lstSetFlags", 0);
  Focus("cmdSetFlagDelete");
  Press(Qt::Key_Space);
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Lamp;True;12"));
  EXPECT_TRUE(The<QWidget>("cmdSetFlagDelete").hasFocus());
  Press(Qt::Key_Space);
  EXPECT_THAT(RowsOf("lstSetFlags"), IsEmpty());
  EXPECT_TRUE(List("lstSetFlags").hasFocus()) << "not a button that the next press would use";
  Press(Qt::Key_Space);
  EXPECT_EQ(TextOf("txtLabel"), "");
  EXPECT_FALSE(IsEnabled("cboEvents")) << "it is still the same event";
}

TEST_F(FrmEventFlags, DeleteButtonOfTheChecksKeepsTheFocusToo) {
  Add(kCheckFlags);
  PickFlags({0, 1});
  Click("cmdCheckFlagAdd");
  ClickRowOf("lstCheckFlags", 1);
  Focus("cmdCheckFlagDelete");
  Press(Qt::Key_Space);
  EXPECT_THAT(RowsOf("lstCheckFlags"), ElementsAre("Door;True"));
  EXPECT_TRUE(The<QWidget>("cmdCheckFlagDelete").hasFocus());
  Press(Qt::Key_Space);
  EXPECT_THAT(RowsOf("lstCheckFlags"), IsEmpty());
  EXPECT_TRUE(List("lstCheckFlags").hasFocus());
}

TEST_F(FrmEventFlags, AFlagThatWasRedirectedCanBeToggledAndDeleted) {
  AddBothFlags();
  EventOf<EventSetFlag>(6).ChangeTableLink(kFlagTable, 2, 3);
  Edit(0);
  Edit(5);
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Lamp;True;12", "Lamp;True;12"));
  DoubleClickRowOf("lstSetFlags", 0);
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Lamp;False;12", "Lamp;True;12"));
  Click("cmdSetFlagDelete");
  const FlagList& flags = EventOf<EventSetFlag>(6).flagRefs;
  ASSERT_EQ(flags.Count(), 1U);
  EXPECT_TRUE(flags.Place(1)->bValue) << "the other one";
  DoubleClickRowOf("lstSetFlags", 0);
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Lamp;False;12"));
  EXPECT_FALSE(flags.Place(1)->bValue);
}

TEST_F(FrmEventFlags, ARedirectedFlagWithNoneUnderItsNewKeyCanBeDeleted) {
  Add(kSetFlags);
  PickFlags({0}, "3");
  Click("cmdSetFlagAdd");
  Click("cmdUpdate");
  EventOf<EventSetFlag>(6).ChangeTableLink(kFlagTable, 2, 3);
  Edit(0);
  Edit(5);
  DoubleClickRowOf("lstSetFlags", 0);
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Lamp;False;3"));
  Click("cmdSetFlagDelete");
  EXPECT_THAT(RowsOf("lstSetFlags"), IsEmpty());
  EXPECT_TRUE(EventOf<EventSetFlag>(6).flagRefs.Empty());
}

TEST_F(FrmEventFlags, StoringTheOwnListOfAnEventNeitherLosesNorDoublesAFlag) {
  AddBothFlags();
  Click("cmdUpdate");
  Click("cmdUpdate");
  const FlagList& flags = EventOf<EventSetFlag>(6).flagRefs;
  ASSERT_EQ(flags.Count(), 2U);
  EXPECT_EQ(flags.KeyAt(1), 2);
  EXPECT_EQ(flags.KeyAt(2), 3);
}

TEST_F(FrmEventFlags, TheNextNewEventSharesNothingWithTheOneBefore) {
  AddBothFlags();
  Click("cmdAddEvent");
  EXPECT_THAT(RowsOf("lstSetFlags"), IsEmpty());
  PickFlags({0}, "3");
  Click("cmdSetFlagAdd");
  Click("cmdUpdate");
  EXPECT_EQ(EventOf<EventSetFlag>(7).flagRefs.Count(), 1U);
  EXPECT_EQ(EventOf<EventSetFlag>(6).flagRefs.Count(), 2U);
  EXPECT_EQ(EventOf<EventSetFlag>(6).flagRefs.At(2).expiration, 12);
}

TEST_F(FrmEventFlags, WhatWasPickedForANewEventIsDroppedWithIt) {
  Add(kSetFlags);
  PickFlags({0}, "0");
  Click("cmdSetFlagAdd");
  Add(kSetFlags);
  EXPECT_THAT(RowsOf("lstSetFlags"), IsEmpty());
  EXPECT_FALSE(CanUpdate());
}

TEST_F(FrmEventFlags, DeleteOfSetFlagsKeepsItsStateUntilTheListIsClicked) {
  AddBothFlags();
  ClickRowOf("lstSetFlags", 0);
  ASSERT_TRUE(IsEnabled("cmdSetFlagDelete"));
  Click("cmdAddEvent");
  EXPECT_TRUE(IsEnabled("cmdSetFlagDelete")) << "no row is selected, and there is none";
  Click("cmdSetFlagDelete");
  EXPECT_FALSE(IsEnabled("cmdSetFlagDelete"));
  EXPECT_EQ(EventOf<EventSetFlag>(6).flagRefs.Count(), 2U);
}

TEST_F(FrmEventFlags, DeleteOfCheckFlagsFollowsTheSelection) {
  Add(kCheckFlags);
  PickFlags({0, 1});
  Click("cmdCheckFlagAdd");
  EXPECT_FALSE(IsEnabled("cmdCheckFlagDelete"));
  ClickRowOf("lstCheckFlags", 1);
  EXPECT_TRUE(IsEnabled("cmdCheckFlagDelete"));
  Click("cmdAddEvent");
  EXPECT_FALSE(IsEnabled("cmdCheckFlagDelete"));
}

TEST_F(FrmEventFlags, InsertAndDeleteActForTheFormAsAWhole) {
  Add(kSetFlags);
  Focus("cmdClose");
  PickFlags({0, 1}, "1");
  Press(Qt::Key_Insert);
  EXPECT_EQ(RowsOf("lstSetFlags").size(), 2U);
  Focus("cmdClose");
  Press(Qt::Key_Delete);
  EXPECT_EQ(RowsOf("lstSetFlags").size(), 2U) << "the button is grey";
  ClickRowOf("lstSetFlags", 1);
  Focus("cmdClose");
  Press(Qt::Key_Delete, Qt::ControlModifier);
  EXPECT_EQ(RowsOf("lstSetFlags").size(), 2U) << "only with no modifier";
  Press(Qt::Key_Delete);
  EXPECT_THAT(RowsOf("lstSetFlags"), ElementsAre("Door;True;1"));
}

TEST_F(FrmEventFlags, InAFieldDeleteIsForItsTextAndInsertForTheList) {
  Add(kCheckFlags);
  PickFlags({0, 1});
  Focus("txtLabel");
  Press(Qt::Key_Insert);
  ASSERT_EQ(RowsOf("lstCheckFlags").size(), 2U);
  ClickRowOf("lstCheckFlags", 0);
  Type("txtLabel", "abc");
  Press(Qt::Key_Home);
  Press(Qt::Key_Delete);
  EXPECT_EQ(TextOf("txtLabel"), "bc");
  Type("cboCheckFlagGoto", "x");
  Press(Qt::Key_Delete);
  EXPECT_EQ(RowsOf("lstCheckFlags").size(), 2U);
}

TEST_F(FrmEventFlags, InsertAndDeleteMeanNothingOnOtherPanels) {
  Edit(4);
  Focus("cmdClose");
  Press(Qt::Key_Insert);
  Press(Qt::Key_Delete);
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5));
}

}  // namespace
}  // namespace parlate

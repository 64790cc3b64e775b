// The flags in the conversation's properties.

#include "editors/PropertiesFixture.h"
#include "mainwindow/WindowFixture.h"
#include "platform/QtListBox.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

using FrmPropertiesFlags = PropertiesTest;

TEST_F(FrmPropertiesFlags, AFlagIsPickedAndReachesTheConversationOnOkOnly) {
  GoTo(kFlags);
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    auto& flags = ControlNamed<QtListBox>(picker, "lstFlags");
    EXPECT_EQ(flags.ListCount(), 1);
    EXPECT_EQ(flags.List(0), "Boat");
    EXPECT_TRUE(ControlNamed<QWidget>(picker, "txtExpiration").isHidden());
    QTest::mouseClick(flags.viewport(), Qt::LeftButton, {},
                      flags.visualItemRect(flags.item(0)).center());
    QTest::mouseClick(&ControlNamed<QPushButton>(picker, "cmdOK"), Qt::LeftButton);
  });
  Click("cmdFlagAdd");
  EXPECT_THAT(FlagRows(), ElementsAre("Door;True", "Lamp;False", "Boat;True"));
  EXPECT_THAT(IDs(con_->flagRefs), ElementsAre(2, 3));
  Click("cmdOK");
  EXPECT_THAT(IDs(con_->flagRefs), ElementsAre(2, 3, 4));
  EXPECT_TRUE(con_->flagRefs.At(4).bValue);
  EXPECT_EQ(con_->flagRefs.At(4).expiration, 0);
}

TEST_F(FrmPropertiesFlags, AFlagDeletedFromItsTableInThePickerGoesAlsoAfterCancel) {
  GoTo(kFlags);
  tables_.user = [] {
    GetTable(kFlagTable)->Remove(2);
    return -1;
  };
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    QTest::mouseClick(&ControlNamed<QPushButton>(picker, "cmdEdit"), Qt::LeftButton);
    QTest::mouseClick(&ControlNamed<QPushButton>(picker, "cmdCancel"), Qt::LeftButton);
  });
  Click("cmdFlagAdd");
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;False"));
}

TEST_F(FrmPropertiesFlags, DeleteIsLiveWhileAFlagIsSelectedAndMovesTheSelectionOn) {
  EXPECT_FALSE(IsEnabled("cmdFlagRemove"));
  ClickFlag(0);
  EXPECT_TRUE(IsEnabled("cmdFlagRemove"));
  Click("cmdFlagRemove");
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;False"));
  EXPECT_EQ(FlagList().Rows().ListIndex(), 0);
  EXPECT_TRUE(IsEnabled("cmdFlagRemove"));
  Click("cmdFlagRemove");
  EXPECT_TRUE(FlagRows().empty());
  EXPECT_FALSE(IsEnabled("cmdFlagRemove"));
}

TEST_F(FrmPropertiesFlags, DeleteKeepsTheFocusWhileThereIsAFlag) {
  ClickFlag(0);
  auto& button = The<QPushButton>("cmdFlagRemove");
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;False"));
  EXPECT_TRUE(button.hasFocus());
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_TRUE(FlagRows().empty());
  EXPECT_TRUE(FlagList().hasFocus());
}

TEST_F(FrmPropertiesFlags, CancelAfterRemovingAFlagLeavesTheConversationsFlags) {
  ClickFlag(0);
  Click("cmdFlagRemove");
  ClickFlag(0);
  QTest::mouseDClick(FlagList().viewport(), Qt::LeftButton, {}, FlagList().RowRect(0).center());
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;True"));
  Click("cmdCancel");
  EXPECT_THAT(IDs(con_->flagRefs), ElementsAre(2, 3));
  EXPECT_FALSE(con_->flagRefs.At(3).bValue);
}

TEST_F(FrmPropertiesFlags, ADoubleClickTogglesTheFlagAndKeepsItSelected) {
  ClickFlag(0);
  QTest::mouseDClick(FlagList().viewport(), Qt::LeftButton, {}, FlagList().RowRect(0).center());
  EXPECT_THAT(FlagRows(), ElementsAre("Door;False", "Lamp;False"));
  EXPECT_EQ(FlagList().Rows().ListIndex(), 0);
  EXPECT_TRUE(con_->flagRefs.At(2).bValue);
  Click("cmdOK");
  EXPECT_FALSE(con_->flagRefs.At(2).bValue);
}

TEST_F(FrmPropertiesFlags, SpaceTogglesTheSelectedFlagAsADoubleClickDoes) {
  ClickFlag(0);
  const std::vector<std::string> before = FlagRows();
  QTest::keyClick(&FlagList(), Qt::Key_Space);
  EXPECT_NE(FlagRows(), before);
  QTest::keyClick(&FlagList(), Qt::Key_Space);
  EXPECT_EQ(FlagRows(), before);
  QTest::keyClick(&FlagList(), Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(FlagRows(), before);
}

TEST_F(FrmPropertiesFlags, InsertAddsFlagsAndDeleteRemovesTheSelectedOneWithNoModifierHeld) {
  ClickFlag(0);
  QTest::keyClick(&FlagList(), Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_EQ(FlagRows().size(), 2U);
  QTest::keyClick(&FlagList(), Qt::Key_Delete);
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;False"));
  bool came = false;
  WhenFormShows("frmFlagList", [&came](QWidget& picker) {
    came = true;
    picker.close();
  });
  QTest::keyClick(&FlagList(), Qt::Key_Insert);
  EXPECT_TRUE(came);
}

TEST_F(FrmPropertiesFlags, DeleteWithNoFlagSelectedDoesNothing) {
  GoTo(kFlags);
  FlagList().setFocus();
  FlagList().Rows().SetListIndex(-1);
  QTest::keyClick(&FlagList(), Qt::Key_Delete);
  EXPECT_EQ(FlagRows().size(), 2U);
}

TEST_F(FrmPropertiesFlags, DeleteInATextDeletesItsLettersAndNoFlag) {
  ClickFlag(0);
  GoTo(kGeneral);
  Name().setFocus();
  Name().setCursorPosition(0);
  QTest::keyClick(&Name(), Qt::Key_Delete);
  EXPECT_EQ(Name().text(), "reeting");
  EXPECT_EQ(FlagRows().size(), 2U);
}

}  // namespace
}  // namespace parlate

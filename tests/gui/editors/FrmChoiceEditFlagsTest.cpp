#include "editors/ChoiceEditorFixture.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;

class FrmChoiceEditFlagsTest : public ChoiceEditorTest {};

TEST_F(FrmChoiceEditFlagsTest, AddedFlagsReachTheChoiceWithOkOnly) {
  const auto pick = [](QWidget& picker) {
    const auto& list = ControlNamed<QtListBox>(picker, "lstFlags");
    EXPECT_EQ(list.ListCount(), 2) << "the flag of the choice is not offered";
    EXPECT_EQ(list.List(0), "Lamp");
    EXPECT_FALSE(TextOf(picker, "txtExpiration").isVisible());
    ControlNamed<QtListBox>(picker, "lstFlags").SetSelected(1, true);
    ControlNamed<QtComboBox>(picker, "cboFlagValues").SetListIndex(1);
    Click(picker, "cmdOK");
  };
  const auto addFlag = [&pick](QWidget& form) {
    Turn(form, 1);
    WhenFormShows("frmFlagList", pick);
    Click(form, "cmdFlagAdd");
    EXPECT_THAT(FlagRows(form), ElementsAre("Door;True", "Zip;False"));
    EXPECT_FALSE(IsEnabled(form, "cmdFlagDelete"));
  };
  EXPECT_FALSE(Edit(Yes(), addFlag));
  EXPECT_EQ(Yes()->flagRefs.Count(), 1U);
  EXPECT_TRUE(Edit(Yes(), [&](QWidget& form) {
    addFlag(form);
    Click(form, "cmdOK");
  }));
  ASSERT_EQ(Yes()->flagRefs.Count(), 2U);
  EXPECT_FALSE(Yes()->flagRefs.At(6).bValue);
  EXPECT_EQ(Yes()->flagRefs.At(6).expiration, 0);
}

TEST_F(FrmChoiceEditFlagsTest, ACancelledPickerAddsNothing) {
  Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    WhenFormShows("frmFlagList", [](QWidget& picker) { Click(picker, "cmdCancel"); });
    Click(form, "cmdFlagAdd");
    EXPECT_THAT(FlagRows(form), ElementsAre("Door;True"));
  });
}

TEST_F(FrmChoiceEditFlagsTest, DeleteTakesTheSelectedFlagWithoutAQuestion) {
  EXPECT_TRUE(Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    EXPECT_FALSE(IsEnabled(form, "cmdFlagDelete"));
    ClickFlag(form, 0);
    EXPECT_TRUE(IsEnabled(form, "cmdFlagDelete"));
    Click(form, "cmdFlagDelete");
    EXPECT_TRUE(FlagRows(form).empty());
    EXPECT_FALSE(IsEnabled(form, "cmdFlagDelete"));
    Click(form, "cmdOK");
  }));
  EXPECT_TRUE(Yes()->flagRefs.Empty());
}

TEST_F(FrmChoiceEditFlagsTest, TheDeleteButtonKeepsTheFocusWhileThereIsAFlag) {
  const auto zip = std::make_shared<FlagRef>();
  zip->flagID = 6;
  Yes()->flagRefs.Add(6, zip);
  Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    ClickFlag(form, 0);
    auto& button = ControlNamed<QPushButton>(form, "cmdFlagDelete");
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_THAT(FlagRows(form), ElementsAre("Zip;False"));
    EXPECT_TRUE(button.hasFocus());
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_TRUE(FlagRows(form).empty());
    EXPECT_TRUE(Flags(form).hasFocus());
  });
}

TEST_F(FrmChoiceEditFlagsTest, SpaceTogglesTheSelectedFlagAsADoubleClickDoes) {
  Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    ClickFlag(form, 0);
    const auto before = FlagRows(form);
    QTest::keyClick(&Flags(form), Qt::Key_Space);
    EXPECT_NE(FlagRows(form), before);
    QTest::keyClick(&Flags(form), Qt::Key_Space);
    EXPECT_EQ(FlagRows(form), before);
  });
}

TEST_F(FrmChoiceEditFlagsTest, TheDeleteAndInsertKeysInTheListPressItsButtons) {
  Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    ClickFlag(form, 0);
    QTest::keyClick(&Flags(form), Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_THAT(FlagRows(form), ElementsAre("Door;True"));
    QTest::keyClick(&Flags(form), Qt::Key_Delete);
    EXPECT_TRUE(FlagRows(form).empty());
    bool picked = false;
    WhenFormShows("frmFlagList", [&picked](QWidget& picker) {
      picked = true;
      Click(picker, "cmdCancel");
    });
    QTest::keyClick(&Flags(form), Qt::Key_Insert);
    EXPECT_TRUE(picked);
  });
}

TEST_F(FrmChoiceEditFlagsTest, ADoubleClickTogglesAFlagAndKeepsItsRowSelected) {
  EXPECT_TRUE(Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    ClickFlag(form, 0);
    QTest::mouseDClick(Flags(form).viewport(), Qt::LeftButton, {}, Flags(form).RowRect(0).center());
    EXPECT_THAT(FlagRows(form), ElementsAre("Door;False"));
    EXPECT_EQ(Flags(form).Rows().ListIndex(), 0);
    EXPECT_TRUE(IsEnabled(form, "cmdFlagDelete"));
    Click(form, "cmdOK");
  }));
  EXPECT_FALSE(Yes()->flagRefs.At(2).bValue);
}

TEST_F(FrmChoiceEditFlagsTest, AToggledFlagIsForgottenOnCancel) {
  EXPECT_FALSE(Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    ClickFlag(form, 0);
    QTest::mouseDClick(Flags(form).viewport(), Qt::LeftButton, {}, Flags(form).RowRect(0).center());
  }));
  EXPECT_TRUE(Yes()->flagRefs.At(2).bValue);
}

}  // namespace
}  // namespace parlate

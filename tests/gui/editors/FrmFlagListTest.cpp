#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "editors/EditorFixture.h"
#include "editors/ShownForm.h"
#include "editors/frmFlagList.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;
using testing::IsEmpty;

class FrmFlagListTest : public ShownForm<frmFlagList> {
 protected:
  FrmFlagListTest() {
    space_.workspace.tableEditor = &tables_;
    TestWorkspace::AddRows(kFlagTable, {{3, "Lamp"}, {2, "Door"}, {7, "anchor"}, {5, "Zip"}});
  }

  std::unique_ptr<frmFlagList> MakeForm() override {
    auto form = std::make_unique<frmFlagList>();
    form->SetFlags(flags_);
    return form;
  }
  QtListBox& List() { return ControlNamed<QtListBox>(Form(), "lstFlags"); }
  std::vector<std::string> Offered() {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(List().ListCount()));
    for (int i = 0; i < List().ListCount(); ++i) names.push_back(List().List(i));
    return names;
  }
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(List().viewport(), Qt::LeftButton, modifiers,
                      List().visualItemRect(List().item(row)).center());
  }
  void DoubleClickRow(int row) {
    ClickRow(row);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {},
                       List().visualItemRect(List().item(row)).center());
  }
  void ExpectExpirationToCorrect() {
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(form_->modalResult, 1);
    EXPECT_TRUE(TextOf(*form_, "txtExpiration").hasFocus());
    EXPECT_EQ(TextOf(*form_, "txtExpiration").selectedText(), "99999999999");
    EXPECT_TRUE(space_.messages.shown.empty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "no other box either";
  }
  void Hold(std::int32_t id) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = id;
    flags_.Add(id, flag);
  }

  TestWorkspace space_;
  ScriptedTableEditor tables_;
  FlagList flags_;
};

TEST_F(FrmFlagListTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(Form().objectName(), "frmFlagList");
  EXPECT_EQ(Form().windowTitle(), "Flag List");
  EXPECT_EQ(ControlNamed<QLabel>(Form(), "Label1").text(), "Select Flags:");
  EXPECT_EQ(ControlNamed<QLabel>(Form(), "Label11").text(), "Value:");
  EXPECT_EQ(ControlNamed<QLabel>(Form(), "lblExpiration").text(), "Mission Expiration (0 = None):");
  EXPECT_EQ(ControlNamed<QPushButton>(Form(), "cmdEdit").text(), "&Edit Flags...");
  EXPECT_EQ(ControlNamed<QPushButton>(Form(), "cmdOK").text(), "&OK");
  EXPECT_EQ(ControlNamed<QPushButton>(Form(), "cmdCancel").text(), "&Cancel");
  for (const char* name : {"Label11", "cboFlagValues", "lblExpiration", "txtExpiration"}) {
    EXPECT_EQ(ControlNamed<QWidget>(Form(), name).parentWidget()->objectName(), "Frame1") << name;
  }
}

TEST_F(FrmFlagListTest, AFlagThatWasRedirectedIsNotOfferedASecondTime) {
  Hold(3);
  flags_.At(3).flagID = 7;
  EXPECT_THAT(Offered(), ElementsAre("Door", "Zip"));
}

TEST_F(FrmFlagListTest, TrueAndNoExpirationAreTheDefaults) {
  const auto& values = ControlNamed<QtComboBox>(Form(), "cboFlagValues");
  ASSERT_EQ(values.ListCount(), 2);
  EXPECT_EQ(values.List(0), "True");
  EXPECT_EQ(values.ItemData(0), -1);
  EXPECT_EQ(values.List(1), "False");
  EXPECT_EQ(values.ItemData(1), 0);
  EXPECT_EQ(values.ListIndex(), 0);
  EXPECT_EQ(values.lineEdit(), nullptr) << "nothing can be typed";
  EXPECT_EQ(TextOf(Form(), "txtExpiration").text(), "0");
  EXPECT_TRUE(Form().FlagValue());
  EXPECT_EQ(Form().FlagExpiration(), 0);
  EXPECT_EQ(Form().modalResult, 1);
}

TEST_F(FrmFlagListTest, OnlyFlagsThatTheListLacksAreOfferedInOrderOfTheirNames) {
  Hold(2);
  EXPECT_THAT(Offered(), ElementsAre("anchor", "Lamp", "Zip"));
  EXPECT_EQ(List().ItemData(0), 7);
  EXPECT_EQ(List().ItemData(1), 3);
  EXPECT_EQ(List().ItemData(2), 5);
}

TEST_F(FrmFlagListTest, OfTwoFlagsOfOneNameEachRowPicksItsOwn) {
  TestWorkspace::AddRows(kFlagTable, {{9, "Lamp"}});
  ASSERT_THAT(Offered(), ElementsAre("anchor", "Door", "Lamp", "Lamp", "Zip"));
  ClickRow(2);
  EXPECT_EQ(Form().SelectedFlag(), 3);
  ClickRow(3);
  EXPECT_EQ(Form().SelectedFlag(), 9);
  ClickRow(2, Qt::ControlModifier);
  SetSelectedFlagRefs(flags_, Form().Rows(), true, 0);
  ASSERT_EQ(flags_.Count(), 2U);
  EXPECT_NE(flags_.Find(3), nullptr);
  EXPECT_NE(flags_.Find(9), nullptr);
}

TEST_F(FrmFlagListTest, OfTwoFlagsOfOneNameTheOneThatTheListLacksIsOffered) {
  TestWorkspace::AddRows(kFlagTable, {{9, "Lamp"}});
  Hold(3);
  ASSERT_THAT(Offered(), ElementsAre("anchor", "Door", "Lamp", "Zip"));
  EXPECT_EQ(List().ItemData(2), 9);
}

TEST_F(FrmFlagListTest, WithEveryFlagInTheListThePickerIsEmptyAndOkGrey) {
  for (const std::int32_t id : {2, 3, 5, 7}) Hold(id);
  EXPECT_THAT(Offered(), IsEmpty());
  EXPECT_FALSE(IsEnabled("cmdOK"));
}

TEST_F(FrmFlagListTest, OkNeedsASelectedFlag) {
  EXPECT_FALSE(IsEnabled("cmdOK"));
  EXPECT_EQ(Form().SelectedFlag(), -1);
  ClickRow(1);
  EXPECT_TRUE(IsEnabled("cmdOK"));
  EXPECT_EQ(Form().SelectedFlag(), 2);
  ClickRow(1, Qt::ControlModifier);
  EXPECT_FALSE(IsEnabled("cmdOK"));
}

TEST_F(FrmFlagListTest, TheKeysSelectToo) {
  List().setFocus();
  EXPECT_EQ(Form().SelectedFlag(), -1);
  QTest::keyClick(&List(), Qt::Key_End);
  EXPECT_EQ(Form().SelectedFlag(), 5);
  EXPECT_TRUE(IsEnabled("cmdOK"));
}

TEST_F(FrmFlagListTest, SeveralFlagsCanBeSelectedAndTakeOneValue) {
  ClickRow(0);
  ClickRow(2, Qt::ControlModifier);
  QTest::keyClick(&ControlNamed<QtComboBox>(Form(), "cboFlagValues"), Qt::Key_Down);
  TextOf(Form(), "txtExpiration").setText("4");
  EXPECT_FALSE(Form().FlagValue());
  EXPECT_EQ(Form().FlagExpiration(), 4);
  SetSelectedFlagRefs(flags_, Form().Rows(), Form().FlagValue(), Form().FlagExpiration());
  ASSERT_EQ(flags_.Count(), 2U);
  EXPECT_EQ(flags_.KeyAt(1), 7);
  EXPECT_EQ(flags_.KeyAt(2), 3);
  EXPECT_FALSE(flags_.At(3).bValue);
  EXPECT_EQ(flags_.At(3).expiration, 4);
}

TEST_F(FrmFlagListTest, AnExpirationThatBeginsWithNoNumberIsNone) {
  TextOf(Form(), "txtExpiration").setText("abc");
  EXPECT_EQ(Form().FlagExpiration(), 0);
  TextOf(Form(), "txtExpiration").setText("");
  EXPECT_EQ(Form().FlagExpiration(), 0);
  TextOf(Form(), "txtExpiration").setText("12 days");
  EXPECT_EQ(Form().FlagExpiration(), 12);
}

TEST_F(FrmFlagListTest, TheExpirationIsThereUnlessItIsHidden) {
  EXPECT_TRUE(TextOf(Form(), "txtExpiration").isVisible());
  EXPECT_TRUE(ControlNamed<QLabel>(Form(), "lblExpiration").isVisible());
  Form().ShowExpiration(false);
  EXPECT_FALSE(TextOf(Form(), "txtExpiration").isVisible());
  EXPECT_FALSE(ControlNamed<QLabel>(Form(), "lblExpiration").isVisible());
  Form().ShowExpiration(true);
  EXPECT_TRUE(TextOf(Form(), "txtExpiration").isVisible());
}

TEST_F(FrmFlagListTest, FlagsAddedInTheTableAppearAtOnceInSortedPlace) {
  ClickRow(0);
  tables_.user = [] {
    AddTableItem(kFlagTable, "Candle");
    return -1;
  };
  Click("cmdEdit");
  EXPECT_THAT(tables_.opened, ElementsAre(kFlagTable));
  EXPECT_THAT(Offered(), ElementsAre("anchor", "Candle", "Door", "Lamp", "Zip"));
  EXPECT_EQ(List().ItemData(1), 8);
  EXPECT_TRUE(List().selectedItems().isEmpty()) << "what was selected before is lost";
  EXPECT_FALSE(IsEnabled("cmdOK"));
}

TEST_F(FrmFlagListTest, OkIsZeroAndHides) {
  ClickRow(0);
  QTest::keyClick(&Form(), Qt::Key_Return);
  EXPECT_EQ(Form().modalResult, 0);
  EXPECT_TRUE(Form().isHidden());
}

TEST_F(FrmFlagListTest, CancelEscapeAndClosingStayOne) {
  ClickRow(0);
  Click("cmdCancel");
  EXPECT_EQ(form_->modalResult, 1);
  EXPECT_TRUE(form_->isHidden());
  form_.reset();
  QTest::keyClick(&Form(), Qt::Key_Escape);
  EXPECT_EQ(form_->modalResult, 1);
  EXPECT_TRUE(form_->isHidden());
  form_.reset();
  ClickRow(0);
  form_->close();
  EXPECT_EQ(form_->modalResult, 1);
  EXPECT_TRUE(form_->isHidden());
}

TEST_F(FrmFlagListTest, ADoubleClickTakesTheRowWithTheValueAndExpirationShown) {
  ControlNamed<QtComboBox>(Form(), "cboFlagValues").SetListIndex(1);
  TextOf(Form(), "txtExpiration").setText("9");
  DoubleClickRow(3);
  EXPECT_EQ(form_->modalResult, 0);
  EXPECT_TRUE(form_->isHidden());
  SetSelectedFlagRefs(flags_, form_->Rows(), form_->FlagValue(), form_->FlagExpiration());
  ASSERT_EQ(flags_.Count(), 1U);
  EXPECT_FALSE(flags_.At(5).bValue);
  EXPECT_EQ(flags_.At(5).expiration, 9);
}

TEST_F(FrmFlagListTest, AnExpirationThatTheFileCannotHoldIsLeftToCorrect) {
  TextOf(Form(), "txtExpiration").setText("99999999999");
  ClickRow(0);
  Click("cmdOK");
  ExpectExpirationToCorrect();
  DoubleClickRow(1);
  ExpectExpirationToCorrect();
  QTest::keyClicks(QApplication::focusWidget(), "2147483647");
  QTest::keyClick(&Form(), Qt::Key_Return);
  EXPECT_EQ(form_->modalResult, 0);
  EXPECT_TRUE(form_->isHidden());
  EXPECT_EQ(form_->FlagExpiration(), 2147483647);
}

TEST_F(FrmFlagListTest, AnExpirationThatIsHiddenIsNotLookedAt) {
  TextOf(Form(), "txtExpiration").setText("99999999999");
  Form().ShowExpiration(false);
  ClickRow(0);
  Click("cmdOK");
  EXPECT_EQ(form_->modalResult, 0);
  EXPECT_TRUE(form_->isHidden());
}

}  // namespace
}  // namespace parlate

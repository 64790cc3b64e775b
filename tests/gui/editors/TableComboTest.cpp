#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QVBoxLayout>

#include "editors/EditorFixture.h"
#include "editors/TableCombo.h"
#include "model/TableCombos.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;

class TableComboTest : public ::testing::Test {
 protected:
  TableComboTest() {
    space_.workspace.tableEditor = &tables_;
    TestWorkspace::AddRows(kSkillTable, {{4, "Swim"}, {2, "Climb"}});
    auto* layout = new QVBoxLayout(&window_);
    for (QWidget* widget : std::initializer_list<QWidget*>{&combo_, &button_, &other_}) {
      layout->addWidget(widget);
    }
    PopulateCombo(combo_, *GetTable(kSkillTable));
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    combo_.SetFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return combo_.hasFocus(); }));
  }

  void Type(const char* text) { QTest::keyClicks(combo_.lineEdit(), text); }
  void Leave() {
    // The rows that begin with the text are offered in a popup, which has the keys then.
    QWidget* popup = QApplication::activePopupWidget();
    QTest::keyClick(popup != nullptr ? popup : &combo_, Qt::Key_Tab);
    QTest::qWait(20);
  }

  TestWorkspace space_;
  ScriptedTableEditor tables_;
  QWidget window_;
  QtComboBox combo_{&window_, RowOrder::ByName};
  QPushButton button_{&window_};
  QLineEdit other_{&window_};
  int changes_ = 0;
  TableCombo table_{combo_, kSkillTable, button_, [this] { ++changes_; }};
};

TEST_F(TableComboTest, ATypedNameOfARowSelectsItWithoutAQuestion) {
  Type("Swim");
  EXPECT_EQ(combo_.ListIndex(), -1);
  changes_ = 0;
  Leave();
  EXPECT_EQ(GetComboItemID(combo_), 4);
  EXPECT_GT(changes_, 0);
  EXPECT_TRUE(space_.messages.shown.empty());
}

TEST_F(TableComboTest, AnUnknownNameBecomesARowOnYes) {
  space_.messages.Expect(Answer::Yes);
  Type("swim");
  Leave();
  ASSERT_EQ(space_.messages.shown.size(), 1U);
  EXPECT_THAT(
      space_.messages.shown[0],
      IsBox("Add Item?", "This entry does not exist in the table, would you like to add it?",
            MessageBox::Icon::Question, MessageBox::Buttons::YesNo));
  EXPECT_EQ(GetComboItemID(combo_), 5);
  EXPECT_EQ(combo_.Text(), "swim");
  EXPECT_EQ(GetTable(kSkillTable)->Count(), 3U);
  EXPECT_TRUE(button_.hasFocus());
}

TEST_F(TableComboTest, OnNoTheTypedTextStandsSelectedInTheCombo) {
  space_.messages.Expect(Answer::No);
  Type("Fly");
  Leave();
  EXPECT_EQ(GetComboItemID(combo_), -1);
  EXPECT_EQ(combo_.Text(), "Fly");
  EXPECT_EQ(combo_.lineEdit()->selectedText(), "Fly");
  EXPECT_TRUE(combo_.hasFocus());
  EXPECT_EQ(GetTable(kSkillTable)->Count(), 2U);
}

TEST_F(TableComboTest, AnEmptyComboIsLeftWithoutAQuestion) {
  Leave();
  EXPECT_TRUE(space_.messages.shown.empty());
  EXPECT_TRUE(button_.hasFocus());
}

TEST_F(TableComboTest, AComboThatWasHiddenMeanwhileAsksNothing) {
  Type("Fly");
  combo_.hide();
  Leave();
  EXPECT_TRUE(space_.messages.shown.empty());
}

TEST_F(TableComboTest, TheListOfRowsTakesTheFocusForAWhileAndAsksNothing) {
  Type("Fly");
  QFocusEvent toPopup(QEvent::FocusOut, Qt::PopupFocusReason);
  QApplication::sendEvent(&combo_, &toPopup);
  QTest::qWait(20);
  EXPECT_TRUE(space_.messages.shown.empty());
}

TEST_F(TableComboTest, ADialogThatAKeyOpensOverTheFormAsksNothing) {
  Type("Fly");
  QDialog dialog(&window_);
  {
    const WhenModal modal([](QWidget& shown) {
      QTest::qWait(20);
      shown.close();
    });
    dialog.exec();
  }
  EXPECT_TRUE(space_.messages.shown.empty());
}

TEST_F(TableComboTest, EveryChangeIsTold) {
  changes_ = 0;
  Type("S");
  EXPECT_EQ(changes_, 1);
  combo_.SetListIndex(1);
  EXPECT_EQ(changes_, 2);
}

TEST_F(TableComboTest, TheButtonEditsTheTableAndTakesTheRowChosenThere) {
  combo_.SetListIndex(0);
  tables_.user = [] { return AddTableItem(kSkillTable, "Dive").ID; };
  changes_ = 0;
  QTest::mouseClick(&button_, Qt::LeftButton);
  EXPECT_THAT(tables_.opened, ElementsAre(kSkillTable));
  EXPECT_EQ(combo_.ListCount(), 3);
  EXPECT_EQ(GetComboItemID(combo_), 5);
  EXPECT_GT(changes_, 0);
}

TEST_F(TableComboTest, WithoutAChosenRowTheComboKeepsItsOwnOrNone) {
  QTest::mouseClick(&button_, Qt::LeftButton);
  EXPECT_EQ(combo_.ListIndex(), -1);
  SelectComboItemByID(4, combo_);
  QTest::mouseClick(&button_, Qt::LeftButton);
  EXPECT_EQ(GetComboItemID(combo_), 4);
}

}  // namespace
}  // namespace parlate

#include <gtest/gtest.h>

#include <QAccessible>

#include "editors/EditorFixture.h"
#include "editors/frmEditValue.h"

namespace parlate {
namespace {

using namespace testing_support;

class FrmEditValueTest : public ::testing::Test {
 protected:
  void Show() {
    form_.show();
    form_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form_));
  }

  frmEditValue form_;
};

TEST_F(FrmEditValueTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(form_.objectName(), "frmEditValue");
  EXPECT_EQ(form_.windowTitle(), "Edit Value");
  EXPECT_EQ(ControlNamed<QPushButton>(form_, "cmdOK").text(), "&OK");
  EXPECT_EQ(ControlNamed<QPushButton>(form_, "cmdCancel").text(), "&Cancel");
  form_.SetCaptions("Edit Flag", "Flag Name");
  EXPECT_EQ(form_.windowTitle(), "Edit Flag");
  EXPECT_EQ(ControlNamed<QLabel>(form_, "lblDesc").text(), "Flag Name");
  auto* spoken = QAccessible::queryAccessibleInterface(&TextOf(form_, "txtValue"));
  EXPECT_EQ(spoken->text(QAccessible::Name), "Flag Name");
}

TEST_F(FrmEditValueTest, OkNeedsAText) {
  Show();
  EXPECT_FALSE(IsEnabled(form_, "cmdOK"));
  QTest::keyClicks(&TextOf(form_, "txtValue"), "x");
  EXPECT_TRUE(IsEnabled(form_, "cmdOK"));
  QTest::keyClick(&TextOf(form_, "txtValue"), Qt::Key_Backspace);
  EXPECT_FALSE(IsEnabled(form_, "cmdOK"));
  QTest::keyClicks(&TextOf(form_, "txtValue"), " ");
  EXPECT_TRUE(IsEnabled(form_, "cmdOK")) << "a blank is a text";
}

TEST_F(FrmEditValueTest, AValueStandsUnselectedWithTheCaretBehindIt) {
  form_.SetEditValue("Zo\xEB");
  EXPECT_TRUE(IsEnabled(form_, "cmdOK"));
  Show();
  EXPECT_FALSE(TextOf(form_, "txtValue").hasSelectedText());
  EXPECT_EQ(TextOf(form_, "txtValue").cursorPosition(), 3);
  QTest::keyClicks(QApplication::focusWidget(), "x");
  EXPECT_EQ(form_.EditValue(), "Zo\xEBx");
}

TEST_F(FrmEditValueTest, ModalTheCaretStandsBehindTheTextToo) {
  form_.SetEditValue("Bob");
  {
    const WhenModal modal([](QWidget& window) {
      QTest::keyClicks(QApplication::focusWidget(), "by");
      QTest::keyClick(&window, Qt::Key_Return);
    });
    form_.exec();
  }
  EXPECT_EQ(form_.modalResult, 0);
  EXPECT_EQ(form_.EditValue(), "Bobby");
}

TEST_F(FrmEditValueTest, OkIsZeroAndCancelEscapeAndClosingAreOne) {
  Show();
  form_.SetEditValue("x");
  Click(form_, "cmdOK");
  EXPECT_EQ(form_.modalResult, 0);
  EXPECT_TRUE(form_.isHidden());
  Show();
  Click(form_, "cmdCancel");
  EXPECT_EQ(form_.modalResult, 1);
  EXPECT_TRUE(form_.isHidden());
  form_.modalResult = 0;
  Show();
  QTest::keyClick(&form_, Qt::Key_Escape);
  EXPECT_EQ(form_.modalResult, 1);
  form_.modalResult = 0;
  Show();
  form_.close();
  EXPECT_EQ(form_.modalResult, 1);
}

TEST_F(FrmEditValueTest, AValueOfFortyThousandLettersIsTakenWhole) {
  const std::string value(40000, 'x');
  form_.SetEditValue(value);
  Show();
  QTest::keyClick(&form_, Qt::Key_Return);
  EXPECT_EQ(form_.modalResult, 0);
  EXPECT_EQ(form_.EditValue(), value);
}

TEST_F(FrmEditValueTest, ALetterOutsideTheCodePageShowsAsAQuestionMark) {
  Show();
  TypeText(TextOf(form_, "txtValue"), QStringLiteral(u"\u4E2Dx"));
  EXPECT_EQ(form_.EditValue(), "?x");
}

}  // namespace
}  // namespace parlate

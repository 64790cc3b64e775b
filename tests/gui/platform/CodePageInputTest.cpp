#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

#include "platform/CodePageInput.h"

namespace parlate {
namespace {

const QString kInside = QStringLiteral(u"caf\u00E9 \u20AC\u201C\u0081");
const QString kHan = QStringLiteral(u"\u4E2D");
const QString kSmile = QStringLiteral(u"\U0001F600");

class CodePageInputTest : public ::testing::Test {
 protected:
  template <class Edit>
  static void Show(Edit& edit) {
    KeepToCodePage(edit);
    edit.show();
    edit.activateWindow();
    edit.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&edit] { return edit.hasFocus(); }));
  }
};

TEST(ReplaceOutsideCodePage, LeavesWhatTheCodePageHas) {
  QString text = kInside;
  int position = 3;
  ReplaceOutsideCodePage(text, position);
  EXPECT_EQ(text, kInside);
  EXPECT_EQ(position, 3);
}

TEST(ReplaceOutsideCodePage, MakesOneQuestionMarkOfACharacterOfTwoUnits) {
  QString text = "a" + kSmile + "b" + kHan + "c";
  int position = 4;  // between b and the next
  ReplaceOutsideCodePage(text, position);
  EXPECT_EQ(text, "a?b?c");
  EXPECT_EQ(position, 3);
}

TEST(ReplaceOutsideCodePage, HalfACharacterIsOutsideToo) {
  QString text = QString(QChar(0xD83D)) + "x" + QString(QChar(0x80));
  int position = 0;
  ReplaceOutsideCodePage(text, position);
  EXPECT_EQ(text, "?x?");
  EXPECT_EQ(position, 0);
}

TEST_F(CodePageInputTest, ATypedCharacterOutsideShowsAsQuestionMarkAtOnce) {
  QLineEdit edit;
  Show(edit);
  const QSignalSpy changes(&edit, &QLineEdit::textChanged);
  QTest::keyClicks(&edit, "ab");
  edit.setCursorPosition(1);
  QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, kHan, Qt::NoModifier);
  EXPECT_EQ(edit.text(), "a?b");
  EXPECT_EQ(edit.cursorPosition(), 2);
  ASSERT_EQ(changes.size(), 3);
  EXPECT_EQ(changes.at(2).at(0).toString(), "a?b");
}

TEST_F(CodePageInputTest, APastedTextIsMendedAndTheCaretStandsBehindIt) {
  QLineEdit edit("xy");
  Show(edit);
  edit.setCursorPosition(1);
  QApplication::clipboard()->setText(kSmile + "a" + kHan);
  edit.paste();
  EXPECT_EQ(edit.text(), "x?a?y");
  EXPECT_EQ(edit.cursorPosition(), 4);
}

TEST_F(CodePageInputTest, TextInsideTheCodePageStaysAsTyped) {
  QLineEdit edit;
  Show(edit);
  QApplication::clipboard()->setText(kInside);
  edit.paste();
  EXPECT_EQ(edit.text(), kInside);
  EXPECT_TRUE(edit.hasAcceptableInput());
}

TEST_F(CodePageInputTest, AComboBoxMendsItsTextToo) {
  QComboBox combo;
  combo.setEditable(true);
  KeepToCodePage(combo);
  QTest::sendKeyEvent(QTest::Click, combo.lineEdit(), Qt::Key_unknown, kHan, Qt::NoModifier);
  EXPECT_EQ(combo.currentText(), "?");
}

TEST_F(CodePageInputTest, LinesOfTextAreMendedEachInItsPlace) {
  QPlainTextEdit edit;
  Show(edit);
  edit.setPlainText("one\ntwo");
  QTextCursor caret = edit.textCursor();
  caret.setPosition(5);
  edit.setTextCursor(caret);
  QApplication::clipboard()->setText(kHan + "\n" + kSmile + "z");
  edit.paste();
  EXPECT_EQ(edit.toPlainText(), "one\nt?\n?zwo");
  EXPECT_EQ(edit.textCursor().position(), 9);
}

TEST_F(CodePageInputTest, ACaretAheadOfAMendedCharacterStaysThere) {
  QPlainTextEdit edit;
  Show(edit);
  edit.setPlainText("ab");
  QTextCursor elsewhere(edit.document());
  elsewhere.setPosition(1);
  QTextCursor caret = edit.textCursor();
  caret.setPosition(1);
  caret.setKeepPositionOnInsert(true);
  edit.setTextCursor(caret);
  elsewhere.insertText(kHan);
  EXPECT_EQ(edit.toPlainText(), "a?b");
  EXPECT_EQ(edit.textCursor().position(), 1);
}

TEST_F(CodePageInputTest, OneUndoTakesBackWhatWasTypedWithItsQuestionMark) {
  QPlainTextEdit edit;
  Show(edit);
  edit.setPlainText("ab");
  QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, kHan, Qt::NoModifier);
  EXPECT_EQ(edit.toPlainText(), "?ab");
  edit.undo();
  EXPECT_EQ(edit.toPlainText(), "ab");
  edit.redo();
  EXPECT_EQ(edit.toPlainText(), "?ab");
}

TEST_F(CodePageInputTest, OneUndoTakesBackWhatWasPasted) {
  QPlainTextEdit edit;
  Show(edit);
  edit.setPlainText("ab");
  QApplication::clipboard()->setText("1" + kHan + "2" + kSmile);
  edit.paste();
  EXPECT_EQ(edit.toPlainText(), "1?2?ab");
  edit.undo();
  EXPECT_EQ(edit.toPlainText(), "ab");
  edit.redo();
  EXPECT_EQ(edit.toPlainText(), "1?2?ab");
}

TEST_F(CodePageInputTest, WhatAnInputMethodCommitsIsMended) {
  QPlainTextEdit edit;
  Show(edit);
  QInputMethodEvent commit;
  commit.setCommitString("a" + kHan);
  QCoreApplication::sendEvent(&edit, &commit);
  EXPECT_EQ(edit.toPlainText(), "a?");
}

TEST_F(CodePageInputTest, ATextThatCannotBeChangedIsLeftAlone) {
  QPlainTextEdit edit("ab");
  Show(edit);
  edit.setReadOnly(true);
  QTest::sendKeyEvent(QTest::Click, &edit, Qt::Key_unknown, kHan, Qt::NoModifier);
  EXPECT_EQ(edit.toPlainText(), "ab");
}

}  // namespace
}  // namespace parlate

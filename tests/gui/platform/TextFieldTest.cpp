#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <array>
#include <string>

#include "platform/TextField.h"

namespace parlate {
namespace {

class TextBoxTest : public ::testing::Test {
 protected:
  TextBoxTest() {
    auto* layout = new QVBoxLayout(&window_);
    layout->addWidget(&box_);
    layout->addWidget(&other_);
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    box_.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return box_.hasFocus(); }));
  }

  QWidget window_;
  QtTextBox box_{&window_};
  QLineEdit other_{&window_};
};

TEST_F(TextBoxTest, ATextThatNobodyEditedKeepsItsBytes) {
  const std::array<std::string, 8> texts{
      "",
      "one line",
      "lone\rreturns\r",
      "lone\nfeeds\n\n",
      "pairs\r\nand\n\rthe rest\r\r\n",
      std::string("odd \x01\t\x0B\x0C bytes \x81\x8D\x8F\x90\x9D"),
      std::string("a NUL \0 inside", 14),
      "Zo\xEB asks\xA0why\x85"};
  for (const std::string& text : texts) {
    box_.SetText(text);
    EXPECT_EQ(box_.Text(), text);
  }
}

TEST_F(TextBoxTest, LineEndsOfEveryKindBreakTheLine) {
  box_.SetText("a\rb\nc\r\nd");
  EXPECT_EQ(box_.blockCount(), 4);
}

TEST_F(TextBoxTest, TypedLinesEndInReturnAndFeed) {
  QTest::keyClicks(&box_, "one");
  QTest::keyClick(&box_, Qt::Key_Return);
  QTest::keyClicks(&box_, "two");
  QTest::keyClick(&box_, Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(&box_, "three");
  EXPECT_EQ(box_.Text(), "one\r\ntwo\r\nthree");
}

TEST_F(TextBoxTest, LinesOfAnEditedTextEndInReturnAndFeed) {
  box_.SetText("a\rb\nc");
  QTest::keyClick(&box_, Qt::Key_End, Qt::ControlModifier);
  QTest::keyClicks(&box_, "!");
  EXPECT_EQ(box_.Text(), "a\r\nb\r\nc!");
}

TEST_F(TextBoxTest, AnEditTakenBackGivesTheBytesBack) {
  box_.SetText("a\rb\nc");
  QTest::keyClick(&box_, Qt::Key_End, Qt::ControlModifier);
  QTest::keyClicks(&box_, "!");
  QTest::keyClick(&box_, Qt::Key_Backspace);
  EXPECT_EQ(box_.Text(), "a\rb\nc");
}

TEST_F(TextBoxTest, PastedTextIsKeptToTheCodePage) {
  QGuiApplication::clipboard()->setText(QStringLiteral(u"5\u00A0\u20AC\n\u03A9"));
  box_.paste();
  EXPECT_EQ(box_.Text(), "5\xA0\x80\r\n?");
}

TEST_F(TextBoxTest, TabLeavesTheBox) {
  box_.SetText("text");
  QTest::keyClick(&box_, Qt::Key_Tab);
  EXPECT_TRUE(other_.hasFocus());
  EXPECT_EQ(box_.Text(), "text");
}

TEST_F(TextBoxTest, EveryChangeIsToldWithTheTextInPlace) {
  const QSignalSpy told(&box_, &QPlainTextEdit::textChanged);
  std::string heard;
  QObject::connect(&box_, &QPlainTextEdit::textChanged, &box_,
                   [this, &heard] { heard = box_.Text(); });
  box_.SetText("a\rb");
  EXPECT_EQ(told.size(), 1);
  EXPECT_EQ(heard, "a\rb");
  QTest::keyClicks(&box_, "x");
  EXPECT_EQ(told.size(), 2);
  EXPECT_EQ(heard, "xa\r\nb");
}

TEST_F(TextBoxTest, ASetTextLeavesNothingToUndo) {
  box_.SetText("first");
  box_.SetText("second");
  box_.undo();
  EXPECT_EQ(box_.Text(), "second");
}

TEST_F(TextBoxTest, IsEmptyWithoutText) {
  EXPECT_TRUE(box_.IsEmpty());
  box_.SetText("\r\n");
  EXPECT_FALSE(box_.IsEmpty());
}

TEST(TextLine, TakesATextLongerThanTheToolkitsLimit) {
  QLineEdit line;
  SetUpTextLine(line);
  line.setText(QString(40000, u'x'));
  EXPECT_EQ(line.text().size(), 40000);
}

TEST(TextLine, KeepsLineEndsAndIsKeptToTheCodePage) {
  QLineEdit line;
  SetUpTextLine(line);
  line.setText(QStringLiteral(u"a\rb\nc\u03A9"));
  EXPECT_EQ(line.text(), QStringLiteral("a\rb\nc?"));
}

TEST(NameKeys, WhatAnInputMethodCommitsLosesTheLettersThatNoNameHas) {
  QLineEdit line;
  FilterNameKeys(line);
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral(u"\u00E9 b_.-9"));
  QCoreApplication::sendEvent(&line, &commit);
  EXPECT_EQ(line.text(), "b_-9");
}

TEST(NameKeys, AKeyOfSeveralLettersIsDroppedForOneThatNoNameHas) {
  QLineEdit line;
  FilterNameKeys(line);
  QKeyEvent mixed(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("a b"));
  QCoreApplication::sendEvent(&line, &mixed);
  EXPECT_EQ(line.text(), "");
  QTest::keyClicks(&line, "a.b");
  QTest::keyClick(&line, Qt::Key_Backspace);
  EXPECT_EQ(line.text(), "a");
}

}  // namespace
}  // namespace parlate

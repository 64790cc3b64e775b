// The box on the toolbar that searches the current conversation.

#include <QApplication>
#include <QMessageBox>
#include <QWheelEvent>

#include "mainwindow/FindFixture.h"
#include "platform/PaintCounter.h"

namespace parlate {
namespace {

using namespace testing_support;

using QuickFind = FindTest;

TEST_F(QuickFind, ReturnInTheQuickBoxSearchesTheCurrentConversationWithoutRegardToCase) {
  program_.ClickNode("C0");
  Search("HELLO");
  ExpectAt(0, 0);
  EXPECT_EQ(Box().List(0), "HELLO");
  EXPECT_EQ(Box().lineEdit()->selectedText(), "HELLO");
  EXPECT_TRUE(Box().hasFocus());
}

TEST_F(QuickFind, ReturnInTheQuickBoxGoesOnAndEndsInTheConversation) {
  program_.ClickNode("C0");
  Search("h");
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 2);
  program_.messages.Expect(Answer::Ok);
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectNotFoundBox(1);
  ExpectAt(0, 0);
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 0);
}

TEST_F(QuickFind, ReturnInAnEmptyQuickBoxDoesNothing) {
  program_.ClickNode("C0");
  Box().setFocus();
  QTest::keyClick(&Box(), Qt::Key_Return);
  EXPECT_EQ(Box().ListCount(), 0);
  ExpectAt(0, -1);
}

TEST_F(QuickFind, LosingTheFocusBeginsTheQuickSearchAnewAtTheSelectedRow) {
  program_.ClickNode("C0");
  Search("h");
  ExpectAt(0, 0);
  program_.Events().setFocus();
  Search("h");
  ExpectAt(0, 0);
}

TEST_F(QuickFind, AnotherWindowOfTheProgramEndsTheQuickSearch) {
  program_.ClickNode("C0");
  Search("h");
  ExpectAt(0, 0);
  bool came = false;
  WhenFormShows("frmProperties", [&came](QWidget& form) {
    came = true;
    QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
  });
  program_.Choose("mnuConProperties");
  ASSERT_TRUE(came);
  program_.Activate();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Box().hasFocus(); }));
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 0);
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 2);
}

TEST_F(QuickFind, AMessageBoxLeavesTheQuickSearchWhereItIs) {
  program_.ClickNode("C0");
  Search("h");
  ExpectAt(0, 0);
  QMessageBox box(&program_.Window());
  box.open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
  QCoreApplication::processEvents();
  box.close();
  program_.Activate();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Box().hasFocus(); }));
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 2);
}

TEST_F(QuickFind, ChoosingAnEntryOfTheQuickBoxSearches) {
  program_.ClickNode("C0");
  Search("comment");
  Search("hi");
  ExpectAt(0, 2);
  EXPECT_EQ(Box().ListCount(), 2);
  program_.ClickRow(0);
  // The list opens below, with the newest on top.
  Box().setFocus();
  Box().showPopup();
  QTest::keyClick(Box().view(), Qt::Key_End);
  QTest::keyClick(Box().view(), Qt::Key_Return);
  EXPECT_EQ(Box().Text(), "comment");
  ExpectAt(0, 1);
}

TEST_F(QuickFind, TheWheelOverTheQuickBoxChoosesNothing) {
  program_.ClickNode("C0");
  Search("comment");
  Search("hi");
  const QString before = Box().currentText();
  QWheelEvent wheel(QPointF(5, 5), Box().mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&Box(), &wheel);
  EXPECT_EQ(Box().currentText(), before);
}

class LongSearch : public WindowTest {
 protected:
  static constexpr std::int32_t kEvents = 9000;

  /// A conversation (key 0) of many comments.
  std::string PutLongFile() {
    std::vector<EventFields> comments;
    for (std::int32_t key = 1; key <= kEvents; ++key) comments.push_back(Comment(key, "", "none"));
    WriteBytes(folder.File("long.con"), FileOf(HarbourTables(), {Con(0, "long", kZoe, comments)}));
    return folder.File("long.con");
  }
};

TEST_F(LongSearch, LetsTheWindowPaintMeanwhile) {
  RunningProgram program;
  ASSERT_TRUE(program.Start(PutLongFile()));
  program.ClickNode("C0");
  auto& box = program.Find<QtComboBox>("cboFind");
  box.setFocus();
  TypeText(box, "absent");
  QWidget& rows = *program.Events().viewport();
  QTest::qWait(50);
  const PaintCounter counter(rows);
  rows.update();
  program.messages.Expect(Answer::Ok);
  QTest::keyClick(&box, Qt::Key_Return);
  // The answer of the box came at once, so all that was painted was painted during the search.
  ASSERT_EQ(program.messages.shown.size(), 1U);
  EXPECT_GE(counter.paints, 1);
  EXPECT_TRUE(program.Close());
}

}  // namespace
}  // namespace parlate

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <string>
#include <utility>
#include <vector>

#include "MultiColumnListFixture.h"
#include "widgets/MultiColumnList.h"

namespace parlate {
namespace {

// --- Mouse --------------------------------------------------------------------------------------

TEST_F(MultiColumnListTest, APressSelectsAndTheReleaseOnTheSameRowIsAClick) {
  AddRows(5);
  QSignalSpy selected(&list_, &MultiColumnList::listIndexChanged);
  QSignalSpy clicked(&list_, &MultiColumnList::clicked);
  QTest::mousePress(Area(), Qt::LeftButton, {}, MiddleOf(2));
  EXPECT_EQ(rows_.ListIndex(), 2);
  EXPECT_EQ(selected.count(), 1);
  EXPECT_EQ(clicked.count(), 0);
  QTest::mouseRelease(Area(), Qt::LeftButton, {}, MiddleOf(2));
  EXPECT_EQ(clicked.count(), 1);
}

TEST_F(MultiColumnListTest, AReleaseOnAnotherRowIsNoClickAndSelectsNothingElse) {
  AddRows(5);
  QSignalSpy clicked(&list_, &MultiColumnList::clicked);
  QTest::mousePress(Area(), Qt::LeftButton, {}, MiddleOf(2));
  QTest::mouseRelease(Area(), Qt::LeftButton, {}, MiddleOf(3));
  EXPECT_EQ(clicked.count(), 0);
  EXPECT_EQ(rows_.ListIndex(), 2);
}

TEST_F(MultiColumnListTest, APressBelowTheRowsChangesNothing) {
  AddRows(2);
  rows_.SetListIndex(1);
  QSignalSpy selected(&list_, &MultiColumnList::listIndexChanged);
  QSignalSpy clicked(&list_, &MultiColumnList::clicked);
  const QPoint below = list_.RowRect(1).bottomLeft() + QPoint(10, 20);
  QTest::mouseClick(Area(), Qt::LeftButton, {}, below);
  QTest::mouseDClick(Area(), Qt::LeftButton, {}, below);
  QTest::mouseClick(Area(), Qt::RightButton, {}, below);
  EXPECT_EQ(rows_.ListIndex(), 1);
  EXPECT_EQ(selected.count(), 0);
  EXPECT_EQ(clicked.count(), 0);
}

TEST_F(MultiColumnListTest, ADoubleClickIsOneClickAndOneDoubleClick) {
  AddRows(5);
  QSignalSpy clicked(&list_, &MultiColumnList::clicked);
  QSignalSpy doubleClicked(&list_, &MultiColumnList::doubleClicked);
  QTest::mouseClick(Area(), Qt::LeftButton, {}, MiddleOf(3));
  QTest::mouseDClick(Area(), Qt::LeftButton, {}, MiddleOf(3));
  EXPECT_EQ(rows_.ListIndex(), 3);
  EXPECT_EQ(clicked.count(), 1);
  EXPECT_EQ(doubleClicked.count(), 1);
}

TEST_F(MultiColumnListTest, ARowThatIsPressedStaysUnderTheMouseEvenIfHalfOfItIsHidden) {
  FillThreePages();
  list_.verticalScrollBar()->setValue(list_.SingleLineHeight() / 2);
  QTest::mousePress(Area(), Qt::LeftButton, {}, QPoint(10, 2));
  Settle();
  EXPECT_EQ(rows_.ListIndex(), 0);
  EXPECT_EQ(Scrolled(), list_.SingleLineHeight() / 2);
  QTest::mouseRelease(Area(), Qt::LeftButton, {}, QPoint(10, 2));
}

TEST_F(MultiColumnListTest, TheRightButtonSelectsAtThePressAndAsksForTheMenuAtTheRelease) {
  AddRows(5);
  QSignalSpy menu(&list_, &MultiColumnList::contextMenuRequestedAt);
  QTest::mousePress(Area(), Qt::RightButton, {}, MiddleOf(4));
  EXPECT_EQ(rows_.ListIndex(), 4);
  EXPECT_EQ(menu.count(), 0);
  QTest::mouseRelease(Area(), Qt::RightButton, {}, MiddleOf(4));
  ASSERT_EQ(menu.count(), 1);
  EXPECT_EQ(menu[0][0].toPoint(), Area()->mapToGlobal(MiddleOf(4)));
  EXPECT_TRUE(menu[0][1].toBool()) << "by the mouse";
}

// --- Selection ----------------------------------------------------------------------------------

TEST_F(MultiColumnListTest, ASelectionByTheFormIsToldAndScrolledTo) {
  const int page = FillThreePages();
  QSignalSpy selected(&list_, &MultiColumnList::listIndexChanged);
  rows_.SetListIndex(2 * page);
  EXPECT_EQ(selected.count(), 1);
  Settle();
  EXPECT_TRUE(IsInSight(2 * page));
  EXPECT_EQ(list_.RowRect(2 * page).bottom(), Area()->height() - 1);
  rows_.SetListIndex(0);
  Settle();
  EXPECT_EQ(list_.RowRect(0).top(), 0);
}

TEST_F(MultiColumnListTest, ASelectionMadeWhileHiddenIsInSightOnceShown) {
  const int page = FillThreePages();
  list_.hide();
  rows_.SetListIndex(2 * page);
  list_.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&list_));
  Settle();
  EXPECT_TRUE(IsInSight(2 * page));
}

TEST_F(MultiColumnListTest, OfARowHigherThanTheListTheTopIsShown) {
  FillThreePages();
  std::string tall;
  for (int i = 0; i < 100; ++i) tall += "line\r";
  rows_.InsertItem({"tall", tall, -1, -1}, 20);
  rows_.SetListIndex(20);
  Settle();
  EXPECT_EQ(list_.RowRect(20).top(), 0);
}

// --- Keyboard -----------------------------------------------------------------------------------

class MultiColumnListKeyTest : public MultiColumnListTest {
 protected:
  int After(Qt::Key key) {
    QTest::keyClick(&list_, key);
    return rows_.ListIndex();
  }
};

TEST_F(MultiColumnListKeyTest, ArrowsMoveTheSelectionAndStopAtTheEnds) {
  AddRows(3);
  rows_.SetListIndex(1);
  EXPECT_EQ(After(Qt::Key_Down), 2);
  EXPECT_EQ(After(Qt::Key_Down), 2);
  EXPECT_EQ(After(Qt::Key_Up), 1);
  EXPECT_EQ(After(Qt::Key_Up), 0);
  EXPECT_EQ(After(Qt::Key_Up), 0);
}

TEST_F(MultiColumnListKeyTest, WithNothingSelectedDownAndHomeStartAtTheTopUpAndEndAtTheBottom) {
  AddRows(3);
  for (const auto& [key, row] : std::vector<std::pair<Qt::Key, int>>{{Qt::Key_Down, 0},
                                                                     {Qt::Key_Home, 0},
                                                                     {Qt::Key_PageDown, 0},
                                                                     {Qt::Key_Up, 2},
                                                                     {Qt::Key_End, 2},
                                                                     {Qt::Key_PageUp, 2}}) {
    rows_.SetListIndex(-1);
    EXPECT_EQ(After(key), row) << "key " << key;
  }
}

TEST_F(MultiColumnListKeyTest, HomeAndEndScrollToTheRow) {
  const int page = FillThreePages();
  EXPECT_EQ(After(Qt::Key_End), 3 * page - 1);
  EXPECT_EQ(list_.RowRect(3 * page - 1).bottom(), Area()->height() - 1);
  EXPECT_EQ(After(Qt::Key_Home), 0);
  EXPECT_EQ(Scrolled(), 0);
}

TEST_F(MultiColumnListKeyTest, APageTakesTheSelectionFromOneEdgeToTheOther) {
  const int page = FillThreePages();
  rows_.SetListIndex(0);
  EXPECT_EQ(After(Qt::Key_PageDown), page - 1);
  EXPECT_EQ(After(Qt::Key_PageDown), 2 * page - 2);
  EXPECT_TRUE(IsInSight(2 * page - 2));
  EXPECT_EQ(After(Qt::Key_PageUp), page - 1);
  EXPECT_EQ(After(Qt::Key_PageUp), 0);
  EXPECT_EQ(After(Qt::Key_End), 3 * page - 1);
  EXPECT_EQ(After(Qt::Key_PageDown), 3 * page - 1);
}

TEST_F(MultiColumnListKeyTest, APageMovesByARowAtLeast) {
  std::string tall;
  for (int i = 0; i < 100; ++i) tall += "line\r";
  for (int i = 0; i < 3; ++i) rows_.AddItem({"tall", tall, -1, -1});
  rows_.SetListIndex(1);
  EXPECT_EQ(After(Qt::Key_PageDown), 2);
  EXPECT_EQ(After(Qt::Key_PageUp), 1);
}

TEST_F(MultiColumnListKeyTest, AnArrowAtTheEndBringsTheSelectedRowBackIntoSight) {
  FillThreePages();
  rows_.SetListIndex(0);
  Settle();
  list_.verticalScrollBar()->setValue(200);
  EXPECT_EQ(After(Qt::Key_Up), 0);
  EXPECT_EQ(Scrolled(), 0);
}

TEST_F(MultiColumnListKeyTest, AnEmptyListTakesEveryKeyCalmly) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp,
                            Qt::Key_PageDown, Qt::Key_Menu}) {
    EXPECT_EQ(After(key), -1) << "key " << key;
  }
}

TEST_F(MultiColumnListKeyTest, AKeyOfNoUseGoesToTheSlotsAndThenToTheForm) {
  AddRows(3);
  std::vector<int> keys;
  QObject::connect(&list_, &MultiColumnList::keyPressedInList, &list_,
                   [&keys](QKeyEvent* event) { keys.push_back(event->key()); });
  QKeyEvent ofNoUse(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
  QApplication::sendEvent(&list_, &ofNoUse);
  EXPECT_FALSE(ofNoUse.isAccepted());
  QKeyEvent letter(QEvent::KeyPress, Qt::Key_R, Qt::NoModifier, "r");
  QApplication::sendEvent(&list_, &letter);
  EXPECT_FALSE(letter.isAccepted());
  QKeyEvent shortcut(QEvent::KeyPress, Qt::Key_Down, Qt::ControlModifier);
  QApplication::sendEvent(&list_, &shortcut);
  EXPECT_FALSE(shortcut.isAccepted());
  QKeyEvent ours(QEvent::KeyPress, Qt::Key_Down, Qt::KeypadModifier);
  QApplication::sendEvent(&list_, &ours);
  EXPECT_TRUE(ours.isAccepted());
  EXPECT_EQ(keys, (std::vector<int>{Qt::Key_Delete, Qt::Key_R, Qt::Key_Down}));
  EXPECT_EQ(rows_.ListIndex(), 0);
}

TEST_F(MultiColumnListKeyTest, AKeyThatASlotAcceptsStaysAccepted) {
  QObject::connect(&list_, &MultiColumnList::keyPressedInList, &list_,
                   [](QKeyEvent* event) { event->accept(); });
  QKeyEvent event(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
  QApplication::sendEvent(&list_, &event);
  EXPECT_TRUE(event.isAccepted());
}

TEST_F(MultiColumnListKeyTest, TheMenuKeyAndShiftF10AskForTheMenuAtTheSelectedRow) {
  FillThreePages();
  rows_.SetListIndex(2);
  Settle();
  list_.verticalScrollBar()->setValue(300);
  QSignalSpy menu(&list_, &MultiColumnList::contextMenuRequestedAt);
  QTest::keyClick(&list_, Qt::Key_Menu);
  QTest::keyClick(&list_, Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_EQ(menu.count(), 2);
  EXPECT_TRUE(IsInSight(2));
  for (const QList<QVariant>& request : menu) {
    const QPoint position = Area()->mapFromGlobal(request[0].toPoint());
    EXPECT_TRUE(list_.RowRect(2).adjusted(0, 0, 0, 1).contains(position));
    EXPECT_FALSE(request[1].toBool()) << "not by the mouse";
  }
}

TEST_F(MultiColumnListKeyTest, AMenuKeyThatThePlatformServesTwiceAsksOnce) {
  AddRows(3);
  QSignalSpy menu(&list_, &MultiColumnList::contextMenuRequestedAt);
  QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(&list_, &request);
  EXPECT_EQ(menu.count(), 1);
  QTest::keyClick(&list_, Qt::Key_Menu);
  EXPECT_EQ(menu.count(), 1);
  QTest::keyClick(&list_, Qt::Key_Menu);
  EXPECT_EQ(menu.count(), 2);
}

}  // namespace
}  // namespace parlate

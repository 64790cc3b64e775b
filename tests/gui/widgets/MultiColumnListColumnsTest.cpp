// Columns that are made as wide as their texts, and lists that are moved sideways.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTest>
#include <QtMath>
#include <string>
#include <vector>

#include "MultiColumnListFixture.h"

namespace parlate {
namespace {

using testing::Contains;
using testing::ElementsAre;

class MultiColumnListColumnsTest : public MultiColumnListTest {
 protected:
  MultiColumnListColumnsTest() {
    rows_.AddItem({"a;" + kLonger + ";x", "", -1, -1});
    rows_.AddItem({"ab;short;" + std::string(3000, 'w'), "", -1, -1});
    Settle();
  }

  QHeaderView& Heads() { return *list_.findChild<QHeaderView*>(); }
  double WidthOf(const std::string& text) {
    return QFontMetricsF(list_.font(), list_.viewport())
        .horizontalAdvance(QString::fromStdString(text));
  }
  const std::vector<int>& KeysLeftToTheForm() {
    QObject::connect(&list_, &MultiColumnList::keyPressedInList, &list_,
                     [this](const QKeyEvent* event) { left_.push_back(event->key()); });
    return left_;
  }
  int Sideways() { return list_.horizontalScrollBar()->value(); }
  void ExpectFitted(int column, const std::string& widest) {
    EXPECT_GE(list_.ColumnWidth(column), qCeil(WidthOf(widest)) + 6) << "3 pixels on either side";
    EXPECT_LE(list_.ColumnWidth(column), WidthOf(widest) + 30);
  }

  const std::string kLonger = "a rather long text";

 private:
  std::vector<int> left_;
};

TEST_F(MultiColumnListColumnsTest, AColumnIsFittedToItsWidestText) {
  ASSERT_GT(WidthOf(kLonger), WidthOf("Second"));
  list_.SetColumnWidth(1, 20);
  list_.FitColumn(1);
  ExpectFitted(1, kLonger);
  list_.FitColumn(0);
  EXPECT_LT(list_.ColumnWidth(0), kColumnWidth) << "it becomes narrower, too";
  EXPECT_GE(list_.ColumnWidth(0), WidthOf("First")) << "the head has its room";
}

TEST_F(MultiColumnListColumnsTest, AFittedColumnTakesNoMoreThanItsShareOfTheList) {
  list_.FitColumn(2);
  EXPECT_EQ(list_.ColumnWidth(2), list_.viewport()->width() / 3);
}

TEST_F(MultiColumnListColumnsTest, AWiderColumnWithAWiderTextStaysAsItIs) {
  list_.SetColumnWidth(2, 250);
  list_.FitColumn(2);
  EXPECT_EQ(list_.ColumnWidth(2), 250);
}

TEST_F(MultiColumnListColumnsTest, ADoubleClickBetweenTwoHeadsFitsTheLeftOne) {
  list_.SetColumnWidth(1, 20);
  const int edge = Heads().sectionViewportPosition(2) - 1;
  QTest::mouseDClick(Heads().viewport(), Qt::LeftButton, {}, QPoint(edge, Heads().height() / 2));
  ExpectFitted(1, kLonger);
  EXPECT_EQ(list_.ColumnWidth(0), kColumnWidth);
}

TEST_F(MultiColumnListColumnsTest, ControlAndPlusFitAllColumns) {
  TakeFocus();
  for (const auto modifiers :
       {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier,
        Qt::ControlModifier | Qt::KeypadModifier}) {
    for (int column = 0; column < 3; ++column) list_.SetColumnWidth(column, 20);
    QTest::keyClick(&list_, Qt::Key_Plus, modifiers);
    ExpectFitted(1, kLonger);
    EXPECT_EQ(list_.ColumnWidth(2), list_.viewport()->width() / 3);
  }
}

TEST_F(MultiColumnListColumnsTest, AListWithoutHeadsLeavesControlAndPlusToTheForm) {
  list_.SetHeadsVisible(false);
  TakeFocus();
  const std::vector<int>& left = KeysLeftToTheForm();
  QTest::keyClick(&list_, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_THAT(left, Contains(Qt::Key_Plus));
  EXPECT_EQ(list_.ColumnWidth(1), kColumnWidth);
}

TEST_F(MultiColumnListColumnsTest, PlusAloneIsLeftToTheForm) {
  TakeFocus();
  const std::vector<int>& left = KeysLeftToTheForm();
  QTest::keyClick(&list_, Qt::Key_Plus);
  EXPECT_THAT(left, Contains(Qt::Key_Plus));
  EXPECT_EQ(list_.ColumnWidth(1), kColumnWidth);
}

TEST_F(MultiColumnListColumnsTest, RightAndLeftMoveAListThatIsWiderThanItself) {
  list_.SetColumnWidth(2, 1000);
  Settle();
  TakeFocus();
  QTest::keyClick(&list_, Qt::Key_Right);
  const int once = Sideways();
  EXPECT_GT(once, 0);
  QTest::keyClick(&list_, Qt::Key_Right);
  EXPECT_EQ(Sideways(), 2 * once);
  for (int i = 0; i < 50; ++i) QTest::keyClick(&list_, Qt::Key_Right);
  EXPECT_EQ(Sideways(), list_.horizontalScrollBar()->maximum());
  for (int i = 0; i < 50; ++i) QTest::keyClick(&list_, Qt::Key_Left);
  EXPECT_EQ(Sideways(), 0);
}

TEST_F(MultiColumnListColumnsTest, WithAllColumnsInSightRightAndLeftAreLeftToTheForm) {
  TakeFocus();
  const std::vector<int>& left = KeysLeftToTheForm();
  QTest::keyClick(&list_, Qt::Key_Right);
  QTest::keyClick(&list_, Qt::Key_Left);
  EXPECT_THAT(left, ElementsAre(Qt::Key_Right, Qt::Key_Left));
}

}  // namespace
}  // namespace parlate

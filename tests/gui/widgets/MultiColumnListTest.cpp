#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <string>
#include <vector>

#include "MultiColumnListFixture.h"
#include "widgets/MultiColumnList.h"

namespace parlate {
namespace {

// --- Heights and places -------------------------------------------------------------------------

TEST_F(MultiColumnListTest, ARowIsAsHighAsALineAndOneWithSecondTextHigherByItsLinesAndFivePixels) {
  rows_.AddItem({"plain", "", -1, -1});
  rows_.AddItem({"one line", "under it", -1, -1});
  rows_.AddItem({"two lines", "under\rit", -1, -1});
  const int line = list_.SingleLineHeight();
  const int spacing = list_.fontMetrics().lineSpacing();
  EXPECT_GE(line, list_.fontMetrics().height());
  EXPECT_EQ(list_.RowRect(0), QRect(0, 0, Area()->width(), line));
  EXPECT_EQ(list_.RowRect(1), QRect(0, line, Area()->width(), line + spacing + 5));
  EXPECT_EQ(list_.RowRect(2),
            QRect(0, 2 * line + spacing + 5, Area()->width(), line + 2 * spacing + 5));
}

TEST_F(MultiColumnListTest, ASecondTextWrapsAtTheWidthOfTheList) {
  const std::string word = WideWord();
  rows_.AddItem({"wrapped", word + " " + word + " " + word, -1, -1});
  const int spacing = list_.fontMetrics().lineSpacing();
  EXPECT_EQ(list_.RowRect(0).height(), list_.SingleLineHeight() + 3 * spacing + 5);
  list_.resize(3 * kSize.width(), kSize.height());
  EXPECT_EQ(list_.RowRect(0).height(), list_.SingleLineHeight() + spacing + 5);
}

TEST_F(MultiColumnListTest, HeightsFollowTheFont) {
  rows_.AddItem({"text", "under it", -1, -1});
  const int before = list_.RowRect(0).height();
  QFont font("MS Sans Serif", 8);
  list_.setFont(font);
  const int classic = list_.RowRect(0).height();
  font.setPointSize(24);
  list_.setFont(font);
  EXPECT_LT(classic, list_.RowRect(0).height());
  EXPECT_LT(before, list_.RowRect(0).height());
  EXPECT_EQ(list_.RowRect(0).height(),
            list_.SingleLineHeight() + QFontMetrics(font, Area()).lineSpacing() + 5);
}

TEST_F(MultiColumnListTest, ATextIsMeasuredAnewWhenOnlyTheLettersSpread) {
  const std::string word(10, 'm');
  rows_.AddItem({"text", word + " " + word, -1, -1});
  const int spacing = list_.fontMetrics().lineSpacing();
  ASSERT_EQ(list_.RowRect(0).height(), list_.SingleLineHeight() + spacing + 5);
  QFont font = list_.font();
  // Ten letters spread by a twentieth of the width each: one word fits a line, two do not.
  font.setLetterSpacing(QFont::AbsoluteSpacing, Area()->width() / 20.0);
  list_.setFont(font);
  ASSERT_EQ(list_.fontMetrics().lineSpacing(), spacing);
  EXPECT_EQ(list_.RowRect(0).height(), list_.SingleLineHeight() + 2 * spacing + 5);
}

TEST_F(MultiColumnListTest, AChangeIsNotMissedBetweenTwoWidths) {
  AddRows(3);
  ASSERT_EQ(list_.RowRect(2).top(), 2 * list_.SingleLineHeight());
  list_.resize(3 * kSize.width(), kSize.height());
  rows_.SetSubText(0, "under it");
  list_.resize(kSize);
  EXPECT_EQ(list_.RowRect(2).top(),
            2 * list_.SingleLineHeight() + list_.fontMetrics().lineSpacing() + 5);
}

TEST_F(MultiColumnListTest, ChangesOneByOneGiveTheSameHeightsAsAllAtOnce) {
  const std::string word = WideWord();
  AddRows(6);
  ASSERT_EQ(list_.RowRect(5).height(), list_.SingleLineHeight());
  rows_.InsertItem({"new", "under\rthe new one", -1, -1}, 2);
  rows_.SetSubText(4, word + " " + word);
  rows_.RemoveItem(0);
  rows_.SetSubText(1, "only a line");
  rows_.AddItem({"last", "under the last", -1, -1});
  const int line = list_.SingleLineHeight();
  const int spacing = list_.fontMetrics().lineSpacing();
  const std::vector<int> heights = {line, line + spacing + 5, line, line + 2 * spacing + 5, line,
                                    line, line + spacing + 5};
  ASSERT_EQ(rows_.ListCount(), heights.size());
  int top = 0;
  for (std::size_t row = 0; row < heights.size(); ++row) {
    EXPECT_EQ(list_.RowRect(static_cast<int>(row)), QRect(0, top, Area()->width(), heights[row]))
        << "row " << row;
    top += heights[row];
  }
}

TEST_F(MultiColumnListTest, AHiddenListKnowsItsHeightsWhenItIsShown) {
  AddRows(3);
  list_.hide();
  const std::string word = WideWord();
  rows_.InsertItem({"new", word + " " + word, -1, -1}, 0);
  list_.resize(3 * kSize.width(), kSize.height());
  rows_.RemoveItem(3);
  list_.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&list_));
  EXPECT_EQ(list_.RowRect(0).height(),
            list_.SingleLineHeight() + list_.fontMetrics().lineSpacing() + 5);
  EXPECT_EQ(list_.RowRect(2).top(), list_.RowRect(0).height() + list_.SingleLineHeight());
}

TEST_F(MultiColumnListTest, TheScrollBarReachesToTheLastRow) {
  AddRows(100);
  EXPECT_EQ(list_.verticalScrollBar()->maximum(),
            100 * list_.SingleLineHeight() - Area()->height());
  list_.verticalScrollBar()->setValue(list_.verticalScrollBar()->maximum());
  EXPECT_EQ(list_.RowRect(99).bottom(), Area()->height() - 1);
  rows_.Clear();
  Settle();
  EXPECT_EQ(list_.verticalScrollBar()->maximum(), 0);
}

TEST_F(MultiColumnListTest, ReplacingAllRowsGoesBackToTheTop) {
  AddRows(100);
  list_.verticalScrollBar()->setValue(500);
  rows_.Assign(std::vector<ListRow>(100, ListRow{"new", "", -1, -1}));
  Settle();
  EXPECT_EQ(Scrolled(), 0);
  EXPECT_EQ(list_.RowRect(0).top(), 0);
}

TEST_F(MultiColumnListTest, ANewWidthLeavesTheTopRowAtTheTop) {
  const std::string twoLines = WideWord() + " " + WideWord();
  for (int i = 0; i < 50; ++i) rows_.AddItem({"row", twoLines, -1, -1});
  Settle();
  list_.verticalScrollBar()->setValue(list_.RowRect(20).top());
  ASSERT_EQ(list_.RowRect(20).top(), 0);
  list_.resize(3 * kSize.width(), kSize.height());
  Settle();
  ASSERT_EQ(list_.RowRect(0).height(),
            list_.SingleLineHeight() + list_.fontMetrics().lineSpacing() + 5);
  EXPECT_EQ(list_.RowRect(20).top(), 0);
}

TEST_F(MultiColumnListTest, FindsTheRowAtAPoint) {
  rows_.AddItem({"a", "under a", -1, -1});
  rows_.AddItem({"b", "", -1, -1});
  EXPECT_EQ(list_.RowAt(list_.RowRect(0).topLeft()), 0);
  EXPECT_EQ(list_.RowAt(list_.RowRect(0).bottomRight()), 0);
  EXPECT_EQ(list_.RowAt(list_.RowRect(1).topLeft()), 1);
  EXPECT_EQ(list_.RowAt(list_.RowRect(1).bottomLeft() + QPoint(0, 1)), -1);
  EXPECT_EQ(list_.RowAt(QPoint(-1, 0)), -1);
}

TEST_F(MultiColumnListTest, TheWheelScrollsByPixels) {
  AddRows(100);
  const auto turn = [this](int angle) {
    QWheelEvent event(QPointF(10, 10), Area()->mapToGlobal(QPointF(10, 10)), QPoint(),
                      QPoint(0, angle), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Area(), &event);
  };
  turn(-15);
  EXPECT_GT(Scrolled(), 0);
  EXPECT_LT(Scrolled(), list_.SingleLineHeight());
  turn(-120);
  EXPECT_GT(Scrolled(), 2 * list_.SingleLineHeight());
}

// --- Columns ------------------------------------------------------------------------------------

TEST_F(MultiColumnListTest, ColumnWidthsAreKeptInPixels) {
  QSignalSpy changed(&list_, &MultiColumnList::columnWidthChanged);
  list_.SetColumnWidth(1, 57);
  list_.SetColumnWidth(2, 0);
  EXPECT_EQ(list_.ColumnWidth(0), kColumnWidth);
  EXPECT_EQ(list_.ColumnWidth(1), 57);
  EXPECT_EQ(list_.ColumnWidth(2), 0);
  EXPECT_EQ(changed.count(), 2);
}

TEST_F(MultiColumnListTest, ColumnsThatStayKeepTheirWidthsWhenHeadsAreSet) {
  list_.SetColumnWidth(0, 44);
  list_.SetHeads({"One", "Two", "Three", "Four"});
  EXPECT_EQ(list_.ColumnCount(), 4);
  EXPECT_EQ(list_.Head(3), "Four");
  EXPECT_EQ(list_.ColumnWidth(0), 44);
  list_.SetHeads({"Only"});
  EXPECT_EQ(list_.ColumnCount(), 1);
  EXPECT_EQ(list_.Head(0), "Only");
  EXPECT_EQ(list_.ColumnWidth(0), 44);
}

TEST_F(MultiColumnListTest, AHeadIsDraggedWider) {
  auto* const header = list_.findChild<QHeaderView*>();
  ASSERT_NE(header, nullptr);
  QSignalSpy changed(&list_, &MultiColumnList::columnWidthChanged);
  const QPoint edge(kColumnWidth - 1, header->height() / 2);
  QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
  QTest::mouseMove(header->viewport(), edge + QPoint(30, 0));
  QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge + QPoint(30, 0));
  EXPECT_EQ(list_.ColumnWidth(0), kColumnWidth + 30);
  EXPECT_GE(changed.count(), 1);
}

TEST_F(MultiColumnListTest, HeadsStandAboveTheRowsAndCanBeHidden) {
  EXPECT_EQ(list_.HeadRect(1).left(), kColumnWidth);
  EXPECT_EQ(list_.HeadRect(1).bottom(), -1);
  const int height = Area()->height();
  const int headHeight = list_.HeadRect(1).height();
  list_.SetHeadsVisible(false);
  EXPECT_EQ(Area()->height(), height + headHeight);
}

TEST_F(MultiColumnListTest, ASemicolonSplitsTheRowIntoColumns) {
  rows_.AddItem({"a;b;c;d", "", -1, -1});
  rows_.AddItem({"\x80 line\rbreak;;", "", -1, -1});
  rows_.AddItem({"", "", -1, -1});
  EXPECT_EQ(list_.CellText(0, 0), "a");
  EXPECT_EQ(list_.CellText(0, 2), "c");
  EXPECT_EQ(list_.CellText(1, 0), QString(QChar(0x20AC)) + " line break");
  EXPECT_EQ(list_.CellText(1, 1), "");
  EXPECT_EQ(list_.CellText(2, 0), "");
  EXPECT_EQ(list_.CellText(2, 1), "");
}

TEST_F(MultiColumnListTest, WideColumnsScrollSidewaysWithTheirHeads) {
  AddRows(1);
  list_.SetColumnWidth(0, 600);
  Settle();
  EXPECT_EQ(list_.horizontalScrollBar()->maximum(), 600 + 2 * kColumnWidth - Area()->width());
  list_.horizontalScrollBar()->setValue(50);
  EXPECT_EQ(list_.CellRect(list_.RowRect(0), 1).left(), 550);
  EXPECT_EQ(list_.HeadRect(1).left(), 550);
  EXPECT_EQ(list_.ColumnAt(QPoint(549, 5)), 0);
}

}  // namespace
}  // namespace parlate

#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <string>

#include "widgets/MultiColumnList.h"

namespace parlate {

inline constexpr QSize kSize(400, 220);
inline constexpr int kColumnWidth = 100;

/// A list of three columns on the screen, without rows at first.
class MultiColumnListTest : public ::testing::Test {
 protected:
  MultiColumnListTest() {
    list_.SetHeads({"First", "Second", "Third"});
    for (int column = 0; column < 3; ++column) list_.SetColumnWidth(column, kColumnWidth);
    list_.resize(kSize);
    list_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&list_));
  }

  void AddRows(int count) {
    for (int i = 0; i < count; ++i) rows_.AddItem({"row " + std::to_string(i), "", -1, -1});
    Settle();
  }

  // Lets posted layouts and repaints run.
  static void Settle() { QCoreApplication::processEvents(); }

  void TakeFocus() {
    list_.activateWindow();
    list_.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return list_.hasFocus(); }));
    Settle();
  }

  // As many rows as fill the list three times, with the height of a page in whole rows.
  int FillThreePages() {
    const int page = list_.viewport()->height() / list_.SingleLineHeight();
    AddRows(3 * page);
    return page;
  }

  QPoint MiddleOf(int row) { return list_.RowRect(row).center(); }
  QWidget* Area() { return list_.viewport(); }
  int Scrolled() { return list_.verticalScrollBar()->value(); }
  bool IsInSight(int row) { return list_.viewport()->rect().contains(list_.RowRect(row)); }

  // A word that needs more than half of the width for second texts, but not all of it.
  std::string WideWord() {
    const int width = list_.viewport()->width();
    const int letter = list_.fontMetrics().horizontalAdvance('m');
    return std::string(static_cast<std::size_t>(width * 6 / 10 / letter), 'm');
  }

  ListRows rows_;
  MultiColumnList list_{rows_};
};

}  // namespace parlate

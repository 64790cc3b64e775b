#include <gtest/gtest.h>

#include <QTest>

#include "platform/QtListBox.h"

namespace parlate {
namespace {

TEST(QtListBox, RowsStandAsTheyWereAdded) {
  QtListBox list;
  list.AddItem("Walter");
  list.AddItem("Zo\xEB");
  list.SetItemData(1, -5);
  ASSERT_EQ(list.ListCount(), 2);
  EXPECT_EQ(list.List(0), "Walter");
  EXPECT_EQ(list.List(1), "Zo\xEB");
  EXPECT_EQ(list.item(1)->text(), QStringLiteral(u"Zo\u00EB"));
  EXPECT_EQ(list.ItemData(0), 0);
  EXPECT_EQ(list.ItemData(1), -5);
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST(QtListBox, AnIndexWithoutARowGivesNothing) {
  QtListBox list;
  list.SetItemData(0, 1);
  list.SetSelected(0, true);
  list.RemoveItem(0);
  EXPECT_EQ(list.List(0), "");
  EXPECT_EQ(list.ItemData(-1), 0);
  EXPECT_FALSE(list.Selected(0));
}

TEST(QtListBox, SortedRowsKeepTheirNumbersAndTheirSelection) {
  QtListBox list(nullptr, RowOrder::ByName);
  list.setSelectionMode(QAbstractItemView::MultiSelection);
  list.AddItem("walter");
  list.SetItemData(0, 10);
  list.SetSelected(0, true);
  list.AddItem("Anna");
  list.AddItem("bo");
  EXPECT_EQ(list.List(0), "Anna");
  EXPECT_EQ(list.List(1), "bo");
  EXPECT_EQ(list.List(2), "walter");
  EXPECT_EQ(list.ItemData(2), 10);
  EXPECT_TRUE(list.Selected(2));
  EXPECT_FALSE(list.Selected(0));
}

TEST(QtListBox, ClicksSelectSeveralRowsWhereThatIsAllowed) {
  QtListBox list;
  list.setSelectionMode(QAbstractItemView::MultiSelection);
  for (const char* name : {"a", "b", "c"}) list.AddItem(name);
  list.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&list));
  for (const int row : {0, 2}) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(row)).center());
  }
  EXPECT_TRUE(list.Selected(0));
  EXPECT_FALSE(list.Selected(1));
  EXPECT_TRUE(list.Selected(2));
}

TEST(QtListBox, RemovedAndClearedRowsAreGone) {
  QtListBox list;
  for (const char* name : {"a", "b", "c"}) list.AddItem(name);
  list.RemoveItem(1);
  EXPECT_EQ(list.ListCount(), 2);
  EXPECT_EQ(list.List(1), "c");
  list.Clear();
  EXPECT_EQ(list.ListCount(), 0);
}

}  // namespace
}  // namespace parlate

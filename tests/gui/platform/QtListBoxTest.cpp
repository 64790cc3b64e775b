#include <gtest/gtest.h>

#include <QTest>
#include <string>
#include <utility>
#include <vector>

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

TEST(QtListBox, ARowIsAddedWithItsNumberAtItsPlace) {
  QtListBox list(nullptr, RowOrder::ByName);
  EXPECT_EQ(list.AddRow("walter", 10), 0);
  EXPECT_EQ(list.AddRow("Anna", 11), 0);
  EXPECT_EQ(list.AddRow("Walter", 12), 2) << "of equal ones the older stands first";
  EXPECT_EQ(list.AddRow("bo", 13), 1);
  const std::vector<std::pair<std::string, std::int32_t>> expected = {
      {"Anna", 11}, {"bo", 13}, {"walter", 10}, {"Walter", 12}};
  ASSERT_EQ(list.ListCount(), 4);
  for (int row = 0; row < 4; ++row) {
    const auto& [text, number] = expected[static_cast<std::size_t>(row)];
    EXPECT_EQ(list.List(row), text);
    EXPECT_EQ(list.ItemData(row), number);
  }
  QtListBox plain;
  plain.AddRow("b", 1);
  EXPECT_EQ(plain.AddRow("a", 2), 1);
}

TEST(QtListBox, ARowThatHasTheFocusIsSelectedOnlyByAKeyOrAClick) {
  QtListBox list;
  for (const char* name : {"a", "b"}) list.AddItem(name);
  list.show();
  list.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&list));
  list.setFocus();
  EXPECT_EQ(list.ListIndex(), -1);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_NE(list.ListIndex(), -1);
  list.SetListIndex(-1);
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST(QtListBox, ARowTakesANewTextAndKeepsItsPlaceAndNumber) {
  QtListBox list(nullptr, RowOrder::ByName);
  list.AddRow("Anna", 1);
  list.AddRow("Bo", 2);
  list.SetList(0, "Zo\xEB");
  EXPECT_EQ(list.List(0), "Zo\xEB");
  EXPECT_EQ(list.ItemData(0), 1);
  list.SetList(5, "nobody");
  EXPECT_EQ(list.ListCount(), 2);
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

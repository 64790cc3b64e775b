#include <gtest/gtest.h>

#include "shell/ListRowsBox.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::ErrorOf;

TEST(ListRowsBox, WritesTheRowsOfTheList) {
  ListRows rows;
  ListRowsBox box(rows);
  box.AddItem("Door;True");
  box.AddItem("Lamp;False");
  box.SetItemData(1, 7);
  ASSERT_EQ(rows.ListCount(), 2U);
  EXPECT_EQ(rows.Row(0).text, "Door;True");
  EXPECT_EQ(rows.Row(0).itemData, 0);
  EXPECT_EQ(rows.Row(0).color, -1);
  EXPECT_EQ(rows.Row(0).subText, "");
  EXPECT_EQ(rows.Row(1).itemData, 7);
  box.Clear();
  EXPECT_EQ(rows.ListCount(), 0U);
}

TEST(ListRowsBox, ReadsTheRowsOfTheList) {
  ListRows rows;
  rows.AddItem({"a", {}, 4, -1});
  rows.AddItem({"b", {}, 5, -1});
  const ListRowsBox box(rows);
  EXPECT_EQ(box.ListCount(), 2);
  EXPECT_EQ(box.List(1), "b");
  EXPECT_EQ(box.ItemData(0), 4);
}

TEST(ListRowsBox, TheSelectedRowAloneCountsAsSelected) {
  ListRows rows;
  rows.AddItem({"a", {}, 4, -1});
  rows.AddItem({"b", {}, 5, -1});
  const ListRowsBox box(rows);
  EXPECT_FALSE(box.Selected(0));
  rows.SetListIndex(1);
  EXPECT_FALSE(box.Selected(0));
  EXPECT_TRUE(box.Selected(1));
}

TEST(ListRowsBox, AnIndexWithoutARowIsAnError) {
  ListRows rows;
  ListRowsBox box(rows);
  EXPECT_EQ(ErrorOf([&] { (void)box.List(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)box.ItemData(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { box.SetItemData(0, 1); }), 9);
}

TEST(ReselectListIndex, TakesTheRowThatMovedUpElseTheLast) {
  ListRows rows;
  for (const char* text : {"a", "b", "c"}) rows.AddItem({text, {}, 0, -1});
  rows.SetListIndex(1);
  rows.RemoveItem(1);
  ReselectListIndex(rows, 1);
  EXPECT_EQ(rows.ListIndex(), 1);
  rows.RemoveItem(1);
  ReselectListIndex(rows, 1);
  EXPECT_EQ(rows.ListIndex(), 0);
  rows.RemoveItem(0);
  ReselectListIndex(rows, 0);
  EXPECT_EQ(rows.ListIndex(), -1);
}

}  // namespace
}  // namespace parlate

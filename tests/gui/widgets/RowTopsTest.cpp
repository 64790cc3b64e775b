#include <gtest/gtest.h>

#include "widgets/RowTops.h"

namespace parlate {
namespace {

RowTops ThreeRows() {
  RowTops tops;
  tops.Assign({10, 20, 30});
  return tops;
}

TEST(RowTops, StandUnderOneAnother) {
  const RowTops tops = ThreeRows();
  EXPECT_EQ(tops.Top(0), 0);
  EXPECT_EQ(tops.Top(2), 30);
  EXPECT_EQ(tops.Total(), 60);
}

TEST(RowTops, AnEmptyListHasNoHeightAndNoRow) {
  const RowTops tops;
  EXPECT_EQ(tops.Total(), 0);
  EXPECT_EQ(tops.RowAt(0), 0U);
  EXPECT_EQ(tops.Count(), 0U);
}

TEST(RowTops, ARowCoversItsFirstPixelAndNotTheOneBehindItsLast) {
  const RowTops tops = ThreeRows();
  EXPECT_EQ(tops.RowAt(-5), 0U);
  EXPECT_EQ(tops.RowAt(9), 0U);
  EXPECT_EQ(tops.RowAt(10), 1U);
  EXPECT_EQ(tops.RowAt(29), 1U);
  EXPECT_EQ(tops.RowAt(59), 2U);
  EXPECT_EQ(tops.RowAt(60), 3U);
}

TEST(RowTops, ChangesMoveWhatStandsBelow) {
  RowTops tops = ThreeRows();
  ASSERT_EQ(tops.Total(), 60);
  tops.Insert(1, 5);
  EXPECT_EQ(tops.Top(2), 15);
  EXPECT_EQ(tops.Total(), 65);
  tops.Insert(4, 7);
  EXPECT_EQ(tops.Top(4), 65);
  EXPECT_EQ(tops.Total(), 72);
  tops.SetHeight(0, 11);
  EXPECT_EQ(tops.Top(1), 11);
  EXPECT_EQ(tops.Total(), 73);
  tops.Remove(2);
  EXPECT_EQ(tops.Top(2), 16);
  EXPECT_EQ(tops.Height(2), 30);
  EXPECT_EQ(tops.Total(), 53);
}

TEST(RowTops, ARunOfChangesCountsAllOfThem) {
  RowTops tops = ThreeRows();
  ASSERT_EQ(tops.Total(), 60);
  tops.Remove(2);
  tops.Insert(0, 1);
  tops.SetHeight(2, 100);
  EXPECT_EQ(tops.Top(2), 11);
  EXPECT_EQ(tops.Total(), 111);
  EXPECT_EQ(tops.RowAt(110), 2U);
}

}  // namespace
}  // namespace parlate

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "general/RuntimeError.h"
#include "shell/ListRows.h"

namespace parlate {
namespace {

// Writes down what it is told, with the number of rows at that moment.
class Recorder : public ListRowsListener {
 public:
  explicit Recorder(ListRows& rows) : rows_(rows) { rows.SetListener(this); }

  void RowsReset() override { Note("reset"); }
  void RowInserted(std::size_t index) override { Note("inserted " + std::to_string(index)); }
  void RowRemoved(std::size_t index) override { Note("removed " + std::to_string(index)); }
  void RowTextChanged(std::size_t index) override { Note("text " + std::to_string(index)); }
  void RowColorChanged(std::size_t index) override { Note("color " + std::to_string(index)); }
  void ListIndexChanged() override { Note("selected " + std::to_string(rows_.ListIndex())); }

  std::vector<std::string> Take() { return std::exchange(notes_, {}); }

 private:
  void Note(const std::string& what) {
    notes_.push_back(what + " of " + std::to_string(rows_.ListCount()));
  }

  ListRows& rows_;
  std::vector<std::string> notes_;
};

using Notes = std::vector<std::string>;

ListRow Named(const std::string& text) { return {text, "", -1, -1}; }

ListRows ThreeRows() {
  ListRows rows;
  rows.Assign({Named("a"), Named("b"), Named("c")});
  return rows;
}

template <class Statement>
int ErrorOf(Statement&& statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(ListRows, StartsEmptyWithNothingSelected) {
  const ListRows rows;
  EXPECT_EQ(rows.ListCount(), 0U);
  EXPECT_EQ(rows.ListIndex(), -1);
}

TEST(ListRows, AnItemIsAddedAtTheEnd) {
  ListRows rows = ThreeRows();
  EXPECT_EQ(rows.AddItem({"d", "under d", 42, 0xC0C0FF}), 3U);
  EXPECT_EQ(rows.Row(3).text, "d");
  EXPECT_EQ(rows.Row(3).subText, "under d");
  EXPECT_EQ(rows.Row(3).itemData, 42);
  EXPECT_EQ(rows.Row(3).color, 0xC0C0FF);
}

TEST(ListRows, TheSelectionStaysWithItsRowWhenOneIsInsertedAhead) {
  ListRows rows = ThreeRows();
  rows.SetListIndex(1);
  Recorder recorder(rows);
  EXPECT_EQ(rows.InsertItem(Named("x"), 1), 1U);
  EXPECT_EQ(rows.ListIndex(), 2);
  EXPECT_EQ(rows.Row(2).text, "b");
  EXPECT_EQ(recorder.Take(), Notes{"inserted 1 of 4"});
}

TEST(ListRows, TheSelectionStaysWhereItIsWhenARowIsInsertedBehind) {
  ListRows rows = ThreeRows();
  rows.SetListIndex(1);
  rows.InsertItem(Named("x"), 2);
  EXPECT_EQ(rows.ListIndex(), 1);
}

TEST(ListRows, RemovingARowAheadMovesTheSelectionWithItsRow) {
  ListRows rows = ThreeRows();
  rows.SetListIndex(2);
  Recorder recorder(rows);
  rows.RemoveItem(0);
  EXPECT_EQ(rows.ListIndex(), 1);
  EXPECT_EQ(rows.Row(1).text, "c");
  EXPECT_EQ(recorder.Take(), Notes{"removed 0 of 2"});
}

TEST(ListRows, RemovingTheSelectedRowLeavesNoSelection) {
  ListRows rows = ThreeRows();
  rows.SetListIndex(1);
  Recorder recorder(rows);
  rows.RemoveItem(1);
  EXPECT_EQ(rows.ListIndex(), -1);
  EXPECT_EQ(recorder.Take(), (Notes{"removed 1 of 2", "selected -1 of 2"}));
}

TEST(ListRows, SelectingTheSelectedRowSaysNothing) {
  ListRows rows = ThreeRows();
  Recorder recorder(rows);
  rows.SetListIndex(2);
  rows.SetListIndex(2);
  EXPECT_EQ(recorder.Take(), Notes{"selected 2 of 3"});
}

TEST(ListRows, AnyNegativeIndexSelectsNothing) {
  ListRows rows = ThreeRows();
  rows.SetListIndex(2);
  rows.SetListIndex(-5);
  EXPECT_EQ(rows.ListIndex(), -1);
}

TEST(ListRows, AssigningReplacesAllAndDropsTheSelection) {
  ListRows rows = ThreeRows();
  rows.SetListIndex(0);
  Recorder recorder(rows);
  rows.Assign({Named("x")});
  EXPECT_EQ(rows.ListCount(), 1U);
  EXPECT_EQ(rows.Row(0).text, "x");
  EXPECT_EQ(recorder.Take(), (Notes{"reset of 1", "selected -1 of 1"}));
}

TEST(ListRows, ClearingWithNothingSelectedTellsOfTheResetAlone) {
  ListRows rows = ThreeRows();
  Recorder recorder(rows);
  rows.Clear();
  EXPECT_EQ(rows.ListCount(), 0U);
  EXPECT_EQ(recorder.Take(), Notes{"reset of 0"});
}

TEST(ListRows, AChangedTextIsTold) {
  ListRows rows = ThreeRows();
  Recorder recorder(rows);
  rows.SetText(1, "B");
  EXPECT_EQ(rows.Row(1).text, "B");
  EXPECT_EQ(recorder.Take(), Notes{"text 1 of 3"});
}

TEST(ListRows, SubTextAndColorAreToldOnlyWhenTheyChange) {
  ListRows rows = ThreeRows();
  Recorder recorder(rows);
  rows.SetSubText(0, "under");
  rows.SetSubText(0, "under");
  rows.SetColor(2, 0xFF);
  rows.SetColor(2, 0xFF);
  EXPECT_EQ(rows.Row(0).subText, "under");
  EXPECT_EQ(rows.Row(2).color, 0xFF);
  EXPECT_EQ(recorder.Take(), (Notes{"text 0 of 3", "color 2 of 3"}));
}

TEST(ListRows, ABadIndexIsErrorNineAndChangesNothing) {
  ListRows rows = ThreeRows();
  rows.SetListIndex(1);
  Recorder recorder(rows);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(rows.Row(3)); }), 9);
  EXPECT_EQ(ErrorOf([&] { rows.SetListIndex(3); }), 9);
  EXPECT_EQ(ErrorOf([&] { rows.InsertItem(Named("x"), 4); }), 9);
  EXPECT_EQ(ErrorOf([&] { rows.RemoveItem(3); }), 9);
  EXPECT_EQ(ErrorOf([&] { rows.SetText(3, "x"); }), 9);
  EXPECT_EQ(ErrorOf([&] { rows.SetSubText(3, "x"); }), 9);
  EXPECT_EQ(ErrorOf([&] { rows.SetColor(3, 1); }), 9);
  EXPECT_EQ(rows.ListCount(), 3U);
  EXPECT_EQ(rows.ListIndex(), 1);
  EXPECT_EQ(recorder.Take(), Notes{});
}

TEST(ListRows, RemovingTheSelectedItemSelectsTheNextOneAndThenTheLast) {
  ListRows rows = ThreeRows();
  rows.RemoveSelectedItem();
  EXPECT_EQ(rows.ListCount(), 3U) << "no row is selected";
  rows.SetListIndex(1);
  rows.RemoveSelectedItem();
  EXPECT_EQ(rows.ListIndex(), 1);
  EXPECT_EQ(rows.Row(1).text, "c");
  rows.RemoveSelectedItem();
  EXPECT_EQ(rows.ListIndex(), 0);
  EXPECT_EQ(rows.Row(0).text, "a");
  rows.RemoveSelectedItem();
  EXPECT_EQ(rows.ListIndex(), -1);
  EXPECT_EQ(rows.ListCount(), 0U);
}

TEST(ListRows, WhileTheSelectedItemGoesARowStaysSelected) {
  ListRows rows = ThreeRows();
  rows.SetListIndex(1);
  Recorder recorder(rows);
  rows.RemoveSelectedItem();
  EXPECT_EQ(recorder.Take(), (Notes{"selected 2 of 3", "removed 1 of 2"}));
  rows.RemoveSelectedItem();
  EXPECT_EQ(recorder.Take(), (Notes{"selected 0 of 2", "removed 1 of 1"}));
  rows.RemoveSelectedItem();
  EXPECT_EQ(recorder.Take(), (Notes{"removed 0 of 0", "selected -1 of 0"}));
}

}  // namespace
}  // namespace parlate

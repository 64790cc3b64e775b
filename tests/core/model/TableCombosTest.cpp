#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "model/TableCombos.h"
#include "model/Tables.h"
#include "model/Vocabulary.h"
#include "support/FakeControls.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::FakeComboBox;
using testing_support::FakeRow;
using testing_support::TestWorkspace;

class TableCombos : public testing::Test {
 protected:
  TableCombos() {
    TestWorkspace::AddRows(kActorTable, {{4, "Zoe"}, {2, "Bob"}});
    PopulateCombo(combo_, *GetTable(kActorTable));
  }

  TestWorkspace space_;
  FakeComboBox combo_;
};

TEST_F(TableCombos, ShowTheRowsInTableOrderWithTheirIds) {
  EXPECT_EQ(combo_.entries, (std::vector<FakeRow>{{"Zoe", 4}, {"Bob", 2}}));
}

TEST_F(TableCombos, KeepIdAndNameTogetherInASortedControl) {
  combo_.sorted = true;
  PopulateCombo(combo_, *GetTable(kActorTable));
  EXPECT_EQ(combo_.entries, (std::vector<FakeRow>{{"Bob", 2}, {"Zoe", 4}}));
}

TEST_F(TableCombos, GiveTheLastIdOfANameToItsFirstEntry) {
  TestWorkspace::AddRows(kActorTable, {{6, "Zoe"}, {8, "bob"}, {9, "Zoe"}});
  PopulateCombo(combo_, *GetTable(kActorTable));
  EXPECT_EQ(combo_.entries,
            (std::vector<FakeRow>{{"Zoe", 9}, {"Bob", 2}, {"Zoe", 0}, {"bob", 8}, {"Zoe", 0}}));
}

TEST_F(TableCombos, NumberTheEntriesOfAVocabulary) {
  PopulateComboFromArray(combo_, skillLevelNames);
  EXPECT_EQ(combo_.entries, (std::vector<FakeRow>{
                                {"Novice", 0}, {"Intermedia", 1}, {"Advanced", 2}, {"Master", 3}}));
}

TEST_F(TableCombos, GiveTheIdOfTheSelectionOrMinusOne) {
  EXPECT_EQ(GetComboItemID(combo_), -1);
  combo_.selected = 1;
  EXPECT_EQ(GetComboItemID(combo_), 2);
}

TEST_F(TableCombos, SelectByIdAndLeaveTheSelectionForAnUnknownOne) {
  SelectComboItemByID(2, combo_);
  EXPECT_EQ(combo_.selected, 1);
  SelectComboItemByID(99, combo_);
  EXPECT_EQ(combo_.selected, 1);
  SelectComboItemByID(-1, combo_);
  EXPECT_EQ(combo_.selected, -1);
}

TEST_F(TableCombos, SelectByExactTextAndLeaveTheSelectionOtherwise) {
  SelectComboItemByText("Bob", combo_);
  EXPECT_EQ(combo_.selected, 1);
  SelectComboItemByText("zoe", combo_);
  EXPECT_EQ(combo_.selected, 1);
}

TEST_F(TableCombos, FindTheFirstEntryForATextThatIsNotThere) {
  EXPECT_EQ(FindComboIndexByText(combo_, "Bob"), 1);
  EXPECT_EQ(FindComboIndexByText(combo_, "nobody"), 0);
}

TEST_F(TableCombos, AddARowAndAnEntry) {
  const TableItem& row = AddTableItemToCombo(combo_, kActorTable, "Ann");
  EXPECT_EQ(row.ID, 5);
  EXPECT_EQ(combo_.entries.back(), (FakeRow{"Ann", 5}));
  AddTableItemToCombo(combo_, kActorTable, "Ann");
  EXPECT_EQ(combo_.entries.size(), 4U) << "a second entry of the same name";
  EXPECT_EQ(GetTable(kActorTable)->Count(), 3U);
}

TEST_F(TableCombos, TakeAnEntryThatIsInTheTableWithoutAsking) {
  combo_.text = "Bob";
  EXPECT_TRUE(ValidateComboEntry(combo_, kActorTable, false));
  EXPECT_EQ(combo_.selected, 1);
  EXPECT_TRUE(ValidateComboEntry(combo_, kActorTable, true));
}

TEST_F(TableCombos, TakeARowOfTheTableThatCameByWayOfAnotherCombo) {
  AddTableItem(kActorTable, "Ann");
  combo_.text = "Ann";
  EXPECT_TRUE(ValidateComboEntry(combo_, kActorTable, true));
  EXPECT_EQ(GetComboItemID(combo_), 5);
  EXPECT_EQ(combo_.entries.back(), (FakeRow{"Ann", 5}));
  EXPECT_TRUE(ValidateComboEntry(combo_, kActorTable, false));
  EXPECT_EQ(combo_.entries.size(), 3U);
  EXPECT_TRUE(space_.messages.shown.empty());
}

TEST_F(TableCombos, DoNothingForAHiddenComboOrAnEmptyText) {
  combo_.text = "Bob";
  combo_.visible = false;
  EXPECT_FALSE(ValidateComboEntry(combo_, kActorTable, false));
  combo_.visible = true;
  combo_.text = "";
  EXPECT_FALSE(ValidateComboEntry(combo_, kActorTable, false));
  EXPECT_EQ(combo_.selected, -1);
}

TEST_F(TableCombos, AskBeforeATypedTextBecomesARow) {
  combo_.text = "bob";
  space_.messages.Expect(Answer::Yes);
  EXPECT_TRUE(ValidateComboEntry(combo_, kActorTable, false));
  ASSERT_EQ(space_.messages.shown.size(), 1U);
  const MessageBox& box = space_.messages.shown[0];
  EXPECT_EQ(box.title, "Add Item?");
  EXPECT_EQ(box.text, "This entry does not exist in the table, would you like to add it?");
  EXPECT_EQ(box.icon, MessageBox::Icon::Question);
  EXPECT_EQ(box.buttons, MessageBox::Buttons::YesNo);
  EXPECT_EQ(GetTableItemName(kActorTable, 5), "bob");
  EXPECT_EQ(GetComboItemID(combo_), 5);
}

TEST_F(TableCombos, SelectTheTypedTextAfterANo) {
  combo_.text = "Stranger";
  space_.messages.Expect(Answer::No);
  EXPECT_FALSE(ValidateComboEntry(combo_, kActorTable, false));
  EXPECT_EQ(combo_.selectionStart, 0);
  EXPECT_EQ(combo_.selectionLength, 8);
  EXPECT_TRUE(combo_.focused);
  EXPECT_EQ(GetTable(kActorTable)->Count(), 2U);
}

TEST_F(TableCombos, RefuseAnUnknownTextQuietly) {
  combo_.text = "Stranger";
  EXPECT_FALSE(ValidateComboEntry(combo_, kActorTable, true));
  EXPECT_FALSE(combo_.focused);
  EXPECT_EQ(GetTable(kActorTable)->Count(), 2U);
}

/// A table editor that adds a row and says which one the user chose.
class FakeTableEditor final : public TableEditor {
 public:
  std::int32_t EditTableDialog(std::int32_t tableType) override {
    edited = tableType;
    AddTableItem(tableType, "Ann");
    if (removed != -1) RemoveTableItem(tableType, removed, "");
    return chosen;
  }
  std::int32_t chosen = -1;
  std::int32_t removed = -1;
  std::int32_t edited = -1;
};

TEST_F(TableCombos, SelectWhatTheTableEditorReturns) {
  FakeTableEditor editor;
  space_.workspace.tableEditor = &editor;
  combo_.selected = 1;
  editor.chosen = 5;
  EXPECT_EQ(EditTableFromCombo(kActorTable, combo_), 5);
  EXPECT_EQ(editor.edited, kActorTable);
  EXPECT_EQ(combo_.entries.size(), 3U);
  EXPECT_EQ(combo_.selected, 2);
}

TEST_F(TableCombos, SelectWhatWasSelectedAfterACancelledEditor) {
  FakeTableEditor editor;
  space_.workspace.tableEditor = &editor;
  combo_.selected = 1;
  EXPECT_EQ(EditTableFromCombo(kActorTable, combo_), 2);
  EXPECT_EQ(combo_.selected, 1);
}

TEST_F(TableCombos, SelectNothingWhenWhatWasSelectedHasGone) {
  FakeTableEditor editor;
  editor.removed = 2;
  space_.workspace.tableEditor = &editor;
  combo_.selected = 1;
  EXPECT_EQ(EditTableFromCombo(kActorTable, combo_), -1);
  EXPECT_EQ(combo_.selected, -1);
}

TEST_F(TableCombos, SelectNothingWhenNothingWasSelectedAndTheEditorIsCancelled) {
  FakeTableEditor editor;
  space_.workspace.tableEditor = &editor;
  EXPECT_EQ(EditTableFromCombo(kActorTable, combo_), -1);
  EXPECT_EQ(combo_.selected, -1);
  EXPECT_EQ(combo_.entries.size(), 3U);
}

}  // namespace
}  // namespace parlate

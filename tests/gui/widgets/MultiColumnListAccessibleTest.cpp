#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "MultiColumnListFixture.h"
#include "widgets/MultiColumnList.h"

namespace parlate {
namespace {

class MultiColumnListAccessibleTest : public MultiColumnListTest {
 protected:
  MultiColumnListAccessibleTest() {
    rows_.AddItem({"Say;Guard;Halt!", "", 1, -1});
    rows_.AddItem({"Jump;;nowhere", "first line\rsecond line", 2, 0xC0C0FF});
    rows_.AddItem({"End", "", 3, 0xC0C0FF});
    list_.SetColorMeaning(0xC0C0FF, "missing label");
    Settle();
  }

  QAccessibleInterface& Interface() { return *QAccessible::queryAccessibleInterface(&list_); }
  QAccessibleTableInterface& Table() { return *Interface().tableInterface(); }
  QAccessibleInterface* Cell(int row, int column) { return Table().cellAt(row, column); }
};

TEST_F(MultiColumnListAccessibleTest, TheListIsATableOfItsRowsAndColumns) {
  EXPECT_EQ(Interface().role(), QAccessible::Table);
  EXPECT_EQ(Table().rowCount(), 3);
  EXPECT_EQ(Table().columnCount(), 3);
  EXPECT_EQ(Table().columnDescription(1), "Second");
  EXPECT_EQ(Table().cellAt(3, 0), nullptr);
  EXPECT_EQ(Table().cellAt(0, 3), nullptr);
  EXPECT_EQ(Table().cellAt(-1, 0), nullptr);
}

TEST_F(MultiColumnListAccessibleTest, TheChildrenAreTheHeadsAndThenTheCellsRowByRow) {
  ASSERT_EQ(Interface().childCount(), 12);
  EXPECT_EQ(Interface().child(2)->role(), QAccessible::ColumnHeader);
  EXPECT_EQ(Interface().child(2)->text(QAccessible::Name), "Third");
  EXPECT_EQ(Interface().child(3)->role(), QAccessible::Cell);
  EXPECT_EQ(Interface().child(3)->text(QAccessible::Name), "Say");
  EXPECT_EQ(Interface().child(8)->text(QAccessible::Name), "nowhere");
  EXPECT_EQ(Interface().child(8), Cell(1, 2));
  EXPECT_EQ(Interface().indexOfChild(Cell(1, 2)), 8);
  EXPECT_EQ(Interface().child(12), nullptr);
  EXPECT_EQ(Interface().child(-1), nullptr);
  for (int index = 0; index < 12; ++index) {
    EXPECT_EQ(Interface().indexOfChild(Interface().child(index)), index);
    EXPECT_EQ(Interface().child(index)->parent(), &Interface());
  }
}

TEST_F(MultiColumnListAccessibleTest, ACellKnowsItsPlaceAndItsHead) {
  QAccessibleTableCellInterface* const cell = Cell(2, 1)->tableCellInterface();
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->rowIndex(), 2);
  EXPECT_EQ(cell->columnIndex(), 1);
  EXPECT_EQ(cell->table(), &Interface());
  ASSERT_EQ(cell->columnHeaderCells().size(), 1);
  EXPECT_EQ(cell->columnHeaderCells()[0]->text(QAccessible::Name), "Second");
}

TEST_F(MultiColumnListAccessibleTest, TheDescriptionTellsTheMeaningOfTheColorAndTheSecondText) {
  EXPECT_EQ(Cell(0, 0)->text(QAccessible::Description), "");
  EXPECT_EQ(Cell(1, 0)->text(QAccessible::Description), "missing label\nfirst line\nsecond line");
  EXPECT_EQ(Cell(1, 2)->text(QAccessible::Description), "missing label");
  EXPECT_EQ(Cell(2, 0)->text(QAccessible::Description), "missing label");
  list_.SetColorMeaning(0xC0C0FF, "");
  EXPECT_EQ(Cell(1, 0)->text(QAccessible::Description), "first line\nsecond line");
}

TEST_F(MultiColumnListAccessibleTest, ACellStandsWhereItIsDrawn) {
  const QRect onScreen = Cell(1, 1)->rect();
  EXPECT_EQ(onScreen.topLeft(), Area()->mapToGlobal(list_.CellRect(list_.RowRect(1), 1).topLeft()));
  EXPECT_EQ(onScreen.size(), list_.CellRect(list_.RowRect(1), 1).size());
  EXPECT_EQ(Interface().childAt(onScreen.center().x(), onScreen.center().y()), Cell(1, 1));
  const QPoint head = Interface().child(1)->rect().center();
  EXPECT_EQ(Interface().childAt(head.x(), head.y()), Interface().child(1));
}

TEST_F(MultiColumnListAccessibleTest, StatesFollowSelectionAndFocus) {
  rows_.SetListIndex(1);
  EXPECT_TRUE(Cell(0, 0)->state().selectable);
  EXPECT_FALSE(Cell(0, 0)->state().selected);
  EXPECT_TRUE(Cell(1, 2)->state().selected);
  TakeFocus();
  EXPECT_TRUE(Cell(1, 0)->state().focused);
  EXPECT_FALSE(Cell(0, 0)->state().focused);
  EXPECT_EQ(Interface().focusChild(), Cell(1, 0));
  EXPECT_EQ(Table().selectedRows(), QList<int>{1});
  EXPECT_EQ(Table().selectedCells(),
            (QList<QAccessibleInterface*>{Cell(1, 0), Cell(1, 1), Cell(1, 2)}));
  EXPECT_TRUE(Table().isRowSelected(1));
}

TEST_F(MultiColumnListAccessibleTest, AnAssistiveProgramSelectsAndOpensRows) {
  EXPECT_TRUE(Table().selectRow(2));
  EXPECT_EQ(rows_.ListIndex(), 2);
  EXPECT_FALSE(Table().selectRow(3));
  EXPECT_FALSE(Table().unselectRow(0));
  EXPECT_TRUE(Table().unselectRow(2));
  EXPECT_EQ(rows_.ListIndex(), -1);
  QSignalSpy opened(&list_, &MultiColumnList::doubleClicked);
  Cell(1, 0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(rows_.ListIndex(), 1);
  EXPECT_EQ(opened.count(), 1);
}

TEST_F(MultiColumnListAccessibleTest, ACellGoesWithItsRow) {
  QAccessibleInterface* const jump = Cell(1, 0);
  QAccessibleInterface* const head = Interface().child(0);
  rows_.InsertItem({"New", "", -1, -1}, 0);
  EXPECT_EQ(Cell(2, 0), jump);
  EXPECT_EQ(jump->text(QAccessible::Name), "Jump");
  EXPECT_EQ(Cell(1, 0)->text(QAccessible::Name), "Say");
  rows_.RemoveItem(0);
  rows_.RemoveItem(0);
  EXPECT_EQ(Cell(0, 0), jump);
  EXPECT_EQ(jump->text(QAccessible::Name), "Jump");
  EXPECT_EQ(Interface().child(0), head);
}

TEST_F(MultiColumnListAccessibleTest, ACellWhoseRowWentIsForgotten) {
  const QAccessible::Id removed = QAccessible::uniqueId(Cell(1, 0));
  const QAccessible::Id reset = QAccessible::uniqueId(Cell(2, 0));
  rows_.RemoveItem(1);
  EXPECT_EQ(QAccessible::accessibleInterface(removed), nullptr);
  EXPECT_NE(QAccessible::accessibleInterface(reset), nullptr);
  rows_.Clear();
  EXPECT_EQ(QAccessible::accessibleInterface(reset), nullptr);
  EXPECT_EQ(Interface().childCount(), 3);
}

TEST_F(MultiColumnListAccessibleTest, ACellOfAColumnThatWentSaysThatItIsInvalid) {
  QAccessibleInterface* const last = Cell(2, 2);
  EXPECT_TRUE(last->isValid());
  list_.SetHeads({"First", "Second"});
  EXPECT_FALSE(last->isValid());
  EXPECT_TRUE(last->state().invalid);
  EXPECT_EQ(last->text(QAccessible::Name), "");
  EXPECT_EQ(Interface().child(2)->text(QAccessible::Name), "Say");
}

TEST(MultiColumnListAccessible, TheCellsGoWithTheList) {
  ListRows rows;
  QAccessible::Id cell = 0;
  {
    MultiColumnList list(rows);
    list.SetHeads({"Only"});
    rows.AddItem({"text", "", -1, -1});
    auto* const table = QAccessible::queryAccessibleInterface(&list)->tableInterface();
    cell = QAccessible::uniqueId(table->cellAt(0, 0));
    ASSERT_NE(QAccessible::accessibleInterface(cell), nullptr);
  }
  EXPECT_EQ(QAccessible::accessibleInterface(cell), nullptr);
}

}  // namespace
}  // namespace parlate

#pragma once

#include <QAccessibleWidget>
#include <QObject>
#include <array>
#include <map>
#include <utility>

namespace parlate {

class MultiColumnList;

/// What assistive programs see of a MultiColumnList: a table whose children are the column heads
/// and then the cells, row by row. A cell tells the meaning of its row's colour in its description,
/// the first cell of a row the second text as well.
///
/// A cell is made when somebody asks for it, so the number of rows costs nothing.
class MultiColumnListAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit MultiColumnListAccessible(MultiColumnList& list);
  ~MultiColumnListAccessible() override;

  /// Has every MultiColumnList described by this class. Further calls do nothing.
  static void InstallFactory();

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessibleInterface* child(int index) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override;
  int selectedCellCount() const override;
  QList<QAccessibleInterface*> selectedCells() const override;
  QString columnDescription(int column) const override;
  QString rowDescription(int row) const override;
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override;
  int columnCount() const override;
  int rowCount() const override;
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override;
  bool isColumnSelected(int /*column*/) const override { return false; }
  bool isRowSelected(int row) const override;
  bool selectRow(int row) override;
  bool selectColumn(int /*column*/) override { return false; }
  bool unselectRow(int row) override;
  bool unselectColumn(int /*column*/) override { return false; }
  /// Qt tells of changes here only while an assistive program listens. The cells have to follow at
  /// any time, so they follow the signals of the list.
  void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

 private:
  using Place = std::pair<int, int>;  ///< Row and column; row -1 holds the heads.
  using Cells = std::map<Place, QAccessible::Id>;

  [[nodiscard]] MultiColumnList& List() const;
  [[nodiscard]] QAccessibleInterface* CellAt(Place place) const;
  void ForgetRow(int row);
  void ForgetAllRows();
  void Forget(Cells::iterator begin, Cells::iterator end);
  void MoveCells(int firstRow, int rows);

  mutable Cells cells_;
  std::array<QMetaObject::Connection, 3> connections_;
};

}  // namespace parlate

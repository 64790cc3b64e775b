#include "widgets/MultiColumnListAccessible.h"

#include <memory>

#include "widgets/MultiColumnList.h"
#include "widgets/MultiColumnListCell.h"

namespace parlate {

namespace {

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
  auto* const list = qobject_cast<MultiColumnList*>(object);
  return list == nullptr ? nullptr : new MultiColumnListAccessible(*list);
}

}  // namespace

MultiColumnListAccessible::MultiColumnListAccessible(MultiColumnList& list)
    : QAccessibleWidget(&list, QAccessible::Table),
      connections_{QObject::connect(&list, &MultiColumnList::rowInserted, &list,
                                    [this](int row) { MoveCells(row, 1); }),
                   QObject::connect(&list, &MultiColumnList::rowRemoved, &list,
                                    [this](int row) {
                                      ForgetRow(row);
                                      MoveCells(row + 1, -1);
                                    }),
                   QObject::connect(&list, &MultiColumnList::rowsReset, &list,
                                    [this] { ForgetAllRows(); })} {}

MultiColumnListAccessible::~MultiColumnListAccessible() {
  for (const QMetaObject::Connection& connection : connections_) QObject::disconnect(connection);
  for (const auto& [place, id] : cells_) QAccessible::deleteAccessibleInterface(id);
}

void MultiColumnListAccessible::InstallFactory() { QAccessible::installFactory(&MakeInterface); }

MultiColumnList& MultiColumnListAccessible::List() const {
  return *static_cast<MultiColumnList*>(widget());
}

void* MultiColumnListAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

int MultiColumnListAccessible::childCount() const { return (rowCount() + 1) * columnCount(); }

QAccessibleInterface* MultiColumnListAccessible::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  return CellAt({index / columnCount() + MultiColumnListCell::kHeadRow, index % columnCount()});
}

int MultiColumnListAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* const cell = dynamic_cast<const MultiColumnListCell*>(child);
  if (cell == nullptr || !cell->isValid() || cell->parent() != this) return -1;
  return (cell->Row() - MultiColumnListCell::kHeadRow) * columnCount() + cell->Column();
}

QAccessibleInterface* MultiColumnListAccessible::childAt(int x, int y) const {
  const QPoint position = List().viewport()->mapFromGlobal(QPoint(x, y));
  const int column = List().ColumnAt(position);
  if (column < 0) return nullptr;
  if (List().HeadRect(column).contains(position))
    return CellAt({MultiColumnListCell::kHeadRow, column});
  const int row = List().RowAt(position);
  return row < 0 ? nullptr : CellAt({row, column});
}

QAccessibleInterface* MultiColumnListAccessible::focusChild() const {
  const int row = List().Rows().ListIndex();
  return row >= 0 && List().hasFocus() ? cellAt(row, 0) : nullptr;
}

QAccessibleInterface* MultiColumnListAccessible::cellAt(int row, int column) const {
  const bool exists = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
  return exists ? CellAt({row, column}) : nullptr;
}

QAccessibleInterface* MultiColumnListAccessible::CellAt(Place place) const {
  const auto known = cells_.find(place);
  if (known != cells_.end()) return QAccessible::accessibleInterface(known->second);
  auto cell = std::make_unique<MultiColumnListCell>(List(), place.first, place.second);
  QAccessibleInterface* const registered = cell.get();
  cells_.emplace(place, QAccessible::registerAccessibleInterface(cell.release()));
  return registered;
}

int MultiColumnListAccessible::selectedCellCount() const {
  return selectedRowCount() * columnCount();
}

QList<QAccessibleInterface*> MultiColumnListAccessible::selectedCells() const {
  QList<QAccessibleInterface*> cells;
  for (const int row : selectedRows()) {
    for (int column = 0; column < columnCount(); ++column) cells.append(cellAt(row, column));
  }
  return cells;
}

QString MultiColumnListAccessible::columnDescription(int column) const {
  return List().Head(column);
}

QString MultiColumnListAccessible::rowDescription(int row) const {
  QAccessibleInterface* const cell = cellAt(row, 0);
  return cell == nullptr ? QString() : cell->text(QAccessible::Description);
}

int MultiColumnListAccessible::selectedRowCount() const {
  return static_cast<int>(selectedRows().size());
}

int MultiColumnListAccessible::columnCount() const { return List().ColumnCount(); }

int MultiColumnListAccessible::rowCount() const {
  return static_cast<int>(List().Rows().ListCount());
}

QList<int> MultiColumnListAccessible::selectedRows() const {
  const int row = List().Rows().ListIndex();
  return row < 0 ? QList<int>() : QList<int>{row};
}

bool MultiColumnListAccessible::isRowSelected(int row) const {
  return row >= 0 && row == List().Rows().ListIndex();
}

bool MultiColumnListAccessible::selectRow(int row) {
  if (row < 0 || row >= rowCount() || !List().isEnabled()) return false;
  List().Rows().SetListIndex(row);
  return true;
}

bool MultiColumnListAccessible::unselectRow(int row) {
  if (!isRowSelected(row) || !List().isEnabled()) return false;
  List().Rows().SetListIndex(-1);
  return true;
}

void MultiColumnListAccessible::ForgetRow(int row) {
  Forget(cells_.lower_bound({row, 0}), cells_.lower_bound({row + 1, 0}));
}

void MultiColumnListAccessible::ForgetAllRows() {
  Forget(cells_.lower_bound({0, 0}), cells_.end());
}

void MultiColumnListAccessible::Forget(Cells::iterator begin, Cells::iterator end) {
  for (auto cell = begin; cell != end; ++cell) QAccessible::deleteAccessibleInterface(cell->second);
  cells_.erase(begin, end);
}

// A cell that an assistive program holds goes with its row.
void MultiColumnListAccessible::MoveCells(int firstRow, int rows) {
  Cells moved;
  for (const auto& [place, id] : cells_) {
    const int row = place.first < firstRow ? place.first : place.first + rows;
    auto* const cell = dynamic_cast<MultiColumnListCell*>(QAccessible::accessibleInterface(id));
    if (cell != nullptr) cell->MoveToRow(row);
    moved.emplace(Place(row, place.second), id);
  }
  cells_ = std::move(moved);
}

void MultiColumnList::TellOfSelection() {
  if (!QAccessible::isActive()) return;
  if (rows_.ListIndex() < 0) {
    QAccessibleEvent event(this, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&event);
    return;
  }
  QAccessibleEvent event(this, QAccessible::Selection);
  event.setChild((rows_.ListIndex() - MultiColumnListCell::kHeadRow) * ColumnCount());
  QAccessible::updateAccessibility(&event);
  if (hasFocus()) TellOfFocus();
}

void MultiColumnList::TellOfFocus() {
  if (!QAccessible::isActive() || rows_.ListIndex() < 0) return;
  QAccessibleEvent event(this, QAccessible::Focus);
  event.setChild((rows_.ListIndex() - MultiColumnListCell::kHeadRow) * ColumnCount());
  QAccessible::updateAccessibility(&event);
}

void MultiColumnList::TellOfRows(QAccessibleTableModelChangeEvent::ModelChangeType change,
                                 int row) {
  if (!QAccessible::isActive()) return;
  QAccessibleTableModelChangeEvent event(this, change);
  event.setFirstRow(row);
  event.setLastRow(row);
  QAccessible::updateAccessibility(&event);
}

}  // namespace parlate

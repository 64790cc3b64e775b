#pragma once

#include <QAccessible>
#include <QPointer>

#include "widgets/MultiColumnList.h"

namespace parlate {

/// One cell, or one head if the row is kHeadRow. It reads from the list whatever it is asked, so
/// it cannot fall behind it.
class MultiColumnListCell final : public QAccessibleInterface,
                                  public QAccessibleTableCellInterface,
                                  public QAccessibleActionInterface {
 public:
  static constexpr int kHeadRow = -1;

  MultiColumnListCell(MultiColumnList& list, int row, int column)
      : list_(&list), row_(row), column_(column) {}

  void MoveToRow(int row) { row_ = row; }
  [[nodiscard]] int Row() const { return row_; }
  [[nodiscard]] int Column() const { return column_; }

  bool isValid() const override {
    return list_ != nullptr && column_ < list_->ColumnCount() &&
           row_ < static_cast<int>(list_->Rows().ListCount());
  }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(list_);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  void setText(QAccessible::Text /*which*/, const QString& /*text*/) override {}

  QString text(QAccessible::Text which) const override;
  QRect rect() const override;
  QAccessible::Role role() const override {
    return row_ == kHeadRow ? QAccessible::ColumnHeader : QAccessible::Cell;
  }
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  int columnIndex() const override { return column_; }
  int rowIndex() const override { return row_; }
  bool isSelected() const override { return isValid() && list_->Rows().ListIndex() == row_; }
  QList<QAccessibleInterface*> columnHeaderCells() const override;
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  QAccessibleInterface* table() const override { return parent(); }

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  QPointer<MultiColumnList> list_;
  int row_;
  int column_;
};

}  // namespace parlate

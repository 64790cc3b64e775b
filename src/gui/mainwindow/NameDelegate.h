#pragma once

#include <QStyledItemDelegate>

namespace parlate {

/// Edits a name in place in a field that is kept to the code page.
class NameDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
};

}  // namespace parlate

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

 protected:
  /// Tab takes the name and stays: moving on would edit the next node, which nobody asked for.
  bool eventFilter(QObject* editor, QEvent* event) override;
};

}  // namespace parlate

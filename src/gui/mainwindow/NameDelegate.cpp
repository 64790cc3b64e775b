#include "mainwindow/NameDelegate.h"

#include <QLineEdit>

#include "platform/CodePageInput.h"

namespace parlate {

QWidget* NameDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
  QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
  editor->setAccessibleName(QStringLiteral("Name"));
  if (auto* line = qobject_cast<QLineEdit*>(editor)) KeepToCodePage(*line);
  return editor;
}

}  // namespace parlate

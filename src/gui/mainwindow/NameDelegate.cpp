#include "mainwindow/NameDelegate.h"

#include <QKeyEvent>
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

bool NameDelegate::eventFilter(QObject* editor, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    auto* field = qobject_cast<QWidget*>(editor);
    if (field != nullptr && (key == Qt::Key_Tab || key == Qt::Key_Backtab)) {
      emit commitData(field);
      emit closeEditor(field, NoHint);
      return true;
    }
  }
  return QStyledItemDelegate::eventFilter(editor, event);
}

}  // namespace parlate

#include "editors/TableCombo.h"

#include <QApplication>
#include <QFocusEvent>
#include <utility>

#include "model/TableCombos.h"

namespace parlate {

namespace {

/// The focus comes back by itself from a popup or a menu.
bool IsForAWhile(Qt::FocusReason reason) {
  return reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

}  // namespace

TableCombo::TableCombo(QtComboBox& combo, std::int32_t tableType, QAbstractButton& editButton,
                       std::function<void()> changed)
    : combo_(combo), tableType_(tableType), changed_(std::move(changed)) {
  combo_.installEventFilter(this);
  connect(&combo_, &QtComboBox::choiceChanged, this, changed_);
  connect(&editButton, &QAbstractButton::clicked, this, [this] {
    EditTableFromCombo(tableType_, combo_);
    changed_();
  });
}

bool TableCombo::IsValid() const { return ValidateComboEntry(combo_, tableType_, true); }

bool TableCombo::eventFilter(QObject* watched, QEvent* event) {
  const bool left = watched == &combo_ && event->type() == QEvent::FocusOut;
  if (left && !IsForAWhile(static_cast<QFocusEvent*>(event)->reason())) {
    // A question in the middle of a change of focus would leave the focus nowhere.
    left_ = true;
    QMetaObject::invokeMethod(this, &TableCombo::Leave, Qt::QueuedConnection);
  }
  return QObject::eventFilter(watched, event);
}

void TableCombo::Leave() {
  if (std::exchange(left_, false)) LostFocus();
}

void TableCombo::LostFocus() {
  // Another program's window in front takes nothing from the combo: it is not left yet. A dialog
  // of the form does not either, it was opened from a key while the combo was in use.
  const QWidget* active = QApplication::activeWindow();
  const bool back = combo_.hasFocus() || active == nullptr;
  const bool dialogOver = active != nullptr && active != combo_.window() && active->isModal();
  if (asking_ || back || dialogOver) return;
  asking_ = true;
  ValidateComboEntry(combo_, tableType_, false);
  asking_ = false;
  changed_();
}

}  // namespace parlate

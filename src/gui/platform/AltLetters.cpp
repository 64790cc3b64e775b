#include "platform/AltLetters.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace parlate {

bool IsLeftOverAccessKey(const QObject& receiver, const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  const Qt::KeyboardModifiers modifiers =
      key.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  const bool isLetter = !key.text().isEmpty() && key.text().at(0).isPrint();
  const bool takesText = qobject_cast<const QLineEdit*>(&receiver) != nullptr ||
                         qobject_cast<const QPlainTextEdit*>(&receiver) != nullptr ||
                         qobject_cast<const QComboBox*>(&receiver) != nullptr;
  return modifiers == Qt::AltModifier && isLetter && takesText;
}

}  // namespace parlate

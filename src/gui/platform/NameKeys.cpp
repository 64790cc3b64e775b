#include "platform/NameKeys.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "general/CodePage.h"

namespace parlate {

namespace {

class NameKeyFilter final : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const QString text = static_cast<QKeyEvent*>(event)->text();
    // Keys that write nothing move the caret, delete, or are commands.
    const bool writes = !text.isEmpty() && text.front().isPrint();
    return writes && !IsValidNameChar(text.front().unicode());
  }
};

}  // namespace

void KeepToNameKeys(QLineEdit& edit) { edit.installEventFilter(new NameKeyFilter(&edit)); }

}  // namespace parlate

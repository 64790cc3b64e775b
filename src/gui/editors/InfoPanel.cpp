#include "editors/InfoPanel.h"

#include <QLabel>

#include "platform/FormControls.h"

namespace parlate {

void SetUpInfoPanel(QLabel& panel, const char* name, QLabel& label, const QString& caption) {
  const QString labelName = QStringLiteral("lbl") + QString::fromLatin1(name).mid(3);
  SetUpLabel(label, labelName.toLatin1().constData(), caption);
  SetUpLabel(panel, name, QString());
  panel.setAccessibleName(caption);
  panel.setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
  panel.setMargin(2);
  // Who uses the keys reaches the value, too, and can copy it. The flags alone give no more than
  // the focus of a click.
  panel.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  panel.setFocusPolicy(Qt::StrongFocus);
}

void ShowInfo(QLabel& panel, const QLabel& label, const QString& value) {
  panel.setText(value);
  panel.setAccessibleName(label.text() + QLatin1Char(' ') + value);
}

}  // namespace parlate

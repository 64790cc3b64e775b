#include "platform/FormControls.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

namespace parlate {

namespace {

QString WithoutAccessKey(QString caption) { return caption.remove(u'&'); }

}  // namespace

void NameControl(QWidget& control, const char* name, const QString& accessibleName) {
  control.setObjectName(QString::fromLatin1(name));
  control.setAccessibleName(accessibleName);
}

void SetUpButton(QAbstractButton& button, const char* name, const QString& caption) {
  NameControl(button, name, WithoutAccessKey(caption));
  button.setText(caption);
}

void SetUpLabel(QLabel& label, const char* name, const QString& text) {
  NameControl(label, name, text);
  label.setTextFormat(Qt::PlainText);
  label.setText(text);
}

void SetUpField(QWidget& field, const char* name, QLabel& label) {
  NameControl(field, name, WithoutAccessKey(label.text()));
  label.setBuddy(&field);
}

void PutCaretBehindText(QLineEdit& field) {
  field.deselect();
  field.end(false);
}

void FocusWholeText(QLineEdit& field) {
  field.setFocus(Qt::OtherFocusReason);
  field.selectAll();
}

void EnableButton(QAbstractButton& button, bool enable, QWidget& next) {
  if (!enable && button.hasFocus()) next.setFocus();
  button.setEnabled(enable);
}

}  // namespace parlate

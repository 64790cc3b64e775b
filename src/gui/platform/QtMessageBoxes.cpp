#include "platform/QtMessageBoxes.h"

#include <QApplication>
#include <QMessageBox>

#include "settings/ConversationDefaults.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

QMessageBox::Icon IconOf(MessageBox::Icon icon) {
  switch (icon) {
    case MessageBox::Icon::None:
      break;
    case MessageBox::Icon::Information:
      return QMessageBox::Information;
    case MessageBox::Icon::Question:
      return QMessageBox::Question;
    case MessageBox::Icon::Exclamation:
      return QMessageBox::Warning;
    case MessageBox::Icon::Critical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

void AddButtons(QMessageBox& window, MessageBox::Buttons buttons) {
  switch (buttons) {
    case MessageBox::Buttons::Ok:
      window.setStandardButtons(QMessageBox::Ok);
      window.setDefaultButton(QMessageBox::Ok);
      window.setEscapeButton(QMessageBox::Ok);
      return;
    case MessageBox::Buttons::YesNo:
      window.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      window.setDefaultButton(QMessageBox::Yes);
      window.setEscapeButton(QMessageBox::No);
      return;
    case MessageBox::Buttons::YesNoCancel:
      window.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
      window.setDefaultButton(QMessageBox::Yes);
      window.setEscapeButton(QMessageBox::Cancel);
      return;
  }
}

Answer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Ok:
      return Answer::Ok;
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

}  // namespace

Answer QtMessageBoxes::Show(const MessageBox& box) {
  QMessageBox window(QApplication::activeWindow());
  const QString title = ToQString(box.title.empty() ? kProgramTitle : box.title);
  window.setObjectName(QStringLiteral("MessageBox"));
  window.setWindowTitle(title);
  window.setAccessibleName(title);
  window.setAccessibleDescription(ToQString(box.text));
  // Names of conversations and files stand in the texts, and "<b>" is a fine name.
  window.setTextFormat(Qt::PlainText);
  window.setText(ToQString(box.text));
  window.setIcon(IconOf(box.icon));
  AddButtons(window, box.buttons);
  return AnswerOf(window.exec());
}

}  // namespace parlate

#include "platform/TextField.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <limits>

#include "platform/CodePageInput.h"
#include "widgets/CodePageText.h"

namespace parlate {

QtTextBox::QtTextBox(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  KeepToCodePage(*this);
}

void QtTextBox::SetText(const std::string& text) {
  {
    // Whoever hears of the change asks for the text, which must be the one that was set.
    const QSignalBlocker silence(this);
    setPlainText(ToQString(text));
    setText_ = text;
    shown_ = document()->toRawText();
  }
  emit textChanged();
}

std::string QtTextBox::Text() const {
  // The raw text: the plain one has blanks for the blanks that do not break.
  QString text = document()->toRawText();
  if (text == shown_) return setText_;
  text.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
  return FromQString(text);
}

void QtTextBox::keyPressEvent(QKeyEvent* event) {
  // With Shift the toolkit breaks the line by a character that the code page lacks.
  if (event->matches(QKeySequence::InsertLineSeparator)) {
    textCursor().insertBlock();
    ensureCursorVisible();
    event->accept();
    return;
  }
  QPlainTextEdit::keyPressEvent(event);
}

void SetUpTextLine(QLineEdit& line) {
  KeepToCodePage(line);
  line.setMaxLength(std::numeric_limits<int>::max());
}

}  // namespace parlate

#include "platform/TextField.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <algorithm>
#include <iterator>
#include <limits>

#include "general/CodePage.h"
#include "platform/CodePageInput.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

/// Control characters are no typing: they come with Tab, Return, Delete and the shortcuts.
bool FitsInName(QChar character) {
  const bool control = character < u' ' || character == QChar(0x7F);
  return control || IsValidNameChar(character.unicode());
}

QString NameLettersOf(const QString& typed) {
  QString letters;
  std::copy_if(typed.begin(), typed.end(), std::back_inserter(letters), FitsInName);
  return letters;
}

class NameKeyFilter final : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const QString typed = static_cast<QKeyEvent*>(event)->text();
      if (NameLettersOf(typed) != typed) return true;
    }
    if (event->type() == QEvent::InputMethod) {
      auto* input = static_cast<QInputMethodEvent*>(event);
      input->setCommitString(NameLettersOf(input->commitString()), input->replacementStart(),
                             input->replacementLength());
    }
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace

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

void FilterNameKeys(QLineEdit& line) { line.installEventFilter(new NameKeyFilter(&line)); }

}  // namespace parlate

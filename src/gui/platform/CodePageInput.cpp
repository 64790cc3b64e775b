#include "platform/CodePageInput.h"

#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextDocument>
#include <optional>

#include "general/CodePage.h"

namespace parlate {

namespace {

struct Found {
  qsizetype start = 0;
  qsizetype length = 0;
};

bool InCodePage(char32_t character) { return character == U'?' || CodePageByte(character) != '?'; }

/// The first character outside the code page at or behind `from`.
std::optional<Found> FindOutside(const QString& text, qsizetype from) {
  for (qsizetype i = from; i < text.size(); ++i) {
    const bool isPair =
        i + 1 < text.size() && text[i].isHighSurrogate() && text[i + 1].isLowSurrogate();
    if (isPair) return Found{i, 2};
    if (!InCodePage(text[i].unicode())) return Found{i, 1};
  }
  return std::nullopt;
}

/// Replaces in one block, so that one step of undo takes back what was typed with it.
void ReplaceInBlock(QTextCursor& cursor, const QTextBlock& block) {
  std::optional<Found> found = FindOutside(block.text(), 0);
  while (found) {
    const int start = block.position() + static_cast<int>(found->start);
    const int end = start + static_cast<int>(found->length);
    // Behind it first: a caret at either side stays at that side.
    cursor.setPosition(end);
    cursor.insertText(QStringLiteral("?"));
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    found = FindOutside(block.text(), found->start + 1);
  }
}

void ReplaceInDocument(QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (!FindOutside(block.text(), 0)) continue;
    QTextCursor cursor(&document);
    cursor.joinPreviousEditBlock();
    ReplaceInBlock(cursor, block);
    cursor.endEditBlock();
  }
}

QString Mended(QString text) {
  int ignored = 0;
  ReplaceOutsideCodePage(text, ignored);
  return text;
}

/// Mends what comes from the keyboard before it is in the document: a single letter is a step of
/// undo for itself, to which no replacement could be joined.
class InputMender final : public QObject {
 public:
  explicit InputMender(QPlainTextEdit& edit) : QObject(&edit), edit_(edit) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress && !edit_.isReadOnly()) {
      const QString typed = static_cast<QKeyEvent*>(event)->text();
      if (FindOutside(typed, 0)) {
        edit_.insertPlainText(Mended(typed));
        return true;
      }
    }
    if (event->type() == QEvent::InputMethod) {
      auto* input = static_cast<QInputMethodEvent*>(event);
      input->setCommitString(Mended(input->commitString()), input->replacementStart(),
                             input->replacementLength());
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QPlainTextEdit& edit_;
};

}  // namespace

void ReplaceOutsideCodePage(QString& text, int& position) {
  std::optional<Found> found = FindOutside(text, 0);
  while (found) {
    text.replace(found->start, found->length, u'?');
    if (position >= found->start + found->length) {
      position -= static_cast<int>(found->length) - 1;
    }
    found = FindOutside(text, found->start + 1);
  }
}

QValidator::State CodePageValidator::validate(QString& input, int& position) const {
  ReplaceOutsideCodePage(input, position);
  return Acceptable;
}

void KeepToCodePage(QLineEdit& edit) { edit.setValidator(new CodePageValidator(&edit)); }

void KeepToCodePage(QComboBox& combo) { combo.setValidator(new CodePageValidator(&combo)); }

void KeepToCodePage(QPlainTextEdit& edit) {
  edit.installEventFilter(new InputMender(edit));
  QTextDocument* document = edit.document();
  // The replacement is a change too, and by then there is nothing left to replace. What undo brings
  // back has been mended once and has to stay as it is, or undo would get no further.
  QObject::connect(document, &QTextDocument::contentsChanged, &edit, [document] {
    if (!document->isRedoAvailable()) ReplaceInDocument(*document);
  });
}

}  // namespace parlate

#pragma once

#include <QValidator>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;

namespace parlate {

/// The files hold one byte a character, so a character that the code page lacks is stored as "?".
/// A field kept to the code page shows that at once, when such a character is typed, pasted or
/// dropped. The caret stays with the text around it.
void KeepToCodePage(QLineEdit& edit);
void KeepToCodePage(QPlainTextEdit& edit);
void KeepToCodePage(QComboBox& combo);

/// Replaces every character outside the code page by "?". A position in the text moves with it.
void ReplaceOutsideCodePage(QString& text, int& position);

/// What keeps a line to the code page: it mends every input and refuses none.
class CodePageValidator : public QValidator {
  Q_OBJECT

 public:
  using QValidator::QValidator;
  State validate(QString& input, int& position) const override;
};

}  // namespace parlate

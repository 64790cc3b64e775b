#pragma once

#include <QString>

class QAbstractButton;
class QLabel;
class QLineEdit;
class QWidget;

namespace parlate {

/// Gives a control the name by which it is found and the one that is read to those who do not see
/// it.
void NameControl(QWidget& control, const char* name, const QString& accessibleName);

/// As NameControl, with the caption as accessible name: an "&" in it marks the access key.
void SetUpButton(QAbstractButton& button, const char* name, const QString& caption);

/// A label whose text is shown as it is.
void SetUpLabel(QLabel& label, const char* name, const QString& text);

/// A field whose accessible name is the text of the label before it.
void SetUpField(QWidget& field, const char* name, QLabel& label);

/// Selects nothing of the text of a field and puts the caret behind its last character.
void PutCaretBehindText(QLineEdit& field);
/// Gives a field the focus with all its text selected.
void FocusWholeText(QLineEdit& field);
/// Enables a button or greys it. A focus that it loses goes to `next` and not to whatever control
/// comes next, which a further press of the same key would use unasked.
void EnableButton(QAbstractButton& button, bool enable, QWidget& next);

}  // namespace parlate

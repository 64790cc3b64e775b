#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <string>

namespace parlate {

/// A button that stands behind a field. Many have the same caption: heard alone, each says which
/// field it is for.
void SetUpFieldButton(QPushButton& button, const char* name, const QString& caption,
                      const QLabel& label);

/// Rows of a label, its field and maybe a button behind it; the fields take the room.
[[nodiscard]] QGridLayout* FieldRows();
void AddFieldRow(QGridLayout& rows, QLabel& label, QWidget& field, QWidget* button = nullptr);

/// Takes the mark out of an option, so that maybe none of its group is set.
void ClearOption(QRadioButton& option);

/// The text of a line for the core.
[[nodiscard]] std::string LineText(const QLineEdit& line);
/// Shows a text of the core in a line, from its first character on.
void SetLineText(QLineEdit& line, const std::string& text);

}  // namespace parlate

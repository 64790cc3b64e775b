#include "editors/panels/PanelControls.h"

#include "platform/FormControls.h"
#include "widgets/CodePageText.h"

namespace parlate {

void SetUpFieldButton(QPushButton& button, const char* name, const QString& caption,
                      const QLabel& label) {
  SetUpButton(button, name, caption);
  button.setAccessibleName(caption + u' ' + label.text());
  // Return in a field must not press the button behind it.
  button.setAutoDefault(false);
}

QGridLayout* FieldRows() {
  auto* rows = new QGridLayout;
  rows->setColumnStretch(1, 1);
  return rows;
}

void AddFieldRow(QGridLayout& rows, QLabel& label, QWidget& field, QWidget* button) {
  const int row = rows.rowCount();
  rows.addWidget(&label, row, 0);
  rows.addWidget(&field, row, 1, 1, button == nullptr ? 2 : 1);
  if (button != nullptr) rows.addWidget(button, row, 2);
}

void ClearOption(QRadioButton& option) {
  option.setAutoExclusive(false);
  option.setChecked(false);
  option.setAutoExclusive(true);
}

std::string LineText(const QLineEdit& line) { return FromQString(line.text()); }

void SetLineText(QLineEdit& line, const std::string& text) {
  line.setText(ToQString(text));
  line.setCursorPosition(0);
}

}  // namespace parlate

#include "editors/frmEditValue.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/FormControls.h"
#include "platform/TextField.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

constexpr int kFieldWidth = 280;

}  // namespace

frmEditValue::frmEditValue(QWidget* parent) : QDialog(parent) {
  SetUpControls();
  BuildLayout();
  connect(&txtValue, &QLineEdit::textChanged, this,
          [this](const QString& text) { cmdOK.setEnabled(!text.isEmpty()); });
  connect(&cmdOK, &QPushButton::clicked, this, &frmEditValue::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmEditValue::reject);
}

void frmEditValue::SetUpControls() {
  NameControl(*this, "frmEditValue", QStringLiteral("Edit Value"));
  setWindowTitle(QStringLiteral("Edit Value"));
  SetUpLabel(lblDesc, "lblDesc", QStringLiteral("Value"));
  SetUpField(txtValue, "txtValue", lblDesc);
  SetUpTextLine(txtValue);
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&OK"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  cmdOK.setDefault(true);
  cmdOK.setEnabled(false);
}

void frmEditValue::BuildLayout() {
  txtValue.setMinimumWidth(kFieldWidth);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdOK);
  buttons->addWidget(&cmdCancel);

  auto* form = new QVBoxLayout(this);
  form->addWidget(&lblDesc);
  form->addWidget(&txtValue);
  form->addStretch();
  form->addLayout(buttons);
}

void frmEditValue::SetCaptions(const std::string& caption, const std::string& description) {
  setWindowTitle(ToQString(caption));
  setAccessibleName(ToQString(caption));
  lblDesc.setText(ToQString(description));
  SetUpField(txtValue, "txtValue", lblDesc);
}

std::string frmEditValue::EditValue() const { return FromQString(txtValue.text()); }

void frmEditValue::SetEditValue(const std::string& value) {
  txtValue.setText(ToQString(value));
  PutCaretBehindText(txtValue);
}

void frmEditValue::setVisible(bool visible) {
  QDialog::setVisible(visible);
  // A dialog that comes up selects the text of its first field.
  if (visible) PutCaretBehindText(txtValue);
}

void frmEditValue::accept() {
  modalResult = 0;
  QDialog::accept();
}

void frmEditValue::reject() {
  modalResult = 1;
  QDialog::reject();
}

}  // namespace parlate

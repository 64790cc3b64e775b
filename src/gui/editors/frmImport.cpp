#include "editors/frmImport.h"

#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "general/Paths.h"
#include "platform/FormControls.h"

namespace parlate {

namespace {

constexpr int kFieldWidth = 320;

}  // namespace

frmImport::frmImport(ConversationDefaults& defaults, FileDialogs& fileDialogs, Import importConFile,
                     QWidget* parent)
    : QDialog(parent),
      defaults_(defaults),
      fileDialogs_(fileDialogs),
      importConFile_(std::move(importConFile)) {
  SetUpControls();
  BuildLayout();
  UpdateEnabling();

  connect(&txtFilename, &QLineEdit::textChanged, this, &frmImport::UpdateEnabling);
  connect(&cmdBrowseName, &QPushButton::clicked, this, &frmImport::Browse);
  connect(&cmdOK, &QPushButton::clicked, this, &frmImport::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmImport::reject);
}

void frmImport::SetUpControls() {
  NameControl(*this, "frmImport", QStringLiteral("Import Conversations"));
  setWindowTitle(QStringLiteral("Import Conversations"));
  SetUpLabel(Label3, "Label3", QStringLiteral("Import Filename:"));
  SetUpField(txtFilename, "txtFilename", Label3);
  SetUpButton(cmdBrowseName, "cmdBrowseName", QStringLiteral("&Browse..."));
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&Start Import"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  cmdOK.setDefault(true);
}

void frmImport::BuildLayout() {
  auto* name = new QHBoxLayout;
  name->addWidget(&Label3);
  name->addWidget(&txtFilename, 1);
  name->addWidget(&cmdBrowseName);
  txtFilename.setMinimumWidth(kFieldWidth);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdOK);
  buttons->addWidget(&cmdCancel);

  auto* form = new QVBoxLayout(this);
  form->addLayout(name);
  form->addStretch();
  form->addLayout(buttons);
}

bool frmImport::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) UpdateEnabling();
  return QDialog::event(event);
}

void frmImport::UpdateEnabling() { cmdOK.setEnabled(!txtFilename.text().isEmpty()); }

void frmImport::Browse() {
  FileDialog dialog;
  dialog.title = "Choose File to Import";
  dialog.filter = "All Files (*.*)|*.*|Text Files (*.txt)|*.txt";
  dialog.initialFolder = GetPathOnly(defaults_.LastImportPath);
  // Meant: the dialog is the one for saving. But what is chosen will be read.
  dialog.asksToReplace = false;
  const std::string file = fileDialogs_.ShowSave(dialog);
  if (file.empty()) return;
  txtFilename.setText(QFile::decodeName(file.c_str()));
  defaults_.LastImportPath = GetPathOnly(file);
}

void frmImport::accept() {
  hide();
  importConFile_(QFile::encodeName(txtFilename.text()).toStdString());
  QDialog::accept();
}

}  // namespace parlate

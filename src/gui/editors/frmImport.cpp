#include "editors/frmImport.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "editors/FormLayouts.h"
#include "platform/FormControls.h"

namespace parlate {

frmImport::frmImport(ConversationDefaults& defaults, FileDialogs& fileDialogs, Import importConFile,
                     QWidget* parent)
    : QDialog(parent),
      defaults_(defaults),
      fileDialogs_(fileDialogs),
      importConFile_(std::move(importConFile)) {
  SetUpControls();
  BuildLayout();
  UpdateEnabling();

  connect(&file_.txtFilename, &QLineEdit::textChanged, this, &frmImport::UpdateEnabling);
  connect(&file_.cmdBrowseName, &QPushButton::clicked, this, &frmImport::Browse);
  connect(&cmdOK, &QPushButton::clicked, this, &frmImport::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmImport::reject);
}

void frmImport::SetUpControls() {
  NameControl(*this, "frmImport", QStringLiteral("Import Conversations"));
  setWindowTitle(QStringLiteral("Import Conversations"));
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&Start Import"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  cmdOK.setDefault(true);
}

void frmImport::BuildLayout() {
  auto* form = new QVBoxLayout(this);
  form->addLayout(file_.Layout());
  form->addStretch();
  form->addLayout(FootButtons(cmdOK, cmdCancel));
}

bool frmImport::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) UpdateEnabling();
  return QDialog::event(event);
}

void frmImport::UpdateEnabling() { cmdOK.setEnabled(!file_.IsEmpty()); }

void frmImport::Browse() {
  FileDialog dialog;
  dialog.title = "Choose File to Import";
  dialog.filter = "All Files (*.*)|*.*|Text Files (*.txt)|*.txt";
  // Meant: the dialog is the one for saving. But what is chosen will be read.
  dialog.asksToReplace = false;
  file_.Browse(fileDialogs_, std::move(dialog), defaults_.LastImportPath);
}

void frmImport::accept() {
  hide();
  importConFile_(file_.FileName());
  QDialog::accept();
}

}  // namespace parlate

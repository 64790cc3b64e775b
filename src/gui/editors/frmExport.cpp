#include "editors/frmExport.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "editors/FormLayouts.h"
#include "interchange/ExportConversation.h"
#include "platform/FormControls.h"

namespace parlate {

frmExport::frmExport(ConversationDefaults& defaults, FileDialogs& fileDialogs, Export exportConFile,
                     QWidget* parent)
    : QDialog(parent),
      defaults_(defaults),
      fileDialogs_(fileDialogs),
      exportConFile_(std::move(exportConFile)) {
  SetUpControls();
  BuildLayout();
  UpdateEnabling();
  UpdateExportOptions();

  connect(&file_.txtFilename, &QLineEdit::textChanged, this, &frmExport::UpdateEnabling);
  connect(&file_.cmdBrowseName, &QPushButton::clicked, this, &frmExport::Browse);
  connect(&optExportDialog, &QRadioButton::toggled, this, &frmExport::UpdateExportOptions);
  connect(&cmdOK, &QPushButton::clicked, this, &frmExport::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmExport::reject);
}

void frmExport::SetUpControls() {
  NameControl(*this, "frmExport", QStringLiteral("Export Conversations"));
  setWindowTitle(QStringLiteral("Export Conversations"));
  NameControl(Frame2, "Frame2", QStringLiteral("Export Options"));
  Frame2.setTitle(QStringLiteral("Export Options"));
  SetUpButton(optExportDialog, "optExportDialog", QStringLiteral("Export Dialog"));
  SetUpButton(optExportFilenames, "optExportFilenames", QStringLiteral("Export Filenames"));
  SetUpButton(chkExportComments, "chkExportComments", QStringLiteral("Export Comments"));
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&Start Export"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  optExportDialog.setChecked(true);
  chkExportComments.setChecked(true);
  cmdOK.setDefault(true);
}

void frmExport::BuildLayout() {
  auto* options = new QVBoxLayout(&Frame2);
  options->addWidget(&optExportDialog);
  options->addWidget(&optExportFilenames);
  options->addWidget(&chkExportComments);

  auto* form = new QVBoxLayout(this);
  form->addLayout(file_.Layout());
  form->addWidget(&Frame2);
  form->addStretch();
  form->addLayout(FootButtons(cmdOK, cmdCancel));
}

bool frmExport::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    UpdateEnabling();
    UpdateExportOptions();
  }
  return QDialog::event(event);
}

void frmExport::UpdateEnabling() { cmdOK.setEnabled(!file_.IsEmpty()); }

void frmExport::UpdateExportOptions() { chkExportComments.setEnabled(optExportDialog.isChecked()); }

void frmExport::Browse() {
  FileDialog dialog;
  dialog.title = "Choose Export File";
  dialog.filter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
  file_.Browse(fileDialogs_, std::move(dialog), defaults_.LastExportPath);
}

void frmExport::accept() {
  hide();
  // Meant: a box that is greyed counts with the mark that it bears.
  exportConFile_(file_.FileName(), optExportDialog.isChecked() ? kExportDialog : kExportFilenames,
                 chkExportComments.isChecked());
  QDialog::accept();
}

}  // namespace parlate

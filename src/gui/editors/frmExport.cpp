#include "editors/frmExport.h"

#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "general/Paths.h"
#include "interchange/ExportConversation.h"
#include "platform/FormControls.h"

namespace parlate {

namespace {

constexpr int kFieldWidth = 320;

}  // namespace

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

  connect(&txtFilename, &QLineEdit::textChanged, this, &frmExport::UpdateEnabling);
  connect(&cmdBrowseName, &QPushButton::clicked, this, &frmExport::Browse);
  connect(&optExportDialog, &QRadioButton::toggled, this, &frmExport::UpdateExportOptions);
  connect(&cmdOK, &QPushButton::clicked, this, &frmExport::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmExport::reject);
}

void frmExport::SetUpControls() {
  NameControl(*this, "frmExport", QStringLiteral("Export Conversations"));
  setWindowTitle(QStringLiteral("Export Conversations"));
  SetUpLabel(Label3, "Label3", QStringLiteral("Export Filename:"));
  SetUpField(txtFilename, "txtFilename", Label3);
  SetUpButton(cmdBrowseName, "cmdBrowseName", QStringLiteral("&Browse..."));
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
  auto* name = new QHBoxLayout;
  name->addWidget(&Label3);
  name->addWidget(&txtFilename, 1);
  name->addWidget(&cmdBrowseName);
  txtFilename.setMinimumWidth(kFieldWidth);

  auto* options = new QVBoxLayout(&Frame2);
  options->addWidget(&optExportDialog);
  options->addWidget(&optExportFilenames);
  options->addWidget(&chkExportComments);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdOK);
  buttons->addWidget(&cmdCancel);

  auto* form = new QVBoxLayout(this);
  form->addLayout(name);
  form->addWidget(&Frame2);
  form->addStretch();
  form->addLayout(buttons);
}

bool frmExport::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) {
    UpdateEnabling();
    UpdateExportOptions();
  }
  return QDialog::event(event);
}

void frmExport::UpdateEnabling() { cmdOK.setEnabled(!txtFilename.text().isEmpty()); }

void frmExport::UpdateExportOptions() { chkExportComments.setEnabled(optExportDialog.isChecked()); }

void frmExport::Browse() {
  FileDialog dialog;
  dialog.title = "Choose Export File";
  dialog.filter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
  dialog.initialFolder = GetPathOnly(defaults_.LastExportPath);
  const std::string file = fileDialogs_.ShowSave(dialog);
  if (file.empty()) return;
  txtFilename.setText(QFile::decodeName(file.c_str()));
  defaults_.LastExportPath = GetPathOnly(file);
}

void frmExport::accept() {
  hide();
  // Meant: a box that is greyed counts with the mark that it bears.
  exportConFile_(QFile::encodeName(txtFilename.text()).toStdString(),
                 optExportDialog.isChecked() ? kExportDialog : kExportFilenames,
                 chkExportComments.isChecked());
  QDialog::accept();
}

}  // namespace parlate

#include "editors/frmSettings.h"

#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "general/Paths.h"
#include "platform/CodePageInput.h"
#include "platform/FormControls.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

constexpr int kFieldWidth = 320;

constexpr const char* kConversationFiles =
    "Conversation Files (*.con)|*.con|Conversation Backups (*.bak)|*.bak";
constexpr const char* kAllFiles = "All Files (*.*)|*.*";

// Unlike the name, a folder is the platform's own text and need not fit into the code page.
QString PathText(const std::string& path) { return QFile::decodeName(path.c_str()); }

std::string PathIn(const QLineEdit& box) { return QFile::encodeName(box.text()).toStdString(); }

void SetUpBrowseButton(QPushButton& button, const char* name, const QLabel& label) {
  SetUpButton(button, name, QStringLiteral("Browse..."));
  // Three buttons of one caption: heard alone, each says what it is for.
  button.setAccessibleName(QStringLiteral("Browse... ") + label.text());
}

}  // namespace

frmSettings::frmSettings(ConversationDefaults& defaults, FileDialogs& fileDialogs,
                         SettingsHost& host, QWidget* parent)
    : QDialog(parent), defaults_(defaults), fileDialogs_(fileDialogs), host_(host) {
  SetUpControls();
  BuildLayout();
  ShowValues();
  UpdateEnabling();

  connect(&txtUsername, &QLineEdit::textChanged, this, &frmSettings::UpdateEnabling);
  connect(&txtConPath, &QLineEdit::textChanged, this, &frmSettings::UpdateEnabling);
  connect(&cmdBrowseConFilePath0, &QPushButton::clicked, this, [this] {
    Browse("Choose Conversation Files Directory", kConversationFiles, txtConPath);
  });
  connect(&cmdBrowseConFilePath1, &QPushButton::clicked, this, [this] {
    Browse("Choose Conversation Files Backup Directory", kConversationFiles, txtConBackupPath);
  });
  connect(&cmdBrowseConFilePath2, &QPushButton::clicked, this,
          [this] { Browse("Choose Audio Path", kAllFiles, txtAudioPath); });
  connect(&cmdClearLastFiles, &QPushButton::clicked, this, &frmSettings::ClearLastFiles);
  connect(&cmdOK, &QPushButton::clicked, this, &frmSettings::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmSettings::reject);
}

void frmSettings::SetUpControls() {
  NameControl(*this, "frmSettings", QStringLiteral("Parlate Settings"));
  setWindowTitle(QStringLiteral("Parlate Settings"));
  SetUpLabel(Label1, "Label1", QStringLiteral("Username:"));
  SetUpField(txtUsername, "txtUsername", Label1);
  SetUpLabel(Label3, "Label3", QStringLiteral("Conversation File Path:"));
  SetUpField(txtConPath, "txtConPath", Label3);
  SetUpBrowseButton(cmdBrowseConFilePath0, "cmdBrowseConFilePath(0)", Label3);
  SetUpLabel(Label4, "Label4", QStringLiteral("Conversation File Backup Path:"));
  SetUpField(txtConBackupPath, "txtConBackupPath", Label4);
  SetUpBrowseButton(cmdBrowseConFilePath1, "cmdBrowseConFilePath(1)", Label4);
  SetUpLabel(Label2, "Label2", QStringLiteral("Audio Path:"));
  SetUpField(txtAudioPath, "txtAudioPath", Label2);
  SetUpBrowseButton(cmdBrowseConFilePath2, "cmdBrowseConFilePath(2)", Label2);
  NameControl(Frame1, "Frame1", QStringLiteral("Options"));
  Frame1.setFrameShape(QFrame::StyledPanel);
  SetUpButton(chkExpandFlags, "chkExpandFlags", QStringLiteral("Expand Flags on \"Expand All\""));
  SetUpButton(chkConfirmationConDelete, "chkConfirmationConDelete",
              QStringLiteral("Confirmation on Conversation Delete"));
  SetUpButton(chkConfirmationEventDelete, "chkConfirmationEventDelete",
              QStringLiteral("Confirmation on Event Delete"));
  SetUpButton(chkHighlightMissingAudio, "chkHighlightMissingAudio",
              QStringLiteral("Highlight Speech/Choice Events Missing Audio"));
  SetUpButton(cmdClearLastFiles, "cmdClearLastFiles", QStringLiteral("Clear Last Files"));
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&OK"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  cmdOK.setDefault(true);
  KeepToCodePage(txtUsername);
}

void frmSettings::BuildLayout() {
  auto* fields = new QGridLayout;
  fields->addWidget(&Label1, 0, 0);
  fields->addWidget(&txtUsername, 0, 1);
  fields->addWidget(&Label3, 1, 0);
  fields->addWidget(&txtConPath, 1, 1);
  fields->addWidget(&cmdBrowseConFilePath0, 1, 2);
  fields->addWidget(&Label4, 2, 0);
  fields->addWidget(&txtConBackupPath, 2, 1);
  fields->addWidget(&cmdBrowseConFilePath1, 2, 2);
  fields->addWidget(&Label2, 3, 0);
  fields->addWidget(&txtAudioPath, 3, 1);
  fields->addWidget(&cmdBrowseConFilePath2, 3, 2);
  fields->setColumnStretch(1, 1);
  txtConPath.setMinimumWidth(kFieldWidth);

  auto* options = new QVBoxLayout(&Frame1);
  options->addWidget(&chkExpandFlags);
  options->addWidget(&chkConfirmationConDelete);
  options->addWidget(&chkConfirmationEventDelete);
  options->addWidget(&chkHighlightMissingAudio);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(&cmdClearLastFiles);
  buttons->addStretch();
  buttons->addWidget(&cmdOK);
  buttons->addWidget(&cmdCancel);

  auto* form = new QVBoxLayout(this);
  form->addLayout(fields);
  form->addWidget(&Frame1);
  form->addStretch();
  form->addLayout(buttons);
}

void frmSettings::ShowValues() {
  txtUsername.setText(ToQString(defaults_.Username));
  txtConPath.setText(PathText(defaults_.ConPath));
  txtConBackupPath.setText(PathText(defaults_.ConBackupPath));
  txtAudioPath.setText(PathText(defaults_.AudioPath));
  chkExpandFlags.setChecked(defaults_.bExpandFlags);
  chkConfirmationConDelete.setChecked(defaults_.bConfirmationConDelete);
  chkConfirmationEventDelete.setChecked(defaults_.bConfirmationEventDelete);
  chkHighlightMissingAudio.setChecked(defaults_.bHighlightMissingAudio);
}

void frmSettings::UpdateEnabling() {
  cmdClearLastFiles.setEnabled(defaults_.GetLastFilesCount() >= 1);
}

void frmSettings::Browse(const char* title, const char* filter, QLineEdit& target) {
  FileDialog dialog;
  dialog.title = title;
  dialog.filter = filter;
  const std::string file = fileDialogs_.ShowOpen(dialog);
  // A folder is chosen by a file in it, and keeps its separator at the end: the name of a backup is
  // put right behind it.
  if (!file.empty()) target.setText(PathText(GetPathOnly(file)));
}

void frmSettings::ClearLastFiles() {
  defaults_.ClearLastFiles();
  host_.UpdateLastFiles();
  UpdateEnabling();
}

void frmSettings::accept() {
  modalResult = 0;
  defaults_.Username = FromQString(txtUsername.text());
  defaults_.ConPath = PathIn(txtConPath);
  defaults_.ConBackupPath = PathIn(txtConBackupPath);
  defaults_.AudioPath = PathIn(txtAudioPath);
  defaults_.bExpandFlags = chkExpandFlags.isChecked();
  defaults_.bConfirmationConDelete = chkConfirmationConDelete.isChecked();
  defaults_.bConfirmationEventDelete = chkConfirmationEventDelete.isChecked();
  defaults_.bHighlightMissingAudio = chkHighlightMissingAudio.isChecked();
  host_.UpdateEventsList();
  QDialog::accept();
}

void frmSettings::reject() {
  modalResult = 1;
  QDialog::reject();
}

}  // namespace parlate

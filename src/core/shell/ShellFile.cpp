// Opening, saving and closing the one file of the shell.

#include <utility>

#include "general/BinaryFile.h"
#include "general/CodePage.h"
#include "general/Paths.h"
#include "model/Tables.h"
#include "persistence/Backup.h"
#include "persistence/LockFile.h"
#include "persistence/RecentFiles.h"
#include "persistence/Recovery.h"
#include "shell/Shell.h"

namespace parlate {

namespace {

constexpr const char* kConAndBackupFilter =
    "Conversation Files (*.con)|*.con|Conversation Backups (*.bak)|*.bak";
constexpr const char* kConFilter = "Conversation Files (*.con)|*.con";

constexpr std::size_t kNumberAndBlanks = 4;  // "&1" and two blanks ahead of a recent path

}  // namespace

Boolean Shell::CheckLockFile(const std::string& path) {
  const auto holder = ReadLockHolder(path);
  const LockAnswer answer = holder ? AskAboutLock(*holder) : LockAnswer::TakeOver;
  if (answer == LockAnswer::GiveUp) return false;
  if (answer == LockAnswer::ReadOnly) {
    bReadOnly_ = true;
    return true;
  }
  if (holder) RemoveLock(path);
  WriteLockFile(path);  // meant: a lock that cannot be written does not stop the open
  return true;
}

Shell::LockAnswer Shell::AskAboutLock(const std::string& holder) {
  if (EqualNoCase(holder, Defaults().Username)) {
    const Answer answer =
        Ask("File already open!",
            "This file was previously opened by you and may not have been shut down properly.\n"
            "Do you wish to override the lock?  Selecting 'No' will cause the file to be\n"
            "opened in Read-Only mode, preventing you from saving changes.",
            MessageBox::Icon::None, MessageBox::Buttons::YesNoCancel);
    if (answer == Answer::Yes) return LockAnswer::TakeOver;
    return answer == Answer::No ? LockAnswer::ReadOnly : LockAnswer::GiveUp;
  }
  const Answer answer = Ask(
      "File in use!",
      "This file is currently open by " + holder + ".\nDo you wish to open it in Read-Only mode?",
      MessageBox::Icon::None, MessageBox::Buttons::YesNo);
  return answer == Answer::Yes ? LockAnswer::ReadOnly : LockAnswer::GiveUp;
}

Boolean Shell::WriteLockFile(const std::string& path) {
  try {
    WriteLock(path, Defaults().Username);
    return true;
  } catch (const RuntimeError& error) {
    Tell("",
         "Error Opening Lock File " + FromUtf8(GetLockFileName(path)) + ", Error # " +
             std::to_string(error.Number()) + ": " + error.Description(),
         MessageBox::Icon::None);
    return false;
  }
}

FileDialog Shell::OpenDialogSetup() const {
  FileDialog dialog;
  dialog.title = "Open Conversation";
  dialog.filter = kConAndBackupFilter;
  if (!Defaults().ConLastLoadPath.empty()) {
    dialog.initialFolder = GetPathOnly(Defaults().ConLastLoadPath);
    dialog.fileName = GetFileOnly(conFileName);
  } else {
    dialog.initialFolder = Defaults().ConPath;
  }
  return dialog;
}

void Shell::OpenConFile(const std::string& path) {
  view_.UnloadEventEditor();
  if (Defaults().Username.empty()) {
    Tell("", "The username field must contain a value before a conversation file can be loaded.",
         MessageBox::Icon::None);
    view_.ShowSettings();
    return;
  }
  if (!CloseConFile()) return;
  std::string chosen = path;
  if (chosen.empty()) {
    chosen = doors_.dialogs.ShowOpen(OpenDialogSetup());
    if (chosen.empty()) return;
    Defaults().ConLastLoadPath = GetPathOnly(chosen);
  }
  if (!CheckLockFile(chosen)) return;
  std::unique_ptr<FileSource> source;
  try {
    source = std::make_unique<FileSource>(chosen);
  } catch (const RuntimeError& error) {
    // Meant: the lock that was just written stays behind, and the read-only mark as it is.
    TellError(error);
    return;
  }
  LoadOpened(*source, chosen);
}

void Shell::LoadOpened(ByteSource& source, const std::string& path) {
  conFileName = path;
  SetSelectedCon(nullptr);
  tree_.Clear();
  conFile_ = std::make_unique<ConversationFile>();
  Loading = true;
  view_.ShowTree(false);
  tree_.BeginBulk();
  // Meant: damage in mid-file ends the reading without a word, and what was read stays open.
  bool loaded = true;
  ResumeNext([&] {
    BinaryReader reader(source);
    loaded = conFile_->LoadConversations(reader, Host());
  });
  tree_.EndBulk();
  loadingFlagTexts_.Clear();
  if (loaded) {
    AddToLastFiles(path);
  } else {
    CloseConFile();
  }
  Loading = false;
  ExpandTreeNodes(true, nullptr);
  SetSelectedCon(nullptr);
  UpdateCommandStates();
  UpdateEventsList(nullptr);
}

Boolean Shell::SaveConFile(Boolean bSaveAs) {
  view_.UnloadEventEditor();
  if (bReadOnly_) {
    Tell("", "This file cannot be saved as it was opened in Read-Only mode.",
         MessageBox::Icon::None);
    return false;
  }
  if (Defaults().Username.empty()) {
    Tell("", "The username field must contain a value before a conversation file can be saved.",
         MessageBox::Icon::None);
    view_.ShowSettings();
    return false;
  }
  if (tree_.Empty()) return false;
  if (!ShowMissingLabels(true, true)) return false;
  if ((bSaveAs || conFileName.empty()) && !SaveConFileAs()) return false;
  BackupConFile(conFileName);
  const Boolean saved = WriteConFile(conFileName);
  UpdateCommandStates();
  return saved;
}

Boolean Shell::SaveConFileAs() {
  FileDialog dialog;
  dialog.title = "Save Conversation As";
  dialog.filter = kConFilter;
  dialog.fileName = GetFileOnly(conFileName);
  if (!Defaults().ConLastSavePath.empty()) {
    dialog.initialFolder = GetPathOnly(Defaults().ConLastSavePath);
  } else if (!Defaults().ConLastLoadPath.empty()) {
    dialog.initialFolder = GetPathOnly(Defaults().ConLastLoadPath);
  } else if (!Defaults().ConPath.empty()) {
    dialog.initialFolder = GetPathOnly(Defaults().ConPath);
  }
  const std::string chosen = doors_.dialogs.ShowSave(dialog);
  if (chosen.empty()) return false;
  // Meant: the new name gets no lock, and the lock of the old one stays.
  conFileName = chosen;
  Defaults().ConLastSavePath = GetPathOnly(conFileName);
  AddToLastFiles(conFileName);
  return true;
}

Boolean Shell::WriteConFile(const std::string& path) {
  if (conFileName.empty()) return false;
  std::unique_ptr<FileSink> sink;
  try {
    sink = std::make_unique<FileSink>(path);
  } catch (const RuntimeError& error) {
    TellError(error);
    return false;
  }
  // Meant: a failure in mid-file ends the writing without a word, and counts as written.
  ResumeNext([&] {
    BinaryWriter writer(*sink);
    conFile_->SaveConversations(writer, Host());
  });
  return true;
}

void Shell::BackupConFile(const std::string& path) {
  if (Defaults().ConBackupPath.empty() || path.empty()) return;
  const Boolean modified = conFile_->IsModified();
  ResumeNext([&] { MakeBackup(path); });
  // The image in the backup folder is not the save: the file itself may still fail.
  if (modified) conFile_->SetModified(true, nullptr);
}

void Shell::MakeBackup(const std::string& path) {
  const std::string backupFile = BackupFileName(Defaults().ConBackupPath, path);
  if (!EnsureBackupFolder(Defaults().ConBackupPath)) {
    Tell("Error Creating Directory!",
         "An error occurred attempting to create the Backup directory!",
         MessageBox::Icon::Critical);
    return;
  }
  RotateBackup(backupFile);
  WriteConFile(backupFile);
}

Boolean Shell::CloseConFile() {
  view_.UnloadEventEditor();
  if (!PromptSaveChanges()) return false;
  ReleaseLock();
  conFileName.clear();
  SetSelectedCon(nullptr);
  conFile_.reset();
  tree_.Clear();
  events_.Clear();
  bReadOnly_ = false;
  ClearTables();
  UpdateCommandStates();
  return true;
}

void Shell::ReleaseLock() {
  if (!bReadOnly_ && !conFileName.empty()) RemoveLock(conFileName);
}

Boolean Shell::PromptSaveChanges() {
  if (!conFile_ || !conFile_->IsModified()) return true;
  const Answer answer =
      Ask("Save Changes?",
          "The current Conversation File has not been saved.  Save Changes before closing it?",
          MessageBox::Icon::Question, MessageBox::Buttons::YesNoCancel);
  if (answer == Answer::Yes) return SaveConFile(false);
  return answer == Answer::No;
}

void Shell::AddToLastFiles(const std::string& path) {
  if (path.empty()) return;
  AddRecentFile(Defaults(), path);
  UpdateLastFiles();
}

std::string Shell::WriteRecoveryFile(const std::string& folder) {
  if (!conFile_) return {};
  return WriteRecovery(*conFile_, folder, RecoveryFileName(conFileName, workspace_.now()));
}

std::string Shell::LastFileCaption(int index) {
  const std::string path = Workspace::Current().defaults.LastFiles(index);
  return path.empty() ? path : "&" + std::to_string(index + 1) + "  " + path;
}

void Shell::OpenLastFile(const std::string& caption) {
  if (caption.size() > kNumberAndBlanks) OpenConFile(caption.substr(kNumberAndBlanks));
}

}  // namespace parlate

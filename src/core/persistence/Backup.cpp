#include "persistence/Backup.h"

#include "general/Paths.h"

namespace parlate {

std::string BackupFileName(const std::string& backupPath, const std::string& path) {
  return backupPath + GetFileOnly(path);
}

std::string OlderBackupFileName(const std::string& backupFile) {
  constexpr std::size_t kExtension = 3;
  const std::size_t kept = backupFile.size() > kExtension ? backupFile.size() - kExtension : 0;
  return backupFile.substr(0, kept) + "bak";
}

void RotateBackup(const std::string& backupFile) {
  if (!FileExists(backupFile)) return;
  const std::string older = OlderBackupFileName(backupFile);
  if (FileExists(older)) DeleteFile(older);
  RenameFile(backupFile, older);
}

bool EnsureBackupFolder(const std::string& backupPath) {
  if (FolderExists(backupPath)) return true;
  if (!CreateDirectoryPath(backupPath)) return false;
  // A path whose last element has no separator behind it is left for one plain creation.
  if (!FolderExists(backupPath)) MakeFolder(backupPath);
  return true;
}

}  // namespace parlate

#pragma once

#include <string>

namespace parlate {

/// Where the image of a save goes: the setting followed directly by the file's own name, so the
/// setting has to end in a separator.
[[nodiscard]] std::string BackupFileName(const std::string& backupPath, const std::string& path);

/// The same name with its last three characters replaced by "bak".
[[nodiscard]] std::string OlderBackupFileName(const std::string& backupFile);

/// Moves an existing backup aside, in place of the one before it.
void RotateBackup(const std::string& backupFile);

/// Makes the backup folder if it is not there. False if that failed.
bool EnsureBackupFolder(const std::string& backupPath);

}  // namespace parlate

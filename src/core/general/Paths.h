#pragma once

#include <string>

namespace parlate {

/// Paths are byte strings as the platform takes them (UTF-8), with its own separator.
constexpr char kPathSeparator = '/';

/// Splits at the last separator: what stands behind it, and what stands up to and with it.
/// With no separator the folder is empty.
void SplitPath(const std::string& path, std::string& fileName, std::string& folder);

/// The folder of `SplitPath`, with its separator.
[[nodiscard]] std::string GetPathOnly(const std::string& path);

/// The file name of `SplitPath`.
[[nodiscard]] std::string GetFileOnly(const std::string& path);

/// Cuts at the first point of the whole path, counted from the left. A path with no point stays.
/// The lock names of all users are formed so and have to agree; a point in a folder's name counts.
[[nodiscard]] std::string StripExtension(const std::string& path);

/// Makes every missing folder of `path` that ends before a separator; the first, the root, is
/// skipped. A last element with no separator behind it is not made. False if one could not be
/// made; RuntimeError 9 for more than 100 of them.
bool CreateDirectoryPath(const std::string& path);

[[nodiscard]] bool FileExists(const std::string& path);
[[nodiscard]] bool FolderExists(const std::string& path);

/// Deletes a file; RuntimeError 53, 70 and so on when that fails.
void DeleteFile(const std::string& path);
/// Renames a file; the target must not exist (RuntimeError 58).
void RenameFile(const std::string& from, const std::string& to);
/// Makes one folder whose parent exists; RuntimeError 75 or 76 when that fails.
void MakeFolder(const std::string& path);

}  // namespace parlate

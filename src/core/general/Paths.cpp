#include "general/Paths.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <vector>

#include "general/RuntimeError.h"

namespace parlate {

namespace {

constexpr std::size_t kMostPrefixes = 100;

/// Every prefix of the path that ends right before a separator.
std::vector<std::string> FolderPrefixes(const std::string& path) {
  std::vector<std::string> prefixes;
  for (std::size_t at = path.find(kPathSeparator); at != std::string::npos;
       at = path.find(kPathSeparator, at + 1)) {
    if (prefixes.size() == kMostPrefixes) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
    prefixes.push_back(path.substr(0, at));
  }
  return prefixes;
}

}  // namespace

void SplitPath(const std::string& path, std::string& fileName, std::string& folder) {
  const std::size_t last = path.rfind(kPathSeparator);
  const std::size_t cut = last == std::string::npos ? 0 : last + 1;
  std::string name = path.substr(cut);
  folder = path.substr(0, cut);
  fileName = std::move(name);
}

std::string GetPathOnly(const std::string& path) {
  std::string fileName;
  std::string folder;
  SplitPath(path, fileName, folder);
  return folder;
}

std::string GetFileOnly(const std::string& path) {
  std::string fileName;
  std::string folder;
  SplitPath(path, fileName, folder);
  return fileName;
}

std::string StripExtension(const std::string& path) { return path.substr(0, path.find('.')); }

bool CreateDirectoryPath(const std::string& path) {
  const std::vector<std::string> prefixes = FolderPrefixes(path);
  for (std::size_t i = 1; i < prefixes.size(); ++i) {
    if (FolderExists(prefixes[i])) continue;
    if (!ResumeNext([&] { MakeFolder(prefixes[i]); })) return false;
  }
  return true;
}

bool FileExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool FolderExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

void DeleteFile(const std::string& path) {
  if (::unlink(path.c_str()) != 0) throw RuntimeError(ErrorNumberOfErrno(errno));
}

void RenameFile(const std::string& from, const std::string& to) {
  if (FileExists(to)) throw RuntimeError(RuntimeError::kFileAlreadyExists);
  if (std::rename(from.c_str(), to.c_str()) != 0) throw RuntimeError(ErrorNumberOfErrno(errno));
}

void MakeFolder(const std::string& path) {
  constexpr mode_t kMode = 0777;
  if (::mkdir(path.c_str(), kMode) == 0) return;
  throw RuntimeError(errno == ENOENT || errno == ENOTDIR ? RuntimeError::kPathNotFound
                                                         : RuntimeError::kPathFileAccessError);
}

}  // namespace parlate

#include "persistence/LockFile.h"

#include "general/BinaryFile.h"
#include "general/Paths.h"
#include "general/RuntimeError.h"

namespace parlate {

std::string GetLockFileName(const std::string& path) { return StripExtension(path) + ".lck"; }

std::optional<std::string> ReadLockHolder(const std::string& path) {
  const std::string lockFile = GetLockFileName(path);
  if (!FileExists(lockFile)) return std::nullopt;
  std::optional<std::string> holder;
  ResumeNext([&] {
    FileSource source(lockFile);
    holder.emplace();
    BinaryReader reader(source);
    holder = reader.ReadFileString();
  });
  return holder;
}

void WriteLock(const std::string& path, const std::string& username) {
  FileSink sink(GetLockFileName(path));
  BinaryWriter writer(sink);
  writer.WriteFileString(username);
  writer.Flush();
}

void RemoveLock(const std::string& path) {
  ResumeNext([&] { DeleteFile(GetLockFileName(path)); });
}

}  // namespace parlate

#pragma once

#include <filesystem>
#include <string>

namespace parlate::testing_support {

/// An empty folder that goes away with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The folder's path with a separator behind it.
  [[nodiscard]] std::string Path() const { return path_.string() + "/"; }
  /// The path of a file in the folder.
  [[nodiscard]] std::string File(const std::string& name) const { return Path() + name; }

 private:
  std::filesystem::path path_;
};

/// The bytes of a file; fails the test if it cannot be read.
[[nodiscard]] std::string ReadBytes(const std::string& path);
void WriteBytes(const std::string& path, const std::string& bytes);

}  // namespace parlate::testing_support

#pragma once

#include <string>

#include "general/BinaryFile.h"

namespace parlate::cli {

/// A file that comes to be whole or not at all: the bytes go to a new file in the same folder,
/// which takes the name on `Commit` and is removed otherwise. Devices and pipes are written to as
/// they are, and of a link the file that it stands for.
class OutputFile final : public ByteSink {
 public:
  explicit OutputFile(std::string path);
  ~OutputFile() override;
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void Write(const char* bytes, std::size_t size) override;
  /// Brings the bytes to the disk and gives the file its name. RuntimeError 61, 57 and so on.
  void Commit();

 private:
  std::string path_;
  std::string target_;
  std::string temporary_;  ///< Empty for a device.
  int descriptor_ = -1;
};

}  // namespace parlate::cli

#pragma once

#include <string>
#include <string_view>

#include "shell/WindowlessFile.h"

namespace parlate::bench {

/// An open file as the editor has it, without its window: the nodes of the tree are filled in bulk.
class HostedFile final : public WindowlessFile {
 public:
  HostedFile();

  void Load(const std::string& path);
  void LoadBytes(std::string_view bytes);
  void Save(const std::string& path);
  [[nodiscard]] std::string SaveBytes();

 private:
  Answer Show(const MessageBox& box) override;
  void LoadFrom(ByteSource& source);
};

}  // namespace parlate::bench

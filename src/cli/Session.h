#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "general/RuntimeError.h"
#include "shell/WindowlessFile.h"

namespace parlate::cli {

/// One of the three refusals of a file: not a conversation file, too old, too new.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Runs the work; what it throws names the file that it is about.
template <class Work>
void NamingFile(const std::string& path, Work work) {
  try {
    work();
  } catch (const Refusal& refusal) {
    throw Refusal(path + ", " + refusal.what());
  } catch (RuntimeError& error) {
    error.AddRecord(path);
    throw;
  }
}

/// An open conversation file as a command works on it. A message to the user ends the command as a
/// refusal.
class Session final : public WindowlessFile {
 public:
  /// Throws Refusal, or RuntimeError: with the path, and with the place of the damage for a file
  /// that can be opened.
  void Load(const std::string& path);
  /// Writes to a new file beside `path` that takes its place when it is whole: nothing is left
  /// behind on a failure.
  void Save(const std::string& path);

  /// Calls back with each conversation in the order of the tree.
  void ForEachConversation(const std::function<void(const Conversation&)>& visit) const;

 private:
  Answer Show(const MessageBox& box) override;
  void LoadFrom(ByteSource& source);
};

}  // namespace parlate::cli

#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "integrity/LabelCheck.h"
#include "model/ConversationFile.h"
#include "model/Workspace.h"
#include "shell/ConversationTree.h"

namespace parlate::cli {

/// One of the three refusals of a file: not a conversation file, too old, too new.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An open conversation file with the program round it that the model needs: a workspace of its
/// own, put in place for as long as the session lives, and the tree that gives the order.
class Session final : public ConversationDirectory,
                      public ConversationTreeOrder,
                      private MessageBoxes,
                      private ProgressDisplay {
 public:
  Session();

  Workspace workspace;
  ConversationFile file;
  BadLabels badLabels;

  /// Throws Refusal, or RuntimeError with the place of the damage.
  void Load(const std::string& path);
  /// Writes to a new file beside `path` that takes its place when it is whole: nothing is left
  /// behind on a failure.
  void Save(const std::string& path);

  /// Calls back with each conversation in the order of the tree.
  void ForEachConversation(const std::function<void(const Conversation&)>& visit) const;

  [[nodiscard]] std::shared_ptr<Conversation> GetConFromID(std::int32_t conID) const override;
  [[nodiscard]] std::int32_t GetConIDFromName(std::int32_t conOwner,
                                              const std::string& conName) const override;
  void TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean bSelect) override;
  void WalkConversations(const std::function<void(std::int32_t)>& visit) const override;

  /// What walks over the conversations ask for: a message ends the command as a refusal.
  [[nodiscard]] FileHost Host() { return {*this, *this, *this}; }

 private:
  Answer Show(const MessageBox& box) override;
  void Begin(const std::string&, const std::string&, int) override {}
  void SetTop(int) override {}
  void Step(const std::string&, int) override {}
  void End() override {}

  WorkspaceScope scope_;
  ConversationTree tree_;
};

}  // namespace parlate::cli

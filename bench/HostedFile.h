#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "integrity/LabelCheck.h"
#include "model/ConversationFile.h"
#include "model/Workspace.h"
#include "shell/ConversationTree.h"

namespace parlate::bench {

/// An open file with as much of a program round it as the model needs, and as the editor has: a
/// workspace of its own and the nodes of the tree, which are filled in bulk.
class HostedFile final : public ConversationDirectory,
                         public ConversationTreeOrder,
                         private MessageBoxes,
                         private ProgressDisplay {
 public:
  HostedFile();

  Workspace workspace;
  ConversationFile file;
  BadLabels badLabels;
  ConversationTree tree;

  void Load(const std::string& path);
  void LoadBytes(std::string_view bytes);
  void Save(const std::string& path);
  [[nodiscard]] std::string SaveBytes();
  /// How many references are broken.
  [[nodiscard]] std::size_t CheckAllLabels();

  [[nodiscard]] std::shared_ptr<Conversation> GetConFromID(std::int32_t conID) const override;
  [[nodiscard]] std::int32_t GetConIDFromName(std::int32_t conOwner,
                                              const std::string& conName) const override;
  void TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean bSelect) override;
  void WalkConversations(const std::function<void(std::int32_t)>& visit) const override;
  [[nodiscard]] FileHost Host() { return {*this, *this, *this}; }

 private:
  Answer Show(const MessageBox& box) override;
  void Begin(const std::string&, const std::string&, int) override {}
  void SetTop(int) override {}
  void Step(const std::string&, int) override {}
  void End() override {}

  void LoadFrom(ByteSource& source);
  void SaveTo(ByteSink& sink);
  WorkspaceScope scope_;
};

}  // namespace parlate::bench

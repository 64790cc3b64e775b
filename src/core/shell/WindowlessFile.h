#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "general/BinaryFile.h"
#include "integrity/LabelCheck.h"
#include "model/ConversationFile.h"
#include "model/Workspace.h"
#include "shell/ConversationTree.h"
#include "shell/FlagTexts.h"

namespace parlate {

/// An open conversation file with as much of a program round it as the model needs, and no window:
/// a workspace of its own, put in place for as long as the file lives, and the tree that gives the
/// order. What becomes of a message is the heir's business.
class WindowlessFile : public ConversationDirectory,
                       public ConversationTreeOrder,
                       protected MessageBoxes,
                       protected ProgressDisplay {
 public:
  Workspace workspace;

 private:
  WorkspaceScope scope_{workspace};  // in place ahead of the file, which is stamped by it

 public:
  ConversationFile file;
  BadLabels badLabels;
  ConversationTree tree;
  /// Whether the tree has nodes for the flags of conversations too, as it has in the window. A flag
  /// without a row then ends the reading where it ends that of the window.
  bool showsFlags = false;

  WindowlessFile();

  /// False after a refusal. Damage is a RuntimeError, and what was read up to there stays.
  bool Read(BinaryReader& reader);
  void Write(ByteSink& sink);
  [[nodiscard]] std::vector<BadLabelRow> CheckAllLabels();

  [[nodiscard]] std::shared_ptr<Conversation> GetConFromID(std::int32_t conID) const override;
  [[nodiscard]] std::int32_t GetConIDFromName(std::int32_t conOwner,
                                              const std::string& conName) const override;
  void TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean bSelect) override;
  void WalkConversations(const std::function<void(std::int32_t)>& visit) const override;

  /// What the walks over the conversations ask for.
  [[nodiscard]] FileHost Host() { return {*this, *this, *this}; }

 private:
  void Begin(const std::string&, const std::string&, int) override {}
  void SetTop(int) override {}
  void Step(const std::string&, int) override {}
  void End() override {}

  void AddFlags(TreeNode& node, const Conversation& con);

  FlagTexts flagTexts_;
};

}  // namespace parlate

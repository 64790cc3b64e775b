#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "integrity/LabelCheck.h"
#include "model/ConversationFile.h"
#include "model/Workspace.h"
#include "shell/ConversationTree.h"
#include "shell/FlagTexts.h"

namespace parlate::fuzzing {

/// A file opened as the window opens it: in a workspace of its own, with nodes for the actors, the
/// conversations and their flags. What was read ahead of some damage stays. The clock stands, so
/// that two saves of the same content are the same bytes.
class OpenFile final : public ConversationDirectory,
                       public ConversationTreeOrder,
                       private MessageBoxes,
                       private ProgressDisplay {
 public:
  OpenFile();

  /// How a reading ended.
  enum class Result { Loaded, Refused, Damaged };

  [[nodiscard]] Result Load(std::string_view bytes);
  /// RuntimeError for a reference that cannot be written.
  [[nodiscard]] std::string Save();
  /// Builds the row of every event in both modes of the list. A row that cannot be told is left
  /// out, as in the window.
  void BuildAllRows();
  void CheckAllLabels();

  [[nodiscard]] int Messages() const { return messages_; }

  [[nodiscard]] std::shared_ptr<Conversation> GetConFromID(std::int32_t conID) const override;
  [[nodiscard]] std::int32_t GetConIDFromName(std::int32_t conOwner,
                                              const std::string& conName) const override;
  void TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean bSelect) override;
  void WalkConversations(const std::function<void(std::int32_t)>& visit) const override;

 private:
  Answer Show(const MessageBox& box) override;
  void Begin(const std::string&, const std::string&, int) override {}
  void SetTop(int) override {}
  void Step(const std::string&, int) override {}
  void End() override {}

  [[nodiscard]] FileHost Host() { return {*this, *this, *this}; }

  Workspace workspace_;
  WorkspaceScope scope_;
  ConversationFile file_;
  ConversationTree tree_;
  FlagTexts flagTexts_;
  BadLabels badLabels_;
  int messages_ = 0;
};

}  // namespace parlate::fuzzing

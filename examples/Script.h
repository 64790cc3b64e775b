#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "general/Prompts.h"
#include "model/ConversationFile.h"
#include "model/Workspace.h"
#include "shell/ConversationTree.h"

namespace parlate::example {

class Talk;

/// A conversation file in the making, with the program round it that the model needs. Time and user
/// are fixed, so the same script gives the same bytes on every day and machine.
///
/// Texts are handed in as UTF-8. One that the code page cannot hold is a std::logic_error, as is
/// every other slip of a script: a label that stands twice, or a jump to nowhere.
class Script final : private ConversationTreeOrder, private MessageBoxes, private ProgressDisplay {
 public:
  Script();

  /// What the file says of itself.
  void SetNotes(std::string_view notes);
  void SetMissions(std::initializer_list<std::int32_t> missions);

  /// The rows of the tables, made on first use.
  std::int32_t Actor(std::string_view name) { return Row(kActorTable, name); }
  std::int32_t Skill(std::string_view name) { return Row(kSkillTable, name); }
  std::int32_t Flag(std::string_view name) { return Row(kFlagTable, name); }
  std::int32_t Object(std::string_view name) { return Row(kObjectTable, name); }

  /// Begins a conversation of an owner. The player is who the owner talks to.
  Talk Conversation(std::string_view owner, std::string_view name, std::string_view player);

  /// Notes a jump to a conversation that may come later in the script.
  void JumpLater(EventJump& jump, std::string_view conName);

  /// Finishes the file and returns its bytes.
  std::string Bytes();

 private:
  struct PendingJump {
    EventJump* jump;
    std::string conName;
  };

  static std::int32_t Row(std::int32_t tableType, std::string_view name);
  [[nodiscard]] const parlate::Conversation& Find(std::string_view conName) const;

  void TreeViewAddConversation(const std::shared_ptr<parlate::Conversation>& con,
                               Boolean bSelect) override;
  void WalkConversations(const std::function<void(std::int32_t key)>& visit) const override;
  Answer Show(const MessageBox& box) override;
  void Begin(const std::string&, const std::string&, int) override {}
  void SetTop(int) override {}
  void Step(const std::string&, int) override {}
  void End() override {}

  int minutes_ = 0;  // since the first line was written
  Workspace workspace_;
  WorkspaceScope scope_;
  ConversationFile file_;
  ConversationTree tree_;
  std::vector<PendingJump> pendingJumps_;
};

/// UTF-8 to the text of the model.
[[nodiscard]] std::string Text(std::string_view utf8);

}  // namespace parlate::example

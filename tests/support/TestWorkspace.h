#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/ConversationFile.h"
#include "model/Workspace.h"
#include "support/SampleFile.h"
#include "support/ScriptedPrompts.h"

namespace parlate::testing_support {

/// Keeps the broken labels that events report.
class RecordingBadLabels final : public BadLabelSink {
 public:
  struct Report {
    const Conversation* con;
    const EventObject* event;
    std::string label;
  };
  void AddBadLabel(const Conversation& con, const EventObject& event,
                   const std::string& label) override {
    reports.push_back({&con, &event, label});
  }
  /// The labels alone, in the order of the reports.
  [[nodiscard]] std::vector<std::string> Labels() const;

  std::vector<Report> reports;
};

/// The conversations that a jump can lead to.
class ListedConversations final : public ConversationDirectory {
 public:
  [[nodiscard]] std::shared_ptr<Conversation> GetConFromID(std::int32_t conID) const override;
  [[nodiscard]] std::int32_t GetConIDFromName(std::int32_t conOwner,
                                              const std::string& conName) const override;
  /// A new conversation in the list.
  Conversation& Add(std::int32_t key, std::int32_t owner, const std::string& name);

  std::vector<std::shared_ptr<Conversation>> all;
};

/// A tree that is a mere list of keys, in the order of insertion.
class ListedTree final : public ConversationTreeOrder {
 public:
  void TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean) override {
    keys.push_back(con->key);
  }
  void WalkConversations(const std::function<void(std::int32_t)>& visit) const override {
    for (const std::int32_t key : keys) visit(key);
  }

  std::vector<std::int32_t> keys;
};

/// A fresh workspace in place, with a fixed clock and a user of the test's own.
class TestWorkspace {
 public:
  TestWorkspace();

  /// Rows with the given IDs; `nextTableID` comes to stand behind the highest.
  static void AddRows(std::int32_t tableType, const Rows& rows);
  /// The tables of the sample file.
  void AddSampleTables() const;

  Workspace workspace;
  double moment = kSavedAt;
  ScriptedMessageBoxes messages;
  RecordingBadLabels badLabels;
  ListedConversations conversations;

 private:
  WorkspaceScope scope_;
};

/// A conversation file with what its reader and writer need round it.
struct OpenFile {
  explicit OpenFile(TestWorkspace& newSpace) : space(newSpace) {}

  [[nodiscard]] FileHost Host() { return {space.messages, progress, tree}; }
  Boolean Load(const std::string& bytes);
  [[nodiscard]] std::string Save();
  /// The event with that place in the conversation at that place, both 1-based.
  [[nodiscard]] EventItem& Event(std::size_t con, std::size_t event) const {
    return *file.Conversations.Place(con)->events.Place(event);
  }

  TestWorkspace& space;
  ConversationFile file;
  RecordingProgress progress;
  ListedTree tree;
};

/// The number of the RuntimeError that `statement` raises, 0 for none.
template <class Statement>
int ErrorOf(Statement statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace parlate::testing_support

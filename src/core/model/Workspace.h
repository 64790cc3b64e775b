#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "general/Date.h"
#include "general/Prompts.h"
#include "model/Tables.h"
#include "settings/ConversationDefaults.h"

namespace parlate {

class Conversation;
class EventObject;

/// Which conversation is meant: the questions that a jump asks of the open file.
class ConversationDirectory {
 public:
  virtual ~ConversationDirectory() = default;
  /// The conversation with that key, or nothing for -1 and for an unknown key.
  [[nodiscard]] virtual std::shared_ptr<Conversation> GetConFromID(std::int32_t conID) const = 0;
  /// The key of the first conversation of that owner and name, case disregarded; -1 for none.
  [[nodiscard]] virtual std::int32_t GetConIDFromName(std::int32_t conOwner,
                                                      const std::string& conName) const = 0;
};

/// Where a broken label reference is reported.
class BadLabelSink {
 public:
  virtual ~BadLabelSink() = default;
  virtual void AddBadLabel(const Conversation& con, const EventObject& event,
                           const std::string& label) = 0;
};

/// The table editor, which a button beside a combo box opens.
class TableEditor {
 public:
  virtual ~TableEditor() = default;
  /// Shows the editor of a table; the ID of the row selected in it, or -1.
  virtual std::int32_t EditTableDialog(std::int32_t tableType) = 0;
};

/// What is one for the process: the tables, the settings, the clock, and the running program's
/// answers to the model's questions. A test or a tool puts one of its own in place.
struct Workspace {
  TableSet tables;
  ConversationDefaults defaults;
  Clock now = SystemNow;
  const ConversationDirectory* conversations = nullptr;
  BadLabelSink* badLabels = nullptr;
  MessageBoxes* messages = nullptr;
  TableEditor* tableEditor = nullptr;
  /// A record that names a missing row is written with an empty name instead of failing. Only a
  /// rescue in an emergency wants that.
  bool writeMissingNames = false;

  /// The one in place. There always is one.
  static Workspace& Current();
};

/// Puts a workspace in place for as long as the scope lives.
class WorkspaceScope {
 public:
  explicit WorkspaceScope(Workspace& workspace);
  ~WorkspaceScope();
  WorkspaceScope(const WorkspaceScope&) = delete;
  WorkspaceScope& operator=(const WorkspaceScope&) = delete;

 private:
  Workspace* before_;
};

}  // namespace parlate

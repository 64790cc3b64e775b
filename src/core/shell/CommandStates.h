#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace parlate {

/// What decides whether a command can be given.
struct CommandPredicates {
  bool fileOpen = false;       ///< A file is open.
  bool hasNodes = false;       ///< The tree has a node.
  bool readOnly = false;       ///< The file is open read-only.
  bool conSelected = false;    ///< A conversation is selected.
  bool eventSelected = false;  ///< A row of the event list is selected.
  bool eventBuffered = false;  ///< An event is on the clipboard.
  bool conBuffered = false;    ///< A conversation is on the clipboard.
};

/// A control by its name, or a toolbar button by its key behind "tlbCon/".
struct CommandState {
  std::string_view control;
  bool enabled;

  friend bool operator==(const CommandState&, const CommandState&) = default;
};

/// Every command of the menu bar and the toolbar that a rule decides.
[[nodiscard]] std::vector<CommandState> DecideCommandStates(const CommandPredicates& predicates);

}  // namespace parlate

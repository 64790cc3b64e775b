#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "integrity/LabelCheck.h"
#include "model/Conversation.h"

namespace parlate {

/// What the user chose to print.
struct PrintChoice {
  bool bPrintAll = false;  ///< Every conversation, or only the selected one.
  bool bDetailedHeader = true;
};

/// What the shell asks of the window that shows it. A test answers in its place.
class ShellView {
 public:
  virtual ~ShellView() = default;
  /// Caption, status text, visibility or enabling may have changed; all of it is read anew.
  virtual void CommandStatesChanged() = 0;
  /// The recent files changed.
  virtual void LastFilesChanged() = 0;
  /// Hides the tree for as long as a file is read into it or every node is visited.
  virtual void ShowTree(bool visible) = 0;
  /// Shows the settings dialog modal; 0 for OK, 1 for Cancel.
  virtual int ShowSettings() = 0;
  /// Shows the broken labels modal, in the form that asks whether to go on saving or in the form
  /// that only reports. True if the user wants to go on.
  virtual bool ShowMissingLabels(const std::vector<BadLabelRow>& rows, bool bSaving) = 0;

  /// Opens the event editor to create an event. It is one window, which stays open and leaves the
  /// user free to go on elsewhere.
  virtual void AddEvent(std::int32_t eventType, const std::shared_ptr<Conversation>& con) = 0;
  /// Opens the event editor on an event.
  virtual void EditEvent(const std::shared_ptr<Conversation>& con,
                         const std::shared_ptr<EventItem>& event) = 0;
  [[nodiscard]] virtual bool IsEventEditorVisible() const = 0;
  /// Takes the event editor away with what was typed in it; the next use makes it anew.
  virtual void UnloadEventEditor() = 0;

  /// Shows the properties of a conversation modal, at a tab from 0 on; 0 for OK, 1 for Cancel.
  virtual int ShowProperties(Conversation& con, int tabIndex) = 0;
  /// Shows the properties of the open file modal. OK marks the file as changed.
  virtual void ShowFileProperties() = 0;
  /// Lets the user pick flags that the list does not hold and puts them in it, without expiration.
  /// False if the user cancelled.
  virtual bool PickFlags(FlagList& flagRefs) = 0;
  /// Shows the print options modal; nothing if the user cancelled.
  virtual std::optional<PrintChoice> ShowPrintOptions(bool selectedThere, bool bPrintAll) = 0;
};

}  // namespace parlate

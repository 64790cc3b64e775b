// The program's own clipboard: one event and one conversation, which outlive the open file.

#include <utility>

#include "shell/Shell.h"

namespace parlate {

void Shell::CopySelectedEvent() {
  const auto selected = GetSelectedEvent();
  if (!selected) return;
  eventBuffer_ = std::make_shared<EventItem>();
  eventBuffer_->Copy(*selected);
  UpdateCommandStates();
}

void Shell::CutSelectedEvent() {
  auto selected = GetSelectedEvent();
  if (!selected) return;
  eventBuffer_ = std::move(selected);
  DeleteSelectedEvent(true);
  UpdateCommandStates();
}

void Shell::PasteEvent() {
  if (!eventBuffer_ || !selectedCon_) return;
  const std::shared_ptr<EventItem> pasted = eventBuffer_;
  pasted->key = selectedCon_->NextEventKey();
  // Every non-empty label of an event stands in its conversation; duplicates are not tested.
  selectedCon_->AddLabel(pasted->eventLabel);
  bAppendEvent_ = events_.ListIndex() == -1 ? 1 : 0;
  UpdateAddEvent(pasted, true);
  eventBuffer_ = std::make_shared<EventItem>();
  eventBuffer_->Copy(*pasted);
  SetModified(true, selectedCon_.get());
  UpdateCommandStates();
}

void Shell::CopyConversation() {
  if (selectedCon_) conClipboard_.Copy(*selectedCon_);
}

void Shell::CutConversation() {
  if (!selectedCon_) return;
  conClipboard_.Take(selectedCon_);
  DeleteConversation(true);
}

void Shell::PasteConversation() {
  if (!conClipboard_.Holds() || (!conFile_ && !NewConFile())) return;
  TreeViewAddConversation(conClipboard_.Paste(*conFile_), true);
  SetModified(true, nullptr);
  UpdateCommandStates();
}

void Shell::ChangeConTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) {
  conClipboard_.ChangeConTableLink(tableType, oldID, newID);
}

}  // namespace parlate

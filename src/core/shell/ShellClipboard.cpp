// The program's own clipboard: one event and one conversation, which outlive the open file.

#include <utility>

#include "model/Tables.h"
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
  if (!selectedCon_) return;
  conBuffer_ = std::make_shared<Conversation>();
  conBuffer_->Copy(*selectedCon_);
  ClearTableBuffer();
  conBuffer_->StoreTableData();
}

void Shell::CutConversation() {
  if (!selectedCon_) return;
  conBuffer_ = selectedCon_;
  ClearTableBuffer();
  conBuffer_->StoreTableData();
  DeleteConversation(true);
}

void Shell::PasteConversation() {
  if (!conBuffer_ || (!conFile_ && !NewConFile())) return;
  RestoreBufferedTableItems();
  const std::shared_ptr<Conversation> pasted = std::move(conBuffer_);
  conBuffer_ = std::make_shared<Conversation>();
  pasted->key = conFile_->NextKey();
  pasted->FixJumpReferences();
  conFile_->Conversations.Add(pasted->key, pasted);
  // The copy comes ahead of the re-linking: the buffer keeps the IDs that its links were stored
  // with, so that it can be pasted again.
  conBuffer_->Copy(*pasted);
  pasted->FixTableReferences();
  TreeViewAddConversation(pasted, true);
  SetModified(true, nullptr);
  UpdateCommandStates();
}

void Shell::ChangeConTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) {
  if (conBuffer_) conBuffer_->ChangeConTableLink(tableType, oldID, newID);
}

}  // namespace parlate

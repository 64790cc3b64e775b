#include "integrity/ConversationClipboard.h"

#include <utility>

#include "model/Tables.h"

namespace parlate {

void ConversationClipboard::Copy(const Conversation& con) {
  auto copy = std::make_shared<Conversation>();
  copy->Copy(con);
  Take(std::move(copy));
}

void ConversationClipboard::Take(std::shared_ptr<Conversation> con) {
  conBuffer_ = std::move(con);
  ClearTableBuffer();
  conBuffer_->StoreTableData();
}

std::shared_ptr<Conversation> ConversationClipboard::Paste(ConversationFile& file) {
  RestoreBufferedTableItems();
  std::shared_ptr<Conversation> pasted = std::move(conBuffer_);
  conBuffer_ = std::make_shared<Conversation>();
  pasted->key = file.NextKey();
  pasted->FixJumpReferences();
  file.Conversations.Add(pasted->key, pasted);
  // The copy comes ahead of the re-linking: the buffer keeps the IDs that its links were stored
  // with, so that it can be pasted again.
  conBuffer_->Copy(*pasted);
  pasted->FixTableReferences();
  return pasted;
}

void ConversationClipboard::ChangeConTableLink(std::int32_t tableType, std::int32_t oldID,
                                               std::int32_t newID) {
  if (conBuffer_) conBuffer_->ChangeConTableLink(tableType, oldID, newID);
}

}  // namespace parlate

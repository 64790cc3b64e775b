#include "model/ConversationFile.h"

#include <algorithm>

#include "general/RuntimeError.h"
#include "model/Workspace.h"

namespace parlate {

ConversationFile::ConversationFile()
    : CreationDate(Workspace::Current().now()),
      LastUpdated(CreationDate),
      CreatedBy(Workspace::Current().defaults.Username),
      LastUpdatedBy(CreatedBy) {}

std::int32_t ConversationFile::GetMission(std::int16_t index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= missions_.size()) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  return missions_[static_cast<std::size_t>(index)];
}

void ConversationFile::SetModified(Boolean bValue, Conversation* con) {
  bModified_ = bValue;
  LastUpdated = Workspace::Current().now();
  LastUpdatedBy = Workspace::Current().defaults.Username;
  if (con == nullptr) return;
  con->LastUpdated = LastUpdated;
  con->LastUpdatedBy = LastUpdatedBy;
}

std::int32_t ConversationFile::NextKey() {
  if (currentKey_ == INT32_MAX) throw RuntimeError(RuntimeError::kOverflow);
  return currentKey_++;
}

void ConversationFile::UndoLastKey() {
  if (currentKey_ > 0) --currentKey_;
}

void ConversationFile::ConversationRemove(std::int32_t key) { Conversations.Remove(key); }

void ConversationFile::ConversationRemoveAll() {
  ClearCollection(Conversations);
  currentKey_ = 0;
}

Boolean ConversationFile::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return std::any_of(Conversations.begin(), Conversations.end(), [&](const Conversation& con) {
    return con.IsTableItemReferenced(id, tableType);
  });
}

IDSet ConversationFile::ReferencedTableItems(std::int32_t tableType) const {
  IDSet ids;
  for (const Conversation& con : Conversations) con.GatherTableItems(tableType, ids);
  return ids;
}

Boolean ConversationFile::IsConNameInUse(const std::string& name) const {
  return std::any_of(Conversations.begin(), Conversations.end(),
                     [&](const Conversation& con) { return con.conName == name; });
}

void ConversationFile::SaveMissions(const ListBox& list) {
  const int count = list.ListCount();
  missionCount_ = count;
  missions_.assign(static_cast<std::size_t>(count), 0);  // a save writes the two together
  if (count == 0) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  for (int i = 0; i < count; ++i) missions_[static_cast<std::size_t>(i)] = list.ItemData(i);
}

void ConversationFile::RemoveConversationLinks(std::int32_t conKey) {
  for (Conversation& con : Conversations) con.RemoveConversationLinks(conKey);
}

}  // namespace parlate

#include "model/Conversation.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "general/RuntimeError.h"
#include "model/ErrorPlaces.h"
#include "model/Tables.h"
#include "model/Workspace.h"

namespace parlate {

Conversation::Conversation()
    : CreationDate(Workspace::Current().now()),
      CreatedBy(Workspace::Current().defaults.Username),
      LastUpdated(CreationDate),
      LastUpdatedBy(CreatedBy) {}

void Conversation::Copy(const Conversation& source) {
  key = source.key;
  conName = source.conName;
  Description = source.Description;
  NPCID = source.NPCID;
  bHoloCallCon = source.bHoloCallCon;
  notes = source.notes;
  bDisplayOnce = source.bDisplayOnce;
  bFirstPerson = source.bFirstPerson;
  bNonInteractive = source.bNonInteractive;
  bRandomCamera = source.bRandomCamera;
  bCanBeInterrupted = source.bCanBeInterrupted;
  bCannotBeInterrupted = source.bCannotBeInterrupted;
  bInvokeBump = source.bInvokeBump;
  bInvokeFrob = source.bInvokeFrob;
  bInvokeSight = source.bInvokeSight;
  bInvokeRadius = source.bInvokeRadius;
  invokeRadius = source.invokeRadius;
  CreationDate = source.CreationDate;
  CreatedBy = source.CreatedBy;
  LastUpdated = source.LastUpdated;
  LastUpdatedBy = source.LastUpdatedBy;
  currentEventKey = source.currentEventKey;
  events.Reserve(source.events.Count());
  for (const EventItem& event : source.events) {
    auto copy = std::make_shared<EventItem>();
    copy->Copy(event);
    events.Add(event.key, std::move(copy));
  }
  CopyFlagRefs(source.flagRefs, flagRefs);
  for (const LabelItem& label : source.Labels) Labels.Add(label.Name);
}

void Conversation::FixJumpReferences() {
  const ConversationDirectory* directory = Workspace::Current().conversations;
  for (EventItem& event : events) {
    auto* found = event.As<EventJump>();
    if (found == nullptr || found->conName.empty()) continue;
    EventJump& jump = *found;
    jump.conID =
        directory == nullptr ? -1 : directory->GetConIDFromName(jump.conOwner, jump.conName);
    if (jump.conID == -1) jump.conID = key;
    jump.conOwner = -1;
    jump.conName.clear();
  }
}

std::int32_t Conversation::NextEventKey() {
  if (currentEventKey == INT32_MAX) throw RuntimeError(RuntimeError::kOverflow);
  return ++currentEventKey;
}

void Conversation::UndoLastEventKey() {
  if (currentEventKey > 0) --currentEventKey;
}

Boolean Conversation::AddLabel(const std::string& label) {
  return !label.empty() && Labels.Add(label);
}

Boolean Conversation::UpdateLabel(const std::string& oldLabel, const std::string& newLabel) {
  Labels.Remove(oldLabel);
  return AddLabel(newLabel);
}

void Conversation::RemoveLabel(const std::string& label) {
  if (!label.empty()) Labels.Remove(label);
}

Boolean Conversation::IsValidLabel(const std::string& label) const {
  return label.empty() || Labels.Contains(label);
}

void Conversation::EventRemove(std::int32_t eventKey) {
  RemoveLabel(events.At(eventKey).eventLabel);
  events.Remove(eventKey);
}

void Conversation::EventRemoveAll() {
  // One walk over the labels for all events, where removing them one by one would be quadratic.
  LabelCollection ofEvents;
  for (const EventItem& event : events) ofEvents.Add(event.eventLabel);
  Labels.RemoveAll(ofEvents);
  events.Clear();
  currentEventKey = 0;
}

bool Conversation::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  if (tableType == kActorTable && NPCID == id) return true;
  if (tableType == kFlagTable && IsFlagReferenced(flagRefs, id)) return true;
  return std::any_of(events.begin(), events.end(), [&](const EventItem& event) {
    return event.IsTableItemReferenced(id, tableType);
  });
}

void Conversation::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  if (tableType == kActorTable) ids.Add(NPCID);
  if (tableType == kFlagTable) GatherFlags(flagRefs, ids);
  for (const EventItem& event : events) event.GatherTableItems(tableType, ids);
}

void Conversation::ChangeConTableLink(std::int32_t tableType, std::int32_t oldID,
                                      std::int32_t newID) {
  // Meant: the owner follows a link of any table whose number happens to agree.
  if (NPCID == oldID) NPCID = newID;
  if (tableType == kFlagTable) ChangeFlagRefLink(flagRefs, oldID, newID);
  for (EventItem& event : events) event.ChangeTableLink(tableType, oldID, newID);
}

void Conversation::StoreTableData() const {
  BufferTableItem(kActorTable, NPCID);
  for (const FlagRef& flag : flagRefs) BufferTableItem(kFlagTable, flag.flagID);
  for (const EventItem& event : events) {
    InPlace(event, [&] { event.StoreTableData(); });
  }
}

void Conversation::RemoveConversationLinks(std::int32_t conKey) {
  for (EventItem& event : events) {
    if (auto* jump = event.As<EventJump>()) jump->RemoveConversationLinks(conKey);
  }
}

void Conversation::FixTableReferences() {
  const std::vector<BufferItem>& buffer = Workspace::Current().tables.tableBuffer;
  IDSet newIDs;
  for (const BufferItem& item : buffer) {
    if (item.ID != item.RestoredID) newIDs.Add(item.RestoredID);
  }
  std::set<std::pair<std::int32_t, std::int32_t>> sent;
  for (const BufferItem& item : buffer) {
    // A row stands in the buffer once for each reference to it. Once is enough, unless another
    // row's new ID is its old one and brings references back.
    const bool again = !sent.emplace(item.tableType, item.ID).second;
    if (again && !newIDs.Contains(item.ID)) continue;
    ChangeConTableLink(item.tableType, item.ID, item.RestoredID);
  }
}

}  // namespace parlate

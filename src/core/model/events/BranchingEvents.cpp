#include "model/events/BranchingEvents.h"

#include <memory>
#include <utility>

#include "general/Rounding.h"
#include "model/Conversation.h"
#include "model/Tables.h"
#include "model/TextNumbers.h"
#include "model/Workspace.h"

namespace parlate {

namespace {

std::shared_ptr<Conversation> LookUpConversation(std::int32_t conID) {
  const ConversationDirectory* directory = Workspace::Current().conversations;
  return directory == nullptr ? nullptr : directory->GetConFromID(conID);
}

void BufferFlags(const FlagList& flagRefs) {
  for (const FlagRef& flag : flagRefs) BufferTableItem(kFlagTable, flag.flagID);
}

}  // namespace

void EventJump::Copy(const EventJump& source) {
  label = source.label;
  conID = source.conID;
  if (conID == -1) {
    conOwner = source.conOwner;
    conName = source.conName;
    return;
  }
  const auto target = LookUpConversation(conID);
  if (!target) throw RuntimeError(RuntimeError::kObjectVariableNotSet);
  conOwner = target->NPCID;
  conName = target->conName;
}

void EventJump::Update(const std::string& newLabel, std::int32_t newConID) {
  label = newLabel;
  conID = newConID;
}

std::string EventJump::BuildEventListString() const {
  std::string text = "Jump to " + label;
  std::shared_ptr<Conversation> target;
  bool errorPending = false;
  if (conID != -1) errorPending = !ResumeNext([&] { target = LookUpConversation(conID); });
  // Meant: a jump that finds its target names the label alone.
  if (errorPending && target) text += " in Conversation: " + target->conName;
  if (!target) text += " [Invalid Conversation - Please fix]";
  return text;
}

Boolean EventJump::AreLabelsValid(const Conversation& con) const {
  if (conID == -1) return true;
  const auto target = LookUpConversation(conID);
  if (!target) return true;
  return CheckLabel(con, *target, label);
}

bool EventJump::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  // Meant: the cached owner counts, which is 0 until a copy fills it.
  return tableType == kActorTable && conOwner == id;
}

void EventJump::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  if (tableType == kActorTable) ids.Add(conOwner);
}

std::int16_t EventRandom::GetLabelCount() const {
  if (labels_.empty()) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  return NarrowTo<std::int16_t>(labels_.size() - 1);
}

const std::string& EventRandom::GetLabel(std::int32_t index) const {
  if (index < 0 || static_cast<std::size_t>(index) >= labels_.size()) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  return labels_[static_cast<std::size_t>(index)];
}

void EventRandom::ResizeLabels(std::int32_t upperBound) {
  if (upperBound < 0) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  labels_.assign(static_cast<std::size_t>(upperBound) + 1, std::string());
}

void EventRandom::AssignLabel(std::int32_t index, const std::string& label) {
  if (index < 0 || static_cast<std::size_t>(index) >= labels_.size()) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  labels_[static_cast<std::size_t>(index)] = label;
}

void EventRandom::Update(const ListBox& list, Boolean bNewCycleEvents, Boolean bNewCycleOnce,
                         Boolean bNewCycleRandom) {
  ResizeLabels(list.ListCount() - 1);
  for (int i = 0; i < list.ListCount(); ++i) AssignLabel(i, list.List(i));
  bCycleEvents = bNewCycleEvents;
  bCycleOnce = bNewCycleOnce;
  bCycleRandom = bNewCycleRandom;
}

std::string EventRandom::BuildEventListString() const {
  if (Workspace::Current().defaults.ExpandListEnabled) return {};
  std::string line = "Target Labels: ";
  for (std::int32_t i = 0; i <= GetLabelCount(); ++i) line += GetLabel(i) + ", ";
  line.resize(line.size() - 2);
  return line;
}

std::string EventRandom::BuildEventListSubString() const {
  std::string text = "Target Labels: \r";
  for (std::int32_t i = 0; i <= GetLabelCount(); ++i) text += GetLabel(i) + "\r";
  return text;
}

Boolean EventRandom::AreLabelsValid(const Conversation& con) const {
  bool valid = true;
  for (std::int32_t i = 0; i <= GetLabelCount(); ++i) {
    if (!CheckLabel(con, con, GetLabel(i))) valid = false;
  }
  return valid;
}

void EventRandom::PopulateLabelsList(ListBox& list) const {
  list.Clear();
  for (std::int32_t i = 0; i <= GetLabelCount(); ++i) list.AddItem(GetLabel(i));
}

void EventCheckFlag::Copy(const EventCheckFlag& source) {
  CopyFlagRefs(source.flagRefs, flagRefs);
  failLabel = source.failLabel;
}

void EventCheckFlag::Update(FlagList newFlagRefs, const std::string& newFailLabel) {
  flagRefs = std::move(newFlagRefs);
  failLabel = newFailLabel;
}

std::string EventCheckFlag::BuildEventListString() const {
  if (Workspace::Current().defaults.ExpandListEnabled) return "Jump to " + failLabel;
  std::string line = "If ";
  // Meant: the ", " after the last flag stays, so two blanks stand before "then".
  for (const FlagRef& flag : flagRefs) line += flag.Desc() + ", ";
  return line + " then Jump to " + failLabel;
}

std::string EventCheckFlag::BuildEventListSubString() const {
  std::string text;
  for (const FlagRef& flag : flagRefs) text += flag.Desc() + "\r";
  return text;
}

Boolean EventCheckFlag::AreLabelsValid(const Conversation& con) const {
  return CheckLabel(con, con, failLabel);
}

bool EventCheckFlag::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return tableType == kFlagTable && IsFlagReferenced(flagRefs, id);
}

void EventCheckFlag::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  if (tableType == kFlagTable) GatherFlags(flagRefs, ids);
}

void EventCheckFlag::ChangeTableLink(std::int32_t tableType, std::int32_t oldID,
                                     std::int32_t newID) {
  if (tableType == kFlagTable) ChangeFlagRefLink(flagRefs, oldID, newID);
}

void EventCheckFlag::StoreTableData() const { BufferFlags(flagRefs); }

std::string EventSetFlag::BuildEventListString() const {
  if (Workspace::Current().defaults.ExpandListEnabled) return {};
  return "Set " + BuildFlagsString(flagRefs);
}

std::string EventSetFlag::BuildEventListSubString() const {
  std::string text;
  for (const FlagRef& flag : flagRefs) {
    text += flag.Desc();
    if (flag.expiration > 0) text += "        (exp. " + std::to_string(flag.expiration) + ")";
    text += "\r";
  }
  return text;
}

bool EventSetFlag::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return tableType == kFlagTable && IsFlagReferenced(flagRefs, id);
}

void EventSetFlag::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  if (tableType == kFlagTable) GatherFlags(flagRefs, ids);
}

void EventSetFlag::ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) {
  if (tableType != kFlagTable) return;
  // Meant: rewritten in place, so the key in the list stays and an ID can be rewritten twice.
  for (FlagRef& flag : flagRefs) Redirect(flag.flagID, oldID, newID);
}

void EventSetFlag::StoreTableData() const { BufferFlags(flagRefs); }

void EventCheckObject::Update(std::int32_t newObjectID, const std::string& newFailLabel) {
  objectID = newObjectID;
  failLabel = newFailLabel;
}

std::string EventCheckObject::BuildEventListString() const {
  std::string line = "Check For Object " + GetTableItemName(kObjectTable, objectID);
  if (!failLabel.empty()) line += " on fail jump to " + failLabel;
  return line;
}

Boolean EventCheckObject::AreLabelsValid(const Conversation& con) const {
  return CheckLabel(con, con, failLabel);
}

bool EventCheckObject::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return tableType == kObjectTable && objectID == id;
}

void EventCheckObject::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  if (tableType == kObjectTable) ids.Add(objectID);
}

void EventCheckObject::ChangeTableLink(std::int32_t tableType, std::int32_t oldID,
                                       std::int32_t newID) {
  if (tableType == kObjectTable) Redirect(objectID, oldID, newID);
}

void EventCheckObject::StoreTableData() const { BufferTableItem(kObjectTable, objectID); }

void EventCheckPersona::Update(std::int32_t newPersonaType, std::int32_t newCondition,
                               const std::string& newValue, const std::string& newJumpLabel) {
  personaType = newPersonaType;
  condition = newCondition;
  value = NumberOfText(newValue);
  jumpLabel = newJumpLabel;
}

}  // namespace parlate

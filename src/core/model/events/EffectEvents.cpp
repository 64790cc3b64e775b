#include "model/events/EffectEvents.h"

#include "general/Numbers.h"
#include "model/Conversation.h"
#include "model/TableCombos.h"
#include "model/Tables.h"
#include "model/Workspace.h"

namespace parlate {

namespace {

bool ListExpanded() { return Workspace::Current().defaults.ExpandListEnabled; }

std::string ThreeNumbers(std::int32_t first, std::int32_t second, std::int32_t third) {
  return std::to_string(first) + ", " + std::to_string(second) + ", " + std::to_string(third);
}

}  // namespace

void EventTransferObject::Update(std::int32_t newObjectID, std::int32_t newTransferCount,
                                 std::int32_t newFromPawnID, std::int32_t newToPawnID,
                                 const std::string& newFailLabel) {
  objectID = newObjectID;
  transferCount = newTransferCount;
  fromPawnID = newFromPawnID;
  toPawnID = newToPawnID;
  failLabel = newFailLabel;
}

std::string EventTransferObject::BuildEventListString() const {
  const std::string& object = GetTableItemName(kObjectTable, objectID);
  std::string line;
  if (fromPawnID != -1) {
    line = "Transfer " + object + " from " + GetTableItemName(kActorTable, fromPawnID);
  } else {
    line = "Give " + object;
  }
  line += " to " + GetTableItemName(kActorTable, toPawnID);
  if (!failLabel.empty()) line += " on fail jump to " + failLabel;
  return line;
}

Boolean EventTransferObject::AreLabelsValid(const Conversation& con) const {
  return CheckLabel(con, con, failLabel);
}

bool EventTransferObject::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  if (tableType == kActorTable) return fromPawnID == id || toPawnID == id;
  return tableType == kObjectTable && objectID == id;
}

void EventTransferObject::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  if (tableType == kActorTable) {
    ids.Add(fromPawnID);
    ids.Add(toPawnID);
  }
  if (tableType == kObjectTable) ids.Add(objectID);
}

void EventTransferObject::ChangeTableLink(std::int32_t tableType, std::int32_t oldID,
                                          std::int32_t newID) {
  if (tableType == kActorTable) {
    Redirect(fromPawnID, oldID, newID);
    Redirect(toPawnID, oldID, newID);
  }
  if (tableType == kObjectTable) Redirect(objectID, oldID, newID);
}

void EventTransferObject::StoreTableData() const {
  BufferTableItem(kActorTable, fromPawnID);
  BufferTableItem(kActorTable, toPawnID);
  BufferTableItem(kObjectTable, objectID);
}

void EventMoveCamera::Update(const ComboBox& cboCameraPosition, const ComboBox& cboCameraTransition,
                             bool optCameraPosition, bool optCameraSpecific) {
  if (optCameraPosition) {
    cameraType = kPredefined;
    cameraPosition = cboCameraPosition.ListIndex();
  } else {
    cameraType = optCameraSpecific ? kActor : kRandom;
  }
  cameraTransition = cboCameraTransition.ListIndex();
}

std::string EventMoveCamera::BuildEventListString() const {
  switch (cameraType) {
    case kPredefined: {
      if (cameraPosition < 0 ||
          static_cast<std::size_t>(cameraPosition) >= cameraPositionNames.size()) {
        throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
      }
      const auto position = cameraPositionNames[static_cast<std::size_t>(cameraPosition)];
      return "Predefined: " + std::string(position);
    }
    case kSpeakers:
      return "Based on Speakers";
    case kActor:
      return "Based on Actor";
    case kRandom:
      return "Random";
    default:
      return {};
  }
}

std::string EventMoveCamera::BuildEventListSubString() const {
  // Meant: nothing parts a number from the next caption in these two lines.
  const std::string rotation =
      "Pitch, Yaw, Roll = " + ThreeNumbers(rotationPitch, rotationYaw, rotationRoll);
  if (cameraType == kSpeakers) {
    return rotation + "Height Modifier = " + FormatDouble(heightModifier) +
           "Center Modifier = " + FormatDouble(centerModifier) +
           "Distance Multiplier = " + FormatDouble(distanceMultiplier);
  }
  if (cameraType == kActor) {
    return "Actor = Camera X, Y, Z = " + ThreeNumbers(cameraX, cameraY, cameraZ) + rotation;
  }
  return {};
}

void EventAnimation::Update(const ComboBox& cboPawn, const std::string& newSeqName, bool bLoop,
                            std::int32_t newPlayLength, Boolean bNewFinishAnim) {
  PawnID = GetComboItemID(cboPawn);
  SeqName = newSeqName;
  playMode = bLoop ? 0 : 1;
  playLength = newPlayLength;
  bFinishAnim = bNewFinishAnim;
}

std::string EventAnimation::BuildEventListString() const {
  std::string line = "Play Animation: '" + SeqName + "'";
  line += playMode != 0 ? ", Play Animation Once" : ", Loop Animation";
  if (playLength > 0) line += " for " + std::to_string(playLength) + " seconds";
  if (bFinishAnim) line += ", wait for Animation to finish";
  return line;
}

bool EventAnimation::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return tableType == kActorTable && PawnID == id;
}

void EventAnimation::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  if (tableType == kActorTable) ids.Add(PawnID);
}

void EventAnimation::ChangeTableLink(std::int32_t tableType, std::int32_t oldID,
                                     std::int32_t newID) {
  if (tableType == kActorTable) Redirect(PawnID, oldID, newID);
}

void EventAnimation::StoreTableData() const { BufferTableItem(kActorTable, PawnID); }

void EventTrade::Update(const ComboBox& cboPawn) { PawnID = GetComboItemID(cboPawn); }

bool EventTrade::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return tableType == kActorTable && PawnID == id;
}

void EventTrade::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  if (tableType == kActorTable) ids.Add(PawnID);
}

void EventTrade::ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) {
  if (tableType == kActorTable) Redirect(PawnID, oldID, newID);
}

void EventTrade::StoreTableData() const { BufferTableItem(kActorTable, PawnID); }

std::string EventTrigger::BuildEventListString() const { return "Trigger " + triggerTag; }

Boolean EventTrigger::FindString(std::string_view searchString, Boolean,
                                 CompareMethod compareMethod) const {
  return Contains(triggerTag, searchString, compareMethod);
}

void EventAddGoal::Update(const std::string& newGoalName, Boolean bNewGoalCompleted,
                          const std::string& newGoalText, Boolean bNewPrimaryGoal) {
  goalName = newGoalName;
  bGoalCompleted = bNewGoalCompleted;
  goalText = bGoalCompleted ? std::string() : newGoalText;
  bPrimaryGoal = !bGoalCompleted && bNewPrimaryGoal;
}

std::string EventAddGoal::BuildEventListString() const {
  return ListExpanded() ? std::string() : goalText;
}

std::string EventAddGoal::BuildEventListSubString() const {
  std::string text = "Goal Name: " + goalName + "\r";
  if (bGoalCompleted) return text + "Completed";
  text += "Goal Text: " + goalText + "\r";
  if (bPrimaryGoal) text += "(Primary Goal)";
  return text;
}

Boolean EventAddGoal::FindString(std::string_view searchString, Boolean,
                                 CompareMethod compareMethod) const {
  return Contains(goalName, searchString, compareMethod) ||
         (!bGoalCompleted && Contains(goalText, searchString, compareMethod));
}

Boolean EventAddNote::FindString(std::string_view searchString, Boolean,
                                 CompareMethod compareMethod) const {
  return Contains(noteText, searchString, compareMethod);
}

void EventAddSkillPoints::Update(std::int32_t newPointsToAdd, const std::string& newAwardMessage) {
  pointsToAdd = newPointsToAdd;
  awardMessage = newAwardMessage;
}

std::string EventAddSkillPoints::BuildEventListString() const {
  return "Add " + std::to_string(pointsToAdd) + " Skill Points";
}

std::string EventAddCredits::BuildEventListString() const {
  return "Add " + std::to_string(creditsToAdd) + " Credits";
}

std::string EventComment::BuildEventListString() const {
  return ListExpanded() ? std::string() : commentText;
}

Boolean EventComment::FindString(std::string_view searchString, Boolean,
                                 CompareMethod compareMethod) const {
  return Contains(commentText, searchString, compareMethod);
}

}  // namespace parlate

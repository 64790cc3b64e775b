// The event record and the payload of each type, writer and reader side by side, in the order of
// the type codes.

#include <memory>

#include "general/BinaryFile.h"
#include "general/Rounding.h"
#include "general/RuntimeError.h"
#include "model/Conversation.h"
#include "model/EventItem.h"
#include "model/Tables.h"
#include "model/records/RecordReader.h"

namespace parlate {

namespace {

constexpr std::size_t kLeastChoiceSize = 28;
constexpr std::size_t kLeastLabelSize = 4;
// The highest index of the labels is a signed 16-bit number, so there can be one label more.
constexpr std::int32_t kMostLabels = INT16_MAX + 1;

void WriteNamedRow(BinaryWriter& file, TableType tableType, std::int32_t id) {
  file.WriteInt32(id);
  file.WriteFileString(StoredRowName(tableType, id));
}

/// The name stored beside the ID is dropped: only the ID counts.
std::int32_t ReadNamedRow(BinaryReader& file) {
  const std::int32_t id = file.ReadInt32();
  file.ReadText();
  return id;
}

}  // namespace

// Event: i32 listPos, i32 key, i32 eventType, str eventLabel, payload.

void EventItem::SaveEvent(BinaryWriter& file) const {
  file.WriteInt32(listPos);
  file.WriteInt32(key);
  file.WriteInt32(eventType);
  file.WriteFileString(eventLabel);
  Object().SaveEvent(file);
}

void EventItem::LoadEvent(Conversation& conversation, RecordReader& in) {
  listPos = in.file.ReadInt32();
  key = in.file.ReadInt32();
  const std::uint64_t typeOffset = in.file.Offset();
  eventType = RemapEventType(in.file.ReadInt32(), in.version);
  in.file.ReadFileString(eventLabel);
  conversation.AddLabel(eventLabel);
  EventObject* object = CreateEventObject(eventType);
  if (object == nullptr) {
    RuntimeError error(RuntimeError::kObjectVariableNotSet,
                       "there is no event type " + std::to_string(eventType));
    error.SetOffset(typeOffset);
    throw error;
  }
  object->LoadEvent(in);
}

// 0: actorref ActorSpeakerID, actorref ActorSpeakingToID, str speech, str audioFile,
//    bool bContinued, bool bBold, i32 speechFont.

void EventSpeech::SaveEvent(BinaryWriter& file) const {
  WriteActorRef(file, ActorSpeakerID);
  WriteActorRef(file, ActorSpeakingToID);
  file.WriteFileString(speech);
  file.WriteFileString(audioFile);
  file.WriteFileBool(bContinued);
  file.WriteFileBool(bBold);
  file.WriteInt32(speechFont);
}

void EventSpeech::LoadEvent(RecordReader& in) {
  ActorSpeakerID = ReadActorRef(in);
  ActorSpeakingToID = ReadActorRef(in);
  in.file.ReadFileString(speech);
  in.file.ReadFileString(audioFile);
  bContinued = in.file.ReadFileBool();
  bBold = in.file.ReadFileBool();
  speechFont = in.file.ReadInt32();
}

// Choice: i32 ID, str text, bool bDisplayAsSpeech, i32 skillID, if that is above -1 str skill name
// and i32 skillLevel, str label, str audioFile (from version 9), flaglist (from version 14).

void ChoiceItem::Save(BinaryWriter& file) const {
  file.WriteInt32(ID);
  file.WriteFileString(text);
  file.WriteFileBool(bDisplayAsSpeech);
  if (skillID > -1) {
    WriteNamedRow(file, kSkillTable, skillID);
    file.WriteInt32(skillLevel);
  } else {
    file.WriteInt32(skillID);
  }
  file.WriteFileString(label);
  file.WriteFileString(audioFile);
  SaveFlagRefs(file, flagRefs);
}

void ChoiceItem::Load(RecordReader& in) {
  constexpr std::int32_t kFirstWithAudio = 9;
  constexpr std::int32_t kFirstWithFlags = 14;
  ID = in.file.ReadInt32();
  in.file.ReadFileString(text);
  bDisplayAsSpeech = in.file.ReadFileBool();
  skillID = in.file.ReadInt32();
  if (skillID > -1) {
    in.file.ReadText();
    skillLevel = in.file.ReadInt32();
  }
  in.file.ReadFileString(label);
  if (in.version >= kFirstWithAudio) in.file.ReadFileString(audioFile);
  if (in.version >= kFirstWithFlags) LoadFlagRefs(in, flagRefs);
}

// 1: i32 nextChoiceID, bool bClearScreen, i32 choice count, choices.

void EventChoice::SaveEvent(BinaryWriter& file) const {
  file.WriteInt32(nextChoiceID);
  file.WriteFileBool(bClearScreen);
  file.WriteInt32(NarrowTo<std::int32_t>(Choices.Count()));
  for (const ChoiceItem& choice : Choices) choice.Save(file);
}

void EventChoice::LoadEvent(RecordReader& in) {
  nextChoiceID = in.file.ReadInt32();
  bClearScreen = in.file.ReadFileBool();
  const std::size_t count = in.file.ReadCount("choices");
  Choices.Reserve(in.file.Plausible(count, kLeastChoiceSize));
  for (std::size_t i = 0; i < count; ++i) {
    InRecord(
        in.file, [i] { return "choice " + std::to_string(i + 1); },
        [&] {
          auto choice = std::make_shared<ChoiceItem>();
          choice->Load(in);
          const std::int32_t id = choice->ID;
          Choices.Add(id, std::move(choice));
        });
  }
}

// 2: flaglist.

void EventSetFlag::SaveEvent(BinaryWriter& file) const { SaveFlagRefs(file, flagRefs); }

void EventSetFlag::LoadEvent(RecordReader& in) { LoadFlagRefs(in, flagRefs); }

// 3: flaglist, str failLabel.

void EventCheckFlag::SaveEvent(BinaryWriter& file) const {
  SaveFlagRefs(file, flagRefs);
  file.WriteFileString(failLabel);
}

void EventCheckFlag::LoadEvent(RecordReader& in) {
  LoadFlagRefs(in, flagRefs);
  in.file.ReadFileString(failLabel);
}

// 4: i32 objectID, str object name, str failLabel. The name is looked up for -1 as well.

void EventCheckObject::SaveEvent(BinaryWriter& file) const {
  WriteNamedRow(file, kObjectTable, objectID);
  file.WriteFileString(failLabel);
}

void EventCheckObject::LoadEvent(RecordReader& in) {
  objectID = ReadNamedRow(in.file);
  in.file.ReadFileString(failLabel);
}

// 5: i32 objectID, str object name, i32 transferCount (from version 27; else 1),
//    actorref fromPawnID, actorref toPawnID, str failLabel.

void EventTransferObject::SaveEvent(BinaryWriter& file) const {
  WriteNamedRow(file, kObjectTable, objectID);
  file.WriteInt32(transferCount);
  WriteActorRef(file, fromPawnID);
  WriteActorRef(file, toPawnID);
  file.WriteFileString(failLabel);
}

void EventTransferObject::LoadEvent(RecordReader& in) {
  constexpr std::int32_t kFirstWithCount = 27;
  objectID = ReadNamedRow(in.file);
  transferCount = in.version >= kFirstWithCount ? in.file.ReadInt32() : 1;
  fromPawnID = ReadActorRef(in);
  toPawnID = ReadActorRef(in);
  in.file.ReadFileString(failLabel);
}

// 6: i32 cameraType, i32 cameraPosition, i32 cameraTransition; for type 1 three i32 of rotation and
//    three f64 of modifiers, for type 2 three i32 of rotation and three of location.

void EventMoveCamera::SaveEvent(BinaryWriter& file) const {
  file.WriteInt32(cameraType);
  file.WriteInt32(cameraPosition);
  file.WriteInt32(cameraTransition);
  if (cameraType != kSpeakers && cameraType != kActor) return;
  file.WriteInt32(rotationPitch);
  file.WriteInt32(rotationYaw);
  file.WriteInt32(rotationRoll);
  if (cameraType == kSpeakers) {
    file.WriteDouble(heightModifier);
    file.WriteDouble(centerModifier);
    file.WriteDouble(distanceMultiplier);
  } else {
    file.WriteInt32(cameraX);
    file.WriteInt32(cameraY);
    file.WriteInt32(cameraZ);
  }
}

void EventMoveCamera::LoadEvent(RecordReader& in) {
  cameraType = in.file.ReadInt32();
  cameraPosition = in.file.ReadInt32();
  cameraTransition = in.file.ReadInt32();
  if (cameraType != kSpeakers && cameraType != kActor) return;
  rotationPitch = in.file.ReadInt32();
  rotationYaw = in.file.ReadInt32();
  rotationRoll = in.file.ReadInt32();
  if (cameraType == kSpeakers) {
    heightModifier = in.file.ReadDouble();
    centerModifier = in.file.ReadDouble();
    distanceMultiplier = in.file.ReadDouble();
  } else {
    cameraX = in.file.ReadInt32();
    cameraY = in.file.ReadInt32();
    cameraZ = in.file.ReadInt32();
  }
}

// 7: actorref PawnID, str SeqName, i32 playMode, i32 playLength, bool bFinishAnim.

void EventAnimation::SaveEvent(BinaryWriter& file) const {
  WriteActorRef(file, PawnID);
  file.WriteFileString(SeqName);
  file.WriteInt32(playMode);
  file.WriteInt32(playLength);
  file.WriteFileBool(bFinishAnim);
}

void EventAnimation::LoadEvent(RecordReader& in) {
  PawnID = ReadActorRef(in);
  in.file.ReadFileString(SeqName);
  playMode = in.file.ReadInt32();
  playLength = in.file.ReadInt32();
  bFinishAnim = in.file.ReadFileBool();
}

// 8: actorref PawnID.

void EventTrade::SaveEvent(BinaryWriter& file) const { WriteActorRef(file, PawnID); }

void EventTrade::LoadEvent(RecordReader& in) { PawnID = ReadActorRef(in); }

// 9: str label, i32 conID.

void EventJump::SaveEvent(BinaryWriter& file) const {
  file.WriteFileString(label);
  file.WriteInt32(conID);
}

void EventJump::LoadEvent(RecordReader& in) {
  in.file.ReadFileString(label);
  conID = in.file.ReadInt32();
}

// 10: i32 label count, labels, bool bCycleEvents and bool bCycleOnce (from version 24),
//     bool bCycleRandom (from version 25).

void EventRandom::SaveEvent(BinaryWriter& file) const {
  file.WriteInt32(GetLabelCount() + 1);
  for (const std::string& label : labels_) file.WriteFileString(label);
  file.WriteFileBool(bCycleEvents);
  file.WriteFileBool(bCycleOnce);
  file.WriteFileBool(bCycleRandom);
}

void EventRandom::LoadEvent(RecordReader& in) {
  constexpr std::int32_t kFirstWithCycle = 24;
  constexpr std::int32_t kFirstWithCycleRandom = 25;
  const std::size_t count = in.file.ReadCount("labels", kMostLabels);
  if (count == 0) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange, "a random event without a label");
  }
  labels_.clear();
  labels_.reserve(in.file.Plausible(count, kLeastLabelSize));
  for (std::size_t i = 0; i < count; ++i) labels_.push_back(in.file.ReadFileString());
  bCycleEvents = in.version >= kFirstWithCycle && in.file.ReadFileBool();
  bCycleOnce = in.version >= kFirstWithCycle && in.file.ReadFileBool();
  bCycleRandom = in.version >= kFirstWithCycleRandom && in.file.ReadFileBool();
}

// 11: str triggerTag.

void EventTrigger::SaveEvent(BinaryWriter& file) const { file.WriteFileString(triggerTag); }

void EventTrigger::LoadEvent(RecordReader& in) { in.file.ReadFileString(triggerTag); }

// 12: str goalName, bool bGoalCompleted (from version 20; else false), and only if it is false
//     str goalText, bool bPrimaryGoal.

void EventAddGoal::SaveEvent(BinaryWriter& file) const {
  file.WriteFileString(goalName);
  file.WriteFileBool(bGoalCompleted);
  if (bGoalCompleted) return;
  file.WriteFileString(goalText);
  file.WriteFileBool(bPrimaryGoal);
}

void EventAddGoal::LoadEvent(RecordReader& in) {
  constexpr std::int32_t kFirstWithCompleted = 20;
  in.file.ReadFileString(goalName);
  bGoalCompleted = in.version >= kFirstWithCompleted && in.file.ReadFileBool();
  if (bGoalCompleted) return;
  in.file.ReadFileString(goalText);
  bPrimaryGoal = in.file.ReadFileBool();
}

// 13: str noteText.

void EventAddNote::SaveEvent(BinaryWriter& file) const { file.WriteFileString(noteText); }

void EventAddNote::LoadEvent(RecordReader& in) { in.file.ReadFileString(noteText); }

// 14: i32 pointsToAdd, str awardMessage (from version 27; else empty).

void EventAddSkillPoints::SaveEvent(BinaryWriter& file) const {
  file.WriteInt32(pointsToAdd);
  file.WriteFileString(awardMessage);
}

void EventAddSkillPoints::LoadEvent(RecordReader& in) {
  constexpr std::int32_t kFirstWithMessage = 27;
  pointsToAdd = in.file.ReadInt32();
  if (in.version >= kFirstWithMessage) in.file.ReadFileString(awardMessage);
}

// 15: i32 creditsToAdd.

void EventAddCredits::SaveEvent(BinaryWriter& file) const { file.WriteInt32(creditsToAdd); }

void EventAddCredits::LoadEvent(RecordReader& in) { creditsToAdd = in.file.ReadInt32(); }

// 16: i32 personaType, i32 condition, i32 value, str jumpLabel.

void EventCheckPersona::SaveEvent(BinaryWriter& file) const {
  file.WriteInt32(personaType);
  file.WriteInt32(condition);
  file.WriteInt32(value);
  file.WriteFileString(jumpLabel);
}

void EventCheckPersona::LoadEvent(RecordReader& in) {
  personaType = in.file.ReadInt32();
  condition = in.file.ReadInt32();
  value = in.file.ReadInt32();
  in.file.ReadFileString(jumpLabel);
}

// 17: str commentText.

void EventComment::SaveEvent(BinaryWriter& file) const { file.WriteFileString(commentText); }

void EventComment::LoadEvent(RecordReader& in) { in.file.ReadFileString(commentText); }

// 18: no payload.

}  // namespace parlate

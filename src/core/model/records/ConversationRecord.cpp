// The record of one conversation, writer and reader side by side.

#include <memory>

#include "general/BinaryFile.h"
#include "general/Rounding.h"
#include "general/SharedBlocks.h"
#include "model/Conversation.h"
#include "model/ErrorPlaces.h"
#include "model/records/RecordReader.h"

namespace parlate {

namespace {

constexpr std::int32_t kFirstWithHoloCall = 13;
constexpr std::int32_t kFirstWithDescription = 22;
constexpr std::int32_t kFirstWithCanBeInterrupted = 26;
constexpr std::int32_t kFirstWithCannotBeInterrupted = 28;
constexpr std::size_t kLeastEventSize = 16;

void LoadEvents(RecordReader& in, Conversation& con) {
  const std::size_t count = in.file.ReadCount("events");
  const std::size_t plausible = in.file.Plausible(count, kLeastEventSize);
  con.events.Reserve(plausible);
  SharedBlocks<EventItem> items(plausible);
  for (std::size_t i = 0; i < count; ++i) {
    InRecord(
        in.file, [i] { return "event " + std::to_string(i + 1); },
        [&] {
          std::shared_ptr<EventItem> event = items.Make();
          event->LoadEvent(con, in);
          const std::int32_t key = event->key;
          con.events.Add(key, std::move(event));
        });
  }
}

}  // namespace

void Conversation::Save(BinaryWriter& file) const {
  file.WriteInt32(currentEventKey);
  file.WriteInt32(key);
  file.WriteFileString(conName);
  file.WriteFileString(Description);
  file.WriteDouble(CreationDate);
  file.WriteFileString(CreatedBy);
  file.WriteDouble(LastUpdated);
  file.WriteFileString(LastUpdatedBy);
  WriteActorRef(file, NPCID);
  file.WriteFileBool(bHoloCallCon);
  file.WriteFileString(notes);
  file.WriteFileBool(bDisplayOnce);
  file.WriteFileBool(bFirstPerson);
  file.WriteFileBool(bNonInteractive);
  file.WriteFileBool(bRandomCamera);
  file.WriteFileBool(bCanBeInterrupted);
  file.WriteFileBool(bCannotBeInterrupted);
  file.WriteFileBool(bInvokeBump);
  file.WriteFileBool(bInvokeFrob);
  file.WriteFileBool(bInvokeSight);
  file.WriteFileBool(bInvokeRadius);
  file.WriteInt32(invokeRadius);
  SaveFlagRefs(file, flagRefs);
  file.WriteInt32(NarrowTo<std::int32_t>(events.Count()));
  for (const EventItem& event : events) {
    InPlace(event, [&] { event.SaveEvent(file); });
  }
}

void Conversation::Load(RecordReader& in) {
  const auto since = [&in](std::int32_t version) { return in.version >= version; };
  currentEventKey = in.file.ReadInt32();
  key = in.file.ReadInt32();
  in.file.ReadFileString(conName);
  Description = since(kFirstWithDescription) ? in.file.ReadFileString() : std::string();
  CreationDate = in.file.ReadDouble();
  in.file.ReadFileString(CreatedBy);
  LastUpdated = in.file.ReadDouble();
  in.file.ReadFileString(LastUpdatedBy);
  NPCID = ReadActorRef(in);
  bHoloCallCon = since(kFirstWithHoloCall) && in.file.ReadFileBool();
  in.file.ReadFileString(notes);
  bDisplayOnce = in.file.ReadFileBool();
  bFirstPerson = in.file.ReadFileBool();
  bNonInteractive = in.file.ReadFileBool();
  bRandomCamera = in.file.ReadFileBool();
  bCanBeInterrupted = since(kFirstWithCanBeInterrupted) && in.file.ReadFileBool();
  bCannotBeInterrupted = since(kFirstWithCannotBeInterrupted) && in.file.ReadFileBool();
  bInvokeBump = in.file.ReadFileBool();
  bInvokeFrob = in.file.ReadFileBool();
  bInvokeSight = in.file.ReadFileBool();
  bInvokeRadius = in.file.ReadFileBool();
  invokeRadius = in.file.ReadInt32();
  LoadFlagRefs(in, flagRefs);
  LoadEvents(in, *this);
}

}  // namespace parlate

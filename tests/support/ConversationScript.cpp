#include "support/ConversationScript.h"

#include <algorithm>

namespace parlate::testing_support {

namespace {

constexpr int kVersion = 28;

enum : std::int32_t {
  kSpeechCode = 0,
  kSetFlagCode = 2,
  kCheckObjectCode = 4,
  kJumpCode = 9,
  kCommentCode = 17,
  kEndCode = 18,
};

}  // namespace

EventFields Speech(std::int32_t key, const std::string& label, const ActorFields& speaker,
                   const std::string& text, const std::string& audioFile) {
  FileBytes payload(kVersion);
  payload.Actor(speaker).Actor({}).Str(text).Str(audioFile).Bool(false).Bool(false).I32(0);
  return {key, kSpeechCode, label, payload.Bytes()};
}

EventFields Comment(std::int32_t key, const std::string& label, const std::string& text) {
  return {key, kCommentCode, label, FileBytes(kVersion).Str(text).Bytes()};
}

EventFields Jump(std::int32_t key, const std::string& label, const std::string& target,
                 std::int32_t targetCon) {
  return {key, kJumpCode, label, FileBytes(kVersion).Str(target).I32(targetCon).Bytes()};
}

EventFields SetFlags(std::int32_t key, const std::vector<FlagFields>& flags) {
  return {key, kSetFlagCode, "", FileBytes(kVersion).Flags(flags).Bytes()};
}

EventFields CheckObject(std::int32_t key, std::int32_t objectID, const std::string& objectName) {
  return {key, kCheckObjectCode, "",
          FileBytes(kVersion).I32(objectID).Str(objectName).Str("").Bytes()};
}

EventFields End(std::int32_t key, const std::string& label) { return {key, kEndCode, label, ""}; }

ConversationScript Con(std::int32_t key, const std::string& name, const ActorFields& owner,
                       const std::vector<EventFields>& events,
                       const std::vector<FlagFields>& flags) {
  ConversationScript con;
  con.fields.key = key;
  con.fields.conName = name;
  con.fields.owner = owner;
  con.fields.flags = flags;
  con.events = events;
  for (const EventFields& event : events) {
    con.fields.currentEventKey = std::max(con.fields.currentEventKey, event.key);
  }
  return con;
}

std::string FileOf(const TableFields& tables,
                   const std::vector<ConversationScript>& conversations) {
  std::int32_t nextKey = 0;
  for (const auto& con : conversations) nextKey = std::max(nextKey, con.fields.key + 1);
  FileBytes file(kVersion);
  file.Start().Header({}).Tables(tables).I32(nextKey);
  file.I32(static_cast<std::int32_t>(conversations.size()));
  for (const ConversationScript& con : conversations) {
    file.Conversation(con.fields).I32(static_cast<std::int32_t>(con.events.size()));
    std::int32_t row = 0;
    for (const EventFields& event : con.events) {
      file.Event(row++, event.key, event.type, event.label).Raw(event.payload);
    }
  }
  return file.Bytes();
}

TableFields HarbourTables() {
  TableFields tables;
  tables.actors = {{1, "Zoe"}, {0, "Alex"}};
  tables.flags = {{2, "Door"}, {3, "Lamp"}};
  tables.skills = {{1, "Swim"}};
  tables.objects = {{4, "Key"}};
  return tables;
}

std::string HarbourFile() {
  const std::vector<EventFields> events = {
      Speech(1, "Start", kZoe, "Hello", "hello.mp3"), Comment(2, "", "A comment"),
      Speech(3, "", kHarbourAlex, "Hi", ""), Jump(4, "", "Start", 0), End(5, "Stop")};
  const std::vector<FlagFields> flags = {{2, "Door", true, 0}, {3, "Lamp", false, 0}};
  return FileOf(HarbourTables(), {Con(0, "greeting", kZoe, events, flags), Con(1, "Arrival", kZoe),
                                  Con(2, "Leaving", kHarbourAlex, {Jump(1, "", "Start", 0)})});
}

}  // namespace parlate::testing_support

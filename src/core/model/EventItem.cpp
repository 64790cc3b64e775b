#include "model/EventItem.h"

#include <array>
#include <type_traits>
#include <utility>

#include "general/RuntimeError.h"
#include "model/Tables.h"

namespace parlate {

namespace {

std::string TypeName(std::int32_t eventType) {
  if (eventType < 0 || eventType >= kEventTypeCount) {
    throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  }
  return std::string(eventTypeNames[static_cast<std::size_t>(eventType)]);
}

}  // namespace

const EventObject* EventItem::eventObject() const {
  return std::visit(
      []<class Event>(const Event& event) -> const EventObject* {
        if constexpr (std::is_same_v<Event, std::monostate>) {
          return nullptr;
        } else {
          return &event;
        }
      },
      payload_);
}

EventObject* EventItem::eventObject() {
  return const_cast<EventObject*>(std::as_const(*this).eventObject());
}

const EventObject& EventItem::Object() const {
  const EventObject* object = eventObject();
  if (object == nullptr) throw RuntimeError(RuntimeError::kObjectVariableNotSet);
  return *object;
}

EventObject& EventItem::Object() { return const_cast<EventObject&>(std::as_const(*this).Object()); }

EventObject* EventItem::CreateEventObject(std::int32_t newEventType) {
  const auto put = [this]<class Event>(std::in_place_type_t<Event>) -> EventObject* {
    return &payload_.template emplace<Event>();
  };
  switch (newEventType) {
    case kSpeech:
      return put(std::in_place_type<EventSpeech>);
    case kChoice:
      return put(std::in_place_type<EventChoice>);
    case kSetFlags:
      return put(std::in_place_type<EventSetFlag>);
    case kCheckFlags:
      return put(std::in_place_type<EventCheckFlag>);
    case kCheckObject:
      return put(std::in_place_type<EventCheckObject>);
    case kTransferObject:
      return put(std::in_place_type<EventTransferObject>);
    case kMoveCamera:
      return put(std::in_place_type<EventMoveCamera>);
    case kPlayAnimation:
      return put(std::in_place_type<EventAnimation>);
    case kTrade:
      return put(std::in_place_type<EventTrade>);
    case kJump:
      return put(std::in_place_type<EventJump>);
    case kRandomLabel:
      return put(std::in_place_type<EventRandom>);
    case kTrigger:
      return put(std::in_place_type<EventTrigger>);
    case kAddGoal:
      return put(std::in_place_type<EventAddGoal>);
    case kAddNote:
      return put(std::in_place_type<EventAddNote>);
    case kAddSkillPoints:
      return put(std::in_place_type<EventAddSkillPoints>);
    case kAddCredits:
      return put(std::in_place_type<EventAddCredits>);
    case kCheckPersona:
      return put(std::in_place_type<EventCheckPersona>);
    case kComment:
      return put(std::in_place_type<EventComment>);
    case kEnd:
      return put(std::in_place_type<EventEnd>);
    default:
      payload_.emplace<std::monostate>();
      return nullptr;
  }
}

void EventItem::ExportEventDialog(std::int16_t) const {
  throw RuntimeError(RuntimeError::kNoSuchOperation);
}

void EventItem::ExportEventFilenames(std::int16_t, const std::string&, std::int16_t) const {
  throw RuntimeError(RuntimeError::kNoSuchOperation);
}

void EventItem::Copy(const EventItem& source) {
  if (source.eventObject() == nullptr) throw RuntimeError(RuntimeError::kObjectVariableNotSet);
  listPos = source.listPos;
  key = source.key;
  eventType = source.eventType;
  eventLabel = source.eventLabel;
  CreateEventObject(eventType);
  source.Visit([this]<class Event>(const Event& from) {
    Event* to = As<Event>();
    if (to == nullptr) throw RuntimeError(RuntimeError::kTypeMismatch);
    to->Copy(from);
  });
}

std::string EventItem::BuildEventListString() const {
  const EventObject& object = Object();
  const std::int32_t actorID = object.GetActorID();
  const std::string actor = actorID == -1 ? "" : GetTableItemName(kActorTable, actorID);
  return eventLabel + ";" + TypeName(eventType) + ";" + actor + ";" + object.BuildEventListString();
}

std::string EventItem::BuildEventListSubString() const {
  return Object().BuildEventListSubString();
}

Boolean EventItem::FindString(std::string_view searchString, Boolean bWholeWord,
                              CompareMethod compareMethod, std::int32_t searchEventType) const {
  if (searchEventType != -1 && searchEventType != eventType) return false;
  return Object().FindString(searchString, bWholeWord, compareMethod);
}

Boolean EventItem::AreLabelsValid(const Conversation& conversation) const {
  return Object().AreLabelsValid(conversation);
}

bool EventItem::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return Object().IsTableItemReferenced(id, tableType);
}

void EventItem::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  Object().GatherTableItems(tableType, ids);
}

void EventItem::ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) {
  Object().ChangeTableLink(tableType, oldID, newID);
}

void EventItem::StoreTableData() const { Object().StoreTableData(); }

std::int32_t RemapEventType(std::int32_t storedType, std::int32_t version) {
  // New types went in ahead of the last two, which were "Comment" and "End" in every version.
  struct Move {
    std::int32_t firstVersion;
    std::int32_t lastVersion;
    std::int32_t stored;
    std::int32_t present;
  };
  static constexpr std::array<Move, 7> kMoves = {{
      {INT32_MIN, 14, 17, kEnd},
      {15, 15, 11, kComment},
      {15, 15, 12, kEnd},
      {16, 20, 14, kComment},
      {16, 20, 15, kEnd},
      {21, 23, 16, kComment},
      {21, 23, 17, kEnd},
  }};
  for (const Move& move : kMoves) {
    if (version >= move.firstVersion && version <= move.lastVersion && storedType == move.stored) {
      return move.present;
    }
  }
  return storedType;
}

}  // namespace parlate

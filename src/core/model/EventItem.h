#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "model/EventObject.h"
#include "model/events/BranchingEvents.h"
#include "model/events/EffectEvents.h"
#include "model/events/EventChoice.h"
#include "model/events/EventSpeech.h"

namespace parlate {

class BinaryWriter;

/// One event of a conversation: what all types share, and the one concrete object, which it holds
/// in place. `eventType` and the class of the object agree at all times.
class EventItem {
 public:
  std::string eventLabel;  ///< Jump label, empty for none.

 private:
  using Payload =
      std::variant<std::monostate, EventSpeech, EventChoice, EventSetFlag, EventCheckFlag,
                   EventCheckObject, EventTransferObject, EventMoveCamera, EventAnimation,
                   EventTrade, EventJump, EventRandom, EventTrigger, EventAddGoal, EventAddNote,
                   EventAddSkillPoints, EventAddCredits, EventCheckPersona, EventComment, EventEnd>;

  // There are a million items in a large file: the numbers below stand in its unused tail.
  [[no_unique_address]] Payload payload_;

 public:
  std::int32_t listPos = 0;    ///< Zero-based row in the event list when it was last numbered.
  std::int32_t key = 0;        ///< Unique within the conversation; key of the collection too.
  std::int32_t eventType = 0;  ///< See `EventType`.

  EventItem() = default;
  EventItem(const EventItem&) = delete;  // the shared parts are copied by `Copy`
  EventItem& operator=(const EventItem&) = delete;

  /// The concrete object; nothing for an item that was not given one yet.
  [[nodiscard]] EventObject* eventObject();
  [[nodiscard]] const EventObject* eventObject() const;

  /// The concrete object as its class; nothing if it is of another.
  template <class Event>
  [[nodiscard]] Event* As() {
    return std::get_if<Event>(&payload_);
  }
  template <class Event>
  [[nodiscard]] const Event* As() const {
    return std::get_if<Event>(&payload_);
  }

  /// Calls back with the concrete object as its class; with nothing to show, not at all.
  template <class Visitor>
  void Visit(Visitor visitor) const {
    std::visit(
        [&visitor]<class Event>(const Event& event) {
          if constexpr (!std::is_same_v<Event, std::monostate>) visitor(event);
        },
        payload_);
  }

  /// Puts a new object of the type in place of the present one and returns it. A code outside of 0
  /// to 18 leaves the item without an object.
  EventObject* CreateEventObject(std::int32_t newEventType);
  /// Puts a given object in place and sets `eventType` to its code.
  template <class Event>
  Event& SetEventObject(std::int32_t newEventType, Event event) {
    eventType = newEventType;
    return payload_.emplace<Event>(std::move(event));
  }

  /// Two forwarders that no concrete class answers: RuntimeError 438.
  void ExportEventDialog(std::int16_t fileNumber) const;
  void ExportEventFilenames(std::int16_t fileNumber, const std::string& text,
                            std::int16_t number) const;

  void SaveEvent(BinaryWriter& file) const;
  /// Moves the type codes of old versions and registers the label in `conversation`.
  /// RuntimeError 91 for a type that does not exist.
  void LoadEvent(Conversation& conversation, RecordReader& in);
  /// A deep copy under the same key; the label is registered nowhere.
  void Copy(const EventItem& source);
  /// The four fields of the event's line, split by ";".
  [[nodiscard]] std::string BuildEventListString() const;
  [[nodiscard]] std::string BuildEventListSubString() const;
  /// `searchEventType` -1 stands for any type.
  [[nodiscard]] Boolean FindString(std::string_view searchString, Boolean bWholeWord,
                                   CompareMethod compareMethod, std::int32_t searchEventType) const;
  [[nodiscard]] Boolean AreLabelsValid(const Conversation& conversation) const;
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const;
  void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID);
  void StoreTableData() const;

 private:
  /// The object, or RuntimeError 91 if there is none.
  [[nodiscard]] EventObject& Object();
  [[nodiscard]] const EventObject& Object() const;
};

/// The present code of an event type stored by an old version of the format.
[[nodiscard]] std::int32_t RemapEventType(std::int32_t storedType, std::int32_t version);

}  // namespace parlate

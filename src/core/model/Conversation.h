#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "general/Boolean.h"
#include "general/Date.h"
#include "general/KeyedCollection.h"
#include "model/EventItem.h"
#include "model/FlagRef.h"
#include "model/LabelCollection.h"

namespace parlate {

/// One conversation of the file: its header, the flags that gate it, its events in their order of
/// play, and its jump labels.
class Conversation {
 public:
  std::int32_t key = 0;  ///< From `NextKey` of the file.
  std::string conName;
  std::string Description;
  std::int32_t NPCID = 0;  ///< The owner, an actor row; -1 for none.
  Boolean bHoloCallCon;
  std::string notes;
  KeyedCollection<EventItem> events;  ///< Keyed by `EventItem::key`, in the order of play.
  FlagList flagRefs;                  ///< What must hold for the conversation to start.
  LabelCollection Labels;             ///< The labels of all events. Not stored.
  Boolean bDisplayOnce;
  Boolean bFirstPerson;
  Boolean bNonInteractive;
  Boolean bRandomCamera;
  Boolean bCanBeInterrupted = false;
  Boolean bCannotBeInterrupted;
  Boolean bInvokeBump;
  Boolean bInvokeFrob;
  Boolean bInvokeSight;
  Boolean bInvokeRadius;
  std::int32_t invokeRadius = 0;  ///< Distance from the player.
  Date CreationDate;
  std::string CreatedBy;
  Date LastUpdated;
  std::string LastUpdatedBy;
  std::int32_t currentEventKey = 0;  ///< The last event key given out.

  /// Stamped with the present moment and the user's name.
  Conversation();
  Conversation(const Conversation&) = delete;  // a deep copy is made by `Copy`
  Conversation& operator=(const Conversation&) = delete;

  /// A deep copy into a fresh object; all keys stay the same.
  void Copy(const Conversation& source);
  /// Finds the targets of copied jumps by owner and name; one that is gone becomes this
  /// conversation itself.
  void FixJumpReferences();
  /// Counts on and returns the new value, so the first key is 1. (`NextKey` of the file returns
  /// the old one; keys of both kinds are in files.) RuntimeError 6 beyond 32 bits.
  std::int32_t NextEventKey();
  void UndoLastEventKey();
  /// False for an empty label and for one that is there already.
  Boolean AddLabel(const std::string& label);
  /// Takes the old label away, whoever else uses it, and returns what `AddLabel` says of the new.
  Boolean UpdateLabel(const std::string& oldLabel, const std::string& newLabel);
  void RemoveLabel(const std::string& label);
  /// An empty label is valid; another one if it exists, without regard to case.
  [[nodiscard]] Boolean IsValidLabel(const std::string& label) const;
  void Save(BinaryWriter& file) const;
  void Load(RecordReader& in);
  /// RuntimeError 5 for a missing key. The label goes too, also if another event bears it.
  void EventRemove(std::int32_t eventKey);
  void EventRemoveAll();
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const;
  /// Adds the IDs of all rows of that table that are referenced.
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const;
  /// Redirects references. The owner follows whatever the table type is.
  void ChangeConTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID);
  void StoreTableData() const;
  void RemoveConversationLinks(std::int32_t conKey);
  /// Redirects every reference to the rows that the buffered ones were restored to.
  void FixTableReferences();
};

}  // namespace parlate

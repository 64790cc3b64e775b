#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "general/Boolean.h"
#include "general/CodePage.h"
#include "general/IDSet.h"
#include "model/TableItem.h"
#include "model/Vocabulary.h"

namespace parlate {

class BinaryWriter;
class Conversation;
struct RecordReader;

/// The contract that each of the nineteen concrete event classes fulfils. Every class adds two
/// operations whose arguments are its own: `Copy(source)`, a deep copy from an object of the same
/// class, and `Update(...)`, which stores the values that the editor's panel collected.
class EventObject {
 public:
  virtual ~EventObject() = default;

  /// Writes the payload of the type.
  virtual void SaveEvent(BinaryWriter& file) const = 0;
  /// Reads the payload of the type, as the file's version lays it out.
  virtual void LoadEvent(RecordReader& in) = 0;
  /// The actor shown with the event, or -1 for no actor.
  [[nodiscard]] virtual std::int32_t GetActorID() const { return -1; }
  /// Text of the last column of the event's line.
  [[nodiscard]] virtual std::string BuildEventListString() const = 0;
  /// Text under the event's line when the list is expanded; lines split at character 13.
  [[nodiscard]] virtual std::string BuildEventListSubString() const { return {}; }
  /// Whether the searchable text holds `searchString`. `bWholeWord` has no effect in any class.
  [[nodiscard]] virtual Boolean FindString(std::string_view searchString, Boolean bWholeWord,
                                           CompareMethod compareMethod) const;
  /// Whether every label that the event names exists; each one that does not is reported.
  [[nodiscard]] virtual Boolean AreLabelsValid(const Conversation& con) const;
  /// Whether the event refers to that table row.
  [[nodiscard]] virtual bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const;
  /// Adds every ID for which `IsTableItemReferenced` of that table type is true.
  virtual void GatherTableItems(std::int32_t tableType, IDSet& ids) const;
  /// Redirects references from the old ID to the new one.
  virtual void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID);
  /// Puts the rows that the event refers to in the table buffer.
  virtual void StoreTableData() const {}

 protected:
  EventObject() = default;
  EventObject(const EventObject&) = default;
  EventObject(EventObject&&) = default;
  EventObject& operator=(const EventObject&) = default;
  EventObject& operator=(EventObject&&) = default;

  /// True if the label is empty or exists in `labelled`; otherwise reports it as broken in `con`.
  [[nodiscard]] Boolean CheckLabel(const Conversation& con, const Conversation& labelled,
                                   const std::string& label) const;

  /// Rewrites one reference that equals `oldID`.
  static void Redirect(std::int32_t& reference, std::int32_t oldID, std::int32_t newID) {
    if (reference == oldID) reference = newID;
  }
};

}  // namespace parlate

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/Controls.h"
#include "model/EventObject.h"
#include "model/FlagRef.h"

namespace parlate {

/// Goes on at a label, of this or of another conversation.
class EventJump final : public EventObject {
 public:
  std::string label;
  std::int32_t conID = 0;     ///< Key of the target conversation; -1 when it has none.
  std::int32_t conOwner = 0;  ///< Owner of the target, kept only on a copy.
  std::string conName;        ///< Name of the target, kept only on a copy.

  /// Notes owner and name of the target, so that the copy can find it again in another file.
  /// RuntimeError 91 if the open file has no such target.
  void Copy(const EventJump& source);
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const std::string& newLabel, std::int32_t newConID);
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] Boolean AreLabelsValid(const Conversation& con) const override;
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const override;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const override;
  /// A jump to that conversation comes to point nowhere.
  void RemoveConversationLinks(std::int32_t removedConID) { Redirect(conID, removedConID, -1); }
};

/// Goes on at one of several labels.
class EventRandom final : public EventObject {
 public:
  Boolean bCycleEvents;
  Boolean bCycleOnce;
  Boolean bCycleRandom;

  void Copy(const EventRandom& source) { *this = source; }
  /// The highest index, one less than the number of labels in spite of the name. RuntimeError 9
  /// when there never was a label, 6 beyond 16 bits.
  [[nodiscard]] std::int16_t GetLabelCount() const;
  /// RuntimeError 9 outside of 0 to `GetLabelCount`.
  [[nodiscard]] const std::string& GetLabel(std::int32_t index) const;
  /// Indices 0 to `upperBound`; what was there is lost. RuntimeError 9 below 0.
  void ResizeLabels(std::int32_t upperBound);
  void AssignLabel(std::int32_t index, const std::string& label);
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const ListBox& list, Boolean bNewCycleEvents, Boolean bNewCycleOnce,
              Boolean bNewCycleRandom);
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] std::string BuildEventListSubString() const override;
  [[nodiscard]] Boolean AreLabelsValid(const Conversation& con) const override;
  void PopulateLabelsList(ListBox& list) const;

  /// All labels, in order.
  [[nodiscard]] const std::vector<std::string>& Labels() const { return labels_; }

 private:
  std::vector<std::string> labels_;
};

/// Goes on at a label when flags have the values asked for.
class EventCheckFlag final : public EventObject {
 public:
  FlagList flagRefs;
  std::string failLabel;  ///< Where to go, in spite of the name, when the conditions hold.

  void Copy(const EventCheckFlag& source);
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  /// Takes the list over.
  void Update(FlagList newFlagRefs, const std::string& newFailLabel);
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] std::string BuildEventListSubString() const override;
  [[nodiscard]] Boolean AreLabelsValid(const Conversation& con) const override;
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const override;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const override;
  void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) override;
  void StoreTableData() const override;
};

/// Gives flags values.
class EventSetFlag final : public EventObject {
 public:
  FlagList flagRefs;

  void Copy(const EventSetFlag& source) { CopyFlagRefs(source.flagRefs, flagRefs); }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  /// Takes the list over.
  void Update(FlagList newFlagRefs) { flagRefs = std::move(newFlagRefs); }
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] std::string BuildEventListSubString() const override;
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const override;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const override;
  void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) override;
  void StoreTableData() const override;
};

/// Goes on elsewhere when the player lacks an object.
class EventCheckObject final : public EventObject {
 public:
  std::int32_t objectID = 0;  ///< Object row.
  std::string failLabel;      ///< Empty goes on with the next event.

  void Copy(const EventCheckObject& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(std::int32_t newObjectID, const std::string& newFailLabel);
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] Boolean AreLabelsValid(const Conversation& con) const override;
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const override;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const override;
  void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) override;
  void StoreTableData() const override;
};

/// Compares a number of the player's with a value.
class EventCheckPersona final : public EventObject {
 public:
  std::int32_t personaType = 0;  ///< 0 credits, 1 health, 2 skill points.
  std::int32_t condition = 0;    ///< 0 <, 1 <=, 2 =, 3 >=, 4 >.
  std::int32_t value = 0;
  std::string jumpLabel;  ///< Meant: outside of the label check, for this class alone.

  void Copy(const EventCheckPersona& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  /// RuntimeError 13 for a value that is no number, 6 beyond 32 bits.
  void Update(std::int32_t newPersonaType, std::int32_t newCondition, const std::string& newValue,
              const std::string& newJumpLabel);
  [[nodiscard]] std::string BuildEventListString() const override { return {}; }
};

/// Ends the conversation.
class EventEnd final : public EventObject {
 public:
  void Copy(const EventEnd&) {}
  void SaveEvent(BinaryWriter&) const override {}
  void LoadEvent(RecordReader&) override {}
  void Update() {}
  [[nodiscard]] std::string BuildEventListString() const override { return {}; }
};

}  // namespace parlate

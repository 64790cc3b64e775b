#pragma once

#include <cstdint>
#include <string>

#include "general/KeyedCollection.h"
#include "model/Controls.h"
#include "model/EventObject.h"
#include "model/FlagRef.h"

namespace parlate {

/// One option offered to the player.
class ChoiceItem {
 public:
  std::int32_t ID = 0;  ///< Number within the event, from `EventChoice::nextID`.
  std::string text;
  Boolean bDisplayAsSpeech;     ///< The option is spoken: it needs an audio file.
  std::int32_t skillID = 0;     ///< Skill row required; -1 for none.
  std::int32_t skillLevel = 0;  ///< Index into `skillLevelNames`.
  std::string label;            ///< Where the option leads; empty goes on with the next event.
  std::string audioFile;
  FlagList flagRefs;  ///< What must hold for the option to be offered.

  void Copy(const ChoiceItem& source);
  void Save(BinaryWriter& file) const;
  void Load(RecordReader& in);
  /// Row of the choice editor's list: text, label and skill, split by ";".
  [[nodiscard]] std::string BuildChoiceString() const;
};

/// A list of options offered to the player.
class EventChoice final : public EventObject {
 public:
  Boolean bClearScreen;
  KeyedCollection<ChoiceItem> Choices;  ///< Keyed by `ID`.
  std::int32_t nextChoiceID = 0;

  /// Adds to the choices that are there; used on new objects.
  void Copy(const EventChoice& source);
  /// The next free ID; never given out again within the event.
  std::int32_t nextID();
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(Boolean bNewClearScreen) { bClearScreen = bNewClearScreen; }
  void PopulateList(ListBox& list) const;
  /// RuntimeError 5 for an event with no choices while the list is not expanded.
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] std::string BuildEventListSubString() const override;
  [[nodiscard]] Boolean AreLabelsValid(const Conversation& con) const override;
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const override;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const override;
  /// Whether a spoken choice names no audio file.
  [[nodiscard]] Boolean IsAudioMissing() const;
  void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) override;
  void StoreTableData() const override;
};

}  // namespace parlate

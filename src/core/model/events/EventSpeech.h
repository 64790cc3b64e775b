#pragma once

#include <cstdint>
#include <string>

#include "model/Controls.h"
#include "model/EventObject.h"

namespace parlate {

/// One line of dialogue with its speaker, listener and audio file.
class EventSpeech final : public EventObject {
 public:
  std::int32_t ActorSpeakerID = -1;     ///< Actor row, -1 for none.
  std::int32_t ActorSpeakingToID = -1;  ///< Actor row, -1 for none.
  std::string speech;
  std::string audioFile;
  Boolean bContinued;
  Boolean bBold;
  std::int32_t speechFont = 0;  ///< Index into `speechFontNames`.
  std::int32_t eventType = 0;   ///< Carried by `Copy` only; the real type is the item's.

  void Copy(const EventSpeech& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const ComboBox& cboActorSpeaker, const ComboBox& cboActorSpeakingTo,
              const std::string& newSpeech, const std::string& newAudioFile, Boolean bNewBold,
              Boolean bNewContinued, const ComboBox& cboSpeechFont);
  [[nodiscard]] std::int32_t GetActorID() const override { return ActorSpeakerID; }
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] std::string BuildEventListSubString() const override { return speech; }
  [[nodiscard]] Boolean FindString(std::string_view searchString, Boolean bWholeWord,
                                   CompareMethod compareMethod) const override;
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const override;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const override;
  void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) override;
  void StoreTableData() const override;

  /// Whether no audio file is named.
  [[nodiscard]] Boolean IsAudioMissing() const { return audioFile.empty(); }
};

}  // namespace parlate

#include "model/events/EventSpeech.h"

#include "model/TableCombos.h"
#include "model/Workspace.h"

namespace parlate {

void EventSpeech::Update(const ComboBox& cboActorSpeaker, const ComboBox& cboActorSpeakingTo,
                         const std::string& newSpeech, const std::string& newAudioFile,
                         Boolean bNewBold, Boolean bNewContinued, const ComboBox& cboSpeechFont) {
  ActorSpeakerID = GetComboItemID(cboActorSpeaker);
  ActorSpeakingToID = GetComboItemID(cboActorSpeakingTo);
  speech = newSpeech;
  audioFile = newAudioFile;
  bBold = bNewBold;
  bContinued = bNewContinued;
  speechFont = cboSpeechFont.ListIndex() == -1 ? 0 : cboSpeechFont.ListIndex();
}

std::string EventSpeech::BuildEventListString() const {
  const ConversationDefaults& defaults = Workspace::Current().defaults;
  if (!defaults.ExpandListEnabled) return speech;
  return defaults.bShowAudioFiles ? audioFile : std::string();
}

Boolean EventSpeech::FindString(std::string_view searchString, Boolean,
                                CompareMethod compareMethod) const {
  return Contains(speech, searchString, compareMethod);
}

bool EventSpeech::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return tableType == kActorTable && (ActorSpeakerID == id || ActorSpeakingToID == id);
}

void EventSpeech::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  if (tableType != kActorTable) return;
  ids.Add(ActorSpeakerID);
  ids.Add(ActorSpeakingToID);
}

void EventSpeech::ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) {
  if (tableType != kActorTable) return;
  Redirect(ActorSpeakerID, oldID, newID);
  Redirect(ActorSpeakingToID, oldID, newID);
}

void EventSpeech::StoreTableData() const {
  BufferTableItem(kActorTable, ActorSpeakerID);
  BufferTableItem(kActorTable, ActorSpeakingToID);
}

}  // namespace parlate

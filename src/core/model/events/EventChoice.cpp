#include "model/events/EventChoice.h"

#include <algorithm>
#include <memory>

#include "general/RuntimeError.h"
#include "model/Tables.h"
#include "model/Workspace.h"

namespace parlate {

void ChoiceItem::Copy(const ChoiceItem& source) {
  ID = source.ID;
  text = source.text;
  bDisplayAsSpeech = source.bDisplayAsSpeech;
  skillID = source.skillID;
  skillLevel = source.skillLevel;
  label = source.label;
  audioFile = source.audioFile;
  CopyFlagRefs(source.flagRefs, flagRefs);
}

std::string ChoiceItem::BuildChoiceString() const {
  std::string row = text + ";" + label + ";";
  if (skillID > -1) row += "Skill Required: " + GetTableItemName(kSkillTable, skillID);
  return row;
}

void EventChoice::Copy(const EventChoice& source) {
  for (const ChoiceItem& choice : source.Choices) {
    auto copy = std::make_shared<ChoiceItem>();
    copy->Copy(choice);
    Choices.Add(choice.ID, std::move(copy));
  }
  bClearScreen = source.bClearScreen;
  nextChoiceID = source.nextChoiceID;
}

std::int32_t EventChoice::nextID() {
  if (nextChoiceID == INT32_MAX) throw RuntimeError(RuntimeError::kOverflow);
  return nextChoiceID++;
}

void EventChoice::PopulateList(ListBox& list) const {
  list.Clear();
  for (const ChoiceItem& choice : Choices) {
    const int index = list.ListCount();
    list.AddItem(choice.BuildChoiceString());
    list.SetItemData(index, choice.ID);
  }
}

std::string EventChoice::BuildEventListString() const {
  if (Workspace::Current().defaults.ExpandListEnabled) return {};
  std::string line;
  for (const ChoiceItem& choice : Choices) {
    line += choice.text;
    if (!choice.label.empty()) line += "[" + choice.label + "]";
    line += ", ";
  }
  if (line.empty()) {
    throw RuntimeError(RuntimeError::kInvalidProcedureCall, "the choice event has no choices");
  }
  line.resize(line.size() - 2);
  return line;
}

std::string EventChoice::BuildEventListSubString() const {
  std::string text;
  const bool showAudio = Workspace::Current().defaults.bShowAudioFiles;
  for (const ChoiceItem& choice : Choices) {
    text += "- " + choice.text;
    if (!choice.label.empty()) text += "      [Goto: " + choice.label + "]";
    if (choice.skillID > -1) {
      text += "      [Requires Skill " + GetTableItemName(kSkillTable, choice.skillID) + "]";
    }
    if (!choice.audioFile.empty() && choice.bDisplayAsSpeech && showAudio) {
      text += "    [Audio File: " + choice.audioFile + "]";
    }
    if (!choice.flagRefs.Empty()) {
      text += "\r    [Flags: " + BuildFlagsString(choice.flagRefs) + "]";
    }
    text += "\r";
  }
  if (!text.empty()) text.pop_back();
  return text;
}

Boolean EventChoice::AreLabelsValid(const Conversation& con) const {
  bool valid = true;
  for (const ChoiceItem& choice : Choices) {
    if (!CheckLabel(con, con, choice.label)) valid = false;
  }
  return valid;
}

bool EventChoice::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return std::any_of(Choices.begin(), Choices.end(), [&](const ChoiceItem& choice) {
    return (tableType == kSkillTable && choice.skillID == id) ||
           (tableType == kFlagTable && IsFlagReferenced(choice.flagRefs, id));
  });
}

void EventChoice::GatherTableItems(std::int32_t tableType, IDSet& ids) const {
  for (const ChoiceItem& choice : Choices) {
    if (tableType == kSkillTable) ids.Add(choice.skillID);
    if (tableType == kFlagTable) GatherFlags(choice.flagRefs, ids);
  }
}

Boolean EventChoice::IsAudioMissing() const {
  return std::any_of(Choices.begin(), Choices.end(), [](const ChoiceItem& choice) {
    return choice.bDisplayAsSpeech && choice.audioFile.empty();
  });
}

void EventChoice::ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) {
  for (ChoiceItem& choice : Choices) {
    if (tableType == kSkillTable) Redirect(choice.skillID, oldID, newID);
    if (tableType == kFlagTable) ChangeFlagRefLink(choice.flagRefs, oldID, newID);
  }
}

void EventChoice::StoreTableData() const {
  for (const ChoiceItem& choice : Choices) {
    BufferTableItem(kSkillTable, choice.skillID);
    for (const FlagRef& flag : choice.flagRefs) BufferTableItem(kFlagTable, flag.flagID);
  }
}

}  // namespace parlate

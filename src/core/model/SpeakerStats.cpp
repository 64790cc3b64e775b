#include "model/SpeakerStats.h"

#include <algorithm>

#include "general/CodePage.h"
#include "general/Rounding.h"
#include "model/ErrorPlaces.h"
#include "model/Tables.h"
#include "model/Vocabulary.h"

namespace parlate {

void SpeakerStats::BuildSpeakerStats(const ConversationFile& file) {
  totalLines = 0;
  totalSpeakers = 0;
  // A name is looked up once for each actor, not once for each line.
  std::vector<std::size_t> rowOfPlace(GetTable(kActorTable)->Count() + 1, kNoRow);
  for (const Conversation& con : file.Conversations) {
    InPlace(con, [&] {
      for (const EventItem& event : con.events) {
        InPlace(event, [&] { AddEvent(event, rowOfPlace); });
      }
    });
  }
  SortRows();
}

void SpeakerStats::AddEvent(const EventItem& event, std::vector<std::size_t>& rowOfPlace) {
  if (const auto* speech = event.As<EventSpeech>()) {
    const std::int32_t speaker = speech->ActorSpeakerID;
    std::size_t& row = rowOfPlace[GetTable(kActorTable)->PlaceOf(speaker)];
    if (row == kNoRow) row = FindOrAddRow(GetTableItemName(kActorTable, speaker));
    AddSpeakerLine(row, 1);
  } else if (const auto* choice = event.As<EventChoice>(); choice && !choice->Choices.Empty()) {
    const std::size_t row = FindOrAddRow(std::string(kPlayerName));
    AddSpeakerLine(row, NarrowTo<std::int32_t>(choice->Choices.Count()));
  }
}

void SpeakerStats::AddSpeakerLine(std::size_t row, std::int32_t lines) {
  rows_[row].lines += lines;
  totalLines += lines;
}

std::size_t SpeakerStats::FindOrAddRow(const std::string& name) {
  const std::size_t found = FindSpeakerRow(name);
  if (found != kNoRow) return found;
  rowOfName_.emplace(name, rows_.size());
  rows_.push_back({name, 0});
  ++totalSpeakers;
  return rows_.size() - 1;
}

std::size_t SpeakerStats::FindSpeakerRow(const std::string& name) const {
  const auto found = rowOfName_.find(name);
  return found == rowOfName_.end() ? kNoRow : found->second;
}

void SpeakerStats::SortRows() {
  std::stable_sort(rows_.begin(), rows_.end(), [](const SpeakerRow& left, const SpeakerRow& right) {
    return LessNoCase(left.name, right.name);
  });
  for (std::size_t i = 0; i < rows_.size(); ++i) rowOfName_[rows_[i].name] = i;
}

}  // namespace parlate

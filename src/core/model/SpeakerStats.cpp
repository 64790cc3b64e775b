#include "model/SpeakerStats.h"

#include <algorithm>
#include <string_view>

#include "general/CodePage.h"
#include "general/Rounding.h"
#include "model/ErrorPlaces.h"
#include "model/Tables.h"
#include "model/Vocabulary.h"

namespace parlate {

namespace {

/// What stands in the first column of a row whose text begins with that name.
std::string_view FirstColumn(std::string_view name) { return name.substr(0, name.find(';')); }

/// A row of that name can be found again by it.
bool FitsTheFirstColumn(std::string_view name) { return FirstColumn(name).size() == name.size(); }

}  // namespace

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
    std::size_t& known = rowOfPlace[GetTable(kActorTable)->PlaceOf(speaker)];
    std::size_t row = known;
    if (row == kNoRow) {
      const std::string& name = GetTableItemName(kActorTable, speaker);
      row = FindOrAddRow(name);
      if (FitsTheFirstColumn(name)) known = row;
    }
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
  if (found != kNoRow) {
    // The text of the row is set anew, and a longer name that began with this one is gone.
    rows_[found].name = name;
    return found;
  }
  rowOfColumn_.emplace(FirstColumn(name), rows_.size());
  rows_.push_back({name, 0});
  ++totalSpeakers;
  return rows_.size() - 1;
}

std::size_t SpeakerStats::FindSpeakerRow(const std::string& name) const {
  // Meant: a ";" ends the column and is not escaped, so a name that holds one is never found.
  const auto found = rowOfColumn_.find(name);
  return found == rowOfColumn_.end() ? kNoRow : found->second;
}

void SpeakerStats::SortRows() {
  std::stable_sort(rows_.begin(), rows_.end(), [](const SpeakerRow& left, const SpeakerRow& right) {
    return LessNoCase(FirstColumn(left.name), FirstColumn(right.name));
  });
  rowOfColumn_.clear();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    rowOfColumn_.emplace(FirstColumn(rows_[i].name), i);
  }
}

}  // namespace parlate

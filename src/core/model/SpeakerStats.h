#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/ConversationFile.h"

namespace parlate {

/// A speaker and how many lines were counted for it.
struct SpeakerRow {
  std::string name;
  std::int32_t lines = 0;
};

/// Who speaks how much in a file: a line for each speech, and one of the player's for each choice,
/// spoken or not.
class SpeakerStats {
 public:
  std::int32_t totalSpeakers = 0;  ///< Rows that the last count made.
  std::int32_t totalLines = 0;     ///< Lines that the last count met.

  /// Counts every conversation of the file and sorts the rows. Rows of an earlier count stay and
  /// grow, while the two totals start from 0. RuntimeError 5 for a speaker without an actor row.
  /// A row is found again by its first column, which ends at the first ";" of the name. So each
  /// line of a name that holds one makes a row of its own.
  void BuildSpeakerStats(const ConversationFile& file);

  /// By speaker as the tree sorts names: without regard to case, equal ones as they came.
  [[nodiscard]] const std::vector<SpeakerRow>& Rows() const { return rows_; }

 private:
  static constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);

  /// Counts the lines of one event. `rowOfPlace` has the row of each actor that spoke already, by
  /// the actor's place in the table.
  void AddEvent(const EventItem& event, std::vector<std::size_t>& rowOfPlace);
  void AddSpeakerLine(std::size_t row, std::int32_t lines);
  std::size_t FindOrAddRow(const std::string& name);
  /// The first row whose first column is exactly that name.
  [[nodiscard]] std::size_t FindSpeakerRow(const std::string& name) const;
  void SortRows();

  std::vector<SpeakerRow> rows_;
  std::unordered_map<std::string, std::size_t> rowOfColumn_;  ///< The first of each first column.
};

}  // namespace parlate

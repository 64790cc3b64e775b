#pragma once

#include <cstdint>
#include <string>

#include "general/KeyedCollection.h"

namespace parlate {

class BinaryReader;
class BinaryWriter;

/// Table-type codes.
enum TableType : std::int32_t {
  kActorTable = 0,
  kSkillTable = 1,
  kFlagTable = 2,
  kObjectTable = 3,
  kMissionTable = 4,
};

/// A row of a table.
class TableItem {
 public:
  std::int32_t ID = 0;
  std::string Name;

  void Save(BinaryWriter& file) const;
  void Load(BinaryReader& file);
  /// Bytes that `Save` will write; RuntimeError 6 above 32767.
  [[nodiscard]] std::int16_t GetSize() const;
};

/// Rows keyed by ID, in the order of insertion; never sorted.
using Table = KeyedCollection<TableItem>;

}  // namespace parlate

// The table block: rows, tables, and the flag and actor references that name a row.

#include <algorithm>
#include <array>
#include <memory>

#include "general/BinaryFile.h"
#include "general/Rounding.h"
#include "model/FlagRef.h"
#include "model/TableItem.h"
#include "model/Tables.h"
#include "model/Workspace.h"
#include "model/records/RecordReader.h"

namespace parlate {

namespace {

/// The order of the tables in the file, which is not that of their codes.
constexpr std::array<TableType, 4> kStoredTables = {kActorTable, kFlagTable, kSkillTable,
                                                    kObjectTable};

constexpr std::size_t kLeastRowSize = 8;
constexpr std::size_t kLeastFlagRefSize = 12;

}  // namespace

// Row: i32 ID, str Name.

void TableItem::Save(BinaryWriter& file) const {
  file.WriteInt32(ID);
  file.WriteFileString(Name);
}

void TableItem::Load(BinaryReader& file) {
  ID = file.ReadInt32();
  file.ReadFileString(Name);
}

std::int16_t TableItem::GetSize() const {
  constexpr std::size_t kIdAndLength = 8;
  return NarrowTo<std::int16_t>(Name.size() + kIdAndLength);
}

// Table: i32 row count, rows.

std::int32_t GetTableSize(const Table& table) {
  std::int64_t size = 4;
  for (const TableItem& row : table) size += row.GetSize();
  return NarrowTo<std::int32_t>(size);
}

void SaveTable(const Table& table, BinaryWriter& file) {
  file.WriteInt32(NarrowTo<std::int32_t>(table.Count()));
  for (const TableItem& row : table) row.Save(file);
}

std::int32_t LoadTable(Table& table, BinaryReader& file) {
  const std::size_t count = file.ReadCount("rows");
  table.Reserve(table.Count() + file.Plausible(count, kLeastRowSize));
  std::int32_t highest = -1;
  for (std::size_t i = 0; i < count; ++i) {
    InRecord(
        file, [i] { return "row " + std::to_string(i + 1); },
        [&] {
          auto row = std::make_shared<TableItem>();
          row->Load(file);
          highest = std::max(highest, row->ID);
          const std::int32_t id = row->ID;
          table.Add(id, std::move(row));
        });
  }
  if (highest == INT32_MAX) throw RuntimeError(RuntimeError::kOverflow);
  return highest + 1;
}

// Table block: i32 block size (from version 12), then the four tables.

void SaveTables(BinaryWriter& file) {
  std::int64_t size = 0;
  const auto addSizes = [&size] {
    for (const TableType type : kStoredTables) size += GetTableSize(*GetTable(type));
  };
  // No reader looks at the size, so a rescue does without it where it cannot be told.
  if (Workspace::Current().writeMissingNames) {
    ResumeNext(addSizes);
  } else {
    addSizes();
  }
  file.WriteInt32(NarrowTo<std::int32_t>(size));
  for (const TableType type : kStoredTables) SaveTable(*GetTable(type), file);
}

bool LoadTables(RecordReader& in) {
  constexpr std::int32_t kFirstWithBlockSize = 12;
  if (in.version >= kFirstWithBlockSize) in.file.ReadInt32();
  TableSet& set = Workspace::Current().tables;
  for (const TableType type : kStoredTables) {
    InRecord(
        in.file, [type] { return "table " + GetTableName(type); },
        [&] {
          set.nextTableID[static_cast<std::size_t>(type)] = LoadTable(*GetTable(type), in.file);
        });
  }
  BuildMissionTable();
  return true;
}

// Flag reference: i32 flagID, str name, bool bValue, i32 expiration (from version 19).

void FlagRef::Save(BinaryWriter& file) const {
  file.WriteInt32(flagID);
  file.WriteFileString(StoredRowName(kFlagTable, flagID));
  file.WriteFileBool(bValue);
  file.WriteInt32(expiration);
}

void FlagRef::Load(RecordReader& in) {
  constexpr std::int32_t kFirstWithExpiration = 19;
  flagID = in.file.ReadInt32();
  in.file.ReadText();
  bValue = in.file.ReadFileBool();
  expiration = in.version >= kFirstWithExpiration ? in.file.ReadInt32() : 0;
}

// Flag list: i32 count, flag references.

void SaveFlagRefs(BinaryWriter& file, const FlagList& flagRefs) {
  file.WriteInt32(NarrowTo<std::int32_t>(flagRefs.Count()));
  for (const FlagRef& flag : flagRefs) flag.Save(file);
}

void LoadFlagRefs(RecordReader& in, FlagList& flagRefs) {
  const std::size_t count = in.file.ReadCount("flags");
  flagRefs.Reserve(flagRefs.Count() + in.file.Plausible(count, kLeastFlagRefSize));
  for (std::size_t i = 0; i < count; ++i) {
    InRecord(
        in.file, [i] { return "flag " + std::to_string(i + 1); },
        [&] {
          auto flag = std::make_shared<FlagRef>();
          flag->Load(in);
          const std::int32_t id = flag->flagID;
          flagRefs.Add(id, std::move(flag));
        });
  }
}

}  // namespace parlate

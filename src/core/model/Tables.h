#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "general/IDSet.h"
#include "model/TableItem.h"

namespace parlate {

struct RecordReader;

/// A table row's name carried across the clipboard.
struct BufferItem {
  std::int32_t tableType = 0;
  std::int32_t ID = 0;                      ///< The row's ID in the file that was open at the copy.
  std::int32_t RestoredID = 0;              ///< Its ID in the file open at the paste.
  std::shared_ptr<const std::string> Name;  ///< One text for all items of a row.
};

/// What the module `Tables` holds: the five tables of the open file and what goes with them.
struct TableSet {
  std::array<Table, 5> tables;
  std::array<std::int32_t, 6> nextTableID{};
  std::vector<BufferItem> tableBuffer;
  /// The names in `tableBuffer` by type and ID: a conversation can refer to one long name from
  /// many places.
  std::map<std::pair<std::int32_t, std::int32_t>, std::shared_ptr<const std::string>> bufferedNames;
};

/// The table of a type code; nothing outside of 0 to 4.
[[nodiscard]] Table* GetTable(std::int32_t tableType);
/// The table's name as shown; empty outside of 0 to 4.
[[nodiscard]] std::string GetTableName(std::int32_t tableType);
/// The `Name` of a row; RuntimeError 5 if the table has no such row.
[[nodiscard]] const std::string& GetTableItemName(std::int32_t tableType, std::int32_t id);

/// Drops the rows of all tables and sets the next IDs 0 to 4 to zero.
void ClearTables();
/// Makes the fixed table of the 18 missions anew.
void BuildMissionTable();
/// Appends a row with the given ID: no look for duplicates, no change to `nextTableID`.
void AddFixedTableItem(std::int32_t tableType, const std::string& name, std::int32_t id);
/// The row of that exact name, or a new one with the next ID.
TableItem& AddTableItem(std::int32_t tableType, const std::string& name);
/// A new row with the next ID, for a caller who knows that no row has the name.
TableItem& AppendTableItem(std::int32_t tableType, const std::string& name);
/// The first row of that exact name, or nothing.
[[nodiscard]] TableItem* FindTableItemByName(std::int32_t tableType, std::string_view name);
void RemoveTableItemByName(std::int32_t tableType, std::string_view name);
/// Removes the row of that ID or, if there is none, the first of that name.
void RemoveTableItem(std::int32_t tableType, std::int32_t id, std::string_view name);
/// Removes all rows of these IDs.
void RemoveTableItems(std::int32_t tableType, const IDSet& ids);
/// An ID that is valid in the table: the given one, else that of the row of that name, else that
/// of a new row.
[[nodiscard]] std::int32_t ResolveTableItem(std::int32_t tableType, std::int32_t id,
                                            const std::string& name);

/// The four stored tables with their block size in front. The order is that of the file, which is
/// not that of the codes.
void SaveTables(BinaryWriter& file);
/// True, always; ends with `BuildMissionTable`.
bool LoadTables(RecordReader& in);
void SaveTable(const Table& table, BinaryWriter& file);
/// Reads rows into `table` and returns the highest ID met plus one.
std::int32_t LoadTable(Table& table, BinaryReader& file);
/// 4 for the count and the size of each row.
[[nodiscard]] std::int32_t GetTableSize(const Table& table);

/// Keeps a row's name for the clipboard; an ID of -1 or below is nothing to keep. RuntimeError 5
/// for a row that is not there.
void BufferTableItem(std::int32_t tableType, std::int32_t id);
void ClearTableBuffer();
/// Finds each kept row by its exact name in the present tables, or adds it, and notes its ID.
void RestoreBufferedTableItems();

}  // namespace parlate

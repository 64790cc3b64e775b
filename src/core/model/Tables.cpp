#include "model/Tables.h"

#include <memory>
#include <unordered_map>

#include "model/Workspace.h"

namespace parlate {

namespace {

TableSet& Current() { return Workspace::Current().tables; }

Table& RequireTable(std::int32_t tableType) {
  Table* table = GetTable(tableType);
  if (table == nullptr) throw RuntimeError(RuntimeError::kObjectVariableNotSet);
  return *table;
}

}  // namespace

Table* GetTable(std::int32_t tableType) {
  auto& tables = Current().tables;
  if (tableType < 0 || tableType >= static_cast<std::int32_t>(tables.size())) return nullptr;
  return &tables[static_cast<std::size_t>(tableType)];
}

std::string GetTableName(std::int32_t tableType) {
  switch (tableType) {
    case kActorTable:
      return "Actors/Pawn";
    case kSkillTable:
      return "Skill";
    case kFlagTable:
      return "Flag";
    case kObjectTable:
      return "Object";
    case kMissionTable:
      return "Mission";
    default:
      return {};
  }
}

const std::string& GetTableItemName(std::int32_t tableType, std::int32_t id) {
  const TableItem* row = RequireTable(tableType).Find(id);
  if (row == nullptr) {
    throw RuntimeError(
        RuntimeError::kInvalidProcedureCall,
        "the table " + GetTableName(tableType) + " has no row " + std::to_string(id));
  }
  return row->Name;
}

void ClearTables() {
  TableSet& set = Current();
  for (std::size_t i = 0; i < set.tables.size(); ++i) {
    set.tables[i].Clear();
    set.nextTableID[i] = 0;
  }
}

void BuildMissionTable() {
  RequireTable(kMissionTable).Clear();
  constexpr std::int32_t kLastNumbered = 16;
  constexpr std::int32_t kGap = 13;  // meant: there is no mission 13
  for (std::int32_t id = 0; id <= kLastNumbered; ++id) {
    if (id == kGap) continue;
    const std::string number = std::to_string(id);
    AddFixedTableItem(kMissionTable, (id < 10 ? "Mission 0" : "Mission ") + number, id);
  }
  AddFixedTableItem(kMissionTable, "Intro", 98);
  AddFixedTableItem(kMissionTable, "EndGame", 99);
}

void AddFixedTableItem(std::int32_t tableType, const std::string& name, std::int32_t id) {
  auto row = std::make_shared<TableItem>();
  row->ID = id;
  row->Name = name;
  RequireTable(tableType).Add(id, std::move(row));
}

TableItem& AddTableItem(std::int32_t tableType, const std::string& name) {
  if (TableItem* row = FindTableItemByName(tableType, name)) return *row;
  return AppendTableItem(tableType, name);
}

TableItem& AppendTableItem(std::int32_t tableType, const std::string& name) {
  auto& nextIDs = Current().nextTableID;
  const auto index = static_cast<std::size_t>(tableType);
  if (index >= nextIDs.size()) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  std::int32_t& next = nextIDs[index];
  if (next == INT32_MAX) throw RuntimeError(RuntimeError::kOverflow);
  const std::int32_t id = next++;
  AddFixedTableItem(tableType, name, id);
  return RequireTable(tableType).At(id);
}

TableItem* FindTableItemByName(std::int32_t tableType, std::string_view name) {
  for (TableItem& row : RequireTable(tableType)) {
    if (row.Name == name) return &row;
  }
  return nullptr;
}

void RemoveTableItemByName(std::int32_t tableType, std::string_view name) {
  Table& table = RequireTable(tableType);
  for (std::size_t place = 1; place <= table.Count(); ++place) {
    if (table.Place(place)->Name != name) continue;
    table.Remove(table.KeyAt(place));
    return;
  }
}

void RemoveTableItem(std::int32_t tableType, std::int32_t id, std::string_view name) {
  Table& table = RequireTable(tableType);
  if (table.Find(id) != nullptr) {
    table.Remove(id);
  } else {
    RemoveTableItemByName(tableType, name);
  }
}

void RemoveTableItems(std::int32_t tableType, const IDSet& ids) {
  RequireTable(tableType).RemoveIf([&ids](std::int32_t id) { return ids.Contains(id); });
}

std::int32_t ResolveTableItem(std::int32_t tableType, std::int32_t id, const std::string& name) {
  if (RequireTable(tableType).Find(id) != nullptr) return id;
  return AddTableItem(tableType, name).ID;
}

void BufferTableItem(std::int32_t tableType, std::int32_t id) {
  if (id <= -1) return;
  BufferItem item;
  item.tableType = tableType;
  item.ID = id;
  std::shared_ptr<const std::string>& name = Current().bufferedNames[{tableType, id}];
  if (!name) name = std::make_shared<const std::string>(GetTableItemName(tableType, id));
  item.Name = name;
  Current().tableBuffer.push_back(std::move(item));
}

void ClearTableBuffer() {
  Current().tableBuffer.clear();
  Current().bufferedNames.clear();
}

void RestoreBufferedTableItems() {
  // A row is looked for once, however often it is referred to.
  std::unordered_map<const std::string*, std::int32_t> restored;
  for (BufferItem& item : Current().tableBuffer) {
    const auto [known, isNew] = restored.try_emplace(item.Name.get());
    if (isNew) known->second = AddTableItem(item.tableType, *item.Name).ID;
    item.RestoredID = known->second;
  }
}

}  // namespace parlate

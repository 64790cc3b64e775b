#include "model/records/RecordReader.h"

#include <string_view>

#include "model/Tables.h"
#include "model/Workspace.h"

namespace parlate {

namespace {

/// The ID of the first row of that name, or of a new row. A file can name as many missing actors as
/// it has room for, so the table is gone through once and not for each.
std::int32_t HealActor(RecordReader& in, std::string_view name) {
  if (in.healedActors.empty()) {
    for (const TableItem& row : *GetTable(kActorTable)) {
      in.healedActors.try_emplace(row.Name, row.ID);
    }
  }
  const auto [healed, isNew] = in.healedActors.try_emplace(std::string(name), 0);
  if (isNew) healed->second = AppendTableItem(kActorTable, healed->first).ID;
  return healed->second;
}

}  // namespace

std::int32_t ReadActorRef(RecordReader& in) {
  const std::int32_t id = in.file.ReadInt32();
  if (id <= -1) return id;
  const std::string_view name = in.file.ReadText();
  if (GetTable(kActorTable)->Find(id) != nullptr) return id;
  return HealActor(in, name);
}

std::string_view StoredRowName(std::int32_t tableType, std::int32_t id) {
  const TableItem* row = GetTable(tableType)->Find(id);
  if (row == nullptr && Workspace::Current().writeMissingNames) return {};
  return row != nullptr ? std::string_view(row->Name) : GetTableItemName(tableType, id);
}

void WriteActorRef(BinaryWriter& file, std::int32_t id) {
  file.WriteInt32(id);
  if (id > -1) file.WriteFileString(StoredRowName(kActorTable, id));
}

}  // namespace parlate

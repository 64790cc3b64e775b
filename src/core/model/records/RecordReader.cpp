#include "model/records/RecordReader.h"

#include <string_view>

#include "model/Tables.h"
#include "model/Workspace.h"

namespace parlate {

std::int32_t ReadActorRef(RecordReader& in) {
  const std::int32_t id = in.file.ReadInt32();
  if (id <= -1) return id;
  const std::string_view name = in.file.ReadText();
  if (GetTable(kActorTable)->Find(id) != nullptr) return id;
  const auto [healed, isNew] = in.healedActors.try_emplace(std::string(name), 0);
  if (isNew) healed->second = ResolveTableItem(kActorTable, id, healed->first);
  return healed->second;
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

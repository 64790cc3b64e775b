#include "model/records/RecordReader.h"

#include <string_view>

#include "model/Tables.h"

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

void WriteActorRef(BinaryWriter& file, std::int32_t id) {
  file.WriteInt32(id);
  if (id > -1) file.WriteFileString(GetTableItemName(kActorTable, id));
}

}  // namespace parlate

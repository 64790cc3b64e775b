#include "support/TestWorkspace.h"

#include <algorithm>

#include "general/CodePage.h"

namespace parlate::testing_support {

std::vector<std::string> RecordingBadLabels::Labels() const {
  std::vector<std::string> labels;
  for (const Report& report : reports) labels.push_back(report.label);
  return labels;
}

std::shared_ptr<Conversation> ListedConversations::GetConFromID(std::int32_t conID) const {
  for (const auto& con : all) {
    if (con->key == conID) return con;
  }
  return nullptr;
}

std::int32_t ListedConversations::GetConIDFromName(std::int32_t conOwner,
                                                   const std::string& conName) const {
  for (const auto& con : all) {
    if (con->NPCID == conOwner && EqualNoCase(con->conName, conName)) return con->key;
  }
  return -1;
}

Conversation& ListedConversations::Add(std::int32_t key, std::int32_t owner,
                                       const std::string& name) {
  auto con = std::make_shared<Conversation>();
  con->key = key;
  con->NPCID = owner;
  con->conName = name;
  return *all.emplace_back(std::move(con));
}

TestWorkspace::TestWorkspace() : scope_(workspace) {
  workspace.now = [this] { return moment; };
  workspace.defaults.Username = kSavedBy;
  workspace.messages = &messages;
  workspace.badLabels = &badLabels;
  workspace.conversations = &conversations;
}

void TestWorkspace::AddRows(std::int32_t tableType, const Rows& rows) {
  std::int32_t& next =
      Workspace::Current().tables.nextTableID.at(static_cast<std::size_t>(tableType));
  for (const auto& [id, name] : rows) {
    AddFixedTableItem(tableType, name, id);
    next = std::max(next, id + 1);
  }
}

void TestWorkspace::AddSampleTables() const {
  const TableFields tables = SampleTables();
  AddRows(kActorTable, tables.actors);
  AddRows(kFlagTable, tables.flags);
  AddRows(kSkillTable, tables.skills);
  AddRows(kObjectTable, tables.objects);
}

Boolean OpenFile::Load(const std::string& bytes) {
  MemorySource source(bytes);
  BinaryReader reader(source);
  return file.LoadConversations(reader, Host());
}

std::string OpenFile::Save() {
  MemorySink sink;
  BinaryWriter writer(sink);
  file.SaveConversations(writer, Host());
  return sink.Bytes();
}

}  // namespace parlate::testing_support

#include <memory>
#include <ostream>
#include <string>

#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/Session.h"
#include "general/CodePage.h"
#include "model/Tables.h"

namespace parlate::cli {

namespace {

constexpr TableType kDumpedTables[] = {kActorTable, kSkillTable, kFlagTable, kObjectTable};

Json TablesToJson() {
  Json tables = Json::object();
  for (const TableType type : kDumpedTables) {
    Json rows = Json::array();
    for (const TableItem& row : *GetTable(type)) {
      rows.push_back({{"ID", row.ID}, {"Name", ToUtf8(row.Name)}});
    }
    tables[GetTableName(type)] = std::move(rows);
  }
  return tables;
}

Json NextIdsToJson(const TableSet& set) {
  Json next = Json::object();
  for (const TableType type : kDumpedTables) {
    next[GetTableName(type)] = set.nextTableID[static_cast<std::size_t>(type)];
  }
  return next;
}

Json MissionsToJson(const ConversationFile& file) {
  Json missions = Json::array();
  for (std::int32_t i = 0; i < file.GetMissionCount(); ++i) {
    missions.push_back(file.GetMission(static_cast<std::int16_t>(i)));
  }
  return missions;
}

Json HeaderToJson(const Session& session) {
  const ConversationFile& file = session.file;
  return {{"versionNum", file.versionNum},
          {"CreationDate", file.CreationDate},
          {"CreatedBy", ToUtf8(file.CreatedBy)},
          {"LastUpdated", file.LastUpdated},
          {"LastUpdatedBy", ToUtf8(file.LastUpdatedBy)},
          {"AudioPackage", ToUtf8(file.AudioPackage)},
          {"notes", ToUtf8(file.notes)},
          {"missions", MissionsToJson(file)},
          {"currentKey", file.CurrentKey()},
          {"tables", TablesToJson()},
          {"nextTableID", NextIdsToJson(session.workspace.tables)}};
}

void WriteFile(std::ostream& out, const Session& session) {
  std::string header = HeaderToJson(session).dump();
  header.pop_back();  // the conversations stand behind the rest of the same object
  out << header << ",\"Conversations\":";
  JsonList conversations(out);
  for (const Conversation& con : session.file.Conversations) {
    conversations.Add(ConversationToJson(con));
  }
  conversations.Close();
  out << "}\n";
}

}  // namespace

void AddDumpCommand(CLI::App& app, const Streams& streams, int& result) {
  auto* command = app.add_subcommand("dump", "Write the whole content of a file as JSON");
  command->footer("Infinity and NaN are written as null: JSON has no word for them.");
  auto path = std::make_shared<std::string>();
  command->add_option("FILE", *path, "Conversation file")->required();
  command->callback([path, streams, &result] {
    Session session;
    session.Load(*path);
    WriteFile(streams.out, session);
    result = kSuccess;
  });
}

}  // namespace parlate::cli

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

Json FileToJson(const Session& session) {
  const ConversationFile& file = session.file;
  Json conversations = Json::array();
  for (const Conversation& con : file.Conversations) {
    conversations.push_back(ConversationToJson(con));
  }
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
          {"nextTableID", NextIdsToJson(session.workspace.tables)},
          {"Conversations", std::move(conversations)}};
}

}  // namespace

void AddDumpCommand(CLI::App& app, const Streams& streams, int& result) {
  auto* command = app.add_subcommand("dump", "Write the whole content of a file as JSON");
  auto path = std::make_shared<std::string>();
  command->add_option("FILE", *path, "Conversation file")->required();
  command->callback([path, streams, &result] {
    Session session;
    session.Load(*path);
    WriteJson(streams.out, FileToJson(session));
    result = kSuccess;
  });
}

}  // namespace parlate::cli

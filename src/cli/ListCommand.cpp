#include <cstdio>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/Session.h"
#include "cli/TextTable.h"
#include "general/CodePage.h"
#include "model/ErrorPlaces.h"
#include "model/Tables.h"
#include "shell/EventRows.h"

namespace parlate::cli {

namespace {

struct ListOptions {
  std::string path;
  bool json = false;
  bool noExpand = false;
  bool noAudioFiles = false;
  bool noHighlight = false;
};

std::string ColorText(std::int32_t color) {
  char buffer[16];
  std::snprintf(buffer, sizeof(buffer), "%06X", static_cast<unsigned>(color));
  return buffer;
}

/// Why a row is coloured, for a reader without colours.
std::string ColorMeaning(std::int32_t color) {
  switch (color) {
    case kBrokenLabelRow:
      return "broken label";
    case kMissingAudioRow:
      return "no audio";
    case kLabelRow:
      return "label";
    case kCommentRow:
      return "comment";
    default:
      return {};
  }
}

/// Calls back with the row of each event, which is gone afterwards: rows repeat the names of
/// actors and flags, and all of them at once can be many times the file.
void ForEachRow(Session& session, const Conversation& con,
                const std::function<void(const ListRow&)>& visit) {
  InPlace(con, [&] {
    for (const EventItem& event : con.events) {
      InPlace(event, [&] { visit(BuildEventRow(con, event)); });
      session.badLabels.ClearBadLabels();
    }
  });
}

Json ToJson(const ListRow& row) {
  Json color;
  if (row.color != kDefaultRow) color = ColorText(row.color);
  return {{"key", row.itemData},
          {"row", ToUtf8(row.text)},
          {"subText", ToUtf8(row.subText)},
          {"color", color}};
}

void WriteJsonRows(std::ostream& out, Session& session) {
  JsonList conversations(out);
  session.ForEachConversation([&](const Conversation& con) {
    conversations.Next() << R"({"key":)" << con.key << R"(,"conName":)" << Json(ToUtf8(con.conName))
                         << R"(,"events":)";
    JsonList events(out);
    ForEachRow(session, con, [&](const ListRow& row) { events.Add(ToJson(row)); });
    events.Close();
    out << '}';
  });
  conversations.Close();
  out << '\n';
}

/// The first three fields at the semicolons; the last field keeps its own.
std::vector<std::string> Fields(const std::string& row) {
  std::vector<std::string> fields;
  std::size_t from = 0;
  for (int i = 0; i < 3; ++i) {
    const std::size_t at = row.find(';', from);
    fields.push_back(ToUtf8(row.substr(from, at - from)));
    from = at + 1;
  }
  fields.push_back(ToUtf8(row.substr(from)));
  return fields;
}

std::vector<std::string> Cells(const ListRow& row) {
  std::vector<std::string> cells = Fields(row.text);
  const std::string subText = ToUtf8(row.subText);
  if (cells[3].empty()) {
    cells[3] = subText;
  } else if (!subText.empty()) {
    cells[3] += "  " + subText;
  }
  cells.insert(cells.begin(), std::to_string(row.itemData));
  cells.push_back(ColorMeaning(row.color));
  return cells;
}

void WriteTables(std::ostream& out, Session& session) {
  session.ForEachConversation([&](const Conversation& con) {
    out << ToUtf8(GetTableItemName(kActorTable, con.NPCID)) << " - " << ToUtf8(con.conName)
        << " (key " << con.key << ")\n";
    TextTable table({"Key", "Label", "Action", "NPC", "Description", "Remark"});
    ForEachRow(session, con, [&](const ListRow& row) { table.Measure(Cells(row)); });
    table.WriteHead(out);
    ForEachRow(session, con, [&](const ListRow& row) { table.WriteRow(out, Cells(row)); });
    out << '\n';
  });
}

void List(const ListOptions& options, std::ostream& out) {
  Session session;
  session.workspace.defaults.ExpandListEnabled = !options.noExpand;
  session.workspace.defaults.bShowAudioFiles = !options.noAudioFiles;
  session.workspace.defaults.bHighlightMissingAudio = !options.noHighlight;
  session.Load(options.path);
  // Every row is made once before the first is written: a failure leaves nothing on the output.
  session.ForEachConversation(
      [&session](const Conversation& con) { ForEachRow(session, con, [](const ListRow&) {}); });
  if (options.json) {
    WriteJsonRows(out, session);
  } else {
    WriteTables(out, session);
  }
}

}  // namespace

void AddListCommand(CLI::App& app, const Streams& streams, int& result) {
  auto* command = app.add_subcommand("list", "Show the event list of every conversation");
  auto options = std::make_shared<ListOptions>();
  command->add_option("FILE", options->path, "Conversation file")->required();
  command->add_flag("--json", options->json, "Write JSON instead of tables");
  command->add_flag("--no-expand", options->noExpand, "Give each event one line, no second text");
  command->add_flag("--no-audio-files", options->noAudioFiles, "Leave out the audio file names");
  command->add_flag("--no-highlight", options->noHighlight, "Do not mark events without audio");
  command->callback([options, streams, &result] {
    List(*options, streams.out);
    result = kSuccess;
  });
}

}  // namespace parlate::cli

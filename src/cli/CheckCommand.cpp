#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/Session.h"
#include "cli/TextTable.h"
#include "general/CodePage.h"

namespace parlate::cli {

namespace {

void WriteRows(std::ostream& out, const std::vector<BadLabelRow>& rows) {
  JsonList list(out);
  for (const BadLabelRow& row : rows) {
    list.Add({{"conversation", ToUtf8(*row.conversation)},
              {"label", ToUtf8(row.label)},
              {"eventKey", row.eventKey}});
  }
  list.Close();
  out << '\n';
}

std::vector<std::string> Cells(const BadLabelRow& row) {
  return {ToUtf8(*row.conversation), ToUtf8(row.label), std::to_string(row.eventKey)};
}

void WriteTable(std::ostream& out, const std::vector<BadLabelRow>& rows) {
  if (rows.empty()) {
    out << "All label references are valid.\n";
    return;
  }
  TextTable table({"Conversation", "Label", "Event key"});
  for (const BadLabelRow& row : rows) table.Measure(Cells(row));
  table.WriteHead(out);
  for (const BadLabelRow& row : rows) table.WriteRow(out, Cells(row));
}

}  // namespace

void AddCheckCommand(CLI::App& app, const Streams& streams, int& result) {
  struct CheckOptions {
    std::string path;
    bool json = false;
  };
  auto* command = app.add_subcommand("check", "Find references to labels that do not exist");
  auto options = std::make_shared<CheckOptions>();
  command->add_option("FILE", options->path, "Conversation file")->required();
  command->add_flag("--json", options->json, "Write JSON instead of a table");
  command->callback([options, streams, &result] {
    Session session;
    session.showsFlags = true;  // what the window cannot read to its end is not sound
    session.Load(options->path);
    const auto rows = session.CheckAllLabels();
    if (options->json) {
      WriteRows(streams.out, rows);
    } else {
      WriteTable(streams.out, rows);
    }
    result = rows.empty() ? kSuccess : kFindings;
  });
}

}  // namespace parlate::cli

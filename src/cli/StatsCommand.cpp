#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/Session.h"
#include "cli/TextTable.h"
#include "general/CodePage.h"
#include "model/SpeakerStats.h"

namespace parlate::cli {

namespace {

Json ToJson(const SpeakerStats& stats) {
  Json rows = Json::array();
  for (const SpeakerRow& row : stats.Rows()) {
    rows.push_back({{"speaker", ToUtf8(row.name)}, {"lines", row.lines}});
  }
  return {{"rows", std::move(rows)},
          {"totalSpeakers", stats.totalSpeakers},
          {"totalLines", stats.totalLines}};
}

void WriteTable(std::ostream& out, const SpeakerStats& stats) {
  TextTable table({"Speaker", "Lines"});
  const auto cells = [](const SpeakerRow& row) {
    return std::vector<std::string>{ToUtf8(row.name), std::to_string(row.lines)};
  };
  for (const SpeakerRow& row : stats.Rows()) table.Measure(cells(row));
  table.WriteHead(out);
  for (const SpeakerRow& row : stats.Rows()) table.WriteRow(out, cells(row));
  out << "\nSpeakers: " << stats.totalSpeakers << "\nLines: " << stats.totalLines << '\n';
}

}  // namespace

void AddStatsCommand(CLI::App& app, const Streams& streams, int& result) {
  struct StatsOptions {
    std::string path;
    bool json = false;
  };
  auto* command = app.add_subcommand("stats", "Count who speaks how much");
  command->footer("A choice counts as a line of the player's.");
  auto options = std::make_shared<StatsOptions>();
  command->add_option("FILE", options->path, "Conversation file")->required();
  command->add_flag("--json", options->json, "Write JSON instead of a table");
  command->callback([options, streams, &result] {
    Session session;
    session.Load(options->path);
    SpeakerStats stats;
    stats.BuildSpeakerStats(session.file);
    if (options->json) {
      WriteJson(streams.out, ToJson(stats));
    } else {
      WriteTable(streams.out, stats);
    }
    result = kSuccess;
  });
}

}  // namespace parlate::cli

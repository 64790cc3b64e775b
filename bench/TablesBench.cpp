// Times the two questions that the table editor asks of a large file: whether one row is
// referenced, against the check of all labels, and which of 5,000 rows are not, which are then
// removed from the table, against the question for one. With --check a missed target ends the
// program with 1.

#include <CLI/CLI.hpp>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/Comparison.h"
#include "bench/Generator.h"
#include "bench/HostedFile.h"
#include "bench/Measure.h"
#include "model/Tables.h"

namespace {

using namespace parlate::bench;

constexpr int kRows = 5000;
constexpr std::int32_t kAbsent = 0x7000000;  ///< No reference ends the walk early.
constexpr double kMostOfCheck = 2;
constexpr double kMostOfWalk = 5;

struct TableTimes {
  std::int32_t tableType;
  const char* name;
  std::vector<double> ask;
  std::vector<double> clean;
};

double AskForOne(const HostedFile& hosted, std::int32_t tableType) {
  bool referenced = false;
  const double time = Milliseconds([&] {
    referenced = hosted.file.IsTableItemReferenced(kAbsent, tableType);
    Keep(referenced);
  });
  if (referenced) throw std::runtime_error("a row that does not exist is referenced");
  return time;
}

/// Adds rows that nothing refers to and removes them again, as the table editor finds them.
double CleanUp(const HostedFile& hosted, std::int32_t tableType) {
  parlate::Table& table = *parlate::GetTable(tableType);
  for (int i = 0; i < kRows; ++i) {
    parlate::AppendTableItem(tableType, "Unused" + std::to_string(i));
  }
  std::size_t removed = 0;
  const double time = Milliseconds([&] {
    const parlate::IDSet used = hosted.file.ReferencedTableItems(tableType);
    parlate::IDSet unused;
    for (const parlate::TableItem& row : table) {
      if (!used.Contains(row.ID)) unused.Add(row.ID);
    }
    const std::size_t before = table.Count();
    parlate::RemoveTableItems(tableType, unused);
    removed = before - table.Count();
  });
  if (removed < kRows) throw std::runtime_error("an unused row was left behind");
  return time;
}

std::vector<Comparison> Compare(const std::vector<double>& checks,
                                const std::vector<TableTimes>& tables) {
  std::vector<Comparison> comparisons;
  for (const TableTimes& table : tables) {
    const double ask = Median(table.ask);
    comparisons.push_back({std::string("is one row referenced, ") + table.name, ask, "label check",
                           Median(checks), kMostOfCheck});
    comparisons.push_back({std::string("remove the unused, ") + table.name, Median(table.clean),
                           "one such question", ask, kMostOfWalk});
  }
  return comparisons;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"Times the questions that the table editor asks of a large file."};
  FileShape shape;
  int rounds = 5;
  bool check = false;
  app.add_option("--conversations", shape.conversations)->check(CLI::Range(1, 32767));
  app.add_option("--events", shape.events, "In each conversation")->check(CLI::Range(1, 32767));
  app.add_option("--rounds", rounds)->check(CLI::Range(1, 1000));
  app.add_flag("--check", check, "End with 1 if a target is missed");
  CLI11_PARSE(app, argc, argv);
  try {
    HostedFile hosted;
    hosted.LoadBytes(MakeFile(shape));
    std::vector<double> checks;
    std::vector<TableTimes> tables = {{parlate::kActorTable, "actors", {}, {}},
                                      {parlate::kSkillTable, "skills", {}, {}},
                                      {parlate::kFlagTable, "flags", {}, {}},
                                      {parlate::kObjectTable, "objects", {}, {}}};
    for (int round = 0; round < rounds; ++round) {
      checks.push_back(Milliseconds([&] { Keep(hosted.CheckAllLabels().size()); }));
      for (TableTimes& table : tables) {
        table.ask.push_back(AskForOne(hosted, table.tableType));
        table.clean.push_back(CleanUp(hosted, table.tableType));
      }
    }
    const bool met = Report(Compare(checks, tables));
    return check && !met ? 1 : 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}

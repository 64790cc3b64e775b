// Times "Delete Unused" in the table editor: the real button of the real window, in a large file
// with 5,000 rows that nothing uses, against one walk over the file that asks for one row. With
// --check a missed target ends the program with 1.

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <fstream>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/Comparison.h"
#include "bench/Generator.h"
#include "bench/Measure.h"
#include "bench/Nobody.h"
#include "mainwindow/frmConvList.h"
#include "model/TableCombos.h"
#include "model/Tables.h"

namespace {

using namespace parlate;
using namespace parlate::bench;

constexpr int kRows = 5000;
constexpr std::int32_t kAbsent = 0x7000000;  ///< No reference ends the walk early.
constexpr double kMostOfWalk = 5;

struct Options {
  FileShape shape;
  int rounds = 5;
  bool check = false;
};

/// Waits for a table's window to come up, and does something in it once.
void WhenTableShows(const std::function<void(QWidget&)>& act) {
  QWidget* window = QApplication::activeModalWidget();
  if (window == nullptr || !window->isVisible()) {
    QTimer::singleShot(1, [act] { WhenTableShows(act); });
    return;
  }
  act(*window);
}

/// The program with the file open.
class Program {
 public:
  Program(const FileShape& shape, const std::string& path) {
    std::ofstream(path, std::ios::binary) << MakeFile(shape);
    window_.InitMainWindow();
    window_.Start(path);
    if (window_.shell().GetConFile() == nullptr) throw std::runtime_error("the file is not open");
  }

  double TimeWalk(std::int32_t tableType) {
    return Milliseconds([&] { Keep(window_.shell().IsTableItemReferenced(kAbsent, tableType)); });
  }
  /// From the press of the button until the window is there again with the rows that are left.
  double TimeDeleteUnused(std::int32_t tableType) {
    for (int i = 0; i < kRows; ++i) AppendTableItem(tableType, "Unused" + std::to_string(i));
    const std::size_t before = GetTable(tableType)->Count();
    double time = 0;
    WhenTableShows([&time](QWidget& table) {
      auto* button = table.findChild<QPushButton*>(QStringLiteral("cmdDeleteUnused"));
      QCoreApplication::processEvents();
      time = Milliseconds([&] {
        button->click();
        QCoreApplication::processEvents();
      });
      table.close();
    });
    EditTableDialog(tableType);
    if (before - GetTable(tableType)->Count() < kRows) {
      throw std::runtime_error("an unused row was left behind: " + yes_.lastText);
    }
    return time;
  }

 private:
  Workspace workspace_;
  WorkspaceScope scope_{workspace_};
  Nobody yes_{Answer::Yes};
  frmConvList window_{yes_, yes_, yes_};
};

Comparison Compare(Program& program, const char* name, std::int32_t tableType, int rounds) {
  std::vector<double> deletions;
  std::vector<double> walks;
  for (int round = 0; round < rounds; ++round) {
    deletions.push_back(program.TimeDeleteUnused(tableType));
    walks.push_back(program.TimeWalk(tableType));
  }
  return {std::string("Delete Unused, ") + name, Median(deletions), "one such question",
          Median(walks), kMostOfWalk};
}

int Bench(const Options& options) {
  const QTemporaryDir folder;
  Program program(options.shape, folder.filePath(QStringLiteral("large.con")).toStdString());
  std::vector<Comparison> comparisons;
  for (const auto& [name, tableType] : {std::pair{"actors", kActorTable},
                                        {"skills", kSkillTable},
                                        {"flags", kFlagTable},
                                        {"objects", kObjectTable}}) {
    comparisons.push_back(Compare(program, name, tableType, options.rounds));
  }
  std::printf("%d unused rows, medians of %d rounds\n", kRows, options.rounds);
  const bool met = Report(comparisons);
  return options.check && !met ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"Times the deletion of unused rows in the table editor."};
  Options options;
  app.add_option("--conversations", options.shape.conversations)->check(CLI::Range(1, 32767));
  app.add_option("--events", options.shape.events, "In each conversation")
      ->check(CLI::Range(1, 32767));
  app.add_option("--rounds", options.rounds)->check(CLI::Range(1, 1000));
  app.add_flag("--check", options.check, "End with 1 if a target is missed");
  CLI11_PARSE(app, argc, argv);
  try {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return Bench(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}

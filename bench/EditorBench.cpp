// Times the event editor on an event of a large conversation against the same in a small one. With
// --check a missed target ends the program with 1.

#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bench/Generator.h"
#include "bench/Measure.h"
#include "bench/Nobody.h"
#include "mainwindow/frmConvList.h"
#include "model/Workspace.h"

namespace {

using namespace parlate;

constexpr int kSmall = 100;
constexpr int kLarge = 32767;
constexpr int kRounds = 25;

/// The program with one conversation of so many events, and the editor open in it. It measures
/// within its own workspace.
class Program {
 public:
  Program(int events, const std::string& path) {
    // With this seed the small conversation has an event of every type that is opened, too.
    std::ofstream(path, std::ios::binary)
        << bench::MakeFile({.conversations = 1, .events = events, .seed = 3});
    const WorkspaceScope scope(workspace_);
    window_ = std::make_unique<frmConvList>(nobody_, nobody_, nobody_);
    window_->InitMainWindow();
    window_->Start(path);
    const auto& conversations = window_->shell().GetConFile()->Conversations;
    window_->shell().SelectConversationByKey(std::to_string(conversations.KeyAt(1)));
    Open(0);
  }
  ~Program() {
    const WorkspaceScope scope(workspace_);
    window_.reset();
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// The first row of that type, and of one that is followed by another of it if so asked.
  [[nodiscard]] std::optional<int> RowOf(std::int32_t type, bool twice) const {
    const auto& events = window_->shell().SelectedCon()->events;
    for (std::size_t place = 1; place < events.Count(); ++place) {
      const bool next = !twice || events.Place(place + 1)->eventType == type;
      if (events.Place(place)->eventType == type && next) return static_cast<int>(place) - 1;
    }
    return std::nullopt;
  }
  double TimeOpen(int row) {
    const WorkspaceScope scope(workspace_);
    return bench::Milliseconds([&] { Open(row); });
  }
  double TimeNext(int row) {
    const WorkspaceScope scope(workspace_);
    Open(row);
    return bench::Milliseconds([&] {
      window_->shell().EditNextEvent(nullptr);
      QCoreApplication::processEvents();
    });
  }

 private:
  void Open(int row) {
    window_->shell().lstEvents().SetListIndex(row);
    window_->shell().EditSelectedEvent();
    QCoreApplication::processEvents();
  }

  Workspace workspace_;
  bench::Nobody nobody_{Answer::No};
  std::unique_ptr<frmConvList> window_;
};

struct Step {
  const char* name;
  double target;  ///< Highest ratio of the large conversation's time to the small one's.
  std::int32_t type;
  bool next;
};

constexpr Step kSteps[] = {{"open a speech", 2, kSpeech, false},
                           {"next speech", 2, kSpeech, true},
                           {"open a check of flags, with its labels", 10, kCheckFlags, false},
                           {"open a jump, with its labels", 10, kJump, false},
                           {"open a random jump, with its labels", 10, kRandomLabel, false}};

/// Nothing if a conversation has no such event.
std::optional<bool> Measure(const Step& step, Program& small, Program& large) {
  const std::optional<int> smallRow = small.RowOf(step.type, step.next);
  const std::optional<int> largeRow = large.RowOf(step.type, step.next);
  if (!smallRow || !largeRow) return std::nullopt;
  std::vector<double> smallTimes;
  std::vector<double> largeTimes;
  for (int round = 0; round < kRounds; ++round) {
    smallTimes.push_back(step.next ? small.TimeNext(*smallRow) : small.TimeOpen(*smallRow));
    largeTimes.push_back(step.next ? large.TimeNext(*largeRow) : large.TimeOpen(*largeRow));
  }
  const double ratio = bench::Median(largeTimes) / bench::Median(smallTimes);
  const bool met = ratio <= step.target;
  std::printf("%-40s %10.2f %10.2f %8.2f %8.0f%s\n", step.name, bench::Median(largeTimes),
              bench::Median(smallTimes), ratio, step.target, met ? "" : "  MISSED");
  return met;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  const bool checks = QApplication::arguments().contains(QStringLiteral("--check"));
  const QTemporaryDir folder;
  Program small(kSmall, folder.filePath("small.con").toStdString());
  Program large(kLarge, folder.filePath("large.con").toStdString());

  std::printf("%-40s %10s %10s %8s %8s\n", "step", "32,767 ms", "100 ms", "ratio", "at most");
  bool met = true;
  for (const Step& step : kSteps) {
    const std::optional<bool> result = Measure(step, small, large);
    if (!result) {
      std::fprintf(stderr, "no event for: %s\n", step.name);
      return 2;
    }
    met = met && *result;
  }
  return checks && !met ? 1 : 0;
}

// The end of a run by an error that nothing handles. It ends the process, so each test starts
// itself once more, in a process of its own, which runs the program.

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <utility>

#include "general/RuntimeError.h"
#include "mainwindow/Application.h"
#include "mainwindow/WindowFixture.h"
#include "platform/EndSignals.h"
#include "support/FileBytes.h"

namespace parlate {
namespace {

using namespace testing_support;

constexpr const char* kFileOfTheProgram = "PARLATE_FATAL_EXIT_FILE";
constexpr int kWentOn = 99;

bool IsTheProgram() { return qEnvironmentVariableIsSet(kFileOfTheProgram); }

std::string FileOfTheProgram() { return qgetenv(kFileOfTheProgram).toStdString(); }

void FailInASlot() {
  QTimer::singleShot(0, [] { throw RuntimeError(RuntimeError::kSubscriptOutOfRange); });
}

/// A user who reads each box, which goes to a file beside the one that is open.
class ReadBoxes : public MessageBoxes {
 public:
  Answer Show(const MessageBox& box) override {
    std::ofstream(FileOfTheProgram() + ".told", std::ios::binary | std::ios::app) << box.text;
    return Answer::Ok;
  }
};

void EndByTheSystem() {
  EndRequest request(SIGTERM);
  QCoreApplication::sendEvent(qApp, &request);
}

using Trouble = std::function<void()>;

/// A user before whose eyes, while the first box stands, something else goes wrong.
class BoxesInTrouble final : public ReadBoxes {
 public:
  BoxesInTrouble(Workspace& workspace, Trouble trouble)
      : workspace_(workspace), trouble_(std::move(trouble)) {}

  Answer Show(const MessageBox& box) override {
    const Answer answer = ReadBoxes::Show(box);
    if (!trouble_) return answer;
    const Trouble trouble = std::exchange(trouble_, nullptr);
    workspace_.now = [] { return kSavedAt + 1; };
    trouble();
    QEventLoop().exec();
    return answer;
  }

 private:
  Workspace& workspace_;
  Trouble trouble_;
};

using Start = std::function<bool(RunningProgram&)>;

bool OpensAndFailsThen(RunningProgram& program) {
  const bool started = program.Start(FileOfTheProgram());
  FailInASlot();
  return started;
}

bool OpensAndFailsAtOnce(RunningProgram& program) {
  static_cast<void>(program.Start(FileOfTheProgram()));
  throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
}

/// The rest of a process that is the program. An error that leaves it crashes the process.
[[noreturn]] void RunTheProgram(const Start& start, const Trouble& trouble = {}) noexcept {
  // There is one application at a time, and that of the tests lets errors pass.
  qApp->~QApplication();
  int count = 1;
  char name[] = "parlate";
  char* arguments[] = {name, nullptr};
  Application application(count, arguments);
  RunningProgram program;
  BoxesInTrouble boxes(program.workspace, trouble);
  application.Protect(program.shell(), boxes, [] {});
  static_cast<void>(application.Run([&] { return start(program); }));
  std::_Exit(kWentOn);
}

/// Starts the running test in a process of its own, and tells what is left when it has ended.
class EndedRun {
 public:
  EndedRun() {
    WriteBytes(File(), SampleFile(28));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(kFileOfTheProgram, QString::fromStdString(File()));
    environment.insert("XDG_DATA_HOME", QString::fromStdString(folder_.File("data")));
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("--gtest_filter=%1.%2").arg(test->test_suite_name(), test->name())});
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit)
        << process.readAllStandardOutput().toStdString();
    exitCode = process.exitCode();
  }

  /// The box, the rescued file and the lock, once each.
  void ExpectRescued() const {
    const QDir recovery(QString::fromStdString(folder_.File("data/Parlate/recovery")));
    const QStringList files = recovery.entryList(QDir::Files);
    ASSERT_EQ(files, QStringList{"sample-20230315-120000.con"});
    const std::string rescue = recovery.filePath(files[0]).toStdString();
    EXPECT_EQ(ReadBytes(rescue), SampleFileSaved(28, kSavedAt, "Tester"));
    EXPECT_EQ(
        ReadBytes(File() + ".told"),
        "Run-time error '9':\n\nSubscript out of range\n\nThe open file was saved as\n" + rescue);
    EXPECT_EQ(ReadBytes(folder_.File("sample.lck")), FileBytes(28).Str("Tester").Bytes());
    EXPECT_EQ(ReadBytes(File()), SampleFile(28));
  }

  int exitCode = -1;

 private:
  [[nodiscard]] std::string File() const { return folder_.File("sample.con"); }

  TemporaryFolder folder_;
};

TEST(FatalExit, OfASlotThatFailsIsToldByTheExitCodeAndLeavesTheRescueAndTheLock) {
  if (IsTheProgram()) RunTheProgram(OpensAndFailsThen);
  const EndedRun run;
  EXPECT_EQ(run.exitCode, 1);
  run.ExpectRescued();
}

TEST(FatalExit, OfAStartThatFailsIsTheSame) {
  if (IsTheProgram()) RunTheProgram(OpensAndFailsAtOnce);
  const EndedRun run;
  EXPECT_EQ(run.exitCode, 1);
  run.ExpectRescued();
}

TEST(FatalExit, WithASecondErrorWhileTheFirstIsToldRescuesAndTellsNothingMore) {
  if (IsTheProgram()) RunTheProgram(OpensAndFailsThen, FailInASlot);
  const EndedRun run;
  EXPECT_EQ(run.exitCode, 1);
  run.ExpectRescued();
}

TEST(FatalExit, ThatTheSystemHastensKeepsItsCodeItsRescueAndTheLock) {
  if (IsTheProgram()) RunTheProgram(OpensAndFailsThen, EndByTheSystem);
  const EndedRun run;
  EXPECT_EQ(run.exitCode, 1);
  run.ExpectRescued();
}

}  // namespace
}  // namespace parlate

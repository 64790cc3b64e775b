// The end of a run that the system asks for, with nobody there to answer a question.

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <csignal>

#include "general/CodePage.h"
#include "general/Paths.h"
#include "mainwindow/Application.h"
#include "mainwindow/WindowFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

class EndBySignal : public WindowTest {
 protected:
  void SetUp() override {
    before_ = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.File("data")));
  }
  void TearDown() override { qputenv("XDG_DATA_HOME", before_); }

  static QStringList Rescued() {
    const QDir recovery(QFile::decodeName(QByteArray::fromStdString(RecoveryFolder())));
    QStringList paths;
    for (const QString& name : recovery.entryList(QDir::Files)) paths += recovery.filePath(name);
    return paths;
  }
  [[nodiscard]] bool Locked() const { return FileExists(folder.File("sample.lck")); }

 private:
  QByteArray before_;
};

TEST_F(EndBySignal, RemovesTheLockAndRescuesNothingThatIsSaved) {
  RunningProgram program;
  ASSERT_TRUE(program.Start(PutSampleFile(28)));
  ASSERT_TRUE(Locked());
  EXPECT_EQ(LetFileGo(program.shell()), "");
  EXPECT_FALSE(Locked());
  EXPECT_EQ(Rescued(), QStringList());
}

TEST_F(EndBySignal, PutsUnsavedChangesIntoTheRecoveryFolderAndLeavesTheFileAsItWas) {
  const std::string path = PutSampleFile(28);
  const std::string bytes = ReadBytes(path);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.shell().SetModified(true, nullptr);
  const std::string said = LetFileGo(program.shell());
  ASSERT_EQ(Rescued().size(), 1);
  EXPECT_EQ(said, "The open file was saved as\n" + FromUtf8(Rescued()[0].toStdString()));
  EXPECT_EQ(ReadBytes(Rescued()[0].toStdString()), SampleFileSaved(28, kSavedAt, "Tester"));
  EXPECT_EQ(ReadBytes(path), bytes);
  EXPECT_FALSE(Locked());
}

TEST_F(EndBySignal, LeavesTheLockOfAnotherWriter) {
  const std::string path = PutSampleFile(28);
  RunningProgram other("Other");
  ASSERT_TRUE(other.Start(path));
  RunningProgram program;
  program.messages.Expect(Answer::Yes);  // read-only
  ASSERT_TRUE(program.Start(path));
  EXPECT_EQ(LetFileGo(program.shell()), "");
  EXPECT_TRUE(Locked());
}

TEST_F(EndBySignal, TellsOfARescueThatFailedAndRemovesTheLockAllTheSame) {
  WriteBytes(folder.File("data"), "no folder");
  RunningProgram program;
  ASSERT_TRUE(program.Start(PutSampleFile(28)));
  program.shell().SetModified(true, nullptr);
  EXPECT_EQ(LetFileGo(program.shell()), "The open file could not be saved.");
  EXPECT_FALSE(Locked());
}

TEST_F(EndBySignal, WithNoFileOpenDoesNothing) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  EXPECT_EQ(LetFileGo(program.shell()), "");
  EXPECT_EQ(Rescued(), QStringList());
}

TEST_F(EndBySignal, OfTheRealEditorUnlocksItsFileAndIsToldByTheExitCode) {
  const std::string path = PutSampleFile(28);
  QDir().mkpath(QString::fromStdString(folder.File("settings")));
  WriteBytes(folder.File("settings/Parlate.ini"), "[Settings]\nUsername=Ada\n");
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("PARLATE_CONFIG_DIR", QString::fromStdString(folder.File("settings")));
  QProcess editor;
  editor.setProcessEnvironment(environment);
  editor.start(QStringLiteral(PARLATE_EDITOR), {QString::fromStdString(path)});
  ASSERT_TRUE(QTest::qWaitFor([&] { return Locked(); }, 30000));
  editor.terminate();
  ASSERT_TRUE(editor.waitForFinished());
  EXPECT_EQ(editor.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(editor.exitCode(), 128 + SIGTERM);
  EXPECT_FALSE(Locked());
  EXPECT_EQ(Rescued(), QStringList());
  // Settings are kept: the file is among the recent ones.
  EXPECT_NE(ReadBytes(folder.File("settings/Parlate.ini")).find("=" + path + "\n"),
            std::string::npos);
}

}  // namespace
}  // namespace parlate

#include <QDir>
#include <QFile>

#include "general/Paths.h"
#include "mainwindow/Application.h"
#include "mainwindow/WindowFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

/// Lets the user's data folder be one of the test's own.
class FatalError : public WindowTest {
 protected:
  void SetUp() override {
    before_ = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.Path()));
  }
  void TearDown() override { qputenv("XDG_DATA_HOME", before_); }

 private:
  QByteArray before_;
};

TEST_F(FatalError, RescuesTheOpenFileTellsWhereAndLeavesTheLock) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.messages.Expect(Answer::Ok);
  ReportFatalError(RuntimeError(RuntimeError::kSubscriptOutOfRange), program.shell(),
                   program.messages);
  const QDir rescued(QFile::decodeName(QByteArray::fromStdString(RecoveryFolder())));
  const QStringList files = rescued.entryList({"sample-*.con"}, QDir::Files);
  ASSERT_EQ(files.size(), 1);
  const std::string rescue = rescued.filePath(files[0]).toStdString();
  EXPECT_EQ(ReadBytes(rescue), SampleFileSaved(28, kSavedAt, "Tester"));
  EXPECT_EQ(
      program.messages.shown.back().text,
      "Run-time error '9':\n\nSubscript out of range\n\nThe open file was saved as\n" + rescue);
  EXPECT_EQ(program.messages.shown.back().icon, MessageBox::Icon::Critical);
  EXPECT_TRUE(FileExists(folder.File("sample.lck")));
}

TEST_F(FatalError, WithNoFileOpenTellsTheErrorAlone) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  program.messages.Expect(Answer::Ok);
  ReportFatalError(RuntimeError(RuntimeError::kOverflow), program.shell(), program.messages);
  EXPECT_EQ(program.messages.shown.back().text, "Run-time error '6':\n\nOverflow");
}

}  // namespace
}  // namespace parlate

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include "general/Paths.h"
#include "mainwindow/WindowFixture.h"
#include "persistence/LockFile.h"
#include "support/FileBytes.h"

namespace parlate {
namespace {

using namespace testing_support;

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos);
  return text.replace(at, from.size(), to);
}

/// What the sample file of version 17 becomes when "Greeting" is renamed and its first flag turned.
std::string ExpectedBytes(double savedAt) {
  std::string bytes = SampleFileSaved(17, savedAt, "Tester");
  const auto fields = [] { return FileBytes(28); };
  bytes = Replaced(bytes, fields().Str("Greeting").Bytes(), fields().Str("Welcome_1").Bytes());
  bytes = Replaced(bytes, fields().F64(36101.625).Str("ben").Bytes(),
                   fields().F64(savedAt).Str("Tester").Bytes());
  return Replaced(bytes, fields().I32(2).Str("Door").Bool(true).Bytes(),
                  fields().I32(2).Str("Door").Bool(false).Bytes());
}

/// The file begins with the expected bytes; what an older, longer file left behind them is nothing.
void ExpectSaved(const std::string& path) {
  const std::string expected = ExpectedBytes(kSavedAt);
  const std::string saved = ReadBytes(path);
  std::size_t same = 0;
  while (same < expected.size() && same < saved.size() && saved[same] == expected[same]) ++same;
  EXPECT_EQ(same, expected.size()) << path << " differs at this offset";
}

void TypeSettings(QWidget& form, const std::string& backupFolder) {
  auto* name = form.findChild<QLineEdit*>("txtUsername");
  auto* backups = form.findChild<QLineEdit*>("txtConBackupPath");
  QTest::keyClicks(name, "Tester");
  QTest::keyClicks(backups, QString::fromStdString(backupFolder));
  QTest::mouseClick(form.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
}

class WholeWay : public WindowTest {
 protected:
  void FirstStart(RunningProgram& program) {
    WhenFormShows("frmSettings", [this](QWidget& form) { TypeSettings(form, Backups()); });
    ASSERT_TRUE(program.Start());
    EXPECT_EQ(program.workspace.defaults.Username, "Tester");
    EXPECT_EQ(program.Find<QLabel>("panStatus").text(), "No Conversation Loaded");
  }

  void OpenWithDialog(RunningProgram& program, const std::string& path) {
    program.dialogs.Expect(path);
    program.Press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_EQ(program.dialogs.opened.size(), 1U);
    EXPECT_EQ(program.dialogs.opened[0].title, "Open Conversation");
    EXPECT_EQ(program.Window().windowTitle(), QString::fromStdString("Parlate - " + path));
    EXPECT_EQ(ReadBytes(folder.File("sample.lck")), FileBytes(28).Str("Tester").Bytes());
  }

  void RenameInPlace(RunningProgram& program) {
    program.ClickNode("C0");
    EXPECT_EQ(program.Events().Rows().ListCount(), 21U);
    program.ClickNode("C0");  // a second click builds the list anew and adds nothing
    EXPECT_EQ(program.Events().Rows().ListCount(), 21U);
    QLineEdit* editor = program.EditNode("C0");
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, "Welcome_1");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return program.shell().SelectedCon()->conName == "Welcome_1"; }));
  }

  void ToggleFlag(RunningProgram& program) {
    program.shell().ExpandTreeNodes(true, program.shell().tvCons().FindNode("C0"));
    program.DoubleClickNode("F2,0");
    EXPECT_EQ(program.shell().tvCons().FindNode("F2,0")->Text(), "Door = False");
    EXPECT_EQ(program.shell().tvCons().FindNode("F2,0")->Image(), "FlagFalse");
  }

  void CheckLabels() {
    WhenFormShows("frmMissingLabels", [](QWidget& form) {
      QTest::mouseClick(form.findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
    });
  }

  static void GoOnSaving() {
    WhenFormShows("frmMissingLabels", [](QWidget& form) {
      QTest::mouseClick(form.findChild<QPushButton*>("cmdYes"), Qt::LeftButton);
    });
  }

  [[nodiscard]] std::string Backups() const { return folder.Path() + "backups/"; }
};

TEST_F(WholeWay, FromTheFirstStartToTheSavedBytesAndASecondCopyThatMeetsTheLock) {
  const std::string path = PutSampleFile(17);
  {
    RunningProgram program("");
    FirstStart(program);
    OpenWithDialog(program, path);
    RenameInPlace(program);
    ToggleFlag(program);

    CheckLabels();
    program.Press(Qt::Key_L, Qt::ControlModifier);

    GoOnSaving();
    program.Press(Qt::Key_S, Qt::ControlModifier);
    ExpectSaved(path);
    ExpectSaved(Backups() + "sample.con");
    EXPECT_FALSE(FileExists(Backups() + "sample.bak"));

    program.workspace.now = [] { return kSavedAt + 1; };
    GoOnSaving();
    program.Choose("tlbCon/Save");
    ExpectSaved(Backups() + "sample.bak");
    EXPECT_EQ(program.workspace.defaults.LastFiles(0), path);
    EXPECT_EQ(program.workspace.defaults.GetLastFilesCount(), 1);

    EXPECT_TRUE(program.Close());
    EXPECT_FALSE(FileExists(folder.File("sample.lck")));
  }
  RunningProgram again;
  ASSERT_TRUE(again.Start(path));
  EXPECT_EQ(again.shell().GetVersionNum(), 28);
  EXPECT_NE(again.shell().tvCons().FindNode("C0"), nullptr);
  EXPECT_EQ(again.shell().tvCons().FindNode("C0")->text, "Welcome_1");
  EXPECT_TRUE(again.Close());
}

TEST_F(WholeWay, ASecondCopyMeetsTheLockOfTheFirstInAllItsAnswers) {
  const std::string path = PutSampleFile(28);
  RunningProgram first("Anna");
  ASSERT_TRUE(first.Start(path));
  {
    RunningProgram other("Ben");
    other.messages.Expect(Answer::No);
    ASSERT_TRUE(other.Start(path));
    ASSERT_EQ(other.messages.shown.size(), 1U);
    EXPECT_EQ(other.messages.shown[0].title, "File in use!");
    EXPECT_EQ(other.messages.shown[0].text,
              "This file is currently open by Anna.\nDo you wish to open it in Read-Only mode?");
    EXPECT_EQ(other.shell().GetConFile(), nullptr);

    other.messages.Expect(Answer::Yes);
    other.shell().OpenConFile(path);
    EXPECT_TRUE(other.shell().IsReadOnly());
    EXPECT_FALSE(other.Enabled("mnuFileSave"));
    EXPECT_FALSE(other.Enabled("mnuFileSaveAs"));
    EXPECT_FALSE(other.Enabled("mnuFileImport"));
    EXPECT_TRUE(other.Enabled("mnuConAdd"));
    EXPECT_TRUE(other.Close());
    EXPECT_TRUE(FileExists(folder.File("sample.lck")));
  }
  {
    RunningProgram own("ANNA");
    own.messages.Expect(Answer::Cancel);
    ASSERT_TRUE(own.Start(path));
    EXPECT_EQ(own.messages.shown.at(0).title, "File already open!");
    EXPECT_EQ(own.shell().GetConFile(), nullptr);

    own.messages.Expect(Answer::No);
    own.shell().OpenConFile(path);
    EXPECT_TRUE(own.shell().IsReadOnly());
    EXPECT_EQ(ReadLockHolder(path), "Anna");
    EXPECT_TRUE(own.shell().CloseConFile());

    own.messages.Expect(Answer::Yes);
    own.shell().OpenConFile(path);
    EXPECT_FALSE(own.shell().IsReadOnly());
    EXPECT_EQ(ReadLockHolder(path), "ANNA");
    EXPECT_TRUE(own.Close());
    EXPECT_FALSE(FileExists(folder.File("sample.lck")));
  }
}

}  // namespace
}  // namespace parlate

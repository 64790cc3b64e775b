#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "general/Paths.h"
#include "mainwindow/WindowFixture.h"
#include "persistence/LockFile.h"
#include "platform/Modal.h"
#include "platform/QtListBox.h"
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

void ExpectBytes(const std::string& path, const std::string& expected) {
  const std::string bytes = ReadBytes(path);
  const auto differ =
      std::mismatch(bytes.begin(), bytes.end(), expected.begin(), expected.end()).first;
  EXPECT_TRUE(bytes == expected) << path << " has " << bytes.size() << " bytes of "
                                 << expected.size() << " and differs at byte "
                                 << differ - bytes.begin();
}

/// A save does not cut the file short: what a longer one had there stays behind the new end.
std::string WrittenOver(const std::string& before, const std::string& image) {
  return image + (before.size() > image.size() ? before.substr(image.size()) : "");
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

  void AddNoFlagTwice(RunningProgram& program) {
    const WhenModal modal([](QWidget& form) {
      EXPECT_EQ(form.objectName(), "frmFlagList");
      EXPECT_EQ(ControlNamed<QtListBox>(form, "lstFlags").ListCount(), 0)
          << "the conversation has both flags";
      EXPECT_FALSE(ControlNamed<QPushButton>(form, "cmdOK").isEnabled());
      QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
    });
    program.Choose("mnuFlagPopupAdd");
    EXPECT_EQ(program.shell().SelectedCon()->flagRefs.Count(), 2U);
    EXPECT_EQ(program.shell().tvCons().FindNode("C0")->children.size(), 2U);
  }

  /// The jump to a label that the other conversation lacks, and nothing else.
  static void ExpectTheMissingLabel(QWidget& form, bool saving) {
    EXPECT_EQ(form.objectName(), "frmMissingLabels");
    const ListRows& rows = ControlNamed<MultiColumnList>(form, "lstLabels").Rows();
    ASSERT_EQ(rows.ListCount(), 1U);
    EXPECT_EQ(rows.Row(0).text, "Welcome_1;Start");
    EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdYes").isVisible(), saving);
    EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdClose").isVisible(), !saving);
  }

  static void CheckLabels(RunningProgram& program) {
    const WhenModal modal([](QWidget& form) {
      ExpectTheMissingLabel(form, false);
      QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdClose"), Qt::LeftButton);
    });
    program.Press(Qt::Key_L, Qt::ControlModifier);
  }

  static void SaveInSpiteOfTheLabel(const std::function<void()>& save) {
    const WhenModal modal([](QWidget& form) {
      ExpectTheMissingLabel(form, true);
      QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdYes"), Qt::LeftButton);
    });
    save();
  }

  [[nodiscard]] std::string Backups() const { return folder.Path() + "backups/"; }
};

TEST_F(WholeWay, FromTheFirstStartToTheSavedBytesAndOpenAgain) {
  const std::string before = SampleFile(17) + std::string(3000, '\xAB');
  const std::string image = ExpectedBytes(kSavedAt);
  ASSERT_GT(before.size(), image.size());
  const std::string path = folder.File("sample.con");
  WriteBytes(path, before);
  {
    RunningProgram program("");
    FirstStart(program);
    OpenWithDialog(program, path);
    RenameInPlace(program);
    ToggleFlag(program);
    AddNoFlagTwice(program);
    CheckLabels(program);
    ExpectBytes(path, before);

    SaveInSpiteOfTheLabel([&] { program.Press(Qt::Key_S, Qt::ControlModifier); });
    ExpectBytes(path, WrittenOver(before, image));
    ExpectBytes(Backups() + "sample.con", image);
    EXPECT_FALSE(FileExists(Backups() + "sample.bak"));

    program.workspace.now = [] { return kSavedAt + 1; };
    SaveInSpiteOfTheLabel([&] { program.Choose("tlbCon/Save"); });
    ExpectBytes(Backups() + "sample.bak", image);
    EXPECT_EQ(program.workspace.defaults.LastFiles(0), path);
    EXPECT_EQ(program.workspace.defaults.GetLastFilesCount(), 1);

    EXPECT_TRUE(program.Close());
    EXPECT_FALSE(FileExists(folder.File("sample.lck")));
  }
  RunningProgram again;
  ASSERT_TRUE(again.Start(path));
  EXPECT_EQ(again.shell().GetVersionNum(), 28);
  ASSERT_NE(again.shell().tvCons().FindNode("C0"), nullptr);
  EXPECT_EQ(again.shell().tvCons().FindNode("C0")->text, "Welcome_1");
  ASSERT_NE(again.shell().tvCons().FindNode("F2,0"), nullptr);
  EXPECT_EQ(again.shell().tvCons().FindNode("F2,0")->Text(), "Door = False");
  EXPECT_EQ(again.shell().tvCons().FindNode("F2,0")->Image(), "FlagFalse");
  EXPECT_EQ(again.shell().tvCons().FindNode("F3,0")->Text(), "Lamp = False");
  EXPECT_EQ(again.shell().GetConFile()->Conversations.At(0).flagRefs.Count(), 2U);
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

// Text out through the dialogs, corrected by a program, and back in.

#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "general/Paths.h"
#include "mainwindow/WindowFixture.h"
#include "support/ConversationScript.h"

namespace parlate {
namespace {

using namespace testing_support;

void Replace(std::string& text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  ASSERT_NE(at, std::string::npos) << from;
  text.replace(at, from.size(), to);
}

/// Replaces a text of the file, with its length in front of it.
void ReplaceStored(std::string& bytes, const std::string& from, const std::string& to) {
  Replace(bytes, FileBytes(28).Str(from).Bytes(), FileBytes(28).Str(to).Bytes());
}

void ExpectSameBytes(const std::string& bytes, const std::string& expected) {
  const auto differ = std::mismatch(bytes.begin(), bytes.end(), expected.begin(), expected.end());
  EXPECT_TRUE(bytes == expected) << "they differ at " << differ.first - bytes.begin();
}

class InterchangeWay : public WindowTest {
 protected:
  std::string PutHarbour() {
    WriteBytes(folder.File("harbour.con"), HarbourFile());
    return folder.File("harbour.con");
  }
  /// The bytes of the file after a save on the same day.
  std::string SavedWithoutChange() {
    const std::string path = PutHarbour();
    RunningProgram program;
    EXPECT_TRUE(program.Start(path));
    program.Choose("mnuFileSave");
    EXPECT_TRUE(program.Close());
    return ReadBytes(path);
  }
  /// Chooses a command and starts its dialog with a file name that is typed.
  static void Run(RunningProgram& program, const char* command, const char* form,
                  const std::string& path) {
    WhenFormShows(form, [path](QWidget& dialog) {
      QTest::keyClicks(dialog.findChild<QLineEdit*>("txtFilename"), QString::fromStdString(path));
      QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    });
    program.Choose(command);
  }
};

TEST_F(InterchangeWay, ExportedTextIsCorrectedImportedAndSaved) {
  std::string expected = SavedWithoutChange();
  ReplaceStored(expected, "Hello", "Good evening");
  ReplaceStored(expected, "A comment", "A remark");
  const std::string path = PutHarbour();
  const std::string textPath = folder.File("text.txt");
  {
    RunningProgram program;
    ASSERT_TRUE(program.Start(path));
    program.ClickNode("C0");
    Run(program, "mnuFileExport", "frmExport", textPath);
    EXPECT_TRUE(program.messages.shown.empty());

    std::string text = ReadBytes(textPath);
    Replace(text, "Hello\r\n", "Good evening\r\n");
    Replace(text, "A comment\r\n", "A remark\r\n");
    WriteBytes(textPath, text);

    Run(program, "mnuFileImport", "frmImport", textPath);
    EXPECT_EQ(program.Events().Rows().Row(0).subText, "Good evening") << "the window shows it";
    program.Choose("mnuFileSave");
    EXPECT_TRUE(program.Close());
  }
  // Nothing else differs, to the last byte, from the file that was saved without an import.
  ExpectSameBytes(ReadBytes(path), expected);
  RunningProgram again;
  ASSERT_TRUE(again.Start(path));
  const ConversationFile& file = *again.shell().GetConFile();
  const Conversation& greeting = file.Conversations.At(0);
  EXPECT_EQ(greeting.events.At(1).As<EventSpeech>()->speech, "Good evening");
  EXPECT_EQ(greeting.events.At(1).As<EventSpeech>()->audioFile, "hello.mp3");
  EXPECT_EQ(greeting.events.At(2).As<EventComment>()->commentText, "A remark");
  EXPECT_EQ(greeting.events.At(3).As<EventSpeech>()->speech, "Hi");
  EXPECT_EQ(greeting.LastUpdatedBy, "ben");
  EXPECT_EQ(file.LastUpdatedBy, "Tester");
  EXPECT_TRUE(again.Close());
}

TEST_F(InterchangeWay, GenerateNamesTheFilesAndTheRowsFollow) {
  const std::string path = PutHarbour();
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  EXPECT_EQ(program.Events().Rows().Row(2).color, 0xFFFFC0) << "no audio";
  program.Choose("mnuFileGenerateAudio");
  EXPECT_EQ(program.Events().Rows().Row(2).color, -1);
  program.Choose("mnuFileSave");
  EXPECT_TRUE(program.Close());
  RunningProgram again;
  ASSERT_TRUE(again.Start(path));
  EXPECT_EQ(
      again.shell().GetConFile()->Conversations.At(0).events.At(3).As<EventSpeech>()->audioFile,
      "Audio07\\Zoe\\greeting\\Alex01.mp3");
  EXPECT_TRUE(again.Close());
}

TEST_F(InterchangeWay, AReadOnlyFileCanBeExportedButNotImportedInto) {
  const std::string path = PutHarbour();
  WriteBytes(folder.File("harbour.lck"), FileBytes(28).Str("Somebody").Bytes());
  RunningProgram program;
  program.messages.Expect(Answer::Yes);
  ASSERT_TRUE(program.Start(path));
  EXPECT_FALSE(program.Enabled("mnuFileImport"));
  EXPECT_TRUE(program.Enabled("mnuFileExport"));
  EXPECT_TRUE(program.Enabled("mnuFileGenerateAudio"));
  EXPECT_TRUE(program.Close());
}

TEST_F(InterchangeWay, WithoutConversationsThereIsNothingToExport) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  for (const char* command : {"mnuFileImport", "mnuFileExport", "mnuFileGenerateAudio"}) {
    EXPECT_FALSE(program.Enabled(command)) << command;
  }
  EXPECT_TRUE(program.Close());
}

}  // namespace
}  // namespace parlate

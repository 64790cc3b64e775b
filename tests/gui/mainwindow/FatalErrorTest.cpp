#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTabWidget>

#include "general/Paths.h"
#include "mainwindow/Application.h"
#include "mainwindow/WindowFixture.h"
#include "platform/Modal.h"
#include "support/ConversationScript.h"
#include "support/FakeControls.h"

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

/// Look-ups of the dialogs and commands that no row of a table answers.
class FailedLookUp : public FatalError {
 protected:
  void Start(const std::vector<EventFields>& events) {
    WriteBytes(folder.File("harbour.con"),
               FileOf(HarbourTables(), {Con(0, "greeting", kZoe, events)}));
    ASSERT_TRUE(program_.Start(folder.File("harbour.con")));
  }
  /// Does some work that fails, and then what the application does about it.
  void FailAt(const std::function<void()>& work) {
    try {
      work();
    } catch (const RuntimeError& error) {
      failed_ = true;
      program_.messages.Expect(Answer::Ok);
      ReportFatalError(error, program_.shell(), program_.messages);
    }
  }
  void ExpectRescued(const std::function<void(const ConversationFile&)>& expect) {
    ASSERT_TRUE(failed_);
    const QDir rescued(QFile::decodeName(QByteArray::fromStdString(RecoveryFolder())));
    const QStringList files = rescued.entryList({"harbour-*.con"}, QDir::Files);
    ASSERT_EQ(files.size(), 1);
    const std::string rescue = rescued.filePath(files[0]).toStdString();
    EXPECT_EQ(program_.messages.shown.back().text,
              "Run-time error '5':\n\nInvalid procedure call or argument\n\n"
              "The open file was saved as\n" +
                  rescue);
    RunningProgram again;
    ASSERT_TRUE(again.Start(rescue));
    ASSERT_NE(again.shell().GetConFile(), nullptr);
    expect(*again.shell().GetConFile());
    EXPECT_TRUE(again.Close());
  }

  RunningProgram program_;
  bool failed_ = false;
};

TEST_F(FailedLookUp, OfAMissionOfTheFileWithNoRowIsFatalToItsProperties) {
  Start({Comment(1, "", "kept")});
  program_.shell().GetConFile()->SaveMissions(FakeListBox({{"Mission 55", 55}}));
  FailAt([&] { program_.Choose("mnuFileProperties"); });
  ExpectRescued([](const ConversationFile& file) {
    EXPECT_EQ(file.GetMission(0), 55);
    EXPECT_EQ(file.Conversations.At(0).events.At(1).As<EventComment>()->commentText, "kept");
  });
}

TEST_F(FailedLookUp, OfASpeakerWithNoRowIsFatalToTheStatistics) {
  Start({Speech(1, "", kZoe, "Hello", ""), Speech(2, "", {}, "Who?", "")});
  WhenFormShows("frmFileProperties", [this](QWidget& form) {
    auto& tabs = ControlNamed<QTabWidget>(form, "tabProperties");
    FailAt([&] { tabs.setCurrentIndex(2); });
    QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
  });
  program_.Choose("mnuFileProperties");
  ExpectRescued([](const ConversationFile& file) {
    EXPECT_EQ(file.Conversations.At(0).events.At(2).As<EventSpeech>()->speech, "Who?");
  });
}

TEST_F(FailedLookUp, OfASpeakerWithNoRowIsFatalToTheNamesOfTheAudioFiles) {
  Start({Speech(1, "", kZoe, "Hello", "old.mp3"), Speech(2, "", {}, "Who?", "old.mp3")});
  FailAt([&] { program_.Choose("mnuFileGenerateAudio"); });
  ExpectRescued([](const ConversationFile& file) {
    const auto& events = file.Conversations.At(0).events;
    EXPECT_EQ(events.At(1).As<EventSpeech>()->audioFile, "Audio07\\Zoe\\greeting\\Zoe01.mp3");
    EXPECT_EQ(events.At(2).As<EventSpeech>()->audioFile, "old.mp3");
  });
}

TEST_F(FailedLookUp, OfAnOwnerWithNoRowIsFatalToTheNamesOfTheAudioFiles) {
  Start({Speech(1, "", kZoe, "Hello", "old.mp3")});
  program_.shell().GetConFile()->Conversations.At(0).NPCID = -1;
  FailAt([&] { program_.Choose("mnuFileGenerateAudio"); });
  ExpectRescued([](const ConversationFile& file) {
    EXPECT_EQ(file.Conversations.At(0).events.At(1).As<EventSpeech>()->audioFile, "old.mp3");
  });
}

}  // namespace
}  // namespace parlate

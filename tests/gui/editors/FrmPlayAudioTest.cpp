#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>

#include "editors/EditorFixture.h"
#include "editors/frmPlayAudio.h"
#include "general/Paths.h"
#include "platform/WaveFile.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using namespace testing_support;

class FrmPlayAudioTest : public ::testing::Test {
 protected:
  FrmPlayAudioTest() { con_.conName = "Greeting"; }

  [[nodiscard]] AudioFolder Folder() {
    return [this](const Conversation& con) {
      asked_ = con.conName;
      return folder_.File("audio");
    };
  }
  void Put(const std::string& name, const std::string& bytes) {
    MakeFolder(folder_.File("audio"));
    WriteBytes(folder_.File("audio/" + name), bytes);
  }

  TestWorkspace space_;
  TemporaryFolder folder_;
  Conversation con_;
  std::string asked_;
};

TEST_F(FrmPlayAudioTest, EveryCaptionIsTheRightOne) {
  const frmPlayAudio form(Folder());
  EXPECT_EQ(form.objectName(), "frmPlayAudio");
  EXPECT_EQ(form.windowTitle(), "Audio Player");
  EXPECT_EQ(ControlNamed<QLabel>(form, "Label1").text(), "Filename:");
  EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdClose").text(), "&Close");
  EXPECT_EQ(ControlNamed<QWidget>(form, "txtFilename").parentWidget()->objectName(), "SSPanel1");
  EXPECT_NE(form.findChild<WavePlayer*>("mmcPlayWave"), nullptr);
}

TEST_F(FrmPlayAudioTest, ClosesByItselfAtTheEndOfTheSound) {
  Put("hello.wav", WaveFile(300));
  frmPlayAudio form(Folder());
  const QSignalSpy ends(form.findChild<WavePlayer*>("mmcPlayWave"), &WavePlayer::done);
  QElapsedTimer since;
  since.start();
  form.PlayWaveFile("hello", con_);
  EXPECT_TRUE(form.isHidden());
  EXPECT_EQ(ends.count(), 1);
  EXPECT_GE(since.elapsed(), 250) << "the sound was not cut off";
  EXPECT_EQ(asked_, "Greeting");
}

TEST_F(FrmPlayAudioTest, TheExtensionIsFixedAndTheWholePathIsShown) {
  frmPlayAudio form(Folder());
  {
    const WhenModal modal([this](QWidget& window) {
      const QString path =
          QString::fromStdString(folder_.File("audio")) + QStringLiteral(u"/zo\u00EB.mp3.wav");
      EXPECT_EQ(TextOf(window, "txtFilename").text(), path);
      Click(window, "cmdClose");
    });
    form.PlayWaveFile("zo\xEB.mp3", con_);
  }
  EXPECT_TRUE(form.isHidden());
}

TEST_F(FrmPlayAudioTest, BackslashesInTheNamePartFolders) {
  MakeFolder(folder_.File("audio"));
  MakeFolder(folder_.File("audio/Pkg"));
  WriteBytes(folder_.File("audio/Pkg/Zoe01.wav"), WaveFile(100));
  frmPlayAudio form(Folder());
  const QSignalSpy ends(form.findChild<WavePlayer*>("mmcPlayWave"), &WavePlayer::done);
  form.PlayWaveFile("Pkg\\Zoe01", con_);
  EXPECT_EQ(ends.count(), 1);
  EXPECT_EQ(TextOf(form, "txtFilename").text(),
            QString::fromStdString(folder_.File("audio/Pkg/Zoe01.wav")));
}

TEST_F(FrmPlayAudioTest, AFileWithALetterBeyondAsciiIsPlayed) {
  Put("zo\xC3\xAB.wav", WaveFile(100));
  frmPlayAudio form(Folder());
  const QSignalSpy ends(form.findChild<WavePlayer*>("mmcPlayWave"), &WavePlayer::done);
  form.PlayWaveFile("zo\xEB", con_);
  EXPECT_EQ(ends.count(), 1);
}

TEST_F(FrmPlayAudioTest, ATypedKeyDoesNotChangeTheNameButItCanBeCopied) {
  frmPlayAudio form(Folder());
  const WhenModal modal([](QWidget& window) {
    QLineEdit& name = TextOf(window, "txtFilename");
    const QString shown = name.text();
    QTest::keyClicks(&name, "abc");
    QTest::keyClick(&name, Qt::Key_Delete);
    QTest::keyClick(&name, Qt::Key_Backspace);
    EXPECT_EQ(name.text(), shown);
    QTest::keyClick(&name, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(name.selectedText(), shown);
    Click(window, "cmdClose");
  });
  form.PlayWaveFile("hello", con_);
}

/// Opens a file that gives no sound, waits, and closes the window, which must not stand still.
void ExpectSilenceUntilClosed(frmPlayAudio& form, const Conversation& con) {
  const QSignalSpy ends(form.findChild<WavePlayer*>("mmcPlayWave"), &WavePlayer::done);
  QElapsedTimer closing;
  {
    const WhenModal modal([&](QWidget& window) {
      QTest::qWait(400);
      EXPECT_TRUE(window.isVisible()) << "the user ends it";
      closing.start();
      Click(window, "cmdClose");
    });
    form.PlayWaveFile("hello", con);
  }
  EXPECT_TRUE(form.isHidden());
  EXPECT_LT(closing.elapsed(), 3000);
  QTest::qWait(50);
  EXPECT_EQ(ends.count(), 0) << "what was not heard is not reported as heard";
}

TEST_F(FrmPlayAudioTest, WithAMissingFileTheWindowStaysUntilItIsClosed) {
  frmPlayAudio form(Folder());
  ExpectSilenceUntilClosed(form, con_);
}

TEST_F(FrmPlayAudioTest, WithAFileThatIsNoWaveFileTheWindowStaysUntilItIsClosed) {
  Put("hello.wav", "this is no sound at all");
  frmPlayAudio form(Folder());
  ExpectSilenceUntilClosed(form, con_);
}

TEST_F(FrmPlayAudioTest, WithABrokenWaveFileTheWindowStaysUntilItIsClosed) {
  Put("hello.wav", WaveFile(300).substr(0, 20) + std::string(100, '\xFF'));
  frmPlayAudio form(Folder());
  ExpectSilenceUntilClosed(form, con_);
}

TEST_F(FrmPlayAudioTest, CloseEndsASoundInTheMiddle) {
  Put("hello.wav", WaveFile(20000));
  frmPlayAudio form(Folder());
  ExpectSilenceUntilClosed(form, con_);
}

TEST_F(FrmPlayAudioTest, ClosingTheWindowOtherwiseEndsTheSoundToo) {
  Put("hello.wav", WaveFile(20000));
  for (const bool byEscape : {true, false}) {
    frmPlayAudio form(Folder());
    const WhenModal modal([byEscape](QWidget& window) {
      if (byEscape) {
        QTest::keyClick(&window, Qt::Key_Escape);
      } else {
        window.close();
      }
    });
    form.PlayWaveFile("hello", con_);
    EXPECT_TRUE(form.isHidden());
  }
}

TEST_F(FrmPlayAudioTest, ASoundThatWasClosedDoesNotReachItsEnd) {
  Put("hello.wav", WaveFile(300));
  frmPlayAudio form(Folder());
  const QSignalSpy ends(form.findChild<WavePlayer*>("mmcPlayWave"), &WavePlayer::done);
  {
    const WhenModal modal([](QWidget& window) { Click(window, "cmdClose"); });
    form.PlayWaveFile("hello", con_);
  }
  EXPECT_TRUE(form.isHidden());
  QTest::qWait(900);
  EXPECT_EQ(ends.count(), 0);
}

}  // namespace
}  // namespace parlate

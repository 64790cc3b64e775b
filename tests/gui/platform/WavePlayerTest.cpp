#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "platform/WaveFile.h"
#include "platform/WavePlayer.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using namespace testing_support;

class WavePlayerTest : public ::testing::Test {
 protected:
  [[nodiscard]] std::string Sound(unsigned milliseconds) const {
    WriteBytes(folder_.File("sound.wav"), WaveFile(milliseconds));
    return folder_.File("sound.wav");
  }

  TemporaryFolder folder_;
  WavePlayer player_;
  QSignalSpy ends_{&player_, &WavePlayer::done};
};

TEST_F(WavePlayerTest, PlaysOneFileAfterAnother) {
  const std::string sound = Sound(100);
  for (int round = 1; round <= 2; ++round) {
    player_.Open(sound);
    player_.Play();
    EXPECT_TRUE(QTest::qWaitFor([&] { return ends_.count() == round; }, 8000));
  }
}

TEST_F(WavePlayerTest, WithNothingOpenPlayAndCloseDoNothing) {
  player_.Play();
  player_.Close();
  QTest::qWait(50);
  EXPECT_EQ(ends_.count(), 0);
}

TEST_F(WavePlayerTest, AClosedSoundReportsNoEnd) {
  player_.Open(Sound(300));
  player_.Play();
  player_.Close();
  QTest::qWait(900);
  EXPECT_EQ(ends_.count(), 0);
}

TEST_F(WavePlayerTest, OpeningAnotherFileEndsTheSoundBefore) {
  player_.Open(Sound(300));
  player_.Play();
  player_.Open(folder_.File("missing.wav"));
  QTest::qWait(900);
  EXPECT_EQ(ends_.count(), 0);
}

}  // namespace
}  // namespace parlate

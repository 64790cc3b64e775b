// The splitter between the tree and the list, whose measures are twips: 15 to the pixel.

#include "mainwindow/WindowFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

class Splitter : public WindowTest {
 protected:
  Splitter() {
    program.settings.values["SplitterPos"] = "3000";  // a whole number of pixels
    EXPECT_TRUE(program.Start(PutSampleFile(28)));
    program.Window().resize(700, 400);  // 10500 twips
  }
  [[nodiscard]] QWidget& Strip() { return program.Find<QWidget>("imgSplitter"); }
  [[nodiscard]] QWidget& Bar() { return program.Find<QWidget>("picSplitter"); }
  void Press() {
    left_ = Strip().x();
    QTest::mousePress(&Strip(), Qt::LeftButton, {}, {0, kY});
  }
  /// Moves the bar to a place in the window.
  void MoveTo(int x) { QTest::mouseMove(&Strip(), {x - left_, kY}); }
  void ReleaseAt(int x) { QTest::mouseRelease(&Strip(), Qt::LeftButton, {}, {x - left_, kY}); }

  RunningProgram program;

 private:
  static constexpr int kY = 10;
  int left_ = 0;
};

TEST_F(Splitter, APressShowsTheBarOverTheStripALittleToItsLeft) {
  Press();
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_EQ(Bar().x(), 199);  // 3000 less 20 twips
  EXPECT_EQ(Bar().y(), Strip().y());
  EXPECT_EQ(Bar().size(), Strip().size());
  EXPECT_EQ(Bar().palette().color(QPalette::Window), QColor(0x80, 0x80, 0x80));
  ReleaseAt(200);
  EXPECT_EQ(Strip().x(), 199) << "the strip goes where the bar stood";
}

TEST_F(Splitter, APressOfTheOtherButtonTakesHoldOfNothing) {
  QTest::mousePress(&Strip(), Qt::RightButton, {}, {0, 10});
  EXPECT_FALSE(Bar().isVisible());
  QTest::mouseRelease(&Strip(), Qt::RightButton, {}, {0, 10});
  EXPECT_EQ(Strip().x(), 200);
}

TEST_F(Splitter, DroppingItAt600LeavesItAt1500) {
  EXPECT_FALSE(Bar().isVisible());
  Press();
  EXPECT_TRUE(Bar().isVisible());
  MoveTo(40);
  EXPECT_EQ(Bar().x(), 40);
  MoveTo(10);  // 150 twips
  EXPECT_EQ(Bar().x(), 33) << "the bar stops at 500";
  MoveTo(40);
  ReleaseAt(40);
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(Strip().x(), 100);
  EXPECT_EQ(program.Tree().width(), 93);  // 1500 less 100 twips
}

TEST_F(Splitter, TheBarStops500FromTheRightAndTheDropLeavesTheList1500) {
  Press();
  MoveTo(650);
  EXPECT_EQ(Bar().x(), 650);
  MoveTo(690);
  EXPECT_EQ(Bar().x(), 667);  // 10000 twips
  ReleaseAt(690);
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(Strip().x(), 600);  // 9000 twips
}

TEST_F(Splitter, ADropBetweenTheLimitsStaysWhereItIs) {
  Press();
  MoveTo(400);
  ReleaseAt(400);
  EXPECT_EQ(Strip().x(), 400);
  EXPECT_EQ(program.Tree().width(), 393);  // 6000 less 100 twips
  EXPECT_EQ(program.Events().x(), 403);    // 6000 and 40 twips
}

TEST_F(Splitter, AMoveWithoutAPressShowsNoBar) {
  MoveTo(300);
  EXPECT_FALSE(Bar().isVisible());
  const int left = Strip().x();
  ReleaseAt(300);
  EXPECT_EQ(Strip().x(), left);
}

TEST_F(Splitter, KeysMoveItAndStopAtTheSameLimits) {
  const int left = Strip().x();
  Strip().setFocus();
  QTest::keyClick(&Strip(), Qt::Key_Right);
  EXPECT_EQ(Strip().x(), left + 10);
  QTest::keyClick(&Strip(), Qt::Key_Left);
  EXPECT_EQ(Strip().x(), left);
  for (int i = 0; i < 70; ++i) QTest::keyClick(&Strip(), Qt::Key_Right);
  EXPECT_EQ(Strip().x(), 600);
  for (int i = 0; i < 70; ++i) QTest::keyClick(&Strip(), Qt::Key_Left);
  EXPECT_EQ(Strip().x(), 100);
}

TEST_F(Splitter, AtTheRightOfAVeryWideWindowIsStoredAsFarAsSixteenBitsGo) {
  program.Window().resize(2600, 400);
  Press();
  MoveTo(2200);
  ReleaseAt(2200);
  EXPECT_EQ(Strip().x(), 2200);  // 33000 twips
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["SplitterPos"], "32767");
}

TEST_F(Splitter, ItsPlaceIsStoredInTwips) {
  Press();
  MoveTo(400);
  ReleaseAt(400);
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["SplitterPos"], "6000");
}

using StoredSplitter = WindowTest;

TEST_F(StoredSplitter, StandsWhereItWas) {
  RunningProgram program;
  program.settings.values["SplitterPos"] = "9000";
  program.settings.values["MainLeft"] = "0";
  ASSERT_TRUE(program.Start(PutSampleFile(28)));
  EXPECT_EQ(program.Find<QWidget>("imgSplitter").x(), 600);
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["SplitterPos"], "9000");
}

}  // namespace
}  // namespace parlate

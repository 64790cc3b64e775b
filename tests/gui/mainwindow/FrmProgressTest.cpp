#include <QtTest/qtestspontaneevent.h>
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <QWindow>
#include <csignal>

#include "mainwindow/frmProgress.h"
#include "platform/EndRequests.h"
#include "platform/Modal.h"
#include "platform/PaintCounter.h"
#include "platform/TwipsConversion.h"

namespace parlate {
namespace {

class FrmProgressTest : public ::testing::Test {
 protected:
  QLabel& Text() { return ControlNamed<QLabel>(progress_, "lblText"); }
  QLabel& Text2() { return ControlNamed<QLabel>(progress_, "lblText2"); }
  QProgressBar& Bar() { return ControlNamed<QProgressBar>(progress_, "barProgress"); }
  QProgressBar& Bar2() { return ControlNamed<QProgressBar>(progress_, "barProgress2"); }

  frmProgress progress_;
};

TEST_F(FrmProgressTest, IsNotShownUntilItBegins) {
  EXPECT_EQ(progress_.windowTitle(), "Progress");
  EXPECT_EQ(progress_.objectName(), "frmProgress");
  EXPECT_TRUE(progress_.isHidden());
  progress_.Step("early", 1);
  EXPECT_TRUE(progress_.isHidden());
}

TEST_F(FrmProgressTest, BeginsWithoutBlockingAtTheStartOfTheBar) {
  progress_.Begin("Loading Conversations...", "Tables", 2);
  EXPECT_TRUE(progress_.isVisible());
  EXPECT_FALSE(progress_.isModal());
  EXPECT_EQ(progress_.windowTitle(), "Loading Conversations...");
  EXPECT_EQ(Text().text(), "Tables");
  EXPECT_EQ(Bar().minimum(), 0);
  EXPECT_EQ(Bar().maximum(), 2);
  EXPECT_EQ(Bar().value(), 0);
}

TEST_F(FrmProgressTest, StepsShowTextAndValue) {
  progress_.Begin("Saving Conversations...", "Tables", 2);
  progress_.SetTop(10);
  progress_.Step("Zo\xEB & <b>", 7);
  EXPECT_EQ(Text().text(), QStringLiteral(u"Zo\u00EB & <b>"));
  EXPECT_EQ(Bar().maximum(), 10);
  EXPECT_EQ(Bar().value(), 7);
  progress_.Step("beyond", 11);
  EXPECT_EQ(Bar().value(), 10);
}

TEST_F(FrmProgressTest, AWalkOverNothingShowsAnEmptyBar) {
  progress_.Begin("Exporting Conversations...", "", 0);
  EXPECT_EQ(Bar().maximum(), 1);
  EXPECT_EQ(Bar().value(), 0);
}

TEST_F(FrmProgressTest, EndPutsItAwayAndItCanBeginAgain) {
  progress_.Begin("Saving Conversations...", "Tables", 2);
  progress_.Step("one", 2);
  progress_.End();
  EXPECT_FALSE(progress_.isVisible());
  progress_.Begin("Loading Conversations...", "Tables", 5);
  EXPECT_TRUE(progress_.isVisible());
  EXPECT_EQ(Bar().value(), 0);
  EXPECT_EQ(Bar().maximum(), 5);
}

TEST_F(FrmProgressTest, OneBarIsTheLowWindowAndTwoAreTheHighOne) {
  progress_.Begin("Progress", "text", 2);
  EXPECT_EQ(progress_.height(), PixelsFromTwips(1590));
  EXPECT_FALSE(Bar2().isVisible());
  EXPECT_FALSE(Text2().isVisible());
  progress_.SetBarCount(2);
  EXPECT_EQ(progress_.height(), PixelsFromTwips(2475));
  EXPECT_TRUE(Bar2().isVisible());
  EXPECT_TRUE(Text2().isVisible());
  for (const int count : {0, 3, -1}) {
    progress_.SetBarCount(count);
    EXPECT_EQ(progress_.height(), PixelsFromTwips(2475));
  }
  progress_.SetBarCount(1);
  EXPECT_EQ(progress_.height(), PixelsFromTwips(1590));
  EXPECT_FALSE(Bar2().isVisible());
}

TEST_F(FrmProgressTest, ATextBelowTheOneBarStandsForItsWalkAlone) {
  progress_.Begin("Progress", "Removing Table Entries...", 4);
  EXPECT_FALSE(Text2().isVisible());
  progress_.StepBelow("Zo\xEB & <b>", 3);
  EXPECT_TRUE(Text2().isVisible());
  EXPECT_FALSE(Bar2().isVisible());
  EXPECT_EQ(Text().text(), "Removing Table Entries...");
  EXPECT_EQ(Text2().text(), QStringLiteral(u"Zo\u00EB & <b>"));
  EXPECT_EQ(Bar().value(), 3);
  EXPECT_GE(progress_.height(), Text2().geometry().bottom());
  progress_.End();
  progress_.Begin("Loading Conversations...", "Tables", 2);
  EXPECT_FALSE(Text2().isVisible());
  EXPECT_EQ(Text2().text(), "");
}

TEST_F(FrmProgressTest, TheSecondTextAndBarGoTheirOwnWay) {
  progress_.SetBarCount(2);
  progress_.Begin("Progress", "first", 4);
  progress_.SetTop2(9);
  progress_.Step2("second", 3);
  EXPECT_EQ(Text().text(), "first");
  EXPECT_EQ(Text2().text(), "second");
  EXPECT_EQ(Bar().value(), 0);
  EXPECT_EQ(Bar2().maximum(), 9);
  EXPECT_EQ(Bar2().value(), 3);
}

TEST_F(FrmProgressTest, ALongTextDoesNotWidenTheWindow) {
  progress_.Begin("Progress", "text", 2);
  const int width = progress_.width();
  progress_.Step(std::string(500, 'm'), 1);
  QCoreApplication::processEvents();
  EXPECT_EQ(progress_.width(), width);
}

TEST_F(FrmProgressTest, ManyStepsPaintSeldomAndTheLastOneIsPainted) {
  constexpr int kSteps = 32767;
  progress_.Begin("Loading Conversations...", "Tables", kSteps);
  QTest::qWait(50);
  const PaintCounter counter(Bar());
  QElapsedTimer time;
  time.start();
  for (int i = 1; i <= kSteps; ++i) progress_.Step("Conversation " + std::to_string(i), i);
  // Every 16 ms, and a layout in between may ask for the same again.
  EXPECT_LE(counter.paints, 4 + 2 * time.elapsed() / 16);
  EXPECT_EQ(Bar().value(), kSteps);

  const int during = counter.paints;
  ASSERT_TRUE(QTest::qWaitFor([&] { return counter.paints > during; }));
  const QImage end = progress_.grab().toImage();
  frmProgress fresh;
  fresh.Begin("Loading Conversations...", Text().text().toStdString(), kSteps);
  fresh.Step(Text().text().toStdString(), kSteps);
  QTest::qWait(50);
  EXPECT_EQ(end, fresh.grab().toImage());
}

TEST_F(FrmProgressTest, AWalkThatBrokeOffLeavesItsLastStepStanding) {
  progress_.Begin("Loading Conversations...", "Tables", 10);
  for (int i = 1; i <= 3; ++i) progress_.Step("Conversation " + std::to_string(i), i);
  QTest::qWait(50);
  EXPECT_TRUE(progress_.isVisible());
  EXPECT_TRUE(progress_.updatesEnabled());
  EXPECT_EQ(Text().text(), "Conversation 3");
  EXPECT_EQ(Bar().value(), 3);
  progress_.close();
  EXPECT_FALSE(progress_.isVisible());
}

TEST_F(FrmProgressTest, OtherWindowsRepaintBetweenTheSteps) {
  QWidget other;
  other.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
  progress_.Begin("Progress", "text", 100);
  const PaintCounter counter(other);
  QTest::qSleep(20);
  other.update();
  progress_.Step("text", 1);
  EXPECT_EQ(counter.paints, 1);
}

TEST_F(FrmProgressTest, AWalkThatShowsNoProgressLetsOtherWindowsRepaint) {
  QWidget other;
  other.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
  const PaintCounter counter(other);
  other.update();
  progress_.LetRepaint();
  EXPECT_EQ(counter.paints, 1);
  EXPECT_TRUE(progress_.isHidden());
}

/// Asks on close as the main window does.
class Asking : public QWidget {
 public:
  int asked = 0;

 protected:
  void closeEvent(QCloseEvent* event) override {
    ++asked;
    event->ignore();
  }
};

/// Lets the event loop find a press on the window's close button.
void CloseByItsFrame(QWidget& window) {
  QMetaObject::invokeMethod(
      &window,
      [&window] {
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window.windowHandle(), &event);
      },
      Qt::QueuedConnection);
}

TEST_F(FrmProgressTest, NoWindowClosesBetweenTheSteps) {
  Asking other;
  other.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
  progress_.Begin("Progress", "text", 100);
  QTest::qSleep(20);
  CloseByItsFrame(other);
  progress_.Step("text", 1);
  EXPECT_EQ(other.asked, 0);
  progress_.End();
  CloseByItsFrame(other);
  QCoreApplication::processEvents();
  EXPECT_EQ(other.asked, 1);
}

TEST_F(FrmProgressTest, NoSignalEndsTheProgramBetweenTheSteps) {
  EndSignals ends;
  ends.Listen();
  EndRequests requests;
  progress_.Begin("Progress", "text", 100);
  QTest::qSleep(20);
  std::raise(SIGTERM);
  progress_.Step("text", 1);
  EXPECT_TRUE(requests.taken.empty());
  progress_.End();
  EXPECT_TRUE(requests.Hears(1));
}

}  // namespace
}  // namespace parlate

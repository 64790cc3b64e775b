// Where the panes of the window stand, whose measures are twips: 15 to the pixel. The window is
// 700 pixels wide, which are 10500 twips.

#include <gmock/gmock.h>

#include <QHeaderView>
#include <QMenuBar>
#include <QStatusBar>
#include <vector>

#include "mainwindow/WindowFixture.h"
#include "platform/TwipsConversion.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

class Panes : public WindowTest {
 protected:
  Panes() {
    program.settings.values["SplitterPos"] = "3000";
    EXPECT_TRUE(program.Start(PutSampleFile(28)));
    program.Window().resize(700, 400);
  }
  [[nodiscard]] QWidget& The(const char* name) { return program.Find<QWidget>(name); }
  [[nodiscard]] QWidget& Client() { return The("client"); }
  /// Left edge and width.
  [[nodiscard]] std::vector<int> Across(const char* name) {
    return {The(name).x(), The(name).width()};
  }
  /// Where a control begins, counted from the top of the window, and where it ends.
  [[nodiscard]] std::vector<int> Down(const char* name) {
    const int top = The(name).mapTo(&program.Window(), QPoint(0, 0)).y();
    return {top, top + The(name).height()};
  }
  void DragSplitterTo(int x) {
    QWidget& strip = The("imgSplitter");
    const int left = strip.x();
    QTest::mousePress(&strip, Qt::LeftButton, {}, {0, 10});
    QTest::mouseMove(&strip, {x - left, 10});
    QTest::mouseRelease(&strip, Qt::LeftButton, {}, {x - left, 10});
  }

  RunningProgram program;
};

TEST_F(Panes, DivideTheWidthAtTheSplitter) {
  EXPECT_THAT(Across("tvCons"), ElementsAre(4, 193));       // 60; 3000 - 100
  EXPECT_THAT(Across("imgSplitter"), ElementsAre(200, 7));  // 3000; 105
  EXPECT_THAT(Across("lstEvents"), ElementsAre(203, 496));  // 3000 + 40; 10500 - (2900 + 165)
  EXPECT_THAT(Across("picTitles"), ElementsAre(0, 700));
  EXPECT_THAT(Across("lblTitle(0)"), ElementsAre(0, 198));    // 2900 + 70
  EXPECT_THAT(Across("lblTitle(1)"), ElementsAre(203, 494));  // 3040; 7435 - 20
}

TEST_F(Panes, FollowTheSplitter) {
  DragSplitterTo(400);
  EXPECT_THAT(Across("tvCons"), ElementsAre(4, 393));         // 6000 - 100
  EXPECT_THAT(Across("imgSplitter"), ElementsAre(400, 7));    // 6000
  EXPECT_THAT(Across("lstEvents"), ElementsAre(403, 296));    // 6000 + 40; 10500 - (5900 + 165)
  EXPECT_THAT(Across("lblTitle(0)"), ElementsAre(0, 398));    // 5900 + 70
  EXPECT_THAT(Across("lblTitle(1)"), ElementsAre(403, 294));  // 6040; 4435 - 20
}

TEST_F(Panes, OfAWiderWindowGiveTheListWhatIsMore) {
  program.Window().resize(760, 400);  // 11400
  ASSERT_TRUE(QTest::qWaitFor([this] { return Client().width() == 760; }));
  EXPECT_THAT(Across("tvCons"), ElementsAre(4, 193));
  EXPECT_THAT(Across("lstEvents"), ElementsAre(203, 556));    // 11400 - (2900 + 165)
  EXPECT_THAT(Across("lblTitle(1)"), ElementsAre(203, 554));  // 8335 - 20
}

/// Which of the two bars are there.
struct Bars {
  const char* name;
  bool toolbar;
  bool statusBar;
};

class PanesBetweenBars : public Panes, public testing::WithParamInterface<Bars> {};

INSTANTIATE_TEST_SUITE_P(, PanesBetweenBars,
                         testing::Values(Bars{"Both", true, true}, Bars{"NoToolbar", false, true},
                                         Bars{"NoStatusBar", true, false},
                                         Bars{"Neither", false, false}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(PanesBetweenBars, FillTheHeightThatTheBarsLeave) {
  const QWidget& menu = *program.Window().menuBar();
  const QWidget& toolbar = The("tlbCon");
  const QWidget& statusBar = *program.Window().statusBar();
  if (!GetParam().toolbar) program.Choose("mnuViewToolbar");
  if (!GetParam().statusBar) program.Choose("mnuViewStatusBar");
  const QWidget& above = GetParam().toolbar ? toolbar : menu;
  const auto top = [&above] { return above.y() + above.height(); };
  const auto bottom = [&] { return GetParam().statusBar ? statusBar.y() : 400; };
  // The bars go at once, and the window is laid out anew when it has the time.
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return Client().y() == top() && Client().y() + Client().height() == bottom(); }));

  EXPECT_THAT(Down("picTitles"), ElementsAre(top(), top() + 20));  // 300
  EXPECT_THAT(Down("lblTitle(0)"), ElementsAre(top() + 4, top() + 18));
  EXPECT_THAT(Down("lblTitle(1)"), ElementsAre(top() + 4, top() + 18));
  const int paneTop = top() + 21;  // 300 + 20
  const int paneHeight = PixelsFromTwips((bottom() - top()) * 15 - 350);
  for (const char* pane : {"tvCons", "lstEvents", "imgSplitter"}) {
    EXPECT_THAT(Down(pane), ElementsAre(paneTop, paneTop + paneHeight)) << pane;
  }
}

TEST_F(Panes, LeaveThePictureInTheMiddleWhenThereIsNoFile) {
  program.Choose("mnuFileClose");
  const QWidget& logo = The("picLogo");
  const auto expectMiddle = [&] {
    const QRect place = logo.geometry();
    EXPECT_NEAR(place.left(), Client().width() - place.left() - place.width(), 1);
    EXPECT_NEAR(place.top(), Client().height() - place.top() - place.height(), 1);
  };
  EXPECT_TRUE(logo.isVisible());
  expectMiddle();
  program.Window().resize(640, 460);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Client().width() == 640; }));
  expectMiddle();
  const int height = Client().height();
  program.Choose("mnuViewToolbar");
  program.Choose("mnuViewStatusBar");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Client().height() > height + 30; }));
  expectMiddle();
}

class Columns : public Panes {
 protected:
  [[nodiscard]] QHeaderView& Heads() { return *program.Events().findChild<QHeaderView*>(); }
  /// Takes hold of the right edge of a column's head and pulls it.
  void DragHead(int column, int by) {
    const int x = Heads().sectionViewportPosition(column) + Heads().sectionSize(column) - 1;
    const QPoint edge(x, Heads().height() / 2);
    QTest::mousePress(Heads().viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(Heads().viewport(), edge + QPoint(by, 0));
    QTest::mouseRelease(Heads().viewport(), Qt::LeftButton, {}, edge + QPoint(by, 0));
  }
  [[nodiscard]] std::vector<int> Widths() {
    std::vector<int> widths;
    for (int column = 0; column < 4; ++column)
      widths.push_back(program.Events().ColumnWidth(column));
    return widths;
  }
};

TEST_F(Columns, TheLastTakesWhatTheOthersLeaveButFor20Pixels) {
  EXPECT_EQ(program.Events().width(), 496);
  EXPECT_THAT(Widths(), ElementsAre(100, 100, 100, 176));
}

TEST_F(Columns, TheLastGivesWhatAnotherIsDraggedWiderByAndTakesItBack) {
  DragHead(1, 30);
  EXPECT_THAT(Widths(), ElementsAre(100, 130, 100, 146));
  DragHead(0, -25);
  EXPECT_THAT(Widths(), ElementsAre(75, 130, 100, 171));
  DragHead(2, 12);
  EXPECT_THAT(Widths(), ElementsAre(75, 130, 112, 159));
}

TEST_F(Columns, TheLastCannotBeDraggedAwayFromTheWidthThatIsLeft) {
  DragHead(3, -40);
  EXPECT_THAT(Widths(), ElementsAre(100, 100, 100, 176));
}

TEST_F(Columns, TheLastGrowsAndShrinksWithTheWindow) {
  program.Window().resize(760, 400);
  ASSERT_TRUE(QTest::qWaitFor([this] { return program.Events().width() == 556; }));
  EXPECT_THAT(Widths(), ElementsAre(100, 100, 100, 236));
  program.Window().resize(660, 400);
  ASSERT_TRUE(QTest::qWaitFor([this] { return program.Events().width() == 456; }));
  EXPECT_THAT(Widths(), ElementsAre(100, 100, 100, 136));
}

TEST_F(Columns, TheLastFollowsTheSplitter) {
  DragSplitterTo(160);                       // 2400 twips
  EXPECT_EQ(program.Events().width(), 536);  // 10500 - (2300 + 165)
  EXPECT_THAT(Widths(), ElementsAre(100, 100, 100, 216));
}

TEST_F(Columns, TheLastHasItsWidthFromTheStartOn) {
  RunningProgram other;
  other.settings.values["SplitterPos"] = "3000";
  other.settings.values["MainWidth"] = "10500";
  other.settings.values["LabelColumnWidth"] = "61";
  other.settings.values["ActionColumnWidth"] = "82";
  other.settings.values["ActorColumnWidth"] = "143";
  ASSERT_TRUE(other.Start(PutSampleFile(28, "other.con")));
  EXPECT_EQ(other.Events().width(), 496);
  EXPECT_EQ(other.Events().ColumnWidth(3), 190);  // 496 - (61 + 82 + 143) - 20
}

}  // namespace
}  // namespace parlate

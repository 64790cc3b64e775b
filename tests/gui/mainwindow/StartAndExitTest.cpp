// What the window takes from the settings when it starts, and what it leaves there at exit.

#include <gmock/gmock.h>

#include <QApplication>
#include <QHeaderView>
#include <QScreen>
#include <QStatusBar>
#include <map>
#include <vector>

#include "mainwindow/WindowFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

/// A stored state of the window, and how the window comes then.
struct StoredState {
  const char* name;
  const char* stored;
  bool maximised;
};

void PrintTo(const StoredState& state, std::ostream* out) { *out << state.name; }

class StartWindowState : public WindowTest, public testing::WithParamInterface<StoredState> {};

INSTANTIATE_TEST_SUITE_P(, StartWindowState,
                         testing::Values(StoredState{"Normal", "0", false},
                                         StoredState{"Minimised", "1", false},
                                         StoredState{"Maximised", "2", true}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(StartWindowState, IsTheStoredOneButNeverMinimised) {
  RunningProgram program;
  program.settings.values["WindowState"] = GetParam().stored;
  program.settings.values["MainWidth"] = "6000";
  ASSERT_TRUE(program.Start());
  EXPECT_TRUE(program.Window().isVisible());
  EXPECT_FALSE(program.Window().isMinimized());
  EXPECT_EQ(program.Window().isMaximized(), GetParam().maximised);
  const int room = program.Window().screen()->availableGeometry().width();
  constexpr int kFrames = 8;  // of the platform that the tests run on, at most
  const auto width = [&program] { return program.Window().width(); };
  if (GetParam().maximised) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return width() >= room - kFrames; })) << width();
  } else {
    EXPECT_EQ(width(), 400);
  }
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["WindowState"], GetParam().maximised ? "2" : "0");
}

/// A way to leave a window that is no longer in its normal state.
struct LeftState {
  const char* name;
  void (QWidget::*enter)();
  bool (QWidget::*entered)() const;
  const char* stored;
};

void PrintTo(const LeftState& state, std::ostream* out) { *out << state.name; }

class ExitWindowState : public WindowTest, public testing::WithParamInterface<LeftState> {};

INSTANTIATE_TEST_SUITE_P(
    , ExitWindowState,
    testing::Values(LeftState{"Maximised", &QWidget::showMaximized, &QWidget::isMaximized, "2"},
                    LeftState{"Minimised", &QWidget::showMinimized, &QWidget::isMinimized, "1"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_P(ExitWindowState, KeepsTheStoredRectangleAndTheStoredSplitter) {
  const std::map<std::string, std::string> stored = {{"MainLeft", "1500"},
                                                     {"MainTop", "1200"},
                                                     {"MainWidth", "9000"},
                                                     {"MainHeight", "6300"},
                                                     {"SplitterPos", "3000"}};
  RunningProgram program;
  program.settings.values.insert(stored.begin(), stored.end());
  ASSERT_TRUE(program.Start(PutSampleFile(28)));
  program.Window().setGeometry(40, 60, 700, 400);
  QTest::keyClick(&program.Find<QWidget>("imgSplitter"), Qt::Key_Right);
  ASSERT_EQ(program.Find<QWidget>("imgSplitter").x(), 210);
  (program.Window().*GetParam().enter)();
  ASSERT_TRUE(QTest::qWaitFor([&] { return (program.Window().*GetParam().entered)(); }));
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["WindowState"], GetParam().stored);
  for (const auto& [key, value] : stored) EXPECT_EQ(program.settings.values[key], value) << key;
}

class Exit : public WindowTest {};

TEST_F(Exit, StoresTheRectangleInTwips) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  program.Window().setGeometry(40, 60, 700, 400);
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["MainLeft"], "600");
  EXPECT_EQ(program.settings.values["MainTop"], "900");
  EXPECT_EQ(program.settings.values["MainWidth"], "10500");
  EXPECT_EQ(program.settings.values["MainHeight"], "6000");
  EXPECT_EQ(program.settings.values["EventLeft"], "-1") << "no editor was open";
}

class Start : public WindowTest {};

TEST_F(Start, StandsInTheStoredRectangleWithTheStoredSplitter) {
  RunningProgram program;
  program.settings.values["MainLeft"] = "1500";
  program.settings.values["MainTop"] = "1200";
  program.settings.values["MainWidth"] = "9000";
  program.settings.values["MainHeight"] = "6300";
  program.settings.values["SplitterPos"] = "4500";
  ASSERT_TRUE(program.Start(PutSampleFile(28)));
  EXPECT_EQ(program.Window().geometry(), QRect(100, 80, 600, 420));
  EXPECT_EQ(program.Find<QWidget>("imgSplitter").x(), 300);
}

TEST_F(Start, GivesEachColumnItsStoredWidthAndTheExitStoresEachUnderItsOwnKey) {
  RunningProgram program;
  program.settings.values["LabelColumnWidth"] = "61";
  program.settings.values["ActionColumnWidth"] = "82";
  program.settings.values["ActorColumnWidth"] = "143";
  ASSERT_TRUE(program.Start(PutSampleFile(28)));
  const auto widths = [&list = program.Events()] {
    return std::vector<int>{list.ColumnWidth(0), list.ColumnWidth(1), list.ColumnWidth(2)};
  };
  EXPECT_THAT(widths(), ElementsAre(61, 82, 143));
  auto& heads = *program.Events().findChild<QHeaderView*>();
  heads.resizeSection(0, 75);
  heads.resizeSection(1, 96);
  heads.resizeSection(2, 157);
  EXPECT_THAT(widths(), ElementsAre(75, 96, 157));
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["LabelColumnWidth"], "75");
  EXPECT_EQ(program.settings.values["ActionColumnWidth"], "96");
  EXPECT_EQ(program.settings.values["ActorColumnWidth"], "157");
}

TEST_F(Start, TakesEveryMarkOfTheViewMenuFromTheSettings) {
  RunningProgram program;
  for (const char* key :
       {"ToolBarEnabled", "StatusBarEnabled", "ExpandListEnabled", "ShowAudioFiles"}) {
    program.settings.values[key] = "False";
  }
  ASSERT_TRUE(program.Start(PutSampleFile(28)));
  for (const char* toggle :
       {"mnuViewToolbar", "mnuViewStatusBar", "mnuViewExpandList", "mnuViewShowAudioFiles"}) {
    EXPECT_FALSE(program.Window().Command(toggle)->isChecked()) << toggle;
  }
  EXPECT_FALSE(program.Find<QWidget>("tlbCon").isVisible());
  EXPECT_FALSE(program.Window().statusBar()->isVisible());
  program.ClickNode("C0");
  MultiColumnList& list = program.Events();
  ASSERT_EQ(list.Rows().ListCount(), 23U);
  for (int row = 0; row < 23; ++row) {
    EXPECT_EQ(list.RowRect(row).height(), list.SingleLineHeight()) << row;
  }
  EXPECT_EQ(list.Rows().Row(0).text, "Start;Speech;Maya \xE9;Hello\r\nthere");
  program.Choose("mnuViewExpandList");
  EXPECT_EQ(list.Rows().Row(0).text, "Start;Speech;Maya \xE9;") << "without the audio file";
}

/// A mark of the View menu and the key that keeps it.
struct Mark {
  const char* command;
  const char* key;
};

class ViewMark : public WindowTest, public testing::WithParamInterface<Mark> {};

INSTANTIATE_TEST_SUITE_P(, ViewMark,
                         testing::Values(Mark{"mnuViewToolbar", "ToolBarEnabled"},
                                         Mark{"mnuViewStatusBar", "StatusBarEnabled"},
                                         Mark{"mnuViewExpandList", "ExpandListEnabled"},
                                         Mark{"mnuViewShowAudioFiles", "ShowAudioFiles"}),
                         [](const auto& test) { return std::string(test.param.key); });

TEST_P(ViewMark, SwitchedOffAloneComesBackOffAndOnAgainComesBackOn) {
  const auto [command, key] = GetParam();
  MapSettings kept;
  for (const bool on : {false, true}) {
    RunningProgram program;
    program.settings.values.insert(kept.values.begin(), kept.values.end());
    ASSERT_TRUE(program.Start());
    ASSERT_EQ(program.Window().Command(command)->isChecked(), !on);
    program.Choose(command);
    EXPECT_TRUE(program.Close());
    kept.values = program.settings.values;
    for (const char* other :
         {"ToolBarEnabled", "StatusBarEnabled", "ExpandListEnabled", "ShowAudioFiles"}) {
      const bool off = !on && other == std::string(key);
      EXPECT_EQ(kept.values[other], off ? "False" : "True") << other;
    }
  }
}

TEST_F(Start, KeepsABarHiddenThatWasHiddenInTheRunBefore) {
  for (const char* command : {"mnuViewToolbar", "mnuViewStatusBar"}) {
    RunningProgram first;
    ASSERT_TRUE(first.Start());
    first.Choose(command);
    EXPECT_TRUE(first.Close());
    RunningProgram next;
    next.settings.values = first.settings.values;
    ASSERT_TRUE(next.Start());
    const bool toolbarHidden = command == std::string("mnuViewToolbar");
    EXPECT_EQ(next.Find<QWidget>("tlbCon").isVisible(), !toolbarHidden) << command;
    EXPECT_EQ(next.Window().statusBar()->isVisible(), toolbarHidden) << command;
  }
}

/// Sees the splash come while the main window is still out of sight.
class SplashWatch : public QObject {
 public:
  explicit SplashWatch(const QWidget& window) : window_(window) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched->objectName() != QLatin1String("frmSplash")) return false;
    if (event->type() == QEvent::Show) shownBeforeWindow.push_back(!window_.isVisible());
    return false;
  }

  std::vector<bool> shownBeforeWindow;

 private:
  const QWidget& window_;
};

TEST_F(Start, ShowsTheSplashOnceAheadOfTheWindowAndItIsGoneThen) {
  RunningProgram program;
  const SplashWatch watch(program.Window());
  ASSERT_TRUE(program.Start());
  EXPECT_THAT(watch.shownBeforeWindow, ElementsAre(true));
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    EXPECT_NE(window->objectName(), "frmSplash");
  }
}

TEST_F(Start, ShowsTheSplashAlsoWhenTheSettingsAreDeclined) {
  RunningProgram program("");
  const SplashWatch watch(program.Window());
  WhenFormShows("frmSettings", [](QWidget& form) { form.close(); });
  EXPECT_FALSE(program.Start());
  EXPECT_THAT(watch.shownBeforeWindow, ElementsAre(true));
}

TEST_F(Start, FindsTheWindowUnderItsDesignCaptionAndGivesItTheTitle) {
  RunningProgram program;
  EXPECT_EQ(program.Window().windowTitle(), "Conversation");
  ASSERT_TRUE(program.Start());
  EXPECT_EQ(program.Window().windowTitle(), "Parlate");
}

TEST_F(Start, GivesTheListOfEventsItsFont) {
  RunningProgram program;
  ASSERT_TRUE(program.Start(PutSampleFile(28)));
  const QFont font = program.Events().font();
  EXPECT_EQ(font.families().value(0), "MS Sans Serif");
  EXPECT_EQ(font.pointSize(), 8);
  EXPECT_NE(program.Tree().font().families().value(0), "MS Sans Serif") << "the list alone";
}

}  // namespace
}  // namespace parlate

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>

#include "mainwindow/WindowFixture.h"
#include "shell/EventRows.h"

namespace parlate {
namespace {

using namespace testing_support;

class MainWindow : public WindowTest {};

TEST_F(MainWindow, CancellingTheSettingsAtTheFirstStartEndsTheProgram) {
  RunningProgram program("");
  WhenFormShows("frmSettings", [](QWidget& form) {
    QTest::mouseClick(form.findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
  });
  EXPECT_FALSE(program.Start());
  EXPECT_FALSE(program.Window().isVisible());
}

TEST_F(MainWindow, ConfirmingABlankNameAtTheFirstStartGoesOn) {
  RunningProgram program("");
  WhenFormShows("frmSettings", [](QWidget& form) {
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  });
  EXPECT_TRUE(program.Start());
  EXPECT_TRUE(program.Window().isVisible());
}

TEST_F(MainWindow, ANameLeftBlankIsAskedForAgainAtTheNextStart) {
  RunningProgram first("");
  WhenFormShows("frmSettings", [](QWidget& form) {
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  });
  ASSERT_TRUE(first.Start());
  EXPECT_TRUE(first.Close());
  RunningProgram second("");
  second.settings.values = first.settings.values;
  bool asked = false;
  WhenFormShows("frmSettings", [&asked](QWidget& form) {
    asked = true;
    QTest::mouseClick(form.findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
  });
  EXPECT_FALSE(second.Start());
  EXPECT_TRUE(asked);
}

TEST_F(MainWindow, ANameGivenAtTheFirstStartIsNotAskedForAgain) {
  RunningProgram first("");
  WhenFormShows("frmSettings", [](QWidget& form) {
    QTest::keyClicks(form.findChild<QWidget*>("txtUsername"), "Ada");
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  });
  ASSERT_TRUE(first.Start());
  EXPECT_TRUE(first.Close());
  EXPECT_EQ(first.settings.values["Username"], "Ada");
  RunningProgram second("");
  second.settings.values = first.settings.values;
  EXPECT_TRUE(second.Start());
}

TEST_F(MainWindow, WithoutAFileShowsThePictureOnBlackAndNoPanes) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  EXPECT_EQ(program.Window().windowTitle(), "Parlate");
  EXPECT_EQ(program.Find<QLabel>("panStatus").text(), "No Conversation Loaded");
  EXPECT_EQ(program.Find<QWidget>("client").palette().color(QPalette::Window), QColor(Qt::black));
  EXPECT_TRUE(program.Find<QWidget>("picLogo").isVisible());
  for (const char* hidden : {"picTitles", "tvCons", "lstEvents", "lblTitle(0)", "lblTitle(1)"}) {
    EXPECT_FALSE(program.Find<QWidget>(hidden).isVisible()) << hidden;
  }
  EXPECT_TRUE(program.Enabled("mnuView"));
  EXPECT_FALSE(program.Enabled("mnuCon"));
  EXPECT_FALSE(program.Find<QComboBox>("cboFind").isEnabled());
}

TEST_F(MainWindow, WithAFileShowsThePanesAndItsPath) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start("\"" + path + "\""));
  EXPECT_EQ(program.Window().windowTitle(), QString::fromStdString("Parlate - " + path));
  EXPECT_EQ(program.Find<QLabel>("panStatus").text(), "");
  EXPECT_FALSE(program.Find<QWidget>("picLogo").isVisible());
  for (const char* shown : {"picTitles", "tvCons", "lstEvents", "lblTitle(0)", "lblTitle(1)"}) {
    EXPECT_TRUE(program.Find<QWidget>(shown).isVisible()) << shown;
  }
  EXPECT_EQ(program.Find<QLabel>("lblTitle(0)").text(), " Conversations:");
  EXPECT_EQ(program.Find<QLabel>("lblTitle(1)").text(), " Events:");
  EXPECT_TRUE(program.Tree().isExpanded(program.Tree().model()->index(0, 0)));
  EXPECT_TRUE(program.Close());
}

TEST_F(MainWindow, CannotBeMadeNarrowerThan3000Twips) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  program.Window().resize(50, 300);
  EXPECT_EQ(program.Window().width(), 200);
}

TEST_F(MainWindow, CanBeMadeAsLowAsItsBars) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.Window().resize(700, 10);
  EXPECT_EQ(program.Window().width(), 700);
  const int bars = program.Window().menuBar()->height() +
                   program.Find<QToolBar>("tlbCon").height() +
                   program.Window().statusBar()->height();
  EXPECT_LE(program.Window().height(), bars + 10) << "the panes ask for no height";
  EXPECT_LE(program.Window().height(), 130);
}

TEST_F(MainWindow, HidesTheToolbarAndStatusBarAsTheirMarksSay) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  program.Choose("mnuViewToolbar");
  program.Choose("mnuViewStatusBar");
  EXPECT_FALSE(program.Find<QToolBar>("tlbCon").isVisible());
  EXPECT_FALSE(program.Window().statusBar()->isVisible());
  program.Choose("mnuViewToolbar");
  EXPECT_TRUE(program.Find<QToolBar>("tlbCon").isVisible());
}

TEST_F(MainWindow, ListHasItsHeadsAndNoRowTallerThanALineWhenItIsNotExpanded) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  MultiColumnList& list = program.Events();
  const char* const heads[] = {"Label", "Action", "NPC", "Description"};
  for (int i = 0; i < 4; ++i) EXPECT_EQ(list.Head(i), heads[i]);
  EXPECT_GT(list.RowRect(0).height(), list.SingleLineHeight());
  program.Choose("mnuViewExpandList");
  for (int row = 0; row < static_cast<int>(list.Rows().ListCount()); ++row) {
    EXPECT_EQ(list.RowRect(row).height(), list.SingleLineHeight()) << row;
  }
  EXPECT_FALSE(program.workspace.defaults.ExpandListEnabled);
}

TEST_F(MainWindow, TheViewTogglesAreOnAtFirstAndShowAtOnce) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  for (const char* toggle :
       {"mnuViewToolbar", "mnuViewStatusBar", "mnuViewExpandList", "mnuViewShowAudioFiles"}) {
    EXPECT_TRUE(program.Window().Command(toggle)->isChecked()) << toggle;
  }
  program.ClickNode("C0");
  const auto speech = [&program]() -> const ListRow& { return program.Events().Rows().Row(0); };
  EXPECT_EQ(speech().text, "Start;Speech;Maya \xE9;hello.mp3");
  EXPECT_EQ(speech().subText, "Hello\r\nthere");
  program.Choose("mnuViewShowAudioFiles");
  EXPECT_EQ(speech().text, "Start;Speech;Maya \xE9;");
  EXPECT_FALSE(program.workspace.defaults.bShowAudioFiles);
  program.Choose("mnuViewShowAudioFiles");
  EXPECT_EQ(speech().text, "Start;Speech;Maya \xE9;hello.mp3");
  EXPECT_TRUE(program.workspace.defaults.bShowAudioFiles);
  program.Choose("mnuViewExpandList");
  EXPECT_EQ(speech().text, "Start;Speech;Maya \xE9;Hello\r\nthere");
  EXPECT_EQ(speech().subText, "");
  EXPECT_FALSE(program.workspace.defaults.ExpandListEnabled);
  program.Choose("mnuViewExpandList");
  EXPECT_EQ(speech().subText, "Hello\r\nthere");
  EXPECT_TRUE(program.workspace.defaults.ExpandListEnabled);
}

TEST_F(MainWindow, OpeningTheConversationMenuBringsTheCommandsUpToDate) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.Choose("mnuConCopy");
  ASSERT_FALSE(program.Enabled("mnuConPaste")) << "a copy alone updates nothing";
  program.Press(Qt::Key_C, Qt::AltModifier);
  QMenu& menu = *program.Window().Command("mnuCon")->menu();
  ASSERT_TRUE(QTest::qWaitFor([&menu] { return menu.isVisible(); }));
  EXPECT_TRUE(program.Enabled("mnuConPaste"));
  menu.close();
}

TEST_F(MainWindow, ASecondClickOnARowDeselectsItAndTheNextSelectsItAgain) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.ClickRow(2);
  EXPECT_EQ(program.Events().Rows().ListIndex(), 2);
  EXPECT_TRUE(program.Enabled("tlbCon/Cut"));
  program.ClickRow(2);
  EXPECT_EQ(program.Events().Rows().ListIndex(), -1);
  EXPECT_FALSE(program.Enabled("tlbCon/Cut"));
  program.ClickRow(2);
  EXPECT_EQ(program.Events().Rows().ListIndex(), 2);
}

TEST_F(MainWindow, ARightClickAndThenALeftOneOnTheSameRowKeepTheSelection) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.ClickRow(1);
  program.ClickRow(1, Qt::RightButton);
  auto& popup = program.Find<QMenu>("mnuEventPopup");
  ASSERT_TRUE(QTest::qWaitFor([&] { return popup.isVisible(); }));
  popup.close();
  program.ClickRow(1);
  EXPECT_EQ(program.Events().Rows().ListIndex(), 1);
}

TEST_F(MainWindow, AfterTheKeyboardsPopupAClickOnTheSelectedRowDeselectsIt) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  auto& popup = program.Find<QMenu>("mnuEventPopup");
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
  } wishes[] = {{Qt::Key_Menu, Qt::NoModifier}, {Qt::Key_F10, Qt::ShiftModifier}};
  for (const auto& wish : wishes) {
    program.ClickRow(1);
    ASSERT_EQ(program.Events().Rows().ListIndex(), 1);
    QTest::keyClick(&program.Events(), wish.key, wish.modifiers);
    ASSERT_TRUE(QTest::qWaitFor([&] { return popup.isVisible(); }));
    popup.close();
    program.ClickRow(1);
    EXPECT_EQ(program.Events().Rows().ListIndex(), -1);
  }
}

TEST_F(MainWindow, DeleteInTheListAsksAndThenSelectsTheRowThatMovedUp) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.ClickRow(1);
  program.messages.Expect(Answer::No);
  QTest::keyClick(&program.Events(), Qt::Key_Delete);
  EXPECT_EQ(program.Events().Rows().ListCount(), 23U);
  program.messages.Expect(Answer::Yes);
  QTest::keyClick(&program.Events(), Qt::Key_Delete);
  EXPECT_EQ(program.Events().Rows().ListCount(), 22U);
  EXPECT_EQ(program.Events().Rows().ListIndex(), 1);
  program.messages.Expect(Answer::No);  // the question about unsaved changes
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.messages.shown.back().title, "Save Changes?");
}

TEST_F(MainWindow, CancellingTheQuestionAboutChangesKeepsTheWindowOpen) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.shell().SetModified(true, nullptr);
  program.messages.Expect(Answer::Cancel);
  EXPECT_FALSE(program.Close());
  EXPECT_NE(program.shell().GetConFile(), nullptr);
  program.messages.Expect(Answer::No);
  EXPECT_TRUE(program.Close());
}

TEST_F(MainWindow, CtrlFLeavesAHiddenToolbarHiddenAndOpensTheDialogAlone) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.Choose("mnuViewToolbar");
  program.Tree().setFocus();
  bool came = false;
  WhenFormShows("frmFind", [&came](QWidget& form) {
    came = true;
    form.close();
  });
  program.Press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(came);
  program.Activate();
  EXPECT_FALSE(program.Find<QToolBar>("tlbCon").isVisible());
  EXPECT_FALSE(program.Window().Command("mnuViewToolbar")->isChecked());
  EXPECT_TRUE(program.Tree().hasFocus());
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["ToolBarEnabled"], "False");
}

TEST_F(MainWindow, AWindowStoredForALargerScreenComesBackWhole) {
  RunningProgram program;
  program.settings.values["MainLeft"] = "30000";
  program.settings.values["MainWidth"] = "32000";
  ASSERT_TRUE(program.Start());
  const QRect room = program.Window().screen()->availableGeometry();
  const QRect placed = program.Window().geometry();
  EXPECT_GE(placed.left(), room.left());
  EXPECT_LE(placed.width(), room.width());
  constexpr int kFrame = 2;  // of the platform that the tests run on
  EXPECT_LE(placed.right(), room.right() + kFrame);
  EXPECT_LE(placed.bottom(), room.bottom() + kFrame);
}

TEST_F(MainWindow, EscapeDeselectsTheRow) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.ClickRow(2);
  QTest::keyClick(&program.Events(), Qt::Key_Escape);
  EXPECT_EQ(program.Events().Rows().ListIndex(), -1);
}

TEST_F(MainWindow, ClearingTheRecentFilesHidesThemAtOnceAndHighlightingEndsWithOk) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.shell().SelectedCon()->events.Place(1)->As<EventSpeech>()->audioFile.clear();
  program.shell().UpdateEventsList(nullptr);
  EXPECT_EQ(program.Events().Rows().Row(0).color, kMissingAudioRow);
  WhenFormShows("frmSettings", [&](QWidget& form) {
    auto* clear = form.findChild<QPushButton*>("cmdClearLastFiles");
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_FALSE(clear->isEnabled());
    EXPECT_FALSE(program.Window().Command("mnuFileDash")->isVisible());
    EXPECT_FALSE(program.Window().Command("mnuFileLast(0)")->isVisible());
    QTest::keyClick(form.findChild<QWidget*>("chkHighlightMissingAudio"), Qt::Key_Space);
    QTest::mouseClick(form.findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  });
  program.Choose("mnuViewOptions");
  EXPECT_EQ(program.Events().Rows().Row(0).color, kLabelRow);
}

TEST_F(MainWindow, RecentFilesStandInTheMenuAndOpen) {
  const std::string first = PutSampleFile(28, "a & b.con");
  const std::string second = PutSampleFile(28, "second.con");
  RunningProgram program;
  ASSERT_TRUE(program.Start(first));
  EXPECT_TRUE(program.Window().Command("mnuFileDash")->isVisible());
  program.shell().OpenConFile(second);
  QAction* older = program.Window().Command("mnuFileLast(1)");
  EXPECT_EQ(older->text(), QString::fromStdString("&2  " + folder.File("a && b.con")));
  EXPECT_FALSE(program.Window().Command("mnuFileLast(2)")->isVisible());
  program.Choose("mnuFileLast(1)");
  EXPECT_EQ(program.shell().conFileName, first);
}

}  // namespace
}  // namespace parlate

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
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

TEST_F(MainWindow, KeepsTheStoredRectangleWhenItExitsMaximised) {
  RunningProgram program;
  program.settings.values["MainLeft"] = "1500";
  program.settings.values["MainWidth"] = "9000";
  ASSERT_TRUE(program.Start());
  program.Window().showMaximized();
  ASSERT_TRUE(QTest::qWaitFor([&] { return program.Window().isMaximized(); }));
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["WindowState"], "2");
  EXPECT_EQ(program.settings.values["MainLeft"], "1500");
  EXPECT_EQ(program.settings.values["MainWidth"], "9000");
}

TEST_F(MainWindow, StartsNormalWhenItWasMinimisedAtTheEnd) {
  RunningProgram program;
  program.settings.values["WindowState"] = "1";
  ASSERT_TRUE(program.Start());
  EXPECT_FALSE(program.Window().isMinimized());
}

TEST_F(MainWindow, StoresItsRectangleInTwipsAndItsCheckMarksAtExit) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  program.Window().setGeometry(40, 60, 700, 400);
  program.Choose("mnuViewStatusBar");
  program.Choose("mnuViewShowAudioFiles");
  program.Events().SetColumnWidth(1, 140);
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["MainLeft"], "600");
  EXPECT_EQ(program.settings.values["MainTop"], "900");
  EXPECT_EQ(program.settings.values["MainWidth"], "10500");
  EXPECT_EQ(program.settings.values["MainHeight"], "6000");
  EXPECT_EQ(program.settings.values["ToolBarEnabled"], "True");
  EXPECT_EQ(program.settings.values["StatusBarEnabled"], "False");
  EXPECT_EQ(program.settings.values["ShowAudioFiles"], "False");
  EXPECT_EQ(program.settings.values["ActionColumnWidth"], "140");
  EXPECT_EQ(program.settings.values["EventLeft"], "-1");
}

TEST_F(MainWindow, DroppingTheSplitterAt600LeavesItAt1500) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  auto& strip = program.Find<QWidget>("imgSplitter");
  auto& bar = program.Find<QWidget>("picSplitter");
  const int left = strip.x();
  QTest::mousePress(&strip, Qt::LeftButton, {}, {0, 10});
  EXPECT_TRUE(bar.isVisible());
  QTest::mouseMove(&strip, {40 - left, 10});  // 600 twips from the window's edge
  EXPECT_EQ(bar.x(), 40);
  QTest::mouseMove(&strip, {10 - left, 10});  // 150 twips: the bar stops at 500
  EXPECT_EQ(bar.x(), 33);
  QTest::mouseMove(&strip, {40 - left, 10});
  QTest::mouseRelease(&strip, Qt::LeftButton, {}, {40 - left, 10});
  EXPECT_FALSE(bar.isVisible());
  EXPECT_EQ(strip.x(), 100);
  EXPECT_EQ(program.Tree().width(), 93);  // 1500 less 100 twips
}

TEST_F(MainWindow, CannotBeMadeNarrowerThan3000Twips) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  program.Window().resize(50, 300);
  EXPECT_EQ(program.Window().width(), 200);
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

TEST_F(MainWindow, ARefusedNameInTheTreeTellsWhyOnceAndTheOldOneStands) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  const struct {
    const char* typed;
    const char* message;
  } refusals[] = {
      {"two words",
       "Conversation names can only consist of letters, digits, underscore (_) and dash (-)."},
      {"LEAVING", "Conversation Name already in use, please choose another name."},
      {"", "Conversation Names Cannot Be Blank!"},
  };
  for (const auto& refusal : refusals) {
    QLineEdit* editor = program.EditNode("C0");
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, refusal.typed);
    program.messages.Expect(Answer::Ok);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.Tree().findChild<QLineEdit*>() == nullptr; }));
    EXPECT_EQ(program.messages.shown.back().text, refusal.message);
    EXPECT_EQ(program.shell().tvCons().FindNode("C0")->text, "Greeting");
  }
  EXPECT_EQ(program.messages.shown.size(), 3U);
}

TEST_F(MainWindow, ActorsAndFlagsCannotBeRenamed) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  EXPECT_EQ(program.EditNode("A1"), nullptr);
  program.shell().ExpandTreeNodes(true, program.shell().tvCons().FindNode("C0"));
  EXPECT_EQ(program.EditNode("F2,0"), nullptr);
}

TEST_F(MainWindow, ACharacterOutsideTheCodePageShowsAtOnceAsAQuestionMark) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  QLineEdit* editor = program.EditNode("C0");
  ASSERT_NE(editor, nullptr);
  editor->selectAll();
  QApplication::clipboard()->setText(QString::fromUtf8("a\u0436b"));
  QTest::keyClick(editor, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(editor->text(), "a?b");
  QTest::keyClick(editor, Qt::Key_Escape);
}

TEST_F(MainWindow, ClickingAnActorEmptiesTheListAndAFlagShowsItsConversation) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  EXPECT_TRUE(program.Enabled("mnuEventsAdd"));
  program.ClickNode("A0");
  EXPECT_EQ(program.Events().Rows().ListCount(), 0U);
  EXPECT_FALSE(program.Enabled("mnuEventsAdd"));
  program.shell().ExpandTreeNodes(true, program.shell().tvCons().FindNode("C0"));
  program.ClickNode("F3,0");
  EXPECT_EQ(program.Events().Rows().ListCount(), 23U);
}

TEST_F(MainWindow, TypingCCopiesTheConversationAndVPastesIt) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C7");
  QTest::keyClick(&program.Tree(), Qt::Key_C);
  QTest::keyClick(&program.Tree(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(program.shell().GetConFile()->Conversations.Count(), 3U);
  EXPECT_EQ(program.shell().SelectedCon()->key, 12);
}

TEST_F(MainWindow, TheTreesPopupIsForTheSelectedNodeNotTheOneUnderTheMouse) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.ClickNode("A0", Qt::RightButton);
  auto& popup = program.Find<QMenu>("mnuConPopup");
  ASSERT_TRUE(QTest::qWaitFor([&] { return popup.isVisible(); }));
  EXPECT_EQ(program.shell().tvCons().SelectedItem()->Key(), "C0");
  for (const char* live : {"mnuConPopupDelete", "mnuConPopupProperties", "mnuConPopupPrint",
                           "mnuConPopupExpandFlags", "mnuConPopupCut", "mnuConPopupCopy"}) {
    EXPECT_TRUE(program.Enabled(live)) << live;
  }
  EXPECT_FALSE(program.Enabled("mnuConPopupPaste"));
  popup.close();
}

TEST_F(MainWindow, TheFlagPopupTurnsTheFlagAndMarksNothingAsChanged) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.shell().ExpandTreeNodes(true, program.shell().tvCons().FindNode("C0"));
  program.ClickNode("F2,0");
  program.ClickNode("F2,0", Qt::RightButton);
  auto& popup = program.Find<QMenu>("mnuFlagPopup");
  ASSERT_TRUE(QTest::qWaitFor([&] { return popup.isVisible(); }));
  popup.close();
  program.Choose("mnuFlagPopupToggle");
  EXPECT_EQ(program.shell().tvCons().FindNode("F2,0")->Text(), "Door = False");
  EXPECT_FALSE(program.shell().GetConFile()->IsModified());
  EXPECT_TRUE(program.Close());
}

TEST_F(MainWindow, CtrlFBringsAHiddenToolbarBackForItsBox) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.Choose("mnuViewToolbar");
  WhenFormShows("frmFind", [](QWidget& form) { form.close(); });
  program.Press(Qt::Key_F, Qt::ControlModifier);
  program.Activate();
  EXPECT_TRUE(program.Find<QToolBar>("tlbCon").isVisible());
  EXPECT_TRUE(program.Find<QComboBox>("cboFind").hasFocus());
}

TEST_F(MainWindow, CollapseAllClosesTheActorOfTheSelectedConversationToo) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.Tree().setFocus();
  program.Choose("mnuConCollapseAll");
  QTest::qWait(50);  // scrolling to the selected node would come late
  const QModelIndex actor = program.Tree().model()->index(0, 0);
  EXPECT_FALSE(program.Tree().isExpanded(actor));
  EXPECT_TRUE(program.Tree().hasFocus());
  program.Choose("mnuConExpandAll");
  EXPECT_TRUE(program.Tree().isExpanded(actor));
}

TEST_F(MainWindow, PutsTheSplitterWhereItWas) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  program.settings.values["SplitterPos"] = "9000";
  program.settings.values["MainLeft"] = "0";
  ASSERT_TRUE(program.Start(path));
  EXPECT_EQ(program.Find<QWidget>("imgSplitter").x(), 600);
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(program.settings.values["SplitterPos"], "9000");
}

TEST_F(MainWindow, KeysMoveTheSplitter) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  auto& strip = program.Find<QWidget>("imgSplitter");
  const int left = strip.x();
  strip.setFocus();
  QTest::keyClick(&strip, Qt::Key_Right);
  EXPECT_EQ(strip.x(), left + 10);
  QTest::keyClick(&strip, Qt::Key_Left);
  EXPECT_EQ(strip.x(), left);
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

TEST_F(MainWindow, ANameLeftAsItWasMarksNothingAndTabStaysOnTheNode) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  QLineEdit* editor = program.EditNode("C0");
  ASSERT_NE(editor, nullptr);
  QTest::keyClick(editor, Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([&] { return program.Tree().findChild<QLineEdit*>() == nullptr; }));
  EXPECT_EQ(program.shell().SelectedCon()->key, 0);
  EXPECT_FALSE(program.shell().GetConFile()->IsModified());
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

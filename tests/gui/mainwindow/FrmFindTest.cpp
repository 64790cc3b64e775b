// The dialog and the quick box that search the events.

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QRadioButton>
#include <QToolBar>

#include "mainwindow/WindowFixture.h"
#include "platform/FormKeys.h"
#include "platform/Modal.h"
#include "platform/PaintCounter.h"
#include "support/ConversationScript.h"
#include "support/FileBytes.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

/// What a user does with the controls of the dialog.
class FindUser {
 public:
  explicit FindUser(QWidget& form) : form_(form) {}

  template <class Control>
  Control& The(const char* name) {
    return ControlNamed<Control>(form_, name);
  }
  QtComboBox& Text() { return The<QtComboBox>("cboFind"); }
  QPushButton& Button() { return The<QPushButton>("cmdFind"); }
  void Type(const QString& text) {
    Text().setFocus();
    Text().lineEdit()->selectAll();
    TypeText(Text(), text);
  }
  void Click(const char* name) {
    QTest::mouseClick(&The<QAbstractButton>(name), Qt::LeftButton, {},
                      QPoint(8, The<QAbstractButton>(name).height() / 2));
  }
  void Find() { Click("cmdFind"); }
  std::vector<std::string> History() {
    std::vector<std::string> texts;
    for (int i = 0; i < Text().ListCount(); ++i) texts.push_back(Text().List(i));
    return texts;
  }

 private:
  QWidget& form_;
};

/// Zoe: Arrival (key 1, no events) and greeting (key 0); Alex: Leaving (key 2).
class FindTest : public WindowTest {
 protected:
  FindTest() {
    WriteBytes(folder.File("harbour.con"), HarbourFile());
    EXPECT_TRUE(program_.Start(folder.File("harbour.con")));
  }
  ~FindTest() override { EXPECT_TRUE(program_.Close()); }

  /// Opens the dialog by a command, works on it, and closes it.
  void InDialog(const std::function<void(FindUser&)>& work, const char* command = "tlbCon/Find") {
    bool came = false;
    WhenFormShows("frmFind", [&](QWidget& form) {
      came = true;
      FindUser user(form);
      work(user);
      user.Click("cmdCancel");
    });
    program_.Choose(command);
    EXPECT_TRUE(came);
  }
  QtComboBox& Box() { return program_.Find<QtComboBox>("cboFind"); }
  void TypeInBox(const QString& text) {
    Box().setFocus();
    Box().lineEdit()->selectAll();
    TypeText(Box(), text);
  }
  void Search(const QString& text) {
    TypeInBox(text);
    QTest::keyClick(&Box(), Qt::Key_Return);
  }
  void ExpectAt(std::int32_t conKey, std::int32_t row) {
    ASSERT_NE(program_.shell().SelectedCon(), nullptr);
    EXPECT_EQ(program_.shell().SelectedCon()->key, conKey);
    EXPECT_EQ(program_.shell().lstEvents().ListIndex(), row);
  }
  void ExpectNotFoundBox(std::size_t count) {
    ASSERT_EQ(program_.messages.shown.size(), count);
    EXPECT_EQ(program_.messages.shown.back().title, "Not found");
    EXPECT_EQ(program_.messages.shown.back().text, "Search text not found.");
    EXPECT_EQ(program_.messages.shown.back().icon, MessageBox::Icon::Information);
  }

  RunningProgram program_;
};

TEST_F(FindTest, EveryCaptionAndDefaultIsTheRightOne) {
  InDialog([](FindUser& user) {
    QWidget& form = *user.Button().window();
    EXPECT_EQ(form.windowTitle(), "Find");
    EXPECT_TRUE(form.isModal());
    EXPECT_EQ(user.The<QLabel>("Label1").text(), "Find What:");
    EXPECT_EQ(user.The<QLabel>("Label3").text(), "Events:");
    EXPECT_EQ(user.The<QCheckBox>("chkMatchCase").text(), "Match Case");
    EXPECT_EQ(user.The<QCheckBox>("chkWholeWord").text(), "Find Whole Word Only");
    EXPECT_EQ(user.The<QGroupBox>("Frame1").title(), "Search");
    EXPECT_EQ(user.The<QRadioButton>("optConAll").text(), "All Conversations");
    EXPECT_EQ(user.The<QRadioButton>("optConCurrent").text(), "Current Conversation");
    EXPECT_EQ(user.Button().text(), "Find First");
    EXPECT_EQ(user.The<QPushButton>("cmdCancel").text(), "&Close");
    EXPECT_TRUE(user.The<QRadioButton>("optConAll").isChecked());
    EXPECT_FALSE(user.The<QCheckBox>("chkMatchCase").isChecked());
    EXPECT_FALSE(user.The<QCheckBox>("chkWholeWord").isChecked());
    EXPECT_EQ(user.Text().Text(), "");
    auto& events = user.The<QtComboBox>("cboEvents");
    EXPECT_EQ(events.ListCount(), 20);
    EXPECT_EQ(events.ListIndex(), 0);
    EXPECT_EQ(events.Text(), "<ALL>");
    EXPECT_EQ(events.List(1), "Speech");
    EXPECT_EQ(events.ItemData(1), 0);
    EXPECT_EQ(events.List(19), "End");
    EXPECT_EQ(events.ItemData(19), 18);
  });
}

TEST_F(FindTest, TabGoesThroughTheDialogFromTopToBottom) {
  InDialog([](FindUser& user) {
    user.Type("a");
    ExpectTabVisits({"cboEvents", "chkMatchCase", "chkWholeWord", "optConAll", "cmdFind",
                     "cmdCancel", "cboFind"});
  });
}

TEST_F(FindTest, ComingToTheDialogPutsTheFocusOnTheTextWithAllOfItSelected) {
  InDialog([](FindUser& user) {
    EXPECT_TRUE(user.Text().hasFocus());
    user.Type("harbour");
    user.The<QWidget>("chkMatchCase").setFocus();
  });
  InDialog([](FindUser& user) {
    EXPECT_TRUE(user.Text().hasFocus());
    EXPECT_EQ(user.Text().lineEdit()->selectedText(), "harbour");
  });
}

TEST_F(FindTest, TheButtonIsLiveWhileThereIsAText) {
  InDialog([](FindUser& user) {
    EXPECT_FALSE(user.Button().isEnabled());
    user.Type("a");
    EXPECT_TRUE(user.Button().isEnabled());
    QTest::keyClick(&user.Text(), Qt::Key_Backspace);
    EXPECT_FALSE(user.Button().isEnabled());
    QTest::keyClick(&user.Text(), Qt::Key_Return);
    EXPECT_TRUE(user.History().empty());
  });
  EXPECT_TRUE(program_.messages.shown.empty());
}

TEST_F(FindTest, TheDialogStepsFromHitToHitThroughAllConversations) {
  InDialog([this](FindUser& user) {
    user.Type("h");
    user.Find();
    EXPECT_EQ(user.Button().text(), "Find Next");
    EXPECT_EQ(user.Button().accessibleName(), "Find Next");
    ExpectAt(0, 0);
    user.Find();
    ExpectAt(0, 2);
    user.Find();
    ExpectAt(0, 0);
    EXPECT_THAT(user.History(), ElementsAre("h"));
  });
}

TEST_F(FindTest, FindFirstComesBackAfterAFailedSearch) {
  InDialog([this](FindUser& user) {
    user.Type("comment");
    user.Find();
    EXPECT_EQ(user.Button().text(), "Find Next");
    program_.messages.Expect(Answer::Ok);
    user.Find();
    ExpectNotFoundBox(1);
    EXPECT_EQ(user.Button().text(), "Find First");
    EXPECT_TRUE(user.Text().hasFocus());
    EXPECT_EQ(user.Text().lineEdit()->selectedText(), "comment");
    user.Find();
    ExpectAt(0, 1);
    EXPECT_EQ(user.Button().text(), "Find Next");
  });
}

TEST_F(FindTest, ReturnInTheTextIsTheButton) {
  InDialog([this](FindUser& user) {
    user.Type("comment");
    QTest::keyClick(&user.Text(), Qt::Key_Return);
    EXPECT_EQ(user.Button().text(), "Find Next");
    EXPECT_THAT(user.History(), ElementsAre("comment"));
    ExpectAt(0, 1);
  });
}

TEST_F(FindTest, TheCurrentConversationAloneIsSearchedWhenItIsChosen) {
  program_.ClickNode("C2");
  InDialog([this](FindUser& user) {
    user.Type("hello");
    user.Click("optConCurrent");
    program_.messages.Expect(Answer::Ok);
    user.Find();
    ExpectNotFoundBox(1);
    ExpectAt(2, 0);
    EXPECT_EQ(user.Button().text(), "Find First");
    user.Click("optConAll");
    user.Find();
    ExpectAt(0, 0);
  });
}

TEST_F(FindTest, MatchCaseAndTheTypeOfTheEventNarrowTheSearch) {
  InDialog([this](FindUser& user) {
    user.Type("a");
    user.The<QtComboBox>("cboEvents").SetListIndex(kComment + 1);
    user.Find();
    ExpectAt(0, 1);
    program_.messages.Expect(Answer::Ok);
    user.The<QtComboBox>("cboEvents").SetListIndex(kSpeech + 1);
    user.Find();
    ExpectNotFoundBox(1);
    user.Type("HELLO");
    user.Click("chkMatchCase");
    program_.messages.Expect(Answer::Ok);
    user.Find();
    ExpectNotFoundBox(2);
    user.Type("Hello");
    user.Find();
    EXPECT_EQ(program_.messages.shown.size(), 2U);
    ExpectAt(0, 0);
  });
}

TEST_F(FindTest, ClosingHidesTheDialogWithItsHistoryOptionsAndPosition) {
  InDialog([this](FindUser& user) {
    user.Type("h");
    user.Click("chkWholeWord");
    user.Find();
    ExpectAt(0, 0);
  });
  InDialog(
      [this](FindUser& user) {
        EXPECT_EQ(user.Text().Text(), "h");
        EXPECT_EQ(user.Text().lineEdit()->selectedText(), "h");
        EXPECT_THAT(user.History(), ElementsAre("h"));
        EXPECT_TRUE(user.The<QCheckBox>("chkWholeWord").isChecked());
        EXPECT_EQ(user.Button().text(), "Find Next");
        user.Find();
        ExpectAt(0, 2);
      },
      "mnuConFind");
}

TEST_F(FindTest, EscapeHidesTheDialog) {
  WhenFormShows("frmFind", [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); });
  program_.Choose("tlbCon/Find");
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FindTest, CtrlFGoesToTheQuickBoxAndOpensTheDialogOverIt) {
  program_.ClickNode("C0");
  program_.Tree().setFocus();
  bool came = false;
  WhenFormShows("frmFind", [&came](QWidget& form) {
    came = true;
    form.close();
  });
  program_.Press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(came);
  program_.Activate();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Box().hasFocus(); }));
}

TEST_F(FindTest, TheMenuLeavesTheFocusWhereItIs) {
  program_.Tree().setFocus();
  InDialog([](FindUser&) {}, "mnuConFind");
  program_.Activate();
  EXPECT_TRUE(program_.Tree().hasFocus());
}

TEST_F(FindTest, CtrlFKeepsThePositionOfTheDialog) {
  InDialog([](FindUser& user) {
    user.Type("h");
    user.Find();
  });
  WhenFormShows("frmFind", [](QWidget& form) {
    FindUser user(form);
    user.Find();
    form.close();
  });
  program_.Press(Qt::Key_F, Qt::ControlModifier);
  ExpectAt(0, 2);
}

TEST_F(FindTest, TheDialogsPositionOutlivesTheFocusOfTheQuickBox) {
  program_.ClickNode("C0");
  // The key puts the focus into the box, and there it is again once the dialog is closed.
  const auto ctrlF = [this](const std::function<void(FindUser&)>& work) {
    WhenFormShows("frmFind", [&](QWidget& form) {
      FindUser user(form);
      work(user);
      user.Click("cmdCancel");
    });
    program_.Press(Qt::Key_F, Qt::ControlModifier);
    program_.Activate();
    ASSERT_TRUE(QTest::qWaitFor([this] { return Box().hasFocus(); }));
  };
  ctrlF([this](FindUser& user) {
    user.Type("h");
    user.Find();
    ExpectAt(0, 0);
  });
  program_.ClickRow(0);
  ASSERT_FALSE(Box().hasFocus());
  ctrlF([this](FindUser& user) {
    EXPECT_EQ(user.Button().text(), "Find Next");
    user.Find();
    ExpectAt(0, 2);
  });
  program_.ClickNode("C2");
  ASSERT_FALSE(Box().hasFocus());
  ctrlF([this](FindUser& user) {
    user.Find();
    ExpectAt(0, 0);
  });
}

TEST_F(FindTest, AnotherWindowOfTheProgramLeavesTheDialogsPosition) {
  InDialog([this](FindUser& user) {
    user.Type("h");
    user.Find();
    ExpectAt(0, 0);
  });
  program_.ClickRow(0);
  Box().setFocus();
  bool came = false;
  WhenFormShows("frmProperties", [&came](QWidget& form) {
    // Which window has the focus is looked at a moment later.
    QCoreApplication::processEvents();
    came = true;
    QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
  });
  program_.Choose("mnuConProperties");
  ASSERT_TRUE(came);
  InDialog([this](FindUser& user) {
    user.Find();
    ExpectAt(0, 2);
  });
}

TEST_F(FindTest, TheDialogDoesNotGoOnWhereTheQuickBoxWas) {
  InDialog([](FindUser&) {});
  program_.ClickNode("C0");
  Search("hi");
  ExpectAt(0, 2);
  InDialog([this](FindUser& user) {
    user.Type("hi");
    user.Find();
    ExpectAt(0, 2);
    EXPECT_EQ(user.Button().text(), "Find Next");
  });
}

TEST_F(FindTest, ReturnInTheQuickBoxSearchesTheCurrentConversationWithoutRegardToCase) {
  program_.ClickNode("C0");
  Search("HELLO");
  ExpectAt(0, 0);
  EXPECT_EQ(Box().List(0), "HELLO");
  EXPECT_EQ(Box().lineEdit()->selectedText(), "HELLO");
  EXPECT_TRUE(Box().hasFocus());
}

TEST_F(FindTest, ReturnInTheQuickBoxGoesOnAndEndsInTheConversation) {
  program_.ClickNode("C0");
  Search("h");
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 2);
  program_.messages.Expect(Answer::Ok);
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectNotFoundBox(1);
  ExpectAt(0, 0);
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 0);
}

TEST_F(FindTest, ReturnInAnEmptyQuickBoxDoesNothing) {
  program_.ClickNode("C0");
  Box().setFocus();
  QTest::keyClick(&Box(), Qt::Key_Return);
  EXPECT_EQ(Box().ListCount(), 0);
  ExpectAt(0, -1);
}

TEST_F(FindTest, LosingTheFocusBeginsTheQuickSearchAnewAtTheSelectedRow) {
  program_.ClickNode("C0");
  Search("h");
  ExpectAt(0, 0);
  program_.Events().setFocus();
  Search("h");
  ExpectAt(0, 0);
}

TEST_F(FindTest, AnotherWindowOfTheProgramEndsTheQuickSearch) {
  program_.ClickNode("C0");
  Search("h");
  ExpectAt(0, 0);
  bool came = false;
  WhenFormShows("frmProperties", [&came](QWidget& form) {
    came = true;
    QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
  });
  program_.Choose("mnuConProperties");
  ASSERT_TRUE(came);
  program_.Activate();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Box().hasFocus(); }));
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 0);
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 2);
}

TEST_F(FindTest, AMessageBoxLeavesTheQuickSearchWhereItIs) {
  program_.ClickNode("C0");
  Search("h");
  ExpectAt(0, 0);
  QMessageBox box(&program_.Window());
  box.open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
  QCoreApplication::processEvents();
  box.close();
  program_.Activate();
  ASSERT_TRUE(QTest::qWaitFor([this] { return Box().hasFocus(); }));
  QTest::keyClick(&Box(), Qt::Key_Return);
  ExpectAt(0, 2);
}

TEST_F(FindTest, ChoosingAnEntryOfTheQuickBoxSearches) {
  program_.ClickNode("C0");
  Search("comment");
  Search("hi");
  ExpectAt(0, 2);
  EXPECT_EQ(Box().ListCount(), 2);
  program_.ClickRow(0);
  // The list opens below, with the newest on top.
  Box().setFocus();
  Box().showPopup();
  QTest::keyClick(Box().view(), Qt::Key_End);
  QTest::keyClick(Box().view(), Qt::Key_Return);
  EXPECT_EQ(Box().Text(), "comment");
  ExpectAt(0, 1);
}

TEST_F(FindTest, TheWheelOverTheQuickBoxChoosesNothing) {
  program_.ClickNode("C0");
  Search("comment");
  Search("hi");
  const QString before = Box().currentText();
  QWheelEvent wheel(QPointF(5, 5), Box().mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&Box(), &wheel);
  EXPECT_EQ(Box().currentText(), before);
}

TEST_F(FindTest, WithoutANodeThereIsNothingToFind) {
  EXPECT_TRUE(program_.Enabled("tlbCon/Find"));
  EXPECT_TRUE(program_.Enabled("mnuConFind"));
  EXPECT_TRUE(Box().isEnabled());
  program_.Choose("mnuFileClose");
  EXPECT_FALSE(program_.Enabled("tlbCon/Find"));
  EXPECT_FALSE(program_.Enabled("mnuConFind"));
  EXPECT_FALSE(Box().isEnabled());
}

class LongSearch : public WindowTest {
 protected:
  static constexpr std::int32_t kEvents = 9000;

  /// A conversation (key 0) of many comments.
  std::string PutLongFile() {
    std::vector<EventFields> comments;
    for (std::int32_t key = 1; key <= kEvents; ++key) comments.push_back(Comment(key, "", "none"));
    WriteBytes(folder.File("long.con"), FileOf(HarbourTables(), {Con(0, "long", kZoe, comments)}));
    return folder.File("long.con");
  }
};

TEST_F(LongSearch, LetsTheWindowPaintMeanwhile) {
  RunningProgram program;
  ASSERT_TRUE(program.Start(PutLongFile()));
  program.ClickNode("C0");
  auto& box = program.Find<QtComboBox>("cboFind");
  box.setFocus();
  TypeText(box, "absent");
  QWidget& rows = *program.Events().viewport();
  QTest::qWait(50);
  const PaintCounter counter(rows);
  rows.update();
  program.messages.Expect(Answer::Ok);
  QTest::keyClick(&box, Qt::Key_Return);
  // The answer of the box came at once, so all that was painted was painted during the search.
  ASSERT_EQ(program.messages.shown.size(), 1U);
  EXPECT_GE(counter.paints, 1);
  EXPECT_TRUE(program.Close());
}

}  // namespace
}  // namespace parlate

// The dialog that searches the events.

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>

#include "mainwindow/FindFixture.h"
#include "platform/FormKeys.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

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

TEST_F(FindTest, WithoutANodeThereIsNothingToFind) {
  EXPECT_TRUE(program_.Enabled("tlbCon/Find"));
  EXPECT_TRUE(program_.Enabled("mnuConFind"));
  EXPECT_TRUE(Box().isEnabled());
  program_.Choose("mnuFileClose");
  EXPECT_FALSE(program_.Enabled("tlbCon/Find"));
  EXPECT_FALSE(program_.Enabled("mnuConFind"));
  EXPECT_FALSE(Box().isEnabled());
}

TEST_F(FindTest, AHitThatTheDialogWouldCoverMovesItOffTheRow) {
  InDialog([this](FindUser& user) {
    QWidget& form = *user.Button().window();
    const auto row = [this] {
      const QRect rect = program_.Events().RowRect(program_.Events().Rows().ListIndex());
      return QRect(program_.Events().viewport()->mapToGlobal(rect.topLeft()), rect.size());
    };
    user.Type("e");
    form.move(program_.Events().viewport()->mapToGlobal(QPoint(20, 0)));
    for (const int hit : {0, 1}) {
      user.Find();
      ExpectAt(0, hit);
      EXPECT_FALSE(form.frameGeometry().intersects(row())) << hit;
    }
  });
}

}  // namespace
}  // namespace parlate

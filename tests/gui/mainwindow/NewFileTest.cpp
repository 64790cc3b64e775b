// From a new file to a conversation with all its properties, by keys and mouse.

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QTabWidget>

#include "general/Paths.h"
#include "mainwindow/WindowFixture.h"
#include "model/Tables.h"
#include "platform/Modal.h"
#include "platform/QtListBox.h"
#include "support/ConversationScript.h"
#include "support/FileBytes.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

template <class Control>
Control& The(QWidget& form, const char* name) {
  return ControlNamed<Control>(form, name);
}

void Press(QWidget& form, const char* button) {
  QTest::mouseClick(&The<QPushButton>(form, button), Qt::LeftButton);
}

void Tick(QWidget& form, const char* box) {
  QTest::keyClick(&The<QCheckBox>(form, box), Qt::Key_Space);
}

void GoTo(QWidget& form, int tab) { The<QTabWidget>(form, "tabProperties").setCurrentIndex(tab); }

void SelectRow(QtListBox& list, const char* name, Qt::KeyboardModifiers modifiers = {}) {
  for (int i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) != name) continue;
    list.scrollToItem(list.item(i));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                      list.visualItemRect(list.item(i)).center());
    return;
  }
  ADD_FAILURE() << name << " is not in the list";
}

class NewFile : public WindowTest {
 protected:
  void MakeFile(RunningProgram& program) {
    WhenFormShows("frmFileProperties", [](QWidget& form) {
      EXPECT_FALSE(The<QPushButton>(form, "cmdOK").isEnabled());
      auto& available = The<QtListBox>(form, "lstMissionsAvailable");
      SelectRow(available, "Mission 02");
      SelectRow(available, "Mission 04", Qt::ControlModifier);
      Press(form, "cmdAdd");
      GoTo(form, 1);
      QTest::keyClicks(QApplication::focusWidget(), "Harbour");
      QTest::keyClicks(&The<QWidget>(form, "txtNotes"), "All at sea");
      Press(form, "cmdOK");
    });
    program.Press(Qt::Key_N, Qt::ControlModifier);
    ASSERT_NE(program.shell().GetConFile(), nullptr);
    EXPECT_EQ(program.Window().windowTitle(), "Parlate - (New File)");
  }

  void AddConversation(RunningProgram& program) {
    program.messages.Expect(Answer::Yes);  // "Add Item?" for the owner
    WhenFormShows("frmProperties", [&program](QWidget& form) {
      EXPECT_TRUE(The<QCheckBox>(form, "chkDisplayOnce").isChecked());
      EXPECT_TRUE(The<QCheckBox>(form, "chkInvokeFrob").isChecked());
      EXPECT_TRUE(The<QCheckBox>(form, "chkInvokeBump").isChecked());
      EXPECT_FALSE(The<QPushButton>(form, "cmdOK").isEnabled());
      QTest::keyClicks(&The<QWidget>(form, "txtName"), "First talk");
      auto& owner = The<QtComboBox>(form, "cboNPC");
      owner.setFocus();
      QTest::keyClicks(&owner, "Marta");
      QTest::keyClick(&owner, Qt::Key_Tab);
      EXPECT_TRUE(QTest::qWaitFor([&] { return !program.messages.shown.empty(); }));
      QTest::keyClicks(&The<QWidget>(form, "txtDesc"), "Seen");
      PickFlag(form);
      GoTo(form, 2);
      Tick(form, "chkInvokeBump");
      Tick(form, "chkInvokeRadius");
      QTest::keyClicks(&The<QWidget>(form, "txtInvokeRadius"), "320");
      GoTo(form, 3);
      Tick(form, "chkRandomCamera");
      Tick(form, "chkCannotBeInterrupted");
      Press(form, "cmdOK");
    });
    program.Choose("mnuConAdd");
    ASSERT_EQ(program.messages.shown.size(), 1U);
    EXPECT_EQ(program.messages.shown[0].title, "Add Item?");
    ASSERT_NE(program.shell().SelectedCon(), nullptr);
    EXPECT_EQ(program.shell().tvCons().FindNode("A0")->text, "Marta");
    EXPECT_EQ(program.shell().tvCons().FindNode("C0")->text, "Firsttalk");
    EXPECT_EQ(program.shell().tvCons().FindNode("F0,0")->Text(), "Door = False");
  }

  static void PickFlag(QWidget& form) {
    AddTableItem(kFlagTable, "Door");
    GoTo(form, 1);
    WhenFormShows("frmFlagList", [](QWidget& picker) {
      SelectRow(The<QtListBox>(picker, "lstFlags"), "Door");
      The<QtComboBox>(picker, "cboFlagValues").SetListIndex(1);
      Press(picker, "cmdOK");
    });
    QTest::keyClick(&form, Qt::Key_Insert);
  }

  static void ExpectWhatWasMade(const ConversationFile& file) {
    EXPECT_EQ(file.GetMissionCount(), 2);
    EXPECT_EQ(file.GetMission(0), 2);
    EXPECT_EQ(file.GetMission(1), 4);
    EXPECT_EQ(file.AudioPackage, "Harbour");
    EXPECT_EQ(file.notes, "All at sea");
    EXPECT_EQ(file.CreatedBy, "Tester");
    ASSERT_EQ(file.Conversations.Count(), 1U);
    const Conversation& con = file.Conversations.At(0);
    EXPECT_EQ(con.conName, "Firsttalk");
    EXPECT_EQ(GetTableItemName(kActorTable, con.NPCID), "Marta");
    EXPECT_EQ(con.Description, "Seen");
    EXPECT_EQ(con.CreatedBy, "Tester");
    EXPECT_TRUE(con.bInvokeFrob);
    EXPECT_FALSE(con.bInvokeBump);
    EXPECT_FALSE(con.bInvokeSight);
    EXPECT_TRUE(con.bInvokeRadius);
    EXPECT_EQ(con.invokeRadius, 320);
    EXPECT_TRUE(con.bDisplayOnce);
    EXPECT_TRUE(con.bRandomCamera);
    EXPECT_TRUE(con.bCannotBeInterrupted);
    EXPECT_FALSE(con.bHoloCallCon);
    EXPECT_FALSE(con.bFirstPerson);
    EXPECT_FALSE(con.bNonInteractive);
    EXPECT_FALSE(con.bCanBeInterrupted);
    ASSERT_EQ(con.flagRefs.Count(), 1U);
    EXPECT_EQ(con.flagRefs.Place(1)->Desc(), "Door = False");
  }
};

TEST_F(NewFile, FromNothingToTheSavedFileAndBackAgain) {
  const std::string path = folder.File("made.con");
  {
    RunningProgram program;
    ASSERT_TRUE(program.Start());
    MakeFile(program);
    EXPECT_FALSE(program.Enabled("mnuFileSave")) << "there is no conversation yet";
    AddConversation(program);
    ExpectWhatWasMade(*program.shell().GetConFile());
    program.dialogs.Expect(path);
    program.Press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_EQ(program.dialogs.saved.size(), 1U) << "the first save asks for a name";
    EXPECT_TRUE(program.Close());
  }
  RunningProgram again;
  ASSERT_TRUE(again.Start(path));
  ASSERT_NE(again.shell().GetConFile(), nullptr);
  ExpectWhatWasMade(*again.shell().GetConFile());
  EXPECT_TRUE(again.Close());
}

TEST_F(NewFile, ACancelledNewFileLeavesNoFile) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  WhenFormShows("frmFileProperties", [](QWidget& form) { Press(form, "cmdCancel"); });
  program.Choose("tlbCon/New");
  EXPECT_EQ(program.shell().GetConFile(), nullptr);
  EXPECT_EQ(program.Window().windowTitle(), "Parlate");
  EXPECT_FALSE(program.Enabled("mnuFileProperties"));
  EXPECT_TRUE(program.Close());
}

class Harbour : public WindowTest {
 protected:
  Harbour() {
    WriteBytes(folder.File("harbour.con"), HarbourFile());
    EXPECT_TRUE(program_.Start(folder.File("harbour.con")));
  }
  /// Leaves the program without saving what a test did.
  void Leave() {
    if (program_.shell().GetConFile()->IsModified()) program_.messages.Expect(Answer::No);
    EXPECT_TRUE(program_.Close());
  }
  [[nodiscard]] Conversation& ConOf(std::int32_t key) {
    return program_.shell().GetConFile()->Conversations.At(key);
  }

  RunningProgram program_;
};

TEST_F(Harbour, ThePropertiesOfTheFileAreChangedFromTheFileMenu) {
  WhenFormShows("frmFileProperties", [](QWidget& form) {
    GoTo(form, 1);
    QTest::keyClicks(QApplication::focusWidget(), "x");
    Press(form, "cmdOK");
  });
  program_.Choose("mnuFileProperties");
  EXPECT_EQ(program_.shell().GetAudioPackage(), "Audio07x");
  EXPECT_TRUE(program_.shell().GetConFile()->IsModified());
  Leave();
}

TEST_F(Harbour, ANewOwnerMovesTheConversationInTheTree) {
  program_.ClickNode("C2");
  WhenFormShows("frmProperties", [](QWidget& form) {
    auto& owner = The<QtComboBox>(form, "cboNPC");
    owner.setFocus();
    owner.lineEdit()->selectAll();
    QTest::keyClicks(&owner, "Zoe");
    Press(form, "cmdOK");
  });
  program_.Choose("tlbCon/Properties");
  EXPECT_EQ(program_.shell().tvCons().FindNode("A0"), nullptr);
  EXPECT_EQ(program_.shell().tvCons().FindNode("C2")->parent,
            program_.shell().tvCons().FindNode("A1"));
  EXPECT_EQ(program_.shell().tvCons().SelectedItem(), program_.shell().tvCons().FindNode("C2"));
  Leave();
}

TEST_F(Harbour, EveryWayToThePropertiesOpensTheRightTab) {
  const auto tabOf = [this](const char* command) {
    int tab = -1;
    WhenFormShows("frmProperties", [&tab](QWidget& form) {
      tab = The<QTabWidget>(form, "tabProperties").currentIndex();
      EXPECT_TRUE(The<QPushButton>(form, "cmdOK").isEnabled());
      Press(form, "cmdCancel");
    });
    program_.Choose(command);
    return tab;
  };
  program_.ClickNode("C0");
  EXPECT_EQ(tabOf("mnuConProperties"), 0);
  EXPECT_EQ(tabOf("mnuConPopupProperties"), 0);
  EXPECT_EQ(tabOf("tlbCon/Properties"), 0);
  EXPECT_EQ(tabOf("mnuFlagPopupEdit"), 1);
  EXPECT_FALSE(program_.shell().GetConFile()->IsModified());
  Leave();
}

TEST_F(Harbour, InsertInTheTreeAddsAConversationWhileOneIsSelected) {
  int shown = 0;
  const auto cancel = [&shown](QWidget& form) {
    ++shown;
    Press(form, "cmdCancel");
  };
  program_.Tree().setFocus();
  program_.ClickNode("A1");
  program_.Press(Qt::Key_Insert);
  EXPECT_EQ(shown, 0);
  program_.ClickNode("C0");
  program_.Tree().setFocus();
  program_.Press(Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_EQ(shown, 0);
  WhenFormShows("frmProperties", cancel);
  program_.Press(Qt::Key_Insert);
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(program_.shell().GetConFile()->CurrentKey(), 3);
  WhenFormShows("frmProperties", cancel);
  program_.Choose("mnuConPopupAdd");
  EXPECT_EQ(shown, 2);
  Leave();
}

TEST_F(Harbour, TheFlagPopupAddsAFlagAndMarksNothing) {
  program_.ClickNode("C1");
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    SelectRow(The<QtListBox>(picker, "lstFlags"), "Lamp");
    Press(picker, "cmdOK");
  });
  program_.Choose("mnuFlagPopupAdd");
  EXPECT_EQ(program_.shell().tvCons().FindNode("F3,1")->Text(), "Lamp = True");
  EXPECT_EQ(ConOf(1).flagRefs.Count(), 1U);
  EXPECT_FALSE(program_.shell().GetConFile()->IsModified());
  Leave();
}

}  // namespace
}  // namespace parlate

// From a new file to a conversation with all its properties, by keys and mouse.

#include <gtest/gtest.h>

#include "general/Paths.h"
#include "mainwindow/NewFileSteps.h"
#include "support/ConversationScript.h"
#include "support/FileBytes.h"

namespace parlate {
namespace {

using namespace testing_support;

using NewFile = WindowTest;

TEST_F(NewFile, FromNothingToTheSavedFileAndBackAgain) {
  const std::string path = folder.File("made.con");
  {
    RunningProgram program;
    ASSERT_TRUE(program.Start());
    ASSERT_NO_FATAL_FAILURE(MakeFile(program));
    EXPECT_FALSE(program.Enabled("mnuFileSave")) << "there is no conversation yet";
    ASSERT_NO_FATAL_FAILURE(AddConversation(program));
    ExpectNewFile(*program.shell().GetConFile());
    program.dialogs.Expect(path);
    program.Press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_EQ(program.dialogs.saved.size(), 1U) << "the first save asks for a name";
    EXPECT_TRUE(program.Close());
  }
  RunningProgram again;
  ASSERT_TRUE(again.Start(path));
  ASSERT_NE(again.shell().GetConFile(), nullptr);
  ExpectNewFile(*again.shell().GetConFile());
  EXPECT_TRUE(again.Close());
}

TEST_F(NewFile, ACancelledNewFileLeavesNoFile) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  WhenFormShows("frmFileProperties", [](QWidget& form) { PressButton(form, "cmdCancel"); });
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
    GoToTab(form, 1);
    QTest::keyClicks(QApplication::focusWidget(), "x");
    PressButton(form, "cmdOK");
  });
  program_.Choose("mnuFileProperties");
  EXPECT_EQ(program_.shell().GetAudioPackage(), "Audio07x");
  EXPECT_TRUE(program_.shell().GetConFile()->IsModified());
  Leave();
}

TEST_F(Harbour, ANewOwnerMovesTheConversationInTheTree) {
  program_.ClickNode("C2");
  WhenFormShows("frmProperties", [](QWidget& form) {
    auto& owner = ControlNamed<QtComboBox>(form, "cboNPC");
    owner.setFocus();
    owner.lineEdit()->selectAll();
    QTest::keyClicks(&owner, "Zoe");
    PressButton(form, "cmdOK");
  });
  program_.Choose("tlbCon/Properties");
  EXPECT_EQ(program_.shell().tvCons().FindNode("A0"), nullptr);
  EXPECT_EQ(program_.shell().tvCons().FindNode("C2")->parent,
            program_.shell().tvCons().FindNode("A1"));
  EXPECT_EQ(program_.shell().tvCons().SelectedItem(), program_.shell().tvCons().FindNode("C2"));
  Leave();
}

TEST_F(Harbour, ANewOwnerNameAndFlagsAtOnceShowInTheTreeAndMarkTheFile) {
  program_.ClickNode("C0");
  WhenFormShows("frmProperties", [](QWidget& form) {
    auto& name = ControlNamed<QLineEdit>(form, "txtName");
    name.selectAll();
    QTest::keyClicks(&name, "Anchor");
    auto& owner = ControlNamed<QtComboBox>(form, "cboNPC");
    owner.setFocus();
    owner.lineEdit()->selectAll();
    QTest::keyClicks(&owner, "Alex");
    GoToTab(form, 1);
    auto& flags = ControlNamed<MultiColumnList>(form, "lstFlags");
    QTest::mouseClick(flags.viewport(), Qt::LeftButton, {}, flags.RowRect(0).center());
    PressButton(form, "cmdFlagRemove");
    QTest::mouseDClick(flags.viewport(), Qt::LeftButton, {}, flags.RowRect(0).center());
    PressButton(form, "cmdOK");
  });
  program_.Choose("mnuConProperties");
  const ConversationTree& tree = program_.shell().tvCons();
  EXPECT_EQ(tree.FindNode("C0")->Text(), "Anchor");
  EXPECT_EQ(tree.FindNode("C0")->parent, tree.FindNode("A0"));
  EXPECT_EQ(tree.FindNode("F2,0"), nullptr);
  EXPECT_EQ(tree.FindNode("F3,0")->Text(), "Lamp = True");
  EXPECT_EQ(tree.FindNode("F3,0")->parent, tree.FindNode("C0"));
  EXPECT_EQ(tree.SelectedItem(), tree.FindNode("C0"));
  EXPECT_EQ(program_.Find<QLabel>("lblTitle(1)").text(), " Events:");
  EXPECT_EQ(program_.Events().Rows().ListCount(), 5U) << "those of the conversation";
  EXPECT_EQ(ConOf(0).NPCID, 0);
  EXPECT_EQ(ConOf(0).LastUpdatedBy, "Tester");
  EXPECT_TRUE(program_.shell().GetConFile()->IsModified());
  EXPECT_TRUE(program_.Enabled("mnuFileSave"));
  Leave();
}

TEST_F(Harbour, EveryWayToThePropertiesOpensTheRightTab) {
  const auto tabOf = [this](const char* command) {
    int tab = -1;
    WhenFormShows("frmProperties", [&tab](QWidget& form) {
      tab = ControlNamed<QTabWidget>(form, "tabProperties").currentIndex();
      EXPECT_TRUE(ControlNamed<QPushButton>(form, "cmdOK").isEnabled());
      PressButton(form, "cmdCancel");
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
    PressButton(form, "cmdCancel");
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
    SelectRowNamed(ControlNamed<QtListBox>(picker, "lstFlags"), "Lamp");
    PressButton(picker, "cmdOK");
  });
  program_.Choose("mnuFlagPopupAdd");
  EXPECT_EQ(program_.shell().tvCons().FindNode("F3,1")->Text(), "Lamp = True");
  EXPECT_EQ(ConOf(1).flagRefs.Count(), 1U);
  EXPECT_FALSE(program_.shell().GetConFile()->IsModified());
  Leave();
}

}  // namespace
}  // namespace parlate

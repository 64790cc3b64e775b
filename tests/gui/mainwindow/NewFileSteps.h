#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTabWidget>

#include "mainwindow/WindowFixture.h"
#include "model/Tables.h"
#include "platform/Modal.h"
#include "platform/QtComboBox.h"
#include "platform/QtListBox.h"

namespace parlate::testing_support {

inline void PressButton(QWidget& form, const char* button) {
  QTest::mouseClick(&ControlNamed<QPushButton>(form, button), Qt::LeftButton);
}

inline void TickBox(QWidget& form, const char* box) {
  QTest::keyClick(&ControlNamed<QCheckBox>(form, box), Qt::Key_Space);
}

inline void GoToTab(QWidget& form, int tab) {
  ControlNamed<QTabWidget>(form, "tabProperties").setCurrentIndex(tab);
}

inline void SelectRowNamed(QtListBox& list, const char* name,
                           Qt::KeyboardModifiers modifiers = {}) {
  for (int i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) != name) continue;
    list.scrollToItem(list.item(i));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                      list.visualItemRect(list.item(i)).center());
    return;
  }
  ADD_FAILURE() << name << " is not in the list";
}

/// Makes a new file of two missions with its audio package and notes.
inline void MakeFile(RunningProgram& program) {
  WhenFormShows("frmFileProperties", [](QWidget& form) {
    EXPECT_FALSE(ControlNamed<QPushButton>(form, "cmdOK").isEnabled());
    auto& available = ControlNamed<QtListBox>(form, "lstMissionsAvailable");
    SelectRowNamed(available, "Mission 02");
    SelectRowNamed(available, "Mission 04", Qt::ControlModifier);
    PressButton(form, "cmdAdd");
    GoToTab(form, 1);
    QTest::keyClicks(QApplication::focusWidget(), "Harbour");
    QTest::keyClicks(&ControlNamed<QWidget>(form, "txtNotes"), "All at sea");
    PressButton(form, "cmdOK");
  });
  program.Press(Qt::Key_N, Qt::ControlModifier);
  ASSERT_NE(program.shell().GetConFile(), nullptr);
  EXPECT_EQ(program.Window().windowTitle(), "Parlate - (New File)");
}

/// Adds "Door" to the flags in the table editor behind the picker, and picks it as False.
inline void PickNewFlag(QWidget& form) {
  GoToTab(form, 1);
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    WhenFormShows("frmTableEdit", [](QWidget& table) {
      QTest::keyClicks(&ControlNamed<QWidget>(table, "txtName"), "Door");
      PressButton(table, "cmdAdd");
      PressButton(table, "cmdClose");
    });
    PressButton(picker, "cmdEdit");
    SelectRowNamed(ControlNamed<QtListBox>(picker, "lstFlags"), "Door");
    QTest::keyClick(&ControlNamed<QtComboBox>(picker, "cboFlagValues"), Qt::Key_Down);
    PressButton(picker, "cmdOK");
  });
  QTest::keyClick(&form, Qt::Key_Insert);
}

inline void FillInProperties(RunningProgram& program, QWidget& form) {
  for (const char* box : {"chkDisplayOnce", "chkInvokeFrob", "chkInvokeBump"}) {
    EXPECT_TRUE(ControlNamed<QCheckBox>(form, box).isChecked()) << box;
  }
  EXPECT_FALSE(ControlNamed<QPushButton>(form, "cmdOK").isEnabled());
  QTest::keyClicks(&ControlNamed<QWidget>(form, "txtName"), "First talk");
  auto& owner = ControlNamed<QtComboBox>(form, "cboNPC");
  owner.setFocus();
  QTest::keyClicks(&owner, "Marta");
  QTest::keyClick(&owner, Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !program.messages.shown.empty(); }));
  QTest::keyClicks(&ControlNamed<QWidget>(form, "txtDesc"), "Seen");
  QTest::keyClicks(&ControlNamed<QWidget>(form, "txtNotes"), "By the pier");
  PickNewFlag(form);
  GoToTab(form, 2);
  TickBox(form, "chkInvokeBump");
  TickBox(form, "chkInvokeRadius");
  QTest::keyClicks(&ControlNamed<QWidget>(form, "txtInvokeRadius"), "320");
  GoToTab(form, 3);
  TickBox(form, "chkRandomCamera");
  TickBox(form, "chkCannotBeInterrupted");
  PressButton(form, "cmdOK");
}

/// Adds the conversation of an owner who is new to the actors.
inline void AddConversation(RunningProgram& program) {
  program.messages.Expect(Answer::Yes);  // "Add Item?" for the owner
  WhenFormShows("frmProperties", [&program](QWidget& form) { FillInProperties(program, form); });
  program.Choose("mnuConAdd");
  ASSERT_EQ(program.messages.shown.size(), 1U);
  EXPECT_EQ(program.messages.shown[0].title, "Add Item?");
  ASSERT_NE(program.shell().SelectedCon(), nullptr);
  EXPECT_EQ(program.shell().tvCons().FindNode("A0")->text, "Marta");
  EXPECT_EQ(program.shell().tvCons().FindNode("C0")->text, "Firsttalk");
  EXPECT_EQ(program.shell().tvCons().FindNode("F0,0")->Text(), "Door = False");
}

/// The properties of the conversation are those that AddConversation typed.
inline void ExpectNewConversation(const Conversation& con) {
  EXPECT_EQ(con.conName, "Firsttalk");
  EXPECT_EQ(GetTableItemName(kActorTable, con.NPCID), "Marta");
  EXPECT_EQ(con.Description, "Seen");
  EXPECT_EQ(con.notes, "By the pier");
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

/// The file is the one that MakeFile and AddConversation made.
inline void ExpectNewFile(const ConversationFile& file) {
  EXPECT_EQ(file.GetMissionCount(), 2);
  EXPECT_EQ(file.GetMission(0), 2);
  EXPECT_EQ(file.GetMission(1), 4);
  EXPECT_EQ(file.AudioPackage, "Harbour");
  EXPECT_EQ(file.notes, "All at sea");
  EXPECT_EQ(file.CreatedBy, "Tester");
  ASSERT_EQ(file.Conversations.Count(), 1U);
  ExpectNewConversation(file.Conversations.At(0));
}

}  // namespace parlate::testing_support

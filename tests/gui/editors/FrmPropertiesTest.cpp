// Captions, fields and buttons of the conversation's properties.

#include <QLocale>

#include "editors/PropertiesFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

using FrmPropertiesTest = PropertiesTest;

TEST_F(FrmPropertiesTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(Form().windowTitle(), "Conversation Properties");
  auto& tabs = The<QTabWidget>("tabProperties");
  ASSERT_EQ(tabs.count(), 5);
  EXPECT_EQ(tabs.tabText(0), "General  ");
  EXPECT_EQ(tabs.tabText(1), "Flags  ");
  EXPECT_EQ(tabs.tabText(2), "Invoke  ");
  EXPECT_EQ(tabs.tabText(3), "Options");
  EXPECT_EQ(tabs.tabText(4), "Info");
  EXPECT_EQ(tabs.currentIndex(), 0);
  const auto labelOf = [this](const char* field) {
    for (QLabel* label : Form().findChildren<QLabel*>()) {
      if (label->buddy() != nullptr && label->buddy()->objectName() == field) return label->text();
    }
    return QString();
  };
  EXPECT_EQ(labelOf("txtName"), "Conversation Name:");
  EXPECT_EQ(labelOf("cboNPC"), "Conversation Owner:");
  EXPECT_EQ(labelOf("txtDesc"), "Description (seen by player):");
  EXPECT_EQ(labelOf("txtNotes"), "Notes:");
  EXPECT_EQ(labelOf("lstFlags"), "Flags Required:");
  EXPECT_EQ(labelOf("txtInvokeRadius"), "Distance from Player:");
  EXPECT_EQ(Label("Label2"), "Flags Required:");
  EXPECT_EQ(Label("Label3"), "Invocation Methods:");
  EXPECT_EQ(Label("Label4"), "Conversation Options:");
  EXPECT_EQ(Label("lblInvokeRadius"), "Distance from Player:");
  EXPECT_EQ(FlagList().Head(0), "Flag");
  EXPECT_EQ(FlagList().Head(1), "Value");
  EXPECT_EQ(FlagList().ColumnCount(), 2);
  EXPECT_EQ(Caption("cmdEditNPCTable"), "Edit NPC Table");
  EXPECT_EQ(Caption("cmdFlagAdd"), "&Add");
  EXPECT_EQ(Caption("cmdFlagRemove"), "&Delete");
  EXPECT_EQ(Caption("chkInvokeFrob"), "PC Frobs NPC");
  EXPECT_EQ(Caption("chkInvokeBump"), "PC Bumps NPC");
  EXPECT_EQ(Caption("chkInvokeSight"), "NPC Sees Player");
  EXPECT_EQ(Caption("chkInvokeRadius"), "NPC Enters PC Radius");
  EXPECT_EQ(Caption("chkDisplayOnce"), "Display Conversation Only Once");
  EXPECT_EQ(Caption("chkHoloCall"), "HoloCall Conversation");
  EXPECT_EQ(Caption("chkFirstPerson"), "Remain in First-Person Mode");
  EXPECT_EQ(Caption("chkNonInteractive"), "Non-interactive Conversation");
  EXPECT_EQ(Caption("chkRandomCamera"), "Random Camera Placement");
  EXPECT_EQ(Caption("chkCanBeInterupted"), "Can Be Interrupted By Another Conversation");
  EXPECT_EQ(Caption("chkCannotBeInterrupted"), "Absolutely CANNOT be Interrupted");
  EXPECT_EQ(Caption("cmdOK"), "&OK");
  EXPECT_EQ(Caption("cmdCancel"), "&Cancel");
  EXPECT_EQ(Label("lblCreationDate"), "Created On:");
  EXPECT_EQ(Label("lblCreatedBy"), "Created By:");
  EXPECT_EQ(Label("lblLastUpdated"), "Last Modified On:");
  EXPECT_EQ(Label("lblLastUpdatedBy"), "Last Modified By:");
}

TEST_F(FrmPropertiesTest, EveryFieldShowsTheConversation) {
  con_->Description = "Seen";
  con_->notes = "One\r\nTwo";
  con_->bInvokeFrob = true;
  con_->bInvokeSight = true;
  con_->bInvokeRadius = true;
  con_->invokeRadius = 320;
  con_->bDisplayOnce = true;
  con_->bNonInteractive = true;
  con_->bCannotBeInterrupted = true;
  EXPECT_EQ(Name().text(), "greeting");
  EXPECT_EQ(Form().NPCID(), 1);
  EXPECT_EQ(Owner().Text(), "Zoe");
  EXPECT_EQ(The<QtTextBox>("txtDesc").Text(), "Seen");
  EXPECT_EQ(The<QtTextBox>("txtNotes").toPlainText(), "One\nTwo");
  EXPECT_THAT(FlagRows(), ElementsAre("Door;True", "Lamp;False"));
  EXPECT_TRUE(Box("chkInvokeFrob").isChecked());
  EXPECT_FALSE(Box("chkInvokeBump").isChecked());
  EXPECT_TRUE(Box("chkInvokeSight").isChecked());
  EXPECT_TRUE(Box("chkInvokeRadius").isChecked());
  EXPECT_EQ(The<QLineEdit>("txtInvokeRadius").text(), "320");
  EXPECT_TRUE(Box("chkDisplayOnce").isChecked());
  EXPECT_FALSE(Box("chkHoloCall").isChecked());
  EXPECT_FALSE(Box("chkFirstPerson").isChecked());
  EXPECT_TRUE(Box("chkNonInteractive").isChecked());
  EXPECT_FALSE(Box("chkRandomCamera").isChecked());
  EXPECT_FALSE(Box("chkCanBeInterupted").isChecked());
  EXPECT_TRUE(Box("chkCannotBeInterrupted").isChecked());
}

TEST_F(FrmPropertiesTest, DatesAreThoseOfTheUsersLocaleWithTheirTime) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(Label("panCreationDate"), "05.03.26 14:30");
  EXPECT_EQ(Label("panLastUpdated"), "06.04.26 07:08");
  QLocale::setDefault(before);
  EXPECT_EQ(Label("panCreatedBy"), "anna");
  EXPECT_EQ(Label("panLastUpdatedBy"), "ben");
  EXPECT_EQ(The<QLabel>("panCreatedBy").accessibleName(), "Created By: anna");
}

TEST_F(FrmPropertiesTest, OkStoresEveryFieldAndStampsNothing) {
  Type(Name(), "welcome-2");
  Owner().SetListIndex(1);
  Type(The<QWidget>("txtDesc"), "Seen");
  Type(The<QWidget>("txtNotes"), "For us");
  GoTo(kInvoke);
  for (const char* box : {"chkInvokeFrob", "chkInvokeBump", "chkInvokeSight", "chkInvokeRadius"}) {
    Tick(box);
  }
  Type(The<QWidget>("txtInvokeRadius"), "320");
  GoTo(kOptions);
  for (const char* box : {"chkDisplayOnce", "chkFirstPerson", "chkNonInteractive",
                          "chkRandomCamera", "chkCanBeInterupted", "chkCannotBeInterrupted"}) {
    Tick(box);
  }
  EXPECT_EQ(con_->conName, "greeting");
  Click("cmdOK");
  EXPECT_EQ(Form().modalResult, 0);
  EXPECT_TRUE(Form().isHidden());
  EXPECT_EQ(con_->conName, "welcome-2");
  EXPECT_EQ(con_->NPCID, 0);
  EXPECT_EQ(con_->Description, "Seen");
  EXPECT_EQ(con_->notes, "For us");
  EXPECT_TRUE(con_->bInvokeFrob && con_->bInvokeBump && con_->bInvokeSight && con_->bInvokeRadius);
  EXPECT_EQ(con_->invokeRadius, 320);
  EXPECT_TRUE(con_->bDisplayOnce && con_->bFirstPerson && con_->bNonInteractive);
  EXPECT_TRUE(con_->bRandomCamera && con_->bCanBeInterrupted && con_->bCannotBeInterrupted);
  EXPECT_FALSE(con_->bHoloCallCon);
  EXPECT_EQ(con_->CreatedBy, "anna");
  EXPECT_EQ(con_->LastUpdatedBy, "ben");
  EXPECT_EQ(con_->LastUpdated, MakeDate(2026, 4, 6, 7, 8));
}

TEST_F(FrmPropertiesTest, CancelStoresNothing) {
  Type(Name(), "welcome");
  GoTo(kOptions);
  Tick("chkHoloCall");
  Click("cmdCancel");
  EXPECT_EQ(Form().modalResult, 1);
  EXPECT_TRUE(Form().isHidden());
  EXPECT_EQ(con_->conName, "greeting");
  EXPECT_FALSE(con_->bHoloCallCon);
}

TEST_F(FrmPropertiesTest, ClosingTheWindowIsCancel) {
  Type(Name(), "welcome");
  Form().close();
  EXPECT_EQ(Form().modalResult, 1);
  EXPECT_EQ(con_->conName, "greeting");
}

TEST_F(FrmPropertiesTest, OkIsLiveWhateverTabIsShown) {
  firstTab_ = kFlags;
  EXPECT_EQ(The<QTabWidget>("tabProperties").currentIndex(), 1);
  EXPECT_TRUE(IsEnabled("cmdOK"));
  Click("cmdOK");
  EXPECT_EQ(Form().modalResult, 0);
}

TEST_F(FrmPropertiesTest, TheFormOpensWithTheNameReadyToBeTyped) {
  Form();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Name().hasFocus(); }));
}

TEST_F(FrmPropertiesTest, TextsOutsideTheCodePageShowAsQuestionMarks) {
  Type(The<QWidget>("txtNotes"), QStringLiteral(u"a\u4E2D"));
  Click("cmdOK");
  EXPECT_EQ(con_->notes, "a?");
}

TEST_F(FrmPropertiesTest, TextsThatNobodyEditedKeepTheirLineEnds) {
  con_->notes = "one\ntwo\r\nthree\r";
  con_->Description = "a\nb";
  Click("cmdOK");
  EXPECT_EQ(con_->notes, "one\ntwo\r\nthree\r");
  EXPECT_EQ(con_->Description, "a\nb");
}

TEST_F(FrmPropertiesTest, TabGoesThroughTheGeneralTabFromTopToBottom) {
  Name().setFocus();
  ExpectTabVisits({"cboNPC", "cmdEditNPCTable", "txtDesc", "txtNotes", "cmdOK", "cmdCancel",
                   "qt_tabwidget_tabbar", "txtName"});
}

TEST_F(FrmPropertiesTest, TabGoesThroughTheOtherTabsFromTopToBottom) {
  ClickFlag(0);
  ExpectTabVisits(
      {"cmdFlagAdd", "cmdFlagRemove", "cmdOK", "cmdCancel", "qt_tabwidget_tabbar", "lstFlags"});
  GoTo(kInvoke);
  Tick("chkInvokeRadius");
  Box("chkInvokeFrob").setFocus();
  ExpectTabVisits({"chkInvokeBump", "chkInvokeSight", "chkInvokeRadius", "txtInvokeRadius", "cmdOK",
                   "cmdCancel", "qt_tabwidget_tabbar", "chkInvokeFrob"});
  GoTo(kOptions);
  Box("chkDisplayOnce").setFocus();
  ExpectTabVisits({"chkHoloCall", "chkFirstPerson", "chkNonInteractive", "chkRandomCamera",
                   "chkCanBeInterupted", "chkCannotBeInterrupted", "cmdOK", "cmdCancel",
                   "qt_tabwidget_tabbar", "chkDisplayOnce"});
  GoTo(kInfo);
  The<QWidget>("panCreationDate").setFocus();
  ExpectTabVisits({"panCreatedBy", "panLastUpdated", "panLastUpdatedBy", "cmdOK", "cmdCancel",
                   "qt_tabwidget_tabbar", "panCreationDate"});
}

TEST_F(FrmPropertiesTest, ComingBackToTheFormTestsNameAndOwnerAnew) {
  {
    // What tells the form of a change is kept from it.
    const QSignalBlocker name(&Name());
    Name().clear();
  }
  EXPECT_TRUE(IsEnabled("cmdOK"));
  LeaveAndComeBack(Form());
  EXPECT_FALSE(IsEnabled("cmdOK"));
}

}  // namespace
}  // namespace parlate

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QLocale>
#include <QTabBar>
#include <memory>

#include "editors/frmProperties.h"
#include "mainwindow/WindowFixture.h"
#include "platform/Modal.h"
#include "platform/QtListBox.h"
#include "support/ScriptedTableEditor.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

constexpr const char* kBadCharacters =
    "Conversation names can only consist of letters, digits, underscore (_) and dash (-).";
constexpr const char* kNameInUse = "Conversation Name already in use, please choose another name.";

enum Tab { kGeneral, kFlags, kInvoke, kOptions, kInfo };

/// The properties of "greeting", which belongs to Zoe, beside "other".
class FrmPropertiesTest : public ::testing::Test {
 protected:
  FrmPropertiesTest() {
    space_.AddRows(kActorTable, {{1, "Zoe"}, {0, "Alex"}});
    space_.AddRows(kFlagTable, {{2, "Door"}, {3, "Lamp"}, {4, "Boat"}});
    space_.workspace.tableEditor = &tables_;
    con_ = AddCon(0, "greeting");
    AddCon(1, "other");
    con_->CreationDate = MakeDate(2026, 3, 5, 14, 30);
    con_->LastUpdated = MakeDate(2026, 4, 6, 7, 8);
    con_->CreatedBy = "anna";
    con_->LastUpdatedBy = "ben";
    AddFlag(2, true);
    AddFlag(3, false);
  }

  std::shared_ptr<Conversation> AddCon(std::int32_t key, const std::string& name) {
    auto con = std::make_shared<Conversation>();
    con->key = key;
    con->conName = name;
    con->NPCID = 1;
    conFile_.Conversations.Add(key, con);
    return con;
  }
  void AddFlag(std::int32_t flagID, bool value) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = flagID;
    flag->bValue = value;
    con_->flagRefs.Add(flagID, flag);
  }

  frmProperties& Form() {
    if (form_) return *form_;
    form_ = std::make_unique<frmProperties>(conFile_, space_.messages);
    form_->SetCon(*con_);
    form_->SetTab(firstTab_);
    form_->show();
    form_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    return *form_;
  }

  template <class Control>
  Control& The(const char* name) {
    return ControlNamed<Control>(Form(), name);
  }
  QLineEdit& Name() { return The<QLineEdit>("txtName"); }
  QtComboBox& Owner() { return The<QtComboBox>("cboNPC"); }
  QCheckBox& Box(const char* name) { return The<QCheckBox>(name); }
  QString Caption(const char* name) { return The<QAbstractButton>(name).text(); }
  QString Label(const char* name) { return The<QLabel>(name).text(); }
  bool IsEnabled(const char* name) { return The<QWidget>(name).isEnabled(); }
  void GoTo(Tab tab) { The<QTabWidget>("tabProperties").setCurrentIndex(tab); }
  void Click(const char* name) { QTest::mouseClick(&The<QPushButton>(name), Qt::LeftButton); }
  void Tick(const char* name) { QTest::keyClick(&Box(name), Qt::Key_Space); }
  /// Types over what stands in a field.
  void Type(QWidget& field, const QString& text) {
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    TypeText(field, text);
  }
  MultiColumnList& FlagList() { return The<MultiColumnList>("lstFlags"); }
  std::vector<std::string> FlagRows() {
    std::vector<std::string> rows;
    const ListRows& list = FlagList().Rows();
    for (std::size_t i = 0; i < list.ListCount(); ++i) rows.push_back(list.Row(i).text);
    return rows;
  }
  void ClickFlag(int row) {
    GoTo(kFlags);
    QTest::mouseClick(FlagList().viewport(), Qt::LeftButton, {}, FlagList().RowRect(row).center());
  }
  static std::vector<std::int32_t> IDs(const parlate::FlagList& flags) {
    std::vector<std::int32_t> ids;
    for (const FlagRef& flag : flags) ids.push_back(flag.flagID);
    return ids;
  }
  void ExpectRefused(const std::string& text) {
    space_.messages.Expect(Answer::Ok);
    Click("cmdOK");
    ASSERT_EQ(space_.messages.shown.size(), 1U);
    const MessageBox& box = space_.messages.shown.back();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.icon, MessageBox::Icon::None);
    EXPECT_EQ(box.buttons, MessageBox::Buttons::Ok);
    EXPECT_TRUE(Form().isVisible());
    EXPECT_TRUE(Name().hasFocus());
    EXPECT_EQ(Name().selectedText(), Name().text());
    EXPECT_EQ(con_->conName, "greeting");
  }

  TestWorkspace space_;
  ConversationFile conFile_;
  ScriptedTableEditor tables_;
  std::shared_ptr<Conversation> con_;
  Tab firstTab_ = kGeneral;
  std::unique_ptr<frmProperties> form_;
};

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

TEST_F(FrmPropertiesTest, OkWantsANameAndAnOwner) {
  EXPECT_TRUE(IsEnabled("cmdOK"));
  Name().clear();
  EXPECT_FALSE(IsEnabled("cmdOK"));
  Type(Name(), "a");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  Owner().SetListIndex(-1);
  EXPECT_FALSE(IsEnabled("cmdOK"));
  Owner().SetListIndex(0);
  EXPECT_TRUE(IsEnabled("cmdOK"));
  Type(Owner(), "Nobody");
  EXPECT_FALSE(IsEnabled("cmdOK"));
  Type(Owner(), "Alex");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  EXPECT_EQ(Form().NPCID(), 0);
}

TEST_F(FrmPropertiesTest, ANewConversationHasNoOwnerAndCannotBeConfirmed) {
  con_->NPCID = -1;
  con_->conName = "";
  EXPECT_EQ(Form().NPCID(), -1);
  EXPECT_EQ(Owner().Text(), "");
  EXPECT_FALSE(IsEnabled("cmdOK"));
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

TEST_F(FrmPropertiesTest, TypingInTheNameDropsWhatNoNameHas) {
  Type(Name(), QStringLiteral(u"A b?c-1_.\u00E4;Z"));
  EXPECT_EQ(Name().text(), "Abc-1_Z");
  QTest::keyClick(&Name(), Qt::Key_Backspace);
  EXPECT_EQ(Name().text(), "Abc-1_");
}

TEST_F(FrmPropertiesTest, APastedBlankInTheNameIsRefusedAtOk) {
  QApplication::clipboard()->setText("two words");
  Name().setFocus();
  Name().selectAll();
  QTest::keyClick(&Name(), Qt::Key_V, Qt::ControlModifier);
  ASSERT_EQ(Name().text(), "two words");
  GoTo(kInfo);
  ExpectRefused(kBadCharacters);
  EXPECT_EQ(The<QTabWidget>("tabProperties").currentIndex(), 0);
}

TEST_F(FrmPropertiesTest, ANameThatAnotherConversationHasIsRefused) {
  Type(Name(), "other");
  ExpectRefused(kNameInUse);
}

TEST_F(FrmPropertiesTest, TheConversationsOwnNamePasses) {
  Click("cmdOK");
  EXPECT_EQ(Form().modalResult, 0);
  EXPECT_EQ(con_->conName, "greeting");
}

TEST_F(FrmPropertiesTest, ANameThatDiffersInCaseAlonePasses) {
  Type(Name(), "Other");
  Click("cmdOK");
  EXPECT_EQ(Form().modalResult, 0);
  EXPECT_EQ(con_->conName, "Other");
}

TEST_F(FrmPropertiesTest, ATypedOwnerIsAskedAboutWhenTheComboIsLeftAndBecomesARow) {
  Type(Owner(), "Nobody");
  space_.messages.Expect(Answer::Yes);
  QTest::keyClick(&Owner(), Qt::Key_Tab);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !space_.messages.shown.empty(); }));
  const MessageBox& box = space_.messages.shown.back();
  EXPECT_EQ(box.title, "Add Item?");
  EXPECT_EQ(box.text, "This entry does not exist in the table, would you like to add it?");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  Click("cmdOK");
  EXPECT_EQ(con_->NPCID, 2);
  EXPECT_EQ(GetTableItemName(kActorTable, 2), "Nobody");
}

TEST_F(FrmPropertiesTest, ATypedOwnerThatIsNotWantedStandsSelectedInTheCombo) {
  Type(Owner(), "Nobody");
  space_.messages.Expect(Answer::No);
  QTest::keyClick(&Owner(), Qt::Key_Tab);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !space_.messages.shown.empty(); }));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Owner().hasFocus(); }));
  EXPECT_EQ(Owner().lineEdit()->selectedText(), "Nobody");
  EXPECT_FALSE(IsEnabled("cmdOK"));
  EXPECT_EQ(GetTable(kActorTable)->Count(), 2U);
}

TEST_F(FrmPropertiesTest, TheTableButtonEditsTheActorsAndSelectsTheOneChosenThere) {
  tables_.chosen = 0;
  Click("cmdEditNPCTable");
  EXPECT_THAT(tables_.opened, ElementsAre(kActorTable));
  EXPECT_EQ(Form().NPCID(), 0);
  tables_.user = [this] {
    space_.AddRows(kActorTable, {{7, "New"}});
    return 7;
  };
  Click("cmdEditNPCTable");
  EXPECT_EQ(Owner().Text(), "New");
  EXPECT_TRUE(IsEnabled("cmdOK"));
}

TEST_F(FrmPropertiesTest, HoloCallClearsAndGreysFourOptionsAndBringsNoTickBack) {
  con_->bFirstPerson = con_->bNonInteractive = con_->bRandomCamera = true;
  con_->bCanBeInterrupted = con_->bDisplayOnce = con_->bCannotBeInterrupted = true;
  const auto four = {"chkNonInteractive", "chkFirstPerson", "chkRandomCamera",
                     "chkCanBeInterupted"};
  GoTo(kOptions);
  for (const char* box : four) EXPECT_TRUE(Box(box).isChecked() && Box(box).isEnabled()) << box;
  Tick("chkHoloCall");
  for (const char* box : four) EXPECT_FALSE(Box(box).isChecked() || Box(box).isEnabled()) << box;
  EXPECT_TRUE(Box("chkDisplayOnce").isChecked() && Box("chkDisplayOnce").isEnabled());
  EXPECT_TRUE(Box("chkCannotBeInterrupted").isChecked());
  Tick("chkHoloCall");
  for (const char* box : four) {
    EXPECT_FALSE(Box(box).isChecked()) << box;
    EXPECT_TRUE(Box(box).isEnabled()) << box;
  }
}

TEST_F(FrmPropertiesTest, AHoloCallConversationOpensWithTheFourOptionsOff) {
  con_->bHoloCallCon = con_->bRandomCamera = true;
  EXPECT_TRUE(Box("chkHoloCall").isChecked());
  EXPECT_FALSE(Box("chkRandomCamera").isChecked());
  EXPECT_FALSE(IsEnabled("chkRandomCamera"));
}

TEST_F(FrmPropertiesTest, TheDistanceIsForTheRadiusAlone) {
  con_->invokeRadius = 5;
  GoTo(kInvoke);
  EXPECT_EQ(The<QLineEdit>("txtInvokeRadius").text(), "");
  EXPECT_FALSE(IsEnabled("txtInvokeRadius"));
  EXPECT_FALSE(IsEnabled("lblInvokeRadius"));
  Tick("chkInvokeRadius");
  EXPECT_TRUE(IsEnabled("txtInvokeRadius"));
  EXPECT_TRUE(IsEnabled("lblInvokeRadius"));
  Tick("chkInvokeRadius");
  EXPECT_FALSE(IsEnabled("txtInvokeRadius"));
  EXPECT_FALSE(IsEnabled("lblInvokeRadius"));
}

TEST_F(FrmPropertiesTest, AnEmptyDistanceStoresNought) {
  con_->invokeRadius = 5;
  GoTo(kInvoke);
  Tick("chkInvokeRadius");
  Click("cmdOK");
  EXPECT_TRUE(con_->bInvokeRadius);
  EXPECT_EQ(con_->invokeRadius, 0);
}

TEST_F(FrmPropertiesTest, ADistanceWithoutItsTickStoresNought) {
  con_->bInvokeRadius = true;
  con_->invokeRadius = 320;
  GoTo(kInvoke);
  Tick("chkInvokeRadius");
  Click("cmdOK");
  EXPECT_FALSE(con_->bInvokeRadius);
  EXPECT_EQ(con_->invokeRadius, 0);
}

TEST_F(FrmPropertiesTest, ADistanceThatTheFileCannotHoldKeepsTheFormOpen) {
  con_->bInvokeRadius = true;
  The<QLineEdit>("txtInvokeRadius").setText("99999999999");
  space_.messages.Expect(Answer::Ok);
  Click("cmdOK");
  ASSERT_EQ(space_.messages.shown.size(), 1U);
  const MessageBox& box = space_.messages.shown.back();
  EXPECT_EQ(box.title, "");
  EXPECT_EQ(box.text, "Error 6: Overflow");
  EXPECT_EQ(box.icon, MessageBox::Icon::None);
  EXPECT_EQ(box.buttons, MessageBox::Buttons::Ok);
  EXPECT_TRUE(Form().isVisible());
  EXPECT_TRUE(The<QLineEdit>("txtInvokeRadius").hasFocus());
  EXPECT_EQ(The<QLineEdit>("txtInvokeRadius").selectedText(), "99999999999");
  EXPECT_EQ(con_->invokeRadius, 0);
}

TEST_F(FrmPropertiesTest, AHoloCallTakesTheOptionsThatItExcludesFromTheConversation) {
  con_->bNonInteractive = true;
  con_->bFirstPerson = true;
  con_->bRandomCamera = true;
  con_->bCanBeInterrupted = true;
  GoTo(kOptions);
  Tick("chkHoloCall");
  Click("cmdOK");
  EXPECT_TRUE(con_->bHoloCallCon);
  EXPECT_FALSE(con_->bNonInteractive);
  EXPECT_FALSE(con_->bFirstPerson);
  EXPECT_FALSE(con_->bRandomCamera);
  EXPECT_FALSE(con_->bCanBeInterrupted);
}

TEST_F(FrmPropertiesTest, AFlagIsPickedAndReachesTheConversationOnOkOnly) {
  GoTo(kFlags);
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    auto& flags = ControlNamed<QtListBox>(picker, "lstFlags");
    EXPECT_EQ(flags.ListCount(), 1);
    EXPECT_EQ(flags.List(0), "Boat");
    EXPECT_TRUE(ControlNamed<QWidget>(picker, "txtExpiration").isHidden());
    QTest::mouseClick(flags.viewport(), Qt::LeftButton, {},
                      flags.visualItemRect(flags.item(0)).center());
    QTest::mouseClick(&ControlNamed<QPushButton>(picker, "cmdOK"), Qt::LeftButton);
  });
  Click("cmdFlagAdd");
  EXPECT_THAT(FlagRows(), ElementsAre("Door;True", "Lamp;False", "Boat;True"));
  EXPECT_THAT(IDs(con_->flagRefs), ElementsAre(2, 3));
  Click("cmdOK");
  EXPECT_THAT(IDs(con_->flagRefs), ElementsAre(2, 3, 4));
  EXPECT_TRUE(con_->flagRefs.At(4).bValue);
  EXPECT_EQ(con_->flagRefs.At(4).expiration, 0);
}

TEST_F(FrmPropertiesTest, AFlagDeletedFromItsTableInThePickerGoesAlsoAfterCancel) {
  GoTo(kFlags);
  tables_.user = [] {
    GetTable(kFlagTable)->Remove(2);
    return -1;
  };
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    QTest::mouseClick(&ControlNamed<QPushButton>(picker, "cmdEdit"), Qt::LeftButton);
    QTest::mouseClick(&ControlNamed<QPushButton>(picker, "cmdCancel"), Qt::LeftButton);
  });
  Click("cmdFlagAdd");
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;False"));
}

TEST_F(FrmPropertiesTest, DeleteIsLiveWhileAFlagIsSelectedAndMovesTheSelectionOn) {
  EXPECT_FALSE(IsEnabled("cmdFlagRemove"));
  ClickFlag(0);
  EXPECT_TRUE(IsEnabled("cmdFlagRemove"));
  Click("cmdFlagRemove");
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;False"));
  EXPECT_EQ(FlagList().Rows().ListIndex(), 0);
  EXPECT_TRUE(IsEnabled("cmdFlagRemove"));
  Click("cmdFlagRemove");
  EXPECT_TRUE(FlagRows().empty());
  EXPECT_FALSE(IsEnabled("cmdFlagRemove"));
}

TEST_F(FrmPropertiesTest, DeleteKeepsTheFocusWhileThereIsAFlag) {
  ClickFlag(0);
  auto& button = The<QPushButton>("cmdFlagRemove");
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;False"));
  EXPECT_TRUE(button.hasFocus());
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_TRUE(FlagRows().empty());
  EXPECT_TRUE(FlagList().hasFocus());
}

TEST_F(FrmPropertiesTest, CancelAfterRemovingAFlagLeavesTheConversationsFlags) {
  ClickFlag(0);
  Click("cmdFlagRemove");
  ClickFlag(0);
  QTest::mouseDClick(FlagList().viewport(), Qt::LeftButton, {}, FlagList().RowRect(0).center());
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;True"));
  Click("cmdCancel");
  EXPECT_THAT(IDs(con_->flagRefs), ElementsAre(2, 3));
  EXPECT_FALSE(con_->flagRefs.At(3).bValue);
}

TEST_F(FrmPropertiesTest, ADoubleClickTogglesTheFlagAndKeepsItSelected) {
  ClickFlag(0);
  QTest::mouseDClick(FlagList().viewport(), Qt::LeftButton, {}, FlagList().RowRect(0).center());
  EXPECT_THAT(FlagRows(), ElementsAre("Door;False", "Lamp;False"));
  EXPECT_EQ(FlagList().Rows().ListIndex(), 0);
  EXPECT_TRUE(con_->flagRefs.At(2).bValue);
  Click("cmdOK");
  EXPECT_FALSE(con_->flagRefs.At(2).bValue);
}

TEST_F(FrmPropertiesTest, InsertAddsFlagsAndDeleteRemovesTheSelectedOneWithNoModifierHeld) {
  ClickFlag(0);
  QTest::keyClick(&FlagList(), Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_EQ(FlagRows().size(), 2U);
  QTest::keyClick(&FlagList(), Qt::Key_Delete);
  EXPECT_THAT(FlagRows(), ElementsAre("Lamp;False"));
  bool came = false;
  WhenFormShows("frmFlagList", [&came](QWidget& picker) {
    came = true;
    picker.close();
  });
  QTest::keyClick(&FlagList(), Qt::Key_Insert);
  EXPECT_TRUE(came);
}

TEST_F(FrmPropertiesTest, DeleteWithNoFlagSelectedDoesNothing) {
  GoTo(kFlags);
  FlagList().setFocus();
  FlagList().Rows().SetListIndex(-1);
  QTest::keyClick(&FlagList(), Qt::Key_Delete);
  EXPECT_EQ(FlagRows().size(), 2U);
}

TEST_F(FrmPropertiesTest, DeleteInATextDeletesItsLettersAndNoFlag) {
  ClickFlag(0);
  GoTo(kGeneral);
  Name().setFocus();
  Name().setCursorPosition(0);
  QTest::keyClick(&Name(), Qt::Key_Delete);
  EXPECT_EQ(Name().text(), "reeting");
  EXPECT_EQ(FlagRows().size(), 2U);
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
  for (const char* name : {"cboNPC", "cmdEditNPCTable", "txtDesc", "txtNotes", "cmdOK", "cmdCancel",
                           "qt_tabwidget_tabbar", "txtName"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
  }
}

}  // namespace
}  // namespace parlate

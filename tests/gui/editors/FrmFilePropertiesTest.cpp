#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLocale>
#include <QTabBar>
#include <memory>

#include "editors/ShownForm.h"
#include "editors/frmFileProperties.h"
#include "platform/FormKeys.h"
#include "support/FakeControls.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

enum Tab { kMissions, kMisc, kStats, kInfo };

class FrmFilePropertiesTest : public ShownForm<frmFileProperties> {
 protected:
  FrmFilePropertiesTest() {
    BuildMissionTable();
    space_.AddRows(kActorTable, {{1, "Zoe"}, {0, "Alex"}});
    conFile_.versionNum = 21;
    conFile_.CreationDate = MakeDate(2026, 3, 5, 14, 30);
    conFile_.LastUpdated = MakeDate(2026, 4, 6, 7, 8);
    conFile_.CreatedBy = "anna";
    conFile_.LastUpdatedBy = "ben";
    conFile_.AudioPackage = "Audio07";
    conFile_.notes = "file notes";
    SetMissions({{"", 3}, {"", 98}});
  }

  void SetMissions(std::vector<FakeRow> rows) {
    conFile_.SaveMissions(FakeListBox(std::move(rows)));
  }
  Conversation& AddCon(std::int32_t key) {
    auto con = std::make_shared<Conversation>();
    con->key = key;
    conFile_.Conversations.Add(key, con);
    return *con;
  }
  static void AddSpeech(Conversation& con, std::int32_t speaker) {
    auto event = std::make_shared<EventItem>();
    event->key = con.NextEventKey();
    EventSpeech speech;
    speech.ActorSpeakerID = speaker;
    event->SetEventObject(kSpeech, std::move(speech));
    con.events.Add(event->key, event);
  }
  static void AddChoice(Conversation& con, int items) {
    auto event = std::make_shared<EventItem>();
    event->key = con.NextEventKey();
    EventChoice choice;
    for (int i = 0; i < items; ++i) choice.Choices.Add(i, std::make_shared<ChoiceItem>());
    event->SetEventObject(kChoice, std::move(choice));
    con.events.Add(event->key, event);
  }

  std::unique_ptr<frmFileProperties> MakeForm() override {
    return std::make_unique<frmFileProperties>(conFile_);
  }

  QtListBox& Chosen() { return The<QtListBox>("lstMissions"); }
  QtListBox& Available() { return The<QtListBox>("lstMissionsAvailable"); }
  void GoTo(Tab tab) {
    auto& tabs = The<QTabWidget>("tabProperties");
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(tab).center());
    EXPECT_EQ(tabs.currentIndex(), tab);
  }
  static void ClickRow(QtListBox& list, int row, Qt::KeyboardModifiers modifiers = {}) {
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                      list.visualItemRect(list.item(row)).center());
  }
  static std::vector<std::string> Names(const QtListBox& list) {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(list.ListCount()));
    for (int i = 0; i < list.ListCount(); ++i) names.push_back(list.List(i));
    return names;
  }
  std::vector<std::string> StatRows() {
    std::vector<std::string> rows;
    const ListRows& list = The<MultiColumnList>("lstStats").Rows();
    for (std::size_t i = 0; i < list.ListCount(); ++i) rows.push_back(list.Row(i).text);
    return rows;
  }
  std::vector<std::int32_t> Missions() {
    std::vector<std::int32_t> ids;
    for (std::int32_t i = 0; i < conFile_.GetMissionCount(); ++i) {
      ids.push_back(conFile_.GetMission(static_cast<std::int16_t>(i)));
    }
    return ids;
  }

  TestWorkspace space_;
  ConversationFile conFile_;
};

TEST_F(FrmFilePropertiesTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(Form().windowTitle(), "Conversation File Properties");
  auto& tabs = The<QTabWidget>("tabProperties");
  ASSERT_EQ(tabs.count(), 4);
  EXPECT_EQ(tabs.tabText(0), "Missions");
  EXPECT_EQ(tabs.tabText(1), "Misc");
  EXPECT_EQ(tabs.tabText(2), "Stats");
  EXPECT_EQ(tabs.tabText(3), "Info");
  const auto labelOf = [this](const char* field) {
    for (QLabel* label : Form().findChildren<QLabel*>()) {
      if (label->buddy() != nullptr && label->buddy()->objectName() == field) return label->text();
    }
    return QString();
  };
  EXPECT_EQ(labelOf("lstMissions"), "This File:");
  EXPECT_EQ(labelOf("lstMissionsAvailable"), "Available Missions:");
  EXPECT_EQ(labelOf("txtAudioPackage"), "Audio Package:");
  EXPECT_EQ(labelOf("txtNotes"), "Notes:");
  EXPECT_EQ(labelOf("lstStats"), "Speaker Statistics:");
  EXPECT_EQ(Caption("cmdAdd"), "<-- Add");
  EXPECT_EQ(Caption("cmdAddAll"), "<-- All");
  EXPECT_EQ(Caption("cmdRemove"), "Remove -->");
  EXPECT_EQ(Caption("cmdRemoveAll"), "All -->");
  EXPECT_EQ(Caption("cmdPrint"), "&Print");
  EXPECT_EQ(Caption("cmdExport"), "&Export...");
  EXPECT_EQ(Caption("cmdOK"), "&OK");
  EXPECT_EQ(Caption("cmdCancel"), "Cancel");
  EXPECT_EQ(The<MultiColumnList>("lstStats").Head(0), "Speaker");
  EXPECT_EQ(The<MultiColumnList>("lstStats").Head(1), "Lines");
  EXPECT_EQ(Label("lblVersion"), "File Version:");
  EXPECT_EQ(Label("lblCreationDate"), "Created On:");
  EXPECT_EQ(Label("lblCreatedBy"), "Created By:");
  EXPECT_EQ(Label("lblLastUpdated"), "Last Modified On:");
  EXPECT_EQ(Label("lblLastUpdatedBy"), "Last Modified By:");
  EXPECT_EQ(The<QLabel>("panVersion").parentWidget(), &The<QFrame>("SSFrame1"));
}

TEST_F(FrmFilePropertiesTest, InfoShowsTheHeaderOfTheFileInTheUsersLocale) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  EXPECT_EQ(Label("panVersion"), "21");
  EXPECT_EQ(Label("panCreationDate"), "05.03.26 14:30");
  EXPECT_EQ(Label("panLastUpdated"), "06.04.26 07:08");
  EXPECT_EQ(Label("panCreatedBy"), "anna");
  EXPECT_EQ(Label("panLastUpdatedBy"), "ben");
  QLocale::setDefault(before);
}

TEST_F(FrmFilePropertiesTest, TheMissionsOfTheFileStandApartFromThoseItLacks) {
  EXPECT_THAT(Names(Chosen()), ElementsAre("Intro", "Mission 03"));
  EXPECT_EQ(Chosen().ItemData(0), 98);
  EXPECT_EQ(Chosen().ItemData(1), 3);
  EXPECT_EQ(Available().ListCount(), 16);
  const std::vector<std::string> others = Names(Available());
  EXPECT_THAT(others, testing::Contains("EndGame"));
  EXPECT_THAT(others, testing::Not(testing::Contains("Intro")));
  EXPECT_THAT(others, testing::Not(testing::Contains("Mission 03")));
  EXPECT_THAT(others, testing::Not(testing::Contains("Mission 13")));
}

TEST_F(FrmFilePropertiesTest, OkWantsAMissionAndAnAudioPackage) {
  EXPECT_TRUE(IsEnabled("cmdOK"));
  GoTo(kMisc);
  The<QLineEdit>("txtAudioPackage").clear();
  EXPECT_FALSE(IsEnabled("cmdOK"));
  QTest::keyClicks(&The<QLineEdit>("txtAudioPackage"), "A");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  GoTo(kMissions);
  Click("cmdRemoveAll");
  EXPECT_FALSE(IsEnabled("cmdOK"));
  Click("cmdAddAll");
  EXPECT_TRUE(IsEnabled("cmdOK"));
}

TEST_F(FrmFilePropertiesTest, ReturnDoesNothingWhileOkIsGrey) {
  GoTo(kMisc);
  The<QLineEdit>("txtAudioPackage").clear();
  QTest::keyClick(&The<QLineEdit>("txtAudioPackage"), Qt::Key_Return);
  EXPECT_TRUE(Form().isVisible());
  EXPECT_FALSE(conFile_.IsModified());
}

TEST_F(FrmFilePropertiesTest, TheButtonsBetweenTheListsFollowRowsAndSelection) {
  EXPECT_FALSE(IsEnabled("cmdAdd"));
  EXPECT_TRUE(IsEnabled("cmdAddAll"));
  EXPECT_FALSE(IsEnabled("cmdRemove"));
  EXPECT_TRUE(IsEnabled("cmdRemoveAll"));
  ClickRow(Available(), 0);
  EXPECT_TRUE(IsEnabled("cmdAdd"));
  ClickRow(Chosen(), 0);
  EXPECT_TRUE(IsEnabled("cmdRemove"));
  Click("cmdAddAll");
  EXPECT_FALSE(IsEnabled("cmdAdd"));
  EXPECT_FALSE(IsEnabled("cmdAddAll"));
  Click("cmdRemoveAll");
  EXPECT_TRUE(IsEnabled("cmdAddAll"));
  EXPECT_FALSE(IsEnabled("cmdRemove"));
  EXPECT_FALSE(IsEnabled("cmdRemoveAll"));
}

TEST_F(FrmFilePropertiesTest, SelectedMissionsMoveWithTheirNumbersAndBackAgain) {
  // In name order: EndGame, Mission 00, Mission 01, Mission 02, Mission 04 ...
  ClickRow(Available(), 1);
  ClickRow(Available(), 3, Qt::ControlModifier);
  Click("cmdAdd");
  EXPECT_THAT(Names(Chosen()), ElementsAre("Intro", "Mission 00", "Mission 02", "Mission 03"));
  EXPECT_EQ(Chosen().ItemData(1), 0);
  EXPECT_EQ(Chosen().ItemData(2), 2);
  EXPECT_EQ(Available().ListCount(), 14);
  ClickRow(Chosen(), 0);
  ClickRow(Chosen(), 2, Qt::ShiftModifier);
  Click("cmdRemove");
  EXPECT_THAT(Names(Chosen()), ElementsAre("Mission 03"));
  EXPECT_EQ(Available().ListCount(), 17);
}

TEST_F(FrmFilePropertiesTest, SeveralMissionsAreSelectedWithTheKeysAlone) {
  Available().setFocus();
  QTest::keyClick(&Available(), Qt::Key_Home);
  QTest::keyClick(&Available(), Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&Available(), Qt::Key_Down, Qt::ControlModifier);
  QTest::keyClick(&Available(), Qt::Key_Down, Qt::ControlModifier);
  QTest::keyClick(&Available(), Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(Available().selectedItems().size(), 3);
  The<QPushButton>("cmdAdd").setFocus();
  QTest::keyClick(&The<QPushButton>("cmdAdd"), Qt::Key_Space);
  EXPECT_THAT(Names(Chosen()),
              ElementsAre("EndGame", "Intro", "Mission 00", "Mission 02", "Mission 03"));
}

TEST_F(FrmFilePropertiesTest, AButtonThatGoesGreyHandsTheFocusToItsListAndNotToTheNextButton) {
  const auto press = [this](const char* name) {
    The<QPushButton>(name).setFocus();
    QTest::keyClick(&The<QPushButton>(name), Qt::Key_Space);
  };
  The<QtListBox>("lstMissionsAvailable").setCurrentRow(0);
  press("cmdAdd");
  EXPECT_FALSE(IsEnabled("cmdAdd"));
  EXPECT_TRUE(The<QtListBox>("lstMissionsAvailable").hasFocus());
  press("cmdAddAll");
  EXPECT_TRUE(The<QtListBox>("lstMissions").hasFocus());
  press("cmdRemoveAll");
  EXPECT_TRUE(The<QtListBox>("lstMissionsAvailable").hasFocus());
}

TEST_F(FrmFilePropertiesTest, ADoubleClickMovesAMissionToTheOtherSide) {
  ClickRow(Available(), 0);
  QTest::mouseDClick(Available().viewport(), Qt::LeftButton, {},
                     Available().visualItemRect(Available().item(0)).center());
  EXPECT_THAT(Names(Chosen()), ElementsAre("EndGame", "Intro", "Mission 03"));
  ClickRow(Chosen(), 1);
  QTest::mouseDClick(Chosen().viewport(), Qt::LeftButton, {},
                     Chosen().visualItemRect(Chosen().item(1)).center());
  EXPECT_THAT(Names(Chosen()), ElementsAre("EndGame", "Mission 03"));
}

TEST_F(FrmFilePropertiesTest, OkStoresMissionsPackageAndNotesAndMarksTheFile) {
  ClickRow(Chosen(), 0);
  Click("cmdRemove");
  ClickRow(Available(), 0);
  Click("cmdAdd");
  GoTo(kMisc);
  QTest::keyClicks(&The<QLineEdit>("txtAudioPackage"), "b");
  The<QtTextBox>("txtNotes").selectAll();
  QTest::keyClicks(&The<QtTextBox>("txtNotes"), "new notes");
  EXPECT_EQ(conFile_.AudioPackage, "Audio07");
  EXPECT_FALSE(conFile_.IsModified());
  Click("cmdOK");
  EXPECT_TRUE(Form().isHidden());
  EXPECT_THAT(Missions(), ElementsAre(99, 3));
  EXPECT_EQ(conFile_.AudioPackage, "Audio07b");
  EXPECT_EQ(conFile_.notes, "new notes");
  EXPECT_TRUE(conFile_.IsModified());
  EXPECT_EQ(conFile_.LastUpdated, kSavedAt);
  EXPECT_EQ(conFile_.LastUpdatedBy, kSavedBy);
}

TEST_F(FrmFilePropertiesTest, CancelAfterMovingMissionsKeepsNothing) {
  Click("cmdAddAll");
  GoTo(kMisc);
  QTest::keyClicks(&The<QLineEdit>("txtAudioPackage"), "b");
  Click("cmdCancel");
  EXPECT_TRUE(Form().isHidden());
  EXPECT_THAT(Missions(), ElementsAre(3, 98));
  EXPECT_EQ(conFile_.AudioPackage, "Audio07");
  EXPECT_FALSE(conFile_.IsModified());
}

TEST_F(FrmFilePropertiesTest, EnteringMiscPutsTheCaretBehindTheAudioPackage) {
  The<QLineEdit>("txtAudioPackage").setCursorPosition(0);
  GoTo(kMisc);
  EXPECT_TRUE(The<QLineEdit>("txtAudioPackage").hasFocus());
  EXPECT_EQ(The<QLineEdit>("txtAudioPackage").cursorPosition(), 7);
  EXPECT_FALSE(The<QLineEdit>("txtAudioPackage").hasSelectedText());
}

TEST_F(FrmFilePropertiesTest, StatsCountEachSpeechAndEveryItemOfAChoiceBySpeaker) {
  Conversation& con = AddCon(0);
  AddSpeech(con, 1);
  AddChoice(con, 3);
  AddSpeech(con, 0);
  AddSpeech(AddCon(1), 1);
  EXPECT_TRUE(StatRows().empty()) << "nothing is counted before the tab is entered";
  GoTo(kStats);
  EXPECT_THAT(StatRows(), ElementsAre("Alex;1", "MKHollis;3", "Zoe;2"));
  EXPECT_EQ(The<MultiColumnList>("lstStats").Rows().Row(1).itemData, 3);
}

TEST_F(FrmFilePropertiesTest, ComingBackToStatsDoublesEveryCount) {
  Conversation& con = AddCon(0);
  AddSpeech(con, 1);
  AddChoice(con, 2);
  GoTo(kStats);
  GoTo(kInfo);
  GoTo(kStats);
  EXPECT_THAT(StatRows(), ElementsAre("MKHollis;4", "Zoe;2"));
}

TEST_F(FrmFilePropertiesTest, ASpeakerWithASemicolonHasARowForEachLineAndItsCountIsOutOfSight) {
  space_.AddRows(kActorTable, {{5, "B;ack"}});
  Conversation& con = AddCon(0);
  AddSpeech(con, 5);
  AddSpeech(con, 5);
  GoTo(kStats);
  EXPECT_THAT(StatRows(), ElementsAre("B;ack;1", "B;ack;1"));
  EXPECT_EQ(The<MultiColumnList>("lstStats").ColumnCount(), 2) << "the count is a third field";
}

TEST_F(FrmFilePropertiesTest, AFileWithoutEventsHasNoStats) {
  AddCon(0);
  GoTo(kStats);
  EXPECT_TRUE(StatRows().empty());
}

TEST_F(FrmFilePropertiesTest, ExportDoesNothing) {
  AddSpeech(AddCon(0), 1);
  GoTo(kStats);
  Click("cmdExport");
  EXPECT_TRUE(Form().isVisible());
  EXPECT_THAT(StatRows(), ElementsAre("Zoe;1"));
}

TEST_F(FrmFilePropertiesTest, TabGoesThroughEachTabFromTopToBottom) {
  ClickRow(Available(), 0);
  ClickRow(Chosen(), 0);
  ExpectTabVisits({"cmdAdd", "cmdAddAll", "cmdRemove", "cmdRemoveAll", "lstMissionsAvailable",
                   "cmdOK", "cmdCancel", "qt_tabwidget_tabbar", "lstMissions"});
  GoTo(kMisc);
  ExpectTabVisits({"txtNotes", "cmdOK", "cmdCancel", "qt_tabwidget_tabbar", "txtAudioPackage"});
  GoTo(kStats);
  The<QWidget>("lstStats").setFocus();
  ExpectTabVisits(
      {"cmdPrint", "cmdExport", "cmdOK", "cmdCancel", "qt_tabwidget_tabbar", "lstStats"});
  GoTo(kInfo);
  The<QWidget>("panVersion").setFocus();
  ExpectTabVisits({"panCreationDate", "panCreatedBy", "panLastUpdated", "panLastUpdatedBy", "cmdOK",
                   "cmdCancel", "qt_tabwidget_tabbar", "panVersion"});
}

TEST_F(FrmFilePropertiesTest, ItGoesFromWhicheverTabIsShown) {
  for (const Tab tab : {kMissions, kMisc, kStats, kInfo}) {
    GoTo(tab == kMissions ? kInfo : kMissions);
    GoTo(tab);
    form_.reset();
  }
}

}  // namespace
}  // namespace parlate

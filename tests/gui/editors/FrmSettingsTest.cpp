#include <gtest/gtest.h>

#include <QAccessible>
#include <memory>

#include "editors/ShownForm.h"
#include "editors/frmSettings.h"
#include "support/ScriptedPrompts.h"

namespace parlate {
namespace {

using namespace testing_support;

class RecordingHost final : public SettingsHost {
 public:
  void UpdateLastFiles() override { ++lastFilesUpdates; }
  void UpdateEventsList() override { ++eventsListUpdates; }

  int lastFilesUpdates = 0;
  int eventsListUpdates = 0;
};

class FrmSettingsTest : public ShownForm<frmSettings> {
 protected:
  std::unique_ptr<frmSettings> MakeForm() override {
    return std::make_unique<frmSettings>(defaults_, fileDialogs_, host_);
  }
  QLineEdit& Text(const char* name) { return The<QLineEdit>(name); }
  QCheckBox& Box(const char* name) { return The<QCheckBox>(name); }

  ConversationDefaults defaults_;
  ScriptedFileDialogs fileDialogs_;
  RecordingHost host_;
};

TEST_F(FrmSettingsTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(Form().windowTitle(), "Parlate Settings");
  EXPECT_EQ(Form().objectName(), "frmSettings");
  EXPECT_EQ(The<QLabel>("Label1").text(), "Username:");
  EXPECT_EQ(The<QLabel>("Label3").text(), "Conversation File Path:");
  EXPECT_EQ(The<QLabel>("Label4").text(), "Conversation File Backup Path:");
  EXPECT_EQ(The<QLabel>("Label2").text(), "Audio Path:");
  for (const char* name :
       {"cmdBrowseConFilePath(0)", "cmdBrowseConFilePath(1)", "cmdBrowseConFilePath(2)"}) {
    EXPECT_EQ(The<QPushButton>(name).text(), "Browse...");
  }
  EXPECT_EQ(Box("chkExpandFlags").text(), "Expand Flags on \"Expand All\"");
  EXPECT_EQ(Box("chkConfirmationConDelete").text(), "Confirmation on Conversation Delete");
  EXPECT_EQ(Box("chkConfirmationEventDelete").text(), "Confirmation on Event Delete");
  EXPECT_EQ(Box("chkHighlightMissingAudio").text(), "Highlight Speech/Choice Events Missing Audio");
  EXPECT_EQ(The<QPushButton>("cmdClearLastFiles").text(), "Clear Last Files");
  EXPECT_EQ(The<QPushButton>("cmdOK").text(), "&OK");
  EXPECT_EQ(The<QPushButton>("cmdCancel").text(), "&Cancel");
  EXPECT_EQ(Box("chkExpandFlags").parentWidget(), &The<QFrame>("Frame1"));
}

TEST_F(FrmSettingsTest, EachFieldIsReadOutWithItsLabel) {
  const auto spoken = [this](const char* name) {
    return QAccessible::queryAccessibleInterface(&The<QWidget>(name))->text(QAccessible::Name);
  };
  EXPECT_EQ(spoken("txtUsername"), "Username:");
  EXPECT_EQ(spoken("txtConPath"), "Conversation File Path:");
  EXPECT_EQ(spoken("txtConBackupPath"), "Conversation File Backup Path:");
  EXPECT_EQ(spoken("txtAudioPath"), "Audio Path:");
  EXPECT_EQ(spoken("cmdBrowseConFilePath(2)"), "Browse... Audio Path:");
  EXPECT_EQ(spoken("cmdOK"), "OK");
}

TEST_F(FrmSettingsTest, TabGoesThroughTheFormFromTopToBottom) {
  defaults_.SetLastFiles(0, "/a.con");
  Text("txtUsername").setFocus();
  for (const char* name :
       {"txtConPath", "cmdBrowseConFilePath(0)", "txtConBackupPath", "cmdBrowseConFilePath(1)",
        "txtAudioPath", "cmdBrowseConFilePath(2)", "chkExpandFlags", "chkConfirmationConDelete",
        "chkConfirmationEventDelete", "chkHighlightMissingAudio", "cmdClearLastFiles", "cmdOK",
        "cmdCancel", "txtUsername"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
  }
}

TEST_F(FrmSettingsTest, FieldsShowTheSettings) {
  defaults_.Username = "Zo\xEB";
  defaults_.ConPath = "/con/";
  defaults_.ConBackupPath =
      "/b\xC3\xA4"
      "ck/";
  defaults_.AudioPath = "/audio/";
  defaults_.bExpandFlags = true;
  defaults_.bConfirmationEventDelete = false;
  EXPECT_EQ(Text("txtUsername").text(), QStringLiteral(u"Zo\u00EB"));
  EXPECT_EQ(Text("txtConPath").text(), "/con/");
  EXPECT_EQ(Text("txtConBackupPath").text(), QStringLiteral(u"/b\u00E4ck/"));
  EXPECT_EQ(Text("txtAudioPath").text(), "/audio/");
  EXPECT_TRUE(Box("chkExpandFlags").isChecked());
  EXPECT_TRUE(Box("chkConfirmationConDelete").isChecked());
  EXPECT_FALSE(Box("chkConfirmationEventDelete").isChecked());
  EXPECT_TRUE(Box("chkHighlightMissingAudio").isChecked());
}

TEST_F(FrmSettingsTest, OkStoresAllEightFields) {
  TypeText(Text("txtUsername"), QStringLiteral(u"Zo\u00EB"));
  QTest::keyClicks(&Text("txtConPath"), "/con/");
  TypeText(Text("txtConBackupPath"), QStringLiteral(u"/b\u00E4ck/"));
  QTest::keyClicks(&Text("txtAudioPath"), "/audio/");
  for (const char* name : {"chkExpandFlags", "chkConfirmationConDelete",
                           "chkConfirmationEventDelete", "chkHighlightMissingAudio"}) {
    QTest::keyClick(&Box(name), Qt::Key_Space);
  }
  EXPECT_EQ(defaults_.Username, "");
  Click("cmdOK");
  EXPECT_EQ(Form().modalResult, 0);
  EXPECT_TRUE(Form().isHidden());
  EXPECT_EQ(defaults_.Username, "Zo\xEB");
  EXPECT_EQ(defaults_.ConPath, "/con/");
  EXPECT_EQ(defaults_.ConBackupPath,
            "/b\xC3\xA4"
            "ck/");
  EXPECT_EQ(defaults_.AudioPath, "/audio/");
  EXPECT_TRUE(defaults_.bExpandFlags);
  EXPECT_FALSE(defaults_.bConfirmationConDelete);
  EXPECT_FALSE(defaults_.bConfirmationEventDelete);
  EXPECT_FALSE(defaults_.bHighlightMissingAudio);
}

TEST_F(FrmSettingsTest, OkHasTheEventsShownAnewWithTheNewHighlight) {
  QTest::keyClick(&Box("chkHighlightMissingAudio"), Qt::Key_Space);
  EXPECT_EQ(host_.eventsListUpdates, 0);
  QTest::keyClick(&Text("txtUsername"), Qt::Key_Return);
  EXPECT_EQ(host_.eventsListUpdates, 1);
  EXPECT_FALSE(defaults_.bHighlightMissingAudio);
  EXPECT_EQ(host_.lastFilesUpdates, 0);
}

TEST_F(FrmSettingsTest, ABlankNameAndAMissingFolderAreAccepted) {
  defaults_.Username = "Ada";
  Text("txtUsername").clear();
  QTest::keyClicks(&Text("txtConPath"), "/no/such/folder");
  QTest::keyClick(&Form(), Qt::Key_O, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Form().isHidden(); }));
  EXPECT_EQ(Form().modalResult, 0);
  EXPECT_EQ(defaults_.Username, "");
  EXPECT_EQ(defaults_.ConPath, "/no/such/folder");
}

TEST_F(FrmSettingsTest, CancelStoresNothing) {
  QTest::keyClicks(&Text("txtUsername"), "Ada");
  QTest::keyClick(&Box("chkExpandFlags"), Qt::Key_Space);
  Click("cmdCancel");
  EXPECT_EQ(Form().modalResult, 1);
  EXPECT_TRUE(Form().isHidden());
  EXPECT_EQ(defaults_.Username, "");
  EXPECT_FALSE(defaults_.bExpandFlags);
  EXPECT_EQ(host_.eventsListUpdates, 0);
}

TEST_F(FrmSettingsTest, EscapeAndClosingTheWindowAreCancel) {
  QTest::keyClick(&Form(), Qt::Key_Escape);
  EXPECT_EQ(Form().modalResult, 1);
  EXPECT_TRUE(Form().isHidden());
  form_.reset();
  Form().close();
  EXPECT_EQ(Form().modalResult, 1);
  EXPECT_EQ(host_.eventsListUpdates, 0);
}

TEST_F(FrmSettingsTest, ModalItEndsWithOkOrCancel) {
  frmSettings form(defaults_, fileDialogs_, host_);
  {
    const WhenModal modal([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); });
    form.exec();
  }
  EXPECT_EQ(form.modalResult, 0);
  {
    const WhenModal modal(
        [](QWidget& window) { QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier); });
    form.exec();
  }
  EXPECT_EQ(form.modalResult, 1);
}

TEST_F(FrmSettingsTest, ClearLastFilesIsGreyWithoutAny) {
  EXPECT_FALSE(IsEnabled("cmdClearLastFiles"));
}

TEST_F(FrmSettingsTest, ClearLastFilesTakesEffectAtOnceAndGreys) {
  defaults_.SetLastFiles(3, "/a.con");
  EXPECT_TRUE(IsEnabled("cmdClearLastFiles"));
  Click("cmdClearLastFiles");
  EXPECT_EQ(defaults_.GetLastFilesCount(), 0);
  EXPECT_EQ(host_.lastFilesUpdates, 1);
  EXPECT_FALSE(IsEnabled("cmdClearLastFiles"));
  Click("cmdCancel");
  EXPECT_EQ(defaults_.GetLastFilesCount(), 0);
}

TEST_F(FrmSettingsTest, TypingANameOrAFolderLooksAtTheLastFilesAgain) {
  EXPECT_FALSE(IsEnabled("cmdClearLastFiles"));
  defaults_.SetLastFiles(0, "/a.con");
  QTest::keyClicks(&Text("txtConBackupPath"), "x");
  QTest::keyClicks(&Text("txtAudioPath"), "x");
  EXPECT_FALSE(IsEnabled("cmdClearLastFiles"));
  QTest::keyClicks(&Text("txtUsername"), "x");
  EXPECT_TRUE(IsEnabled("cmdClearLastFiles"));
  defaults_.ClearLastFiles();
  QTest::keyClicks(&Text("txtConPath"), "x");
  EXPECT_FALSE(IsEnabled("cmdClearLastFiles"));
}

TEST_F(FrmSettingsTest, BrowseTakesTheFolderOfTheChosenFileWithItsSeparator) {
  const struct {
    const char* button;
    const char* field;
    const char* title;
    const char* filter;
  } cases[] = {
      {"cmdBrowseConFilePath(0)", "txtConPath", "Choose Conversation Files Directory",
       "Conversation Files (*.con)|*.con|Conversation Backups (*.bak)|*.bak"},
      {"cmdBrowseConFilePath(1)", "txtConBackupPath", "Choose Conversation Files Backup Directory",
       "Conversation Files (*.con)|*.con|Conversation Backups (*.bak)|*.bak"},
      {"cmdBrowseConFilePath(2)", "txtAudioPath", "Choose Audio Path", "All Files (*.*)|*.*"}};
  for (const auto& c : cases) {
    fileDialogs_.Expect("/game/d\xC3\xA9p\xC3\xB4t/file.con");
    Click(c.button);
    EXPECT_EQ(Text(c.field).text(), QStringLiteral(u"/game/d\u00E9p\u00F4t/"));
    EXPECT_EQ(fileDialogs_.opened.back().title, c.title);
    EXPECT_EQ(fileDialogs_.opened.back().filter, c.filter);
  }
  EXPECT_EQ(fileDialogs_.opened.size(), 3U);
  EXPECT_EQ(defaults_.ConPath, "");
}

TEST_F(FrmSettingsTest, ACancelledBrowseChangesNothing) {
  defaults_.AudioPath = "/audio/";
  fileDialogs_.Expect("");
  Click("cmdBrowseConFilePath(2)");
  EXPECT_EQ(Text("txtAudioPath").text(), "/audio/");
}

TEST_F(FrmSettingsTest, ReturnPressesTheButtonThatHasTheFocus) {
  fileDialogs_.Expect("/con/a.con");
  auto& button = The<QPushButton>("cmdBrowseConFilePath(0)");
  button.setFocus();
  QTest::keyClick(&button, Qt::Key_Return);
  EXPECT_EQ(Text("txtConPath").text(), "/con/");
  EXPECT_FALSE(Form().isHidden());
}

TEST_F(FrmSettingsTest, ANameOutsideTheCodePageShowsAsQuestionMarks) {
  QTest::sendKeyEvent(QTest::Click, &Text("txtUsername"), Qt::Key_unknown,
                      QStringLiteral(u"\u4E2D"), Qt::NoModifier);
  EXPECT_EQ(Text("txtUsername").text(), "?");
}

TEST_F(FrmSettingsTest, AWiderWindowGivesTheFieldsMoreRoom) {
  const int width = Text("txtConPath").width();
  const int button = The<QPushButton>("cmdOK").width();
  Form().resize(Form().width() + 200, Form().height());
  QCoreApplication::processEvents();
  EXPECT_EQ(Text("txtConPath").width(), width + 200);
  EXPECT_EQ(The<QPushButton>("cmdOK").width(), button);
}

}  // namespace
}  // namespace parlate

#include <gtest/gtest.h>

#include <QAccessible>
#include <memory>
#include <vector>

#include "editors/ShownForm.h"
#include "editors/frmExport.h"
#include "editors/frmImport.h"
#include "platform/FormKeys.h"
#include "support/ScriptedPrompts.h"

namespace parlate {
namespace {

using namespace testing_support;

struct Exported {
  std::string fileName;
  std::int32_t mode;
  bool comments;
  bool formHidden;
};

class FrmExportTest : public ShownForm<frmExport> {
 protected:
  std::unique_ptr<frmExport> MakeForm() override {
    const auto action = [this](const std::string& name, std::int32_t mode, Boolean comments) {
      exported_.push_back({name, mode, comments, form_->isHidden()});
    };
    return std::make_unique<frmExport>(defaults_, fileDialogs_, action);
  }
  QLineEdit& Name() { return The<QLineEdit>("txtFilename"); }

  ConversationDefaults defaults_;
  ScriptedFileDialogs fileDialogs_;
  std::vector<Exported> exported_;
};

TEST_F(FrmExportTest, EveryCaptionAndDefaultIsTheRightOne) {
  EXPECT_EQ(Form().windowTitle(), "Export Conversations");
  EXPECT_EQ(The<QLabel>("Label3").text(), "Export Filename:");
  EXPECT_EQ(Name().text(), "");
  EXPECT_EQ(The<QPushButton>("cmdBrowseName").text(), "&Browse...");
  EXPECT_EQ(The<QGroupBox>("Frame2").title(), "Export Options");
  EXPECT_EQ(The<QRadioButton>("optExportDialog").text(), "Export Dialog");
  EXPECT_TRUE(The<QRadioButton>("optExportDialog").isChecked());
  EXPECT_EQ(The<QRadioButton>("optExportFilenames").text(), "Export Filenames");
  EXPECT_FALSE(The<QRadioButton>("optExportFilenames").isChecked());
  EXPECT_EQ(The<QCheckBox>("chkExportComments").text(), "Export Comments");
  EXPECT_TRUE(The<QCheckBox>("chkExportComments").isChecked());
  EXPECT_EQ(The<QPushButton>("cmdOK").text(), "&Start Export");
  EXPECT_EQ(The<QPushButton>("cmdCancel").text(), "&Cancel");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Name())->text(QAccessible::Name),
            "Export Filename:");
}

TEST_F(FrmExportTest, TabGoesThroughTheFormFromTopToBottom) {
  QTest::keyClicks(&Name(), "x");
  Name().setFocus();
  ExpectTabVisits({"cmdBrowseName", "optExportDialog", "chkExportComments", "cmdOK", "cmdCancel",
                   "txtFilename"});
}

TEST_F(FrmExportTest, StartIsEnabledOnlyWithAFileName) {
  EXPECT_FALSE(IsEnabled("cmdOK"));
  QTest::keyClicks(&Name(), "a");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  QTest::keyClick(&Name(), Qt::Key_Backspace);
  EXPECT_FALSE(IsEnabled("cmdOK"));
  QTest::keyClick(&Name(), Qt::Key_Return);
  EXPECT_FALSE(Form().isHidden());
}

TEST_F(FrmExportTest, ComingBackToTheFormTestsItsControlsAnew) {
  Form();
  {
    // What tells the form of a change is kept from it.
    const QSignalBlocker name(&Name());
    const QSignalBlocker dialog(&The<QRadioButton>("optExportDialog"));
    Name().setText("a");
    The<QRadioButton>("optExportFilenames").setChecked(true);
  }
  EXPECT_FALSE(IsEnabled("cmdOK"));
  EXPECT_TRUE(IsEnabled("chkExportComments"));
  LeaveAndComeBack(Form());
  EXPECT_TRUE(IsEnabled("cmdOK"));
  EXPECT_FALSE(IsEnabled("chkExportComments"));
}

TEST_F(FrmExportTest, CommentsAreOfferedWithTheDialogAlone) {
  EXPECT_TRUE(IsEnabled("chkExportComments"));
  Click("optExportFilenames");
  EXPECT_FALSE(IsEnabled("chkExportComments"));
  Click("optExportDialog");
  EXPECT_TRUE(IsEnabled("chkExportComments"));
}

TEST_F(FrmExportTest, StartHidesTheFormAndExportsTheDialogWithComments) {
  QTest::keyClicks(&Name(), "/texts/a.txt");
  Click("cmdOK");
  ASSERT_EQ(exported_.size(), 1U);
  EXPECT_EQ(exported_[0].fileName, "/texts/a.txt");
  EXPECT_EQ(exported_[0].mode, 0);
  EXPECT_TRUE(exported_[0].comments);
  EXPECT_TRUE(exported_[0].formHidden);
  EXPECT_TRUE(Form().isHidden());
}

TEST_F(FrmExportTest, StartHandsOnTheMarksAlsoOfAGreyedBox) {
  TypeText(Name(), QStringLiteral(u"/t\u00E9xt"));
  Click("chkExportComments");
  QTest::keyClick(&Form(), Qt::Key_S, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Form().isHidden(); }));
  EXPECT_EQ(exported_[0].fileName, "/t\xC3\xA9xt");
  EXPECT_EQ(exported_[0].mode, 0);
  EXPECT_FALSE(exported_[0].comments);
  form_.reset();
  QTest::keyClicks(&Name(), "b");
  Click("optExportFilenames");
  Click("cmdOK");
  ASSERT_EQ(exported_.size(), 2U);
  EXPECT_EQ(exported_[1].mode, 1);
  EXPECT_TRUE(exported_[1].comments);
}

TEST_F(FrmExportTest, CancelAndEscapeExportNothing) {
  QTest::keyClicks(&Name(), "a");
  Click("cmdCancel");
  EXPECT_TRUE(Form().isHidden());
  form_.reset();
  QTest::keyClicks(&Name(), "a");
  QTest::keyClick(&Form(), Qt::Key_Escape);
  EXPECT_TRUE(Form().isHidden());
  EXPECT_TRUE(exported_.empty());
}

TEST_F(FrmExportTest, BrowseBeginsInTheLastFolderAndTakesTheChosenFile) {
  defaults_.LastExportPath = "/texts/";
  fileDialogs_.Expect("/out/d\xC3\xA9p\xC3\xB4t/a.txt");
  Click("cmdBrowseName");
  ASSERT_EQ(fileDialogs_.saved.size(), 1U);
  EXPECT_EQ(fileDialogs_.saved[0].title, "Choose Export File");
  EXPECT_EQ(fileDialogs_.saved[0].filter, "Text Files (*.txt)|*.txt|All Files (*.*)|*.*");
  EXPECT_EQ(fileDialogs_.saved[0].initialFolder, "/texts/");
  EXPECT_TRUE(fileDialogs_.saved[0].asksToReplace);
  EXPECT_EQ(Name().text(), QStringLiteral(u"/out/d\u00E9p\u00F4t/a.txt"));
  EXPECT_EQ(defaults_.LastExportPath, "/out/d\xC3\xA9p\xC3\xB4t/");
  EXPECT_TRUE(IsEnabled("cmdOK"));
}

TEST_F(FrmExportTest, ACancelledBrowseChangesNothing) {
  defaults_.LastExportPath = "/texts/";
  QTest::keyClicks(&Name(), "a");
  fileDialogs_.Expect("");
  Click("cmdBrowseName");
  EXPECT_EQ(Name().text(), "a");
  EXPECT_EQ(defaults_.LastExportPath, "/texts/");
}

class FrmImportTest : public ShownForm<frmImport> {
 protected:
  std::unique_ptr<frmImport> MakeForm() override {
    return std::make_unique<frmImport>(defaults_, fileDialogs_, [this](const std::string& name) {
      EXPECT_TRUE(form_->isHidden());
      imported_.push_back(name);
    });
  }
  QLineEdit& Name() { return The<QLineEdit>("txtFilename"); }

  ConversationDefaults defaults_;
  ScriptedFileDialogs fileDialogs_;
  std::vector<std::string> imported_;
};

TEST_F(FrmImportTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(Form().windowTitle(), "Import Conversations");
  EXPECT_EQ(The<QLabel>("Label3").text(), "Import Filename:");
  EXPECT_EQ(Name().text(), "");
  EXPECT_EQ(The<QPushButton>("cmdBrowseName").text(), "&Browse...");
  EXPECT_EQ(The<QPushButton>("cmdOK").text(), "&Start Import");
  EXPECT_EQ(The<QPushButton>("cmdCancel").text(), "&Cancel");
}

TEST_F(FrmImportTest, TabGoesThroughTheFormFromTopToBottom) {
  QTest::keyClicks(&Name(), "x");
  Name().setFocus();
  ExpectTabVisits({"cmdBrowseName", "cmdOK", "cmdCancel", "txtFilename"});
}

TEST_F(FrmImportTest, StartIsEnabledOnlyWithAFileName) {
  EXPECT_FALSE(The<QPushButton>("cmdOK").isEnabled());
  QTest::keyClicks(&Name(), "a");
  EXPECT_TRUE(The<QPushButton>("cmdOK").isEnabled());
  QTest::keyClick(&Name(), Qt::Key_Backspace);
  EXPECT_FALSE(The<QPushButton>("cmdOK").isEnabled());
}

TEST_F(FrmImportTest, ComingBackToTheFormTestsTheNameAnew) {
  {
    const QSignalBlocker name(&Name());
    Name().setText("a");
  }
  EXPECT_FALSE(The<QPushButton>("cmdOK").isEnabled());
  LeaveAndComeBack(Form());
  EXPECT_TRUE(The<QPushButton>("cmdOK").isEnabled());
}

TEST_F(FrmImportTest, StartHidesTheFormAndImports) {
  TypeText(Name(), QStringLiteral(u"/t\u00E9xt"));
  QTest::keyClick(&Name(), Qt::Key_Return);
  EXPECT_EQ(imported_, std::vector<std::string>{"/t\xC3\xA9xt"});
  EXPECT_TRUE(Form().isHidden());
}

TEST_F(FrmImportTest, CancelImportsNothing) {
  QTest::keyClicks(&Name(), "a");
  QTest::keyClick(&Form(), Qt::Key_C, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Form().isHidden(); }));
  EXPECT_TRUE(imported_.empty());
}

TEST_F(FrmImportTest, BrowseIsTheDialogForSavingAndAsksNothingOfAFileThatExists) {
  defaults_.LastImportPath = "/texts/";
  fileDialogs_.Expect("/in/a.txt");
  Click("cmdBrowseName");
  ASSERT_EQ(fileDialogs_.saved.size(), 1U);
  EXPECT_EQ(fileDialogs_.saved[0].title, "Choose File to Import");
  EXPECT_EQ(fileDialogs_.saved[0].filter, "All Files (*.*)|*.*|Text Files (*.txt)|*.txt");
  EXPECT_EQ(fileDialogs_.saved[0].initialFolder, "/texts/");
  EXPECT_FALSE(fileDialogs_.saved[0].asksToReplace);
  EXPECT_EQ(Name().text(), "/in/a.txt");
  EXPECT_EQ(defaults_.LastImportPath, "/in/");
  fileDialogs_.Expect("");
  Click("cmdBrowseName");
  EXPECT_EQ(Name().text(), "/in/a.txt");
  EXPECT_EQ(defaults_.LastImportPath, "/in/");
}

}  // namespace
}  // namespace parlate

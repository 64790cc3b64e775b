#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "editors/frmPrintCons.h"
#include "platform/Modal.h"
#include "support/ScriptedPrompts.h"

namespace parlate {
namespace {

using testing_support::ScriptedMessageBoxes;

struct Option {
  const char* control;
  const char* caption;
  Boolean ConversationDefaults::*setting;
};

constexpr Option kOptions[] = {
    {"chkListingOnly", "Conversation Listing Only", &ConversationDefaults::bPrintListingOnly},
    {"chkDetailedHeader", "Print Detailed Header", &ConversationDefaults::bPrintDetailedHeader},
    {"chkPrintBlankLines", "Blank Lines Between Events", &ConversationDefaults::bPrintBlankLines},
    {"chkPrintFooters", "Print Page Footers", &ConversationDefaults::bPrintFooters},
    {"chkConPageBreaks", "Page Break After Each Conversation",
     &ConversationDefaults::bConPageBreaks},
    {"chkPrintAudioNames", "Print Audio Filenames", &ConversationDefaults::bPrintAudioNames},
    {"chkPrintSpeechOnly", "Print Only Speech-Related Events",
     &ConversationDefaults::bPrintSpeechOnly},
};

class FrmPrintCons : public testing::Test {
 protected:
  frmPrintCons& Show() {
    form_ = std::make_unique<frmPrintCons>(defaults_, messages_);
    form_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    return *form_;
  }
  template <class Control>
  Control& Find(const char* name) {
    return ControlNamed<Control>(*form_, name);
  }
  void Click(const char* name) {
    QTest::mouseClick(&Find<QAbstractButton>(name), Qt::LeftButton, {}, QPoint(8, 8));
  }
  void TypeSize(const char* size) {
    QLineEdit& edit = *Find<QtComboBox>("cboFontSizes").lineEdit();
    edit.selectAll();
    QTest::keyClicks(&edit, size);
  }

  ConversationDefaults defaults_;
  ScriptedMessageBoxes messages_;
  std::unique_ptr<frmPrintCons> form_;
};

TEST_F(FrmPrintCons, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(Show().windowTitle(), "Print Conversations");
  EXPECT_EQ(Find<QGroupBox>("fraPrint").title(), "Print Conversations ");
  EXPECT_EQ(Find<QRadioButton>("optPrintAll").text(), "All Conversations");
  EXPECT_EQ(Find<QRadioButton>("optPrintSelected").text(), "Selected Conversation");
  for (const Option& option : kOptions) {
    EXPECT_EQ(Find<QCheckBox>(option.control).text(), option.caption);
  }
  EXPECT_EQ(Find<QLabel>("Label1").text(), "Font Size:");
  EXPECT_EQ(Find<QPushButton>("cmdOK").text(), "&OK");
  EXPECT_EQ(Find<QPushButton>("cmdCancel").text(), "&Cancel");
}

TEST_F(FrmPrintCons, ShowsTheSettings) {
  for (const bool on : {false, true}) {
    for (const Option& option : kOptions) defaults_.*option.setting = on;
    defaults_.PrintFontSize = on ? 13 : 9;
    Show();
    for (const Option& option : kOptions) {
      EXPECT_EQ(Find<QCheckBox>(option.control).isChecked(), on) << option.control;
    }
    EXPECT_EQ(Find<QtComboBox>("cboFontSizes").Text(), on ? "13" : "9");
  }
}

TEST_F(FrmPrintCons, OffersNineSizes) {
  Show();
  const QtComboBox& sizes = Find<QtComboBox>("cboFontSizes");
  std::vector<std::string> offered;
  for (int i = 0; i < sizes.ListCount(); ++i) offered.push_back(sizes.List(i));
  EXPECT_EQ(offered,
            (std::vector<std::string>{"8", "9", "10", "11", "12", "14", "16", "18", "24"}));
}

TEST_F(FrmPrintCons, TheListingIsForAllConversationsOnly) {
  Show();
  EXPECT_TRUE(Find<QCheckBox>("chkListingOnly").isEnabled());
  Click("optPrintSelected");
  EXPECT_FALSE(Find<QCheckBox>("chkListingOnly").isEnabled());
  Click("optPrintAll");
  EXPECT_TRUE(Find<QCheckBox>("chkListingOnly").isEnabled());
}

TEST_F(FrmPrintCons, OffersTheSelectedConversationOnlyIfThereIsOne) {
  Show().SetChoice(false, true);
  EXPECT_FALSE(Find<QRadioButton>("optPrintSelected").isEnabled());
  EXPECT_TRUE(Find<QRadioButton>("optPrintAll").isChecked());
  form_->SetChoice(true, false);
  EXPECT_TRUE(Find<QRadioButton>("optPrintSelected").isEnabled());
  EXPECT_TRUE(Find<QRadioButton>("optPrintSelected").isChecked());
  EXPECT_FALSE(Find<QCheckBox>("chkListingOnly").isEnabled());
}

TEST_F(FrmPrintCons, OkStoresEveryOption) {
  for (const Option& option : kOptions) defaults_.*option.setting = false;
  Show();
  for (const Option& option : kOptions) Click(option.control);
  TypeSize("14");
  Click("cmdOK");
  EXPECT_EQ(form_->modalResult, 0);
  EXPECT_FALSE(form_->isVisible());
  for (const Option& option : kOptions) EXPECT_TRUE(defaults_.*option.setting) << option.control;
  EXPECT_EQ(defaults_.PrintFontSize, 14);
}

TEST_F(FrmPrintCons, CancelStoresNothing) {
  const bool before = defaults_.bPrintFooters;
  Show();
  Click("chkPrintFooters");
  TypeSize("14");
  Click("cmdCancel");
  EXPECT_EQ(form_->modalResult, 1);
  EXPECT_EQ(defaults_.bPrintFooters, Boolean(before));
  EXPECT_EQ(defaults_.PrintFontSize, 10);
}

TEST_F(FrmPrintCons, RefusesSizesBelowFiveAndAboveTwentyFour) {
  Show();
  for (const char* size : {"4", "25", "", "abc", "-8", "99999999999"}) {
    messages_.Expect(Answer::Ok);
    TypeSize(size);
    if (*size == '\0') QTest::keyClick(Find<QtComboBox>("cboFontSizes").lineEdit(), Qt::Key_Delete);
    Click("cmdOK");
    EXPECT_TRUE(form_->isVisible()) << size;
    EXPECT_TRUE(Find<QtComboBox>("cboFontSizes").hasFocus()) << size;
    EXPECT_EQ(messages_.shown.back().title, "Invalid Font Size!");
    EXPECT_EQ(messages_.shown.back().text, "Font size must be between 5 and 24");
    EXPECT_EQ(messages_.shown.back().icon, MessageBox::Icon::Critical);
  }
  EXPECT_EQ(messages_.shown.size(), 6U);
  EXPECT_EQ(defaults_.PrintFontSize, 10);
}

TEST_F(FrmPrintCons, FiveAndTwentyFourPassThoughFiveIsNotInTheList) {
  for (const int size : {5, 24}) {
    Show();
    TypeSize(std::to_string(size).c_str());
    Click("cmdOK");
    EXPECT_EQ(form_->modalResult, 0);
    EXPECT_EQ(defaults_.PrintFontSize, size);
  }
}

}  // namespace
}  // namespace parlate

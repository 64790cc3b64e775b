#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "editors/ShownForm.h"
#include "editors/frmPrintCons.h"
#include "support/ScriptedPrompts.h"

namespace parlate {
namespace {

using namespace testing_support;

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

class FrmPrintCons : public ShownForm<frmPrintCons> {
 protected:
  std::unique_ptr<frmPrintCons> MakeForm() override {
    return std::make_unique<frmPrintCons>(defaults_, messages_);
  }
  /// A form that is made anew.
  frmPrintCons& Show() {
    form_.reset();
    return Form();
  }
  void TypeSize(const char* size) {
    QLineEdit& edit = *The<QtComboBox>("cboFontSizes").lineEdit();
    edit.selectAll();
    QTest::keyClicks(&edit, size);
  }

  ConversationDefaults defaults_;
  ScriptedMessageBoxes messages_;
};

TEST_F(FrmPrintCons, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(Show().windowTitle(), "Print Conversations");
  EXPECT_EQ(The<QGroupBox>("fraPrint").title(), "Print Conversations ");
  EXPECT_EQ(The<QRadioButton>("optPrintAll").text(), "All Conversations");
  EXPECT_EQ(The<QRadioButton>("optPrintSelected").text(), "Selected Conversation");
  for (const Option& option : kOptions) {
    EXPECT_EQ(The<QCheckBox>(option.control).text(), option.caption);
  }
  EXPECT_EQ(The<QLabel>("Label1").text(), "Font Size:");
  EXPECT_EQ(The<QPushButton>("cmdOK").text(), "&OK");
  EXPECT_EQ(The<QPushButton>("cmdCancel").text(), "&Cancel");
}

TEST_F(FrmPrintCons, ShowsTheSettings) {
  for (const bool on : {false, true}) {
    for (const Option& option : kOptions) defaults_.*option.setting = on;
    defaults_.PrintFontSize = on ? 13 : 9;
    Show();
    for (const Option& option : kOptions) {
      EXPECT_EQ(The<QCheckBox>(option.control).isChecked(), on) << option.control;
    }
    EXPECT_EQ(The<QtComboBox>("cboFontSizes").Text(), on ? "13" : "9");
  }
}

TEST_F(FrmPrintCons, OffersNineSizes) {
  Show();
  const QtComboBox& sizes = The<QtComboBox>("cboFontSizes");
  std::vector<std::string> offered;
  offered.reserve(static_cast<std::size_t>(sizes.ListCount()));
  for (int i = 0; i < sizes.ListCount(); ++i) offered.push_back(sizes.List(i));
  EXPECT_EQ(offered,
            (std::vector<std::string>{"8", "9", "10", "11", "12", "14", "16", "18", "24"}));
}

TEST_F(FrmPrintCons, TheListingIsForAllConversationsOnly) {
  Show();
  EXPECT_TRUE(The<QCheckBox>("chkListingOnly").isEnabled());
  Click("optPrintSelected");
  EXPECT_FALSE(The<QCheckBox>("chkListingOnly").isEnabled());
  Click("optPrintAll");
  EXPECT_TRUE(The<QCheckBox>("chkListingOnly").isEnabled());
}

TEST_F(FrmPrintCons, OffersTheSelectedConversationOnlyIfThereIsOne) {
  Show().SetChoice(false, true);
  EXPECT_FALSE(The<QRadioButton>("optPrintSelected").isEnabled());
  EXPECT_TRUE(The<QRadioButton>("optPrintAll").isChecked());
  form_->SetChoice(true, false);
  EXPECT_TRUE(The<QRadioButton>("optPrintSelected").isEnabled());
  EXPECT_TRUE(The<QRadioButton>("optPrintSelected").isChecked());
  EXPECT_FALSE(The<QCheckBox>("chkListingOnly").isEnabled());
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
    if (*size == '\0') QTest::keyClick(The<QtComboBox>("cboFontSizes").lineEdit(), Qt::Key_Delete);
    Click("cmdOK");
    EXPECT_TRUE(form_->isVisible()) << size;
    EXPECT_TRUE(The<QtComboBox>("cboFontSizes").hasFocus()) << size;
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

#include <utility>
#include <vector>

#include "editors/ChoiceEditorFixture.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;

class FrmChoiceEditTest : public ChoiceEditorTest {};

TEST_F(FrmChoiceEditTest, EveryCaptionIsTheRightOne) {
  Add([this](QWidget& form) {
    EXPECT_EQ(form.objectName(), "frmChoiceEdit");
    EXPECT_EQ(form.windowTitle(), "Edit Choice");
    EXPECT_EQ(form.parentWidget(), &program_.Window());
    EXPECT_TRUE(form.isModal());
    const auto& tabs = ControlNamed<QTabWidget>(form, "tabChoice");
    ASSERT_EQ(tabs.count(), 3);
    EXPECT_EQ(tabs.tabText(0), "General ");
    EXPECT_EQ(tabs.tabText(1), "Flags ");
    EXPECT_EQ(tabs.tabText(2), "Skills");
    EXPECT_EQ(tabs.currentIndex(), 0);
    const std::vector<std::pair<const char*, const char*>> labels = {
        {"Label1", "Choice Text:"}, {"Label15", "Jump to Label:"},
        {"Label20", "Audio File:"}, {"Label9", "Flags Required:"},
        {"lblSkill", "Skill:"},     {"lblSkillLevel", "at Level:"}};
    for (const auto& [name, text] : labels) {
      EXPECT_EQ(ControlNamed<QLabel>(form, name).text(), text) << name;
    }
    EXPECT_EQ(Box(form, "chkShowChoice").text(), "Display Choice as Speech When Selected");
    EXPECT_EQ(Box(form, "chkSkill").text(), "Requires Skill");
    const std::vector<std::pair<const char*, const char*>> buttons = {
        {"cmdSpeechAudio", "..."},    {"cmdPlayAudio", "&Play"}, {"cmdFlagAdd", "Add &Flag"},
        {"cmdFlagDelete", "&Delete"}, {"cmdOK", "&OK"},          {"cmdCancel", "&Cancel"}};
    for (const auto& [name, text] : buttons) {
      EXPECT_EQ(ControlNamed<QPushButton>(form, name).text(), text) << name;
    }
    EXPECT_EQ(ControlNamed<QGroupBox>(form, "frmSkill").title(), "      ");
    EXPECT_EQ(Flags(form).Head(0), "Flag Name");
    EXPECT_EQ(Flags(form).Head(1), "Value");
    for (const char* name : {"chkShowChoice", "txtAudioFile", "cmdSpeechAudio", "cmdPlayAudio"}) {
      EXPECT_EQ(ControlNamed<QWidget>(form, name).parentWidget()->objectName(), "frmShowChoice");
    }
    for (const char* name : {"chkSkill", "cboSkills", "cmdEditSkills", "cboSkillLevels"}) {
      EXPECT_EQ(ControlNamed<QWidget>(form, name).parentWidget()->objectName(), "frmSkill");
    }
  });
}

TEST_F(FrmChoiceEditTest, ANewChoiceIsSpokenAndNeedsNoSkill) {
  EXPECT_FALSE(Add([](QWidget& form) {
    EXPECT_TRUE(Box(form, "chkShowChoice").isChecked());
    EXPECT_FALSE(Box(form, "chkSkill").isChecked());
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
    EXPECT_FALSE(IsEnabled(form, "cmdPlayAudio"));
    EXPECT_FALSE(IsEnabled(form, "cmdFlagDelete"));
    EXPECT_EQ(TextOf(form, "txtChoice").text(), "");
    EXPECT_TRUE(TextOf(form, "txtChoice").hasFocus());
    EXPECT_EQ(Combo(form, "cboJumpLabel").ListCount(), 2);
    EXPECT_EQ(Combo(form, "cboJumpLabel").Text(), "");
    EXPECT_EQ(Combo(form, "cboSkills").ListCount(), 0);
  }));
}

TEST_F(FrmChoiceEditTest, ANewChoiceTakesWhatWasTyped) {
  EXPECT_TRUE(Add([](QWidget& form) {
    QTest::keyClicks(QApplication::focusWidget(), "Let me in");
    QTest::keyClicks(Combo(form, "cboJumpLabel").lineEdit(), "Nowhere");
    Type(form, "txtAudioFile", "let_me_in");
    Toggle(form, "chkShowChoice");
    QTest::keyClick(&TextOf(form, "txtChoice"), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
  }));
  EXPECT_EQ(added_->text, "Let me in");
  EXPECT_EQ(added_->label, "Nowhere") << "the label need not exist";
  EXPECT_EQ(added_->audioFile, "let_me_in");
  EXPECT_FALSE(added_->bDisplayAsSpeech);
  EXPECT_EQ(added_->skillID, -1);
  EXPECT_EQ(added_->skillLevel, -1);
  EXPECT_TRUE(added_->flagRefs.Empty());
}

TEST_F(FrmChoiceEditTest, CancelLeavesTheNewChoiceAsItWas) {
  EXPECT_FALSE(Add([](QWidget& form) { Type(form, "txtChoice", "Let me in"); }));
  EXPECT_EQ(added_->text, "");
  EXPECT_FALSE(added_->bDisplayAsSpeech);
  EXPECT_EQ(added_->skillID, 0);
  EXPECT_FALSE(Add([](QWidget& form) {
    Type(form, "txtChoice", "Let me in");
    QTest::keyClick(&form, Qt::Key_Escape);
  }));
  EXPECT_EQ(added_->text, "");
}

TEST_F(FrmChoiceEditTest, AnExistingChoiceShowsAllItsFields) {
  Edit(Yes(), [](QWidget& form) {
    EXPECT_EQ(TextOf(form, "txtChoice").text(), "Yes");
    EXPECT_FALSE(TextOf(form, "txtChoice").hasSelectedText());
    EXPECT_EQ(TextOf(form, "txtChoice").cursorPosition(), 3);
    EXPECT_EQ(Combo(form, "cboJumpLabel").Text(), "Start");
    EXPECT_EQ(TextOf(form, "txtAudioFile").text(), "yes.mp3");
    EXPECT_EQ(TextOf(form, "txtAudioFile").cursorPosition(), 0) << "a long name from its beginning";
    EXPECT_TRUE(IsEnabled(form, "cmdPlayAudio"));
    EXPECT_TRUE(Box(form, "chkShowChoice").isChecked());
    EXPECT_TRUE(Box(form, "chkSkill").isChecked());
    EXPECT_EQ(Combo(form, "cboSkills").Text(), "Computers");
    EXPECT_EQ(Combo(form, "cboSkillLevels").Text(), "Advanced");
    EXPECT_THAT(FlagRows(form), ElementsAre("Door;True"));
    EXPECT_TRUE(IsEnabled(form, "cmdOK"));
  });
}

TEST_F(FrmChoiceEditTest, AnUntouchedChoiceIsStoredAsItWas) {
  EXPECT_TRUE(Edit(Yes(), [](QWidget& form) { Click(form, "cmdOK"); }));
  const ChoiceItem& choice = *Yes();
  EXPECT_EQ(choice.ID, 3);
  EXPECT_EQ(choice.text, "Yes");
  EXPECT_TRUE(choice.bDisplayAsSpeech);
  EXPECT_EQ(choice.skillID, 1);
  EXPECT_EQ(choice.skillLevel, 2);
  EXPECT_EQ(choice.label, "Start");
  EXPECT_EQ(choice.audioFile, "yes.mp3");
  ASSERT_EQ(choice.flagRefs.Count(), 1U);
  EXPECT_EQ(choice.flagRefs.At(2).expiration, 4) << "the expiration is not shown and stays";
}

TEST_F(FrmChoiceEditTest, TextsOfFortyThousandLettersAreStoredWhole) {
  const std::string text(40000, 'x');
  Yes()->text = text;
  Yes()->audioFile = text;
  EXPECT_TRUE(Edit(Yes(), [](QWidget& form) { Click(form, "cmdOK"); }));
  EXPECT_EQ(Yes()->text, text);
  EXPECT_EQ(Yes()->audioFile, text);
}

TEST_F(FrmChoiceEditTest, ALabelThatNoEventDefinesStaysInTheField) {
  Yes()->label = "Gone";
  EXPECT_TRUE(Edit(Yes(), [](QWidget& form) {
    EXPECT_EQ(Combo(form, "cboJumpLabel").Text(), "Gone");
    EXPECT_EQ(Combo(form, "cboJumpLabel").ListIndex(), -1);
    Click(form, "cmdOK");
  }));
  EXPECT_EQ(Yes()->label, "Gone");
}

TEST_F(FrmChoiceEditTest, OkNeedsATextAndTheLabelIsOptional) {
  Add([](QWidget& form) {
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
    Type(form, "txtChoice", "x");
    EXPECT_TRUE(IsEnabled(form, "cmdOK"));
    QTest::keyClick(&TextOf(form, "txtChoice"), Qt::Key_Backspace);
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
  });
}

TEST_F(FrmChoiceEditTest, AChosenAudioFileGoesIntoTheFieldAndNoneChangesNothing) {
  Add([this](QWidget& form) {
    Click(form, "cmdSpeechAudio");
    EXPECT_EQ(TextOf(form, "txtAudioFile").text(), "picked");
    EXPECT_TRUE(IsEnabled(form, "cmdPlayAudio"));
    host_.audioFile.clear();
    Click(form, "cmdSpeechAudio");
    EXPECT_EQ(TextOf(form, "txtAudioFile").text(), "picked");
    TextOf(form, "txtAudioFile").clear();
    EXPECT_FALSE(IsEnabled(form, "cmdPlayAudio"));
  });
}

TEST_F(FrmChoiceEditTest, PlayOpensThePlayerOnTheFile) {
  Edit(Yes(), [this](QWidget& form) {
    QString played;
    WhenFormShows("frmPlayAudio", [&](QWidget& player) {
      EXPECT_EQ(player.parentWidget(), &form);
      played = TextOf(player, "txtFilename").text();
      Click(player, "cmdClose");
    });
    Click(form, "cmdPlayAudio");
    EXPECT_EQ(played, QString::fromStdString(folder.File("audio") + "/yes.mp3.wav"));
  });
  EXPECT_THAT(played_, ElementsAre("Greeting")) << "the conversation of the choice";
}

TEST_F(FrmChoiceEditTest, OneDialogServesOneChoiceAfterAnother) {
  frmChoiceEdit dialog(host_, [](const Conversation&) { return std::string(); });
  WhenFormShows("frmChoiceEdit", [](QWidget& form) {
    Turn(form, 2);
    Click(form, "cmdOK");
  });
  EXPECT_TRUE(dialog.EditChoice(Yes(), &program_.Window(), ConOf(0)));
  const auto fresh = std::make_shared<ChoiceItem>();
  WhenFormShows("frmChoiceEdit", [](QWidget& form) {
    EXPECT_EQ(ControlNamed<QTabWidget>(form, "tabChoice").currentIndex(), 0);
    EXPECT_EQ(TextOf(form, "txtChoice").text(), "");
    EXPECT_EQ(TextOf(form, "txtAudioFile").text(), "");
    EXPECT_EQ(Combo(form, "cboJumpLabel").Text(), "");
    EXPECT_FALSE(Box(form, "chkSkill").isChecked());
    EXPECT_TRUE(FlagRows(form).empty());
    Click(form, "cmdCancel");
  });
  EXPECT_FALSE(dialog.AddChoice(fresh, &program_.Window(), ConOf(0)));
  EXPECT_EQ(dialog.localChoiceItem, nullptr);
}

TEST_F(FrmChoiceEditTest, TabGoesThroughAPageFromTopToBottom) {
  Edit(Yes(), [](QWidget& /*form*/) {
    for (const char* name : {"cboJumpLabel", "chkShowChoice", "txtAudioFile", "cmdSpeechAudio",
                             "cmdPlayAudio", "cmdOK", "cmdCancel"}) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    }
  });
}

TEST_F(FrmChoiceEditTest, AnEditedChoiceIsInTheSavedFile) {
  EXPECT_TRUE(Edit(Yes(), [](QWidget& form) {
    QTest::keyClicks(QApplication::focusWidget(), ", of course");
    Turn(form, 1);
    ClickFlag(form, 0);
    QTest::keyClick(&Flags(form), Qt::Key_Delete);
    Turn(form, 2);
    Combo(form, "cboSkills").SetListIndex(1);
    QTest::keyClick(&form, Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&form] { return !form.isVisible(); }));
  }));
  program_.shell().SetModified(true, nullptr);
  SaveInSpiteOfMissingLabels();
  EXPECT_TRUE(program_.Close());

  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(ReadBytes(path_)));
  const ChoiceItem& choice = open.Event(1, 2).As<EventChoice>()->Choices.At(3);
  EXPECT_EQ(choice.text, "Yes, of course");
  EXPECT_EQ(choice.label, "Start");
  EXPECT_EQ(choice.audioFile, "yes.mp3");
  EXPECT_TRUE(choice.bDisplayAsSpeech);
  EXPECT_EQ(choice.skillID, 4);
  EXPECT_EQ(choice.skillLevel, 2);
  EXPECT_TRUE(choice.flagRefs.Empty());
}

}  // namespace
}  // namespace parlate

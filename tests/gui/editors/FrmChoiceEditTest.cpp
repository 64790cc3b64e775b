#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTabBar>
#include <utility>

#include "editors/EditorFixture.h"
#include "editors/frmChoiceEdit.h"
#include "model/TableCombos.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;

/// The event editor that the dialog is opened from: two labels and one audio file.
class Host final : public PanelHost {
 public:
  explicit Host(EditorDoors doors) : doors_(doors) {}
  [[nodiscard]] const std::shared_ptr<Conversation>& CurrentCon() const override { return con; }
  void PopulateLabelCombo(ComboBox& cboLabels) override {
    cboLabels.Clear();
    cboLabels.AddItem("Start");
    cboLabels.AddItem("End");
  }
  void PopulateLabelsOf(std::int32_t, ComboBox&) override {}
  void SelectLabelValue(const std::string&, ComboBox&) override {}
  [[nodiscard]] std::string SelectAudioFile() override { return audioFile; }
  [[nodiscard]] bool IsEditorVisible() const override { return true; }
  [[nodiscard]] SpeakerPair LastSpeakers() const override { return {}; }
  [[nodiscard]] EditorDoors Doors() override { return doors_; }

  std::shared_ptr<Conversation> con;
  std::string audioFile = "picked";

 private:
  EditorDoors doors_;
};

class FrmChoiceEditTest : public EditorTest {
 protected:
  FrmChoiceEditTest() {
    program_.workspace.tableEditor = &tables_;
    TestWorkspace::AddRows(kSkillTable, {{4, "Swim"}});
    TestWorkspace::AddRows(kFlagTable, {{6, "Zip"}});
  }

  using User = std::function<void(QWidget&)>;

  bool Add(const User& user) {
    added_ = std::make_shared<ChoiceItem>();
    return Run(user, [this](frmChoiceEdit& form) {
      return form.AddChoice(added_, &program_.Window(), ConOf(0));
    });
  }
  bool Edit(const std::shared_ptr<ChoiceItem>& choice, const User& user) {
    return Run(user, [&](frmChoiceEdit& form) {
      return form.EditChoice(choice, &program_.Window(), ConOf(0));
    });
  }
  /// The first choice of the file: text "Yes", skill 1 at level 2, label "Start", flag 2.
  std::shared_ptr<ChoiceItem> Yes() {
    return ConOf(0)->events.Place(2)->As<EventChoice>()->Choices.Share(3);
  }

  static QtComboBox& Combo(const QWidget& form, const char* name) {
    return ControlNamed<QtComboBox>(form, name);
  }
  static QCheckBox& Box(const QWidget& form, const char* name) {
    return ControlNamed<QCheckBox>(form, name);
  }
  static MultiColumnList& Flags(const QWidget& form) {
    return ControlNamed<MultiColumnList>(form, "lstFlags");
  }
  static void Turn(const QWidget& form, int page) {
    ControlNamed<QTabWidget>(form, "tabChoice").setCurrentIndex(page);
  }
  static void Type(const QWidget& form, const char* name, const char* text) {
    QTest::keyClicks(&TextOf(form, name), text);
  }
  /// Writes a new choice up to its skill, which stands in its combo as typed.
  static void TypeSkill(const QWidget& form, const char* skill) {
    Type(form, "txtChoice", "x");
    Turn(form, 2);
    Toggle(form, "chkSkill");
    Combo(form, "cboSkills").SetFocus();
    QTest::keyClicks(QApplication::focusWidget(), skill);
    EXPECT_EQ(Combo(form, "cboSkills").ListIndex(), -1);
  }
  static void Toggle(const QWidget& form, const char* name) {
    QTest::keyClick(&Box(form, name), Qt::Key_Space);
  }
  static void ClickFlag(const QWidget& form, int row) {
    QTest::mouseClick(Flags(form).viewport(), Qt::LeftButton, {},
                      Flags(form).RowRect(row).center());
  }
  static std::vector<std::string> FlagRows(const QWidget& form) {
    std::vector<std::string> rows;
    const ListRows& shown = Flags(form).Rows();
    for (std::size_t i = 0; i < shown.ListCount(); ++i) rows.push_back(shown.Row(i).text);
    return rows;
  }

  ScriptedTableEditor tables_;
  Host host_{Doors()};
  std::shared_ptr<ChoiceItem> added_;
  std::vector<std::string> played_;  ///< The conversations whose audio folder was asked for.

 private:
  template <class Call>
  bool Run(const User& user, Call call) {
    frmChoiceEdit form(host_, [this](const Conversation& con) {
      played_.push_back(con.conName);
      return folder.File("audio");
    });
    WhenFormShows("frmChoiceEdit", [&user](QWidget& shown) {
      user(shown);
      if (shown.isVisible()) Click(shown, "cmdCancel");
    });
    return call(form);
  }
};

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

TEST_F(FrmChoiceEditTest, TheSkillTickDecidesOverFiveControlsAndFillsThem) {
  const std::vector<const char*> five = {"cboSkills", "cboSkillLevels", "lblSkill", "lblSkillLevel",
                                         "cmdEditSkills"};
  Add([&five](QWidget& form) {
    Turn(form, 2);
    for (const char* name : five) EXPECT_FALSE(IsEnabled(form, name)) << name;
    const QColor grey = Combo(form, "cboSkills").palette().color(QPalette::Base);
    EXPECT_EQ(grey, QApplication::palette().color(QPalette::Button));
    Toggle(form, "chkSkill");
    for (const char* name : five) EXPECT_TRUE(IsEnabled(form, name)) << name;
    EXPECT_EQ(Combo(form, "cboSkills").palette().color(QPalette::Base),
              QApplication::palette().color(QPalette::Base));
    EXPECT_EQ(Combo(form, "cboSkills").ListCount(), 2);
    EXPECT_EQ(Combo(form, "cboSkills").ListIndex(), -1);
    const QtComboBox& levels = Combo(form, "cboSkillLevels");
    ASSERT_EQ(levels.ListCount(), 4);
    EXPECT_EQ(levels.List(0), "Novice");
    EXPECT_EQ(levels.List(1), "Intermedia");
    EXPECT_EQ(levels.List(2), "Advanced");
    EXPECT_EQ(levels.List(3), "Master");
    EXPECT_EQ(levels.ListIndex(), -1);
    Toggle(form, "chkSkill");
    for (const char* name : five) EXPECT_FALSE(IsEnabled(form, name)) << name;
    EXPECT_EQ(Combo(form, "cboSkills").ListCount(), 0);
    EXPECT_EQ(Combo(form, "cboSkillLevels").ListCount(), 0);
  });
}

TEST_F(FrmChoiceEditTest, ASkillWithoutALevelCannotBeStored) {
  EXPECT_TRUE(Add([](QWidget& form) {
    Type(form, "txtChoice", "Swim");
    Turn(form, 2);
    Toggle(form, "chkSkill");
    EXPECT_TRUE(IsEnabled(form, "cmdOK")) << "ticked without a skill can be stored";
    Combo(form, "cboSkills").SetListIndex(1);
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
    QTest::keyClick(&Combo(form, "cboSkillLevels"), Qt::Key_M);
    EXPECT_TRUE(IsEnabled(form, "cmdOK"));
    Click(form, "cmdOK");
  }));
  EXPECT_EQ(added_->skillID, 4);
  EXPECT_EQ(added_->skillLevel, 3);
}

TEST_F(FrmChoiceEditTest, TakingTheTickAwayWipesTheSkillAndEnablesOk) {
  EXPECT_TRUE(Edit(Yes(), [](QWidget& form) {
    Turn(form, 2);
    Combo(form, "cboSkillLevels").SetListIndex(-1);
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
    Toggle(form, "chkSkill");
    EXPECT_TRUE(IsEnabled(form, "cmdOK"));
    Click(form, "cmdOK");
  }));
  EXPECT_EQ(Yes()->skillID, -1);
}

TEST_F(FrmChoiceEditTest, ARequiredSkillThatIsNotChosenStoresNone) {
  EXPECT_TRUE(Add([](QWidget& form) {
    Type(form, "txtChoice", "x");
    Turn(form, 2);
    Toggle(form, "chkSkill");
    Combo(form, "cboSkillLevels").SetListIndex(2);
    Click(form, "cmdOK");
  }));
  EXPECT_EQ(added_->skillID, -1);
  EXPECT_EQ(added_->skillLevel, 2);
}

TEST_F(FrmChoiceEditTest, AStoredLevelOfMinusOneShowsTheSkillAndNoLevel) {
  Yes()->skillLevel = -1;
  Edit(Yes(), [](QWidget& form) {
    EXPECT_EQ(Combo(form, "cboSkills").Text(), "Computers");
    EXPECT_EQ(Combo(form, "cboSkillLevels").ListIndex(), -1);
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
  });
}

TEST_F(FrmChoiceEditTest, AnUnknownSkillIsAskedAboutWhenItsComboIsLeft) {
  program_.messages.Expect(Answer::Yes);
  Add([](QWidget& form) {
    Turn(form, 2);
    Toggle(form, "chkSkill");
    Combo(form, "cboSkills").SetFocus();
    QTest::keyClicks(Combo(form, "cboSkills").lineEdit(), "Fly");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Combo(form, "cboSkills").ListIndex() != -1; }));
    EXPECT_EQ(Combo(form, "cboSkills").Text(), "Fly");
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
  });
  ASSERT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(Boxes()[0].title, "Add Item?");
  EXPECT_NE(FindTableItemByName(kSkillTable, "Fly"), nullptr);
}

TEST_F(FrmChoiceEditTest, EnterMakesATypedSkillItsRowAndThenWantsALevel) {
  EXPECT_TRUE(Add([](QWidget& form) {
    TypeSkill(form, "Swim");
    EXPECT_TRUE(IsEnabled(form, "cmdOK"));
    QTest::keyClick(&Combo(form, "cboSkills"), Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(GetComboItemID(Combo(form, "cboSkills")), 4);
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
    Combo(form, "cboSkillLevels").SetListIndex(1);
    QTest::keyClick(&form, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
  }));
  EXPECT_TRUE(Boxes().empty());
  EXPECT_EQ(added_->skillID, 4);
  EXPECT_EQ(added_->skillLevel, 1);
}

TEST_F(FrmChoiceEditTest, EnterStoresATypedSkillThatHasALevelAlready) {
  EXPECT_TRUE(Add([](QWidget& form) {
    TypeSkill(form, "Swim");
    Combo(form, "cboSkillLevels").SetListIndex(1);
    QTest::keyClick(&Combo(form, "cboSkills"), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
  }));
  EXPECT_EQ(added_->skillID, 4);
}

TEST_F(FrmChoiceEditTest, EnterAsksAboutAnUnknownSkillAndYesAddsIt) {
  program_.messages.Expect(Answer::Yes);
  EXPECT_TRUE(Add([](QWidget& form) {
    TypeSkill(form, "Fly");
    QTest::keyClick(&Combo(form, "cboSkills"), Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    EXPECT_NE(Combo(form, "cboSkills").ListIndex(), -1);
    EXPECT_FALSE(IsEnabled(form, "cmdOK")) << "a level is wanted";
    Combo(form, "cboSkillLevels").SetListIndex(0);
    Click(form, "cmdOK");
  }));
  ASSERT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(Boxes()[0].title, "Add Item?");
  const TableItem* row = FindTableItemByName(kSkillTable, "Fly");
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(added_->skillID, row->ID);
}

TEST_F(FrmChoiceEditTest, EnterAsksAboutAnUnknownSkillAndNoLeavesItToCorrect) {
  program_.messages.Expect(Answer::No);
  EXPECT_FALSE(Add([](QWidget& form) {
    TypeSkill(form, "Fly");
    QTest::keyClick(&Combo(form, "cboSkills"), Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(Combo(form, "cboSkills").hasFocus());
    EXPECT_EQ(Combo(form, "cboSkills").lineEdit()->selectedText(), "Fly");
  }));
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(FindTableItemByName(kSkillTable, "Fly"), nullptr);
}

TEST_F(FrmChoiceEditTest, EnterOnAnotherPageTurnsToTheUnknownSkill) {
  program_.messages.Expect(Answer::No);
  EXPECT_FALSE(Add([](QWidget& form) {
    Type(form, "txtChoice", "x");
    Box(form, "chkSkill").setChecked(true);
    Combo(form, "cboSkills").SetText("Fly");
    QTest::keyClick(&TextOf(form, "txtChoice"), Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(ControlNamed<QTabWidget>(form, "tabChoice").currentIndex(), 2);
    EXPECT_TRUE(Combo(form, "cboSkills").hasFocus());
  }));
  EXPECT_EQ(Boxes().size(), 1U);
}

TEST_F(FrmChoiceEditTest, TheAccessKeyOfOkAsksOnceAndDropsNoTypedSkill) {
  /// Answers No, as late as a user does.
  class LateNo final : public MessageBoxes {
   public:
    Answer Show(const MessageBox&) override {
      ++shown;
      QDialog box;
      QTimer::singleShot(400, &box, &QDialog::reject);
      box.exec();
      return Answer::No;
    }
    int shown = 0;
  };
  LateNo messages;
  MessageBoxes* before = std::exchange(program_.workspace.messages, &messages);
  EXPECT_FALSE(Add([&messages](QWidget& form) {
    TypeSkill(form, "Fly");
    QTest::keyClick(&form, Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return messages.shown > 0 && QApplication::activeModalWidget() == &form; }));
    QTest::qWait(250);
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.focusWidget(), &Combo(form, "cboSkills"));
    EXPECT_EQ(Combo(form, "cboSkills").Text(), "Fly");
  }));
  EXPECT_EQ(messages.shown, 1);
  program_.workspace.messages = before;
}

TEST_F(FrmChoiceEditTest, TurningThePageAsksAboutAnUnknownSkillAndNoTurnsBack) {
  program_.messages.Expect(Answer::No);
  Add([this](QWidget& form) {
    TypeSkill(form, "Fly");
    auto& tabs = ControlNamed<QTabWidget>(form, "tabChoice");
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(0).center());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Boxes().empty(); }));
    EXPECT_EQ(tabs.currentIndex(), 2);
    EXPECT_TRUE(Combo(form, "cboSkills").hasFocus());
    EXPECT_EQ(Combo(form, "cboSkills").lineEdit()->selectedText(), "Fly");
  });
  EXPECT_EQ(Boxes().size(), 1U);
}

TEST_F(FrmChoiceEditTest, TheButtonBesideTheSkillEditsItsTable) {
  tables_.user = [] { return 4; };
  Add([](QWidget& form) {
    Type(form, "txtChoice", "x");
    Turn(form, 2);
    Toggle(form, "chkSkill");
    Click(form, "cmdEditSkills");
    EXPECT_EQ(GetComboItemID(Combo(form, "cboSkills")), 4);
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
  });
  EXPECT_THAT(tables_.opened, ElementsAre(kSkillTable));
}

TEST_F(FrmChoiceEditTest, AddedFlagsReachTheChoiceWithOkOnly) {
  const auto pick = [](QWidget& picker) {
    const auto& list = ControlNamed<QtListBox>(picker, "lstFlags");
    EXPECT_EQ(list.ListCount(), 2) << "the flag of the choice is not offered";
    EXPECT_EQ(list.List(0), "Lamp");
    EXPECT_FALSE(TextOf(picker, "txtExpiration").isVisible());
    ControlNamed<QtListBox>(picker, "lstFlags").SetSelected(1, true);
    ControlNamed<QtComboBox>(picker, "cboFlagValues").SetListIndex(1);
    Click(picker, "cmdOK");
  };
  const auto addFlag = [&pick](QWidget& form) {
    Turn(form, 1);
    WhenFormShows("frmFlagList", pick);
    Click(form, "cmdFlagAdd");
    EXPECT_THAT(FlagRows(form), ElementsAre("Door;True", "Zip;False"));
    EXPECT_FALSE(IsEnabled(form, "cmdFlagDelete"));
  };
  EXPECT_FALSE(Edit(Yes(), addFlag));
  EXPECT_EQ(Yes()->flagRefs.Count(), 1U);
  EXPECT_TRUE(Edit(Yes(), [&](QWidget& form) {
    addFlag(form);
    Click(form, "cmdOK");
  }));
  ASSERT_EQ(Yes()->flagRefs.Count(), 2U);
  EXPECT_FALSE(Yes()->flagRefs.At(6).bValue);
  EXPECT_EQ(Yes()->flagRefs.At(6).expiration, 0);
}

TEST_F(FrmChoiceEditTest, ACancelledPickerAddsNothing) {
  Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    WhenFormShows("frmFlagList", [](QWidget& picker) { Click(picker, "cmdCancel"); });
    Click(form, "cmdFlagAdd");
    EXPECT_THAT(FlagRows(form), ElementsAre("Door;True"));
  });
}

TEST_F(FrmChoiceEditTest, DeleteTakesTheSelectedFlagWithoutAQuestion) {
  EXPECT_TRUE(Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    EXPECT_FALSE(IsEnabled(form, "cmdFlagDelete"));
    ClickFlag(form, 0);
    EXPECT_TRUE(IsEnabled(form, "cmdFlagDelete"));
    Click(form, "cmdFlagDelete");
    EXPECT_TRUE(FlagRows(form).empty());
    EXPECT_FALSE(IsEnabled(form, "cmdFlagDelete"));
    Click(form, "cmdOK");
  }));
  EXPECT_TRUE(Yes()->flagRefs.Empty());
}

TEST_F(FrmChoiceEditTest, TheDeleteButtonKeepsTheFocusWhileThereIsAFlag) {
  const auto zip = std::make_shared<FlagRef>();
  zip->flagID = 6;
  Yes()->flagRefs.Add(6, zip);
  Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    ClickFlag(form, 0);
    auto& button = ControlNamed<QPushButton>(form, "cmdFlagDelete");
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_THAT(FlagRows(form), ElementsAre("Zip;False"));
    EXPECT_TRUE(button.hasFocus());
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_TRUE(FlagRows(form).empty());
    EXPECT_TRUE(Flags(form).hasFocus());
  });
}

TEST_F(FrmChoiceEditTest, TheDeleteAndInsertKeysInTheListPressItsButtons) {
  Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    ClickFlag(form, 0);
    QTest::keyClick(&Flags(form), Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_THAT(FlagRows(form), ElementsAre("Door;True"));
    QTest::keyClick(&Flags(form), Qt::Key_Delete);
    EXPECT_TRUE(FlagRows(form).empty());
    bool picked = false;
    WhenFormShows("frmFlagList", [&picked](QWidget& picker) {
      picked = true;
      Click(picker, "cmdCancel");
    });
    QTest::keyClick(&Flags(form), Qt::Key_Insert);
    EXPECT_TRUE(picked);
  });
}

TEST_F(FrmChoiceEditTest, ADoubleClickTogglesAFlagAndKeepsItsRowSelected) {
  EXPECT_TRUE(Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    ClickFlag(form, 0);
    QTest::mouseDClick(Flags(form).viewport(), Qt::LeftButton, {}, Flags(form).RowRect(0).center());
    EXPECT_THAT(FlagRows(form), ElementsAre("Door;False"));
    EXPECT_EQ(Flags(form).Rows().ListIndex(), 0);
    EXPECT_TRUE(IsEnabled(form, "cmdFlagDelete"));
    Click(form, "cmdOK");
  }));
  EXPECT_FALSE(Yes()->flagRefs.At(2).bValue);
}

TEST_F(FrmChoiceEditTest, AToggledFlagIsForgottenOnCancel) {
  EXPECT_FALSE(Edit(Yes(), [](QWidget& form) {
    Turn(form, 1);
    ClickFlag(form, 0);
    QTest::mouseDClick(Flags(form).viewport(), Qt::LeftButton, {}, Flags(form).RowRect(0).center());
  }));
  EXPECT_TRUE(Yes()->flagRefs.At(2).bValue);
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

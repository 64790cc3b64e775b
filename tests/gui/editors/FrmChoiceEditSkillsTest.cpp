#include <QTabBar>
#include <utility>

#include "editors/ChoiceEditorFixture.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;

class FrmChoiceEditSkillsTest : public ChoiceEditorTest {};

TEST_F(FrmChoiceEditSkillsTest, TheSkillTickDecidesOverFiveControlsAndFillsThem) {
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

TEST_F(FrmChoiceEditSkillsTest, ASkillWithoutALevelCannotBeStored) {
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

TEST_F(FrmChoiceEditSkillsTest, TakingTheTickAwayWipesTheSkillAndEnablesOk) {
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

TEST_F(FrmChoiceEditSkillsTest, ARequiredSkillThatIsNotChosenStoresNone) {
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

TEST_F(FrmChoiceEditSkillsTest, AStoredLevelOfMinusOneShowsTheSkillAndNoLevel) {
  Yes()->skillLevel = -1;
  Edit(Yes(), [](QWidget& form) {
    EXPECT_EQ(Combo(form, "cboSkills").Text(), "Computers");
    EXPECT_EQ(Combo(form, "cboSkillLevels").ListIndex(), -1);
    EXPECT_FALSE(IsEnabled(form, "cmdOK"));
  });
}

TEST_F(FrmChoiceEditSkillsTest, AnUnknownSkillIsAskedAboutWhenItsComboIsLeft) {
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

TEST_F(FrmChoiceEditSkillsTest, EnterMakesATypedSkillItsRowAndThenWantsALevel) {
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

TEST_F(FrmChoiceEditSkillsTest, EnterStoresATypedSkillThatHasALevelAlready) {
  EXPECT_TRUE(Add([](QWidget& form) {
    TypeSkill(form, "Swim");
    Combo(form, "cboSkillLevels").SetListIndex(1);
    QTest::keyClick(&Combo(form, "cboSkills"), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
  }));
  EXPECT_EQ(added_->skillID, 4);
}

TEST_F(FrmChoiceEditSkillsTest, EnterAsksAboutAnUnknownSkillAndYesAddsIt) {
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

TEST_F(FrmChoiceEditSkillsTest, EnterAsksAboutAnUnknownSkillAndNoLeavesItToCorrect) {
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

TEST_F(FrmChoiceEditSkillsTest, EnterOnAnotherPageTurnsToTheUnknownSkill) {
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

TEST_F(FrmChoiceEditSkillsTest, TheAccessKeyOfOkAsksOnceAndDropsNoTypedSkill) {
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

TEST_F(FrmChoiceEditSkillsTest, TurningThePageAsksAboutAnUnknownSkillAndNoTurnsBack) {
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

TEST_F(FrmChoiceEditSkillsTest, TheButtonBesideTheSkillEditsItsTable) {
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

}  // namespace
}  // namespace parlate

// What the writer of the long run does, by keys and mouse.

#include "mainwindow/LongRunFixture.h"

#include <QTabBar>

namespace parlate::testing_support {

void LongRunTest::SetUp() {
  path_ = folder.File("written.con");
  ASSERT_TRUE(program_.Start());
}

void LongRunTest::Next(std::int32_t eventType, const char* label) {
  Click("cmdAddEvent");
  Choose("cboEvents", eventType);
  EXPECT_EQ(ShownPanel(), eventType);
  Type("txtLabel", label);
}

void LongRunTest::Choose(const char* combo, int row) {
  Focus(combo);
  const int from = Combo(combo).ListIndex();
  const Qt::Key key = row < from ? Qt::Key_Up : Qt::Key_Down;
  for (int i = 0; i < std::abs(row - from); ++i) QTest::keyClick(&Combo(combo), key);
  EXPECT_EQ(Combo(combo).ListIndex(), row) << combo;
}

void LongRunTest::TypeNewName(const char* combo, const char* name) {
  const std::size_t boxes = program_.messages.shown.size();
  program_.messages.Expect(Answer::Yes);
  Type(combo, name);
  Press(Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([&] { return program_.messages.shown.size() == boxes + 1; }));
  EXPECT_EQ(LastBox().title, "Add Item?");
  EXPECT_EQ(Combo(combo).Text(), name);
}

void LongRunTest::Update() {
  const std::string type = Combo("cboEvents").Text();
  ASSERT_TRUE(CanUpdate()) << type;
  Click("cmdUpdate");
  EXPECT_FALSE(IsEnabled("cboEvents")) << type << ": the event exists from now on";
}

void LongRunTest::WriteEveryEvent() {
  WriteSpeeches();
  WriteChoices();
  WriteFlags();
  WriteObjects();
  WriteScene();
  WriteJumps();
  WriteRewards();
  WriteTheEnd();
}

void LongRunTest::WriteSpeeches() {
  Add(kSpeech);
  Type("txtLabel", "Start");
  Type("cboActorSpeaker", "Marta");
  TypeNewName("cboActorSpeakingTo", "Zoe");
  Type("txtSpeech", "Are you looking for the ferry?");
  Type("txtAudioFile", "Harbour01");
  Choose("cboSpeechFont", 1);
  Update();

  Click("cmdAddEvent");
  EXPECT_EQ(Combo("cboActorSpeaker").Text(), "Zoe");
  EXPECT_EQ(Combo("cboActorSpeakingTo").Text(), "Marta");
  Type("txtSpeech", "I am, and I am late.");
  Press(Qt::Key_Return);
  QTest::keyClicks(&The<QWidget>("txtSpeech"), "Where is it?");
  Click("chkSpeechContinued");
  Update();

  Click("cmdAddEvent");
  EXPECT_EQ(Combo("cboActorSpeaker").Text(), "Marta");
  EXPECT_EQ(Combo("cboActorSpeakingTo").Text(), "Zoe");
  Type("txtSpeech", "One line too many.");
  Update();
}

void LongRunTest::FillInFirstChoice(RunningProgram& program, QWidget& form) {
  QTabBar& tabs = *ControlNamed<QTabWidget>(form, "tabChoice").tabBar();
  const auto turnTo = [&](int tab) {
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab).center());
  };
  QTest::keyClicks(&ControlNamed<QWidget>(form, "txtChoice"), "Pay the fare");
  QTest::keyClicks(&ControlNamed<QWidget>(form, "cboJumpLabel"), "Paid");
  QTest::keyClicks(&ControlNamed<QWidget>(form, "txtAudioFile"), "Harbour02");
  turnTo(1);
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    SelectRowNamed(ControlNamed<QtListBox>(picker, "lstFlags"), "Door");
    QTest::keyClick(&ControlNamed<QtComboBox>(picker, "cboFlagValues"), Qt::Key_Down);
    PressButton(picker, "cmdOK");
  });
  PressButton(form, "cmdFlagAdd");
  form.activateWindow();  // as a window manager does after the picker went
  EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
  turnTo(2);
  TickBox(form, "chkSkill");
  auto& skill = ControlNamed<QtComboBox>(form, "cboSkills");
  skill.setFocus();
  QTest::keyClicks(&skill, "Swim");
  const std::size_t boxes = program.messages.shown.size();
  program.messages.Expect(Answer::Yes);  // "Add Item?" for the skill
  QTest::keyClick(&skill, Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([&] { return program.messages.shown.size() == boxes + 1; }));
  EXPECT_FALSE(ControlNamed<QPushButton>(form, "cmdOK").isEnabled()) << "a skill needs a level";
  for (int i = 0; i < 3; ++i) {
    QTest::keyClick(&ControlNamed<QtComboBox>(form, "cboSkillLevels"), Qt::Key_Down);
  }
  PressButton(form, "cmdOK");
}

void LongRunTest::FillInSecondChoice(QWidget& form) {
  QTest::keyClicks(&ControlNamed<QWidget>(form, "txtChoice"), "Walk away");
  QTest::keyClicks(&ControlNamed<QWidget>(form, "cboJumpLabel"), "Finish");
  TickBox(form, "chkShowChoice");
  PressButton(form, "cmdOK");
}

void LongRunTest::WriteChoices() {
  Next(kChoice, "Ask");
  WhenFormShows("frmChoiceEdit", [this](QWidget& form) { FillInFirstChoice(program_, form); });
  Click("cmdChoiceAdd");
  WhenFormShows("frmChoiceEdit", FillInSecondChoice);
  Click("cmdChoiceAdd");
  Click("chkChoiceClear");
  Update();
}

void LongRunTest::WriteFlags() {
  Next(kSetFlags);
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    SelectRowNamed(ControlNamed<QtListBox>(picker, "lstFlags"), "Door");
    auto& expiration = ControlNamed<QLineEdit>(picker, "txtExpiration");
    QTest::keyClick(&expiration, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&expiration, "3");
    PressButton(picker, "cmdOK");
  });
  Click("cmdSetFlagAdd");
  Update();

  Next(kCheckFlags);
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    SelectRowNamed(ControlNamed<QtListBox>(picker, "lstFlags"), "Door");
    QTest::keyClick(&ControlNamed<QtComboBox>(picker, "cboFlagValues"), Qt::Key_Down);
    PressButton(picker, "cmdOK");
  });
  Click("cmdCheckFlagAdd");
  EXPECT_FALSE(CanUpdate()) << "the label is missing";
  Type("cboCheckFlagGoto", "Paid");
  Update();
}

void LongRunTest::WriteObjects() {
  Next(kCheckObject);
  TypeNewName("cboCheckObject", "Ticket");
  Type("cboCheckObjectFail", "Ask");
  Update();

  Next(kTransferObject, "Paid");
  Type("cboTransferObject", "Ticket");
  Type("txtTransferCount", "2");
  Type("cboTransferFrom", "Marta");
  Type("cboTransferTo", "Zoe");
  Type("cboTransferObjectFail", "Ask");
  Update();
}

void LongRunTest::WriteScene() {
  Next(kMoveCamera);
  Choose("cboCameraPosition", 6);
  Choose("cboCameraTransition", 1);
  Update();

  Next(kPlayAnimation);
  Type("cboPawnAnimate", "Zoe");
  Type("txtSeqName", "Wave");
  Click("optAnimLoop");
  Update();

  Next(kPlayAnimation);
  Type("cboPawnAnimate", "Marta");
  Type("txtSeqName", "Bow");
  Click("chkFinishAnim");
  Click("chkAnimTimed");
  Type("txtAnimLength", "12");
  Update();

  Next(kTrade);
  Type("cboPawnTrade", "Marta");
  Update();
}

void LongRunTest::WriteJumps() {
  Next(kJump);
  EXPECT_EQ(Combo("cboJumpConv").Text(), "Firsttalk");
  Type("cboJumpLabel", "Start");
  Update();

  Next(kRandomLabel);
  for (const char* label : {"Start", "Finish"}) {
    EXPECT_FALSE(CanUpdate()) << "two labels are needed";
    Type("cboRandomLabels", label);
    Click("cmdRandomAddLabel");
  }
  Click("chkRandomCycle");
  Click("chkCycleOnce");
  Update();

  Next(kTrigger, "Gate");
  Type("txtTriggerTag", "OpenGate");
  Update();
}

void LongRunTest::WriteRewards() {
  Next(kAddGoal);
  Type("txtGoalName", "CatchFerry");
  Type("txtGoal", "Catch the last ferry.");
  Click("chkPrimaryGoal");
  Update();

  Next(kAddNote);
  Type("txtNote", "The ferry leaves at six.");
  Update();

  Next(kAddSkillPoints);
  Type("txtSkillPointsToAdd", "250");
  Type("txtSkillPointsMessage", "Well swum");
  Update();

  Next(kAddCredits);
  Type("txtCreditsToAdd", "-40");
  Update();
}

void LongRunTest::WriteTheEnd() {
  Next(kCheckPersona);
  Click("optPersonaHealth");
  Choose("cboPersonaCondition", 3);
  Type("txtPersonaValue", "50");
  Type("cboPersonaLabel", "Start");
  Update();

  Next(kComment);
  Type("txtComment", "Ask for a bell here.");
  Update();

  Next(kEnd, "Finish");
  Update();
}

void LongRunTest::InsertNote() {
  program_.ClickRow(11);
  EXPECT_EQ(ShownPanel(), kTrade) << "the open editor follows the list";
  Click("cmdInsertEvent");
  Choose("cboEvents", kAddNote);
  Type("txtNote", "Marta sells rope.");
  Update();
}

void LongRunTest::ChangeNote() {
  Edit(17);
  EXPECT_EQ(The<QtTextBox>("txtNote").Text(), "The ferry leaves at six.");
  Type("txtNote", "The ferry leaves at seven.");
  Update();
}

void LongRunTest::DeleteThirdSpeech() {
  Click("cmdClose");
  EXPECT_FALSE(Editor().isVisible());
  program_.Activate();
  program_.ClickRow(2);
  program_.messages.Expect(Answer::Yes);
  program_.Press(Qt::Key_Delete);
  EXPECT_EQ(LastBox().text, "Are you sure you wish to Delete this event?");
}

void LongRunTest::CopyAndPasteCredits() {
  program_.ClickRow(18);
  program_.Choose("mnuEventsCopy");
  program_.ClickRow(21);
  program_.Choose("mnuEventsPaste");
}

}  // namespace parlate::testing_support

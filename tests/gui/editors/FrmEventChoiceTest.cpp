// The Choice panel.

#include <gmock/gmock.h>

#include <QPushButton>

#include "editors/EventEditorFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using namespace testing_support;

class FrmEventChoice : public EventEditorTest {
 protected:
  void AddChoice(const char* text, const char* label = "") {
    WriteChoice(text, label);
    Click("cmdChoiceAdd");
  }
  /// Stores a new event with the choices A, B and C under the key 6 and leaves it open.
  void AddThree() {
    Add(kChoice);
    for (const char* text : {"A", "B", "C"}) AddChoice(text);
    Click("cmdUpdate");
  }
  void DeleteThree() {
    for (int i = 0; i < 3; ++i) {
      ClickRowOf("lstChoices", 0);
      program_.messages.Expect(Answer::Yes);
      Click("cmdChoiceDelete");
    }
  }
  std::vector<std::string> TextsInOrder() {
    std::vector<std::string> texts;
    for (const ChoiceItem& choice : EventOf<EventChoice>(6).Choices) texts.push_back(choice.text);
    return texts;
  }
  /// The labels that the dialog of a new choice offers.
  std::vector<std::string> OfferedLabels() {
    std::vector<std::string> labels;
    WhenFormShows("frmChoiceEdit", [&labels](QWidget& form) {
      const auto& combo = ControlNamed<QtComboBox>(form, "cboJumpLabel");
      for (int i = 0; i < combo.ListCount(); ++i) labels.push_back(combo.List(i));
      QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
    });
    Click("cmdChoiceAdd");
    return labels;
  }
  std::vector<bool> Buttons() {
    return {IsEnabled("cmdChoiceAdd"), IsEnabled("cmdChoiceEdit"), IsEnabled("cmdChoiceDelete"),
            IsEnabled("cmdChoiceUp"), IsEnabled("cmdChoiceDown")};
  }
};

TEST_F(FrmEventChoice, SaysWhatItsControlsAre) {
  Add(kChoice);
  EXPECT_EQ(Heads("lstChoices"), (QStringList{"Choice", "Value"}));
  EXPECT_EQ(ButtonCaption("cmdChoiceAdd"), "Add C&hoice");
  EXPECT_EQ(ButtonCaption("cmdChoiceEdit"), "Edi&t");
  EXPECT_EQ(ButtonCaption("cmdChoiceDelete"), "&Delete");
  EXPECT_EQ(ButtonCaption("cmdChoiceUp"), "Move &Up");
  EXPECT_EQ(ButtonCaption("cmdChoiceDown"), "Move Dow&n");
  EXPECT_EQ(ButtonCaption("chkChoiceClear"), "Clear Screen before displaying choices");
  EXPECT_FALSE(IsTicked("chkChoiceClear"));
}

TEST_F(FrmEventChoice, GoesTheWholeWayToTheFileAndBack) {
  Add(kChoice);
  EXPECT_FALSE(CanUpdate());
  AddChoice("Stay", "Stop");
  EXPECT_TRUE(CanUpdate());
  AddChoice("Go on");
  EXPECT_THAT(RowsOf("lstChoices"), ElementsAre("Stay;Stop;", "Go on;;"));
  Click("chkChoiceClear");
  Click("cmdUpdate");
  SaveAndReload();
  const auto& event = EventOf<EventChoice>(6);
  EXPECT_TRUE(event.bClearScreen);
  ASSERT_EQ(event.Choices.Count(), 2U);
  const ChoiceItem& first = *event.Choices.Place(1);
  EXPECT_EQ(first.ID, 0);
  EXPECT_EQ(first.text, "Stay");
  EXPECT_EQ(first.label, "Stop");
  EXPECT_TRUE(first.bDisplayAsSpeech);
  EXPECT_EQ(first.skillID, -1);
  EXPECT_EQ(first.audioFile, "");
  EXPECT_TRUE(first.flagRefs.Empty());
  EXPECT_EQ(event.Choices.Place(2)->ID, 1);
  EXPECT_EQ(event.Choices.Place(2)->text, "Go on");
  EXPECT_EQ(event.nextChoiceID, 2);
}

TEST_F(FrmEventChoice, TheLabelOfTheEventItselfIsNotOfferedToItsChoices) {
  AddThree();
  Type("txtLabel", "Ask");
  Click("cmdUpdate");
  EXPECT_EQ(Con().events.At(6).eventLabel, "Ask");
  Edit(0);
  Edit(5);
  EXPECT_EQ(TextOf("txtLabel"), "Ask");
  EXPECT_THAT(OfferedLabels(), UnorderedElementsAre("Start", "Stop"));
  Click("cmdAddEvent");
  EXPECT_THAT(OfferedLabels(), UnorderedElementsAre("Ask", "Start", "Stop"))
      << "another event can go there";
}

TEST_F(FrmEventChoice, ACancelledChoiceIsNotAdded) {
  Add(kChoice);
  WhenFormShows("frmChoiceEdit", [](QWidget& form) {
    ControlNamed<QLineEdit>(form, "txtChoice").setText("Stay");
    QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdCancel"), Qt::LeftButton);
  });
  Click("cmdChoiceAdd");
  EXPECT_THAT(RowsOf("lstChoices"), IsEmpty());
  EXPECT_FALSE(CanUpdate());
  AddChoice("Go");
  EXPECT_EQ(List("lstChoices").Rows().Row(0).itemData, 0) << "no number was used up";
}

TEST_F(FrmEventChoice, ButtonsFollowTheSelectedRow) {
  AddThree();
  EXPECT_THAT(Buttons(), ElementsAre(true, false, false, false, false));
  ClickRowOf("lstChoices", 0);
  EXPECT_THAT(Buttons(), ElementsAre(true, true, true, false, true));
  ClickRowOf("lstChoices", 1);
  EXPECT_THAT(Buttons(), ElementsAre(true, true, true, true, true));
  ClickRowOf("lstChoices", 2);
  EXPECT_THAT(Buttons(), ElementsAre(true, true, true, true, false));
  Focus("lstChoices");
  Press(Qt::Key_Home);
  EXPECT_THAT(Buttons(), ElementsAre(true, true, true, false, true));
  Click("cmdAddEvent");
  EXPECT_THAT(Buttons(), ElementsAre(true, false, false, false, false));
}

TEST_F(FrmEventChoice, EditingAChoiceRewritesItsRowAndTheEventAtOnce) {
  AddThree();
  ClickRowOf("lstChoices", 1);
  WriteChoice("Bee", "Start");
  Click("cmdChoiceEdit");
  EXPECT_THAT(RowsOf("lstChoices"), ElementsAre("A;;", "Bee;Start;", "C;;"));
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "Bee", "C"));
  WriteChoice("Sea");
  DoubleClickRowOf("lstChoices", 2);
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "Bee", "Sea"));
}

TEST_F(FrmEventChoice, DeleteAsksAndYesTakesTheChoiceFromTheEventAtOnce) {
  AddThree();
  ClickRowOf("lstChoices", 1);
  program_.messages.Expect(Answer::No);
  Click("cmdChoiceDelete");
  EXPECT_EQ(LastBox().title, "Delete?");
  EXPECT_EQ(LastBox().text, "Are you sure you wish to Delete this Choice?");
  EXPECT_EQ(LastBox().icon, MessageBox::Icon::Question);
  EXPECT_EQ(LastBox().buttons, MessageBox::Buttons::YesNo);
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "B", "C"));
  program_.messages.Expect(Answer::Yes);
  Click("cmdChoiceDelete");
  EXPECT_THAT(RowsOf("lstChoices"), ElementsAre("A;;", "C;;"));
  EXPECT_EQ(List("lstChoices").Rows().ListIndex(), 1);
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "C"));
  Click("cmdClose");
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "C"));
}

TEST_F(FrmEventChoice, AnEventKeepsItsLastChoiceUntilAnotherTakesItsPlace) {
  AddThree();
  DeleteThree();
  EXPECT_THAT(RowsOf("lstChoices"), IsEmpty());
  EXPECT_FALSE(IsEnabled("cmdUpdate"));
  EXPECT_THAT(TextsInOrder(), ElementsAre("C"));
  AddChoice("D");
  EXPECT_THAT(RowsOf("lstChoices"), ElementsAre("D;;"));
  EXPECT_THAT(TextsInOrder(), ElementsAre("D"));
}

TEST_F(FrmEventChoice, AnEventLeftWithoutChoicesCanStillBeListedOnOneLine) {
  AddThree();
  DeleteThree();
  Click("cmdClose");
  program_.Choose("mnuViewExpandList");
  EXPECT_THAT(program_.shell().lstEvents().Row(5).text, EndsWith("C"));
}

TEST_F(FrmEventChoice, ANumberIsNeverGivenOutAgain) {
  AddThree();
  ClickRowOf("lstChoices", 2);
  program_.messages.Expect(Answer::Yes);
  Click("cmdChoiceDelete");
  AddChoice("D");
  EXPECT_EQ(List("lstChoices").Rows().Row(2).itemData, 3);
}

TEST_F(FrmEventChoice, ChoicesMoveUpAndDownWithTheirSelection) {
  AddThree();
  ClickRowOf("lstChoices", 2);
  Click("cmdChoiceUp");
  EXPECT_THAT(RowsOf("lstChoices"), ElementsAre("A;;", "C;;", "B;;"));
  EXPECT_EQ(List("lstChoices").Rows().ListIndex(), 1);
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "C", "B"));
  Click("cmdChoiceUp");
  EXPECT_THAT(TextsInOrder(), ElementsAre("C", "A", "B"));
  EXPECT_THAT(Buttons(), ElementsAre(true, true, true, false, true));
  Click("cmdChoiceDown");
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "C", "B"));
  Click("cmdChoiceDown");
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "B", "C"));
  EXPECT_THAT(Buttons(), ElementsAre(true, true, true, true, false));
  const auto& choices = EventOf<EventChoice>(6).Choices;
  EXPECT_EQ(choices.KeyAt(3), 2);
  EXPECT_EQ(List("lstChoices").Rows().Row(2).itemData, 2);
}

TEST_F(FrmEventChoice, MoveButtonKeepsTheFocusWhileThereIsRoom) {
  AddThree();
  ClickRowOf("lstChoices", 2);
  Focus("cmdChoiceUp");
  Press(Qt::Key_Space);
  EXPECT_TRUE(The<QWidget>("cmdChoiceUp").hasFocus());
  Press(Qt::Key_Space);
  EXPECT_THAT(TextsInOrder(), ElementsAre("C", "A", "B"));
}

TEST_F(FrmEventChoice, MoveButtonHandsTheFocusToTheListWhenTheRoomIsUsedUp) {
  AddThree();
  ClickRowOf("lstChoices", 1);
  Focus("cmdChoiceUp");
  Press(Qt::Key_Space);
  EXPECT_TRUE(List("lstChoices").hasFocus());
  Press(Qt::Key_Space);
  EXPECT_THAT(TextsInOrder(), ElementsAre("B", "A", "C")) << "and does not move back";
  ClickRowOf("lstChoices", 1);
  Focus("cmdChoiceDown");
  Press(Qt::Key_Space);
  EXPECT_TRUE(List("lstChoices").hasFocus());
  EXPECT_THAT(TextsInOrder(), ElementsAre("B", "C", "A"));
}

TEST_F(FrmEventChoice, DeleteButtonKeepsTheFocusWhileThereIsAChoice) {
  AddThree();
  ClickRowOf("lstChoices", 1);
  Focus("cmdChoiceDelete");
  for (const char* left : {"AC", "A"}) {
    program_.messages.Expect(Answer::Yes);
    Press(Qt::Key_Space);
    std::string texts;
    for (const std::string& text : TextsInOrder()) texts += text;
    EXPECT_EQ(texts, left);
    EXPECT_TRUE(The<QWidget>("cmdChoiceDelete").hasFocus()) << left;
  }
  program_.messages.Expect(Answer::Yes);
  Press(Qt::Key_Space);
  EXPECT_THAT(RowsOf("lstChoices"), IsEmpty());
  EXPECT_TRUE(List("lstChoices").hasFocus());
}

TEST_F(FrmEventChoice, InsertAddsAndDeleteDeletes) {
  Add(kChoice);
  Focus("lstChoices");
  WriteChoice("A");
  Press(Qt::Key_Insert);
  EXPECT_EQ(RowsOf("lstChoices").size(), 1U);
  Focus("lstChoices");
  Press(Qt::Key_Delete);
  EXPECT_THAT(program_.messages.shown, IsEmpty()) << "the button is grey";
  ClickRowOf("lstChoices", 0);
  program_.messages.Expect(Answer::Yes);
  Focus("lstChoices");
  Press(Qt::Key_Delete);
  EXPECT_THAT(RowsOf("lstChoices"), IsEmpty());
}

TEST_F(FrmEventChoice, TheNextNewEventStartsWithNoChoiceAndTheFirstNumber) {
  AddThree();
  Click("cmdAddEvent");
  EXPECT_THAT(RowsOf("lstChoices"), IsEmpty());
  AddChoice("D");
  EXPECT_EQ(List("lstChoices").Rows().Row(0).itemData, 0);
  Click("cmdUpdate");
  EXPECT_EQ(EventOf<EventChoice>(7).Choices.Count(), 1U);
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "B", "C"));
}

TEST_F(FrmEventChoice, TheTickIsTakenOutForTheNextNewEvent) {
  Add(kChoice);
  Click("chkChoiceClear");
  Click("cmdAddEvent");
  EXPECT_FALSE(IsTicked("chkChoiceClear"));
  Click("chkChoiceClear");
  Combo("cboEvents").SetListIndex(kComment);
  Click("cmdAddEvent");
  Combo("cboEvents").SetListIndex(kChoice);
  EXPECT_FALSE(IsTicked("chkChoiceClear")) << "whatever panel is shown";
}

TEST_F(FrmEventChoice, TickIsStoredByUpdateAlone) {
  AddThree();
  Click("chkChoiceClear");
  Edit(0);
  EXPECT_FALSE(EventOf<EventChoice>(6).bClearScreen);
  Edit(5);
  EXPECT_FALSE(IsTicked("chkChoiceClear"));
  Click("chkChoiceClear");
  Click("cmdUpdate");
  EXPECT_TRUE(EventOf<EventChoice>(6).bClearScreen);
  EXPECT_THAT(TextsInOrder(), ElementsAre("A", "B", "C"));
}

}  // namespace
}  // namespace parlate

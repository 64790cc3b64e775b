// The frame of the event editor: its two ways in, the label, and the six buttons.

#include <gmock/gmock.h>

#include <QScreen>
#include <algorithm>

#include "editors/EventEditorFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class FrmEvent : public EventEditorTest {};

TEST_F(FrmEvent, SaysWhatItsControlsAre) {
  Add(kSpeech);
  EXPECT_EQ(Editor().windowTitle(), "Event");
  EXPECT_EQ(CaptionOf("cboEvents"), "Event Type:");
  EXPECT_EQ(CaptionOf("txtLabel"), "Event Label:");
  EXPECT_EQ(ButtonCaption("cmdAddEvent"), "&Add Event");
  EXPECT_EQ(ButtonCaption("cmdInsertEvent"), "&Insert Event");
  EXPECT_EQ(ButtonCaption("cmdUpdate"), "&Update");
  EXPECT_EQ(ButtonCaption("cmdPrevEvent"), "&Previous");
  EXPECT_EQ(ButtonCaption("cmdNextEvent"), "&Next");
  EXPECT_EQ(ButtonCaption("cmdClose"), "&Close");
}

TEST_F(FrmEvent, OffersTheTypesInTheOrderOfTheirCodes) {
  Add(kSpeech);
  EXPECT_THAT(Entries("cboEvents"),
              ElementsAre("Speech", "Choice", "Set Flags", "Check Flags", "Check Object",
                          "Transfer Object", "Move Camera", "Play Animation", "Buy/Sell/Trade",
                          "Jump", "Random Label", "Trigger", "Add/Complete Goal", "Add Note",
                          "Add Skill Points", "Add Credits", "Check Persona", "Comment", "End"));
}

TEST_F(FrmEvent, HasThePanelOfEachTypeUnderItsCaption) {
  Add(kSpeech);
  const QStringList captions = {"Speech",
                                "Choice",
                                "Set Flags",
                                "Check Flags",
                                "Check Object",
                                "Transfer Object",
                                "Move Camera",
                                "Play Animation",
                                "Trade",
                                "Jump",
                                "Jump to Random Label",
                                "Trigger",
                                "Add/Complete Goal",
                                "Add Note",
                                "Add Skill Points",
                                "Add Credits",
                                "Check Persona",
                                "Comment",
                                "End"};
  for (std::int32_t type = 0; type < kEventTypeCount; ++type) {
    Combo("cboEvents").SetListIndex(type);
    EXPECT_EQ(ShownPanel(), type);
    const auto name = "fraEvents(" + std::to_string(type) + ")";
    EXPECT_EQ(The<EventPanel>(name.c_str()).title(), captions[type]);
    EXPECT_TRUE(The<EventPanel>(name.c_str()).isVisible());
  }
}

TEST_F(FrmEvent, OpensToAddWithTheTypeOfTheCommandAndNothingElse) {
  Add(kComment);
  EXPECT_TRUE(Editor().isVisible());
  EXPECT_FALSE(Editor().isModal());
  EXPECT_EQ(Editor().parentWidget(), &program_.Window());
  EXPECT_EQ(Combo("cboEvents").ListIndex(), kComment);
  EXPECT_TRUE(IsEnabled("cboEvents"));
  EXPECT_EQ(ShownPanel(), kComment);
  EXPECT_EQ(TextOf("txtLabel"), "");
  EXPECT_TRUE(IsEnabled("cmdAddEvent"));
  EXPECT_TRUE(IsEnabled("cmdInsertEvent"));
  EXPECT_FALSE(CanUpdate());
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5)) << "opening adds nothing";
}

TEST_F(FrmEvent, TypeOfANewEventCanBeChangedByTheKeyboard) {
  Add(kSpeech);
  Focus("cboEvents");
  Press(Qt::Key_End);
  EXPECT_EQ(ShownPanel(), kEnd);
  EXPECT_TRUE(CanUpdate()) << "an end needs no field";
  Press(Qt::Key_Up);
  EXPECT_EQ(ShownPanel(), kComment);
  EXPECT_FALSE(CanUpdate());
}

TEST_F(FrmEvent, OpensOnAnEventWithItsLabelAndItsTypeFixed) {
  Edit(0);
  EXPECT_EQ(Combo("cboEvents").ListIndex(), kSpeech);
  EXPECT_FALSE(IsEnabled("cboEvents"));
  EXPECT_EQ(TextOf("txtLabel"), "Start");
  EXPECT_EQ(Label().cursorPosition(), 5);
  EXPECT_EQ(ShownPanel(), kSpeech);
}

TEST_F(FrmEvent, IsOneWindowThatIsLoadedAnew) {
  Edit(0);
  const frmEvent* first = &Editor();
  Edit(1);
  Add(kEnd);
  EXPECT_EQ(&Editor(), first);
  EXPECT_EQ(program_.Window().findChildren<frmEvent*>().size(), 1);
}

TEST_F(FrmEvent, StaysWhereTheUserPutIt) {
  Edit(0);
  Editor().move(40, 50);
  const QPoint place = Editor().pos();
  Edit(1);
  EXPECT_EQ(Editor().pos(), place);
}

TEST_F(FrmEvent, StartsInTheMiddleOfTheScreenInItsSize) {
  Add(kEnd);
  const QRect screen = Editor().screen()->geometry();
  const QSize least = Editor().minimumSizeHint();
  EXPECT_EQ(Editor().width(), std::max(least.width(), 6780 / 15));
  EXPECT_EQ(Editor().height(), std::max(least.height(), 492))
      << "7385 twips are 492 pixels and a third";
  EXPECT_NEAR(Editor().geometry().center().x(), screen.center().x(), 2);
  EXPECT_NEAR(Editor().geometry().center().y(), screen.center().y(), 2);
}

TEST_F(FrmEvent, ComesBackWhereItWasWhenItWasUnloaded) {
  Add(kEnd);
  Editor().setGeometry(QRect(QPoint(60, 45), Editor().size()));
  program_.Choose("mnuFileSave");
  EXPECT_EQ(program_.workspace.defaults.EventLeft, 60 * 15);
  EXPECT_EQ(program_.workspace.defaults.EventTop, 45 * 15);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_THAT(program_.Window().findChildren<frmEvent*>(), IsEmpty());
  Add(kEnd);
  EXPECT_EQ(Editor().geometry().topLeft(), QPoint(60, 45));
}

TEST_F(FrmEvent, StoredFarOutsideComesBackInSight) {
  program_.workspace.defaults.EventLeft = 32767;
  program_.workspace.defaults.EventTop = 32767;
  Add(kEnd);
  EXPECT_TRUE(Editor().screen()->geometry().contains(Editor().geometry()));
}

TEST_F(FrmEvent, PlaceIsKeptWithTheSettingsAtTheEndOfTheProgram) {
  Add(kEnd);
  Editor().setGeometry(QRect(QPoint(30, 20), Editor().size()));
  EXPECT_TRUE(program_.Close());
  EXPECT_EQ(program_.settings.values["EventLeft"], "450");
  EXPECT_EQ(program_.settings.values["EventTop"], "300");
}

TEST_F(FrmEvent, CloseOnlyHidesItAndBringsTheMainWindowToTheFront) {
  Add(kEnd);
  const frmEvent* editor = &Editor();
  Click("cmdClose");
  EXPECT_FALSE(Editor().isVisible());
  EXPECT_EQ(&Editor(), editor);
  EXPECT_TRUE(QTest::qWaitFor([this] { return program_.Window().isActiveWindow(); }));
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(FrmEvent, EscapeAndTheWindowsOwnButtonCloseItTheSameWay) {
  Add(kEnd);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(Editor().isVisible());
  Add(kEnd);
  const frmEvent* editor = &Editor();
  Editor().close();
  EXPECT_FALSE(Editor().isVisible());
  EXPECT_EQ(&Editor(), editor);
}

TEST_F(FrmEvent, UpdatePutsTheFocusInTheLabel) {
  Add(kEnd);
  Focus("cmdUpdate");
  Press(Qt::Key_Space);
  EXPECT_TRUE(Label().hasFocus());
}

TEST_F(FrmEvent, AfterTheFirstUpdateANewEventIsOneThatIsEdited) {
  Add(kComment);
  Type("txtComment", "One");
  Click("cmdUpdate");
  EXPECT_FALSE(IsEnabled("cboEvents"));
  EXPECT_EQ(SelectedRow(), 5);
  Type("txtComment", "Two");
  Click("cmdUpdate");
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(EventOf<EventComment>(6).commentText, "Two");
  EXPECT_TRUE(program_.shell().GetConFile()->IsModified());
}

TEST_F(FrmEvent, AddEventStartsOverInTheSameTypeAndStoresNothing) {
  Edit(1);
  Type("txtComment", "dropped");
  Click("cmdAddEvent");
  EXPECT_EQ(ShownPanel(), kComment);
  EXPECT_TRUE(IsEnabled("cboEvents"));
  EXPECT_TRUE(The<QtTextBox>("txtComment").IsEmpty());
  EXPECT_EQ(EventOf<EventComment>(2).commentText, "A comment");
  Type("txtComment", "new");
  Click("cmdUpdate");
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST_F(FrmEvent, InsertEventPutsTheNextOneAheadOfTheSelectedRow) {
  Edit(1);
  Click("cmdInsertEvent");
  EXPECT_TRUE(Label().hasFocus());
  Type("txtComment", "new");
  Click("cmdUpdate");
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 6, 2, 3, 4, 5));
  EXPECT_EQ(SelectedRow(), 1);
}

TEST_F(FrmEvent, OnTheFirstEventPreviousIsGreyAndOnTheLastNext) {
  Edit(0);
  EXPECT_FALSE(IsEnabled("cmdPrevEvent"));
  EXPECT_TRUE(IsEnabled("cmdNextEvent"));
  Edit(2);
  EXPECT_TRUE(IsEnabled("cmdPrevEvent"));
  EXPECT_TRUE(IsEnabled("cmdNextEvent"));
  Edit(4);
  EXPECT_TRUE(IsEnabled("cmdPrevEvent"));
  EXPECT_FALSE(IsEnabled("cmdNextEvent"));
}

TEST_F(FrmEvent, PreviousAndNextWalkTheList) {
  Edit(1);
  Click("cmdNextEvent");
  EXPECT_EQ(SelectedRow(), 2);
  EXPECT_EQ(ShownPanel(), kSpeech);
  Click("cmdPrevEvent");
  Click("cmdPrevEvent");
  EXPECT_EQ(SelectedRow(), 0);
  EXPECT_EQ(TextOf("txtLabel"), "Start");
}

TEST_F(FrmEvent, APressOfPreviousAtTheFirstEventDoesNotReachNext) {
  Edit(1);
  Focus("cmdPrevEvent");
  Press(Qt::Key_Space);
  EXPECT_EQ(SelectedRow(), 0);
  EXPECT_TRUE(Label().hasFocus());
  Press(Qt::Key_Space);
  EXPECT_EQ(SelectedRow(), 0);
  Edit(3);
  Focus("cmdNextEvent");
  Press(Qt::Key_Space);
  EXPECT_EQ(SelectedRow(), 4);
  EXPECT_TRUE(Label().hasFocus());
}

TEST_F(FrmEvent, WhatWasTypedIsGoneAfterNextWithoutAQuestion) {
  Edit(2);
  Type("txtSpeech", "Something else");
  Click("cmdNextEvent");
  Click("cmdPrevEvent");
  EXPECT_EQ(The<QtTextBox>("txtSpeech").Text(), "Hi");
  EXPECT_EQ(EventOf<EventSpeech>(3).speech, "Hi");
  EXPECT_THAT(program_.messages.shown, IsEmpty());
  EXPECT_FALSE(program_.shell().GetConFile()->IsModified());
}

TEST_F(FrmEvent, FillsACombosWithTheComparisonOperators) {
  Add(kEnd);
  QtComboBox combo;
  Editor().PopulateConditionsCombo(combo);
  ASSERT_EQ(combo.ListCount(), 5);
  EXPECT_EQ(combo.List(2), " =  (Equal To)");
  EXPECT_EQ(combo.ItemData(4), 4);
}

TEST_F(FrmEvent, NewTransferStartsWithOneAndASkillPointsPanelEmptiesItsCount) {
  Add(kTransferObject);
  EXPECT_EQ(TextOf("txtTransferCount"), "1");
  Combo("cboEvents").SetListIndex(kAddSkillPoints);
  EXPECT_EQ(TextOf("txtTransferCount"), "");
}

TEST_F(FrmEvent, EnterStoresAndInATextOfSeveralLinesBreaksTheLine) {
  Add(kComment);
  Type("txtComment", "One");
  Press(Qt::Key_Return);
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5)) << "the text goes on";
  QTest::keyClicks(QApplication::focusWidget(), "Two");
  Focus("txtLabel");
  Press(Qt::Key_Return);
  EXPECT_EQ(EventOf<EventComment>(6).commentText, "One\r\nTwo");
}

TEST_F(FrmEvent, EnterDoesNothingWhileAFieldIsMissing) {
  Add(kComment);
  Focus("txtLabel");
  Press(Qt::Key_Return);
  EXPECT_TRUE(Editor().isVisible());
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(FrmEvent, TabFollowsTheReadingOrder) {
  Add(kSpeech);
  Type("cboActorSpeaker", "Zoe");
  Focus("cboEvents");
  std::vector<std::string> names;
  for (int i = 0; i < 12; ++i) {
    Press(Qt::Key_Tab);
    names.push_back(QApplication::focusWidget()->objectName().toStdString());
  }
  EXPECT_THAT(names,
              ElementsAre("txtLabel", "cboActorSpeaker", "cmdEditNPCTable(0)", "cboActorSpeakingTo",
                          "cmdEditNPCTable(3)", "txtSpeech", "txtAudioFile", "cmdSpeechAudio",
                          "chkSpeechContinued", "cboSpeechFont", "cmdAddEvent", "cmdInsertEvent"));
}

TEST_F(FrmEvent, SharedAccessKeysMoveOnAtAFurtherPress) {
  program_.ClickNode("C1");
  Add(kChoice);
  WriteChoice("Yes");
  Click("cmdChoiceAdd");
  WriteChoice("No");
  Click("cmdChoiceAdd");
  ClickRowOf("lstChoices", 1);
  ASSERT_TRUE(IsEnabled("cmdChoiceUp"));
  Focus("txtLabel");
  Press(Qt::Key_U, Qt::AltModifier);
  const QWidget* first = QApplication::focusWidget();
  Press(Qt::Key_U, Qt::AltModifier);
  EXPECT_NE(QApplication::focusWidget(), first);
  EXPECT_THAT(KeysInOrder(1), IsEmpty()) << "an ambiguous key presses nothing";
}

}  // namespace
}  // namespace parlate

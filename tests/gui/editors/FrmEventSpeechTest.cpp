// The Speech panel, and how one speech follows another.

#include <gmock/gmock.h>

#include <QPushButton>
#include <filesystem>

#include "editors/EventEditorFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class FrmEventSpeech : public EventEditorTest {
 protected:
  [[nodiscard]] std::string Speaker() { return Combo("cboActorSpeaker").Text(); }
  [[nodiscard]] std::string SpeakingTo() { return Combo("cboActorSpeakingTo").Text(); }
  [[nodiscard]] QtTextBox& Speech() { return The<QtTextBox>("txtSpeech"); }
  /// Selects a row in the table editor that is about to come, and closes it.
  static void ChooseInTable(const char* name) {
    WhenFormShows("frmTableEdit", [name](QWidget& form) {
      EXPECT_EQ(form.windowTitle(), "Actors/Pawns");
      auto& table = ControlNamed<QtListBox>(form, "lstTable");
      const QListWidgetItem* row = table.findItems(name, Qt::MatchExactly).value(0);
      QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualItemRect(row).center());
      QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdClose"), Qt::LeftButton);
    });
  }
};

TEST_F(FrmEventSpeech, SaysWhatItsControlsAre) {
  Add(kSpeech);
  EXPECT_EQ(CaptionOf("cboActorSpeaker"), "Actor to Speak:");
  EXPECT_EQ(CaptionOf("cboActorSpeakingTo"), "Speaking To:");
  EXPECT_EQ(CaptionOf("txtSpeech"), "Speech:");
  EXPECT_EQ(CaptionOf("txtAudioFile"), "Audio File:");
  EXPECT_EQ(CaptionOf("cboSpeechFont"), "Font:");
  EXPECT_EQ(ButtonCaption("cmdEditNPCTable(0)"), "Edit NPC Table");
  EXPECT_EQ(ButtonCaption("cmdEditNPCTable(3)"), "Edit NPC Table");
  EXPECT_EQ(ButtonCaption("cmdSpeechAudio"), "...");
  EXPECT_EQ(ButtonCaption("cmdPlayAudio"), "&Play");
  EXPECT_EQ(ButtonCaption("chkSpeechContinued"), "Continued");
  EXPECT_THAT(Entries("cboSpeechFont"), ElementsAre("Normal", "Computer"));
}

TEST_F(FrmEventSpeech, StartsEmptyWithTheActorsToChooseFrom) {
  Add(kSpeech);
  EXPECT_EQ(Speaker(), "");
  EXPECT_EQ(SpeakingTo(), "");
  EXPECT_TRUE(Speech().IsEmpty());
  EXPECT_EQ(TextOf("txtAudioFile"), "");
  EXPECT_FALSE(IsTicked("chkSpeechContinued"));
  EXPECT_EQ(Combo("cboSpeechFont").ListIndex(), -1);
  EXPECT_FALSE(IsEnabled("cmdPlayAudio"));
  EXPECT_THAT(Entries("cboActorSpeaker"), ElementsAre("Alex", "Zoe"));
  EXPECT_THAT(Entries("cboActorSpeakingTo"), ElementsAre("Alex", "Zoe"));
}

TEST_F(FrmEventSpeech, NeedsBothActorsAndTheText) {
  Add(kSpeech);
  Type("txtSpeech", "Hey");
  EXPECT_FALSE(CanUpdate());
  Type("cboActorSpeaker", "Zoe");
  EXPECT_FALSE(CanUpdate());
  Type("cboActorSpeakingTo", "Alex");
  EXPECT_TRUE(CanUpdate());
  Type("cboActorSpeaker", "");
  EXPECT_FALSE(CanUpdate());
  Type("cboActorSpeaker", "Alex");
  EXPECT_TRUE(CanUpdate());
  Type("txtSpeech", "");
  EXPECT_FALSE(CanUpdate());
  Type("txtSpeech", " ");
  EXPECT_TRUE(CanUpdate());
}

TEST_F(FrmEventSpeech, GoesTheWholeWayToTheFileAndBack) {
  Add(kSpeech);
  Type("txtLabel", "Wave");
  WriteSpeech("Zoe", "Alex", "Over here");
  Type("txtAudioFile", "zoe02");
  Click("chkSpeechContinued");
  Focus("cboSpeechFont");
  Press(Qt::Key_C);
  EXPECT_EQ(Combo("cboSpeechFont").Text(), "Computer");
  Click("cmdUpdate");
  SaveAndReload();
  EXPECT_EQ(Con().events.At(6).eventLabel, "Wave");
  EXPECT_EQ(Con().events.At(6).eventType, kSpeech);
  const auto& speech = EventOf<EventSpeech>(6);
  EXPECT_EQ(speech.ActorSpeakerID, 1);
  EXPECT_EQ(speech.ActorSpeakingToID, 0);
  EXPECT_EQ(speech.speech, "Over here");
  EXPECT_EQ(speech.audioFile, "zoe02");
  EXPECT_TRUE(speech.bContinued);
  EXPECT_FALSE(speech.bBold);
  EXPECT_EQ(speech.speechFont, 1);
}

TEST_F(FrmEventSpeech, StoresTheFirstFontWhenNoneIsChosen) {
  Add(kSpeech);
  WriteSpeech("Zoe", "Alex", "Over here");
  Click("cmdUpdate");
  EXPECT_EQ(EventOf<EventSpeech>(6).speechFont, 0);
}

TEST_F(FrmEventSpeech, ShowsTheFieldsOfAnEvent) {
  auto& speech = EventOf<EventSpeech>(1);
  speech.ActorSpeakingToID = 0;
  speech.bContinued = true;
  speech.speechFont = 1;
  Edit(0);
  EXPECT_EQ(Speaker(), "Zoe");
  EXPECT_EQ(SpeakingTo(), "Alex");
  EXPECT_EQ(Speech().Text(), "Hello");
  EXPECT_EQ(TextOf("txtAudioFile"), "hello.mp3");
  EXPECT_TRUE(IsEnabled("cmdPlayAudio"));
  EXPECT_TRUE(IsTicked("chkSpeechContinued"));
  EXPECT_EQ(Combo("cboSpeechFont").ListIndex(), 1);
  EXPECT_TRUE(CanUpdate());
  Edit(2);
  EXPECT_EQ(Speaker(), "Alex");
  EXPECT_EQ(SpeakingTo(), "") << "nobody";
  EXPECT_FALSE(IsTicked("chkSpeechContinued"));
  EXPECT_FALSE(IsEnabled("cmdPlayAudio"));
  EXPECT_FALSE(CanUpdate());
}

TEST_F(FrmEventSpeech, AnUpdateOfAnUntouchedEventChangesNoByteOfItsText) {
  auto& speech = EventOf<EventSpeech>(1);
  speech.ActorSpeakingToID = 0;
  const std::string text = "One\r\nTwo\rThree\nFour\xA0 Five\t\r\n";
  speech.speech = text;
  Edit(0);
  Click("cmdUpdate");
  EXPECT_EQ(EventOf<EventSpeech>(1).speech, text);
}

TEST_F(FrmEventSpeech, LinesThatAreTypedEndAsTheFileHasThem) {
  Add(kSpeech);
  WriteSpeech("Zoe", "Alex", "One");
  Press(Qt::Key_Return);
  QTest::keyClicks(QApplication::focusWidget(), "Two");
  Click("cmdUpdate");
  EXPECT_EQ(EventOf<EventSpeech>(6).speech, "One\r\nTwo");
}

TEST_F(FrmEventSpeech, UnknownActorIsAskedAboutOnLeavingTheField) {
  Add(kSpeech);
  WriteSpeech("Zoe", "Alex", "Hey");
  program_.messages.Expect(Answer::No);
  Type("cboActorSpeaker", "Bert");
  EXPECT_FALSE(CanUpdate());
  Press(Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([this] { return program_.messages.shown.size() == 1; }));
  EXPECT_EQ(LastBox().title, "Add Item?");
  EXPECT_EQ(LastBox().text, "This entry does not exist in the table, would you like to add it?");
  EXPECT_TRUE(Combo("cboActorSpeaker").hasFocus());
  EXPECT_EQ(Combo("cboActorSpeaker").lineEdit()->selectedText(), "Bert");
  EXPECT_FALSE(CanUpdate());
  program_.messages.Expect(Answer::Yes);
  Press(Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([this] { return program_.messages.shown.size() == 2; }));
  EXPECT_TRUE(QTest::qWaitFor([this] { return CanUpdate(); }));
  EXPECT_NE(FindTableItemByName(kActorTable, "Bert"), nullptr);
}

TEST_F(FrmEventSpeech, FirstTableButtonPutsTheChosenActorInTheSpeaker) {
  Add(kSpeech);
  ChooseInTable("Alex");
  Click("cmdEditNPCTable(0)");
  EXPECT_EQ(Speaker(), "Alex");
  EXPECT_EQ(Combo("cboActorSpeaker").ItemData(Combo("cboActorSpeaker").ListIndex()), 0);
  EXPECT_EQ(SpeakingTo(), "");
}

TEST_F(FrmEventSpeech, SecondTableButtonPutsTheChosenActorInTheOneSpokenTo) {
  Add(kSpeech);
  Type("cboActorSpeaker", "Alex");
  Type("txtSpeech", "Hey");
  EXPECT_FALSE(CanUpdate());
  ChooseInTable("Zoe");
  Click("cmdEditNPCTable(3)");
  EXPECT_EQ(SpeakingTo(), "Zoe");
  EXPECT_EQ(Combo("cboActorSpeakingTo").ItemData(Combo("cboActorSpeakingTo").ListIndex()), 1);
  EXPECT_EQ(Speaker(), "Alex");
  EXPECT_TRUE(CanUpdate()) << "it was the last field that was missing";
}

TEST_F(FrmEventSpeech, AddEventAfterAStoredSpeechTurnsTheSpeakersRound) {
  Add(kSpeech);
  WriteSpeech("Zoe", "Alex", "Hey");
  Click("cmdUpdate");
  Click("cmdAddEvent");
  EXPECT_EQ(Speaker(), "Alex");
  EXPECT_EQ(SpeakingTo(), "Zoe");
  EXPECT_TRUE(Speech().hasFocus());
  EXPECT_TRUE(Speech().IsEmpty());
  EXPECT_FALSE(CanUpdate());
}

TEST_F(FrmEventSpeech, InsertEventTurnsTheSpeakersRoundToo) {
  Add(kSpeech);
  WriteSpeech("Zoe", "Alex", "Hey");
  Click("cmdUpdate");
  Click("cmdInsertEvent");
  EXPECT_EQ(Speaker(), "Alex");
  EXPECT_EQ(SpeakingTo(), "Zoe");
}

TEST_F(FrmEventSpeech, AnEditedSpeechTurnsTheSpeakersRoundToo) {
  EventOf<EventSpeech>(1).ActorSpeakingToID = 0;
  Edit(0);
  Click("cmdUpdate");
  Click("cmdAddEvent");
  EXPECT_EQ(Speaker(), "Alex");
  EXPECT_EQ(SpeakingTo(), "Zoe");
  EXPECT_TRUE(Speech().hasFocus());
}

TEST_F(FrmEventSpeech, TheContinuedMarkIsTakenOutForTheNextNewEvent) {
  Add(kSpeech);
  WriteSpeech("Zoe", "Alex", "Hey");
  Click("chkSpeechContinued");
  Click("cmdUpdate");
  EXPECT_TRUE(IsTicked("chkSpeechContinued")) << "the stored event has it";
  Click("cmdAddEvent");
  EXPECT_FALSE(IsTicked("chkSpeechContinued"));
  Click("chkSpeechContinued");
  Combo("cboEvents").SetListIndex(kComment);
  Click("cmdAddEvent");
  Combo("cboEvents").SetListIndex(kSpeech);
  EXPECT_FALSE(IsTicked("chkSpeechContinued")) << "whatever panel is shown";
}

TEST_F(FrmEventSpeech, AStoredEventOfAnotherTypeBreaksTheChain) {
  Add(kSpeech);
  WriteSpeech("Zoe", "Alex", "Hey");
  Click("cmdUpdate");
  Click("cmdAddEvent");
  Combo("cboEvents").SetListIndex(kEnd);
  Click("cmdUpdate");
  Click("cmdAddEvent");
  Combo("cboEvents").SetListIndex(kSpeech);
  EXPECT_EQ(Speaker(), "");
  EXPECT_EQ(SpeakingTo(), "");
  EXPECT_TRUE(Label().hasFocus());
}

TEST_F(FrmEventSpeech, AHiddenEditorForgetsWhoSpoke) {
  Add(kSpeech);
  WriteSpeech("Zoe", "Alex", "Hey");
  Click("cmdUpdate");
  Click("cmdClose");
  Add(kSpeech);
  EXPECT_EQ(Speaker(), "");
  EXPECT_EQ(SpeakingTo(), "");
  Click("cmdAddEvent");
  EXPECT_EQ(Speaker(), "") << "and does not remember them again";
}

TEST_F(FrmEventSpeech, TurnIsNotTakenByAnEventThatIsOpened) {
  EventOf<EventSpeech>(1).ActorSpeakingToID = 0;
  Add(kSpeech);
  WriteSpeech("Zoe", "Alex", "Hey");
  Click("cmdUpdate");
  Edit(0);
  EXPECT_EQ(Speaker(), "Zoe");
  EXPECT_EQ(SpeakingTo(), "Alex");
}

TEST_F(FrmEventSpeech, ThreeSpeechesAreWrittenWithKeysAlone) {
  Add(kSpeech);
  Focus("cboActorSpeaker");
  const auto type = [](const char* text) {
    QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
  };
  const auto store = [this] {
    const std::size_t count = Con().events.Count();
    Press(Qt::Key_U, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Con().events.Count() == count + 1; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Label().hasFocus(); }));
  };
  const auto next = [this] {
    Press(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Speech().hasFocus(); }));
  };
  type("Zoe");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  type("Alex");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Tab);
  type("The tide is out.");
  store();
  next();
  type("Then we walk.");
  store();
  next();
  type("Mind the nets.");
  store();
  SaveAndReload();
  ASSERT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
  const auto said = [this](std::int32_t key) {
    const auto& speech = EventOf<EventSpeech>(key);
    return std::to_string(speech.ActorSpeakerID) + " to " +
           std::to_string(speech.ActorSpeakingToID) + ": " + speech.speech;
  };
  EXPECT_EQ(said(6), "1 to 0: The tide is out.");
  EXPECT_EQ(said(7), "0 to 1: Then we walk.");
  EXPECT_EQ(said(8), "1 to 0: Mind the nets.");
}

TEST_F(FrmEventSpeech, AChosenFileNameWithTwoPointsIsCutAtTheFirst) {
  program_.workspace.defaults.AudioPath = folder.Path() + "audio";
  const std::string audio = folder.Path() + "audio/Mission/Zoe_greeting";
  std::filesystem::create_directories(audio);
  Add(kSpeech);
  program_.dialogs.Expect(audio + "/zoe.take2.wav");
  Click("cmdSpeechAudio");
  EXPECT_EQ(TextOf("txtAudioFile"), "zoe");
  EXPECT_TRUE(IsEnabled("cmdPlayAudio"));
  const FileDialog& dialog = program_.dialogs.opened.back();
  EXPECT_EQ(dialog.title, "Choose Audio File");
  EXPECT_EQ(dialog.filter, "Audio Files (*.wav;*.mp3)|*.wav;*.mp3");
  EXPECT_EQ(dialog.initialFolder, audio);
  EXPECT_EQ(dialog.fileName, "");
}

TEST_F(FrmEventSpeech, ACancelledFileDialogKeepsTheName) {
  program_.workspace.defaults.AudioPath = folder.Path() + "audio";
  std::filesystem::create_directories(folder.Path() + "audio/Mission/Zoe_greeting");
  Edit(0);
  program_.dialogs.Expect("");
  Click("cmdSpeechAudio");
  EXPECT_EQ(TextOf("txtAudioFile"), "hello.mp3");
}

TEST_F(FrmEventSpeech, AMissingAudioFolderIsAskedAbout) {
  program_.workspace.defaults.AudioPath = folder.Path() + "none";
  Edit(0);
  program_.messages.Expect(Answer::No);
  Click("cmdSpeechAudio");
  EXPECT_EQ(LastBox().title, "Directory Not Found!");
  EXPECT_EQ(LastBox().text, "The Directory " + folder.Path() +
                                "none/Mission/Zoe_greeting could not be found."
                                "\n\nDo you wish to continue?");
  EXPECT_EQ(LastBox().buttons, MessageBox::Buttons::YesNo);
  EXPECT_THAT(program_.dialogs.opened, IsEmpty());
  EXPECT_EQ(TextOf("txtAudioFile"), "hello.mp3");
  program_.messages.Expect(Answer::Yes);
  program_.dialogs.Expect("/elsewhere/bell.mp3");
  Click("cmdSpeechAudio");
  EXPECT_EQ(TextOf("txtAudioFile"), "bell");
}

TEST_F(FrmEventSpeech, PlayIsThereWhileAFileIsNamed) {
  Add(kSpeech);
  Type("txtAudioFile", "a");
  EXPECT_TRUE(IsEnabled("cmdPlayAudio"));
  Type("txtAudioFile", "");
  EXPECT_FALSE(IsEnabled("cmdPlayAudio"));
}

TEST_F(FrmEventSpeech, PlayOpensThePlayerOnTheFileOfTheConversation) {
  program_.workspace.defaults.AudioPath = folder.Path() + "audio";
  Edit(0);
  QString file;
  WhenFormShows("frmPlayAudio", [&file](QWidget& form) {
    file = ControlNamed<QLineEdit>(form, "txtFilename").text();
    form.close();
  });
  Click("cmdPlayAudio");
  EXPECT_EQ(file.toStdString(), folder.Path() + "audio/Mission/Zoe_greeting/hello.mp3.wav");
}

}  // namespace
}  // namespace parlate

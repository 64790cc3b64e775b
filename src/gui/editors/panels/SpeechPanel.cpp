#include "editors/panels/SpeechPanel.h"

#include <QGridLayout>
#include <QHBoxLayout>

#include "editors/frmPlayAudio.h"
#include "editors/panels/PanelControls.h"
#include "interchange/AudioPath.h"
#include "model/TableCombos.h"
#include "model/Tables.h"
#include "platform/FormControls.h"

namespace parlate {

SpeechPanel::SpeechPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kSpeech, QStringLiteral("Speech"), host, parent) {
  SetUpControls();
  BuildLayout();
  RefreshPlayAudio();
  connect(&txtSpeech, &QtTextBox::textChanged, this, &SpeechPanel::changed);
  connect(&txtAudioFile, &QLineEdit::textChanged, this, &SpeechPanel::RefreshPlayAudio);
  connect(&cmdSpeechAudio, &QPushButton::clicked, this, &SpeechPanel::ChooseAudio);
  connect(&cmdPlayAudio, &QPushButton::clicked, this, &SpeechPanel::PlayAudio);
}

void SpeechPanel::SetUpControls() {
  const QString editTable = QStringLiteral("Edit NPC Table");
  SetUpLabel(lblActorSpeaker, "lblActorSpeaker", QStringLiteral("Actor to Speak:"));
  SetUpField(cboActorSpeaker, "cboActorSpeaker", lblActorSpeaker);
  SetUpFieldButton(cmdEditNPCTable0, "cmdEditNPCTable(0)", editTable, lblActorSpeaker);
  SetUpLabel(lblActorSpeakingTo, "lblActorSpeakingTo", QStringLiteral("Speaking To:"));
  SetUpField(cboActorSpeakingTo, "cboActorSpeakingTo", lblActorSpeakingTo);
  SetUpFieldButton(cmdEditNPCTable3, "cmdEditNPCTable(3)", editTable, lblActorSpeakingTo);
  SetUpLabel(lblSpeech, "lblSpeech", QStringLiteral("Speech:"));
  SetUpField(txtSpeech, "txtSpeech", lblSpeech);
  SetUpLabel(lblAudioFile, "lblAudioFile", QStringLiteral("Audio File:"));
  SetUpField(txtAudioFile, "txtAudioFile", lblAudioFile);
  SetUpTextLine(txtAudioFile);
  SetUpFieldButton(cmdSpeechAudio, "cmdSpeechAudio", QStringLiteral("..."), lblAudioFile);
  // The file name has more use for the room than three points.
  cmdSpeechAudio.setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("xx...xx")));
  SetUpButton(cmdPlayAudio, "cmdPlayAudio", QStringLiteral("&Play"));
  SetUpButton(chkSpeechContinued, "chkSpeechContinued", QStringLiteral("Continued"));
  SetUpLabel(lblSpeechFont, "lblSpeechFont", QStringLiteral("Font:"));
  SetUpField(cboSpeechFont, "cboSpeechFont", lblSpeechFont);
  cboSpeechFont.MakeListOnly();
}

void SpeechPanel::BuildLayout() {
  auto* audio = new QHBoxLayout;
  audio->addWidget(&txtAudioFile, 1);
  audio->addWidget(&cmdSpeechAudio);
  audio->addWidget(&cmdPlayAudio);

  auto* font = new QHBoxLayout;
  font->addWidget(&chkSpeechContinued);
  font->addStretch();
  font->addWidget(&lblSpeechFont);
  font->addWidget(&cboSpeechFont);

  auto* panel = new QGridLayout(this);
  panel->addWidget(&lblActorSpeaker, 0, 0);
  panel->addWidget(&cboActorSpeaker, 0, 1);
  panel->addWidget(&cmdEditNPCTable0, 0, 2);
  panel->addWidget(&lblActorSpeakingTo, 1, 0);
  panel->addWidget(&cboActorSpeakingTo, 1, 1);
  panel->addWidget(&cmdEditNPCTable3, 1, 2);
  panel->addWidget(&lblSpeech, 2, 0);
  panel->addWidget(&txtSpeech, 3, 0, 1, 3);
  panel->addWidget(&lblAudioFile, 4, 0);
  panel->addLayout(audio, 4, 1, 1, 2);
  panel->addLayout(font, 5, 0, 1, 3);
  panel->setColumnStretch(1, 1);
  panel->setRowStretch(3, 1);
}

void SpeechPanel::ClearFields() {
  cboActorSpeaker.SetText("");
  cboActorSpeakingTo.SetText("");
  cboSpeechFont.SetListIndex(-1);
  txtSpeech.SetText("");
  txtAudioFile.clear();
  chkSpeechContinued.setChecked(false);
}

void SpeechPanel::Ready() {
  const Table& actors = *GetTable(kActorTable);
  PopulateCombo(cboActorSpeaker, actors);
  PopulateCombo(cboActorSpeakingTo, actors);
  PopulateComboFromArray(cboSpeechFont, speechFontNames);
  if (Host().IsEditorVisible()) {
    const SpeakerPair last = Host().LastSpeakers();
    SelectComboItemByID(last.speakingToID, cboActorSpeaker);
    SelectComboItemByID(last.speakerID, cboActorSpeakingTo);
    if (last.speakingToID != -1) txtSpeech.setFocus();
  }
  RefreshPlayAudio();
}

void SpeechPanel::LoadEvent(EventItem& event) {
  const auto& speech = Loaded<EventSpeech>(event);
  SelectComboItemByID(speech.ActorSpeakerID, cboActorSpeaker);
  SelectComboItemByID(speech.ActorSpeakingToID, cboActorSpeakingTo);
  txtSpeech.SetText(speech.speech);
  SetLineText(txtAudioFile, speech.audioFile);
  RefreshPlayAudio();
  chkSpeechContinued.setChecked(speech.bContinued);
  cboSpeechFont.SetListIndex(speech.speechFont);
}

bool SpeechPanel::IsComplete() const {
  // Each of them by itself: a typed name that is a row becomes the row.
  const bool speaker = speaker_.IsValid();
  const bool speakingTo = speakingTo_.IsValid();
  return speaker && speakingTo && !txtSpeech.IsEmpty();
}

void SpeechPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventSpeech>(event).Update(cboActorSpeaker, cboActorSpeakingTo, txtSpeech.Text(),
                                      LineText(txtAudioFile), false, chkSpeechContinued.isChecked(),
                                      cboSpeechFont);
}

void SpeechPanel::RefreshPlayAudio() { cmdPlayAudio.setEnabled(!txtAudioFile.text().isEmpty()); }

void SpeechPanel::ChooseAudio() {
  const std::string file = Host().SelectAudioFile();
  if (!file.empty()) SetLineText(txtAudioFile, file);
}

void SpeechPanel::PlayAudio() {
  frmPlayAudio player(BuildAudioPath, window());
  player.PlayWaveFile(LineText(txtAudioFile), *Host().CurrentCon());
}

}  // namespace parlate

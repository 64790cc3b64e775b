#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "editors/TableCombo.h"
#include "editors/panels/EventPanel.h"
#include "platform/QtComboBox.h"
#include "platform/TextField.h"

namespace parlate {

/// One line of dialogue. A new one that follows a stored one in the open window begins with the
/// speakers changed about.
class SpeechPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit SpeechPanel(PanelHost& host, QWidget* parent = nullptr);

  void LeaveFields() override {
    speaker_.Leave();
    speakingTo_.Leave();
  }
  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  void SetUpControls();
  void BuildLayout();
  void RefreshPlayAudio();
  void ChooseAudio();
  void PlayAudio();

  // In the order in which Tab visits them.
  QLabel lblActorSpeaker{this};
  QtComboBox cboActorSpeaker{this, RowOrder::ByName};
  QPushButton cmdEditNPCTable0{this};
  QLabel lblActorSpeakingTo{this};
  QtComboBox cboActorSpeakingTo{this, RowOrder::ByName};
  QPushButton cmdEditNPCTable3{this};
  QLabel lblSpeech{this};
  QtTextBox txtSpeech{this};
  QLabel lblAudioFile{this};
  QLineEdit txtAudioFile{this};
  QPushButton cmdSpeechAudio{this};
  QPushButton cmdPlayAudio{this};
  QCheckBox chkSpeechContinued{this};
  QLabel lblSpeechFont{this};
  QtComboBox cboSpeechFont{this};
  TableCombo speaker_{cboActorSpeaker, kActorTable, cmdEditNPCTable0, [this] { emit changed(); }};
  TableCombo speakingTo_{cboActorSpeakingTo, kActorTable, cmdEditNPCTable3,
                         [this] { emit changed(); }};
};

}  // namespace parlate

#pragma once

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <functional>
#include <string>

#include "model/Conversation.h"
#include "platform/WavePlayer.h"

namespace parlate {

/// The folder of a conversation's audio files, a path without a separator at its end.
using AudioFolder = std::function<std::string(const Conversation&)>;

/// Plays one wave file once and closes itself. With nothing to hear, a missing file say, it stays
/// until the user closes it.
class frmPlayAudio : public QDialog {
  Q_OBJECT

 public:
  explicit frmPlayAudio(AudioFolder audioFolder, QWidget* parent = nullptr);

  /// Plays the file of that base name and shows the window modal until it has ended.
  void PlayWaveFile(const std::string& waveFile, const Conversation& con);

 public slots:
  void done(int result) override;

 private:
  void SetUpControls();
  void BuildLayout();

  AudioFolder audioFolder_;
  WavePlayer mmcPlayWave{this};

  // In the order in which Tab visits them.
  QFrame SSPanel1{this};
  QLabel Label1{&SSPanel1};
  QLineEdit txtFilename{&SSPanel1};
  QPushButton cmdClose{this};
};

}  // namespace parlate

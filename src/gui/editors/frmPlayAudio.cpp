#include "editors/frmPlayAudio.h"

#include <QFile>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "general/CodePage.h"
#include "general/Paths.h"
#include "platform/FormControls.h"

namespace parlate {

namespace {

constexpr int kFieldWidth = 420;

}  // namespace

frmPlayAudio::frmPlayAudio(AudioFolder audioFolder, QWidget* parent)
    : QDialog(parent), audioFolder_(std::move(audioFolder)) {
  SetUpControls();
  BuildLayout();
  connect(&mmcPlayWave, &WavePlayer::done, this, &frmPlayAudio::accept);
  connect(&cmdClose, &QPushButton::clicked, this, &frmPlayAudio::reject);
}

void frmPlayAudio::SetUpControls() {
  NameControl(*this, "frmPlayAudio", QStringLiteral("Audio Player"));
  setWindowTitle(QStringLiteral("Audio Player"));
  mmcPlayWave.setObjectName(QStringLiteral("mmcPlayWave"));
  SSPanel1.setObjectName(QStringLiteral("SSPanel1"));
  SSPanel1.setFrameShape(QFrame::StyledPanel);
  SetUpLabel(Label1, "Label1", QStringLiteral("Filename:"));
  SetUpField(txtFilename, "txtFilename", Label1);
  txtFilename.setReadOnly(true);
  SetUpButton(cmdClose, "cmdClose", QStringLiteral("&Close"));
  cmdClose.setDefault(true);
}

void frmPlayAudio::BuildLayout() {
  txtFilename.setMinimumWidth(kFieldWidth);
  auto* panel = new QHBoxLayout(&SSPanel1);
  panel->addWidget(&Label1);
  panel->addWidget(&txtFilename, 1);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdClose);

  auto* form = new QVBoxLayout(this);
  form->addWidget(&SSPanel1);
  form->addStretch();
  form->addLayout(buttons);
  cmdClose.setFocus();
}

void frmPlayAudio::PlayWaveFile(const std::string& waveFile, const Conversation& con) {
  // A name may have folders in it, which conversation files part by backslashes.
  std::string name = ToUtf8(waveFile);
  std::replace(name.begin(), name.end(), '\\', kPathSeparator);
  const std::string path = audioFolder_(con) + kPathSeparator + name + ".wav";
  mmcPlayWave.Open(path);
  mmcPlayWave.Play();
  txtFilename.setText(QFile::decodeName(QByteArray::fromStdString(path)));
  exec();
}

void frmPlayAudio::done(int result) {
  mmcPlayWave.Close();
  QDialog::done(result);
}

}  // namespace parlate

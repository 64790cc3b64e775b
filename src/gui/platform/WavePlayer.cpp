#include "platform/WavePlayer.h"

#include <QAudioOutput>
#include <QFile>
#include <QMediaPlayer>
#include <QUrl>

namespace parlate {

namespace {

/// Whether the file begins as every wave file does. The player takes a second to get over one that
/// does not, and the window would stand still for it.
bool IsWaveFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray head = file.read(12);
  return head.startsWith("RIFF") && head.endsWith("WAVE") && head.size() == 12;
}

}  // namespace

WavePlayer::WavePlayer(QObject* parent) : QObject(parent) {}

WavePlayer::~WavePlayer() = default;

void WavePlayer::Open(const std::string& path) {
  Close();
  const QString file = QFile::decodeName(QByteArray::fromStdString(path));
  if (!IsWaveFile(file)) return;
  output_ = std::make_unique<QAudioOutput>();
  player_ = std::make_unique<QMediaPlayer>();
  player_->setAudioOutput(output_.get());
  // Queued: whoever hears of the end closes the player, which must be out of its own signal then.
  connect(
      player_.get(), &QMediaPlayer::mediaStatusChanged, this,
      [this](QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::EndOfMedia && player_ != nullptr) emit done();
      },
      Qt::QueuedConnection);
  player_->setSource(QUrl::fromLocalFile(file));
}

void WavePlayer::Play() {
  if (player_ != nullptr) player_->play();
}

void WavePlayer::Close() {
  player_.reset();
  output_.reset();
}

}  // namespace parlate

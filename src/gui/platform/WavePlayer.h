#pragma once

#include <QObject>
#include <memory>
#include <string>

class QAudioOutput;
class QMediaPlayer;

namespace parlate {

/// Plays one wave file at a time without blocking.
///
/// A file that cannot be played is no error: nothing is heard then, and nothing reported, as long
/// as the player is open. The same holds for a machine without sound.
class WavePlayer : public QObject {
  Q_OBJECT

 public:
  explicit WavePlayer(QObject* parent = nullptr);
  ~WavePlayer() override;

  /// Takes a file by its path, as the platform writes it; what was open is closed.
  void Open(const std::string& path);
  /// Plays the open file from its beginning.
  void Play();
  /// Ends the sound. Nothing is reported of it.
  void Close();

 signals:
  /// The sound has played to its end.
  void done();

 private:
  // Made when there is something to play: without the media plugins of the platform the making of
  // a player already ends the program.
  std::unique_ptr<QAudioOutput> output_;
  std::unique_ptr<QMediaPlayer> player_;
};

}  // namespace parlate

#pragma once

#include <QEvent>
#include <QSocketNotifier>
#include <csignal>
#include <memory>

namespace parlate {

/// Sent to the application when the system or the terminal asks the program to end. Who is in the
/// middle of something ignores it, and it comes again.
class EndRequest final : public QEvent {
 public:
  explicit EndRequest(int signal) : QEvent(EventType()), signal_(signal) { accept(); }

  [[nodiscard]] static Type EventType();
  /// SIGINT, SIGTERM or SIGHUP.
  [[nodiscard]] int Signal() const { return signal_; }

 private:
  int signal_;
};

/// Turns the signals that ask a program to end into events. Made before the application, because
/// threads that are older would still take the signals and end the program on the spot.
class EndSignals {
 public:
  /// Where the system has no room for it, the signals go on ending the program on the spot.
  EndSignals();
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

  /// Begins to send requests; the application stands by now.
  void Listen();

 private:
  void Deliver();

  sigset_t before_{};
  int file_ = -1;
  int due_ = 0;  // the signal that was read and not taken yet
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace parlate

#include "platform/EndSignals.h"

#include <pthread.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTimer>

namespace parlate {

namespace {

constexpr int kRetryMilliseconds = 50;

/// Whoever started the program meant it to outlive this signal: a terminal's end, say.
bool IsIgnored(int signal) {
  struct sigaction now {};
  return sigaction(signal, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
}

}  // namespace

QEvent::Type EndRequest::EventType() {
  static const auto type = static_cast<Type>(registerEventType());
  return type;
}

EndSignals::EndSignals() {
  sigset_t wanted;
  sigemptyset(&wanted);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    if (!IsIgnored(signal)) sigaddset(&wanted, signal);
  }
  file_ = signalfd(-1, &wanted, SFD_NONBLOCK | SFD_CLOEXEC);
  if (file_ < 0) return;
  pthread_sigmask(SIG_BLOCK, &wanted, &before_);
}

EndSignals::~EndSignals() {
  if (file_ < 0) return;
  notifier_.reset();
  close(file_);
  pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

void EndSignals::Listen() {
  if (file_ < 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(file_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
    signalfd_siginfo told{};
    if (read(file_, &told, sizeof told) != sizeof told) return;
    due_ = static_cast<int>(told.ssi_signo);
    Deliver();
  });
}

void EndSignals::Deliver() {
  EndRequest request(due_);
  QCoreApplication::sendEvent(QCoreApplication::instance(), &request);
  if (request.isAccepted()) return;
  QTimer::singleShot(kRetryMilliseconds, notifier_.get(), [this] { Deliver(); });
}

}  // namespace parlate

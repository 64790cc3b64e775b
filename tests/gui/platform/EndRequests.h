#pragma once

#include <QCoreApplication>
#include <QTest>
#include <vector>

#include "platform/EndSignals.h"

namespace parlate {

/// Takes the requests of the application, the first ones with a refusal.
class EndRequests : public QObject {
 public:
  explicit EndRequests(int refusals = 0) : refusals_(refusals) { qApp->installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != EndRequest::EventType()) return false;
    if (refusals_ > 0) {
      --refusals_;
      event->ignore();
    } else {
      taken.push_back(static_cast<EndRequest*>(event)->Signal());
    }
    return true;
  }
  bool Hears(std::size_t count) {
    return QTest::qWaitFor([&] { return taken.size() >= count; });
  }

  std::vector<int> taken;

 private:
  int refusals_;
};

}  // namespace parlate

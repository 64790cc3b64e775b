#pragma once

#include <QEvent>
#include <QWidget>

namespace parlate {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget& watched) { watched.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints;
    return false;
  }

  int paints = 0;
};

}  // namespace parlate

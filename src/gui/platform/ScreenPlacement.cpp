#include "platform/ScreenPlacement.h"

#include <QGuiApplication>
#include <QScreen>

namespace parlate {

QRect OnScreen(QRect wanted) {
  const QScreen* screen = QGuiApplication::screenAt(wanted.center());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return wanted;
  const QRect room = screen->availableGeometry();
  wanted.setSize(wanted.size().boundedTo(room.size()));
  wanted.moveLeft(qBound(room.left(), wanted.left(), room.right() + 1 - wanted.width()));
  wanted.moveTop(qBound(room.top(), wanted.top(), room.bottom() + 1 - wanted.height()));
  return wanted;
}

QRect ClearOf(QRect window, const QRect& place) {
  if (!window.intersects(place)) return window;
  const QScreen* screen = QGuiApplication::screenAt(place.center());
  if (screen == nullptr) return window;
  const QRect room = screen->availableGeometry();
  if (place.bottom() + window.height() <= room.bottom()) {
    window.moveTop(place.bottom() + 1);
  } else if (place.top() - window.height() >= room.top()) {
    window.moveBottom(place.top() - 1);
  }
  return window;
}

QRect CentredOnScreen(const QSize& size) {
  QRect place(QPoint(0, 0), size);
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    place.moveCenter(screen->geometry().center());
  }
  return OnScreen(place);
}

}  // namespace parlate

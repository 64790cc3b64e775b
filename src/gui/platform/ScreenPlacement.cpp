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

QRect CentredOnScreen(const QSize& size) {
  QRect place(QPoint(0, 0), size);
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    place.moveCenter(screen->geometry().center());
  }
  return OnScreen(place);
}

}  // namespace parlate

#pragma once

#include <QRect>

namespace parlate {

/// The place of a window that was stored for a screen which is gone, or larger: whole and in sight.
[[nodiscard]] QRect OnScreen(QRect wanted);

/// Where a window that stands at `window` leaves `place` in sight: where it is if it does, or else
/// just under the place or over it. It stays where it is on a screen without the room.
[[nodiscard]] QRect ClearOf(QRect window, const QRect& place);

/// A window of that size in the middle of the screen.
[[nodiscard]] QRect CentredOnScreen(const QSize& size);

}  // namespace parlate

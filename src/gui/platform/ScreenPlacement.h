#pragma once

#include <QRect>

namespace parlate {

/// The place of a window that was stored for a screen which is gone, or larger: whole and in sight.
[[nodiscard]] QRect OnScreen(QRect wanted);

/// A window of that size in the middle of the screen.
[[nodiscard]] QRect CentredOnScreen(const QSize& size);

}  // namespace parlate

#pragma once

#include <cstdint>

namespace parlate {

/// The settings and the forms measure in twips, 1440 to the inch, and a pixel of the toolkit is a
/// 96th of an inch whatever the screen's scale.
inline constexpr int kTwipsPerPixel = 15;

/// The nearest whole pixel; of two equally near ones the even one.
[[nodiscard]] int PixelsFromTwips(double twips);

/// Stored twips are signed 16-bit numbers, and what lies beyond them stops at -32768 or 32767: a
/// window on a far screen is stored as near to its place as can be. The nearest whole twip; of two
/// equally near ones the even one.
[[nodiscard]] std::int16_t StoredTwips(double twips);

/// The same from pixels.
[[nodiscard]] std::int16_t TwipsFromPixels(double pixels);

}  // namespace parlate

#include "platform/TwipsConversion.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace parlate {

namespace {

template <class Integer>
Integer Nearest(double value) {
  const auto low = static_cast<double>(std::numeric_limits<Integer>::min());
  const auto high = static_cast<double>(std::numeric_limits<Integer>::max());
  return static_cast<Integer>(std::clamp(std::nearbyint(value), low, high));
}

}  // namespace

int PixelsFromTwips(double twips) { return Nearest<int>(twips / kTwipsPerPixel); }

std::int16_t StoredTwips(double twips) { return Nearest<std::int16_t>(twips); }

std::int16_t TwipsFromPixels(double pixels) { return StoredTwips(pixels * kTwipsPerPixel); }

}  // namespace parlate

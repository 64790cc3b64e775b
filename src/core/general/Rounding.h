#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "general/RuntimeError.h"

namespace parlate {

/// Rounds half to even into a signed integer type; RuntimeError 6 outside of its range.
template <class Integer>
[[nodiscard]] Integer RoundTo(double value) {
  const double rounded = std::nearbyint(value);
  const auto low = static_cast<double>(std::numeric_limits<Integer>::min());
  const auto high = static_cast<double>(std::numeric_limits<Integer>::max());
  if (!(rounded >= low && rounded <= high)) throw RuntimeError(RuntimeError::kOverflow);
  return static_cast<Integer>(rounded);
}

/// Narrows an integer; RuntimeError 6 if it does not fit.
template <class Integer, class Wide>
[[nodiscard]] Integer NarrowTo(Wide value) {
  if (!std::in_range<Integer>(value)) throw RuntimeError(RuntimeError::kOverflow);
  return static_cast<Integer>(value);
}

}  // namespace parlate

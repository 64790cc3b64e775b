#pragma once

#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace parlate {

/// The number with the fewest digits that give the same double again: 2, 1.5, -1.25, 100000. Only a
/// very large or a very small one has an exponent: 1e+15, 1e-05.
[[nodiscard]] inline std::string FormatDouble(double value) {
  constexpr double kSmallestPlain = 1e-4;
  constexpr double kFirstTooLarge = 1e15;
  const double size = std::fabs(value);
  const bool plain = value == 0 || (size >= kSmallestPlain && size < kFirstTooLarge);
  char buffer[32];
  const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
  const auto end = std::to_chars(buffer, buffer + sizeof(buffer), value, format).ptr;
  return {buffer, end};
}

/// The number of a decimal text with nothing before or behind it; nothing for any other text.
[[nodiscard]] inline std::optional<std::int32_t> ParseInt32(std::string_view text) {
  std::int32_t value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc{} || stop != end) return std::nullopt;
  return value;
}

}  // namespace parlate

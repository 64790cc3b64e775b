#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace parlate {

/// The shortest text that gives the same double again, in its general form: 2, 1.5, -1.25.
[[nodiscard]] inline std::string FormatDouble(double value) {
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof(buffer), value).ptr;
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

#pragma once

#include <cstdint>
#include <string_view>

namespace parlate {

/// The signed 32-bit number of a text that a user typed. Blanks around it do not count, a fraction
/// is rounded half to even. RuntimeError 13 for a text that is no number, 6 beyond 32 bits.
[[nodiscard]] std::int32_t NumberOfText(std::string_view text);

/// The number that a text begins with, blanks before it aside, and 0 for a text that begins with
/// none. A fraction is rounded half to even. RuntimeError 6 beyond 32 bits.
[[nodiscard]] std::int32_t NumericValue(std::string_view text);

}  // namespace parlate

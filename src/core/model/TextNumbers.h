#pragma once

#include <cstdint>
#include <string_view>

namespace parlate {

/// The signed 32-bit number of a text that a user typed. Blanks around it do not count, a fraction
/// is rounded half to even. RuntimeError 13 for a text that is no number, 6 beyond 32 bits.
[[nodiscard]] std::int32_t NumberOfText(std::string_view text);

}  // namespace parlate

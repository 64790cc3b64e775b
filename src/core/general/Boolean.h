#pragma once

#include <cstdint>
#include <string>

namespace parlate {

/// The 16-bit boolean of the model: false is 0, true is -1.
class Boolean {
 public:
  constexpr Boolean() = default;
  constexpr Boolean(bool value) : raw_(value ? kTrue : kFalse) {}  // NOLINT: meant to be implicit
  constexpr operator bool() const { return raw_ != kFalse; }       // NOLINT: meant to be implicit

  /// 0 or -1, as it stands in memory.
  [[nodiscard]] constexpr std::int16_t Raw() const { return raw_; }

 private:
  static constexpr std::int16_t kTrue = -1;
  static constexpr std::int16_t kFalse = 0;

  std::int16_t raw_ = kFalse;
};

/// "True" for -1, "False" for anything else.
[[nodiscard]] inline std::string BoolToString(std::int16_t value) {
  return value == -1 ? "True" : "False";
}

/// "True" or "False".
[[nodiscard]] inline std::string BoolToString(Boolean value) { return BoolToString(value.Raw()); }

/// Any other type would be taken for a number, in which true is 1.
template <class Other>
std::string BoolToString(Other value) = delete;

}  // namespace parlate

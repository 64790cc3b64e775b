#include "model/TextNumbers.h"

#include <charconv>
#include <system_error>

#include "general/Rounding.h"

namespace parlate {

namespace {

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace

std::int32_t NumberOfText(std::string_view text) {
  std::string_view number = Trimmed(text);
  if (number.size() > 1 && number[0] == '+' && number[1] != '-') number.remove_prefix(1);
  double value = 0;
  const char* end = number.data() + number.size();
  const auto [stop, error] = std::from_chars(number.data(), end, value);
  const bool named = number.find_first_of("nN") != std::string_view::npos;  // "nan" and "inf"
  if (error == std::errc::invalid_argument || stop != end || named) {
    throw RuntimeError(RuntimeError::kTypeMismatch);
  }
  if (error == std::errc::result_out_of_range) throw RuntimeError(RuntimeError::kOverflow);
  return RoundTo<std::int32_t>(value);
}

std::int32_t NumericValue(std::string_view text) {
  std::string_view number = Trimmed(text);
  if (number.starts_with('+') && !number.starts_with("+-")) number.remove_prefix(1);
  const std::size_t sign = number.starts_with('-') ? 1 : 0;
  const bool begins = number.find_first_of("0123456789.", sign) == sign;  // not "nan" and "inf"
  double value = 0;
  if (!begins) return 0;
  // Digits alone count: "1e3" begins with 1.
  const auto error =
      std::from_chars(number.data(), number.data() + number.size(), value, std::chars_format::fixed)
          .ec;
  if (error == std::errc::result_out_of_range) throw RuntimeError(RuntimeError::kOverflow);
  return RoundTo<std::int32_t>(value);
}

}  // namespace parlate

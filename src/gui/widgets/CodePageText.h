#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace parlate {

/// The text of the core, windows-1252 with one byte a character, as Qt shows it. The five bytes
/// without a character (81 8D 8F 90 9D) are the control characters of the same number.
[[nodiscard]] QString ToQString(std::string_view codePage);

/// As ToQString, with line breaks, tabs and other control characters below 20 as blanks.
[[nodiscard]] QString ToSingleLine(std::string_view codePage);

/// The text of a Qt control for the core; a character outside the code page becomes "?".
[[nodiscard]] std::string FromQString(const QString& text);

}  // namespace parlate

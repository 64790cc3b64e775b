#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace parlate {

/// Text of the core is windows-1252, one byte a character, all 256 values in use: the five that
/// the code page leaves open (81, 8D, 8F, 90, 9D) stand for U+0081 and so on.

/// The Unicode code point of a code-page byte.
[[nodiscard]] char16_t CodePoint(unsigned char byte);

/// The code-page byte of a code point, or "?" for a character that the code page lacks.
[[nodiscard]] char CodePageByte(char32_t codePoint);

[[nodiscard]] std::string ToUtf8(std::string_view codePageText);

/// A character that the code page lacks, and a malformed sequence, becomes "?".
[[nodiscard]] std::string FromUtf8(std::string_view utf8);

/// One character without its case: A to Z, C0 to DE but for D7, and the pairs of 8C, 8A, 8E, 9F.
[[nodiscard]] char FoldCase(char character);

/// A text without its case, byte by byte.
[[nodiscard]] std::string FoldCase(std::string_view text);

/// A UTF-8 text without the case of the letters that the code page has. All others, and what is no
/// UTF-8, stay as they are, so that different texts do not become the same.
[[nodiscard]] std::string FoldCaseOfUtf8(std::string_view utf8);

/// A text in capitals, as far as the code page has them.
[[nodiscard]] std::string UpperCase(std::string_view text);

/// Whether two texts are equal without regard to case.
[[nodiscard]] bool EqualNoCase(std::string_view left, std::string_view right);

/// Whether `left` stands before `right` after folding, compared by code-page byte.
[[nodiscard]] bool LessNoCase(std::string_view left, std::string_view right);

/// A hash in which texts that differ in case alone agree.
[[nodiscard]] std::uint32_t HashNoCase(std::string_view text);

/// Whether `searched` occurs in `text`: byte by byte, or without regard to case.
enum class CompareMethod : std::int32_t { Binary = 0, Text = 1 };
[[nodiscard]] bool Contains(std::string_view text, std::string_view searched, CompareMethod method);

/// True for digits, letters A to Z and a to z, "-", "_" and backspace (8).
[[nodiscard]] bool IsValidNameChar(int code);

/// True if every character is a valid name character; an empty text passes.
[[nodiscard]] bool IsValidName(std::string_view text);

}  // namespace parlate

#include "general/CodePage.h"

#include <algorithm>
#include <cstring>

namespace parlate {

namespace {

// The range 80 to 9F; the rest of the code page equals Latin-1.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<char, 256> MakeFoldTable() {
  std::array<char, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) {
    std::size_t folded = i;
    const bool latin = i >= 'A' && i <= 'Z';
    const bool accented = i >= 0xC0 && i <= 0xDE && i != 0xD7;  // D7 is the multiplication sign
    if (latin || accented) folded = i + 0x20;
    if (i == 0x8A || i == 0x8C || i == 0x8E) folded = i + 0x10;
    if (i == 0x9F) folded = 0xFF;
    table[i] = static_cast<char>(static_cast<unsigned char>(folded));
  }
  return table;
}

constexpr std::array<char, 256> kFold = MakeFoldTable();

void AppendUtf8(std::string& out, char16_t codePoint) {
  if (codePoint < 0x80) {
    out += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    out += static_cast<char>(0xC0 | (codePoint >> 6));
    out += static_cast<char>(0x80 | (codePoint & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (codePoint >> 12));
    out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (codePoint & 0x3F));
  }
}

/// Takes one code point off the front of `utf8`; U+FFFD, and one byte off, for a bad sequence.
char32_t TakeCodePoint(std::string_view& utf8) {
  constexpr char32_t kReplacement = 0xFFFD;
  const auto lead = static_cast<unsigned char>(utf8.front());
  std::size_t length = 1;
  char32_t codePoint = lead;
  if (lead >= 0xF0 && lead < 0xF8) {
    length = 4;
    codePoint = lead & 0x07U;
  } else if (lead >= 0xE0) {
    length = 3;
    codePoint = lead & 0x0FU;
  } else if (lead >= 0xC0) {
    length = 2;
    codePoint = lead & 0x1FU;
  } else if (lead >= 0x80) {
    utf8.remove_prefix(1);
    return kReplacement;
  }
  bool whole = utf8.size() >= length && lead < 0xF8;
  for (std::size_t i = 1; whole && i < length; ++i) {
    const auto next = static_cast<unsigned char>(utf8[i]);
    whole = (next & 0xC0U) == 0x80U;
    codePoint = (codePoint << 6U) | (next & 0x3FU);
  }
  utf8.remove_prefix(whole ? length : 1);
  return whole ? codePoint : kReplacement;
}

bool EqualFolded(char left, char right) { return FoldCase(left) == FoldCase(right); }

}  // namespace

char16_t CodePoint(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80U] : byte;
}

char CodePageByte(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint < 0x100)) {
    return static_cast<char>(static_cast<unsigned char>(codePoint));
  }
  const auto* const found = std::find(kHighControls.begin(), kHighControls.end(), codePoint);
  if (found == kHighControls.end()) return '?';
  return static_cast<char>(0x80 + (found - kHighControls.begin()));
}

std::string ToUtf8(std::string_view codePageText) {
  std::string out;
  out.reserve(codePageText.size());
  for (const char c : codePageText) AppendUtf8(out, CodePoint(static_cast<unsigned char>(c)));
  return out;
}

std::string FromUtf8(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  while (!utf8.empty()) out += CodePageByte(TakeCodePoint(utf8));
  return out;
}

char FoldCase(char character) { return kFold[static_cast<unsigned char>(character)]; }

std::string FoldCase(std::string_view text) {
  std::string folded(text);
  for (char& c : folded) c = FoldCase(c);
  return folded;
}

bool EqualNoCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), EqualFolded);
}

bool LessNoCase(std::string_view left, std::string_view right) {
  const std::size_t common = std::min(left.size(), right.size());
  std::size_t i = 0;
  // Names that are sorted mostly begin alike, byte for byte.
  std::uint64_t ofLeft = 0;
  std::uint64_t ofRight = 0;
  for (; i + sizeof(ofLeft) <= common; i += sizeof(ofLeft)) {
    std::memcpy(&ofLeft, left.data() + i, sizeof(ofLeft));
    std::memcpy(&ofRight, right.data() + i, sizeof(ofRight));
    if (ofLeft != ofRight) break;
  }
  for (; i < common; ++i) {
    const auto leftByte = static_cast<unsigned char>(FoldCase(left[i]));
    const auto rightByte = static_cast<unsigned char>(FoldCase(right[i]));
    if (leftByte != rightByte) return leftByte < rightByte;
  }
  return left.size() < right.size();
}

std::uint32_t HashNoCase(std::string_view text) {
  std::uint32_t hash = 2166136261U;  // FNV-1a
  for (const char c : text) {
    hash ^= static_cast<unsigned char>(FoldCase(c));
    hash *= 16777619U;
  }
  return hash;
}

bool Contains(std::string_view text, std::string_view searched, CompareMethod method) {
  if (method == CompareMethod::Binary) return text.find(searched) != std::string_view::npos;
  return std::search(text.begin(), text.end(), searched.begin(), searched.end(), EqualFolded) !=
             text.end() ||
         searched.empty();
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    const auto* const capital = std::find_if(kFold.begin(), kFold.end(), [&](const char& folded) {
      return folded == c && static_cast<char>(&folded - kFold.data()) != c;
    });
    if (capital != kFold.end()) c = static_cast<char>(capital - kFold.begin());
  }
  return upper;
}

bool IsValidNameChar(int code) {
  return (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') ||
         (code >= 'a' && code <= 'z') || code == '-' || code == '_' || code == 8;
}

bool IsValidName(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return IsValidNameChar(static_cast<unsigned char>(c)); });
}

}  // namespace parlate

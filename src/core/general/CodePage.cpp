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

/// The other character of a pair that differs in case, or the character itself: no three characters
/// fold to one.
constexpr std::array<char, 256> MakeOtherCaseTable() {
  std::array<char, 256> table{};
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = kFold[i];
  for (std::size_t i = 0; i < table.size(); ++i) {
    const auto folded = static_cast<unsigned char>(kFold[i]);
    if (folded != i) table[folded] = static_cast<char>(static_cast<unsigned char>(i));
  }
  return table;
}

constexpr std::array<char, 256> kOtherCase = MakeOtherCaseTable();

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
  // In more bytes than it takes, a letter is malformed too.
  constexpr std::array<char32_t, 5> kLeastOfLength = {0, 0, 0x80, 0x800, 0x10000};
  whole = whole && codePoint >= kLeastOfLength[length];
  utf8.remove_prefix(whole ? length : 1);
  return whole ? codePoint : kReplacement;
}

bool EqualFolded(char left, char right) { return FoldCase(left) == FoldCase(right); }

/// Eight characters side by side.
using Eight = std::uint64_t;
constexpr std::size_t kBlock = sizeof(Eight);
constexpr Eight kLowBits = 0x0101010101010101;
constexpr Eight kHighBits = 0x8080808080808080;

Eight Read(const char* text) {
  Eight eight = 0;
  std::memcpy(&eight, text, sizeof(eight));
  return eight;
}

/// A character in either case.
class EitherCase {
 public:
  explicit EitherCase(char character)
      : one_(character), other_(kOtherCase[static_cast<unsigned char>(character)]) {}

  [[nodiscard]] bool Is(char c) const { return c == one_ || c == other_; }
  /// The high bit of each of eight characters that is this one. Another one may be marked besides.
  [[nodiscard]] Eight Mark(Eight eight) const {
    return MarkZero(eight ^ allOne_) | MarkZero(eight ^ allOther_);
  }

 private:
  static Eight MarkZero(Eight eight) { return (eight - kLowBits) & ~eight & kHighBits; }

  char one_;
  char other_;
  Eight allOne_ = kLowBits * static_cast<unsigned char>(one_);
  Eight allOther_ = kLowBits * static_cast<unsigned char>(other_);
};

bool ContainsNoCase(std::string_view text, std::string_view searched) {
  if (searched.empty()) return true;
  if (searched.size() > text.size()) return false;
  const std::size_t toLast = searched.size() - 1;
  const std::size_t places = text.size() - toLast;
  const EitherCase first(searched.front());
  const EitherCase last(searched.back());
  const auto beginsIn = [&](std::size_t from, std::size_t to) {
    for (std::size_t at = from; at < to; ++at) {
      if (!first.Is(text[at]) || !last.Is(text[at + toLast])) continue;
      if (EqualNoCase(text.substr(at, searched.size()), searched)) return true;
    }
    return false;
  };
  if (places < kBlock) return beginsIn(0, places);
  for (std::size_t next = 0; next < places; next += kBlock) {
    const std::size_t at = std::min(next, places - kBlock);  // the last two may overlap
    const char* begins = text.data() + at;
    const Eight marked = first.Mark(Read(begins)) & last.Mark(Read(begins + toLast));
    if (marked != 0 && beginsIn(at, at + kBlock)) return true;
  }
  return false;
}

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

std::string FoldCaseOfUtf8(std::string_view utf8) {
  std::string folded;
  folded.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::string_view before = utf8;
    const char32_t codePoint = TakeCodePoint(utf8);
    const char byte = CodePageByte(codePoint);
    if (CodePoint(static_cast<unsigned char>(byte)) == codePoint) {
      AppendUtf8(folded, CodePoint(static_cast<unsigned char>(FoldCase(byte))));
    } else {
      folded += before.substr(0, before.size() - utf8.size());
    }
  }
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
  return ContainsNoCase(text, searched);
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

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "general/CodePage.h"

namespace parlate {
namespace {

constexpr int kBytes = 256;

char Byte(int value) { return static_cast<char>(static_cast<unsigned char>(value)); }

int ValueOf(char byte) { return static_cast<unsigned char>(byte); }

std::string AllBytes() {
  std::string all;
  for (int i = 0; i < kBytes; ++i) all += Byte(i);
  return all;
}

/// The characters that differ from Latin-1, as the code page is published.
const std::map<int, std::string>& HighCharacters() {
  static const std::map<int, std::string> characters = {
      {0x80, "€"}, {0x82, "‚"}, {0x83, "ƒ"}, {0x84, "„"}, {0x85, "…"}, {0x86, "†"}, {0x87, "‡"},
      {0x88, "ˆ"}, {0x89, "‰"}, {0x8A, "Š"}, {0x8B, "‹"}, {0x8C, "Œ"}, {0x8E, "Ž"}, {0x91, "‘"},
      {0x92, "’"}, {0x93, "“"}, {0x94, "”"}, {0x95, "•"}, {0x96, "–"}, {0x97, "—"}, {0x98, "˜"},
      {0x99, "™"}, {0x9A, "š"}, {0x9B, "›"}, {0x9C, "œ"}, {0x9E, "ž"}, {0x9F, "Ÿ"}};
  return characters;
}

std::string Utf8OfLatin1(int code) {
  if (code < 0x80) return {Byte(code)};
  return {Byte(0xC0 | (code >> 6)), Byte(0x80 | (code & 0x3F))};
}

TEST(CodePage, TurnsEveryByteIntoItsCharacterAndBack) {
  for (int i = 0; i < kBytes; ++i) {
    const auto high = HighCharacters().find(i);
    const std::string expected = high == HighCharacters().end() ? Utf8OfLatin1(i) : high->second;
    const std::string byte(1, Byte(i));
    EXPECT_EQ(ToUtf8(byte), expected) << "byte " << i;
    EXPECT_EQ(FromUtf8(expected), byte) << "byte " << i;
    EXPECT_EQ(CodePageByte(CodePoint(static_cast<unsigned char>(i))), Byte(i));
  }
}

TEST(CodePage, KeepsAllBytesThroughUtf8InOneText) {
  EXPECT_EQ(FromUtf8(ToUtf8(AllBytes())), AllBytes());
}

TEST(CodePage, PutsAQuestionMarkForACharacterItLacks) {
  EXPECT_EQ(FromUtf8("Ωa漢b😀"), "?a?b?");
  EXPECT_EQ(CodePageByte(0x80), '?') << "U+0080 is not the euro sign and has no byte";
  EXPECT_EQ(CodePageByte(0xFFFD), '?');
}

TEST(CodePage, PutsAQuestionMarkForEachByteThatIsNoUtf8) {
  EXPECT_EQ(FromUtf8("a\xFF"
                     "b"),
            "a?b");
  EXPECT_EQ(FromUtf8("a\x80"
                     "b"),
            "a?b");
  EXPECT_EQ(FromUtf8("\xC3"), "?");
  EXPECT_EQ(FromUtf8("\xE2\x82"), "??") << "a sequence cut short";
  EXPECT_EQ(FromUtf8("\xC3z"), "?z") << "the byte behind a bad lead is not swallowed";
}

TEST(CodePage, FoldsExactlyTheLetterPairs) {
  std::map<int, int> pairs = {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}};
  for (int i = 'A'; i <= 'Z'; ++i) pairs[i] = i + 0x20;
  for (int i = 0xC0; i <= 0xDE; ++i) {
    if (i != 0xD7) pairs[i] = i + 0x20;
  }
  EXPECT_EQ(pairs.size(), 26U + 30U + 4U);
  for (int i = 0; i < kBytes; ++i) {
    const auto pair = pairs.find(i);
    EXPECT_EQ(ValueOf(FoldCase(Byte(i))), pair == pairs.end() ? i : pair->second) << "byte " << i;
  }
}

TEST(CodePage, GivesTheSharpSAndTheTwoSignsNoPartner) {
  for (const int alone : {0xDF, 0xD7, 0xF7}) {
    for (int other = 0; other < kBytes; ++other) {
      const bool equal = EqualNoCase(std::string(1, Byte(alone)), std::string(1, Byte(other)));
      EXPECT_EQ(equal, alone == other) << alone << " and " << other;
    }
  }
}

TEST(CodePage, ComparesTextsWithoutTheirCase) {
  EXPECT_TRUE(
      EqualNoCase("Stra\xDF"
                  "e \xC9",
                  "STRA\xDF"
                  "E \xE9"));
  EXPECT_FALSE(EqualNoCase("Start", "Starts"));
  EXPECT_FALSE(EqualNoCase("Start", "Stast"));
  EXPECT_TRUE(EqualNoCase("", ""));
  EXPECT_EQ(FoldCase("A\x8C"
                     "b"),
            "a\x9C"
            "b");
  EXPECT_EQ(HashNoCase("\xC4"
                       "bc"),
            HashNoCase("\xE4"
                       "BC"));
  EXPECT_NE(HashNoCase("abc"), HashNoCase("abd"));
}

TEST(CodePage, OrdersTextsByFoldedByte) {
  EXPECT_TRUE(LessNoCase("alpha", "Beta"));
  EXPECT_FALSE(LessNoCase("Beta", "alpha"));
  EXPECT_FALSE(LessNoCase("Same", "sAME"));
  EXPECT_TRUE(LessNoCase("z", "\xC4")) << "bytes above 127 stand behind the letters";
  EXPECT_TRUE(LessNoCase("_", "A")) << "an upper letter counts as the lower one";
  EXPECT_TRUE(LessNoCase("ab", "abc"));
}

TEST(CodePage, SearchesByByteOrWithoutCase) {
  EXPECT_TRUE(Contains("Find the door", "the d", CompareMethod::Binary));
  EXPECT_FALSE(Contains("Find the door", "The d", CompareMethod::Binary));
  EXPECT_TRUE(Contains("Find the door", "THE D", CompareMethod::Text));
  EXPECT_TRUE(Contains("\xC9tude", "\xE9T", CompareMethod::Text));
  EXPECT_FALSE(Contains("Find", "Finder", CompareMethod::Text));
  EXPECT_EQ(static_cast<int>(CompareMethod::Binary), 0);
  EXPECT_EQ(static_cast<int>(CompareMethod::Text), 1);
}

TEST(CodePage, ATextIsFoundWhereverItStandsInALongOne) {
  for (const std::string searched : {"X", "Xy", "XyZ", "XyzzyAndMoreOfIt"}) {
    for (std::size_t length = 0; length < 70; ++length) {
      const std::string filler(length, 'x');
      EXPECT_EQ(Contains(filler, searched, CompareMethod::Text), searched == "X" && length > 0)
          << searched << " in " << length;
      for (std::size_t at = 0; at <= length; ++at) {
        std::string text(length, '-');
        text.insert(at, searched);
        EXPECT_TRUE(Contains(text, FoldCase(searched), CompareMethod::Text)) << at << text;
        EXPECT_TRUE(Contains(FoldCase(text), searched, CompareMethod::Text)) << at << text;
      }
    }
  }
}

TEST(CodePage, EveryPairOfCasesIsFoundBothWays) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string character(1, static_cast<char>(byte));
    const std::string longText = std::string(40, '\x01') + character;
    const std::string folded(1, FoldCase(static_cast<char>(byte)));
    EXPECT_TRUE(Contains(longText, folded, CompareMethod::Text)) << byte;
    EXPECT_TRUE(Contains(std::string(40, '\x01') + folded, character, CompareMethod::Text)) << byte;
  }
}

TEST(CodePage, AnEmptyTextOccursEverywhere) {
  EXPECT_TRUE(Contains("", "", CompareMethod::Text));
  EXPECT_TRUE(Contains("a", "", CompareMethod::Binary));
  EXPECT_FALSE(Contains("", "a", CompareMethod::Text));
}

TEST(ValidName, AllowsDigitsLettersDashUnderscoreAndBackspaceOnly) {
  const std::string allowed = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz-_\b";
  for (int i = -1; i <= kBytes; ++i) {
    const bool expected = i >= 0 && i < kBytes && allowed.find(Byte(i)) != std::string::npos;
    EXPECT_EQ(IsValidNameChar(i), expected) << "code " << i;
  }
  EXPECT_TRUE(IsValidName("M01_Meet-Bob"));
  EXPECT_TRUE(IsValidName(""));
  EXPECT_FALSE(IsValidName("Meet Bob"));
  EXPECT_FALSE(IsValidName("Ren\xE9"));
}

}  // namespace
}  // namespace parlate

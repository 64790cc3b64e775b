#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <vector>

#include "shell/LineBreaker.h"

namespace parlate {
namespace {

// Every character is ten pixels wide, so a line of 100 pixels holds ten characters.
double TenPixelsEach(std::string_view run) { return 10.0 * static_cast<double>(run.size()); }

std::vector<std::string> LinesOf(const std::string& text, int width) {
  LineBreaker breaker(TenPixelsEach);
  std::vector<std::string> lines;
  for (const TextRange& line : breaker.Lines(text, width)) {
    lines.push_back(text.substr(line.begin, line.end - line.begin));
  }
  EXPECT_EQ(breaker.CountLines(text, width), lines.size());
  return lines;
}

using Lines = std::vector<std::string>;

TEST(LineBreaker, AnEmptyTextHasNoLine) { EXPECT_EQ(LinesOf("", 100), Lines{}); }

TEST(LineBreaker, ATextThatFitsIsOneLine) {
  EXPECT_EQ(LinesOf("ab cd efgh", 100), Lines{"ab cd efgh"});
}

TEST(LineBreaker, WrapsAtTheLastBlankThatFits) {
  EXPECT_EQ(LinesOf("ab cd efghi", 100), (Lines{"ab cd", "efghi"}));
  EXPECT_EQ(LinesOf("one two three four", 100), (Lines{"one two", "three four"}));
}

TEST(LineBreaker, LeavesTheBlanksAtAWrapOutOfBothLines) {
  EXPECT_EQ(LinesOf("abcdefgh   ijk", 100), (Lines{"abcdefgh", "ijk"}));
  EXPECT_EQ(LinesOf("abcdefghij ", 100), Lines{"abcdefghij"});
}

TEST(LineBreaker, WrapsAtATab) {
  EXPECT_EQ(LinesOf("abcdef\tghijk", 100), (Lines{"abcdef", "ghijk"}));
}

TEST(LineBreaker, ANoBreakSpaceIsPartOfItsWord) {
  EXPECT_EQ(LinesOf("abcdef gh\xA0ij", 100), (Lines{"abcdef", "gh\xA0ij"}));
}

TEST(LineBreaker, KeepsTheIndentOfALine) { EXPECT_EQ(LinesOf("  ab cd", 100), Lines{"  ab cd"}); }

TEST(LineBreaker, DropsAnIndentThatLeavesNoRoomForTheFirstWord) {
  EXPECT_EQ(LinesOf("      abcdef gh", 100), Lines{"abcdef gh"});
}

TEST(LineBreaker, EveryKindOfLineBreakEndsALine) {
  EXPECT_EQ(LinesOf("a\rb\nc\r\nd", 100), (Lines{"a", "b", "c", "d"}));
}

TEST(LineBreaker, ALineFeedAheadOfACarriageReturnIsTwoBreaks) {
  EXPECT_EQ(LinesOf("a\n\rb", 100), (Lines{"a", "", "b"}));
}

TEST(LineBreaker, ABreakAtTheEndAddsNoEmptyLine) {
  EXPECT_EQ(LinesOf("a\r", 100), Lines{"a"});
  EXPECT_EQ(LinesOf("a\n", 100), Lines{"a"});
  EXPECT_EQ(LinesOf("a\r\n", 100), Lines{"a"});
  EXPECT_EQ(LinesOf("a\r\r", 100), (Lines{"a", ""}));
}

TEST(LineBreaker, EmptyLinesAreKept) {
  EXPECT_EQ(LinesOf("\ra\r\rb", 100), (Lines{"", "a", "", "b"}));
  EXPECT_EQ(LinesOf("\r", 100), Lines{""});
  EXPECT_EQ(LinesOf("   \ra", 100), (Lines{"", "a"}));
}

TEST(LineBreaker, AWordWiderThanTheLineIsBrokenInside) {
  EXPECT_EQ(LinesOf("abcdefghijklmnopqrstuvwxy", 100),
            (Lines{"abcdefghij", "klmnopqrst", "uvwxy"}));
}

TEST(LineBreaker, AWideWordStartsALineAndItsRestIsFollowedByTheNextWords) {
  EXPECT_EQ(LinesOf("ab abcdefghijklm op qrstu", 100),
            (Lines{"ab", "abcdefghij", "klm op", "qrstu"}));
}

TEST(LineBreaker, BreaksAVeryLongWordLikeAShortOne) {
  const std::string word(205, 'x');
  const Lines lines = LinesOf(word, 100);
  ASSERT_EQ(lines.size(), 21U);
  EXPECT_EQ(lines[19], "xxxxxxxxxx");
  EXPECT_EQ(lines[20], "xxxxx");
}

TEST(LineBreaker, ALineNarrowerThanACharacterHoldsOne) {
  EXPECT_EQ(LinesOf("abc d", 3), (Lines{"a", "b", "c", "d"}));
}

TEST(LineBreaker, WithNoWidthOnlyHardBreaksCount) {
  EXPECT_EQ(LinesOf("a long text that goes on\rand on", 0),
            (Lines{"a long text that goes on", "and on"}));
  EXPECT_EQ(LinesOf("a long text that goes on\rand on", -7),
            (Lines{"a long text that goes on", "and on"}));
}

TEST(LineBreaker, RangesPointIntoTheText) {
  LineBreaker breaker(TenPixelsEach);
  EXPECT_EQ(breaker.Lines("ab\r\ncdefghij klm", 100),
            (std::vector<TextRange>{{0, 2}, {4, 12}, {13, 16}}));
}

TEST(LineBreaker, MeasuresEachWordOnce) {
  int measured = 0;
  LineBreaker breaker([&measured](std::string_view run) {
    ++measured;
    return TenPixelsEach(run);
  });
  EXPECT_EQ(breaker.CountLines("tick tock tick tock", 100), 2U);
  EXPECT_EQ(measured, 3) << "tick, tock and the blank between them";
  EXPECT_EQ(breaker.CountLines("tock tick", 40), 2U);
  EXPECT_EQ(measured, 3);
}

TEST(LineBreaker, MeasuresAnewOnceTheWidthsAreForgotten) {
  double each = 10;
  LineBreaker breaker(
      [&each](std::string_view run) { return each * static_cast<double>(run.size()); });
  EXPECT_EQ(breaker.CountLines("abc def", 70), 1U);
  each = 20;
  EXPECT_EQ(breaker.CountLines("abc def", 70), 1U);
  breaker.ForgetWidths();
  EXPECT_EQ(breaker.CountLines("abc def", 70), 2U);
}

TEST(LineBreaker, KeepsBreakingRightWithMoreWordsThanItKeepsWidthsOf) {
  LineBreaker breaker(TenPixelsEach);
  std::string text;
  for (int i = 100000; i < 200000; ++i) text += std::to_string(i) + ' ';
  // Six digits, a blank, six digits are 130 pixels: two words a line.
  EXPECT_EQ(breaker.CountLines(text, 130), 50000U);
}

TEST(LineBreaker, TakesTimeInProportionToTheText) {
  const auto secondsFor = [](std::size_t size) {
    LineBreaker breaker(TenPixelsEach);
    const std::string word(size, 'x');
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(breaker.CountLines(word, 10), size);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  };
  secondsFor(1000);
  // Four million steps are done in well under a second; their square would take hours.
  EXPECT_LT(secondsFor(4'000'000), 10.0);
}

}  // namespace
}  // namespace parlate

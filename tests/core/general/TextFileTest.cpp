#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "general/TextFile.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kWindow = std::size_t{256} * 1024;

/// The lines of a text, each read as it stands.
std::vector<std::string> LinesOf(std::string_view bytes) {
  MemorySource source(bytes);
  TextReader reader(source);
  std::vector<std::string> lines;
  std::string line;
  while (!reader.AtEnd()) {
    reader.ReadLine(line);
    lines.push_back(line);
    EXPECT_EQ(reader.LineNumber(), lines.size());
  }
  EXPECT_FALSE(reader.Failure());
  return lines;
}

int ErrorOfReading(TextReader& reader) {
  std::string line;
  try {
    reader.ReadLine(line);
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

/// Gives some bytes, and then a device error.
class FailingSource final : public ByteSource {
 public:
  explicit FailingSource(std::string bytes) : bytes_(std::move(bytes)) {}
  std::size_t Read(char* bytes, std::size_t) override {
    if (bytes_.empty()) throw RuntimeError(RuntimeError::kDeviceIoError);
    const std::size_t count = bytes_.copy(bytes, bytes_.size());
    bytes_.clear();
    return count;
  }
  [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }

 private:
  std::string bytes_;
};

TEST(TextReaderTest, AnEmptyFileHasNoLine) { EXPECT_THAT(LinesOf(""), IsEmpty()); }

TEST(TextReaderTest, ALineEndsWithBothCharactersOrWithEitherAlone) {
  EXPECT_THAT(LinesOf("a\r\nb\rc\nd\r\n"), ElementsAre("a", "b", "c", "d"));
}

TEST(TextReaderTest, ALineFeedAheadOfACarriageReturnEndsALineOfItsOwn) {
  EXPECT_THAT(LinesOf("a\n\rb\r\r\nc"), ElementsAre("a", "", "b", "", "c"));
}

TEST(TextReaderTest, TheLastLineNeedsNoEnd) {
  EXPECT_THAT(LinesOf("a\r\nb"), ElementsAre("a", "b"));
}

TEST(TextReaderTest, ALineEndAtTheEndStartsNoFurtherLine) {
  EXPECT_THAT(LinesOf("\r\n"), ElementsAre(""));
  EXPECT_THAT(LinesOf("a\r"), ElementsAre("a"));
}

TEST(TextReaderTest, AByteOrderMarkAndNulBytesAreText) {
  using std::string_literals::operator""s;
  EXPECT_THAT(LinesOf("\xEF\xBB\xBF+a\r\nb\0c\x1A\r\nd"s),
              ElementsAre("\xEF\xBB\xBF+a", "b\0c\x1A"s, "d"));
}

TEST(TextReaderTest, ALineEndIsOneWhereverTheWindowOfTheReaderEnds) {
  for (std::size_t length = kWindow - 3; length <= kWindow + 1; ++length) {
    const std::string text(length, 'x');
    EXPECT_THAT(LinesOf(text + "\r\nb\r\n"), ElementsAre(text, "b")) << length;
    EXPECT_THAT(LinesOf(text + "\rb"), ElementsAre(text, "b")) << length;
    EXPECT_THAT(LinesOf(text + "\r"), ElementsAre(text)) << length;
  }
}

TEST(TextReaderTest, ReadsALineOfAHundredMegabytes) {
  const std::string text(std::size_t{100} * 1024 * 1024, 'x');
  const std::vector<std::string> lines = LinesOf(text + "\r\nb");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0] == text);
  EXPECT_EQ(lines[1], "b");
}

TEST(TextReaderTest, PastTheEndIsAnErrorThatLeavesNoFailureBehind) {
  MemorySource source("a");
  TextReader reader(source);
  EXPECT_EQ(ErrorOfReading(reader), 0);
  EXPECT_EQ(ErrorOfReading(reader), 62);
  EXPECT_FALSE(reader.Failure());
  EXPECT_EQ(reader.LineNumber(), 1U);
}

TEST(TextReaderTest, ALineThatIsTooLongEndsTheReading) {
  MemorySource source("1234\r\n12345\r\n1\r\n");
  TextReader reader(source, 4);
  EXPECT_EQ(ErrorOfReading(reader), 0);
  EXPECT_EQ(ErrorOfReading(reader), 7);
  EXPECT_TRUE(reader.AtEnd());
  ASSERT_TRUE(reader.Failure());
  EXPECT_STREQ(reader.Failure()->what(), "line 2 is longer than 4 bytes");
  EXPECT_EQ(ErrorOfReading(reader), 7);
}

TEST(TextReaderTest, ADeviceErrorEndsTheReadingAndTheHalfLineIsLost) {
  FailingSource source("a\r\nb");
  TextReader reader(source);
  EXPECT_EQ(ErrorOfReading(reader), 0);
  EXPECT_FALSE(reader.AtEnd());
  EXPECT_EQ(ErrorOfReading(reader), 57);
  EXPECT_TRUE(reader.AtEnd());
  ASSERT_TRUE(reader.Failure());
  EXPECT_EQ(reader.Failure()->Number(), 57);
}

TEST(ReadNonBlankLineTest, TrimsBlanksAloneAndSkipsLinesOfThem) {
  MemorySource source("  \r\n\r\n  a b \r\n\t\r\nc\r\n   ");
  TextReader reader(source);
  std::string line = "before";
  ReadNonBlankLine(reader, line);
  EXPECT_EQ(line, "a b");
  EXPECT_EQ(reader.LineNumber(), 3U);
  ReadNonBlankLine(reader, line);
  EXPECT_EQ(line, "\t") << "a tab is no blank";
  ReadNonBlankLine(reader, line);
  EXPECT_EQ(line, "c");
  ReadNonBlankLine(reader, line);
  EXPECT_EQ(line, "") << "the last line holds blanks alone";
  EXPECT_TRUE(reader.AtEnd());
  line = "before";
  ReadNonBlankLine(reader, line);
  EXPECT_EQ(line, "") << "past the end";
}

TEST(ReadNonBlankLineTest, AFailureGivesAnEmptyLineAndIsNotRaised) {
  FailingSource source("half a line");
  TextReader reader(source);
  std::string line = "before";
  ReadNonBlankLine(reader, line);
  EXPECT_EQ(line, "");
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_TRUE(reader.Failure());
}

TEST(RemoveSpacesTest, TakesOutEveryBlankAndNothingElse) {
  std::string text = " [SPEECH:  Some One\t] ";
  RemoveSpaces(text);
  EXPECT_EQ(text, "[SPEECH:SomeOne\t]");
}

TEST(TextWriterTest, EveryLineEndsWithCarriageReturnAndLineFeed) {
  MemorySink sink;
  {
    TextWriter writer(sink);
    writer.WriteLine("a", std::string("b"), std::string_view("c"));
    writer.WriteLine();
    writer.WriteLine("two\nlines\r");
  }
  EXPECT_EQ(sink.Bytes(), "abc\r\n\r\ntwo\nlines\r\r\n");
}

TEST(TextWriterTest, LinesOfAnyLengthComeOutInOrder) {
  MemorySink sink;
  std::string expected;
  {
    TextWriter writer(sink);
    for (std::size_t length : {kWindow - 4, std::size_t{1}, kWindow - 2, kWindow - 1, 3 * kWindow,
                               std::size_t{0}, std::size_t{5}}) {
      const std::string text(length, static_cast<char>('a' + length % 26));
      writer.WriteLine(text, "-", text);
      expected.append(text).append("-").append(text).append("\r\n");
    }
  }
  EXPECT_TRUE(sink.Bytes() == expected);
}

TEST(TextWriterTest, AFullDiskIsRaisedOnceAndNotAgainAtTheEnd) {
  class FullDisk final : public ByteSink {
   public:
    void Write(const char*, std::size_t) override { throw RuntimeError(RuntimeError::kDiskFull); }
  };
  FullDisk disk;
  TextWriter writer(disk);
  writer.WriteLine("a");
  EXPECT_THROW(writer.Flush(), RuntimeError);
  writer.WriteLine("b");
}

}  // namespace
}  // namespace parlate

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <limits>

#include "general/BinaryFile.h"
#include "general/RuntimeError.h"
#include "support/FileBytes.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using testing::HasSubstr;
using testing_support::FileBytes;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

/// Runs `read` over the bytes and returns the error that it raises.
template <class Read>
RuntimeError ErrorOver(const std::string& bytes, Read read) {
  MemorySource source(bytes);
  BinaryReader reader(source);
  try {
    read(reader);
  } catch (const RuntimeError& error) {
    return error;
  }
  ADD_FAILURE() << "no error was raised";
  return RuntimeError(0);
}

TEST(BinaryReader, ReadsEachPrimitiveLittleEndian) {
  const FileBytes bytes =
      FileBytes(28).Raw("\x1A").I32(0x01020304).I32(-2).F64(-1234.5625).Str("caf\xE9").Str("");
  EXPECT_EQ(bytes.Bytes().substr(1, 4), "\x04\x03\x02\x01");
  MemorySource source(bytes.Bytes());
  BinaryReader reader(source);
  EXPECT_EQ(reader.ReadByte(), 0x1A);
  EXPECT_EQ(reader.ReadInt32(), 0x01020304);
  EXPECT_EQ(reader.ReadInt32(), -2);
  EXPECT_EQ(reader.ReadDouble(), -1234.5625);
  EXPECT_EQ(reader.ReadFileString(), "caf\xE9");
  EXPECT_EQ(reader.ReadFileString(), "");
  EXPECT_EQ(reader.Offset(), bytes.Size());
  EXPECT_EQ(reader.Remaining(), 0U);
}

TEST(BinaryReader, TakesAnyNonZeroValueAsTrue) {
  const FileBytes bytes = FileBytes(28).I32(0).I32(-1).I32(1).I32(0x10000);
  MemorySource source(bytes.Bytes());
  BinaryReader reader(source);
  EXPECT_EQ(reader.ReadFileBool().Raw(), 0);
  EXPECT_EQ(reader.ReadFileBool().Raw(), -1);
  EXPECT_EQ(reader.ReadFileBool().Raw(), -1);
  EXPECT_EQ(reader.ReadFileBool().Raw(), -1) << "a value whose low 16 bits are zero";
}

TEST(BinaryReader, KeepsDoublesThatAreNoNumbers) {
  const double infinity = std::numeric_limits<double>::infinity();
  const FileBytes bytes = FileBytes(28).F64(std::nan("")).F64(-infinity);
  MemorySource source(bytes.Bytes());
  BinaryReader reader(source);
  EXPECT_TRUE(std::isnan(reader.ReadDouble()));
  EXPECT_EQ(reader.ReadDouble(), -infinity);
}

TEST(BinaryReader, RaisesSixtyTwoWhereTheFileEnds) {
  const RuntimeError error = ErrorOver("12345678ab", [](BinaryReader& reader) {
    reader.ReadDouble();
    reader.ReadInt32();
  });
  EXPECT_EQ(error.Number(), 62);
  EXPECT_EQ(error.Offset(), 8U);
  EXPECT_EQ(error.Detail(), "the file ends where 4 more bytes are due");
}

TEST(BinaryReader, RefusesAStringThatRunsPastTheEnd) {
  const std::string bytes = FileBytes(28).I32(7).I32(70000).Raw("abc").Bytes();
  const RuntimeError error = ErrorOver(bytes, [](BinaryReader& reader) {
    reader.ReadInt32();
    (void)reader.ReadFileString();
  });
  EXPECT_EQ(error.Number(), 62);
  EXPECT_EQ(error.Offset(), 4U) << "the place of the length";
  EXPECT_EQ(error.Detail(), "string of 70000 bytes runs past the end of the file");
}

TEST(BinaryReader, RefusesANegativeLength) {
  const RuntimeError error = ErrorOver(FileBytes(28).I32(-1).Bytes(),
                                       [](BinaryReader& reader) { (void)reader.ReadText(); });
  EXPECT_EQ(error.Number(), 5);
  EXPECT_EQ(error.Offset(), 0U);
  EXPECT_EQ(error.Detail(), "string has the negative length -1");
}

TEST(BinaryReader, CountsUpToASignedSixteenBitLoop) {
  const FileBytes bytes = FileBytes(28).I32(32767).I32(0).I32(32768);
  MemorySource source(bytes.Bytes());
  BinaryReader reader(source);
  EXPECT_EQ(reader.ReadCount("rows"), 32767U);
  EXPECT_EQ(reader.ReadCount("rows"), 0U);
  EXPECT_EQ(reader.ReadCount("labels", 32768), 32768U);

  const auto count = [](BinaryReader& r) { r.ReadCount("events"); };
  const RuntimeError tooMany = ErrorOver(FileBytes(28).I32(32768).Bytes(), count);
  EXPECT_EQ(tooMany.Number(), 6);
  EXPECT_EQ(tooMany.Offset(), 0U);
  EXPECT_EQ(tooMany.Detail(), "the count says 32768 events, more than 32767");
  const RuntimeError negative = ErrorOver(FileBytes(28).I32(-5).Bytes(), count);
  EXPECT_EQ(negative.Number(), 5);
  EXPECT_EQ(negative.Detail(), "the count says -5 events");
}

TEST(BinaryReader, BelievesACountOnlyAsFarAsTheFileReaches) {
  const std::string bytes(100, 'x');
  MemorySource source(bytes);
  BinaryReader reader(source);
  EXPECT_EQ(reader.Plausible(5, 16), 5U);
  EXPECT_EQ(reader.Plausible(30000, 16), 6U);
  (void)reader.ReadBytes(95);
  EXPECT_EQ(reader.Plausible(30000, 16), 0U);
}

TEST(BinaryReader, ReadsUpToTheEndWithoutAnError) {
  MemorySource source("abc");
  BinaryReader reader(source);
  EXPECT_EQ(reader.ReadUpTo(25), "abc");
  EXPECT_EQ(reader.ReadUpTo(25), "");
}

/// Hands out a few bytes at a time, as a slow device would.
class DrippingSource final : public ByteSource {
 public:
  explicit DrippingSource(std::string bytes) : bytes_(std::move(bytes)) {}
  std::size_t Read(char* bytes, std::size_t size) override {
    const std::size_t count = std::min(size, bytes_.size() - position_);
    bytes_.copy(bytes, count, position_);
    position_ += count;
    return count;
  }
  [[nodiscard]] std::uint64_t Size() const override { return bytes_.size() + claimedTooMuch; }

  std::uint64_t claimedTooMuch = 0;

 private:
  std::string bytes_;
  std::size_t position_ = 0;
};

TEST(BinaryReader, ReadsTextsThatAreLongerThanItsWindow) {
  // Lengths round the window's size, so that fields lie across its edge.
  FileBytes bytes(28);
  std::vector<std::string> texts;
  for (const std::size_t size : {300000U, 262144U, 262143U, 17U, 600001U, 0U, 262140U}) {
    texts.emplace_back(size, static_cast<char>('a' + texts.size()));
    bytes.Str(texts.back()).I32(static_cast<std::int32_t>(size));
  }
  DrippingSource source(bytes.Bytes());
  BinaryReader reader(source);
  for (const std::string& text : texts) {
    ASSERT_TRUE(reader.ReadFileString() == text) << "text of " << text.size() << " bytes";
    ASSERT_EQ(reader.ReadInt32(), static_cast<std::int32_t>(text.size()));
  }
}

TEST(BinaryReader, NoticesAFileThatBecomesShorterWhileItIsRead) {
  DrippingSource source("12345678");
  source.claimedTooMuch = 100;
  BinaryReader reader(source);
  reader.ReadDouble();
  try {
    (void)reader.ReadBytes(50);
    FAIL() << "no error was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 62);
    EXPECT_EQ(error.Offset(), 8U);
    EXPECT_THAT(error.Detail(), HasSubstr("shorter while it was read"));
  }
}

int ErrorOfOpening(const std::string& path) {
  try {
    const FileSource source(path);
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(FileSource, SaysWhyAFileCannotBeOpened) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("file"), "bytes");
  EXPECT_EQ(ErrorOfOpening(folder.File("missing.con")), 53);
  EXPECT_EQ(ErrorOfOpening(folder.Path()), 75) << "a folder";
  EXPECT_EQ(ErrorOfOpening(folder.File("file/below")), 76) << "a file in place of a folder";
  EXPECT_EQ(ErrorOfOpening(folder.File("file")), 0);
}

TEST(FileSource, ReadsAFileFromItsStartToItsEnd) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("file"), "0123456789");
  FileSource source(folder.File("file"));
  EXPECT_EQ(source.Size(), 10U);
  std::string bytes(20, '.');
  EXPECT_EQ(source.Read(bytes.data(), 4), 4U);
  EXPECT_EQ(source.Read(bytes.data() + 4, 16), 6U);
  EXPECT_EQ(bytes, "0123456789..........");
  EXPECT_EQ(source.Read(bytes.data(), 5), 0U);
}

}  // namespace
}  // namespace parlate

#include <gtest/gtest.h>

#include <string>

#include "general/BinaryFile.h"
#include "general/RuntimeError.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using testing_support::ReadBytes;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

template <class Write>
std::string BytesOf(Write write) {
  MemorySink sink;
  BinaryWriter writer(sink);
  write(writer);
  writer.Flush();
  return sink.Bytes();
}

TEST(BinaryWriter, WritesEachPrimitiveLittleEndian) {
  using W = BinaryWriter;
  EXPECT_EQ(BytesOf([](W& w) { w.WriteByte(26); }), "\x1A");
  EXPECT_EQ(BytesOf([](W& w) { w.WriteInt32(0x01020304); }), "\x04\x03\x02\x01");
  EXPECT_EQ(BytesOf([](W& w) { w.WriteInt32(-2); }), "\xFE\xFF\xFF\xFF");
  // 1.5 is sign 0, exponent 3FF, fraction 8 and zeros.
  EXPECT_EQ(BytesOf([](W& w) { w.WriteDouble(1.5); }), std::string("\0\0\0\0\0\0\xF8\x3F", 8));
  EXPECT_EQ(BytesOf([](W& w) { w.WriteFileString("caf\xE9"); }),
            std::string("\x04\0\0\0caf\xE9", 8));
  EXPECT_EQ(BytesOf([](W& w) { w.WriteFileString(""); }), std::string(4, '\0'));
  EXPECT_EQ(BytesOf([](W& w) { w.WriteFileBool(true); }), "\xFF\xFF\xFF\xFF");
  EXPECT_EQ(BytesOf([](W& w) { w.WriteFileBool(false); }), std::string(4, '\0'));
}

TEST(BinaryWriter, WritesTextsThatAreLongerThanItsBuffer) {
  const std::string big(300000, 'b');
  const std::string edge(262143, 'e');
  const std::string bytes = BytesOf([&](BinaryWriter& writer) {
    writer.WriteBytes("first");
    writer.WriteBytes(big);
    writer.WriteByte('-');
    writer.WriteBytes(edge);
    writer.WriteInt32(0x2E2E2E2E);
  });
  EXPECT_TRUE(bytes == "first" + big + "-" + edge + "....");
}

/// Takes a number of bytes, and raises for the write that would go beyond.
class SmallDisk final : public ByteSink {
 public:
  explicit SmallDisk(std::size_t room) : room_(room) {}
  void Write(const char* bytes, std::size_t size) override {
    if (bytes_.size() + size > room_) throw RuntimeError(RuntimeError::kDiskFull);
    bytes_.append(bytes, size);
  }
  [[nodiscard]] const std::string& Bytes() const { return bytes_; }

 private:
  std::size_t room_;
  std::string bytes_;
};

TEST(BinaryWriter, HandsOnWhatWasWrittenBeforeAnotherFailure) {
  SmallDisk disk(100);
  try {
    BinaryWriter writer(disk);
    writer.WriteBytes("so far");
    throw RuntimeError(RuntimeError::kInvalidProcedureCall);
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 5);
  }
  EXPECT_EQ(disk.Bytes(), "so far");
}

TEST(BinaryWriter, RaisesAFullDiskOnceAndEndsInPeace) {
  SmallDisk disk(3);
  int raised = 0;
  {
    BinaryWriter writer(disk);
    writer.WriteBytes("four");
    try {
      writer.Flush();
    } catch (const RuntimeError& error) {
      raised = error.Number();
    }
  }
  EXPECT_EQ(raised, 61);
  EXPECT_EQ(disk.Bytes(), "") << "the bytes that did not fit are not tried again";
}

TEST(FileSink, LeavesTheBytesOfALongerPredecessorBehind) {
  const TemporaryFolder folder;
  const std::string path = folder.File("file.con");
  WriteBytes(path, "0123456789");
  {
    FileSink sink(path);
    sink.Write("ABC", 3);
  }
  EXPECT_EQ(ReadBytes(path), "ABC3456789");
}

TEST(FileSink, MakesAMissingFileAndSaysWhyItCannot) {
  const TemporaryFolder folder;
  { FileSink(folder.File("new")).Write("x", 1); }
  EXPECT_EQ(ReadBytes(folder.File("new")), "x");
  const auto errorOf = [](const std::string& path) {
    try {
      const FileSink sink(path);
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(errorOf(folder.File("none/new")), 76);
  EXPECT_EQ(errorOf(folder.Path()), 75);
}

TEST(FileSink, RaisesSixtyOneOnAFullDisk) {
  FileSink sink("/dev/full");
  try {
    sink.Write("x", 1);
    FAIL() << "no error was raised";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 61);
    EXPECT_EQ(error.Description(), "Disk full");
  }
}

}  // namespace
}  // namespace parlate

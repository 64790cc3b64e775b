#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "general/Boolean.h"

namespace parlate {

/// Bytes to read from, in order.
class ByteSource {
 public:
  virtual ~ByteSource() = default;
  /// Reads up to `size` bytes; fewer only at the end. RuntimeError 57 on a device error.
  virtual std::size_t Read(char* bytes, std::size_t size) = 0;
  /// Bytes in all, as far as is known when the reading begins.
  [[nodiscard]] virtual std::uint64_t Size() const = 0;
};

/// Bytes to write to, in order.
class ByteSink {
 public:
  virtual ~ByteSink() = default;
  /// Writes all bytes, or raises: 61 on a full disk, 57 on another device error.
  virtual void Write(const char* bytes, std::size_t size) = 0;
};

/// A file open for binary reading. It is read by read(2), never mapped: another program may cut
/// the file short at any time.
class FileSource final : public ByteSource {
 public:
  /// RuntimeError 53, 70, 75, 76 and so on when the file cannot be opened.
  explicit FileSource(const std::string& path);
  ~FileSource() override;
  FileSource(const FileSource&) = delete;
  FileSource& operator=(const FileSource&) = delete;
  std::size_t Read(char* bytes, std::size_t size) override;
  [[nodiscard]] std::uint64_t Size() const override { return size_; }

 private:
  int descriptor_;
  std::uint64_t size_ = 0;
};

class MemorySource final : public ByteSource {
 public:
  explicit MemorySource(std::string_view bytes) : bytes_(bytes) {}
  std::size_t Read(char* bytes, std::size_t size) override;
  [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }

 private:
  std::string_view bytes_;
  std::size_t position_ = 0;
};

/// A file open for binary writing, positioned at its start. Unless it is to be replaced it is not
/// cut short: the bytes of a longer predecessor stay behind the new end.
class FileSink final : public ByteSink {
 public:
  enum class Content { Keep, Replace };

  explicit FileSink(const std::string& path, Content content = Content::Keep);
  ~FileSink() override;
  FileSink(const FileSink&) = delete;
  FileSink& operator=(const FileSink&) = delete;
  void Write(const char* bytes, std::size_t size) override;

 private:
  int descriptor_;
};

class MemorySink final : public ByteSink {
 public:
  void Write(const char* bytes, std::size_t size) override { bytes_.append(bytes, size); }
  [[nodiscard]] const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

/// Reads the primitives of the conversation file, little-endian. The one place that knows the byte
/// order, the end of the file, and how much may be allocated for a length that was just read.
/// Each failure is a RuntimeError with its offset: 62 past the end, 5 for a negative length.
class BinaryReader {
 public:
  explicit BinaryReader(ByteSource& source);

  /// Bytes consumed so far.
  [[nodiscard]] std::uint64_t Offset() const { return base_ + position_; }
  /// Bytes between here and the end.
  [[nodiscard]] std::uint64_t Remaining() const { return size_ > Offset() ? size_ - Offset() : 0; }

  unsigned char ReadByte() { return static_cast<unsigned char>(*Take(1)); }

  std::int32_t ReadInt32() {
    std::uint32_t bits;
    std::memcpy(&bits, Take(sizeof(bits)), sizeof(bits));
    return static_cast<std::int32_t>(FromLittleEndian(bits));
  }

  double ReadDouble();

  /// An i32; any non-zero value is true.
  Boolean ReadFileBool() { return ReadInt32() != 0; }

  /// A length and that many bytes.
  std::string ReadFileString() { return std::string(ReadText()); }

  /// The same in place. A text that is too long for that gets just the room it needs, where
  /// assigning would make some to grow.
  void ReadFileString(std::string& text) {
    const std::string_view read = ReadText();
    if (read.size() <= text.capacity()) {
      text.assign(read);
    } else {
      text = std::string(read);
    }
  }

  /// The same without a copy; the view is good until the next read.
  std::string_view ReadText() {
    const std::int32_t length = ReadInt32();
    const bool inWindow = length >= 0 && static_cast<std::size_t>(length) <= limit_ - position_;
    if (!inWindow) RequireLength(length);
    return ReadBytes(static_cast<std::size_t>(length));
  }

  /// `count` bytes; the view is good until the next read.
  std::string_view ReadBytes(std::size_t count) { return {Take(count), count}; }

  /// Up to `count` bytes: fewer when the file is shorter.
  std::string_view ReadUpTo(std::size_t count);

  /// A count of records. Only what a signed 16-bit loop can count is legal: RuntimeError 6 above
  /// `most`, 5 for a negative count. `what` names the records in the error's text.
  std::size_t ReadCount(std::string_view what, std::int32_t most = INT16_MAX);

  /// As many of `count` records as the rest of the file can hold, if each takes `leastSize` bytes
  /// or more: what may be allocated ahead for a count that was just read.
  [[nodiscard]] std::size_t Plausible(std::size_t count, std::size_t leastSize) const {
    return static_cast<std::size_t>(std::min<std::uint64_t>(count, Remaining() / leastSize));
  }

 private:
  static std::uint32_t FromLittleEndian(std::uint32_t bits) {
    if constexpr (std::endian::native == std::endian::big) bits = __builtin_bswap32(bits);
    return bits;
  }

  const char* Take(std::size_t count) {
    if (limit_ - position_ < count) Fetch(count);
    const char* bytes = window_.data() + position_;
    position_ += count;
    return bytes;
  }

  /// Fails if a text of that length, which was just read, is not to be had.
  void RequireLength(std::int32_t length) const;
  void Fetch(std::size_t count);
  [[noreturn]] void Fail(int number, std::uint64_t offset, std::string detail) const;

  ByteSource& source_;
  std::uint64_t size_;
  std::uint64_t base_ = 0;  // offset in the file of the window's first byte
  std::vector<char> window_;
  std::size_t position_ = 0;
  std::size_t limit_ = 0;
};

/// Writes the primitives of the conversation file. What was written before a failure reaches the
/// sink when the writer ends.
class BinaryWriter {
 public:
  explicit BinaryWriter(ByteSink& sink);
  ~BinaryWriter();
  BinaryWriter(const BinaryWriter&) = delete;
  BinaryWriter& operator=(const BinaryWriter&) = delete;

  void WriteByte(unsigned char value) { *Make(1) = static_cast<char>(value); }

  void WriteInt32(std::int32_t value) {
    const std::uint32_t bits = ToLittleEndian(static_cast<std::uint32_t>(value));
    std::memcpy(Make(sizeof(bits)), &bits, sizeof(bits));
  }

  void WriteDouble(double value);

  /// The 16-bit value sign-extended: -1 or 0.
  void WriteFileBool(Boolean value) { WriteInt32(value.Raw()); }

  /// A length and that many bytes. RuntimeError 6 beyond a signed 32-bit length.
  void WriteFileString(std::string_view text);

  void WriteBytes(std::string_view bytes);

  /// Hands everything to the sink.
  void Flush();

 private:
  static std::uint32_t ToLittleEndian(std::uint32_t bits) {
    if constexpr (std::endian::native == std::endian::big) bits = __builtin_bswap32(bits);
    return bits;
  }

  char* Make(std::size_t count) {
    if (buffer_.size() - used_ < count) Flush();
    char* bytes = buffer_.data() + used_;
    used_ += count;
    return bytes;
  }

  ByteSink& sink_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
};

}  // namespace parlate

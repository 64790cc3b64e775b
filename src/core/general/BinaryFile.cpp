#include "general/BinaryFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "general/Rounding.h"
#include "general/RuntimeError.h"

namespace parlate {

namespace {

// Large enough that the system call vanishes, small enough to stay in the cache.
constexpr std::size_t kWindowSize = std::size_t{256} * 1024;

int OpenOrRaise(const std::string& path, int flags) {
  constexpr mode_t kMode = 0666;
  int descriptor;
  do {
    descriptor = ::open(path.c_str(), flags | O_CLOEXEC, kMode);  // NOLINT: a system interface
  } while (descriptor < 0 && errno == EINTR);
  if (descriptor >= 0) return descriptor;
  // A missing folder is told apart from a missing file only when a file is to be made.
  const bool folderMissing = errno == ENOENT && (flags & O_CREAT) != 0;
  throw RuntimeError(folderMissing ? RuntimeError::kPathNotFound : ErrorNumberOfErrno(errno));
}

}  // namespace

FileSource::FileSource(const std::string& path) : descriptor_(OpenOrRaise(path, O_RDONLY)) {
  struct stat status {};
  const bool known = ::fstat(descriptor_, &status) == 0;
  if (!known || S_ISDIR(status.st_mode)) {
    ::close(descriptor_);
    throw RuntimeError(RuntimeError::kPathFileAccessError);
  }
  size_ = static_cast<std::uint64_t>(std::max<off_t>(status.st_size, 0));
}

FileSource::~FileSource() { ::close(descriptor_); }

std::size_t FileSource::Read(char* bytes, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = ::read(descriptor_, bytes + done, size - done);
    if (got == 0) break;
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) throw RuntimeError(ErrorNumberOfErrno(errno));
    done += static_cast<std::size_t>(got);
  }
  return done;
}

std::size_t MemorySource::Read(char* bytes, std::size_t size) {
  const std::size_t count = std::min(size, bytes_.size() - position_);
  if (count != 0) std::memcpy(bytes, bytes_.data() + position_, count);
  position_ += count;
  return count;
}

FileSink::FileSink(const std::string& path, Content content)
    : descriptor_(
          OpenOrRaise(path, O_WRONLY | O_CREAT | (content == Content::Replace ? O_TRUNC : 0))) {}

FileSink::~FileSink() { ::close(descriptor_); }

void FileSink::Write(const char* bytes, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t put = ::write(descriptor_, bytes + done, size - done);
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) throw RuntimeError(ErrorNumberOfErrno(errno));
    done += static_cast<std::size_t>(put);
  }
}

BinaryReader::BinaryReader(ByteSource& source)
    : source_(source),
      size_(source.Size()),
      window_(static_cast<std::size_t>(std::min<std::uint64_t>(size_, kWindowSize))) {}

void BinaryReader::Fail(int number, std::uint64_t offset, std::string detail) const {
  RuntimeError error(number, std::move(detail));
  error.SetOffset(offset);
  throw error;
}

void BinaryReader::Fetch(std::size_t count) {
  if (count > Remaining()) {
    Fail(RuntimeError::kInputPastEndOfFile, std::min(Offset(), size_),
         "the file ends where " + std::to_string(count) + " more bytes are due");
  }
  std::copy(window_.begin() + static_cast<std::ptrdiff_t>(position_),
            window_.begin() + static_cast<std::ptrdiff_t>(limit_), window_.begin());
  base_ += position_;
  limit_ -= position_;
  position_ = 0;
  // A long text asks for room beyond the window; the file is known to be that long.
  if (window_.size() < count) window_.resize(count);
  limit_ += source_.Read(window_.data() + limit_, window_.size() - limit_);
  if (limit_ < count) {
    size_ = base_ + limit_;
    Fail(RuntimeError::kInputPastEndOfFile, size_, "the file has become shorter while it was read");
  }
}

double BinaryReader::ReadDouble() {
  std::uint64_t bits;
  std::memcpy(&bits, Take(sizeof(bits)), sizeof(bits));
  if constexpr (std::endian::native == std::endian::big) bits = __builtin_bswap64(bits);
  return std::bit_cast<double>(bits);
}

void BinaryReader::RequireLength(std::int32_t length) const {
  const std::uint64_t offset = Offset() - sizeof(length);
  if (length < 0) {
    Fail(RuntimeError::kInvalidProcedureCall, offset,
         "string has the negative length " + std::to_string(length));
  }
  if (static_cast<std::uint64_t>(length) > Remaining()) {
    Fail(RuntimeError::kInputPastEndOfFile, offset,
         "string of " + std::to_string(length) + " bytes runs past the end of the file");
  }
}

std::string_view BinaryReader::ReadUpTo(std::size_t count) {
  return ReadBytes(static_cast<std::size_t>(std::min<std::uint64_t>(count, Remaining())));
}

std::size_t BinaryReader::ReadCount(std::string_view what, std::int32_t most) {
  const std::uint64_t offset = Offset();
  const std::int32_t count = ReadInt32();
  if (count < 0 || count > most) {
    const std::string told = "the count says " + std::to_string(count) + " " + std::string(what);
    if (count < 0) Fail(RuntimeError::kInvalidProcedureCall, offset, told);
    Fail(RuntimeError::kOverflow, offset, told + ", more than " + std::to_string(most));
  }
  return static_cast<std::size_t>(count);
}

BinaryWriter::BinaryWriter(ByteSink& sink) : sink_(sink), buffer_(kWindowSize) {}

BinaryWriter::~BinaryWriter() {
  // The error that ended the writing is on its way already; a second one must not join it.
  ResumeNext([this] { Flush(); });
}

void BinaryWriter::WriteDouble(double value) {
  auto bits = std::bit_cast<std::uint64_t>(value);
  if constexpr (std::endian::native == std::endian::big) bits = __builtin_bswap64(bits);
  std::memcpy(Make(sizeof(bits)), &bits, sizeof(bits));
}

void BinaryWriter::WriteFileString(std::string_view text) {
  WriteInt32(NarrowTo<std::int32_t>(text.size()));
  WriteBytes(text);
}

void BinaryWriter::WriteBytes(std::string_view bytes) {
  if (bytes.size() > buffer_.size() - used_) {
    Flush();
    if (bytes.size() > buffer_.size()) {
      sink_.Write(bytes.data(), bytes.size());
      return;
    }
  }
  if (!bytes.empty()) std::memcpy(Make(bytes.size()), bytes.data(), bytes.size());
}

void BinaryWriter::Flush() {
  const std::size_t size = std::exchange(used_, 0);
  if (size != 0) sink_.Write(buffer_.data(), size);
}

}  // namespace parlate

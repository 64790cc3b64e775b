#include "cli/OutputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

#include "general/Paths.h"
#include "general/RuntimeError.h"

namespace parlate::cli {

namespace {

[[noreturn]] void RaiseErrno(const std::string& path) {
  const int error = errno;
  const int number = error == ENOENT ? RuntimeError::kPathNotFound : ErrorNumberOfErrno(error);
  throw RuntimeError(number, path + ": " + ErrorDescription(number));
}

/// Something that is there and is no file: a terminal, a pipe, a device. It must not be replaced.
bool IsDevice(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

/// The file that a link stands for, so that the link stays.
std::string FollowLinks(const std::string& path) {
  std::error_code error;
  const auto target = std::filesystem::canonical(path, error);
  return error ? path : target.string();
}

/// mkstemp makes a file for the owner alone; a fresh file has what the umask leaves.
void GiveUsualMode(int descriptor) {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  ::fchmod(descriptor, 0666 & ~mask);
}

}  // namespace

OutputFile::OutputFile(std::string path) : path_(std::move(path)) {
  if (FolderExists(path_)) {
    throw RuntimeError(RuntimeError::kPathFileAccessError, path_ + ": is a folder");
  }
  if (IsDevice(path_)) {
    descriptor_ = ::open(path_.c_str(), O_WRONLY | O_CLOEXEC);  // NOLINT: a system interface
    if (descriptor_ < 0) RaiseErrno(path_);
    return;
  }
  target_ = FollowLinks(path_);
  temporary_ = target_ + ".XXXXXX";
  descriptor_ = ::mkstemp(temporary_.data());
  if (descriptor_ < 0) RaiseErrno(path_);
  GiveUsualMode(descriptor_);
}

OutputFile::~OutputFile() {
  if (descriptor_ < 0) return;
  ::close(descriptor_);
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

void OutputFile::Write(const char* bytes, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t put = ::write(descriptor_, bytes + done, size - done);
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) RaiseErrno(path_);
    done += static_cast<std::size_t>(put);
  }
}

void OutputFile::Commit() {
  if (temporary_.empty()) {
    if (::close(std::exchange(descriptor_, -1)) != 0) RaiseErrno(path_);
    return;
  }
  if (::fsync(descriptor_) != 0) RaiseErrno(path_);
  const int closed = ::close(std::exchange(descriptor_, -1));
  if (closed != 0 || std::rename(temporary_.c_str(), target_.c_str()) != 0) {
    const int error = errno;
    ::unlink(temporary_.c_str());
    errno = error;
    RaiseErrno(path_);
  }
}

}  // namespace parlate::cli

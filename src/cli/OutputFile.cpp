#include "cli/OutputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
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

/// mkstemp makes a file for the owner alone; a fresh file has what the umask leaves.
void GiveUsualMode(int descriptor) {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  ::fchmod(descriptor, 0666 & ~mask);
}

}  // namespace

OutputFile::OutputFile(std::string path) : path_(std::move(path)), temporary_(path_ + ".XXXXXX") {
  if (FolderExists(path_)) {
    throw RuntimeError(RuntimeError::kPathFileAccessError, path_ + ": is a folder");
  }
  descriptor_ = ::mkstemp(temporary_.data());
  if (descriptor_ < 0) RaiseErrno(path_);
  GiveUsualMode(descriptor_);
}

OutputFile::~OutputFile() {
  if (descriptor_ < 0) return;
  ::close(descriptor_);
  ::unlink(temporary_.c_str());
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
  if (::fsync(descriptor_) != 0) RaiseErrno(path_);
  const int closed = ::close(std::exchange(descriptor_, -1));
  if (closed != 0 || std::rename(temporary_.c_str(), path_.c_str()) != 0) {
    const int error = errno;
    ::unlink(temporary_.c_str());
    errno = error;
    RaiseErrno(path_);
  }
}

}  // namespace parlate::cli

#pragma once

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <string>

namespace parlate::testing_support {

/// A file that is there but can be opened by nobody, not even the superuser: the name of a socket.
class UnopenableFile {
 public:
  explicit UnopenableFile(const std::string& path)
      : descriptor_(::socket(AF_UNIX, SOCK_STREAM, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    // A longer path would be cut, and another file made.
    if (path.size() >= sizeof(address.sun_path)) return;
    path.copy(address.sun_path, path.size());
    bound_ = ::bind(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
  }
  ~UnopenableFile() { ::close(descriptor_); }
  UnopenableFile(const UnopenableFile&) = delete;
  UnopenableFile& operator=(const UnopenableFile&) = delete;
  /// Whether the file could be made.
  [[nodiscard]] bool Bound() const { return bound_; }

 private:
  int descriptor_;
  bool bound_ = false;
};

}  // namespace parlate::testing_support

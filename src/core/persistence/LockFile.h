#pragma once

#include <optional>
#include <string>

namespace parlate {

/// The lock file beside a conversation file keeps a second writer from saving. Its whole content is
/// the name of the writer who holds the lock; it is in force for as long as it exists.

/// The path up to its first point, wherever that stands, and ".lck".
[[nodiscard]] std::string GetLockFileName(const std::string& path);

/// The name in an existing lock, empty if it is cut short. Nothing if there is no lock, or none
/// that can be opened.
[[nodiscard]] std::optional<std::string> ReadLockHolder(const std::string& path);

/// Writes a lock that bears `username`; a RuntimeError when that fails.
void WriteLock(const std::string& path, const std::string& username);

/// Deletes the lock, with errors ignored.
void RemoveLock(const std::string& path);

}  // namespace parlate

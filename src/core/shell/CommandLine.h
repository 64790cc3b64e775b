#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace parlate {

/// The path that the whole command line names: one in double quotes loses its first and last
/// character, any other is taken as it stands, blanks and all. There are no switches.
[[nodiscard]] std::string PathOfCommandLine(std::string_view commandLine);

/// A path made absolute against the working folder; an empty one stays empty.
[[nodiscard]] std::string AbsolutePath(const std::string& path);

/// The command line split at blanks and tabs into at most `maxArgs` strings.
[[nodiscard]] std::vector<std::string> GetCommandLine(std::string_view commandLine,
                                                      std::size_t maxArgs = 10);

}  // namespace parlate

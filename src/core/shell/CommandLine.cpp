#include "shell/CommandLine.h"

#include <algorithm>
#include <filesystem>

namespace parlate {

std::string PathOfCommandLine(std::string_view commandLine) {
  if (commandLine.empty() || commandLine.front() != '"') return std::string(commandLine);
  commandLine.remove_prefix(1);
  if (!commandLine.empty()) commandLine.remove_suffix(1);
  return std::string(commandLine);
}

std::string AbsolutePath(const std::string& path) {
  if (path.empty()) return path;
  std::error_code unknown;
  // A ".." behind a link leads where only the system knows, so it is left as it stands.
  std::string_view shortened = path;
  while (shortened.starts_with("./")) shortened.remove_prefix(2);
  const auto absolute = std::filesystem::absolute(shortened, unknown);
  return unknown ? path : absolute.string();
}

std::vector<std::string> GetCommandLine(std::string_view commandLine, std::size_t maxArgs) {
  constexpr std::string_view kBlanks = " \t";
  std::vector<std::string> arguments;
  while (arguments.size() < maxArgs) {
    const std::size_t from = commandLine.find_first_not_of(kBlanks);
    if (from == std::string_view::npos) break;
    const std::size_t to = std::min(commandLine.find_first_of(kBlanks, from), commandLine.size());
    arguments.emplace_back(commandLine.substr(from, to - from));
    commandLine.remove_prefix(to);
  }
  return arguments;
}

}  // namespace parlate

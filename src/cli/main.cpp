#include <unistd.h>

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "cli/Commands.h"

namespace {

/// Hands the command over to the program beside this one that has the toolkit and so can print, and
/// does not come back; without that program it does.
void BecomeThePrintingProgram(char** argv) {
  std::error_code unknown;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", unknown);
  if (!unknown) execv((self.parent_path() / "parlate-print").c_str(), argv);
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (!arguments.empty() && arguments.front() == "print") BecomeThePrintingProgram(argv);
  return parlate::cli::Run(arguments, {std::cout, std::cerr}, {});
}

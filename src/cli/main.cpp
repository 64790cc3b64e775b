#include <iostream>
#include <string>
#include <vector>

#include "cli/Commands.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return parlate::cli::Run(arguments, {std::cout, std::cerr});
}

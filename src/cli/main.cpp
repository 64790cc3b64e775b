#include <iostream>
#include <string>
#include <vector>

#include "cli/Commands.h"
#include "cli/PdfPrinting.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return parlate::cli::Run(arguments, {std::cout, std::cerr}, parlate::cli::PdfPrinting());
}

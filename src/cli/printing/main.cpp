#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cli/Commands.h"
#include "print/PdfSurface.h"

/// The command line with the toolkit, which makes the PDFs. Its user is the command line without.
int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  const auto makePdf = [](std::shared_ptr<parlate::ByteSink> out) {
    return parlate::MakePdfSurface(std::move(out), "PDF");
  };
  return parlate::cli::Run(arguments, {std::cout, std::cerr}, makePdf);
}

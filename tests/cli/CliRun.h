#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/Commands.h"

namespace parlate::cli {

/// What one run of the tool did.
struct Ran {
  int code = -1;
  std::string out;
  std::string err;
};

/// Runs the tool in this process.
inline Ran RunTool(const std::vector<std::string>& arguments, const PdfMaker& makePdf = {}) {
  std::ostringstream out;
  std::ostringstream err;
  Ran ran;
  ran.code = Run(arguments, {out, err}, makePdf);
  ran.out = out.str();
  ran.err = err.str();
  return ran;
}

}  // namespace parlate::cli

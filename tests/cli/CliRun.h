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
inline Ran RunTool(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  Ran ran;
  ran.code = Run(arguments, {out, err});
  ran.out = out.str();
  ran.err = err.str();
  return ran;
}

}  // namespace parlate::cli

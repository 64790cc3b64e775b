#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "cli/Session.h"

namespace parlate::cli {

/// Who saves a file and when, as every command that saves can be told.
struct SaveOptions {
  std::string user;
  std::optional<double> now;  ///< Days since 30 December 1899; the present moment if not given.

  void AddTo(CLI::App& command);
  /// Gives the session the name and the clock.
  void Apply(Session& session) const;
};

}  // namespace parlate::cli

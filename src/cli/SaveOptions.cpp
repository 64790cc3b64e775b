#include "cli/SaveOptions.h"

#include <cmath>
#include <cstdlib>

#include "general/CodePage.h"

namespace parlate::cli {

void SaveOptions::AddTo(CLI::App& command) {
  if (const char* name = std::getenv("USER")) user = name;
  command.add_option("--user", user, "Name to sign the file with")->capture_default_str();
  command.add_option("--now", now, "Moment to stamp the file with, in days since 1899-12-30");
}

void SaveOptions::Apply(Session& session) const {
  if (now && !std::isfinite(*now)) throw CLI::ValidationError("--now", "is no moment");
  session.workspace.defaults.Username = FromUtf8(user);
  if (now) session.workspace.now = [moment = *now] { return moment; };
}

}  // namespace parlate::cli

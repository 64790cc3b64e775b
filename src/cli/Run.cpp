#include <CLI/CLI.hpp>
#include <algorithm>
#include <new>
#include <ostream>
#include <string>

#include "cli/Commands.h"
#include "cli/Session.h"
#include "general/RuntimeError.h"

namespace parlate::cli {

namespace {

int Fail(const Streams& streams, int code, std::string line) {
  std::replace(line.begin(), line.end(), '\n', ' ');
  std::replace(line.begin(), line.end(), '\r', ' ');
  streams.err << "parlate-cli: " << line << '\n';
  return code;
}

/// What is wrong with the command line. Where a command is due and another word stands, the parser
/// says only that there is none.
std::string UsageError(const CLI::App& app, const CLI::ParseError& error) {
  const std::vector<std::string> left = app.remaining();
  if (!app.get_subcommands().empty() || left.empty()) return error.what();
  const bool option = left.front().starts_with('-');
  return (option ? "no such option: " : "no such command: ") + left.front();
}

int ParseAndRun(CLI::App& app, std::vector<std::string> arguments, const Streams& streams,
                const int& result) {
  try {
    std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the end
    app.parse(arguments);
    streams.out.flush();
    if (!streams.out) return Fail(streams, kFailure, "the output cannot be written");
    return result;
  } catch (const CLI::Success& asked) {  // --help and --version
    return app.exit(asked, streams.out, streams.err);
  } catch (const CLI::ParseError& error) {
    return Fail(streams, kFailure, UsageError(app, error));
  } catch (const Refusal& refusal) {
    return Fail(streams, kRefused, refusal.what());
  } catch (const RuntimeError& error) {
    return Fail(streams, kFailure, error.what());
  } catch (const std::bad_alloc&) {
    return Fail(streams, kFailure, ErrorDescription(RuntimeError::kOutOfMemory));
  } catch (const std::exception& error) {
    return Fail(streams, kFailure, error.what());
  }
}

}  // namespace

int Run(const std::vector<std::string>& arguments, const Streams& streams,
        const PdfMaker& makePdf) {
  CLI::App app("Works on conversation files without the editor.", "parlate-cli");
  app.set_version_flag("--version", PARLATE_VERSION);
  app.require_subcommand(1);
  int result = kSuccess;
  AddDumpCommand(app, streams, result);
  AddListCommand(app, streams, result);
  AddCheckCommand(app, streams, result);
  AddConvertCommand(app, streams, result);
  AddExportCommand(app, streams, result);
  AddImportCommand(app, streams, result);
  AddAudioCommand(app, streams, result);
  AddStatsCommand(app, streams, result);
  AddPasteCommand(app, streams, result);
  AddPrintCommand(app, makePdf, result);
  return ParseAndRun(app, arguments, streams, result);
}

}  // namespace parlate::cli

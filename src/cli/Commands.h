#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "general/BinaryFile.h"
#include "general/PrintSurface.h"

namespace parlate::cli {

/// Where a command writes; a test hands in streams of its own.
struct Streams {
  std::ostream& out;
  std::ostream& err;
};

/// Makes paper of a PDF that is written to a sink.
using PdfMaker = std::function<std::unique_ptr<PrintSurface>(std::shared_ptr<ByteSink> out)>;

/// Exit codes that a script can trust.
enum ExitCode : int {
  kSuccess = 0,
  kFindings = 1,  ///< `check` found broken references.
  kFailure = 2,   ///< Nothing was written.
  kRefused = 3,   ///< Not a conversation file, too old, or too new.
};

/// Each adds one subcommand to the parser; `result` takes the exit code when it ran.
void AddDumpCommand(CLI::App& app, const Streams& streams, int& result);
void AddListCommand(CLI::App& app, const Streams& streams, int& result);
void AddCheckCommand(CLI::App& app, const Streams& streams, int& result);
void AddConvertCommand(CLI::App& app, const Streams& streams, int& result);
void AddExportCommand(CLI::App& app, const Streams& streams, int& result);
void AddImportCommand(CLI::App& app, const Streams& streams, int& result);
void AddAudioCommand(CLI::App& app, const Streams& streams, int& result);
void AddStatsCommand(CLI::App& app, const Streams& streams, int& result);
void AddPasteCommand(CLI::App& app, const Streams& streams, int& result);

/// Without a maker of PDFs the command says that this build cannot print.
void AddPrintCommand(CLI::App& app, const PdfMaker& makePdf, int& result);

/// Runs the tool on its arguments, without the program's name, and returns the exit code. A failure
/// is one line on `err` that begins with "parlate-cli: ".
int Run(const std::vector<std::string>& arguments, const Streams& streams,
        const PdfMaker& makePdf = {});

}  // namespace parlate::cli

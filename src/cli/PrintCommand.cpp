#include <memory>
#include <string>

#include "cli/Commands.h"
#include "cli/OutputFile.h"
#include "cli/Session.h"
#include "general/CodePage.h"
#include "general/Paths.h"
#include "general/PrintSurface.h"
#include "general/RuntimeError.h"
#include "interchange/ExportConversation.h"
#include "model/ErrorPlaces.h"
#include "model/Tables.h"
#include "model/printing/PrintPages.h"
#include "printing/ConversationListing.h"

namespace parlate::cli {

namespace {

struct PrintOptions {
  std::string in;
  std::string out;
  std::string conName;
  bool listing = false;
  bool noHeader = false;
  bool speechOnly = false;
  bool audioNames = false;
  bool noBlankLines = false;
  bool noFooters = false;
  bool pageBreaks = false;
  int fontSize = 10;

  void AddTo(CLI::App& command);
  /// Puts them where the pages look for them.
  void Apply(ConversationDefaults& defaults) const;
};

void PrintOptions::AddTo(CLI::App& command) {
  command.add_option("IN", in, "Conversation file to print")->required();
  command.add_option("OUT.pdf", out, "PDF to write")->required();
  auto* list = command.add_flag("--listing", listing, "Print the names of the conversations alone");
  command.add_option("--con", conName, "Print only the conversation of that name")->excludes(list);
  command.add_flag("--no-header", noHeader, "Leave out the flags of each conversation");
  command.add_flag("--speech-only", speechOnly, "Print only speech, choices and comments");
  command.add_flag("--audio-names", audioNames, "Name the audio files of speech and choices");
  command.add_flag("--no-blank-lines", noBlankLines, "Leave no blank lines between events");
  command.add_flag("--no-footers", noFooters, "Leave out the page numbers");
  command.add_flag("--page-breaks", pageBreaks, "Begin each conversation on a page of its own");
  command.add_option("--font-size", fontSize, "Size of the text in points")
      ->check(CLI::Range(5, 24))
      ->capture_default_str();
}

void PrintOptions::Apply(ConversationDefaults& defaults) const {
  defaults.PrintFontSize = static_cast<std::int16_t>(fontSize);
  defaults.bPrintListingOnly = listing;
  defaults.bPrintSpeechOnly = speechOnly;
  defaults.bPrintAudioNames = audioNames;
  defaults.bPrintBlankLines = !noBlankLines;
  defaults.bPrintFooters = !noFooters;
  defaults.bConPageBreaks = pageBreaks;
}

void PrintListing(const Session& session, const std::string& path, PrintPages& pages) {
  ConversationListing listing(pages, FromUtf8(GetFileOnly(path)));
  listing.Begin();
  std::int32_t owner = 0;
  bool first = true;
  session.ForEachConversation([&](const Conversation& con) {
    if (first || con.NPCID != owner) {
      listing.PrintListingSection(GetTableItemName(kActorTable, con.NPCID));
    }
    owner = con.NPCID;
    first = false;
    listing.PrintConversationName(con.conName);
  });
}

void PrintFile(Session& session, const PrintOptions& options, PrintPages& pages) {
  if (options.listing) {
    PrintListing(session, options.in, pages);
    return;
  }
  // Names of their own are given out for all at once, as the editor does; one alone keeps its own.
  const bool all = options.conName.empty();
  if (options.audioNames && all) {
    ExportConversations(session.file, nullptr, kGenerateAudio, false, session.Host());
  }
  const std::string wanted = FromUtf8(options.conName);
  bool found = false;
  for (const Conversation& con : session.file.Conversations) {
    if (!all && con.conName != wanted) continue;
    found = true;
    InPlace(con, [&] { con.PrintConversation(pages, !options.noHeader); });
  }
  if (!all && !found) {
    throw RuntimeError(RuntimeError::kInvalidProcedureCall,
                       "there is no conversation of the name " + options.conName);
  }
}

void Print(const PrintOptions& options, const PdfMaker& makePdf) {
  if (!makePdf) {
    throw RuntimeError(RuntimeError::kPrinterError,
                       "printing needs the program parlate-print beside this one, which a build "
                       "without Qt does not have");
  }
  Session session;
  options.Apply(session.workspace.defaults);
  session.Load(options.in);
  const auto output = std::make_shared<OutputFile>(options.out);
  const std::unique_ptr<PrintSurface> surface = makePdf(output);
  PrintPages pages(*surface);
  surface->CurrentY = pages.Top();
  PrintFile(session, options, pages);
  surface->EndDoc();
  output->Commit();
}

}  // namespace

void AddPrintCommand(CLI::App& app, const PdfMaker& makePdf, int& result) {
  auto* command = app.add_subcommand("print", "Print a file into a PDF");
  auto options = std::make_shared<PrintOptions>();
  options->AddTo(*command);
  command->callback([options, makePdf, &result] {
    Print(*options, makePdf);
    result = kSuccess;
  });
}

}  // namespace parlate::cli

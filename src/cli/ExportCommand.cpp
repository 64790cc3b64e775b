#include <memory>
#include <string>

#include "cli/Commands.h"
#include "cli/OutputFile.h"
#include "cli/Session.h"
#include "interchange/ExportConversation.h"

namespace parlate::cli {

namespace {

struct ExportOptions {
  std::string in;
  std::string out;
  std::string mode = "dialog";
  bool noComments = false;
};

void Export(const ExportOptions& options) {
  Session session;
  session.Load(options.in);
  OutputFile output(options.out);
  {
    TextWriter text(output);
    ExportConversations(session.file, &text,
                        options.mode == "filenames" ? kExportFilenames : kExportDialog,
                        !options.noComments, session.Host());
  }
  output.Commit();
}

}  // namespace

void AddExportCommand(CLI::App& app, const Streams&, int& result) {
  auto* command = app.add_subcommand("export", "Write the speech of a file as plain text");
  auto options = std::make_shared<ExportOptions>();
  command->add_option("IN", options->in, "Conversation file to read")->required();
  command->add_option("OUT", options->out, "Text file to write")->required();
  command
      ->add_option("--mode", options->mode,
                   "dialog: the text that `import` takes back; filenames: one line for each "
                   "spoken line, with its audio file")
      ->check(CLI::IsMember({"dialog", "filenames"}))
      ->capture_default_str();
  command->add_flag("--no-comments", options->noComments, "Leave out the writers' comments");
  command->callback([options, &result] {
    Export(*options);
    result = kSuccess;
  });
}

}  // namespace parlate::cli

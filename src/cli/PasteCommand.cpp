#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "cli/Commands.h"
#include "cli/SaveOptions.h"
#include "cli/Session.h"
#include "general/RuntimeError.h"
#include "integrity/ConversationClipboard.h"
#include "model/ErrorPlaces.h"

namespace parlate::cli {

namespace {

struct PasteOptions {
  std::string from;
  std::int32_t key = 0;
  std::string into;
  std::string out;
  SaveOptions save;
};

void Paste(const PasteOptions& options) {
  Session from;
  options.save.Apply(from);
  from.Load(options.from);
  const auto con = from.GetConFromID(options.key);
  if (!con) {
    throw RuntimeError(
        RuntimeError::kInvalidProcedureCall,
        options.from + " has no conversation with the key " + std::to_string(options.key));
  }
  ConversationClipboard clipboard;
  NamingFile(options.from, [&] { InPlace(*con, [&] { clipboard.Copy(*con); }); });

  Session into;
  options.save.Apply(into);
  // The links of what is on the clipboard go with it from one file to the other.
  into.workspace.tables.tableBuffer = std::move(from.workspace.tables.tableBuffer);
  into.Load(options.into);
  into.TreeViewAddConversation(clipboard.Paste(into.file), true);
  into.Save(options.out);
}

}  // namespace

void AddPasteCommand(CLI::App& app, const Streams&, int& result) {
  auto* command = app.add_subcommand("paste", "Copy a conversation from one file into another");
  command->footer(
      "Actors, flags, skills and objects are found by their names in INTO, or added to it. `dump` "
      "tells the keys of the conversations.");
  auto options = std::make_shared<PasteOptions>();
  command->add_option("FROM", options->from, "Conversation file to copy from")->required();
  command->add_option("KEY", options->key, "Key of the conversation to copy")->required();
  command->add_option("INTO", options->into, "Conversation file to paste into")->required();
  command->add_option("OUT", options->out, "Conversation file to write")->required();
  options->save.AddTo(*command);
  command->callback([options, &result] {
    Paste(*options);
    result = kSuccess;
  });
}

}  // namespace parlate::cli

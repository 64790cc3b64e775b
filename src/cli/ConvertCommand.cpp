#include <memory>
#include <string>

#include "cli/Commands.h"
#include "cli/SaveOptions.h"
#include "cli/Session.h"

namespace parlate::cli {

void AddConvertCommand(CLI::App& app, const Streams&, int& result) {
  struct ConvertOptions {
    std::string in;
    std::string out;
    SaveOptions save;
  };
  auto* command = app.add_subcommand("convert", "Save a file of any version as version 28");
  auto options = std::make_shared<ConvertOptions>();
  command->add_option("IN", options->in, "Conversation file to read")->required();
  command->add_option("OUT", options->out, "Conversation file to write")->required();
  options->save.AddTo(*command);
  command->callback([options, &result] {
    Session session;
    options->save.Apply(session);
    session.Load(options->in);
    session.Save(options->out);
    result = kSuccess;
  });
}

}  // namespace parlate::cli

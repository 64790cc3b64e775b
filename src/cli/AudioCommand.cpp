#include <memory>
#include <string>

#include "cli/Commands.h"
#include "cli/SaveOptions.h"
#include "cli/Session.h"
#include "interchange/ExportConversation.h"

namespace parlate::cli {

void AddAudioCommand(CLI::App& app, const Streams&, int& result) {
  struct AudioOptions {
    std::string in;
    std::string out;
    SaveOptions save;
  };
  auto* command =
      app.add_subcommand("audio", "Give every spoken line and choice its audio file name");
  command->footer("Names that are there already are replaced, also those typed by hand.");
  auto options = std::make_shared<AudioOptions>();
  command->add_option("IN", options->in, "Conversation file to read")->required();
  command->add_option("OUT", options->out, "Conversation file to write")->required();
  options->save.AddTo(*command);
  command->callback([options, &result] {
    Session session;
    options->save.Apply(session);
    session.Load(options->in);
    ExportConversations(session.file, nullptr, kGenerateAudio, false, session.Host());
    session.Save(options->out);
    result = kSuccess;
  });
}

}  // namespace parlate::cli

#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "cli/Commands.h"
#include "cli/SaveOptions.h"
#include "cli/Session.h"
#include "general/CodePage.h"
#include "general/RuntimeError.h"
#include "general/TextFile.h"
#include "interchange/ConversationImport.h"

namespace parlate::cli {

namespace {

struct ImportOptions {
  std::string in;
  std::string text;
  std::string out;
  SaveOptions save;
};

/// Keeps a line for each thing that was not matched. They are shown when all has gone well: of a
/// run that fails, only the failure counts.
class MissedLines final : public ImportListener {
 public:
  explicit MissedLines(std::string textPath) : textPath_(std::move(textPath)) {}

  void NotMatched(std::uint64_t line, std::string_view block, const std::string& reason) override {
    lines_ += textPath_ + ":" + std::to_string(line) + ": ";
    if (!block.empty()) lines_ += Shown(block.substr(0, kMostShown)) + ": ";
    lines_ += Shown(reason.substr(0, kMostReason)) + "\n";
  }
  [[nodiscard]] const std::string& Lines() const { return lines_; }

 private:
  static constexpr std::size_t kMostShown = 60;  // a block can be as long as the whole text
  static constexpr std::size_t kMostReason = 200;

  static std::string Shown(std::string_view codePageText) {
    std::string text(codePageText);
    std::replace_if(text.begin(), text.end(), IsUnseen, ' ');
    return ToUtf8(text);
  }
  /// Control characters, and the bytes that the code page leaves open: they become such.
  static bool IsUnseen(char c) {
    constexpr std::string_view kOpen = "\x7F\x81\x8D\x8F\x90\x9D";
    return static_cast<unsigned char>(c) < ' ' || kOpen.find(c) != std::string_view::npos;
  }

  std::string textPath_;
  std::string lines_;
};

void Import(const ImportOptions& options, std::ostream& err) {
  Session session;
  options.save.Apply(session);
  session.Load(options.in);
  MissedLines missed(options.text);
  NamingFile(options.text, [&] {
    FileSource source(options.text);
    TextReader text(source);
    ConversationImport(session.file, text, &missed).ImportConversations(session.Host().progress);
    if (text.Failure()) throw RuntimeError(*text.Failure());
  });
  session.Save(options.out);
  err << missed.Lines();
}

}  // namespace

void AddImportCommand(CLI::App& app, const Streams& streams, int& result) {
  auto* command = app.add_subcommand("import", "Bring an exported and corrected text back");
  command->footer(
      "What the text has and the file has not is passed over; a line on the standard error output "
      "tells where and why, as TEXT:LINE: BLOCK: REASON.");
  auto options = std::make_shared<ImportOptions>();
  command->add_option("IN", options->in, "Conversation file to read")->required();
  command->add_option("TEXT", options->text, "Text in the layout of `export`")->required();
  command->add_option("OUT", options->out, "Conversation file to write")->required();
  options->save.AddTo(*command);
  command->callback([options, streams, &result] {
    Import(*options, streams.err);
    result = kSuccess;
  });
}

}  // namespace parlate::cli

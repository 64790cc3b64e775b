// Times the text that goes out and comes back, and the count of the speakers. The yardstick of the
// export is one write(2) of the same text, that of the import the export, and that of the count a
// check of all labels. With --check a missed target ends the program with 1.

#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "bench/Comparison.h"
#include "bench/Generator.h"
#include "bench/HostedFile.h"
#include "bench/Measure.h"
#include "general/TextFile.h"
#include "interchange/ConversationImport.h"
#include "interchange/ExportConversation.h"
#include "model/SpeakerStats.h"

namespace {

using namespace parlate;
using namespace parlate::bench;

struct Options {
  FileShape shape;
  int rounds = 7;
  bool check = false;
  std::string folder = std::filesystem::temp_directory_path().string();
};

/// A text file on the disk, for as long as it is needed.
class TemporaryText {
 public:
  explicit TemporaryText(const Options& options)
      : path_(options.folder + "/parlate-bench-" + std::to_string(::getpid()) + ".txt") {}
  ~TemporaryText() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  TemporaryText(const TemporaryText&) = delete;
  TemporaryText& operator=(const TemporaryText&) = delete;

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] std::string Content() const {
    std::ifstream in(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  std::string path_;
};

/// Counts what is not matched, which has to be nothing.
class Misses final : public ImportListener {
 public:
  void NotMatched(std::uint64_t, std::string_view, const std::string&) override { ++count; }

  std::size_t count = 0;
};

void Export(HostedFile& file, const std::string& path) {
  FileSink sink(path, FileSink::Content::Replace);
  TextWriter text(sink);
  ExportConversations(file.file, &text, kExportDialog, true, file.Host());
}

void Import(HostedFile& file, const std::string& path, ImportListener* listener) {
  FileSource source(path);
  TextReader text(source);
  ConversationImport(file.file, text, listener).ImportConversations(file.Host().progress);
}

void WriteAtOnce(const std::string& path, const std::string& text) {
  // NOLINTNEXTLINE: a system interface
  const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  const ssize_t put = ::write(descriptor, text.data(), text.size());
  ::close(descriptor);
  if (put != static_cast<ssize_t>(text.size())) throw std::runtime_error("cannot write " + path);
}

struct Times {
  std::vector<double> write;
  std::vector<double> exported;
  std::vector<double> imported;
  std::vector<double> check;
  std::vector<double> stats;
};

void Round(HostedFile& file, const TemporaryText& temporary, const std::string& text,
           Times& times) {
  const std::string& path = temporary.Path();
  times.write.push_back(Milliseconds([&] { WriteAtOnce(path, text); }));
  times.exported.push_back(Milliseconds([&] { Export(file, path); }));
  times.imported.push_back(Milliseconds([&] { Import(file, path, nullptr); }));
  times.check.push_back(Milliseconds([&] { Keep(file.CheckAllLabels().size()); }));
  times.stats.push_back(Milliseconds([&] {
    SpeakerStats stats;
    stats.BuildSpeakerStats(file.file);
    Keep(stats);
  }));
}

/// A time counts only if the text came out whole and went back in whole.
void RequireWhole(HostedFile& file, const TemporaryText& temporary, const std::string& text) {
  if (temporary.Content() != text) throw std::runtime_error("a round has changed the text");
  Misses misses;
  Import(file, temporary.Path(), &misses);
  if (misses.count != 0) throw std::runtime_error("the import has missed a part of the text");
}

int Bench(const Options& options) {
  HostedFile file;
  file.LoadBytes(MakeFile(options.shape));
  const TemporaryText temporary(options);
  Export(file, temporary.Path());
  const std::string text = temporary.Content();
  Times times;
  for (int round = 0; round < options.rounds; ++round) Round(file, temporary, text, times);
  RequireWhole(file, temporary, text);

  const double exported = Median(times.exported);
  const Comparison comparisons[] = {
      {"export", exported, "one write(2)", Median(times.write), 3.0},
      {"import", Median(times.imported), "export", exported, 5.0},
      {"speakers", Median(times.stats), "label check", Median(times.check), 1.0},
  };
  std::printf("%d conversations of %d events, %.1f MB of text, medians of %d rounds\n",
              options.shape.conversations, options.shape.events,
              static_cast<double>(text.size()) / (1024.0 * 1024.0), options.rounds);
  const bool met = Report(comparisons);
  return options.check && !met ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"Times the text that goes out and comes back, and the count of the speakers."};
  Options options;
  app.add_option("--conversations", options.shape.conversations)->check(CLI::Range(1, 32767));
  app.add_option("--events", options.shape.events, "In each conversation")
      ->check(CLI::Range(1, 32767));
  app.add_option("--rounds", options.rounds)->check(CLI::Range(1, 1000));
  app.add_option("--folder", options.folder, "Where the text goes")->check(CLI::ExistingDirectory);
  app.add_flag("--check", options.check, "End with 1 if a target is missed");
  CLI11_PARSE(app, argc, argv);
  try {
    return Bench(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}

// Times loading, saving and checking a large file, and weighs it in memory, against the floor: a
// plain loader of the same bytes. Each round is a pair of fresh processes, one for either side.
// With --check a missed target ends the program with 1.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "bench/Generator.h"
#include "bench/HostedFile.h"
#include "bench/Measure.h"

namespace {

using namespace parlate::bench;

/// One process of either side.
struct Run {
  double load = 0;
  double save = 0;
  double check = 0;
  double memory = 0;  ///< MB that the load has added.
  double saved = 0;   ///< Bytes.
};

constexpr double kMegabyte = 1024.0 * 1024.0;

struct Files {
  std::string source;
  std::string target;
  std::size_t size = 0;
};

double Megabytes(std::size_t bytes) { return static_cast<double>(bytes) / kMegabyte; }

double SizeOf(const std::string& path) {
  return static_cast<double>(std::filesystem::file_size(path));
}

/// Reads the file once, so that no side is charged for the disk.
void Warm(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::vector<char> buffer(1U << 20U);
  while (in.read(buffer.data(), static_cast<std::streamsize>(buffer.size()))) {
  }
}

Run RunFloor(const Files& files) {
  Run run;
  const std::size_t before = ResidentBytes();
  floor::File file;
  run.load = Milliseconds([&] { file = floor::Load(files.source); });
  run.memory = Megabytes(ResidentBytes() - before);
  run.save = Milliseconds([&] { floor::Save(file, files.target, files.size); });
  run.saved = SizeOf(files.target);
  return run;
}

Run RunModel(const Files& files) {
  Run run;
  const std::size_t before = ResidentBytes();
  HostedFile file;
  run.load = Milliseconds([&] { file.Load(files.source); });
  run.memory = Megabytes(ResidentBytes() - before);
  run.save = Milliseconds([&] { file.Save(files.target); });
  run.saved = SizeOf(files.target);
  std::size_t broken = 0;
  run.check = Milliseconds([&] { broken = file.CheckAllLabels().size(); });
  if (broken != 0) throw std::runtime_error("the made-up file has broken labels");
  return run;
}

std::vector<double> Column(const std::vector<Run>& runs, double Run::*member) {
  std::vector<double> values;
  values.reserve(runs.size());
  for (const Run& run : runs) values.push_back(run.*member);
  return values;
}

struct Options {
  FileShape shape;
  int rounds = 7;
  bool json = false;
  bool check = false;
  std::string folder = std::filesystem::temp_directory_path().string();
};

/// The two files on the disk, for as long as they are needed.
class TemporaryFiles {
 public:
  explicit TemporaryFiles(const Options& options) {
    const std::string stem = options.folder + "/parlate-bench-" + std::to_string(::getpid());
    files_.source = stem + "-source.con";
    files_.target = stem + "-target.con";
    // In a process of its own: the measured ones are to inherit a small heap.
    files_.size = InChild([&] {
      const std::string bytes = MakeFile(options.shape);
      for (const std::string& path : {files_.source, files_.target}) {
        std::ofstream out(path, std::ios::binary);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!out.flush()) throw std::runtime_error("cannot write " + path);
      }
      return bytes.size();
    });
    InChild([&] {
      Warm(files_.source);
      Warm(files_.target);
      return 0;
    });
  }
  ~TemporaryFiles() {
    std::error_code ignored;
    std::filesystem::remove(files_.source, ignored);
    std::filesystem::remove(files_.target, ignored);
  }
  TemporaryFiles(const TemporaryFiles&) = delete;
  TemporaryFiles& operator=(const TemporaryFiles&) = delete;

  [[nodiscard]] const Files& Get() const { return files_; }

 private:
  Files files_;
};

nlohmann::json ToJson(const Comparison& comparison, const char* unit) {
  return {{"name", comparison.subject},      {"unit", unit},
          {"against", comparison.yardstick}, {"subject", comparison.measured},
          {"yardstick", comparison.against}, {"ratio", comparison.Ratio()},
          {"target", comparison.atMost},     {"met", comparison.Met()}};
}

/// What the rounds come to.
struct Result {
  std::vector<Comparison> times;
  Comparison memory;
  double floorMemory = 0;

  [[nodiscard]] bool Met() const {
    return memory.Met() && std::all_of(times.begin(), times.end(),
                                       [](const Comparison& time) { return time.Met(); });
  }
};

Result Compare(const std::vector<Run>& modelRuns, const std::vector<Run>& floorRuns,
               std::size_t fileSize) {
  const auto median = [](const std::vector<Run>& runs, double Run::*member) {
    return Median(Column(runs, member));
  };
  const double load = median(modelRuns, &Run::load);
  return {
      {{"load", load, "floor load", median(floorRuns, &Run::load), 1.5},
       {"save", median(modelRuns, &Run::save), "floor save", median(floorRuns, &Run::save), 1.5},
       {"check", median(modelRuns, &Run::check), "load", load, 0.25}},
      {"memory", median(modelRuns, &Run::memory), "file size", Megabytes(fileSize), 4.0},
      median(floorRuns, &Run::memory)};
}

void PrintJson(const Result& result) {
  nlohmann::json all = nlohmann::json::array();
  for (const Comparison& time : result.times) all.push_back(ToJson(time, "ms"));
  all.push_back(ToJson(result.memory, "MB"));
  std::printf("%s\n", all.dump(2).c_str());
}

void PrintTables(const Result& result) {
  Report(result.times);
  Report({&result.memory, 1}, "MB");
  std::printf("(the floor itself takes %.1f MB)\n", result.floorMemory);
}

int Bench(const Options& options) {
  const TemporaryFiles temporary(options);
  const Files& files = temporary.Get();
  std::vector<Run> floorRuns;
  std::vector<Run> modelRuns;
  for (int round = 0; round < options.rounds; ++round) {
    // Who begins changes, so that a drift of the machine's speed hits both alike.
    for (const bool floorsTurn : {round % 2 == 0, round % 2 != 0}) {
      if (floorsTurn) {
        floorRuns.push_back(InChild([&] { return RunFloor(files); }));
      } else {
        modelRuns.push_back(InChild([&] { return RunModel(files); }));
      }
    }
    // Both write the same records, so a time counts only if both wrote all of them.
    const auto size = static_cast<double>(files.size);
    if (floorRuns.back().saved != size || modelRuns.back().saved != size) {
      throw std::runtime_error("a saved file is not as long as its source");
    }
  }
  const Result result = Compare(modelRuns, floorRuns, files.size);
  if (options.json) {
    PrintJson(result);
  } else {
    std::printf("%d conversations of %d events, %.1f MB, medians of %d rounds\n",
                options.shape.conversations, options.shape.events, Megabytes(files.size),
                options.rounds);
    PrintTables(result);
  }
  return options.check && !result.Met() ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"Times loading, saving and checking a large file against a plain loader."};
  Options options;
  app.add_option("--conversations", options.shape.conversations)->check(CLI::Range(1, 32767));
  app.add_option("--events", options.shape.events, "In each conversation")
      ->check(CLI::Range(1, 32767));
  app.add_option("--rounds", options.rounds)->check(CLI::Range(1, 1000));
  app.add_option("--folder", options.folder, "Where the two files go")
      ->check(CLI::ExistingDirectory);
  app.add_flag("--json", options.json);
  app.add_flag("--check", options.check, "End with 1 if a target is missed");
  CLI11_PARSE(app, argc, argv);
  try {
    return Bench(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}

// Does each kind of work on files of three sizes: both the conversations and the events of each
// double, twice. What is prompt on a small file must not become slow on a large one, so the time
// per item may hardly grow. With --check it ends with 1 if it does.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/Generator.h"
#include "bench/HostedFile.h"
#include "bench/Measure.h"
#include "general/BinaryFile.h"
#include "general/RuntimeError.h"
#include "general/TextFile.h"
#include "interchange/ConversationImport.h"
#include "interchange/ExportConversation.h"
#include "shell/EventRows.h"

namespace {

using namespace parlate::bench;

constexpr std::size_t kSizes = 3;
constexpr double kMostGrowth = 1.5;
/// For a walk that does next to nothing but touch each item, a nanosecond or two: it pays for the
/// caches that the items outgrow. Work that went up with the square would show as 4.
constexpr double kMostGrowthOfWalk = 2.5;
constexpr double kNanosecondsPerMillisecond = 1e6;

/// Milliseconds of each kind of work on one file.
struct Times {
  double load = 0;
  double save = 0;
  double check = 0;
  double list = 0;
  double exported = 0;
  double imported = 0;
  double rename = 0;
  double nameInUse = 0;
  double removeAll = 0;
};

constexpr int kRenames = 200;
constexpr int kSiblingsPerConversation = 27;  // the largest file gets nearly all there can be

int Siblings(const FileShape& shape) {
  return std::min(shape.conversations * kSiblingsPerConversation, 32767);
}

std::size_t ListAll(const HostedFile& hosted) {
  std::size_t length = 0;
  for (const parlate::Conversation& con : hosted.file.Conversations) {
    for (const parlate::EventItem& event : con.events) {
      parlate::ResumeNext([&] { length += parlate::BuildEventRow(con, event).text.size(); });
    }
  }
  return length;
}

std::string ExportAll(HostedFile& hosted) {
  parlate::MemorySink sink;
  parlate::TextWriter text(sink);
  parlate::ExportConversations(hosted.file, &text, parlate::kExportDialog, true, hosted.Host());
  return sink.Bytes();
}

void ImportAll(HostedFile& hosted, const std::string& exported) {
  parlate::MemorySource source(exported);
  parlate::TextReader text(source);
  parlate::ConversationImport(hosted.file, text).ImportConversations(hosted.Host().progress);
}

/// Renames nodes that all stand under one actor: each goes from one end to the other.
double RenameAmong(int siblings) {
  parlate::ConversationTree tree;
  parlate::TreeNode& actor = tree.AddActor(0, "Owner");
  tree.BeginBulk();
  for (int i = 0; i < siblings; ++i) tree.AddConversation(actor, i, ConversationName(i));
  tree.EndBulk();
  return Milliseconds([&] {
    for (int i = 0; i < kRenames; ++i) {
      parlate::TreeNode& node = *actor.children[static_cast<std::size_t>(i % siblings)];
      tree.SetText(node, "Zz" + node.text);
    }
  });
}

double AskForNames(const HostedFile& hosted) {
  int used = 0;
  const double time = Milliseconds([&] {
    for (int i = 0; i < kRenames; ++i) {
      if (hosted.file.IsConNameInUse("Conversation_none")) ++used;
    }
  });
  if (used != 0) throw std::runtime_error("a name that nobody has is in use");
  return time;
}

Times Run(const FileShape& shape) {
  const std::string bytes = MakeFile(shape);
  Times times;
  HostedFile hosted;
  times.load = Milliseconds([&] { hosted.LoadBytes(bytes); });
  times.save = Milliseconds([&] { Keep(hosted.SaveBytes().size()); });
  times.check = Milliseconds([&] { Keep(hosted.CheckAllLabels().size()); });
  times.list = Milliseconds([&] { Keep(ListAll(hosted)); });
  std::string exported;
  times.exported = Milliseconds([&] { exported = ExportAll(hosted); });
  times.imported = Milliseconds([&] { ImportAll(hosted, exported); });
  times.rename = RenameAmong(Siblings(shape));
  times.nameInUse = AskForNames(hosted);
  times.removeAll = Milliseconds([&] {
    for (parlate::Conversation& con : hosted.file.Conversations) con.EventRemoveAll();
  });
  return times;
}

struct Work {
  const char* name;
  const char* item;
  double Times::*time;
  /// How many items one run works on.
  double (*items)(const FileShape& shape);
  double mostGrowth = kMostGrowth;
};

double Events(const FileShape& shape) {
  return static_cast<double>(shape.conversations) * static_cast<double>(shape.events);
}

double SiblingsPassed(const FileShape& shape) { return double{kRenames} * Siblings(shape); }
double NamesPassed(const FileShape& shape) { return double{kRenames} * shape.conversations; }

constexpr std::array<Work, 9> kWorks = {{
    {"load", "event", &Times::load, Events},
    {"save", "event", &Times::save, Events},
    {"check", "event", &Times::check, Events},
    {"list", "event", &Times::list, Events},
    {"export", "event", &Times::exported, Events},
    {"import", "event", &Times::imported, Events},
    {"rename in the tree", "sibling", &Times::rename, SiblingsPassed, kMostGrowthOfWalk},
    {"IsConNameInUse", "conversation", &Times::nameInUse, NamesPassed, kMostGrowthOfWalk},
    {"EventRemoveAll", "event", &Times::removeAll, Events},
}};

/// Prints the table; whether nothing grew too much.
bool Report(const std::array<FileShape, kSizes>& shapes,
            const std::array<std::vector<Times>, kSizes>& runs) {
  std::printf("%-20s %-14s", "", "nanoseconds a");
  for (const FileShape& shape : shapes) {
    const std::string size =
        std::to_string(shape.conversations) + " x " + std::to_string(shape.events);
    std::printf(" %12s", size.c_str());
  }
  std::printf(" %8s %8s\n", "growth", "at most");
  bool met = true;
  for (const Work& work : kWorks) {
    std::printf("%-20s %-14s", work.name, work.item);
    std::array<double, kSizes> each{};
    for (std::size_t size = 0; size < kSizes; ++size) {
      std::vector<double> times;
      for (const Times& run : runs[size]) times.push_back(run.*work.time);
      each[size] = Median(times) * kNanosecondsPerMillisecond / work.items(shapes[size]);
      std::printf(" %12.2f", each[size]);
    }
    const double growth = each.back() / each.front();
    const bool small = growth <= work.mostGrowth;
    met = met && small;
    std::printf(" %8.2f %8.2f%s\n", growth, work.mostGrowth, small ? "" : "  MISSED");
  }
  return met;
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"Tells how the time per item grows with the size of the file."};
  FileShape smallest{300, 300, 1};
  int rounds = 5;
  bool check = false;
  app.add_option("--conversations", smallest.conversations, "Of the smallest file")
      ->check(CLI::Range(1, 1000));
  app.add_option("--events", smallest.events, "Of the smallest file, in each conversation")
      ->check(CLI::Range(1, 8000));
  app.add_option("--rounds", rounds)->check(CLI::Range(1, 1000));
  app.add_flag("--check", check, "End with 1 if the time per item grows too much");
  CLI11_PARSE(app, argc, argv);
  try {
    std::array<FileShape, kSizes> shapes;
    for (std::size_t size = 0; size < kSizes; ++size) {
      shapes[size] = {smallest.conversations << size, smallest.events << size, smallest.seed};
    }
    std::array<std::vector<Times>, kSizes> runs;
    for (int round = 0; round < rounds; ++round) {
      for (std::size_t size = 0; size < kSizes; ++size) {
        runs[size].push_back(InChild([&] { return Run(shapes[size]); }));
      }
    }
    const bool met = Report(shapes, runs);
    return check && !met ? 1 : 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}

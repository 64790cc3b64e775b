// Times a search for a text that occurs nowhere, over all conversations and without regard to
// case, against strcasestr over the same text in one piece. With --check a missed target ends the
// program with 1.

#include <CLI/CLI.hpp>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "bench/Comparison.h"
#include "bench/Generator.h"
#include "bench/Measure.h"
#include "general/BinaryFile.h"
#include "general/CodePage.h"
#include "shell/Shell.h"

namespace {

using parlate::Conversation;
using parlate::EventItem;
using parlate::bench::Comparison;
using parlate::bench::Median;
using parlate::bench::Milliseconds;

constexpr int kRounds = 9;
constexpr double kTarget = 1.5;
constexpr double kMegabyte = 1e6;

/// A window that shows nothing, and a user who agrees to nothing.
class NoWindow final : public parlate::ShellView,
                       public parlate::MessageBoxes,
                       public parlate::FileDialogs,
                       public parlate::ProgressDisplay {
 public:
  void CommandStatesChanged() override {}
  void LastFilesChanged() override {}
  void ShowTree(bool) override {}
  int ShowSettings() override { return 1; }
  bool ShowMissingLabels(const std::vector<parlate::BadLabelRow>&, bool) override { return false; }
  void AddEvent(std::int32_t, const std::shared_ptr<Conversation>&) override {}
  void EditEvent(const std::shared_ptr<Conversation>&, const std::shared_ptr<EventItem>&) override {
  }
  [[nodiscard]] bool IsEventEditorVisible() const override { return false; }
  void UnloadEventEditor() override {}
  int ShowProperties(Conversation&, int) override { return 1; }
  void ShowFileProperties() override {}
  bool PickFlags(parlate::FlagList&) override { return false; }
  std::optional<parlate::PrintChoice> ShowPrintOptions(bool, bool) override { return std::nullopt; }

  parlate::Answer Show(const parlate::MessageBox&) override {
    ++boxes;
    return parlate::Answer::Ok;
  }
  std::string ShowOpen(const parlate::FileDialog&) override { return {}; }
  std::string ShowSave(const parlate::FileDialog&) override { return {}; }
  void Begin(const std::string&, const std::string&, int) override {}
  void SetTop(int) override {}
  void Step(const std::string&, int) override {}
  void End() override {}

  int boxes = 0;
};

/// The text of the box that the search takes it from, and nothing else of a box.
class OneText final : public parlate::ComboBox {
 public:
  explicit OneText(std::string text) : text_(std::move(text)) {}
  void Clear() override {}
  void AddItem(const std::string&) override {}
  void InsertItem(const std::string&, int) override {}
  void RemoveItem(int) override {}
  [[nodiscard]] int ListCount() const override { return 0; }
  [[nodiscard]] std::string List(int) const override { return {}; }
  [[nodiscard]] std::int32_t ItemData(int) const override { return 0; }
  void SetItemData(int, std::int32_t) override {}
  [[nodiscard]] int ListIndex() const override { return -1; }
  void SetListIndex(int) override {}
  [[nodiscard]] std::string Text() const override { return text_; }
  void SetText(const std::string& text) override { text_ = text; }
  void SelectText(int, int) override {}
  void SetFocus() override {}
  [[nodiscard]] bool Visible() const override { return true; }

 private:
  std::string text_;
};

/// All that a search looks at, one text behind the other.
std::string SearchedText(const parlate::ConversationFile& file) {
  std::string text;
  const auto add = [&text](std::string_view piece) { text.append(piece).append("\n"); };
  for (const Conversation& con : file.Conversations) {
    for (const EventItem& item : con.events) {
      item.Visit([&add]<class Event>(const Event& event) {
        if constexpr (std::is_same_v<Event, parlate::EventSpeech>) add(event.speech);
        if constexpr (std::is_same_v<Event, parlate::EventTrigger>) add(event.triggerTag);
        if constexpr (std::is_same_v<Event, parlate::EventAddNote>) add(event.noteText);
        if constexpr (std::is_same_v<Event, parlate::EventComment>) add(event.commentText);
        if constexpr (std::is_same_v<Event, parlate::EventAddGoal>) {
          add(event.goalName);
          add(event.goalText);
        }
      });
    }
  }
  return text;
}

int Measure(const parlate::bench::FileShape& shape, const std::string& folder,
            const std::string& searched, bool checks) {
  parlate::Workspace workspace;
  workspace.defaults.Username = "bench";
  const parlate::WorkspaceScope scope(workspace);
  NoWindow window;
  parlate::Shell shell(window, {window, window, window});
  const std::string path = (std::filesystem::path(folder) / "bench-search.con").string();
  {
    parlate::FileSink sink(path);
    const std::string bytes = parlate::bench::MakeFile(shape);
    sink.Write(bytes.data(), bytes.size());
  }
  shell.OpenConFile(path);
  std::filesystem::remove(path);
  if (shell.GetConFile() == nullptr || window.boxes != 0) {
    std::fprintf(stderr, "the file could not be opened\n");
    return 2;
  }
  const std::string text = SearchedText(*shell.GetConFile());
  OneText box(searched);
  std::vector<double> ours;
  std::vector<double> yardstick;
  std::vector<double> inOnePiece;
  bool found = false;
  for (int round = 0; round < kRounds; ++round) {
    shell.ResetSearch();
    ours.push_back(
        Milliseconds([&] { found = found || shell.FindText(box, false, false, true, 0); }));
    yardstick.push_back(Milliseconds(
        [&] { found = found || ::strcasestr(text.c_str(), searched.c_str()) != nullptr; }));
    inOnePiece.push_back(Milliseconds(
        [&] { found = found || parlate::Contains(text, searched, parlate::CompareMethod::Text); }));
  }
  shell.CloseConFile();  // and let its lock go
  if (found || window.boxes != kRounds) {
    std::fprintf(stderr, "the text was found\n");
    return 2;
  }
  const double search = Median(ours);
  const Comparison comparisons[] = {
      {"all conversations", search, "strcasestr in one piece", Median(yardstick), kTarget},
      {"all conversations", search, "our comparison in one piece", Median(inOnePiece)},
  };
  std::printf("%.1f MB in the events\n", static_cast<double>(text.size()) / kMegabyte);
  const bool met = parlate::bench::Report(comparisons);
  return checks && !met ? 1 : 0;
}

int Run(int argc, char** argv) {
  CLI::App app("Times a search that finds nothing against a memory search.");
  parlate::bench::FileShape shape;
  std::string folder = std::filesystem::temp_directory_path().string();
  std::string searched = "Lantern quay at dawn";
  bool checks = false;
  app.add_option("--conversations", shape.conversations, "How many conversations");
  app.add_option("--events", shape.events, "How many events in each");
  app.add_option("--folder", folder, "Where the file is put for a while");
  app.add_option("--text", searched, "A text that occurs nowhere");
  app.add_flag("--check", checks, "End with 1 when the target is missed");
  CLI11_PARSE(app, argc, argv);
  return Measure(shape, folder, searched, checks);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}

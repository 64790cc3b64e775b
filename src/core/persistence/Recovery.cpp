#include "persistence/Recovery.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "general/BinaryFile.h"
#include "general/Paths.h"
#include "model/Tables.h"
#include "model/Workspace.h"

namespace parlate {

namespace {

/// Conversations in the order of the collection: the tree may be what failed.
class CollectionOrder final : public ConversationTreeOrder {
 public:
  explicit CollectionOrder(const ConversationFile& file) : file_(file) {}
  void TreeViewAddConversation(const std::shared_ptr<Conversation>&, Boolean) override {}
  void WalkConversations(const std::function<void(std::int32_t)>& visit) const override {
    for (std::size_t place = 1; place <= file_.Conversations.Count(); ++place) {
      visit(file_.Conversations.KeyAt(place));
    }
  }

 private:
  const ConversationFile& file_;
};

/// A rescue says and shows nothing.
class Silence final : public MessageBoxes, public ProgressDisplay {
 public:
  Answer Show(const MessageBox&) override { return Answer::Ok; }
  void Begin(const std::string&, const std::string&, int) override {}
  void SetTop(int) override {}
  void Step(const std::string&, int) override {}
  void End() override {}
};

/// Gives each flag that is named somewhere and has no row a row of its own. The other rows come
/// back when the file is read; a flag does not, and its conversation could not be shown any more.
void AddMissingFlags(const ConversationFile& file) {
  const auto add = [](const FlagList& flags) {
    for (const FlagRef& flag : flags) {
      const std::int32_t id = flag.flagID;
      if (id == INT32_MAX || GetTable(kFlagTable)->Find(id) != nullptr) continue;
      AddFixedTableItem(kFlagTable, "Missing_" + std::to_string(id), id);
    }
  };
  for (const Conversation& con : file.Conversations) {
    add(con.flagRefs);
    for (const EventItem& event : con.events) {
      event.Visit([&add](const auto& object) {
        if constexpr (requires { object.flagRefs; }) add(object.flagRefs);
        if constexpr (requires { object.Choices; }) {
          for (const ChoiceItem& choice : object.Choices) add(choice.flagRefs);
        }
      });
    }
  }
}

/// Re-linking can make two flags of an event that sets flags the same one, and a file with both
/// could not be read.
void DropRepeatedFlags(ConversationFile& file) {
  for (Conversation& con : file.Conversations) {
    for (EventItem& event : con.events) {
      if (auto* set = event.As<EventSetFlag>()) RekeyFlagRefs(set->flagRefs);
    }
  }
}

}  // namespace

std::string RecoveryFileName(const std::string& conFileName, Date moment) {
  using namespace std::chrono;
  constexpr std::int64_t kSecondsOfDay = 86400;
  // Rounded as a whole, so that the last half second of a day belongs to the next.
  const std::int64_t seconds = std::llround(moment * static_cast<double>(kSecondsOfDay));
  const auto day = static_cast<int>(seconds / kSecondsOfDay);
  const auto ofDay = static_cast<int>(seconds % kSecondsOfDay);
  const year_month_day date(sys_days(1899y / December / 30) + days(day));
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "-%04d%02u%02u-%02d%02d%02d",
                static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()), ofDay / 3600, ofDay / 60 % 60, ofDay % 60);
  const std::string name = std::filesystem::path(conFileName).stem().string();
  return (name.empty() ? "untitled" : name) + text.data() + ".con";
}

std::string WriteRecovery(ConversationFile& file, const std::string& folder,
                          const std::string& name) {
  Workspace& workspace = Workspace::Current();
  const bool before = std::exchange(workspace.writeMissingNames, true);
  const Table flags = *GetTable(kFlagTable);
  const std::string path = folder + kPathSeparator + name;
  const bool written = ResumeNext([&] {
    AddMissingFlags(file);
    DropRepeatedFlags(file);
    CreateDirectoryPath(folder + kPathSeparator);
    FileSink sink(path);
    BinaryWriter writer(sink);
    Silence silence;
    CollectionOrder order(file);
    file.SaveConversations(writer, {silence, silence, order});
  });
  *GetTable(kFlagTable) = flags;
  workspace.writeMissingNames = before;
  return written ? path : std::string();
}

}  // namespace parlate

#include "Script.h"

#include <algorithm>
#include <stdexcept>

#include "Talk.h"
#include "general/BinaryFile.h"
#include "general/CodePage.h"
#include "general/Date.h"
#include "model/Tables.h"

namespace parlate::example {

namespace {

constexpr int kMinutesOfDay = 1440;
constexpr int kMinutesOfConversation = 85;

/// The list of missions, as the dialog of the file's properties would hand it over.
class MissionList final : public ListBox {
 public:
  explicit MissionList(std::vector<std::int32_t> missions) : missions_(std::move(missions)) {}

  void Clear() override { missions_.clear(); }
  void AddItem(const std::string&) override { missions_.push_back(0); }
  [[nodiscard]] int ListCount() const override { return static_cast<int>(missions_.size()); }
  [[nodiscard]] std::string List(int) const override { return {}; }
  [[nodiscard]] std::int32_t ItemData(int index) const override {
    return missions_.at(static_cast<std::size_t>(index));
  }
  void SetItemData(int index, std::int32_t value) override {
    missions_.at(static_cast<std::size_t>(index)) = value;
  }
  [[nodiscard]] bool Selected(int) const override { return false; }

 private:
  std::vector<std::int32_t> missions_;
};

}  // namespace

std::string Text(std::string_view utf8) {
  std::string text = FromUtf8(utf8);
  if (ToUtf8(text) != utf8) {
    throw std::logic_error("not in the code page: " + std::string(utf8));
  }
  return text;
}

Script::Script()
    : workspace_{.tables = {},
                 .defaults = {},
                 .now =
                     [this] {
                       return MakeDate(2026, 3, 2, 18, 30) +
                              static_cast<double>(minutes_) / kMinutesOfDay;
                     }},
      scope_(workspace_) {
  workspace_.defaults.Username = "Ines";
  file_.CreatedBy = "Ines";
  file_.AudioPackage = "Audio01";
  BuildMissionTable();
}

void Script::SetNotes(std::string_view notes) { file_.notes = Text(notes); }

void Script::SetMissions(std::initializer_list<std::int32_t> missions) {
  file_.SaveMissions(MissionList(missions));
}

std::int32_t Script::Row(std::int32_t tableType, std::string_view name) {
  return AddTableItem(tableType, Text(name)).ID;
}

Talk Script::Conversation(std::string_view owner, std::string_view name, std::string_view player) {
  minutes_ += kMinutesOfConversation;
  auto con = std::make_shared<parlate::Conversation>();
  con->key = file_.NextKey();
  con->conName = Text(name);
  con->NPCID = Actor(owner);
  file_.Conversations.Add(con->key, con);
  TreeViewAddConversation(con, false);
  return {*this, *con, Actor(player)};
}

void Script::JumpLater(EventJump& jump, std::string_view conName) {
  pendingJumps_.push_back({&jump, Text(conName)});
}

const Conversation& Script::Find(std::string_view conName) const {
  const auto found = std::find_if(file_.Conversations.begin(), file_.Conversations.end(),
                                  [&](const auto& con) { return con.conName == conName; });
  if (found == file_.Conversations.end()) {
    throw std::logic_error("no conversation " + std::string(conName));
  }
  return *found;
}

std::string Script::Bytes() {
  for (const auto& [jump, conName] : pendingJumps_) jump->conID = Find(conName).key;
  pendingJumps_.clear();
  MemorySink sink;
  {
    BinaryWriter writer(sink);
    file_.SaveConversations(writer, {*this, *this, *this});
  }
  return sink.Bytes();
}

void Script::TreeViewAddConversation(const std::shared_ptr<parlate::Conversation>& con, Boolean) {
  TreeNode* actor = tree_.FindActor(con->NPCID);
  if (actor == nullptr) {
    actor = &tree_.AddActor(con->NPCID, GetTableItemName(kActorTable, con->NPCID));
  }
  tree_.AddConversation(*actor, con->key, con->conName);
}

void Script::WalkConversations(const std::function<void(std::int32_t key)>& visit) const {
  tree_.WalkConversations(visit);
}

Answer Script::Show(const MessageBox& box) { throw std::logic_error(box.text); }

}  // namespace parlate::example

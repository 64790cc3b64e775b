#include "OpenFile.h"

#include <algorithm>

#include "general/BinaryFile.h"
#include "general/CodePage.h"
#include "general/RuntimeError.h"
#include "model/Tables.h"
#include "shell/EventRows.h"

namespace parlate::fuzzing {

OpenFile::OpenFile() : scope_(workspace_) {
  workspace_.now = [] { return Date{37000.5}; };
  workspace_.defaults.Username = "Fuzzer";
  workspace_.conversations = this;
  workspace_.badLabels = &badLabels_;
  workspace_.messages = this;
}

OpenFile::Result OpenFile::Load(std::string_view bytes) {
  Result result = Result::Damaged;
  tree_.BeginBulk();
  ResumeNext([&] {
    MemorySource source(bytes);
    BinaryReader reader(source);
    result = file_.LoadConversations(reader, Host()) ? Result::Loaded : Result::Refused;
  });
  tree_.EndBulk();
  return result;
}

std::string OpenFile::Save() {
  MemorySink sink;
  {
    BinaryWriter writer(sink);
    file_.SaveConversations(writer, Host());
  }
  return sink.Bytes();
}

void OpenFile::BuildAllRows() {
  for (const bool expanded : {false, true}) {
    workspace_.defaults.ExpandListEnabled = expanded;
    for (const Conversation& con : file_.Conversations) {
      for (const EventItem& event : con.events) {
        ResumeNext([&] { (void)BuildEventRow(con, event); });
      }
    }
  }
}

void OpenFile::CheckAllLabels() {
  ResumeNext([&] { (void)CheckLabels(file_, *this, badLabels_); });
}

std::shared_ptr<Conversation> OpenFile::GetConFromID(std::int32_t conID) const {
  if (file_.Conversations.Find(conID) == nullptr) return nullptr;
  return file_.Conversations.Share(conID);
}

std::int32_t OpenFile::GetConIDFromName(std::int32_t conOwner, const std::string& conName) const {
  const auto found = std::find_if(
      file_.Conversations.begin(), file_.Conversations.end(), [&](const Conversation& con) {
        return con.NPCID == conOwner && EqualNoCase(con.conName, conName);
      });
  return found == file_.Conversations.end() ? -1 : found->key;
}

void OpenFile::TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean) {
  const std::string& owner = GetTableItemName(kActorTable, con->NPCID);
  TreeNode* actor = tree_.FindActor(con->NPCID);
  if (actor == nullptr) actor = &tree_.AddActor(con->NPCID, owner);
  TreeNode& node = tree_.AddConversation(*actor, con->key, con->conName);
  for (std::size_t place = 1; place <= con->flagRefs.Count(); ++place) {
    const FlagRef& flag = *con->flagRefs.Place(place);
    tree_.AddFlag(node, con->flagRefs.KeyAt(place), flagTexts_.Of(flag), flag.bValue);
  }
}

void OpenFile::WalkConversations(const std::function<void(std::int32_t)>& visit) const {
  tree_.WalkConversations(visit);
}

Answer OpenFile::Show(const MessageBox&) {
  ++messages_;
  return Answer::Ok;
}

}  // namespace parlate::fuzzing

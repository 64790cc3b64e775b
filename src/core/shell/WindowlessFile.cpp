#include "shell/WindowlessFile.h"

#include <algorithm>

#include "general/CodePage.h"
#include "general/RuntimeError.h"
#include "model/Tables.h"

namespace parlate {

WindowlessFile::WindowlessFile() {
  workspace.conversations = this;
  workspace.badLabels = &badLabels;
}

bool WindowlessFile::Read(BinaryReader& reader) {
  tree.BeginBulk();
  try {
    const bool loaded = file.LoadConversations(reader, Host());
    tree.EndBulk();
    return loaded;
  } catch (...) {
    tree.EndBulk();  // what was read ahead of the damage stands in order
    throw;
  }
}

void WindowlessFile::Write(ByteSink& sink) {
  BinaryWriter writer(sink);
  file.SaveConversations(writer, Host());
}

std::vector<BadLabelRow> WindowlessFile::CheckAllLabels() {
  return CheckLabels(file, *this, badLabels);
}

std::shared_ptr<Conversation> WindowlessFile::GetConFromID(std::int32_t conID) const {
  return file.Conversations.Find(conID) == nullptr ? nullptr : file.Conversations.Share(conID);
}

std::int32_t WindowlessFile::GetConIDFromName(std::int32_t conOwner,
                                              const std::string& conName) const {
  const auto found = std::find_if(
      file.Conversations.begin(), file.Conversations.end(),
      [&](const auto& con) { return con.NPCID == conOwner && EqualNoCase(con.conName, conName); });
  return found == file.Conversations.end() ? -1 : found->key;
}

void WindowlessFile::TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean) {
  const std::string& owner = GetTableItemName(kActorTable, con->NPCID);
  TreeNode* actor = tree.FindActor(con->NPCID);
  if (actor == nullptr) actor = &tree.AddActor(con->NPCID, owner);
  TreeNode& node = tree.AddConversation(*actor, con->key, con->conName);
  if (showsFlags) AddFlags(node, *con);
}

void WindowlessFile::AddFlags(TreeNode& node, const Conversation& con) {
  for (std::size_t place = 1; place <= con.flagRefs.Count(); ++place) {
    const FlagRef& flag = *con.flagRefs.Place(place);
    try {
      tree.AddFlag(node, con.flagRefs.KeyAt(place), flagTexts_.Of(flag), flag.bValue);
    } catch (RuntimeError& error) {
      error.AddRecord("flag " + std::to_string(place));
      throw;
    }
  }
}

void WindowlessFile::WalkConversations(const std::function<void(std::int32_t)>& visit) const {
  tree.WalkConversations(visit);
}

}  // namespace parlate

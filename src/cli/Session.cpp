#include "cli/Session.h"

#include <algorithm>

#include "cli/OutputFile.h"
#include "general/BinaryFile.h"
#include "general/CodePage.h"
#include "model/Tables.h"

namespace parlate::cli {

Session::Session() : scope_(workspace) {
  workspace.conversations = this;
  workspace.badLabels = &badLabels;
}

void Session::Load(const std::string& path) {
  FileSource source(path);
  BinaryReader reader(source);
  tree_.BeginBulk();
  try {
    file.LoadConversations(reader, Host());
  } catch (const Refusal& refusal) {
    throw Refusal(refusal.what() + (" (offset " + std::to_string(reader.Offset()) + ")"));
  }
  tree_.EndBulk();
}

void Session::Save(const std::string& path) {
  OutputFile output(path);
  {
    BinaryWriter writer(output);
    file.SaveConversations(writer, Host());
  }
  output.Commit();
}

void Session::ForEachConversation(const std::function<void(const Conversation&)>& visit) const {
  tree_.WalkConversations([&](std::int32_t key) { visit(file.Conversations.At(key)); });
}

std::shared_ptr<Conversation> Session::GetConFromID(std::int32_t conID) const {
  return file.Conversations.Find(conID) == nullptr ? nullptr : file.Conversations.Share(conID);
}

std::int32_t Session::GetConIDFromName(std::int32_t conOwner, const std::string& conName) const {
  const auto found = std::find_if(
      file.Conversations.begin(), file.Conversations.end(),
      [&](const auto& con) { return con.NPCID == conOwner && EqualNoCase(con.conName, conName); });
  return found == file.Conversations.end() ? -1 : found->key;
}

void Session::TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean) {
  const std::string& owner = GetTableItemName(kActorTable, con->NPCID);
  TreeNode* actor = tree_.FindActor(con->NPCID);
  if (actor == nullptr) actor = &tree_.AddActor(con->NPCID, owner);
  tree_.AddConversation(*actor, con->key, con->conName);
}

void Session::WalkConversations(const std::function<void(std::int32_t)>& visit) const {
  tree_.WalkConversations(visit);
}

Answer Session::Show(const MessageBox& box) {
  std::string line = ToUtf8(box.text);
  std::replace(line.begin(), line.end(), '\n', ' ');
  throw Refusal(line);
}

}  // namespace parlate::cli

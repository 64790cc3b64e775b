#include "bench/HostedFile.h"

#include <stdexcept>

#include "general/BinaryFile.h"
#include "model/Tables.h"

namespace parlate::bench {

HostedFile::HostedFile() : scope_(workspace) {
  workspace.conversations = this;
  workspace.badLabels = &badLabels;
  workspace.defaults.Username = "A Writer";
}

void HostedFile::Load(const std::string& path) {
  FileSource source(path);
  LoadFrom(source);
}

void HostedFile::LoadBytes(std::string_view bytes) {
  MemorySource source(bytes);
  LoadFrom(source);
}

void HostedFile::LoadFrom(ByteSource& source) {
  BinaryReader reader(source);
  tree.BeginBulk();
  file.LoadConversations(reader, Host());
  tree.EndBulk();
}

void HostedFile::Save(const std::string& path) {
  FileSink sink(path);
  SaveTo(sink);
}

std::string HostedFile::SaveBytes() {
  MemorySink sink;
  SaveTo(sink);
  return sink.Bytes();
}

void HostedFile::SaveTo(ByteSink& sink) {
  BinaryWriter writer(sink);
  file.SaveConversations(writer, Host());
}

std::size_t HostedFile::CheckAllLabels() { return CheckLabels(file, *this, badLabels).size(); }

std::shared_ptr<Conversation> HostedFile::GetConFromID(std::int32_t conID) const {
  return file.Conversations.Find(conID) == nullptr ? nullptr : file.Conversations.Share(conID);
}

std::int32_t HostedFile::GetConIDFromName(std::int32_t, const std::string&) const { return -1; }

void HostedFile::TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean) {
  const std::string& owner = GetTableItemName(kActorTable, con->NPCID);
  TreeNode* actor = tree.FindActor(con->NPCID);
  if (actor == nullptr) actor = &tree.AddActor(con->NPCID, owner);
  tree.AddConversation(*actor, con->key, con->conName);
}

void HostedFile::WalkConversations(const std::function<void(std::int32_t)>& visit) const {
  tree.WalkConversations(visit);
}

Answer HostedFile::Show(const MessageBox& box) { throw std::runtime_error(box.text); }

}  // namespace parlate::bench

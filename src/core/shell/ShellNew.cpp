// Files and conversations from nothing, and the properties of what is there.

#include "model/Tables.h"
#include "shell/Shell.h"

namespace parlate {

Boolean Shell::NewConFile() {
  if (!CloseConFile()) return false;
  view_.UnloadEventEditor();
  conFile_ = std::make_unique<ConversationFile>();
  SetModified(false, nullptr);
  SetSelectedCon(nullptr);
  tree_.Clear();
  events_.Clear();
  bReadOnly_ = false;
  BuildMissionTable();
  UpdateCommandStates();
  view_.ShowFileProperties();
  // OK in the dialog is what marks the file.
  const Boolean kept = conFile_->IsModified();
  if (!kept) CloseConFile();
  UpdateCommandStates();
  return kept;
}

void Shell::AddConversation() {
  if (!conFile_) return;
  const auto con = std::make_shared<Conversation>();
  con->key = conFile_->NextKey();
  con->NPCID = -1;
  con->bDisplayOnce = true;
  con->bInvokeFrob = true;
  con->bInvokeBump = true;
  if (view_.ShowProperties(*con, 0) != 0) {
    conFile_->UndoLastKey();
  } else {
    conFile_->Conversations.Add(con->key, con);
    TreeViewAddConversation(con, true);
    SetModified(true, nullptr);
  }
  UpdateCommandStates();
}

void Shell::EditConversationProperties(int tabIndex) {
  const std::shared_ptr<Conversation> con = selectedCon_;
  if (!con) return;
  const std::int32_t oldNPCID = con->NPCID;
  if (view_.ShowProperties(*con, tabIndex) != 0) return;
  if (con->NPCID != oldNPCID) {
    TreeViewRemoveConversation(*con, oldNPCID);
    TreeViewAddConversation(con, true);
  }
  if (TreeNode* node = tree_.FindConversation(con->key)) tree_.SetText(*node, con->conName);
  TreeViewUpdateConFlags(*con);
  KeepNodeSelected(*con);
  SetModified(true, con.get());
}

void Shell::AddFlags() {
  const std::shared_ptr<Conversation> con = selectedCon_;
  if (!con || !view_.PickFlags(con->flagRefs)) return;
  // Meant: as with the toggle of the popup, the file is not marked.
  TreeViewUpdateConFlags(*con);
  KeepNodeSelected(*con);
}

void Shell::KeepNodeSelected(const Conversation& con) {
  if (tree_.SelectedItem() == nullptr) tree_.SetSelectedItem(tree_.FindConversation(con.key));
}

}  // namespace parlate

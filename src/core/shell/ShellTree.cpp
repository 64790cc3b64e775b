// The tree of actors, conversations and flags, and what is done in it.

#include <algorithm>

#include "general/CodePage.h"
#include "general/Numbers.h"
#include "model/Tables.h"
#include "shell/Shell.h"

namespace parlate {

void Shell::SetSelectedCon(const std::shared_ptr<Conversation>& con) {
  if (selectedCon_ == con) return;
  selectedCon_ = con;
  UpdateEventsList(con);
}

void Shell::TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean bSelect) {
  const std::string& owner = GetTableItemName(kActorTable, con->NPCID);
  TreeNode* actor = tree_.FindActor(con->NPCID);
  if (actor == nullptr) actor = &tree_.AddActor(con->NPCID, owner);
  TreeNode& node = tree_.AddConversation(*actor, con->key, con->conName);
  TreeViewUpdateConFlags(*con);
  if (!bSelect) return;
  tree_.SetSelectedItem(&node);
  SetSelectedCon(con);
}

void Shell::TreeViewUpdateConFlags(const Conversation& con) {
  TreeNode* node = tree_.FindConversation(con.key);
  if (node == nullptr) return;
  tree_.RemoveChildren(*node);
  FlagTexts own;
  FlagTexts& texts = Loading ? loadingFlagTexts_ : own;
  for (std::size_t place = 1; place <= con.flagRefs.Count(); ++place) {
    const FlagRef& flag = *con.flagRefs.Place(place);
    tree_.AddFlag(*node, con.flagRefs.KeyAt(place), texts.Of(flag), flag.bValue);
  }
}

void Shell::TreeViewRemoveConversation(const Conversation& con, std::int32_t oldNPCID) {
  if (TreeNode* node = tree_.FindConversation(con.key)) tree_.RemoveNode(*node);
  TreeNode* actor = tree_.FindActor(oldNPCID);
  if (actor != nullptr && actor->children.empty()) tree_.RemoveNode(*actor);
}

void Shell::WalkConversations(const std::function<void(std::int32_t)>& visit) const {
  tree_.WalkConversations(visit);
}

void Shell::TreeViewUpdateFlagNames() {
  FlagTexts texts;
  tree_.Walk([this, &texts](TreeNode& node) {
    if (node.kind != TreeNode::Kind::Flag) return;
    const auto con = GetConFromID(node.ConversationKey());
    const FlagRef* flag = con ? con->flagRefs.Find(node.id) : nullptr;
    if (flag != nullptr) tree_.SetFlag(node, texts.Of(*flag), node.imageTrue);
  });
}

void Shell::TreeViewUpdateActors() {
  if (!conFile_ || tree_.Empty()) return;
  // Sorting comes last, so that the walk over the nodes is not disturbed.
  tree_.BeginBulk();
  for (const auto& actor : tree_.Root().children) {
    tree_.SetText(*actor, GetTableItemName(kActorTable, actor->id));
  }
  tree_.EndBulk();
  tree_.SortActors();
  UpdateEventsList(selectedCon_);
}

void Shell::SelectConversation() {
  UpdateEventsList(selectedCon_);
  UpdateCommandStates();
}

void Shell::SelectConversationByKey(const std::string& itemKey) {
  TreeNode* node = tree_.FindNode("C" + itemKey);
  if (node == nullptr) return;
  tree_.SetSelectedItem(node);
  NodeClick(*node);
}

std::shared_ptr<Conversation> Shell::GetConFromID(std::int32_t conID) const {
  if (!conFile_ || conID == -1) return nullptr;
  const auto& conversations = conFile_->Conversations;
  return conversations.Find(conID) == nullptr ? nullptr : conversations.Share(conID);
}

std::shared_ptr<Conversation> Shell::GetCon(const std::string& strKey) const {
  if (!conFile_ || strKey.empty() || strKey.front() != 'C') return nullptr;
  const auto key = ParseInt32(std::string_view(strKey).substr(1));
  const auto& conversations = conFile_->Conversations;
  return key && conversations.Find(*key) != nullptr ? conversations.Share(*key) : nullptr;
}

std::int32_t Shell::GetConIDFromName(std::int32_t conOwner, const std::string& conName) const {
  if (!conFile_) return -1;
  for (const Conversation& con : conFile_->Conversations) {
    if (con.NPCID == conOwner && EqualNoCase(con.conName, conName)) return con.key;
  }
  return -1;
}

void Shell::ExpandTreeNodes(Boolean bExpand, TreeNode* node) {
  if (node != nullptr) {
    tree_.SetExpanded(*node, bExpand);
    return;
  }
  const bool expandFlags = Defaults().bExpandFlags;
  view_.ShowTree(false);
  tree_.BeginBulk();
  tree_.Walk([&](TreeNode& each) {
    const bool wanted = !bExpand || each.kind == TreeNode::Kind::Actor ||
                        (each.kind == TreeNode::Kind::Conversation && expandFlags);
    if (wanted) tree_.SetExpanded(each, bExpand);
  });
  tree_.EndBulk();
  view_.ShowTree(true);
  if (const TreeNode* selected = tree_.SelectedItem()) SetSelectedCon(GetCon(selected->Key()));
}

void Shell::DeleteConversation(Boolean bNoConfirm) {
  const std::shared_ptr<Conversation> con = selectedCon_;
  if (!con || !conFile_) return;
  if (!bNoConfirm && Defaults().bConfirmationConDelete) {
    const Answer answer = Ask("Delete?", "Are you sure you wish to Delete this Conversation?",
                              MessageBox::Icon::Question, MessageBox::Buttons::YesNo);
    if (answer != Answer::Yes) return;
  }
  conFile_->RemoveConversationLinks(con->key);
  conFile_->ConversationRemove(con->key);
  TreeViewRemoveConversation(*con, con->NPCID);
  SetSelectedCon(nullptr);
  SetModified(true, nullptr);
  UpdateCommandStates();
}

void Shell::PopulateConvCombo(ComboBox& cboCons) const {
  cboCons.Clear();
  if (!conFile_) return;
  for (const Conversation& con : conFile_->Conversations) {
    cboCons.AddItem(con.conName);
    cboCons.SetItemData(cboCons.ListCount() - 1, con.key);
  }
}

void Shell::NodeClick(TreeNode& node) {
  switch (node.kind) {
    case TreeNode::Kind::Conversation:
      SetSelectedCon(GetConFromID(node.id));
      UpdateEventsList(selectedCon_);
      break;
    case TreeNode::Kind::Actor:
      SetSelectedCon(nullptr);
      break;
    case TreeNode::Kind::Flag:
      SetSelectedCon(GetConFromID(node.ConversationKey()));
      break;
    case TreeNode::Kind::Root:
      break;
  }
  lastClickedRow = -1;
}

void Shell::NodeDoubleClick(TreeNode& node) {
  if (node.kind == TreeNode::Kind::Flag) ToggleSelectedFlag(true);
}

bool Shell::CanRename(const TreeNode& node) const {
  return node.kind == TreeNode::Kind::Conversation;
}

bool Shell::IsNameTakenByAnother(const Conversation& con, const std::string& name) const {
  const auto& conversations = conFile_->Conversations;
  return std::any_of(conversations.begin(), conversations.end(), [&](const Conversation& other) {
    return &other != &con && EqualNoCase(other.conName, name);
  });
}

bool Shell::RenameConversation(TreeNode& node, const std::string& newName) {
  const std::shared_ptr<Conversation> con = GetConFromID(node.ConversationKey());
  if (!con || !selectedCon_) return false;
  const auto refuse = [this](const std::string& text) {
    Tell("", text, MessageBox::Icon::None);
    return false;
  };
  if (!IsValidName(newName)) {
    return refuse(
        "Conversation names can only consist of letters, digits, underscore (_) and dash (-).");
  }
  const bool isOther = !EqualNoCase(newName, con->conName);
  if (isOther && (IsConNameInUse(newName) || IsNameTakenByAnother(*con, newName))) {
    return refuse("Conversation Name already in use, please choose another name.");
  }
  if (newName.empty()) return refuse("Conversation Names Cannot Be Blank!");
  con->conName = newName;
  SetModified(true, con.get());
  tree_.SetText(node, newName);
  return true;
}

FlagRef* Shell::SelectedFlag() const {
  const TreeNode* node = tree_.SelectedItem();
  if (node == nullptr || node->kind != TreeNode::Kind::Flag) return nullptr;
  const auto con = GetConFromID(node->ConversationKey());
  return con ? con->flagRefs.Find(node->id) : nullptr;
}

void Shell::RemoveSelectedFlag() {
  if (SelectedFlag() == nullptr) return;
  TreeNode& node = *tree_.SelectedItem();
  const auto con = GetConFromID(node.ConversationKey());
  con->flagRefs.Remove(node.id);
  tree_.RemoveNode(node);
  // The keys go on from the conversation, and so does the popup.
  KeepNodeSelected(*con);
  SetModified(true, con.get());
}

void Shell::ToggleSelectedFlag(Boolean bMarkModified) {
  FlagRef* flag = SelectedFlag();
  if (flag == nullptr) return;
  TreeNode& node = *tree_.SelectedItem();
  flag->bValue = !flag->bValue;
  tree_.SetFlag(node, FlagTexts().Of(*flag), flag->bValue);
  // Meant: the popup's command leaves the file unmarked, so it may close without a question.
  if (bMarkModified) SetModified(true, GetConFromID(node.ConversationKey()).get());
}

}  // namespace parlate

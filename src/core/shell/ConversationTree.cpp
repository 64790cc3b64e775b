#include "shell/ConversationTree.h"

#include <algorithm>
#include <utility>

#include "general/CodePage.h"
#include "general/Numbers.h"

namespace parlate {

namespace {

void Renumber(TreeNode& parent, std::size_t from) {
  for (std::size_t i = from; i < parent.children.size(); ++i) parent.children[i]->row = i;
}

/// Behind all children whose name is not greater.
std::size_t SortedPlace(const TreeNode& parent, const std::string& text) {
  const auto at = std::upper_bound(
      parent.children.begin(), parent.children.end(), text,
      [](const std::string& left, const auto& right) { return LessNoCase(left, right->text); });
  return static_cast<std::size_t>(at - parent.children.begin());
}

/// A node on its way to its place, with the first bytes of its folded name behind those that all
/// names share, as a number: most comparisons of a sort end there and need not look into the node.
struct SortedNode {
  std::uint64_t beginning = 0;
  std::unique_ptr<TreeNode> node;

  bool operator<(const SortedNode& other) const {
    if (beginning != other.beginning) return beginning < other.beginning;
    return LessNoCase(node->text, other.node->text);
  }
};

/// Bytes from `from` on of the folded text, the first of them the highest; zero behind the end.
std::uint64_t FoldedBytes(std::string_view text, std::size_t from) {
  std::uint64_t bytes = 0;
  for (std::size_t i = from; i < from + sizeof(bytes); ++i) {
    const auto byte = i < text.size() ? static_cast<unsigned char>(FoldCase(text[i])) : 0U;
    bytes = bytes << 8U | byte;
  }
  return bytes;
}

/// How many bytes the names of all children begin with alike.
std::size_t SharedBeginning(const TreeNode& parent) {
  if (parent.children.empty()) return 0;
  std::string_view shared = parent.children.front()->text;
  for (const auto& child : parent.children) {
    const auto end =
        std::mismatch(shared.begin(), shared.end(), child->text.begin(), child->text.end());
    shared = shared.substr(0, static_cast<std::size_t>(end.first - shared.begin()));
  }
  return shared.size();
}

void WalkFrom(TreeNode& node, const std::function<void(TreeNode&)>& visit) {
  for (const auto& child : node.children) {
    visit(*child);
    WalkFrom(*child, visit);
  }
}

std::size_t CountFrom(const TreeNode& node) {
  std::size_t count = node.children.size();
  for (const auto& child : node.children) count += CountFrom(*child);
  return count;
}

bool IsInside(const TreeNode* node, const TreeNode& ancestor) {
  for (; node != nullptr; node = node->parent) {
    if (node == &ancestor) return true;
  }
  return false;
}

}  // namespace

std::string TreeNode::Key() const {
  switch (kind) {
    case Kind::Actor:
      return "A" + std::to_string(id);
    case Kind::Conversation:
      return "C" + std::to_string(id);
    case Kind::Flag:
      return "F" + std::to_string(id) + "," + std::to_string(parent->id);
    case Kind::Root:
      break;
  }
  return {};
}

std::string TreeNode::Image() const {
  switch (kind) {
    case Kind::Actor:
      return "Actor";
    case Kind::Conversation:
      return "Con";
    case Kind::Flag:
      return imageTrue ? "FlagTrue" : "FlagFalse";
    case Kind::Root:
      break;
  }
  return {};
}

std::int32_t TreeNode::ConversationKey() const { return kind == Kind::Flag ? parent->id : id; }

ConversationTree::ConversationTree() : root_(std::make_unique<TreeNode>()) {}

std::size_t ConversationTree::NodeCount() const { return CountFrom(*root_); }

TreeNode* ConversationTree::FindActor(std::int32_t actorID) const {
  const auto found = actors_.find(actorID);
  return found == actors_.end() ? nullptr : found->second;
}

TreeNode* ConversationTree::FindConversation(std::int32_t conKey) const {
  const auto found = conversations_.find(conKey);
  return found == conversations_.end() ? nullptr : found->second;
}

TreeNode* ConversationTree::FindFlag(std::int32_t conKey, std::int32_t flagKey) const {
  const TreeNode* conversation = FindConversation(conKey);
  if (conversation == nullptr) return nullptr;
  const auto found = std::find_if(conversation->children.begin(), conversation->children.end(),
                                  [flagKey](const auto& flag) { return flag->id == flagKey; });
  return found == conversation->children.end() ? nullptr : found->get();
}

TreeNode* ConversationTree::FindNode(std::string_view key) const {
  TreeNode* node = NodeOfNumbers(key);
  // A number can be written in more ways than the key has it.
  return node != nullptr && node->Key() == key ? node : nullptr;
}

TreeNode* ConversationTree::NodeOfNumbers(std::string_view key) const {
  if (key.empty()) return nullptr;
  const char kind = key.front();
  key.remove_prefix(1);
  const std::size_t comma = key.find(',');
  const auto id = ParseInt32(key.substr(0, comma));
  if (!id) return nullptr;
  if (kind == 'A') return FindActor(*id);
  if (kind == 'C') return FindConversation(*id);
  if (kind != 'F' || comma == std::string_view::npos) return nullptr;
  const auto conKey = ParseInt32(key.substr(comma + 1));
  return conKey ? FindFlag(*conKey, *id) : nullptr;
}

TreeNode& ConversationTree::Insert(TreeNode& parent, std::unique_ptr<TreeNode> node) {
  const bool placed = parent.sorted && bulkDepth_ == 0;
  const std::size_t row = placed ? SortedPlace(parent, node->text) : parent.children.size();
  if (parent.sorted && !placed) parent.unsorted = true;
  node->parent = &parent;
  if (!Silent()) listener_->BeforeInsert(parent, row);
  TreeNode& inserted = **parent.children.insert(
      parent.children.begin() + static_cast<std::ptrdiff_t>(row), std::move(node));
  Renumber(parent, row);
  if (!Silent()) listener_->AfterInsert();
  return inserted;
}

TreeNode& ConversationTree::AddActor(std::int32_t actorID, const std::string& name) {
  auto node = std::make_unique<TreeNode>();
  node->kind = TreeNode::Kind::Actor;
  node->id = actorID;
  node->text = name;
  node->sorted = true;
  TreeNode& added = Insert(*root_, std::move(node));
  actors_[actorID] = &added;
  return added;
}

TreeNode& ConversationTree::AddConversation(TreeNode& actor, std::int32_t conKey,
                                            const std::string& name) {
  auto node = std::make_unique<TreeNode>();
  node->kind = TreeNode::Kind::Conversation;
  node->id = conKey;
  node->text = name;
  TreeNode& added = Insert(actor, std::move(node));
  conversations_[conKey] = &added;
  return added;
}

void ConversationTree::AddFlag(TreeNode& conversation, std::int32_t flagKey,
                               std::shared_ptr<const std::string> text, bool imageTrue) {
  auto node = std::make_unique<TreeNode>();
  node->kind = TreeNode::Kind::Flag;
  node->id = flagKey;
  node->flagText = std::move(text);
  node->imageTrue = imageTrue;
  Insert(conversation, std::move(node));
}

void ConversationTree::Forget(const TreeNode& node) {
  if (node.kind == TreeNode::Kind::Actor) actors_.erase(node.id);
  if (node.kind == TreeNode::Kind::Conversation) conversations_.erase(node.id);
  for (const auto& child : node.children) Forget(*child);
}

void ConversationTree::RemoveNode(TreeNode& node) {
  TreeNode& parent = *node.parent;
  const std::size_t row = node.row;
  const bool holdsSelection = IsInside(selected_, node);
  if (holdsSelection) selected_ = nullptr;
  Forget(node);
  if (!Silent()) listener_->BeforeRemove(parent, row);
  parent.children.erase(parent.children.begin() + static_cast<std::ptrdiff_t>(row));
  Renumber(parent, row);
  if (!Silent()) listener_->AfterRemove();
  if (holdsSelection && !Silent()) listener_->SelectedItemChanged();
}

void ConversationTree::RemoveChildren(TreeNode& node) {
  while (!node.children.empty()) RemoveNode(*node.children.back());
}

void ConversationTree::Clear() {
  if (!Silent()) listener_->BeforeReset();
  const bool actorsSorted = root_->sorted;  // the sort outlives the nodes
  root_ = std::make_unique<TreeNode>();
  root_->sorted = actorsSorted;
  actors_.clear();
  conversations_.clear();
  selected_ = nullptr;
  if (!Silent()) listener_->AfterReset();
}

void ConversationTree::Place(TreeNode& node) {
  TreeNode& parent = *node.parent;
  auto& siblings = parent.children;
  const std::size_t from = node.row;
  // The place among the others: the node itself does not count.
  std::unique_ptr<TreeNode> moving = std::move(siblings[from]);
  siblings.erase(siblings.begin() + static_cast<std::ptrdiff_t>(from));
  const std::size_t to = SortedPlace(parent, moving->text);
  siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(from), std::move(moving));
  if (to == from) return;
  if (!Silent()) listener_->BeforeMove(parent, from, to > from ? to + 1 : to);
  const auto at = [&](std::size_t row) {
    return siblings.begin() + static_cast<std::ptrdiff_t>(row);
  };
  if (to > from) {
    std::rotate(at(from), at(from + 1), at(to + 1));
  } else {
    std::rotate(at(to), at(from), at(from + 1));
  }
  Renumber(parent, std::min(from, to));
  if (!Silent()) listener_->AfterMove();
}

void ConversationTree::SetText(TreeNode& node, const std::string& text) {
  if (node.text == text) return;
  node.text = text;
  if (!Silent()) listener_->NodeChanged(node);
  if (!node.parent->sorted) return;
  if (bulkDepth_ > 0) {
    node.parent->unsorted = true;
  } else {
    Place(node);
  }
}

void ConversationTree::SetFlag(TreeNode& node, std::shared_ptr<const std::string> text,
                               bool imageTrue) {
  node.flagText = std::move(text);
  node.imageTrue = imageTrue;
  if (!Silent()) listener_->NodeChanged(node);
}

void ConversationTree::SetExpanded(TreeNode& node, bool expanded) {
  if (node.expanded == expanded) return;
  node.expanded = expanded;
  if (!Silent()) listener_->ExpandedChanged(node);
}

void ConversationTree::SortChildren(TreeNode& parent) {
  const std::size_t shared = SharedBeginning(parent);
  std::vector<SortedNode> nodes;
  nodes.reserve(parent.children.size());
  for (auto& child : parent.children) {
    const std::uint64_t beginning = FoldedBytes(child->text, shared);
    nodes.push_back({beginning, std::move(child)});
  }
  std::stable_sort(nodes.begin(), nodes.end());
  for (std::size_t i = 0; i < nodes.size(); ++i) parent.children[i] = std::move(nodes[i].node);
  Renumber(parent, 0);
  parent.unsorted = false;
}

void ConversationTree::SortActors() {
  if (!Silent()) listener_->BeforeReset();
  root_->sorted = true;
  SortChildren(*root_);
  if (!Silent()) listener_->AfterReset();
}

void ConversationTree::SetSelectedItem(TreeNode* node) {
  if (selected_ == node) return;
  selected_ = node;
  if (!Silent()) listener_->SelectedItemChanged();
}

void ConversationTree::BeginBulk() {
  if (bulkDepth_++ == 0 && listener_ != nullptr) listener_->BeforeReset();
}

void ConversationTree::EndBulk() {
  if (--bulkDepth_ > 0) return;
  if (root_->unsorted) SortChildren(*root_);
  for (const auto& actor : root_->children) {
    if (actor->unsorted) SortChildren(*actor);
  }
  if (listener_ != nullptr) listener_->AfterReset();
}

void ConversationTree::Walk(const std::function<void(TreeNode&)>& visit) const {
  WalkFrom(*root_, visit);
}

void ConversationTree::WalkConversations(const std::function<void(std::int32_t)>& visit) const {
  for (const auto& actor : root_->children) {
    for (const auto& conversation : actor->children) visit(conversation->id);
  }
}

}  // namespace parlate

// Finding text in the events, from hit to hit.

#include <algorithm>
#include <vector>

#include "general/CodePage.h"
#include "shell/Shell.h"

namespace parlate {

/// What is looked for, the same for every event of a search.
struct TextQuery {
  std::string text;
  Boolean bWholeWord;
  CompareMethod method = CompareMethod::Text;
  std::int32_t eventType = -1;  ///< -1 for any.
};

namespace {

constexpr int kMostHistoryEntries = 10;
constexpr std::int32_t kNoHit = -1;
constexpr std::size_t kEventsBetweenRepaints = 4096;

/// The nodes of the tree in the order in which they are shown, counted from 1. Behind the last one
/// comes the first.
class NodeRing {
 public:
  explicit NodeRing(const ConversationTree& tree) {
    tree.Walk([this](TreeNode& node) {
      nodes_.push_back(&node);
      holdsConversation_ = holdsConversation_ || IsConversation(node);
    });
  }

  [[nodiscard]] bool HoldsConversation() const { return holdsConversation_; }
  [[nodiscard]] TreeNode& At(std::int32_t index) const {
    return *nodes_[static_cast<std::size_t>(index) - 1];
  }
  /// 1 without a node.
  [[nodiscard]] std::int32_t IndexOf(const TreeNode* node) const {
    const auto found = std::find(nodes_.begin(), nodes_.end(), node);
    return found == nodes_.end() ? 1 : static_cast<std::int32_t>(found - nodes_.begin()) + 1;
  }
  /// The first conversation at or behind a node. One that went since counts as the first.
  [[nodiscard]] std::int32_t ConversationFrom(std::int32_t index) const {
    if (index > Count()) index = 1;
    while (!IsConversation(At(index))) index = Next(index);
    return index;
  }
  [[nodiscard]] std::int32_t NextConversation(std::int32_t index) const {
    return ConversationFrom(Next(index));
  }

 private:
  static bool IsConversation(const TreeNode& node) {
    return node.kind == TreeNode::Kind::Conversation;
  }
  [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(nodes_.size()); }
  [[nodiscard]] std::int32_t Next(std::int32_t index) const {
    return index >= Count() ? 1 : index + 1;
  }

  std::vector<TreeNode*> nodes_;
  bool holdsConversation_ = false;
};

/// The first event at or behind `from`, and ahead of `to`, that holds the text.
std::int32_t FindIn(const Conversation* con, std::int32_t from, std::int32_t to,
                    const TextQuery& query, ProgressDisplay& progress) {
  if (con == nullptr) return kNoHit;
  const auto end = std::min(static_cast<std::size_t>(to), con->events.Count());
  for (auto i = static_cast<std::size_t>(from); i < end; ++i) {
    if ((i + 1) % kEventsBetweenRepaints == 0) progress.LetRepaint();
    const EventItem& event = *con->events.Place(i + 1);
    if (event.FindString(query.text, query.bWholeWord, query.method, query.eventType)) {
      return static_cast<std::int32_t>(i);
    }
  }
  return kNoHit;
}

}  // namespace

void Shell::ResetSearch() {
  searchConIndex_ = -1;
  searchEventIndex_ = -1;
}

Boolean Shell::FindText(ComboBox& cboFind, Boolean bWholeWord, Boolean bMatchCase, Boolean bAllCons,
                        std::int32_t searchEventType) {
  const std::string text = cboFind.Text();
  const TextQuery query = {text, bWholeWord,
                           bMatchCase ? CompareMethod::Binary : CompareMethod::Text,
                           searchEventType - 1};
  const bool found = FindNext(query, bAllCons);
  UpdateCommandStates();
  if (found) return true;
  Tell("Not found", "Search text not found.", MessageBox::Icon::Information);
  cboFind.SetFocus();
  cboFind.SelectText(0, static_cast<int>(text.size()));
  return false;
}

bool Shell::FindNext(const TextQuery& query, bool bAllCons) {
  const NodeRing ring(tree_);
  if (!ring.HoldsConversation()) return false;
  const bool first = searchConIndex_ == -1;
  const std::int32_t start =
      ring.ConversationFrom(first ? ring.IndexOf(tree_.SelectedItem()) : searchConIndex_);
  SelectFound(ring.At(start));
  if (searchEventIndex_ == -1) searchEventIndex_ = std::max(events_.ListIndex(), 0);
  const std::int32_t startEvent = searchEventIndex_;

  const auto findAt = [&](std::int32_t node, std::int32_t from, std::int32_t to) {
    const auto con = GetConFromID(ring.At(node).id);
    const std::int32_t hit = FindIn(con.get(), from, to, query, doors_.progress);
    if (hit == kNoHit) return false;
    SelectFound(ring.At(node));
    events_.SetListIndex(con->events.Place(static_cast<std::size_t>(hit) + 1)->listPos);
    searchConIndex_ = node;
    searchEventIndex_ = hit;
    return true;
  };
  // A first search begins with the selected row itself, a repeat behind the last hit.
  if (findAt(start, first ? startEvent : startEvent + 1, INT32_MAX)) return true;
  if (!bAllCons) {
    if (events_.ListCount() > 0) events_.SetListIndex(0);
    ResetSearch();
    return false;
  }
  for (auto node = ring.NextConversation(start); node != start;
       node = ring.NextConversation(node)) {
    doors_.progress.LetRepaint();
    if (findAt(node, 0, INT32_MAX)) return true;
  }
  // Round the tree: what is left stands ahead of the place where the walk began.
  // Meant: a repeat compares its place with the last hit after it has moved on to the next
  // conversation, not on an actor or a flag ahead of that one. So it ends at the last hit, and does
  // not find it again, also where that is the first event of a conversation.
  return findAt(start, 0, startEvent);
}

void Shell::SelectFound(TreeNode& node) {
  tree_.SetSelectedItem(&node);
  SetSelectedCon(GetConFromID(node.id));
}

void AddComboHistory(ComboBox& combo) {
  const std::string text = combo.Text();
  bool listed = false;
  for (int i = 0; i < combo.ListCount() && !listed; ++i) listed = combo.List(i) == text;
  if (!listed) {
    combo.InsertItem(text, 0);
    if (combo.ListCount() > kMostHistoryEntries) combo.RemoveItem(kMostHistoryEntries);
  }
  combo.SelectText(0, static_cast<int>(text.size()));
}

}  // namespace parlate

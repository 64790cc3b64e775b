#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/Conversation.h"
#include "model/FlagRef.h"

namespace parlate {

/// A node of the tree: an actor, one of the conversations it owns, or a flag of a conversation.
struct TreeNode {
  enum class Kind { Root, Actor, Conversation, Flag };

  Kind kind = Kind::Root;
  std::int32_t id = 0;  ///< Actor ID, conversation key, or collection key of the flag.
  std::string text;     ///< Code-page text of an actor or a conversation; see `Text`.
  std::shared_ptr<const std::string> flagText;  ///< Text of a flag, shared by all alike.
  bool imageTrue = false;                       ///< Picture of a flag: "FlagTrue" or "FlagFalse".
  bool expanded = false;
  bool sorted = false;    ///< Whether the children stand by name.
  bool unsorted = false;  ///< Children came in during a bulk change and are sorted at its end.
  std::size_t row = 0;    ///< Place among the siblings.
  TreeNode* parent = nullptr;
  std::vector<std::unique_ptr<TreeNode>> children;

  /// What the node shows.
  [[nodiscard]] const std::string& Text() const { return flagText ? *flagText : text; }
  /// "A" and the actor's ID, "C" and the conversation's key, "F" and the flag's key, a comma and
  /// the conversation's key.
  [[nodiscard]] std::string Key() const;
  /// "Actor", "Con", "FlagTrue" or "FlagFalse".
  [[nodiscard]] std::string Image() const;
  /// Key of the conversation that a conversation or flag node belongs to.
  [[nodiscard]] std::int32_t ConversationKey() const;
};

/// What a view of the tree is told. Calls come in pairs around the change.
class ConversationTreeListener {
 public:
  virtual ~ConversationTreeListener() = default;
  virtual void BeforeReset() = 0;
  virtual void AfterReset() = 0;
  virtual void BeforeInsert(const TreeNode& parent, std::size_t row) = 0;
  virtual void AfterInsert() = 0;
  virtual void BeforeRemove(const TreeNode& parent, std::size_t row) = 0;
  virtual void AfterRemove() = 0;
  /// `to` counts before the move, as an insertion place.
  virtual void BeforeMove(const TreeNode& parent, std::size_t from, std::size_t to) = 0;
  virtual void AfterMove() = 0;
  virtual void NodeChanged(const TreeNode& node) = 0;
  virtual void ExpandedChanged(const TreeNode& node) = 0;
  virtual void SelectedItemChanged() = 0;
};

/// The nodes of the open file in the order in which they are shown. Conversations stand by name at
/// all times, without regard to case and by code-page byte; equal names keep the order of
/// insertion. Actors stand in the order of their first conversation until `SortActors`.
class ConversationTree {
 public:
  ConversationTree();

  void SetListener(ConversationTreeListener* listener) { listener_ = listener; }

  [[nodiscard]] const TreeNode& Root() const { return *root_; }
  [[nodiscard]] bool Empty() const { return root_->children.empty(); }
  [[nodiscard]] std::size_t NodeCount() const;

  [[nodiscard]] TreeNode* FindActor(std::int32_t actorID) const;
  [[nodiscard]] TreeNode* FindConversation(std::int32_t conKey) const;
  [[nodiscard]] TreeNode* FindFlag(std::int32_t conKey, std::int32_t flagKey) const;
  /// The node of a key text, or nothing.
  [[nodiscard]] TreeNode* FindNode(std::string_view key) const;

  TreeNode& AddActor(std::int32_t actorID, const std::string& name);
  TreeNode& AddConversation(TreeNode& actor, std::int32_t conKey, const std::string& name);
  void AddFlag(TreeNode& conversation, std::int32_t flagKey,
               std::shared_ptr<const std::string> text, bool imageTrue);
  void RemoveNode(TreeNode& node);
  void RemoveChildren(TreeNode& node);
  /// Removes every node. A sort of the actors that was switched on stays on.
  void Clear();

  /// Changes the text of an actor or a conversation; where siblings are sorted, the node moves to
  /// its new place.
  void SetText(TreeNode& node, const std::string& text);
  void SetFlag(TreeNode& node, std::shared_ptr<const std::string> text, bool imageTrue);
  void SetExpanded(TreeNode& node, bool expanded);
  /// Sorts the actors, now and from now on.
  void SortActors();

  [[nodiscard]] TreeNode* SelectedItem() const { return selected_; }
  void SetSelectedItem(TreeNode* node);

  /// Between the two calls nodes come in without a word to the listener and are sorted once.
  void BeginBulk();
  void EndBulk();

  /// Calls back with every node, parents ahead of their children.
  void Walk(const std::function<void(TreeNode&)>& visit) const;
  /// Calls back with the key of each conversation, actor by actor.
  void WalkConversations(const std::function<void(std::int32_t)>& visit) const;

 private:
  /// The node that the numbers of a key text stand for, however they are written.
  [[nodiscard]] TreeNode* NodeOfNumbers(std::string_view key) const;
  TreeNode& Insert(TreeNode& parent, std::unique_ptr<TreeNode> node);
  void Forget(const TreeNode& node);
  void Place(TreeNode& node);
  void SortChildren(TreeNode& parent);
  [[nodiscard]] bool Silent() const { return listener_ == nullptr || bulkDepth_ > 0; }

  std::unique_ptr<TreeNode> root_;
  std::unordered_map<std::int32_t, TreeNode*> actors_;
  std::unordered_map<std::int32_t, TreeNode*> conversations_;
  TreeNode* selected_ = nullptr;
  ConversationTreeListener* listener_ = nullptr;
  int bulkDepth_ = 0;
};

}  // namespace parlate

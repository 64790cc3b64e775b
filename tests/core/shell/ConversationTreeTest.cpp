#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "general/CodePage.h"
#include "shell/ConversationTree.h"

namespace parlate {
namespace {

using testing::ElementsAre;

std::vector<std::string> Children(const TreeNode& parent) {
  std::vector<std::string> texts;
  for (const auto& child : parent.children) texts.push_back(child->text);
  return texts;
}

TEST(ConversationTree, SortsConversationsByNameWithoutRegardToCase) {
  ConversationTree tree;
  TreeNode& actor = tree.AddActor(1, "Zoe");
  std::int32_t key = 0;
  for (const char* name : {"delta", "Alpha", "charlie", "Bravo", "_x", "-y", "9", "\xC9t\xE9"}) {
    tree.AddConversation(actor, key++, name);
  }
  EXPECT_THAT(Children(actor),
              ElementsAre("-y", "9", "_x", "Alpha", "Bravo", "charlie", "delta", "\xC9t\xE9"));
}

TEST(ConversationTree, ComparesAccentedLettersFoldedByTheirByte) {
  ConversationTree tree;
  TreeNode& actor = tree.AddActor(1, "Zoe");
  tree.AddConversation(actor, 0, "\xE9");
  tree.AddConversation(actor, 1, "\xC8");
  EXPECT_THAT(Children(actor), ElementsAre("\xC8", "\xE9"));
}

TEST(ConversationTree, KeepsTheOrderOfInsertionAmongEqualNames) {
  ConversationTree tree;
  TreeNode& actor = tree.AddActor(1, "Zoe");
  for (std::int32_t key = 0; key < 3; ++key) tree.AddConversation(actor, key, "same");
  tree.AddConversation(actor, 3, "SAME");
  std::vector<std::int32_t> keys;
  tree.WalkConversations([&](std::int32_t key) { keys.push_back(key); });
  EXPECT_THAT(keys, ElementsAre(0, 1, 2, 3));
}

TEST(ConversationTree, KeepsTheOrderOfInsertionAmongManyThatComeAtOnce) {
  constexpr std::int32_t kMany = 200;
  ConversationTree tree;
  TreeNode& actor = tree.AddActor(1, "Zoe");
  tree.BeginBulk();
  for (std::int32_t key = 0; key < kMany; ++key) {
    tree.AddConversation(actor, key, key % 2 == 0 ? "Even" : "odd");
  }
  tree.EndBulk();
  std::vector<std::int32_t> expected;
  for (std::int32_t key = 0; key < kMany; key += 2) expected.push_back(key);
  for (std::int32_t key = 1; key < kMany; key += 2) expected.push_back(key);
  std::vector<std::int32_t> keys;
  tree.WalkConversations([&](std::int32_t key) { keys.push_back(key); });
  EXPECT_EQ(keys, expected);
}

TEST(ConversationTree, LeavesActorsInTheirOrderUntilTheyAreSorted) {
  ConversationTree tree;
  tree.AddActor(1, "Zoe");
  tree.AddActor(2, "Anna");
  EXPECT_THAT(Children(tree.Root()), ElementsAre("Zoe", "Anna"));
  tree.SortActors();
  EXPECT_THAT(Children(tree.Root()), ElementsAre("Anna", "Zoe"));
  tree.AddActor(3, "ben");
  EXPECT_THAT(Children(tree.Root()), ElementsAre("Anna", "ben", "Zoe"));
  tree.Clear();
  tree.AddActor(1, "Zoe");
  tree.AddActor(2, "Anna");
  EXPECT_THAT(Children(tree.Root()), ElementsAre("Anna", "Zoe")) << "the sort stays on";
}

TEST(ConversationTree, FindsNodesByTheirKeys) {
  ConversationTree tree;
  TreeNode& actor = tree.AddActor(12, "Zoe");
  TreeNode& con = tree.AddConversation(actor, 3, "con");
  tree.AddFlag(con, 45, std::make_shared<const std::string>("Door = True"), true);
  EXPECT_EQ(tree.FindNode("A12"), &actor);
  EXPECT_EQ(tree.FindNode("C3"), &con);
  EXPECT_EQ(tree.FindNode("F45,3")->Text(), "Door = True");
  EXPECT_EQ(tree.FindFlag(3, 45)->Key(), "F45,3");
  EXPECT_EQ(tree.FindFlag(3, 45)->ConversationKey(), 3);
  for (const char* key : {"", "A", "A3", "C12", "F45", "F45,", "F45,4", "F44,3", "X3", "Cx"}) {
    EXPECT_EQ(tree.FindNode(key), nullptr) << key;
  }
  EXPECT_EQ(tree.NodeCount(), 3U);
}

TEST(ConversationTree, ForgetsWhatWentWithARemovedNode) {
  ConversationTree tree;
  TreeNode& actor = tree.AddActor(1, "Zoe");
  TreeNode& con = tree.AddConversation(actor, 3, "con");
  tree.AddFlag(con, 45, std::make_shared<const std::string>("Door = True"), true);
  tree.SetSelectedItem(tree.FindFlag(3, 45));
  tree.RemoveNode(actor);
  EXPECT_TRUE(tree.Empty());
  EXPECT_EQ(tree.FindActor(1), nullptr);
  EXPECT_EQ(tree.FindConversation(3), nullptr);
  EXPECT_EQ(tree.SelectedItem(), nullptr);
}

TEST(ConversationTree, KeepsTheSelectionOfANodeThatStays) {
  ConversationTree tree;
  TreeNode& actor = tree.AddActor(1, "Zoe");
  TreeNode& kept = tree.AddConversation(actor, 3, "kept");
  TreeNode& gone = tree.AddConversation(actor, 4, "gone");
  tree.SetSelectedItem(&kept);
  tree.RemoveNode(gone);
  tree.SetText(kept, "zzz");
  EXPECT_EQ(tree.SelectedItem(), &kept);
}

/// Follows a tree by nothing but what it is told, as a view does.
class Mirror final : public ConversationTreeListener {
 public:
  explicit Mirror(ConversationTree& tree) : tree_(tree) {
    tree_.SetListener(this);
    AfterResetInner();
  }

  void BeforeReset() override { ++open_; }
  void AfterReset() override {
    --open_;
    AfterResetInner();
  }
  void BeforeInsert(const TreeNode& parent, std::size_t row) override { Note(parent, row, 0); }
  void AfterInsert() override {
    auto& rows = rows_[parent_];
    const TreeNode* node = parent_->children.at(from_).get();
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(from_), node);
    --open_;
  }
  void BeforeRemove(const TreeNode& parent, std::size_t row) override {
    EXPECT_EQ(parent.children.at(row).get(), rows_[&parent].at(row)) << "told ahead of the change";
    Note(parent, row, 0);
  }
  void AfterRemove() override {
    auto& rows = rows_[parent_];
    rows_.erase(rows.at(from_));
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(from_));
    --open_;
  }
  void BeforeMove(const TreeNode& parent, std::size_t from, std::size_t to) override {
    EXPECT_TRUE(to < from || to > from + 1) << "a move to where the node stands is none";
    Note(parent, from, to);
  }
  void AfterMove() override {
    auto& rows = rows_[parent_];
    const TreeNode* node = rows.at(from_);
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(to_), node);
    const std::size_t old = to_ < from_ ? from_ + 1 : from_;
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(old));
    --open_;
  }
  void NodeChanged(const TreeNode&) override { ++changes; }
  void ExpandedChanged(const TreeNode&) override { ++expansions; }
  void SelectedItemChanged() override { ++selections; }

  void ExpectTrue(const TreeNode& parent) {
    std::vector<const TreeNode*> actual;
    for (std::size_t row = 0; row < parent.children.size(); ++row) {
      const TreeNode& child = *parent.children[row];
      actual.push_back(&child);
      EXPECT_EQ(child.row, row);
      EXPECT_EQ(child.parent, &parent);
      ExpectTrue(child);
    }
    EXPECT_EQ(rows_[&parent], actual);
  }
  void ExpectTrue() {
    EXPECT_EQ(open_, 0) << "calls come in pairs";
    ExpectTrue(tree_.Root());
  }

  int changes = 0;
  int expansions = 0;
  int selections = 0;

 private:
  void Note(const TreeNode& parent, std::size_t from, std::size_t to) {
    EXPECT_EQ(open_, 0);
    ++open_;
    parent_ = &parent;
    from_ = from;
    to_ = to;
  }
  void AfterResetInner() {
    rows_.clear();
    Take(tree_.Root());
  }
  void Take(const TreeNode& parent) {
    for (const auto& child : parent.children) {
      rows_[&parent].push_back(child.get());
      Take(*child);
    }
  }

  ConversationTree& tree_;
  std::map<const TreeNode*, std::vector<const TreeNode*>> rows_;
  int open_ = 0;
  const TreeNode* parent_ = nullptr;
  std::size_t from_ = 0;
  std::size_t to_ = 0;
};

TEST(ConversationTree, TellsOnlyOfRealChanges) {
  ConversationTree tree;
  TreeNode& actor = tree.AddActor(1, "Zoe");
  Mirror mirror(tree);
  tree.SetText(actor, "Zoe");
  tree.SetExpanded(actor, false);
  tree.SetSelectedItem(nullptr);
  EXPECT_EQ(mirror.changes + mirror.expansions + mirror.selections, 0);
  tree.SetText(actor, "Zora");
  tree.SetExpanded(actor, true);
  tree.SetSelectedItem(&actor);
  EXPECT_EQ(mirror.changes, 1);
  EXPECT_EQ(mirror.expansions, 1);
  EXPECT_EQ(mirror.selections, 1);
  tree.RemoveNode(actor);
  EXPECT_EQ(mirror.selections, 2) << "the selection went with the node";
}

/// The same tree without any cleverness: a list that is sorted again and again.
class NaiveTree {
 public:
  struct Con {
    std::int32_t key;
    std::string name;
  };
  struct Actor {
    std::int32_t id;
    std::string name;
    std::vector<Con> cons;
  };

  Actor* Find(std::int32_t id) {
    for (Actor& actor : actors) {
      if (actor.id == id) return &actor;
    }
    return nullptr;
  }
  void Sort() {
    const auto byName = [](const auto& left, const auto& right) {
      return FoldCase(left.name) < FoldCase(right.name);
    };
    if (actorsSorted) std::stable_sort(actors.begin(), actors.end(), byName);
    for (Actor& actor : actors) std::stable_sort(actor.cons.begin(), actor.cons.end(), byName);
  }
  [[nodiscard]] std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    for (const Actor& actor : actors) {
      lines.push_back("A" + std::to_string(actor.id) + " " + actor.name);
      for (const Con& con : actor.cons) {
        lines.push_back("C" + std::to_string(con.key) + " " + con.name);
      }
    }
    return lines;
  }

  std::vector<Actor> actors;
  bool actorsSorted = false;
};

std::vector<std::string> LinesOf(const ConversationTree& tree) {
  std::vector<std::string> lines;
  tree.Walk([&](TreeNode& node) { lines.push_back(node.Key() + " " + node.Text()); });
  return lines;
}

class ConversationTreeAgainstNaive : public testing::TestWithParam<unsigned> {
 protected:
  int Roll(int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(random_); }
  /// No two names are equal but for case here: among equals a rename may choose its place.
  std::string FreshName() {
    static constexpr const char* kInitials[] = {"a", "B", "c", "D", "\xE9", "\xC8", "_", "7"};
    return kInitials[Roll(8)] + std::to_string(Roll(1000)) + "-" + std::to_string(++serial_);
  }

  void Add() {
    const std::int32_t id = Roll(6);
    NaiveTree::Actor* actor = naive_.Find(id);
    if (actor == nullptr) {
      const std::string name = FreshName();
      tree_.AddActor(id, name);
      naive_.actors.push_back({id, name, {}});
      actor = &naive_.actors.back();
    }
    const std::string name = FreshName();
    tree_.AddConversation(*tree_.FindActor(id), nextKey_, name);
    actor->cons.push_back({nextKey_++, name});
  }
  void ChangeOne(bool remove) {
    if (naive_.actors.empty()) return;
    const auto at = static_cast<std::size_t>(Roll(static_cast<int>(naive_.actors.size())));
    NaiveTree::Actor& actor = naive_.actors[at];
    const auto which = static_cast<std::size_t>(Roll(static_cast<int>(actor.cons.size())));
    TreeNode& node = *tree_.FindConversation(actor.cons[which].key);
    if (!remove) {
      actor.cons[which].name = FreshName();
      tree_.SetText(node, actor.cons[which].name);
      return;
    }
    tree_.RemoveNode(node);
    actor.cons.erase(actor.cons.begin() + static_cast<std::ptrdiff_t>(which));
    if (!actor.cons.empty()) return;
    tree_.RemoveNode(*tree_.FindActor(actor.id));
    naive_.actors.erase(naive_.actors.begin() + static_cast<std::ptrdiff_t>(at));
  }
  void RenameActor() {
    if (naive_.actors.empty()) return;
    auto& actor =
        naive_.actors[static_cast<std::size_t>(Roll(static_cast<int>(naive_.actors.size())))];
    actor.name = FreshName();
    tree_.SetText(*tree_.FindActor(actor.id), actor.name);
  }
  void Step() {
    const int action = Roll(20);
    if (action < 9) {
      Add();
    } else if (action < 13) {
      ChangeOne(false);
    } else if (action < 17) {
      ChangeOne(true);
    } else {
      RenameActor();
    }
  }

  std::mt19937 random_{GetParam()};
  int serial_ = 0;
  std::int32_t nextKey_ = 0;
  ConversationTree tree_;
  NaiveTree naive_;
};

TEST_P(ConversationTreeAgainstNaive, StandsInTheSameOrderAndTellsOfEveryChange) {
  Mirror mirror(tree_);
  for (int step = 0; step < 400; ++step) {
    if (step == 200) {
      tree_.SortActors();
      naive_.actorsSorted = true;
    }
    const bool bulk = Roll(10) == 0;
    if (bulk) tree_.BeginBulk();
    for (int times = bulk ? Roll(12) : 1; times > 0; --times) Step();
    if (bulk) tree_.EndBulk();
    naive_.Sort();
    ASSERT_EQ(LinesOf(tree_), naive_.Lines()) << "step " << step;
    mirror.ExpectTrue();
    ASSERT_FALSE(HasFailure()) << "step " << step;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ConversationTreeAgainstNaive, testing::Values(1U, 2U, 3U, 4U));

}  // namespace
}  // namespace parlate

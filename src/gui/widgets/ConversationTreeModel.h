#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <functional>
#include <string>

#include "shell/ConversationTree.h"

namespace parlate {

/// The nodes of a ConversationTree for a Qt view. It is the tree's only listener.
class ConversationTreeModel final : public QAbstractItemModel, private ConversationTreeListener {
  Q_OBJECT

 public:
  /// Pictures by the keys of the nodes.
  struct Images {
    QIcon actor;
    QIcon con;
    QIcon flagTrue;
    QIcon flagFalse;
  };
  /// Whether a node's text may be edited in place.
  using CanRename = std::function<bool(const TreeNode&)>;
  /// Takes a new text for a node; false if it was refused.
  using Rename = std::function<bool(TreeNode&, const std::string&)>;

  /// The tree must outlive the model.
  explicit ConversationTreeModel(ConversationTree& tree, QObject* parent = nullptr);
  ~ConversationTreeModel() override;

  void SetImages(const Images& images) { images_ = images; }
  void SetRenaming(CanRename canRename, Rename rename);

  [[nodiscard]] ConversationTree& Tree() { return tree_; }
  [[nodiscard]] TreeNode* NodeAt(const QModelIndex& index) const;
  [[nodiscard]] QModelIndex IndexOf(const TreeNode* node) const;

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
  [[nodiscard]] int columnCount(const QModelIndex&) const override { return 1; }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

 signals:
  void expandedChanged(const QModelIndex& index, bool expanded);
  void selectedItemChanged();

 private:
  void BeforeReset() override { beginResetModel(); }
  void AfterReset() override { endResetModel(); }
  void BeforeInsert(const TreeNode& parent, std::size_t row) override;
  void AfterInsert() override { endInsertRows(); }
  void BeforeRemove(const TreeNode& parent, std::size_t row) override;
  void AfterRemove() override { endRemoveRows(); }
  void BeforeMove(const TreeNode& parent, std::size_t from, std::size_t to) override;
  void AfterMove() override { endMoveRows(); }
  void NodeChanged(const TreeNode& node) override;
  void ExpandedChanged(const TreeNode& node) override;
  void SelectedItemChanged() override { emit selectedItemChanged(); }

  [[nodiscard]] const TreeNode& NodeOrRoot(const QModelIndex& index) const;
  [[nodiscard]] const QIcon& ImageOf(const TreeNode& node) const;

  ConversationTree& tree_;
  Images images_;
  CanRename canRename_;
  Rename rename_;
  bool renaming_ =
      false;  ///< A message about a name shows: losing the focus must not rename again.
};

}  // namespace parlate

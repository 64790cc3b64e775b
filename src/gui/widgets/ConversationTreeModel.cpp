#include "widgets/ConversationTreeModel.h"

#include <utility>

#include "widgets/CodePageText.h"

namespace parlate {

ConversationTreeModel::ConversationTreeModel(ConversationTree& tree, QObject* parent)
    : QAbstractItemModel(parent), tree_(tree) {
  tree_.SetListener(this);
}

ConversationTreeModel::~ConversationTreeModel() { tree_.SetListener(nullptr); }

void ConversationTreeModel::SetRenaming(CanRename canRename, Rename rename) {
  canRename_ = std::move(canRename);
  rename_ = std::move(rename);
}

TreeNode* ConversationTreeModel::NodeAt(const QModelIndex& index) const {
  return index.isValid() ? static_cast<TreeNode*>(index.internalPointer()) : nullptr;
}

const TreeNode& ConversationTreeModel::NodeOrRoot(const QModelIndex& index) const {
  const TreeNode* node = NodeAt(index);
  return node == nullptr ? tree_.Root() : *node;
}

QModelIndex ConversationTreeModel::IndexOf(const TreeNode* node) const {
  if (node == nullptr || node->kind == TreeNode::Kind::Root) return {};
  return createIndex(static_cast<int>(node->row), 0, node);
}

QModelIndex ConversationTreeModel::index(int row, int column, const QModelIndex& parent) const {
  const TreeNode& node = NodeOrRoot(parent);
  if (row < 0 || column != 0 || static_cast<std::size_t>(row) >= node.children.size()) return {};
  return createIndex(row, 0, node.children[static_cast<std::size_t>(row)].get());
}

QModelIndex ConversationTreeModel::parent(const QModelIndex& child) const {
  const TreeNode* node = NodeAt(child);
  return node == nullptr ? QModelIndex() : IndexOf(node->parent);
}

int ConversationTreeModel::rowCount(const QModelIndex& parent) const {
  return static_cast<int>(NodeOrRoot(parent).children.size());
}

const QIcon& ConversationTreeModel::ImageOf(const TreeNode& node) const {
  switch (node.kind) {
    case TreeNode::Kind::Conversation:
      return images_.con;
    case TreeNode::Kind::Flag:
      return node.imageTrue ? images_.flagTrue : images_.flagFalse;
    case TreeNode::Kind::Actor:
    case TreeNode::Kind::Root:
      break;
  }
  return images_.actor;
}

QVariant ConversationTreeModel::data(const QModelIndex& index, int role) const {
  const TreeNode* node = NodeAt(index);
  if (node == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:  // names are cut off in a narrow tree
      return ToSingleLine(node->Text());
    case Qt::EditRole:
      return ToQString(node->Text());
    case Qt::DecorationRole:
      return ImageOf(*node);
    default:
      return {};
  }
}

bool ConversationTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  TreeNode* node = NodeAt(index);
  if (node == nullptr || role != Qt::EditRole || !rename_ || renaming_) return false;
  const std::string name = FromQString(value.toString());
  if (name == node->Text()) return false;  // the field was opened and left as it was
  renaming_ = true;
  const bool taken = rename_(*node, name);
  renaming_ = false;
  return taken;
}

Qt::ItemFlags ConversationTreeModel::flags(const QModelIndex& index) const {
  const TreeNode* node = NodeAt(index);
  if (node == nullptr) return Qt::NoItemFlags;
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (canRename_ && canRename_(*node)) flags |= Qt::ItemIsEditable;
  return flags;
}

void ConversationTreeModel::BeforeInsert(const TreeNode& parent, std::size_t row) {
  beginInsertRows(IndexOf(&parent), static_cast<int>(row), static_cast<int>(row));
}

void ConversationTreeModel::BeforeRemove(const TreeNode& parent, std::size_t row) {
  beginRemoveRows(IndexOf(&parent), static_cast<int>(row), static_cast<int>(row));
}

void ConversationTreeModel::BeforeMove(const TreeNode& parent, std::size_t from, std::size_t to) {
  const QModelIndex at = IndexOf(&parent);
  beginMoveRows(at, static_cast<int>(from), static_cast<int>(from), at, static_cast<int>(to));
}

void ConversationTreeModel::NodeChanged(const TreeNode& node) {
  const QModelIndex at = IndexOf(&node);
  emit dataChanged(at, at);
}

void ConversationTreeModel::ExpandedChanged(const TreeNode& node) {
  emit expandedChanged(IndexOf(&node), node.expanded);
}

}  // namespace parlate

#include "widgets/ConversationTreeView.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

namespace parlate {

namespace {

/// Keys that move to a node or mark the current one.
bool SelectsNodes(const QKeyEvent& event) {
  if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Space:
      return true;
    default:
      return false;
  }
}

bool GoesToTheEnd(const QKeyEvent& event) {
  return event.key() == Qt::Key_End || event.key() == Qt::Key_PageDown;
}

}  // namespace

ConversationTreeView::ConversationTreeView(ConversationTreeModel& model, QWidget* parent)
    : QTreeView(parent), model_(model) {
  setModel(&model_);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
  setSelectionMode(QAbstractItemView::SingleSelection);
  connect(&model_, &ConversationTreeModel::modelReset, this, &ConversationTreeView::ShowAsNodes);
  connect(&model_, &ConversationTreeModel::expandedChanged, this,
          &ConversationTreeView::SetNodeExpanded);
  connect(&model_, &ConversationTreeModel::selectedItemChanged, this,
          &ConversationTreeView::RevealSelectedItem);
  const auto keep = [this](const QModelIndex& index, bool expanded) {
    if (following_) return;
    if (TreeNode* node = model_.NodeAt(index)) model_.Tree().SetExpanded(*node, expanded);
  };
  connect(this, &QTreeView::expanded, this, [keep](const auto& index) { keep(index, true); });
  connect(this, &QTreeView::collapsed, this, [keep](const auto& index) { keep(index, false); });
}

void ConversationTreeView::ShowAsNodes() {
  const QScopedValueRollback following(following_, true);
  model_.Tree().Walk([this](TreeNode& node) {
    if (node.expanded) setExpanded(model_.IndexOf(&node), true);
  });
  ShowSelectedItem();
}

void ConversationTreeView::ShowSelectedItem() {
  const QScopedValueRollback following(following_, true);
  const TreeNode* selected = model_.Tree().SelectedItem();
  if (selected == nullptr) {
    selectionModel()->clear();
  } else {
    // Scrolling there would open the parents, behind the back of their nodes.
    setAutoScroll(false);
    setCurrentIndex(model_.IndexOf(selected));
    setAutoScroll(true);
  }
}

void ConversationTreeView::RevealSelectedItem() {
  const TreeNode* selected = model_.Tree().SelectedItem();
  TreeNode* parent = selected == nullptr ? nullptr : selected->parent;
  for (; parent != nullptr && parent->parent != nullptr; parent = parent->parent) {
    model_.Tree().SetExpanded(*parent, true);
  }
  ShowSelectedItem();
  if (selected != nullptr) scrollTo(model_.IndexOf(selected));
}

void ConversationTreeView::SetNodeExpanded(const QModelIndex& index, bool expanded) {
  const QScopedValueRollback following(following_, true);
  setExpanded(index, expanded);
}

void ConversationTreeView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  if (following_) return;
  currentMoved_ = true;
  TreeNode* node = model_.NodeAt(current);
  model_.Tree().SetSelectedItem(node);
  if (node != nullptr) emit nodeClicked(node);
}

void ConversationTreeView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) return;
  currentMoved_ = false;
  QTreeView::mousePressEvent(event);
  const QPoint at = event->position().toPoint();
  const QModelIndex pressed = indexAt(at);
  if (currentMoved_ || !pressed.isValid() || pressed != currentIndex()) return;
  // Ahead of the node stands the sign that opens and closes it, which is no part of it.
  if (!visualRect(pressed).contains(at)) return;
  model_.Tree().SetSelectedItem(model_.NodeAt(pressed));
  emit nodeClicked(model_.NodeAt(pressed));
}

void ConversationTreeView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::RightButton) QTreeView::mouseReleaseEvent(event);
  emit mouseReleased(event->button(), event->globalPosition().toPoint());
}

void ConversationTreeView::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeView::mouseDoubleClickEvent(event);
  if (event->button() != Qt::LeftButton) return;
  if (TreeNode* node = model_.NodeAt(indexAt(event->position().toPoint()))) {
    emit nodeDoubleClicked(node);
  }
}

void ConversationTreeView::contextMenuEvent(QContextMenuEvent* event) {
  // The right button has its popup at the release of the button.
  if (event->reason() == QContextMenuEvent::Mouse) return;
  const QModelIndex current = currentIndex();
  const QPoint at = current.isValid() ? visualRect(current).bottomLeft() : QPoint(0, 0);
  emit menuRequested(viewport()->mapToGlobal(at));
}

void ConversationTreeView::keyPressEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat()) pressedKeys_.insert(event->key());
  // The base class would put the name of the node on the system's clipboard.
  if (event->matches(QKeySequence::Copy)) {
    event->ignore();
    return;
  }
  // With nothing selected the base class would step off the first node and never select it.
  const bool begins = model_.Tree().SelectedItem() == nullptr && SelectsNodes(*event);
  if (begins && TakeCurrentNode() && !GoesToTheEnd(*event)) return;
  QTreeView::keyPressEvent(event);
}

QItemSelectionModel::SelectionFlags ConversationTreeView::selectionCommand(
    const QModelIndex& index, const QEvent* event) const {
  // Commands work on the selected node, which must not cease to look it.
  const auto flags = QTreeView::selectionCommand(index, event);
  const bool takesAway =
      (flags & (QItemSelectionModel::Toggle | QItemSelectionModel::Deselect)) != 0;
  return takesAway ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows : flags;
}

bool ConversationTreeView::TakeCurrentNode() {
  const QModelIndex current = currentIndex();
  TreeNode* node = model_.NodeAt(current.isValid() ? current : model_.index(0, 0, {}));
  if (node == nullptr) return false;
  model_.Tree().SetSelectedItem(node);
  emit nodeClicked(node);
  return true;
}

void ConversationTreeView::keyReleaseEvent(QKeyEvent* event) {
  QTreeView::keyReleaseEvent(event);
  if (event->isAutoRepeat() || !pressedKeys_.remove(event->key())) return;
  emit keyReleased(event->key(), event->modifiers());
}

void ConversationTreeView::focusInEvent(QFocusEvent* event) {
  // With no current node the base class makes the first one current, which selects nothing.
  const QScopedValueRollback following(following_, true);
  QTreeView::focusInEvent(event);
}

void ConversationTreeView::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) {
  // The base class moves on to a neighbour; which node is selected is for the nodes to say.
  const QScopedValueRollback following(following_, true);
  QTreeView::rowsAboutToBeRemoved(parent, start, end);
}

void ConversationTreeView::focusOutEvent(QFocusEvent* event) {
  pressedKeys_.clear();
  QTreeView::focusOutEvent(event);
}

}  // namespace parlate

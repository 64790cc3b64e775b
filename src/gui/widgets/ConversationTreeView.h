#pragma once

#include <QSet>
#include <QTreeView>

#include "widgets/ConversationTreeModel.h"

namespace parlate {

/// The tree of conversations. It keeps expansion and selection of the nodes and of the view in
/// step, and tells what the user did. A right click selects nothing: the popup is for the node
/// that is selected already.
class ConversationTreeView final : public QTreeView {
  Q_OBJECT

 public:
  /// The model must outlive the view.
  explicit ConversationTreeView(ConversationTreeModel& model, QWidget* parent = nullptr);

  /// Letters are commands here, so they do not search.
  void keyboardSearch(const QString&) override {}

 signals:
  /// A node was clicked, also the one that is selected already, or reached with the keys.
  void nodeClicked(parlate::TreeNode* node);
  void nodeDoubleClicked(parlate::TreeNode* node);
  void mouseReleased(Qt::MouseButton button, QPoint globalPosition);
  /// The menu key or Shift+F10 asked for a popup.
  void menuRequested(QPoint globalPosition);
  /// A key that was pressed in the tree went up.
  void keyReleased(int key, Qt::KeyboardModifiers modifiers);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
      const QModelIndex& index, const QEvent* event) const override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void ShowAsNodes();
  void ShowSelectedItem();
  void RevealSelectedItem();
  void SetNodeExpanded(const QModelIndex& index, bool expanded);
  /// Selects the node that the keys start from; false with no node.
  bool TakeCurrentNode();

  ConversationTreeModel& model_;
  bool following_ = false;     ///< The view follows the nodes, so a change is not the user's.
  bool currentMoved_ = false;  ///< The press under way has moved the current node.
  QSet<int> pressedKeys_;      ///< Keys that went down here: the release of another is not ours.
};

}  // namespace parlate

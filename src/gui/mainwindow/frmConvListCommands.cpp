// What the commands, the tree and the list of the main window do.

#include <QKeyEvent>

#include "mainwindow/frmAbout.h"
#include "mainwindow/frmConvList.h"

namespace parlate {

void frmConvList::On(const QString& command, std::function<void()> handler) {
  connect(Command(command), &QAction::triggered, this, std::move(handler));
}

void frmConvList::ConnectCommands() {
  ConnectPrintingCommands();
  ConnectEventCommands();
  ConnectTableCommands();
  const auto open = [this] { shell_.OpenConFile(""); };
  const auto save = [this] { shell_.SaveConFile(false); };
  const auto cut = [this] { shell_.CutSelectedEvent(); };
  const auto copy = [this] { shell_.CopySelectedEvent(); };
  const auto paste = [this] { shell_.PasteEvent(); };
  const auto expandAll = [this] { shell_.ExpandTreeNodes(true, nullptr); };
  const auto collapseAll = [this] { shell_.ExpandTreeNodes(false, nullptr); };
  const auto deleteEvent = [this] { shell_.DeleteSelectedEvent(false); };
  const auto deleteCon = [this] { shell_.DeleteConversation(false); };

  On("mnuFileOpen", open);
  On("tlbCon/Open", open);
  On("mnuFileClose", [this] { shell_.CloseConFile(); });
  On("mnuFileSave", save);
  On("tlbCon/Save", save);
  On("mnuFileSaveAs", [this] { shell_.SaveConFile(true); });
  for (int i = 0; i < static_cast<int>(ConversationDefaults::kLastFileCount); ++i) {
    On(QStringLiteral("mnuFileLast(%1)").arg(i),
       [this, i] { shell_.OpenLastFile(Shell::LastFileCaption(i)); });
  }
  On("mnuFileExit", [this] { close(); });
  ConnectInterchangeCommands();

  On("mnuConDelete", deleteCon);
  On("mnuConPopupDelete", deleteCon);
  // Meant: of these three only Copy works on the conversation.
  On("mnuConCut", cut);
  On("mnuConCopy", [this] { shell_.CopyConversation(); });
  On("mnuConPaste", paste);
  On("mnuConCheckLabels", [this] { shell_.CheckLabelsCommand(); });
  On("mnuConExpandAll", expandAll);
  On("mnuConPopupExpandAll", expandAll);
  On("mnuConCollapseAll", collapseAll);
  On("mnuConPopupCollapseAll", collapseAll);
  On("mnuConPopupCut", [this] { shell_.CutConversation(); });
  On("mnuConPopupCopy", [this] { shell_.CopyConversation(); });
  On("mnuConPopupPaste", [this] { shell_.PasteConversation(); });
  On("mnuConPopupExpandFlags",
     [this] { shell_.ExpandTreeNodes(true, shell_.tvCons().SelectedItem()); });
  On("mnuFlagPopupRemove", [this] { shell_.RemoveSelectedFlag(); });
  On("mnuFlagPopupToggle", [this] { shell_.ToggleSelectedFlag(false); });
  On("mnuFlagPopupCollapse", [this] {
    TreeNode* selected = shell_.tvCons().SelectedItem();
    if (selected != nullptr) shell_.ExpandTreeNodes(false, selected->parent);
  });

  for (const char* name : {"mnuEventsCut", "mnuEventPopupCut", "tlbCon/Cut"}) On(name, cut);
  for (const char* name : {"mnuEventsCopy", "mnuEventPopupCopy", "tlbCon/Copy"}) On(name, copy);
  for (const char* name : {"mnuEventsPaste", "mnuEventPopupPaste", "tlbCon/Paste"}) On(name, paste);
  On("mnuEventsDelete", deleteEvent);
  On("mnuEventPopupDelete", deleteEvent);

  On("mnuViewToolbar", [this] { ApplyToolbarVisible(); });
  On("mnuViewStatusBar", [this] { ApplyStatusBarVisible(); });
  On("mnuViewExpandList", [this] { ToggleExpandList(); });
  On("mnuViewShowAudioFiles", [this] { ToggleShowAudioFiles(); });
  On("mnuViewOptions", [this] { ShowSettings(); });
  On("mnuHelpAbout", [this] {
    frmAbout dialog(this);
    dialog.exec();
  });
  connect(Command("mnuCon")->menu(), &QMenu::aboutToShow, this,
          [this] { shell_.UpdateCommandStates(); });
  ConnectPropertiesCommands();
  ConnectFind();
}

void frmConvList::ConnectTree() {
  treeModel_.SetRenaming([this](const TreeNode& node) { return shell_.CanRename(node); },
                         [this](TreeNode& node, const std::string& name) {
                           return shell_.RenameConversation(node, name);
                         });
  connect(&tvCons_, &ConversationTreeView::nodeClicked, this, [this](TreeNode* node) {
    shell_.NodeClick(*node);
    shell_.UpdateCommandStates();
  });
  connect(&tvCons_, &ConversationTreeView::nodeDoubleClicked, this,
          [this](TreeNode* node) { shell_.NodeDoubleClick(*node); });
  connect(&tvCons_, &ConversationTreeView::mouseReleased, this, &frmConvList::TreeMouseReleased);
  connect(&tvCons_, &ConversationTreeView::menuRequested, this, &frmConvList::ShowTreePopup);
  connect(&tvCons_, &ConversationTreeView::keyReleased, this, &frmConvList::TreeKeyReleased);
}

void frmConvList::TreeMouseReleased(Qt::MouseButton button, QPoint globalPosition) {
  if (button == Qt::RightButton) ShowTreePopup(globalPosition);
  shell_.UpdateCommandStates();
}

void frmConvList::ShowTreePopup(QPoint globalPosition) {
  ApplyStates(shell_.ConPopupStates());
  const TreeNode* selected = shell_.tvCons().SelectedItem();
  const bool flag = selected != nullptr && selected->kind == TreeNode::Kind::Flag;
  (flag ? mnuFlagPopup_ : mnuConPopup_).popup(globalPosition);
}

void frmConvList::TreeKeyReleased(int key, Qt::KeyboardModifiers modifiers) {
  // Meant: the three letters act with Ctrl and without.
  if (key == Qt::Key_X) shell_.CutConversation();
  if (key == Qt::Key_C) shell_.CopyConversation();
  if (key == Qt::Key_V) shell_.PasteConversation();
  const bool plain = (modifiers & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (key == Qt::Key_Delete && plain) shell_.DeleteConversation(false);
  if (key == Qt::Key_Insert && plain && shell_.SelectedCon()) shell_.AddConversation();
}

void frmConvList::ConnectList() {
  connect(&lstEvents_, &MultiColumnList::listIndexChanged, this,
          &frmConvList::SelectionOfListChanged);
  connect(&lstEvents_, &MultiColumnList::clicked, this, [this] { shell_.ListClick(); });
  connect(&lstEvents_, &MultiColumnList::keyPressedInList, this, &frmConvList::ListKeyPressed);
  connect(&lstEvents_, &MultiColumnList::contextMenuRequestedAt, this, &frmConvList::ShowListPopup);
  connect(&lstEvents_, &MultiColumnList::columnWidthChanged, this, &frmConvList::SizeEventColumns);
}

void frmConvList::SelectionOfListChanged() { shell_.ListSelectionChanged(); }

void frmConvList::ListKeyPressed(QKeyEvent* event) {
  const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (!plain) return;
  if (event->key() == Qt::Key_Escape) {
    // What the mouse does with a second click on the row.
    event->accept();
    shell_.lstEvents().SetListIndex(-1);
  } else if (event->key() == Qt::Key_Delete) {
    event->accept();
    shell_.DeleteSelectedEvent(false);
  }
}

void frmConvList::ShowListPopup(QPoint globalPosition, bool byMouse) {
  ApplyStates(shell_.EventPopupStates());
  mnuEventPopup_.popup(globalPosition);
  // After the keyboard's popup no click is due, so the next one is a click on its row.
  if (byMouse) shell_.bSkipNextClick = true;
}

void frmConvList::ToggleExpandList() {
  Workspace::Current().defaults.ExpandListEnabled = Command("mnuViewExpandList")->isChecked();
  shell_.UpdateEventsList(shell_.SelectedCon());
}

void frmConvList::ToggleShowAudioFiles() {
  Workspace::Current().defaults.bShowAudioFiles = Command("mnuViewShowAudioFiles")->isChecked();
  shell_.UpdateEventsList(shell_.SelectedCon());
}

}  // namespace parlate

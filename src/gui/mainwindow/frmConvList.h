#pragma once

#include <QAction>
#include <QHash>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "editors/EditorDoors.h"
#include "editors/frmEvent.h"
#include "editors/frmSettings.h"
#include "mainwindow/NameDelegate.h"
#include "mainwindow/SvgPicture.h"
#include "mainwindow/frmFind.h"
#include "mainwindow/frmProgress.h"
#include "platform/QtComboBox.h"
#include "shell/Shell.h"
#include "widgets/ConversationTreeModel.h"
#include "widgets/ConversationTreeView.h"
#include "widgets/MultiColumnList.h"

namespace parlate {

struct MenuItem;

/// The main window: the tree of conversations beside the events of the selected one. What it
/// shows is decided by the shell; the window paints it, and hands keys and clicks on.
///
/// Positions and sizes are kept in twips, as the settings store them; see TwipsConversion.
class frmConvList : public QMainWindow,
                    private ShellView,
                    private SettingsHost,
                    private TableEditor {
  Q_OBJECT

 public:
  /// The doors to the user and the store of the settings; a test hands in its own.
  /// Without printers the print commands do nothing.
  frmConvList(MessageBoxes& messages, FileDialogs& dialogs, SettingsStore& settings,
              Printers* printers = nullptr);
  ~frmConvList() override;

  /// Everything up to the first sight of the window. False if the user, asked for a name at the
  /// first start, declined to give settings: the program then ends.
  bool InitMainWindow();
  /// Shows the window and opens the file that the command line names, if any.
  void Start(const std::string& commandLine);

  [[nodiscard]] Shell& shell() { return shell_; }

  /// Lays the window out round the splitter, whose wanted left edge is `x` twips.
  void SizeControls(int x);
  /// The last column of the list takes what the others leave.
  void SizeEventColumns();

  /// A command of a menu, a popup or the toolbar ("tlbCon/Save") by its name, or nothing.
  [[nodiscard]] QAction* Command(const QString& name) const { return commands_.value(name); }
  /// The three popups, which are no part of the menu bar.
  [[nodiscard]] std::vector<QMenu*> Popups() {
    return {&mnuConPopup_, &mnuEventPopup_, &mnuFlagPopup_};
  }

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // ShellView
  void CommandStatesChanged() override;
  void LastFilesChanged() override;
  void ShowTree(bool visible) override;
  int ShowSettings() override;
  bool ShowMissingLabels(const std::vector<BadLabelRow>& rows, bool bSaving) override;
  void AddEvent(std::int32_t eventType, const std::shared_ptr<Conversation>& con) override;
  void EditEvent(const std::shared_ptr<Conversation>& con,
                 const std::shared_ptr<EventItem>& event) override;
  [[nodiscard]] bool IsEventEditorVisible() const override;
  void UnloadEventEditor() override;
  int ShowProperties(Conversation& con, int tabIndex) override;
  void ShowFileProperties() override;
  bool PickFlags(FlagList& flagRefs) override;
  std::optional<PrintChoice> ShowPrintOptions(bool selectedThere, bool bPrintAll) override;

  // TableEditor
  std::int32_t EditTableDialog(std::int32_t tableType) override;

  // SettingsHost
  void UpdateLastFiles() override { shell_.UpdateLastFiles(); }
  void UpdateEventsList() override { shell_.UpdateEventsList(nullptr); }

  // Construction
  void BuildMenus();
  void BuildMenu(QMenu& menu, const std::vector<MenuItem>& items);
  void BuildEventTypeMenu(QMenu& menu, const QString& itemName, bool plural);
  void BuildPopups();
  void BuildToolbar();
  void BuildPanes();
  void ConnectCommands();
  void ConnectPrintingCommands();
  void ConnectEventCommands();
  void ConnectTableCommands();
  void ConnectInterchangeCommands();
  void ConnectPropertiesCommands();
  void ConnectFind();
  void ConnectTree();
  void ConnectList();
  void On(const QString& command, std::function<void()> handler);

  void ShowSplash();
  void ApplyDefaults();
  void PlaceWindow();
  void ApplyToolbarVisible();
  void ApplyStatusBarVisible();
  void ApplyStates(const std::vector<CommandState>& states);
  void Unload();
  void StoreDefaults();

  // Handlers
  void TreeMouseReleased(Qt::MouseButton button, QPoint globalPosition);
  void ShowTreePopup(QPoint globalPosition);
  void TreeKeyReleased(int key, Qt::KeyboardModifiers modifiers);
  void ListKeyPressed(QKeyEvent* event);
  void ShowListPopup(QPoint globalPosition, bool byMouse);
  void SelectionOfListChanged();
  void ToggleExpandList();
  void ToggleShowAudioFiles();
  void FocusFindBox();
  void ShowFind();
  void MoveFindOffTheHit();
  void FindQuickly();
  bool FindBoxEvent(QEvent* event);
  /// The next search starts anew, if the last one was that of the quick box.
  void LeaveQuickSearch();
  void FindBoxWindowLeft();

  // Splitter
  bool SplitterEvent(QEvent* event);
  void BeginSplitterDrag();
  void MoveSplitter(int mouseX);
  void EndSplitterDrag();

  [[nodiscard]] int WidthInTwips() const;
  [[nodiscard]] EditorDoors Doors() { return {shell_, messages_, dialogs_, progress_, printers_}; }
  [[nodiscard]] frmEvent& EventEditor();

  MessageBoxes& messages_;
  FileDialogs& dialogs_;
  SettingsStore& settings_;
  Printers* printers_;
  frmProgress progress_;
  Shell shell_;
  ConversationTreeModel treeModel_;

  QHash<QString, QAction*> commands_;
  QMenu mnuConPopup_{this};
  QMenu mnuEventPopup_{this};
  QMenu mnuFlagPopup_{this};
  QToolBar tlbCon_;
  QLabel pnlFind_;
  QtComboBox cboFind_;
  QLabel statusText_;
  QWidget client_;
  QWidget picTitles_;
  QLabel lblConversations_;
  QLabel lblEvents_;
  NameDelegate nameDelegate_;
  ConversationTreeView tvCons_;
  MultiColumnList lstEvents_;
  QWidget imgSplitter_;
  QWidget picSplitter_;
  SvgPicture picLogo_;
  std::unique_ptr<frmEvent> eventEditor_;  ///< Nothing until its first use.
  std::unique_ptr<frmFind> find_;          ///< From its first use on, with its history and options.

  int splitterLeft_ = 0;     ///< Twips.
  int splitterBarLeft_ = 0;  ///< Twips; of the bar that shows during a drag.
  bool bMovingSplitter_ = false;
  bool sizingColumns_ = false;
  bool loaded_ = false;           ///< `InitMainWindow` is through, so there are settings to store.
  bool laidOut_ = false;          ///< The window has its size, so the splitter may be held to it.
  bool searchedQuickly_ = false;  ///< The last search was that of the quick box.
  bool treeHadFocus_ = false;     ///< When the tree was hidden for a while.
  bool fileWasOpen_ = false;      ///< When the commands were last brought up to date.
};

}  // namespace parlate

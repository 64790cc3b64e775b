#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "general/Prompts.h"
#include "integrity/ConversationClipboard.h"
#include "integrity/LabelCheck.h"
#include "model/ConversationFile.h"
#include "model/Workspace.h"
#include "shell/CommandStates.h"
#include "shell/ConversationTree.h"
#include "shell/FlagTexts.h"
#include "shell/ListRows.h"
#include "shell/ShellView.h"

namespace parlate {

class PrintPages;
struct TextQuery;

/// The window without the window: the one open file, the selection, the tree and the event list as
/// plain nodes and rows, the clipboard, and every command that works on them. A view shows it.
///
/// It puts itself in the workspace in place as the one that answers the model's questions, and
/// has to be gone before that workspace is.
class Shell final : public ConversationDirectory, public ConversationTreeOrder {
 public:
  /// The doors through which the shell speaks to the user.
  struct Doors {
    MessageBoxes& messages;
    FileDialogs& dialogs;
    ProgressDisplay& progress;
    Printers* printers = nullptr;  ///< Without it the print commands do nothing.
  };

  Shell(ShellView& view, const Doors& doors);
  ~Shell() override;
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;

  // State. See also `SelectedCon`.
  std::string conFileName;  ///< Full path; empty for a file never saved and with no file open.
  BadLabels badLabels;
  bool Loading = false;  ///< A file is being read; the list does no work.
  std::int32_t lastClickedRow = -1;
  bool bSkipNextClick = false;  ///< A popup was shown, so the next click is not one on the row.

  [[nodiscard]] ConversationTree& tvCons() { return tree_; }
  [[nodiscard]] const ConversationTree& tvCons() const { return tree_; }
  [[nodiscard]] ListRows& lstEvents() { return events_; }
  [[nodiscard]] const ListRows& lstEvents() const { return events_; }
  [[nodiscard]] bool IsReadOnly() const { return bReadOnly_; }

  // The open file.
  [[nodiscard]] ConversationFile* GetConFile() const { return conFile_.get(); }
  void SetModified(Boolean bNewState, Conversation* con);
  /// -1 with no file open.
  [[nodiscard]] std::int32_t GetVersionNum() const;
  [[nodiscard]] std::int32_t GetFirstMission() const { return conFile_->GetFirstMission(); }
  [[nodiscard]] const std::string& GetAudioPackage() const { return conFile_->AudioPackage; }
  [[nodiscard]] Boolean IsConNameInUse(const std::string& newConName) const;
  [[nodiscard]] Boolean IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const;
  /// All IDs for which `IsTableItemReferenced` is true, in one walk.
  [[nodiscard]] IDSet ReferencedTableItems(std::int32_t tableType) const;

  // Workflow of the file.
  /// False if the user kept the old file or cancelled the properties of the new one.
  Boolean NewConFile();
  void OpenConFile(const std::string& path);
  Boolean SaveConFile(Boolean bSaveAs);
  /// False if the user cancelled.
  Boolean CloseConFile();
  void UpdateLastFiles() { view_.LastFilesChanged(); }
  /// Opens the recent file of an entry, whose caption holds a number and blanks ahead of the path.
  void OpenLastFile(const std::string& caption);
  /// Caption of a recent-file entry, 0 to 3; empty for an entry that is not shown.
  [[nodiscard]] static std::string LastFileCaption(int index);
  /// Writes the open file to `folder` as best as can be done and returns the path; empty with no
  /// file open or when nothing could be written.
  std::string WriteRecoveryFile(const std::string& folder);
  /// Removes the lock of the open file, if there is one and it is ours.
  void ReleaseLock();

  // Printing.
  /// Prints all conversations or the selected one, after the options unless they are skipped.
  void PrintConversations(Boolean bPrintAll, Boolean bSkipOptions);

  // Commands and captions.
  void UpdateCommandStates() { view_.CommandStatesChanged(); }
  [[nodiscard]] CommandPredicates Predicates() const;
  [[nodiscard]] std::string Caption() const;
  [[nodiscard]] std::string StatusText() const;
  /// Commands of the tree's popup for the present selection.
  [[nodiscard]] std::vector<CommandState> ConPopupStates() const;
  /// Commands of the list's popup for the present selection.
  [[nodiscard]] std::vector<CommandState> EventPopupStates() const;

  // Labels.
  Boolean ShowMissingLabels(Boolean bSaving, Boolean bCheckAllConvos);
  void CheckLabelsCommand();

  // Tree.
  [[nodiscard]] const std::shared_ptr<Conversation>& SelectedCon() const { return selectedCon_; }
  void SetSelectedCon(const std::shared_ptr<Conversation>& con);
  void TreeViewAddConversation(const std::shared_ptr<Conversation>& con, Boolean bSelect) override;
  void WalkConversations(const std::function<void(std::int32_t)>& visit) const override;
  void TreeViewUpdateFlagNames();
  void TreeViewUpdateActors();
  void TreeViewUpdateConFlags(const Conversation& con);
  /// Rebuilds the list of the selected conversation; changes no selection in spite of the name.
  void SelectConversation();
  void SelectConversationByKey(const std::string& itemKey);
  [[nodiscard]] std::shared_ptr<Conversation> GetConFromID(std::int32_t conID) const override;
  [[nodiscard]] std::shared_ptr<Conversation> GetCon(const std::string& strKey) const;
  [[nodiscard]] std::int32_t GetConIDFromName(std::int32_t conOwner,
                                              const std::string& conName) const override;
  /// With a node, that node alone; with none, every node as the settings say.
  void ExpandTreeNodes(Boolean bExpand, TreeNode* node);
  void AddConversation();
  void DeleteConversation(Boolean bNoConfirm);
  /// Shows the properties of the selected conversation at a tab: 0 general, 1 flags.
  void EditConversationProperties(int tabIndex);
  void PopulateConvCombo(ComboBox& cboCons) const;
  /// A node was clicked, or reached with the keys.
  void NodeClick(TreeNode& node);
  void NodeDoubleClick(TreeNode& node);
  /// Whether the label of a node may be edited in place.
  [[nodiscard]] bool CanRename(const TreeNode& node) const;
  /// Tests and takes a name typed in the tree; false, after a message, if it is refused.
  bool RenameConversation(TreeNode& node, const std::string& newName);
  /// Puts flags that the user picks in the selected conversation; marks nothing as changed.
  void AddFlags();
  void RemoveSelectedFlag();
  /// Flips the selected flag. Only the double click marks the file as changed.
  void ToggleSelectedFlag(Boolean bMarkModified);

  // Events.
  void UpdateEventsList(const std::shared_ptr<Conversation>& con);
  void UpdateListPosReferences(const Conversation& con);
  void UpdateLabelColor(std::int32_t listPos, const EventItem& event);
  void UpdateMissingLabelHighlights(const Conversation& con);
  void AddSubText(const std::string& subText, std::int32_t listPos);
  [[nodiscard]] std::shared_ptr<EventItem> GetSelectedEvent() const;
  /// Opens the editor to create an event; `newAddMode` 1 appends it, 0 puts it ahead of the
  /// selected row.
  void AddEvent(std::int32_t eventType, std::int32_t newAddMode);
  void EditSelectedEvent();
  /// Select the row before or after and open its event. With no row selected they start from the
  /// row of the event that is given, if any.
  void EditPreviousEvent(const EventItem* eventObj);
  void EditNextEvent(const EventItem* eventObj);
  /// Puts a new event ahead of the selected row, or at the end, and selects it. The editor goes on
  /// with it unless `bSilent`.
  void UpdateAddEvent(const std::shared_ptr<EventItem>& newEventObj, Boolean bSilent);
  /// Shows a changed event at its row. An event whose row went leaves the other rows alone.
  void UpdateEditEvent(const EventItem& newEventObj);
  [[nodiscard]] Boolean IsPreviousEvent() const;
  [[nodiscard]] Boolean IsNextEvent() const;
  void DeleteSelectedEvent(Boolean bNoConfirm);
  /// The selected row changed: an open editor follows it.
  void ListSelectionChanged();
  /// A click on the list: a second one on a row deselects it.
  void ListClick();

  // Search. It goes on from hit to hit until it is reset.
  /// The next search starts anew, at the selected row.
  void ResetSearch();
  /// Looks for the text of `cboFind` in the events and selects the next one that holds it; after a
  /// search without a hit, which it tells, the text of `cboFind` is selected. `searchEventType` is
  /// 0 for all types, else the type's code plus one.
  Boolean FindText(ComboBox& cboFind, Boolean bWholeWord, Boolean bMatchCase, Boolean bAllCons,
                   std::int32_t searchEventType);

  // Clipboard.
  void CopySelectedEvent();
  void CutSelectedEvent();
  void PasteEvent();
  void CopyConversation();
  void CutConversation();
  void PasteConversation();
  void ChangeConTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID);

  // Text interchange. An empty file name does nothing. See `ExportMode`.
  void ExportConFile(const std::string& fileName, std::int32_t exportMode, Boolean bExportComments);
  void ImportConFile(const std::string& fileName);
  /// Gives every spoken line its audio file, whatever it had. RuntimeError 5 for a speaker or an
  /// owner without an actor row.
  void GenerateAudioFilenames();
  /// The local folder of a conversation's audio.
  [[nodiscard]] std::string BuildAudioPath(const Conversation& con) const;

 private:
  [[nodiscard]] FileHost Host() { return {doors_.messages, doors_.progress, *this}; }
  [[nodiscard]] ConversationDefaults& Defaults() const { return workspace_.defaults; }
  Answer Ask(const std::string& title, const std::string& text, MessageBox::Icon icon,
             MessageBox::Buttons buttons);
  void Tell(const std::string& title, const std::string& text, MessageBox::Icon icon);
  void TellError(const RuntimeError& error);

  Boolean CheckLockFile(const std::string& path);
  /// What the user wants of a file whose lock bears `holder`.
  enum class LockAnswer { TakeOver, ReadOnly, GiveUp };
  LockAnswer AskAboutLock(const std::string& holder);
  Boolean WriteLockFile(const std::string& path);
  [[nodiscard]] FileDialog OpenDialogSetup() const;
  void LoadOpened(ByteSource& source, const std::string& path);
  Boolean WriteConFile(const std::string& path);
  void BackupConFile(const std::string& path);
  void MakeBackup(const std::string& path);
  Boolean SaveConFileAs();
  Boolean PromptSaveChanges();
  void AddToLastFiles(const std::string& path);
  void PrintOn(PrintSurface& surface, const PrintChoice& choice);
  void PrintListing(PrintPages& pages) const;
  void PrintEachConversation(PrintPages& pages, Boolean bDetailedHeader);
  void TreeViewRemoveConversation(const Conversation& con, std::int32_t oldNPCID);
  /// Shows the events of the selected conversation anew; the selected row stays.
  void RefreshEventsList();
  [[nodiscard]] bool IsNameTakenByAnother(const Conversation& con, const std::string& name) const;
  [[nodiscard]] FlagRef* SelectedFlag() const;
  /// With no row selected, that of the event.
  void SelectRowOf(const EventItem* eventObj);
  /// Whether the row that the event names is its own.
  [[nodiscard]] bool IsAtItsRow(const EventItem& event) const;
  /// Selects the conversation's node if the node that was selected is gone.
  void KeepNodeSelected(const Conversation& con);
  bool FindNext(const TextQuery& query, bool bAllCons);
  void SelectFound(TreeNode& node);

  ShellView& view_;
  Doors doors_;
  Workspace& workspace_;
  std::unique_ptr<ConversationFile> conFile_;
  bool bReadOnly_ = false;
  std::shared_ptr<Conversation> selectedCon_;
  std::int32_t searchConIndex_ = -1;    ///< Node of the last hit; -1 before the first search.
  std::int32_t searchEventIndex_ = -1;  ///< Event of the last hit, or where a first search begins.
  std::int32_t bAppendEvent_ = 1;       ///< 1 append, 0 insert.
  bool bUpdatingEvents_ = false;        ///< An event is being added: the editor follows no row.
  std::shared_ptr<EventItem> eventBuffer_;
  ConversationClipboard conClipboard_;
  ConversationTree tree_;
  FlagTexts loadingFlagTexts_;  ///< Of the file that is being read.
  ListRows events_;
};

/// Puts the text of the box at the head of its list, unless it is there, and selects the text. Ten
/// entries are kept.
void AddComboHistory(ComboBox& combo);

}  // namespace parlate

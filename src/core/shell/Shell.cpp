#include "shell/Shell.h"

#include <utility>

#include "general/CodePage.h"
#include "general/Paths.h"
#include "model/Tables.h"

namespace parlate {

Shell::Shell(ShellView& view, const Doors& doors)
    : view_(view), doors_(doors), workspace_(Workspace::Current()) {
  workspace_.conversations = this;
  workspace_.badLabels = &badLabels;
  workspace_.messages = &doors_.messages;
}

Shell::~Shell() {
  workspace_.conversations = nullptr;
  workspace_.badLabels = nullptr;
  workspace_.messages = nullptr;
}

Answer Shell::Ask(const std::string& title, const std::string& text, MessageBox::Icon icon,
                  MessageBox::Buttons buttons) {
  return doors_.messages.Show({title, text, icon, buttons});
}

void Shell::Tell(const std::string& title, const std::string& text, MessageBox::Icon icon) {
  doors_.messages.Show({title, text, icon, MessageBox::Buttons::Ok});
}

void Shell::TellError(const RuntimeError& error) { doors_.messages.Show(BoxOf(error)); }

void Shell::SetModified(Boolean bNewState, Conversation* con) {
  if (conFile_) conFile_->SetModified(bNewState, con);
}

std::int32_t Shell::GetVersionNum() const { return conFile_ ? conFile_->versionNum : -1; }

Boolean Shell::IsConNameInUse(const std::string& newConName) const {
  return conFile_ && conFile_->IsConNameInUse(newConName);
}

Boolean Shell::IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const {
  return conFile_ && conFile_->IsTableItemReferenced(id, tableType);
}

IDSet Shell::ReferencedTableItems(std::int32_t tableType) const {
  return conFile_ ? conFile_->ReferencedTableItems(tableType) : IDSet();
}

CommandPredicates Shell::Predicates() const {
  CommandPredicates predicates;
  predicates.fileOpen = conFile_ != nullptr;
  predicates.hasNodes = !tree_.Empty();
  predicates.readOnly = bReadOnly_;
  predicates.conSelected = selectedCon_ != nullptr;
  predicates.eventSelected = events_.ListIndex() != -1;
  predicates.eventBuffered = eventBuffer_ != nullptr;
  predicates.conBuffered = conClipboard_.Holds();
  return predicates;
}

std::string Shell::Caption() const {
  std::string title = kProgramTitle;
  if (!conFile_) return title;
  return title + " - " + (conFileName.empty() ? "(New File)" : conFileName);
}

std::string Shell::StatusText() const { return conFile_ ? "" : "No Conversation Loaded"; }

std::vector<CommandState> Shell::ConPopupStates() const {
  const TreeNode* node = tree_.SelectedItem();
  const bool con = node != nullptr && node->kind == TreeNode::Kind::Conversation;
  const bool expandable = con && !node->expanded && !node->children.empty();
  return {
      {"mnuConPopupPaste", conClipboard_.Holds()},
      {"mnuConPopupDelete", con},
      {"mnuConPopupProperties", con},
      {"mnuConPopupPrint", con},
      {"mnuConPopupExpandFlags", expandable},
      {"mnuConPopupCut", con},
      {"mnuConPopupCopy", con},
  };
}

std::vector<CommandState> Shell::EventPopupStates() const {
  const CommandPredicates now = Predicates();
  return {
      {"mnuEventPopupAddEvents", now.conSelected}, {"mnuEventPopupInsertEvents", now.eventSelected},
      {"mnuEventPopupEdit", now.eventSelected},    {"mnuEventPopupDelete", now.eventSelected},
      {"mnuEventPopupCut", now.eventSelected},     {"mnuEventPopupCopy", now.eventSelected},
      {"mnuEventPopupPaste", now.eventBuffered},
  };
}

Boolean Shell::ShowMissingLabels(Boolean bSaving, Boolean) {
  if (tree_.Empty()) return true;
  const std::vector<BadLabelRow> rows = CheckLabels(*conFile_, *this, badLabels);
  if (rows.empty()) return true;
  return view_.ShowMissingLabels(rows, bSaving) && bSaving;
}

void Shell::CheckLabelsCommand() {
  if (ShowMissingLabels(false, true)) {
    Tell("No Errors", "All Label References are Valid.", MessageBox::Icon::None);
  }
}

}  // namespace parlate

// How the event editor comes to show an event, and what it offers the panels.

#include "editors/frmEvent.h"
#include "editors/panels/JumpPanel.h"
#include "editors/panels/PersonaPanel.h"
#include "editors/panels/TransferObjectPanel.h"
#include "general/CodePage.h"
#include "general/Paths.h"
#include "interchange/AudioPath.h"
#include "model/TableCombos.h"
#include "platform/FormControls.h"
#include "widgets/CodePageText.h"

namespace parlate {

void frmEvent::AddEvent(std::int32_t eventType, const std::shared_ptr<Conversation>& conObj) {
  ClearEventFields();
  if (conObj) currentCon_ = conObj;
  currentEvent_ = nullptr;
  oldLabel_.clear();
  for (const auto& panel : panels_) panel->BeginNewEvent();
  ShowEventPanel(eventType);
  cboEvents.setEnabled(true);
  bEditMode_ = 0;
  const bool wasHidden = !isVisible();
  show();
  if (wasHidden) txtLabel.setFocus();
  raise();
  activateWindow();
}

void frmEvent::EditEvent(const std::shared_ptr<Conversation>& conObj,
                         const std::shared_ptr<EventItem>& eventItem) {
  if (isVisible() && panelIndex_ != -1) Panel(panelIndex_).LeaveFields();
  // The one that was open may be gone from its conversation, and the panels still show it.
  const std::shared_ptr<EventItem> before = std::move(currentEvent_);
  currentCon_ = conObj;
  currentEvent_ = eventItem;
  oldLabel_ = eventItem->eventLabel;
  ShowEventPanel(eventItem->eventType);
  cboEvents.setEnabled(false);
  txtLabel.setText(ToQString(eventItem->eventLabel));
  Panel(eventItem->eventType).LoadEvent(*eventItem);
  RefreshUpdateButton();
  bEditMode_ = 1;
  if (isVisible()) return;
  show();
  txtLabel.setFocus();
  PutCaretBehindText(txtLabel);
}

void frmEvent::ShowEventPanel(std::int32_t eventType) {
  // A change runs this for itself before it returns, and then everything is done twice.
  cboEvents.SetListIndex(eventType);
  panelIndex_ = eventType;
  EventPanel& panel = Panel(eventType);
  panelStack_.setCurrentWidget(&panel);
  // The speakers take turns only while somebody goes on writing in the open window.
  if (eventType == kSpeech && !isVisible()) lastSpeakers_ = {};
  panel.Ready();
  RefreshUpdateButton();
  RefreshNavButtons();
}

void frmEvent::ClearEventFields() {
  txtLabel.clear();
  for (const auto& panel : panels_) panel->ClearFields();
}

void frmEvent::RefreshUpdateButton() {
  cmdUpdate.setEnabled(panelIndex_ != -1 && Panel(panelIndex_).IsComplete());
}

void frmEvent::RefreshNavButtons() {
  EnableButton(cmdPrevEvent, doors_.shell.IsPreviousEvent(), txtLabel);
  EnableButton(cmdNextEvent, doors_.shell.IsNextEvent(), txtLabel);
}

void frmEvent::PopulateLabelCombo(ComboBox& cboLabels) {
  cboLabels.Clear();
  AddLabelsOf(*currentCon_, cboLabels);
}

void frmEvent::PopulateJumpLabelCombo(ComboBox& cboLabels) {
  PopulateLabelsOf(static_cast<const JumpPanel&>(Panel(kJump)).ConversationID(), cboLabels);
}

void frmEvent::PopulateLabelsOf(std::int32_t conID, ComboBox& cboLabels) {
  cboLabels.Clear();
  const auto con = conID == -1 ? currentCon_ : doors_.shell.GetConFromID(conID);
  if (con) AddLabelsOf(*con, cboLabels);
}

void frmEvent::AddLabelsOf(const Conversation& con, ComboBox& cboLabels) const {
  for (const EventItem& event : con.events) {
    const bool isOwn = &event == currentEvent_.get();
    if (!event.eventLabel.empty() && !isOwn) cboLabels.AddItem(event.eventLabel);
  }
}

void frmEvent::SelectLabelValue(const std::string& label, ComboBox& cboLabels) {
  for (int i = 0; i < cboLabels.ListCount(); ++i) {
    if (cboLabels.List(i) != label) continue;
    cboLabels.SetListIndex(i);
    return;
  }
  if (cboLabels.ListIndex() == -1) cboLabels.SetText(label);
}

void frmEvent::PopulateConditionsCombo(ComboBox& cboConditions) {
  parlate::PopulateConditionsCombo(cboConditions);
}

void frmEvent::ClearTransferCount() {
  static_cast<TransferObjectPanel&>(Panel(kTransferObject)).ClearTransferCount();
}

std::string frmEvent::SelectAudioFile() {
  const std::string folder = BuildAudioPath(*currentCon_);
  if (!FolderExists(folder)) {
    const MessageBox box = {
        "Directory Not Found!",
        "The Directory " + FromUtf8(folder) + " could not be found.\n\nDo you wish to continue?",
        MessageBox::Icon::None, MessageBox::Buttons::YesNo};
    if (doors_.messages.Show(box) != Answer::Yes) return {};
  }
  FileDialog dialog;
  dialog.title = "Choose Audio File";
  dialog.filter = "Audio Files (*.wav;*.mp3)|*.wav;*.mp3";
  dialog.initialFolder = folder;
  // The stored name has neither folder nor extension; whatever follows the first point is one.
  const std::string file = FromUtf8(GetFileOnly(doors_.dialogs.ShowOpen(dialog)));
  return file.substr(0, file.find('.'));
}

}  // namespace parlate

// How what was typed in the event editor is stored.

#include "editors/frmEvent.h"
#include "editors/panels/PanelControls.h"
#include "platform/FormControls.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

std::string WithoutBlanksAround(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string frmEvent::Label() const { return FromQString(txtLabel.text()); }

void frmEvent::Update() {
  // A new event goes to the conversation that is selected by now, and so does its label.
  if (bEditMode_ != 1 && doors_.shell.SelectedCon()) currentCon_ = doors_.shell.SelectedCon();
  if (CheckLabelUnique()) {
    if (!CheckNumber()) return;
    if (bEditMode_ == 1) {
      CommitEditedEvent();
    } else {
      CommitNewEvent();
    }
  }
  txtLabel.setFocus();
}

bool frmEvent::CheckLabelUnique() {
  if (IsLabelUnique()) return true;
  doors_.messages.Show({"Duplicate Label",
                        "The Event Label you entered is not unique, please choose another.",
                        MessageBox::Icon::Exclamation, MessageBox::Buttons::Ok});
  txtLabel.setFocus();
  txtLabel.selectAll();
  return false;
}

bool frmEvent::CheckNumber() {
  const NumberField number = Panel(panelIndex_).Number();
  if (number.field == nullptr) return true;
  try {
    static_cast<void>(number.read(LineText(*number.field)));
    return true;
  } catch (const RuntimeError& error) {
    doors_.messages.Show(BoxOf(error));
    FocusWholeText(*number.field);
    return false;
  }
}

bool frmEvent::IsLabelUnique() {
  const std::string label = WithoutBlanksAround(Label());
  txtLabel.setText(ToQString(label));
  return label.empty() || label == oldLabel_ || !currentCon_->IsValidLabel(label);
}

void frmEvent::CommitNewEvent() {
  // With no conversation selected there is none that would take the event.
  if (!doors_.shell.SelectedCon()) return;
  auto event = std::make_shared<EventItem>();
  event->key = currentCon_->NextEventKey();
  event->eventType = cboEvents.ListIndex();
  bEditMode_ = 1;
  currentEvent_ = event;
  UpdateEventLabel(*event, true);
  UpdateEventObject(*event);
  doors_.shell.UpdateAddEvent(event, false);
}

void frmEvent::CommitEditedEvent() {
  // The main window may open another event on the way.
  const std::shared_ptr<EventItem> event = currentEvent_;
  // One that was deleted under the open editor has no label in its conversation any more.
  const bool isThere = currentCon_->events.Find(event->key) == event.get();
  UpdateEventLabel(*event, isThere);
  UpdateEventObject(*event);
  doors_.shell.UpdateEditEvent(*event);
}

void frmEvent::UpdateEventLabel(EventItem& eventItem, bool bRegister) {
  const std::string label = WithoutBlanksAround(Label());
  txtLabel.setText(ToQString(label));
  eventItem.eventLabel = label;
  if (bRegister) currentCon_->UpdateLabel(oldLabel_, label);
  oldLabel_ = label;
}

void frmEvent::UpdateEventObject(EventItem& eventItem) {
  lastSpeakers_ = {};
  Panel(eventItem.eventType).UpdateEvent(eventItem);
  if (const auto* speech = eventItem.As<EventSpeech>()) {
    lastSpeakers_ = {speech->ActorSpeakerID, speech->ActorSpeakingToID};
  }
  RefreshNavButtons();
}

}  // namespace parlate

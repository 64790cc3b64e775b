// The commands that add and edit events, and the event editor that they open.

#include "mainwindow/frmConvList.h"

namespace parlate {

namespace {

constexpr std::int32_t kAppend = 1;
constexpr std::int32_t kInsert = 0;

}  // namespace

void frmConvList::ConnectEventCommands() {
  // An open editor only follows the list; who asks for it wants to write in it.
  const auto bringToFront = [this] {
    if (!IsEventEditorVisible()) return;
    eventEditor_->raise();
    eventEditor_->activateWindow();
  };
  for (std::int32_t type = 0; type < kEventTypeCount; ++type) {
    for (const char* name : {"mnuEventAdd(%1)", "mnuEventPopupAddEvent(%1)"}) {
      On(QString::fromLatin1(name).arg(type), [this, type, bringToFront] {
        shell_.AddEvent(type, kAppend);
        bringToFront();
      });
    }
    for (const char* name : {"mnuEventInsert(%1)", "mnuEventPopupInsertEvent(%1)"}) {
      On(QString::fromLatin1(name).arg(type), [this, type, bringToFront] {
        shell_.AddEvent(type, kInsert);
        bringToFront();
      });
    }
  }
  const auto edit = [this, bringToFront] {
    shell_.EditSelectedEvent();
    bringToFront();
  };
  On("mnuEventsEdit", edit);
  On("mnuEventPopupEdit", edit);
  connect(&lstEvents_, &MultiColumnList::doubleClicked, this, edit);
}

frmEvent& frmConvList::EventEditor() {
  if (!eventEditor_) eventEditor_ = std::make_unique<frmEvent>(Doors(), this);
  return *eventEditor_;
}

void frmConvList::AddEvent(std::int32_t eventType, const std::shared_ptr<Conversation>& con) {
  // An open editor can ask for one more event also when no conversation is selected any longer.
  if (!con && !eventEditor_) return;
  EventEditor().AddEvent(eventType, con);
}

void frmConvList::EditEvent(const std::shared_ptr<Conversation>& con,
                            const std::shared_ptr<EventItem>& event) {
  EventEditor().EditEvent(con, event);
}

bool frmConvList::IsEventEditorVisible() const {
  return eventEditor_ != nullptr && eventEditor_->isVisible();
}

void frmConvList::UnloadEventEditor() {
  if (!eventEditor_) return;
  eventEditor_->StorePosition();
  eventEditor_->hide();
  // It may be the editor's own work that led here, and that has to come to its end.
  eventEditor_.release()->deleteLater();
}

}  // namespace parlate

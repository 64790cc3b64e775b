#include "editors/panels/NotePanel.h"

#include <QVBoxLayout>

#include "platform/FormControls.h"

namespace parlate {

NotePanel::NotePanel(PanelHost& host, QWidget* parent)
    : EventPanel(kAddNote, QStringLiteral("Add Note"), host, parent) {
  SetUpLabel(lblNote, "lblNote", QStringLiteral("Note Text:"));
  SetUpField(txtNote, "txtNote", lblNote);
  auto* panel = new QVBoxLayout(this);
  panel->addWidget(&lblNote);
  panel->addWidget(&txtNote, 1);
  connect(&txtNote, &QPlainTextEdit::textChanged, this, &EventPanel::changed);
}

void NotePanel::ClearFields() { txtNote.SetText({}); }

void NotePanel::Ready() { txtNote.SetText({}); }

void NotePanel::LoadEvent(EventItem& event) {
  txtNote.SetText(Loaded<EventAddNote>(event).noteText);
}

bool NotePanel::IsComplete() const { return !txtNote.IsEmpty(); }

void NotePanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventAddNote>(event).Update(txtNote.Text());
}

}  // namespace parlate

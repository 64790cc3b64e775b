#include "editors/panels/TriggerPanel.h"

#include <QVBoxLayout>

#include "editors/panels/PanelControls.h"
#include "platform/FormControls.h"
#include "platform/TextField.h"

namespace parlate {

TriggerPanel::TriggerPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kTrigger, QStringLiteral("Trigger"), host, parent) {
  SetUpLabel(lblTriggerTag, "lblTriggerTag", QStringLiteral("Trigger Tag:"));
  SetUpField(txtTriggerTag, "txtTriggerTag", lblTriggerTag);
  SetUpTextLine(txtTriggerTag);
  QGridLayout* rows = FieldRows();
  AddFieldRow(*rows, lblTriggerTag, txtTriggerTag);
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(rows);
  panel->addStretch();
  connect(&txtTriggerTag, &QLineEdit::textChanged, this, &EventPanel::changed);
}

void TriggerPanel::ClearFields() { txtTriggerTag.clear(); }

void TriggerPanel::Ready() { txtTriggerTag.clear(); }

void TriggerPanel::LoadEvent(EventItem& event) {
  SetLineText(txtTriggerTag, Loaded<EventTrigger>(event).triggerTag);
}

bool TriggerPanel::IsComplete() const { return !txtTriggerTag.text().isEmpty(); }

void TriggerPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventTrigger>(event).Update(LineText(txtTriggerTag));
}

}  // namespace parlate

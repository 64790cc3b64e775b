#include "editors/panels/EndPanel.h"

#include <QVBoxLayout>

#include "platform/FormControls.h"

namespace parlate {

EndPanel::EndPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kEnd, QStringLiteral("End"), host, parent) {
  SetUpLabel(lblEnd, "lblEnd", QStringLiteral("End Conversation"));
  auto* panel = new QVBoxLayout(this);
  panel->addWidget(&lblEnd);
  panel->addStretch();
}

void EndPanel::ClearFields() {}

void EndPanel::Ready() {}

void EndPanel::LoadEvent(EventItem& /*event*/) {}

bool EndPanel::IsComplete() const { return true; }

void EndPanel::UpdateEvent(EventItem& event) { ObjectOf<EventEnd>(event).Update(); }

}  // namespace parlate

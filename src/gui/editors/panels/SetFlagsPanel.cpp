#include "editors/panels/SetFlagsPanel.h"

#include <QVBoxLayout>

namespace parlate {

SetFlagsPanel::SetFlagsPanel(PanelHost& host, QWidget* parent)
    : FlagsPanel(
          {.eventType = kSetFlags,
           .caption = "Set Flags",
           .label = "lblSetFlags",
           .labelText = "Flags to Set:",
           .list = "lstSetFlags",
           .heads = {QStringLiteral("Flag Name"), QStringLiteral("Value"), QStringLiteral("Exp.")},
           .columnShares = {3, 1, 1},
           .addButton = "cmdSetFlagAdd",
           .deleteButton = "cmdSetFlagDelete",
           .bShowExpiration = true},
          host, parent) {
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(ListLayout());
}

void SetFlagsPanel::Ready() {
  // Meant: the delete button keeps its state until the list is clicked.
  emit changed();
}

void SetFlagsPanel::LoadEvent(EventItem& event) { ShowFlags(Loaded<EventSetFlag>(event).flagRefs); }

void SetFlagsPanel::UpdateEvent(EventItem& event) {
  auto& setFlags = ObjectOf<EventSetFlag>(event);
  setFlags.Update(Flags());
  FollowFlags(setFlags.flagRefs);
}

}  // namespace parlate

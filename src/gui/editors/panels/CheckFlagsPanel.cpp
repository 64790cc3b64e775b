#include "editors/panels/CheckFlagsPanel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/FormControls.h"

namespace parlate {

CheckFlagsPanel::CheckFlagsPanel(PanelHost& host, QWidget* parent)
    : FlagsPanel({.eventType = kCheckFlags,
                  .caption = "Check Flags",
                  .label = "lblCheckFlags",
                  .labelText = "Flags to Check:",
                  .list = "lstCheckFlags",
                  .heads = {QStringLiteral("Flag Name"), QStringLiteral("Value")},
                  .columnShares = {3, 1},
                  .addButton = "cmdCheckFlagAdd",
                  .deleteButton = "cmdCheckFlagDelete",
                  .bShowExpiration = false},
                 host, parent) {
  SetUpLabel(lblCheckFlagGoto, "lblCheckFlagGoto", QStringLiteral("If Flags Set Jump To:"));
  SetUpField(cboCheckFlagGoto, "cboCheckFlagGoto", lblCheckFlagGoto);
  auto* jump = new QHBoxLayout;
  jump->addWidget(&lblCheckFlagGoto);
  jump->addWidget(&cboCheckFlagGoto, 1);
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(ListLayout());
  panel->addLayout(jump);
  connect(&cboCheckFlagGoto, &QtComboBox::choiceChanged, this, &CheckFlagsPanel::changed);
}

void CheckFlagsPanel::ClearFields() {
  FlagsPanel::ClearFields();
  cboCheckFlagGoto.SetText("");
}

void CheckFlagsPanel::Ready() {
  RefreshFlagButtons();
  Host().PopulateLabelCombo(cboCheckFlagGoto);
}

void CheckFlagsPanel::LoadEvent(EventItem& event) {
  auto& checkFlags = Loaded<EventCheckFlag>(event);
  ShowFlags(checkFlags.flagRefs);
  Host().SelectLabelValue(checkFlags.failLabel, cboCheckFlagGoto);
}

bool CheckFlagsPanel::IsComplete() const {
  return FlagsPanel::IsComplete() && !cboCheckFlagGoto.Text().empty();
}

void CheckFlagsPanel::UpdateEvent(EventItem& event) {
  auto& checkFlags = ObjectOf<EventCheckFlag>(event);
  checkFlags.Update(Flags(), cboCheckFlagGoto.Text());
  FollowFlags(checkFlags.flagRefs);
}

}  // namespace parlate

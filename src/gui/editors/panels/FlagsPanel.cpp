#include "editors/panels/FlagsPanel.h"

#include <QGridLayout>
#include <QSignalBlocker>

#include "editors/ListSpace.h"
#include "platform/FontSetup.h"
#include "platform/FormControls.h"

namespace parlate {

FlagsPanel::FlagsPanel(const Setup& setup, PanelHost& host, QWidget* parent)
    : EventPanel(setup.eventType, QString::fromLatin1(setup.caption), host, parent),
      flags_(rows_, setup.bShowExpiration),
      columnShares_(lstFlags, setup.columnShares) {
  SetUpControls(setup);
  flags_.SetFlags(newFlags_);
  RefreshFlagButtons();
  connect(&lstFlags, &MultiColumnList::listIndexChanged, this, &FlagsPanel::RefreshFlagButtons);
  connect(&lstFlags, &MultiColumnList::doubleClicked, this, [this] { flags_.Toggle(); });
  OnSpaceIn(lstFlags, [this] { flags_.Toggle(); });
  connect(&cmdAdd, &QPushButton::clicked, this, &FlagsPanel::AddFlag);
  connect(&cmdDelete, &QPushButton::clicked, this, &FlagsPanel::DeleteFlag);
}

void FlagsPanel::SetUpControls(const Setup& setup) {
  SetUpLabel(lblFlags, setup.label, QString::fromLatin1(setup.labelText));
  SetUpField(lstFlags, setup.list, lblFlags);
  lstFlags.SetHeads(setup.heads);
  lstFlags.setFont(ListFont());
  SetUpButton(cmdAdd, setup.addButton, QStringLiteral("Add &Flag"));
  SetUpButton(cmdDelete, setup.deleteButton, QStringLiteral("&Delete"));
}

QLayout* FlagsPanel::ListLayout() {
  auto* layout = new QGridLayout;
  layout->addWidget(&lblFlags, 0, 0);
  layout->addWidget(&lstFlags, 1, 0, 3, 1);
  layout->addWidget(&cmdAdd, 1, 1);
  layout->addWidget(&cmdDelete, 2, 1);
  layout->setColumnStretch(0, 1);
  layout->setRowStretch(3, 1);
  return layout;
}

void FlagsPanel::ClearFields() {
  // Meant: emptying the list is no click in it, so the delete button keeps its state.
  const QSignalBlocker silence(lstFlags);
  rows_.Clear();
}

void FlagsPanel::BeginNewEvent() {
  const QSignalBlocker silence(lstFlags);
  newFlags_ = {};
  flags_.SetFlags(newFlags_);
}

void FlagsPanel::ShowFlags(FlagList& flags) {
  flags_.SetFlags(flags);
  RefreshFlagButtons();
}

void FlagsPanel::FollowFlags(FlagList& flags) {
  if (&flags == &flags_.Flags()) return;
  flags_.SetFlags(flags);
  // The event shares their items now.
  newFlags_ = {};
}

void FlagsPanel::RefreshFlagButtons() {
  EnableButton(cmdDelete, rows_.ListIndex() != -1, lstFlags);
  emit changed();
}

void FlagsPanel::AddFlag() {
  if (flags_.Add(window())) RefreshFlagButtons();
}

void FlagsPanel::DeleteFlag() {
  flags_.Delete();
  RefreshFlagButtons();
}

void FlagsPanel::InsertPressed() {
  if (cmdAdd.isEnabled()) AddFlag();
}

void FlagsPanel::DeletePressed() {
  if (cmdDelete.isEnabled()) DeleteFlag();
}

}  // namespace parlate

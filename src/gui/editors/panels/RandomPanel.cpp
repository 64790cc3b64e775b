#include "editors/panels/RandomPanel.h"

#include <QGridLayout>
#include <QKeyEvent>

#include "platform/FormControls.h"

namespace parlate {

RandomPanel::RandomPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kRandomLabel, QStringLiteral("Jump to Random Label"), host, parent) {
  SetUpControls();
  BuildLayout();
  ConnectControls();
  ResetCycles();
  RefreshRandomButtons();
}

void RandomPanel::SetUpControls() {
  SetUpLabel(lblRandomLabels, "lblRandomLabels", QStringLiteral("Label Targets:"));
  SetUpField(cboRandomLabels, "cboRandomLabels", lblRandomLabels);
  SetUpButton(cmdRandomAddLabel, "cmdRandomAddLabel", QStringLiteral("Add Label"));
  SetUpLabel(lblLabels, "lblLabels", QStringLiteral("Labels:"));
  SetUpField(lstLabels, "lstLabels", lblLabels);
  SetUpButton(cmdLabelRemove, "cmdLabelRemove", QStringLiteral("&Remove"));
  SetUpButton(cmdLabelRemoveAll, "cmdLabelRemoveAll", QStringLiteral("&Remove All"));
  // The blanks at the end belong to the captions.
  SetUpButton(chkRandomCycle, "chkRandomCycle", QStringLiteral("Cycle Events "));
  SetUpButton(chkCycleOnce, "chkCycleOnce", QStringLiteral("Only Cycle Once "));
  SetUpButton(chkCycleRandom, "chkCycleRandom", QStringLiteral("Random after Cycle"));
  cboRandomLabels.installEventFilter(this);
}

void RandomPanel::BuildLayout() {
  auto* panel = new QGridLayout(this);
  panel->addWidget(&lblRandomLabels, 0, 0);
  panel->addWidget(&cboRandomLabels, 1, 0);
  panel->addWidget(&cmdRandomAddLabel, 1, 1);
  panel->addWidget(&lblLabels, 2, 0);
  panel->addWidget(&lstLabels, 3, 0, 3, 1);
  panel->addWidget(&cmdLabelRemove, 3, 1);
  panel->addWidget(&cmdLabelRemoveAll, 4, 1);
  panel->addWidget(&chkRandomCycle, 6, 0, 1, 2);
  panel->addWidget(&chkCycleOnce, 7, 0, 1, 2);
  panel->addWidget(&chkCycleRandom, 8, 0, 1, 2);
  panel->setColumnStretch(0, 1);
  panel->setRowStretch(5, 1);
}

void RandomPanel::ConnectControls() {
  connect(&cboRandomLabels, &QtComboBox::choiceChanged, this, &RandomPanel::RefreshRandomButtons);
  connect(&lstLabels, &QListWidget::itemSelectionChanged, this, &RandomPanel::RefreshRandomButtons);
  connect(&cmdRandomAddLabel, &QPushButton::clicked, this, &RandomPanel::AddLabel);
  connect(&cmdLabelRemove, &QPushButton::clicked, this, &RandomPanel::RemoveLabel);
  connect(&cmdLabelRemoveAll, &QPushButton::clicked, this, &RandomPanel::RemoveAllLabels);
  connect(&chkRandomCycle, &QCheckBox::toggled, this, &RandomPanel::EnableCycleOptions);
}

bool RandomPanel::eventFilter(QObject* watched, QEvent* event) {
  // Return in the combo means its own button first, as a label was typed for the list.
  if (watched == &cboRandomLabels && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && cmdRandomAddLabel.isEnabled()) {
      AddLabel();
      return true;
    }
  }
  return EventPanel::eventFilter(watched, event);
}

void RandomPanel::EnableCycleOptions(bool bEnable) {
  chkCycleOnce.setEnabled(bEnable);
  chkCycleRandom.setEnabled(bEnable);
}

void RandomPanel::ResetCycles() {
  chkRandomCycle.setChecked(false);
  EnableCycleOptions(false);
  chkCycleOnce.setChecked(false);
  chkCycleRandom.setChecked(false);
}

void RandomPanel::ClearFields() {
  lstLabels.Clear();
  ResetCycles();
}

void RandomPanel::Ready() {
  Host().PopulateLabelCombo(cboRandomLabels);
  ResetCycles();
  RefreshRandomButtons();
}

void RandomPanel::LoadEvent(EventItem& event) {
  const auto& random = Loaded<EventRandom>(event);
  random.PopulateLabelsList(lstLabels);
  chkRandomCycle.setChecked(random.bCycleEvents);
  if (random.bCycleEvents) {
    chkCycleOnce.setChecked(random.bCycleOnce);
    chkCycleRandom.setChecked(random.bCycleRandom);
  }
  RefreshRandomButtons();
}

bool RandomPanel::IsComplete() const { return lstLabels.ListCount() >= 2; }

void RandomPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventRandom>(event).Update(lstLabels, chkRandomCycle.isChecked(),
                                      chkCycleOnce.isChecked(), chkCycleRandom.isChecked());
}

void RandomPanel::RefreshRandomButtons() {
  EnableButton(cmdLabelRemove, lstLabels.ListIndex() != -1, lstLabels);
  EnableButton(cmdLabelRemoveAll, lstLabels.ListCount() > 0, cboRandomLabels);
  EnableButton(cmdRandomAddLabel, !cboRandomLabels.Text().empty(), cboRandomLabels);
}

void RandomPanel::AddLabel() {
  const std::string label = cboRandomLabels.Text();
  if (label.empty()) return;
  bool bFound = false;
  for (int i = 0; i < lstLabels.ListCount(); ++i) bFound = bFound || lstLabels.List(i) == label;
  if (!bFound) {
    lstLabels.AddItem(label);
    cboRandomLabels.SetText("");
  }
  // For the next label, or to write this one otherwise.
  cboRandomLabels.setFocus();
  RefreshRandomButtons();
  emit changed();
}

void RandomPanel::RemoveLabel() {
  lstLabels.RemoveItem(lstLabels.ListIndex());
  // The toolkit selects a neighbour, which a second press would remove too.
  lstLabels.SetListIndex(-1);
  RefreshRandomButtons();
  emit changed();
}

void RandomPanel::RemoveAllLabels() {
  lstLabels.Clear();
  RefreshRandomButtons();
  emit changed();
}

}  // namespace parlate

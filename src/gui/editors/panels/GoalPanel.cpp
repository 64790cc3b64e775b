#include "editors/panels/GoalPanel.h"

#include <QVBoxLayout>

#include "editors/panels/PanelControls.h"
#include "platform/FormControls.h"

namespace parlate {

GoalPanel::GoalPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kAddGoal, QStringLiteral("Add/Complete Goal"), host, parent) {
  SetUpControls();
  BuildLayout();
  optGoalAdd.setChecked(true);
  connect(&optGoalAdd, &QRadioButton::toggled, this, [this](bool set) {
    if (set) EnableGoalText(true);
  });
  connect(&optGoalCompleted, &QRadioButton::toggled, this, [this](bool set) {
    if (set) CompleteGoal();
  });
  connect(&txtGoalName, &QLineEdit::textChanged, this, &EventPanel::changed);
  connect(&txtGoal, &QPlainTextEdit::textChanged, this, &EventPanel::changed);
}

void GoalPanel::SetUpControls() {
  SetUpLabel(lblGoalName, "lblGoalName", QStringLiteral("Goal Name:"));
  SetUpField(txtGoalName, "txtGoalName", lblGoalName);
  SetUpTextLine(txtGoalName);
  FilterNameKeys(txtGoalName);
  SetUpButton(optGoalAdd, "optGoalAdd", QStringLiteral("Add Goal:"));
  SetUpButton(optGoalCompleted, "optGoalCompleted", QStringLiteral("Goal Completed"));
  SetUpLabel(lblGoal, "lblGoal", QStringLiteral("Goal Text:"));
  SetUpField(txtGoal, "txtGoal", lblGoal);
  SetUpButton(chkPrimaryGoal, "chkPrimaryGoal", QStringLiteral("Primary Goal"));
}

void GoalPanel::BuildLayout() {
  QGridLayout* rows = FieldRows();
  AddFieldRow(*rows, lblGoalName, txtGoalName);
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(rows);
  panel->addWidget(&optGoalAdd);
  panel->addWidget(&optGoalCompleted);
  panel->addWidget(&lblGoal);
  panel->addWidget(&txtGoal, 1);
  panel->addWidget(&chkPrimaryGoal);
}

void GoalPanel::EnableGoalText(bool bEnable) {
  lblGoal.setEnabled(bEnable);
  txtGoal.setEnabled(bEnable);
  chkPrimaryGoal.setEnabled(bEnable);
  emit changed();
}

void GoalPanel::CompleteGoal() {
  txtGoal.SetText({});
  chkPrimaryGoal.setChecked(false);
  EnableGoalText(false);
}

void GoalPanel::ClearFields() {
  ClearOption(optGoalCompleted);
  txtGoalName.clear();
  txtGoal.SetText({});
  chkPrimaryGoal.setChecked(false);
}

void GoalPanel::Ready() {
  optGoalAdd.setChecked(true);
  EnableGoalText(true);
  txtGoalName.clear();
  txtGoal.SetText({});
}

void GoalPanel::LoadEvent(EventItem& event) {
  const auto& goal = Loaded<EventAddGoal>(event);
  SetLineText(txtGoalName, goal.goalName);
  (goal.bGoalCompleted ? optGoalCompleted : optGoalAdd).setChecked(true);
  EnableGoalText(!goal.bGoalCompleted);
  if (goal.bGoalCompleted) return;
  txtGoal.SetText(goal.goalText);
  chkPrimaryGoal.setChecked(goal.bPrimaryGoal);
}

bool GoalPanel::IsComplete() const {
  if (txtGoalName.text().isEmpty()) return false;
  return optGoalCompleted.isChecked() || !txtGoal.IsEmpty();
}

void GoalPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventAddGoal>(event).Update(LineText(txtGoalName), optGoalCompleted.isChecked(),
                                       txtGoal.Text(), chkPrimaryGoal.isChecked());
}

}  // namespace parlate

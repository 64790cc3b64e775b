#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "editors/panels/EventPanel.h"
#include "platform/TextField.h"

namespace parlate {

/// A goal is given or completed.
class GoalPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit GoalPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  void SetUpControls();
  void BuildLayout();
  void EnableGoalText(bool bEnable);
  void CompleteGoal();

  // In the order in which Tab visits them.
  QLabel lblGoalName{this};
  QLineEdit txtGoalName{this};
  QRadioButton optGoalAdd{this};
  QRadioButton optGoalCompleted{this};
  QLabel lblGoal{this};
  QtTextBox txtGoal{this};
  QCheckBox chkPrimaryGoal{this};
};

}  // namespace parlate

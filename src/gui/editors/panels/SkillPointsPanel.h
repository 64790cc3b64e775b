#pragma once

#include <QLabel>
#include <QLineEdit>

#include "editors/panels/EventPanel.h"
#include "model/TextNumbers.h"

namespace parlate {

/// Skill points for the player.
class SkillPointsPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit SkillPointsPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  [[nodiscard]] NumberField Number() override { return {&txtSkillPointsToAdd, NumberOfText}; }
  void UpdateEvent(EventItem& event) override;

 private:
  // In the order in which Tab visits them.
  QLabel lblSkillPointsToAdd{this};
  QLineEdit txtSkillPointsToAdd{this};
  QLabel lblSkillPointsMessage{this};
  QLineEdit txtSkillPointsMessage{this};
};

}  // namespace parlate

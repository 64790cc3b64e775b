#pragma once

#include <QLabel>
#include <QLineEdit>

#include "editors/panels/EventPanel.h"
#include "model/TextNumbers.h"

namespace parlate {

/// Money for the player.
class CreditsPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit CreditsPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  [[nodiscard]] NumberField Number() override { return {&txtCreditsToAdd, NumberOfText}; }
  void UpdateEvent(EventItem& event) override;

 private:
  // In the order in which Tab visits them.
  QLabel lblCreditsToAdd{this};
  QLineEdit txtCreditsToAdd{this};
};

}  // namespace parlate

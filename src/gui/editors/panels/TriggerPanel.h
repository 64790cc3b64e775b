#pragma once

#include <QLabel>
#include <QLineEdit>

#include "editors/panels/EventPanel.h"

namespace parlate {

/// Something in the world is set off.
class TriggerPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit TriggerPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  // In the order in which Tab visits them.
  QLabel lblTriggerTag{this};
  QLineEdit txtTriggerTag{this};
};

}  // namespace parlate

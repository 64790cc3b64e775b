#pragma once

#include <QLabel>

#include "editors/panels/EventPanel.h"

namespace parlate {

/// The conversation ends.
class EndPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit EndPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  QLabel lblEnd{this};
};

}  // namespace parlate

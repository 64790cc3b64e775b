#pragma once

#include <QLabel>

#include "editors/panels/EventPanel.h"
#include "platform/TextField.h"

namespace parlate {

/// A note for the player.
class NotePanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit NotePanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  // In the order in which Tab visits them.
  QLabel lblNote{this};
  QtTextBox txtNote{this};
};

}  // namespace parlate

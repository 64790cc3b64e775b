#pragma once

#include <QLabel>

#include "editors/panels/EventPanel.h"
#include "platform/TextField.h"

namespace parlate {

/// A remark of the writer's.
class CommentPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit CommentPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  // In the order in which Tab visits them.
  QLabel lblComment{this};
  QtTextBox txtComment{this};
};

}  // namespace parlate

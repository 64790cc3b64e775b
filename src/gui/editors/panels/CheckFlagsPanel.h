#pragma once

#include "editors/panels/FlagsPanel.h"
#include "platform/QtComboBox.h"

namespace parlate {

/// Flags that are compared, and the label to go on at when all of them are as asked.
class CheckFlagsPanel final : public FlagsPanel {
  Q_OBJECT

 public:
  explicit CheckFlagsPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  QLabel lblCheckFlagGoto{this};
  QtComboBox cboCheckFlagGoto{this};
};

}  // namespace parlate

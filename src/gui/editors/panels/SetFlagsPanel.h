#pragma once

#include "editors/panels/FlagsPanel.h"

namespace parlate {

/// Flags that are given values, each for some missions or for good.
class SetFlagsPanel final : public FlagsPanel {
  Q_OBJECT

 public:
  explicit SetFlagsPanel(PanelHost& host, QWidget* parent = nullptr);

  void Ready() override;
  void LoadEvent(EventItem& event) override;
  void UpdateEvent(EventItem& event) override;
};

}  // namespace parlate

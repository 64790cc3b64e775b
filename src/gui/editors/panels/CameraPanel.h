#pragma once

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "editors/panels/EventPanel.h"
#include "platform/QtComboBox.h"

namespace parlate {

/// The camera goes to a position.
class CameraPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit CameraPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  void SetUpControls();
  void BuildLayout();
  void RefreshCameraControls();
  static void EditCameraProperties();

  // In the order in which Tab visits them.
  QRadioButton optCameraPosition{this};
  QtComboBox cboCameraPosition{this};
  QRadioButton optCameraRandom{this};
  QRadioButton optCameraSpecific{this};
  QPushButton cmdEditCamera{this};
  QLabel lblCameraTransition{this};
  QtComboBox cboCameraTransition{this};
};

}  // namespace parlate

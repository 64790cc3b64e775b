#pragma once

#include <QLabel>
#include <QPushButton>

#include "editors/TableCombo.h"
#include "editors/panels/EventPanel.h"

namespace parlate {

/// Looks for an object and jumps where it is missing.
class CheckObjectPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit CheckObjectPanel(PanelHost& host, QWidget* parent = nullptr);

  void LeaveFields() override { object_.Leave(); }
  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  void SetUpControls();
  void BuildLayout();

  // In the order in which Tab visits them.
  QLabel lblCheckObject{this};
  QtComboBox cboCheckObject{this, RowOrder::ByName};
  QPushButton cmdCheckObject{this};
  QLabel lblCheckObjectFail{this};
  QtComboBox cboCheckObjectFail{this};

  TableCombo object_;
};

}  // namespace parlate

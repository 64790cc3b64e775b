#pragma once

#include <QLabel>
#include <QPushButton>

#include "editors/TableCombo.h"
#include "editors/panels/EventPanel.h"

namespace parlate {

/// An actor opens its trade.
class TradePanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit TradePanel(PanelHost& host, QWidget* parent = nullptr);

  void LeaveFields() override { pawn_.Leave(); }
  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  // In the order in which Tab visits them.
  QLabel lblPawnTrade{this};
  QtComboBox cboPawnTrade{this, RowOrder::ByName};
  QPushButton cmdEditNPCTable2{this};

  TableCombo pawn_;
};

}  // namespace parlate

#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "editors/TableCombo.h"
#include "editors/panels/EventPanel.h"
#include "model/TextNumbers.h"

namespace parlate {

/// An object goes from one actor to another.
class TransferObjectPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit TransferObjectPanel(PanelHost& host, QWidget* parent = nullptr);

  void LeaveFields() override {
    object_.Leave();
    from_.Leave();
    to_.Leave();
  }
  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  [[nodiscard]] NumberField Number() override { return {&txtTransferCount, NumberOfText}; }
  void UpdateEvent(EventItem& event) override;

  void ClearTransferCount() { txtTransferCount.clear(); }

 private:
  void SetUpControls();
  void BuildLayout();

  // In the order in which Tab visits them.
  QLabel lblTransferObject{this};
  QtComboBox cboTransferObject{this, RowOrder::ByName};
  QPushButton cmdTransferObject{this};
  QLabel lblTransferCount{this};
  QLineEdit txtTransferCount{this};
  QLabel lblTransferFrom{this};
  QtComboBox cboTransferFrom{this, RowOrder::ByName};
  QPushButton cmdTransferFrom{this};
  QLabel lblTransferTo{this};
  QtComboBox cboTransferTo{this, RowOrder::ByName};
  QPushButton cmdTransferTo{this};
  QLabel lblTransferObjectFail{this};
  QtComboBox cboTransferObjectFail{this};

  TableCombo object_;
  TableCombo from_;
  TableCombo to_;
};

}  // namespace parlate

#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "editors/TableCombo.h"
#include "editors/panels/EventPanel.h"
#include "model/TextNumbers.h"

namespace parlate {

/// An actor plays an animation sequence.
class AnimationPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit AnimationPanel(PanelHost& host, QWidget* parent = nullptr);

  void LeaveFields() override { pawn_.Leave(); }
  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  [[nodiscard]] NumberField Number() override { return {&txtAnimLength, NumericValue}; }
  void UpdateEvent(EventItem& event) override;

 private:
  void SetUpControls();
  void SetUpDuration();
  void BuildLayout();
  void RefreshAnimationControls();

  // In the order in which Tab visits them.
  QLabel lblPawnAnimate{this};
  QtComboBox cboPawnAnimate{this, RowOrder::ByName};
  QPushButton cmdEditNPCTable1{this};
  QLabel lblSeqName{this};
  QLineEdit txtSeqName{this};
  QGroupBox fraAnimDuration{this};
  QRadioButton optAnimPlayOnce{&fraAnimDuration};
  QRadioButton optAnimLoop{&fraAnimDuration};
  QCheckBox chkFinishAnim{&fraAnimDuration};
  QCheckBox chkAnimTimed{&fraAnimDuration};
  QLabel lblAnimTimed0{&fraAnimDuration};
  QLineEdit txtAnimLength{&fraAnimDuration};
  QLabel lblAnimTimed1{&fraAnimDuration};

  TableCombo pawn_;
};

}  // namespace parlate

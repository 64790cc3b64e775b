#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "editors/panels/EventPanel.h"
#include "platform/QtComboBox.h"
#include "platform/QtListBox.h"

namespace parlate {

/// A jump to one of several labels of the conversation.
class RandomPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit RandomPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SetUpControls();
  void BuildLayout();
  void ConnectControls();
  void RefreshRandomButtons();
  void EnableCycleOptions(bool bEnable);
  void ResetCycles();
  void AddLabel();
  void RemoveLabel();
  void RemoveAllLabels();

  // In the order in which Tab visits them.
  QLabel lblRandomLabels{this};
  QtComboBox cboRandomLabels{this};
  QPushButton cmdRandomAddLabel{this};
  QLabel lblLabels{this};
  QtListBox lstLabels{this};
  QPushButton cmdLabelRemove{this};
  QPushButton cmdLabelRemoveAll{this};
  QCheckBox chkRandomCycle{this};
  QCheckBox chkCycleOnce{this};
  QCheckBox chkCycleRandom{this};
};

}  // namespace parlate

#pragma once

#include <QLabel>

#include "editors/panels/EventPanel.h"
#include "platform/QtComboBox.h"

namespace parlate {

/// A jump to a label of any conversation of the file.
class JumpPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit JumpPanel(PanelHost& host, QWidget* parent = nullptr);

  /// The key of the conversation that is chosen, or -1.
  [[nodiscard]] std::int32_t ConversationID() const;

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;

 private:
  void PopulateLabels();
  [[nodiscard]] std::int32_t SelectedConKey() const;
  void SelectConversation(std::int32_t conID);

  QLabel lblJumpConv{this};
  QtComboBox cboJumpConv{this};
  QLabel lblJumpLabel{this};
  QtComboBox cboJumpLabel{this};
};

}  // namespace parlate

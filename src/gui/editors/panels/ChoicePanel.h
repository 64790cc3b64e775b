#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <memory>

#include "editors/ColumnShares.h"
#include "editors/panels/EventPanel.h"
#include "shell/ListRows.h"
#include "widgets/MultiColumnList.h"

namespace parlate {

/// The options that the player is offered. They are those of a choice event that stands ready until
/// the event exists, and the event's own from then on, where every change counts at once.
class ChoicePanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit ChoicePanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void BeginNewEvent() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  void UpdateEvent(EventItem& event) override;
  void InsertPressed() override;
  void DeletePressed() override;

 private:
  void SetUpControls();
  void BuildLayout();
  void ConnectControls();
  void RefreshChoiceButtons();
  void PopulateChoices();
  void AddChoiceToEvent();
  void EditSelectedChoice();
  void DeleteSelectedChoice();
  void MoveChoiceUp();
  void MoveChoiceDown();
  /// Puts the selected row, and the choice of it, `step` places further down.
  void MoveChoice(std::int32_t step);
  [[nodiscard]] std::int32_t SelectedID() const;

  EventChoice newChoiceEvent_;  ///< Of an event that does not exist yet.
  EventChoice* currentChoiceEvent_ = &newChoiceEvent_;
  ListRows rows_;

  // In the order in which Tab visits them.
  MultiColumnList lstChoices{rows_, this};
  QPushButton cmdChoiceAdd{this};
  QPushButton cmdChoiceEdit{this};
  QPushButton cmdChoiceDelete{this};
  QPushButton cmdChoiceUp{this};
  QPushButton cmdChoiceDown{this};
  QCheckBox chkChoiceClear{this};
  ColumnShares columnShares_{lstChoices, {3, 2}};
};

}  // namespace parlate

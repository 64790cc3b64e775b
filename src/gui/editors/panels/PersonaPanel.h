#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "editors/panels/EventPanel.h"
#include "model/TextNumbers.h"
#include "platform/QtComboBox.h"

namespace parlate {

/// Fills a combo with the five comparison operators.
void PopulateConditionsCombo(ComboBox& cboConditions);

/// Compares an attribute of the player's and jumps.
class PersonaPanel final : public EventPanel {
  Q_OBJECT

 public:
  explicit PersonaPanel(PanelHost& host, QWidget* parent = nullptr);

  void ClearFields() override;
  void Ready() override;
  void LoadEvent(EventItem& event) override;
  [[nodiscard]] bool IsComplete() const override;
  [[nodiscard]] NumberField Number() override { return {&txtPersonaValue, NumberOfText}; }
  void UpdateEvent(EventItem& event) override;

 private:
  void SetUpControls();
  void BuildLayout();

  // In the order in which Tab visits them.
  QGroupBox fraPersonaAttribute{this};
  QRadioButton optPersonaCredits{&fraPersonaAttribute};
  QRadioButton optPersonaHealth{&fraPersonaAttribute};
  QRadioButton optPersonaSkillPoints{&fraPersonaAttribute};
  QLabel lblPersonaCondition{this};
  QtComboBox cboPersonaCondition{this};
  QLabel lblCheckPersonaValue{this};
  QLineEdit txtPersonaValue{this};
  QLabel lblPersonaLabel{this};
  QtComboBox cboPersonaLabel{this};
};

}  // namespace parlate

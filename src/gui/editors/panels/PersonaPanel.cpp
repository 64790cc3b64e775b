#include "editors/panels/PersonaPanel.h"

#include <QVBoxLayout>
#include <array>
#include <string_view>

#include "editors/panels/PanelControls.h"
#include "model/TableCombos.h"
#include "platform/FormControls.h"
#include "platform/TextField.h"

namespace parlate {

namespace {

// The blanks belong to the texts: they set the operators of one and two characters in line.
constexpr std::array<std::string_view, 5> kConditionNames = {
    " <  (Less Than)", " <= (Less Than or Equal To)", " =  (Equal To)",
    " >= (Greater Than or Equal To)", " >  (Greater Than)"};

}  // namespace

void PopulateConditionsCombo(ComboBox& cboConditions) {
  PopulateComboFromArray(cboConditions, kConditionNames);
}

PersonaPanel::PersonaPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kCheckPersona, QStringLiteral("Check Persona"), host, parent) {
  SetUpControls();
  BuildLayout();
  optPersonaCredits.setChecked(true);
  connect(&cboPersonaCondition, &QtComboBox::choiceChanged, this, &EventPanel::changed);
  connect(&txtPersonaValue, &QLineEdit::textChanged, this, &EventPanel::changed);
  connect(&cboPersonaLabel, &QtComboBox::choiceChanged, this, &EventPanel::changed);
}

void PersonaPanel::SetUpControls() {
  const QString attribute = QStringLiteral("Attribute to Check:");
  NameControl(fraPersonaAttribute, "fraPersonaAttribute", attribute);
  fraPersonaAttribute.setTitle(attribute);
  SetUpButton(optPersonaCredits, "optPersonaCredits", QStringLiteral("Credits"));
  SetUpButton(optPersonaHealth, "optPersonaHealth", QStringLiteral("Health"));
  SetUpButton(optPersonaSkillPoints, "optPersonaSkillPoints", QStringLiteral("Skill Points"));
  SetUpLabel(lblPersonaCondition, "lblPersonaCondition", QStringLiteral("Conditon:"));
  cboPersonaCondition.MakeListOnly();
  SetUpField(cboPersonaCondition, "cboPersonaCondition", lblPersonaCondition);
  SetUpLabel(lblCheckPersonaValue, "lblCheckPersonaValue", QStringLiteral("Value:"));
  SetUpField(txtPersonaValue, "txtPersonaValue", lblCheckPersonaValue);
  SetUpTextLine(txtPersonaValue);
  SetUpLabel(lblPersonaLabel, "lblPersonaLabel", QStringLiteral("Label to jump to:"));
  SetUpField(cboPersonaLabel, "cboPersonaLabel", lblPersonaLabel);
}

void PersonaPanel::BuildLayout() {
  auto* attributes = new QVBoxLayout(&fraPersonaAttribute);
  attributes->addWidget(&optPersonaCredits);
  attributes->addWidget(&optPersonaHealth);
  attributes->addWidget(&optPersonaSkillPoints);
  QGridLayout* rows = FieldRows();
  AddFieldRow(*rows, lblPersonaCondition, cboPersonaCondition);
  AddFieldRow(*rows, lblCheckPersonaValue, txtPersonaValue);
  AddFieldRow(*rows, lblPersonaLabel, cboPersonaLabel);
  auto* panel = new QVBoxLayout(this);
  panel->addWidget(&fraPersonaAttribute);
  panel->addLayout(rows);
  panel->addStretch();
}

void PersonaPanel::ClearFields() {
  optPersonaCredits.setChecked(true);
  txtPersonaValue.clear();
  cboPersonaLabel.SetListIndex(-1);
  cboPersonaCondition.SetListIndex(-1);
}

void PersonaPanel::Ready() {
  optPersonaCredits.setChecked(true);
  PopulateConditionsCombo(cboPersonaCondition);
  Host().PopulateLabelCombo(cboPersonaLabel);
  txtPersonaValue.clear();
}

void PersonaPanel::LoadEvent(EventItem& event) {
  const auto& check = Loaded<EventCheckPersona>(event);
  if (check.personaType == 0) optPersonaCredits.setChecked(true);
  if (check.personaType == 1) optPersonaHealth.setChecked(true);
  if (check.personaType == 2) optPersonaSkillPoints.setChecked(true);
  SelectComboItemByID(check.condition, cboPersonaCondition);
  txtPersonaValue.setText(QString::number(check.value));
  Host().SelectLabelValue(check.jumpLabel, cboPersonaLabel);
}

bool PersonaPanel::IsComplete() const {
  return cboPersonaCondition.ListIndex() != -1 && !txtPersonaValue.text().isEmpty() &&
         !cboPersonaLabel.Text().empty();
}

void PersonaPanel::UpdateEvent(EventItem& event) {
  const std::int32_t otherType = optPersonaHealth.isChecked() ? 1 : 2;
  const std::int32_t personaType = optPersonaCredits.isChecked() ? 0 : otherType;
  ObjectOf<EventCheckPersona>(event).Update(personaType, GetComboItemID(cboPersonaCondition),
                                            LineText(txtPersonaValue), cboPersonaLabel.Text());
}

}  // namespace parlate

#include "editors/panels/SkillPointsPanel.h"

#include <QVBoxLayout>

#include "editors/panels/PanelControls.h"
#include "model/TextNumbers.h"
#include "platform/FormControls.h"
#include "platform/TextField.h"

namespace parlate {

SkillPointsPanel::SkillPointsPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kAddSkillPoints, QStringLiteral("Add Skill Points"), host, parent) {
  SetUpLabel(lblSkillPointsToAdd, "lblSkillPointsToAdd",
             QStringLiteral("Number of Skill Points to Add:"));
  SetUpField(txtSkillPointsToAdd, "txtSkillPointsToAdd", lblSkillPointsToAdd);
  SetUpTextLine(txtSkillPointsToAdd);
  SetUpLabel(lblSkillPointsMessage, "lblSkillPointsMessage",
             QStringLiteral("Optinal Skill Point Award Message:"));
  SetUpField(txtSkillPointsMessage, "txtSkillPointsMessage", lblSkillPointsMessage);
  SetUpTextLine(txtSkillPointsMessage);
  QGridLayout* rows = FieldRows();
  AddFieldRow(*rows, lblSkillPointsToAdd, txtSkillPointsToAdd);
  AddFieldRow(*rows, lblSkillPointsMessage, txtSkillPointsMessage);
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(rows);
  panel->addStretch();
  connect(&txtSkillPointsToAdd, &QLineEdit::textChanged, this, &EventPanel::changed);
}

void SkillPointsPanel::ClearFields() {
  txtSkillPointsToAdd.clear();
  txtSkillPointsMessage.clear();
}

void SkillPointsPanel::Ready() {
  txtSkillPointsToAdd.clear();
  // Meant: it is the count of another panel that is emptied, and the message stays.
  Host().ClearTransferCount();
}

void SkillPointsPanel::LoadEvent(EventItem& event) {
  const auto& points = Loaded<EventAddSkillPoints>(event);
  txtSkillPointsToAdd.setText(QString::number(points.pointsToAdd));
  SetLineText(txtSkillPointsMessage, points.awardMessage);
}

bool SkillPointsPanel::IsComplete() const { return !txtSkillPointsToAdd.text().isEmpty(); }

void SkillPointsPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventAddSkillPoints>(event).Update(NumberOfText(LineText(txtSkillPointsToAdd)),
                                              LineText(txtSkillPointsMessage));
}

}  // namespace parlate

#include "editors/panels/CreditsPanel.h"

#include <QVBoxLayout>

#include "editors/panels/PanelControls.h"
#include "model/TextNumbers.h"
#include "platform/FormControls.h"
#include "platform/TextField.h"

namespace parlate {

CreditsPanel::CreditsPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kAddCredits, QStringLiteral("Add Credits"), host, parent) {
  SetUpLabel(lblCreditsToAdd, "lblCreditsToAdd",
             QStringLiteral("Number of Credits to Add (can be negative):"));
  SetUpField(txtCreditsToAdd, "txtCreditsToAdd", lblCreditsToAdd);
  SetUpTextLine(txtCreditsToAdd);
  QGridLayout* rows = FieldRows();
  AddFieldRow(*rows, lblCreditsToAdd, txtCreditsToAdd);
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(rows);
  panel->addStretch();
  connect(&txtCreditsToAdd, &QLineEdit::textChanged, this, &EventPanel::changed);
}

void CreditsPanel::ClearFields() { txtCreditsToAdd.clear(); }

void CreditsPanel::Ready() { txtCreditsToAdd.clear(); }

void CreditsPanel::LoadEvent(EventItem& event) {
  txtCreditsToAdd.setText(QString::number(Loaded<EventAddCredits>(event).creditsToAdd));
}

bool CreditsPanel::IsComplete() const { return !txtCreditsToAdd.text().isEmpty(); }

void CreditsPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventAddCredits>(event).Update(NumberOfText(LineText(txtCreditsToAdd)));
}

}  // namespace parlate

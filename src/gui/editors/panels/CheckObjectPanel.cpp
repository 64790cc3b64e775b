#include "editors/panels/CheckObjectPanel.h"

#include <QVBoxLayout>

#include "editors/panels/PanelControls.h"
#include "model/TableCombos.h"
#include "model/Tables.h"
#include "platform/FormControls.h"

namespace parlate {

CheckObjectPanel::CheckObjectPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kCheckObject, QStringLiteral("Check Object"), host, parent),
      object_(cboCheckObject, kObjectTable, cmdCheckObject, [this] { emit changed(); }) {
  SetUpControls();
  BuildLayout();
  connect(&cboCheckObjectFail, &QtComboBox::choiceChanged, this, &EventPanel::changed);
}

void CheckObjectPanel::SetUpControls() {
  SetUpLabel(lblCheckObject, "lblCheckObject", QStringLiteral("Object to Look For:"));
  SetUpField(cboCheckObject, "cboCheckObject", lblCheckObject);
  SetUpFieldButton(cmdCheckObject, "cmdCheckObject", QStringLiteral("..."), lblCheckObject);
  SetUpLabel(lblCheckObjectFail, "lblCheckObjectFail",
             QStringLiteral("If Object Not Found, Jump to Label:"));
  SetUpField(cboCheckObjectFail, "cboCheckObjectFail", lblCheckObjectFail);
  // On one line it would make the window wider than all other panels need it.
  lblCheckObjectFail.setWordWrap(true);
}

void CheckObjectPanel::BuildLayout() {
  QGridLayout* rows = FieldRows();
  AddFieldRow(*rows, lblCheckObject, cboCheckObject, &cmdCheckObject);
  AddFieldRow(*rows, lblCheckObjectFail, cboCheckObjectFail);
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(rows);
  panel->addStretch();
}

void CheckObjectPanel::ClearFields() {
  cboCheckObject.SetListIndex(-1);
  cboCheckObjectFail.SetText({});
}

void CheckObjectPanel::Ready() {
  PopulateCombo(cboCheckObject, *GetTable(kObjectTable));
  Host().PopulateLabelCombo(cboCheckObjectFail);
}

void CheckObjectPanel::LoadEvent(EventItem& event) {
  const auto& check = Loaded<EventCheckObject>(event);
  SelectComboItemByID(check.objectID, cboCheckObject);
  Host().SelectLabelValue(check.failLabel, cboCheckObjectFail);
}

bool CheckObjectPanel::IsComplete() const {
  return object_.IsValid() && !cboCheckObjectFail.Text().empty();
}

void CheckObjectPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventCheckObject>(event).Update(GetComboItemID(cboCheckObject),
                                           cboCheckObjectFail.Text());
}

}  // namespace parlate

#include "editors/panels/TransferObjectPanel.h"

#include <QVBoxLayout>

#include "editors/panels/PanelControls.h"
#include "model/TableCombos.h"
#include "model/Tables.h"
#include "model/TextNumbers.h"
#include "platform/FormControls.h"
#include "platform/TextField.h"

namespace parlate {

TransferObjectPanel::TransferObjectPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kTransferObject, QStringLiteral("Transfer Object"), host, parent),
      object_(cboTransferObject, kObjectTable, cmdTransferObject, [this] { emit changed(); }),
      from_(cboTransferFrom, kActorTable, cmdTransferFrom, [this] { emit changed(); }),
      to_(cboTransferTo, kActorTable, cmdTransferTo, [this] { emit changed(); }) {
  SetUpControls();
  BuildLayout();
  connect(&cboTransferObjectFail, &QtComboBox::choiceChanged, this, &EventPanel::changed);
}

void TransferObjectPanel::SetUpControls() {
  SetUpLabel(lblTransferObject, "lblTransferObject", QStringLiteral("Object to Transfer:"));
  SetUpField(cboTransferObject, "cboTransferObject", lblTransferObject);
  SetUpFieldButton(cmdTransferObject, "cmdTransferObject", QStringLiteral("..."),
                   lblTransferObject);
  SetUpLabel(lblTransferCount, "lblTransferCount",
             QStringLiteral("Number of items to transfer (only if stackable!)"));
  SetUpField(txtTransferCount, "txtTransferCount", lblTransferCount);
  // On one line it would make the window wider than all other panels need it.
  lblTransferCount.setWordWrap(true);
  SetUpLabel(lblTransferFrom, "lblTransferFrom", QStringLiteral("Transfer From:"));
  SetUpField(cboTransferFrom, "cboTransferFrom", lblTransferFrom);
  SetUpFieldButton(cmdTransferFrom, "cmdTransferFrom", QStringLiteral("Edit NPC Table"),
                   lblTransferFrom);
  SetUpLabel(lblTransferTo, "lblTransferTo", QStringLiteral("Transfer To:"));
  SetUpField(cboTransferTo, "cboTransferTo", lblTransferTo);
  SetUpFieldButton(cmdTransferTo, "cmdTransferTo", QStringLiteral("Edit NPC Table"), lblTransferTo);
  SetUpLabel(lblTransferObjectFail, "lblTransferObjectFail", QStringLiteral("On Fail Jump To:"));
  SetUpField(cboTransferObjectFail, "cboTransferObjectFail", lblTransferObjectFail);
  SetUpTextLine(txtTransferCount);
}

void TransferObjectPanel::BuildLayout() {
  QGridLayout* rows = FieldRows();
  AddFieldRow(*rows, lblTransferObject, cboTransferObject, &cmdTransferObject);
  AddFieldRow(*rows, lblTransferCount, txtTransferCount);
  AddFieldRow(*rows, lblTransferFrom, cboTransferFrom, &cmdTransferFrom);
  AddFieldRow(*rows, lblTransferTo, cboTransferTo, &cmdTransferTo);
  AddFieldRow(*rows, lblTransferObjectFail, cboTransferObjectFail);
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(rows);
  panel->addStretch();
}

void TransferObjectPanel::ClearFields() {
  cboTransferObject.SetListIndex(-1);
  txtTransferCount.clear();
  cboTransferFrom.SetListIndex(-1);
  cboTransferTo.SetListIndex(-1);
  cboTransferObjectFail.SetText({});
}

void TransferObjectPanel::Ready() {
  PopulateCombo(cboTransferObject, *GetTable(kObjectTable));
  txtTransferCount.setText(QStringLiteral("1"));
  PopulateCombo(cboTransferFrom, *GetTable(kActorTable));
  PopulateCombo(cboTransferTo, *GetTable(kActorTable));
  Host().PopulateLabelCombo(cboTransferObjectFail);
}

void TransferObjectPanel::LoadEvent(EventItem& event) {
  const auto& transfer = Loaded<EventTransferObject>(event);
  SelectComboItemByID(transfer.objectID, cboTransferObject);
  txtTransferCount.setText(QString::number(transfer.transferCount));
  SelectComboItemByID(transfer.fromPawnID, cboTransferFrom);
  SelectComboItemByID(transfer.toPawnID, cboTransferTo);
  Host().SelectLabelValue(transfer.failLabel, cboTransferObjectFail);
}

bool TransferObjectPanel::IsComplete() const {
  return object_.IsValid() && from_.IsValid() && to_.IsValid();
}

void TransferObjectPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventTransferObject>(event).Update(
      GetComboItemID(cboTransferObject), NumberOfText(LineText(txtTransferCount)),
      GetComboItemID(cboTransferFrom), GetComboItemID(cboTransferTo), cboTransferObjectFail.Text());
}

}  // namespace parlate

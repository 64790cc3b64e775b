#include "editors/panels/TradePanel.h"

#include <QVBoxLayout>

#include "editors/panels/PanelControls.h"
#include "model/TableCombos.h"
#include "model/Tables.h"
#include "platform/FormControls.h"

namespace parlate {

TradePanel::TradePanel(PanelHost& host, QWidget* parent)
    : EventPanel(kTrade, QStringLiteral("Trade"), host, parent),
      pawn_(cboPawnTrade, kActorTable, cmdEditNPCTable2, [this] { emit changed(); }) {
  SetUpLabel(lblPawnTrade, "lblPawnTrade", QStringLiteral("Pawn to Initiate Trade:"));
  SetUpField(cboPawnTrade, "cboPawnTrade", lblPawnTrade);
  SetUpFieldButton(cmdEditNPCTable2, "cmdEditNPCTable(2)", QStringLiteral("Edit NPC Table"),
                   lblPawnTrade);
  QGridLayout* rows = FieldRows();
  AddFieldRow(*rows, lblPawnTrade, cboPawnTrade, &cmdEditNPCTable2);
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(rows);
  panel->addStretch();
}

void TradePanel::ClearFields() { cboPawnTrade.SetListIndex(-1); }

void TradePanel::Ready() { PopulateCombo(cboPawnTrade, *GetTable(kActorTable)); }

void TradePanel::LoadEvent(EventItem& event) {
  SelectComboItemByID(Loaded<EventTrade>(event).PawnID, cboPawnTrade);
}

bool TradePanel::IsComplete() const { return pawn_.IsValid(); }

void TradePanel::UpdateEvent(EventItem& event) { ObjectOf<EventTrade>(event).Update(cboPawnTrade); }

}  // namespace parlate

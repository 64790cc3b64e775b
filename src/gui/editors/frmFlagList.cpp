#include "editors/frmFlagList.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "general/RuntimeError.h"
#include "model/TableCombos.h"
#include "model/Tables.h"
#include "model/TextNumbers.h"
#include "platform/FormControls.h"
#include "widgets/CodePageText.h"

namespace parlate {

frmFlagList::frmFlagList(QWidget* parent) : QDialog(parent) {
  SetUpControls();
  BuildLayout();
  PopulateFlagValueCombo();
  txtExpiration.setText(QStringLiteral("0"));
  RefreshFlagOK();
  connect(&lstFlags, &QListWidget::itemSelectionChanged, this, &frmFlagList::RefreshFlagOK);
  connect(&lstFlags, &QListWidget::itemDoubleClicked, this, &frmFlagList::accept);
  connect(&cmdEdit, &QPushButton::clicked, this, &frmFlagList::EditFlags);
  connect(&cmdOK, &QPushButton::clicked, this, &frmFlagList::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmFlagList::reject);
}

void frmFlagList::SetUpControls() {
  NameControl(*this, "frmFlagList", QStringLiteral("Flag List"));
  setWindowTitle(QStringLiteral("Flag List"));
  SetUpLabel(Label1, "Label1", QStringLiteral("Select Flags:"));
  SetUpField(lstFlags, "lstFlags", Label1);
  lstFlags.setSelectionMode(QAbstractItemView::ExtendedSelection);
  NameControl(Frame1, "Frame1", QStringLiteral("Value"));
  SetUpLabel(Label11, "Label11", QStringLiteral("Value:"));
  SetUpField(cboFlagValues, "cboFlagValues", Label11);
  cboFlagValues.MakeListOnly();
  SetUpLabel(lblExpiration, "lblExpiration", QStringLiteral("Mission Expiration (0 = None):"));
  SetUpField(txtExpiration, "txtExpiration", lblExpiration);
  SetUpButton(cmdEdit, "cmdEdit", QStringLiteral("&Edit Flags..."));
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&OK"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  cmdOK.setDefault(true);
}

void frmFlagList::BuildLayout() {
  auto* values = new QFormLayout(&Frame1);
  values->addRow(&Label11, &cboFlagValues);
  values->addRow(&lblExpiration, &txtExpiration);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(&cmdEdit);
  buttons->addStretch();
  buttons->addWidget(&cmdOK);
  buttons->addWidget(&cmdCancel);

  auto* form = new QVBoxLayout(this);
  form->addWidget(&Label1);
  form->addWidget(&lstFlags, 1);
  form->addWidget(&Frame1);
  form->addLayout(buttons);
}

std::int32_t frmFlagList::SelectedFlag() const {
  return lstFlags.ListIndex() == -1 ? -1 : lstFlags.ItemData(lstFlags.ListIndex());
}

Boolean frmFlagList::FlagValue() const {
  return cboFlagValues.ItemData(cboFlagValues.ListIndex()) != 0;
}

std::int32_t frmFlagList::FlagExpiration() const {
  return NumericValue(FromQString(txtExpiration.text()));
}

void frmFlagList::ShowExpiration(bool bShow) {
  txtExpiration.setVisible(bShow);
  lblExpiration.setVisible(bShow);
}

void frmFlagList::SetFlags(const FlagList& currentFlagRefs) {
  flagRefs_ = &currentFlagRefs;
  PopulateAvailableFlags();
}

void frmFlagList::PopulateFlagValueCombo() {
  cboFlagValues.Clear();
  cboFlagValues.AddItem("True");
  cboFlagValues.SetItemData(0, -1);
  cboFlagValues.AddItem("False");
  cboFlagValues.SetItemData(1, 0);
  cboFlagValues.SetListIndex(0);
}

void frmFlagList::PopulateAvailableFlags() {
  lstFlags.Clear();
  // One that was redirected to another row stands under the key of the row that it had.
  IDSet referenced;
  GatherFlags(*flagRefs_, referenced);
  for (const TableItem& flag : *GetTable(kFlagTable)) {
    const bool listed = flagRefs_->Find(flag.ID) != nullptr || referenced.Contains(flag.ID);
    if (!listed) lstFlags.AddRow(flag.Name, flag.ID);
  }
  RefreshFlagOK();
}

void frmFlagList::RefreshFlagOK() { cmdOK.setEnabled(!lstFlags.selectedItems().isEmpty()); }

void frmFlagList::EditFlags() {
  EditTableDialog(kFlagTable);
  PopulateAvailableFlags();
}

bool frmFlagList::IsExpirationFit() {
  if (txtExpiration.isHidden()) return true;
  try {
    static_cast<void>(FlagExpiration());
    return true;
  } catch (const RuntimeError&) {
    // A number that the file cannot hold is left to the user to correct.
    FocusWholeText(txtExpiration);
    return false;
  }
}

void frmFlagList::accept() {
  // A double click comes here too, and it has selected its row.
  if (!cmdOK.isEnabled() || !IsExpirationFit()) return;
  modalResult = 0;
  QDialog::accept();
}

}  // namespace parlate

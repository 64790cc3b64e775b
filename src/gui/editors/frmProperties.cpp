#include "editors/frmProperties.h"

#include <QKeyEvent>
#include <string>
#include <vector>

#include "editors/ListSpace.h"
#include "general/CodePage.h"
#include "general/RuntimeError.h"
#include "model/TableCombos.h"
#include "model/Tables.h"
#include "model/TextNumbers.h"
#include "platform/FormControls.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

constexpr int kGeneralTab = 0;
constexpr int kInvokeTab = 2;

bool IsPlain(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

}  // namespace

frmProperties::frmProperties(const ConversationFile& conFile, MessageBoxes& messages,
                             QWidget* parent)
    : QDialog(parent),
      conFile_(conFile),
      messages_(messages),
      owner_(cboNPC, kActorTable, cmdEditNPCTable, [this] { RefreshPropertiesOK(); }) {
  SetUpControls();
  BuildLayout();
  flags_.SetFlags(localFlagRefs);
  tabProperties.setCurrentIndex(kGeneralTab);
  txtName.setFocus();
  PopulateCombo(cboNPC, *GetTable(kActorTable));
  RefreshPropertiesOK();
  RefreshFlagRemove();
  Connect();
}

void frmProperties::Connect() {
  connect(&txtName, &QLineEdit::textChanged, this, &frmProperties::RefreshPropertiesOK);
  connect(&lstFlags, &MultiColumnList::listIndexChanged, this, &frmProperties::RefreshFlagRemove);
  connect(&lstFlags, &MultiColumnList::rowsReset, this, &frmProperties::RefreshFlagRemove);
  connect(&lstFlags, &MultiColumnList::doubleClicked, this, &frmProperties::ToggleFlag);
  OnSpaceIn(lstFlags, [this] { ToggleFlag(); });
  connect(&cmdFlagAdd, &QPushButton::clicked, this, &frmProperties::AddFlags);
  connect(&cmdFlagRemove, &QPushButton::clicked, this, &frmProperties::RemoveFlag);
  connect(&chkInvokeRadius, &QCheckBox::toggled, this, &frmProperties::RefreshInvokeRadius);
  connect(&chkHoloCall, &QCheckBox::toggled, this, &frmProperties::RefreshHoloCallOptions);
  connect(&cmdOK, &QPushButton::clicked, this, &frmProperties::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmProperties::reject);
}

std::int32_t frmProperties::NPCID() const { return GetComboItemID(cboNPC); }

void frmProperties::SetNPCID(std::int32_t id) { SelectComboItemByID(id, cboNPC); }

void frmProperties::SetCon(Conversation& con) {
  con_ = &con;
  txtName.setText(ToQString(con.conName));
  txtDesc.SetText(con.Description);
  txtNotes.SetText(con.notes);
  SetNPCID(con.NPCID);
  chkInvokeFrob.setChecked(con.bInvokeFrob);
  chkInvokeBump.setChecked(con.bInvokeBump);
  chkInvokeSight.setChecked(con.bInvokeSight);
  chkInvokeRadius.setChecked(con.bInvokeRadius);
  if (con.bInvokeRadius) txtInvokeRadius.setText(QString::number(con.invokeRadius));
  chkDisplayOnce.setChecked(con.bDisplayOnce);
  chkFirstPerson.setChecked(con.bFirstPerson);
  chkNonInteractive.setChecked(con.bNonInteractive);
  chkRandomCamera.setChecked(con.bRandomCamera);
  chkCanBeInterupted.setChecked(con.bCanBeInterrupted);
  chkCannotBeInterrupted.setChecked(con.bCannotBeInterrupted);
  chkHoloCall.setChecked(con.bHoloCallCon);
  stamps_.Show(con);
  CopyFlagRefs(con.flagRefs, localFlagRefs);
  flags_.Populate();
  RefreshInvokeRadius();
  RefreshHoloCallOptions();
}

void frmProperties::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  RefreshPropertiesOK();
}

void frmProperties::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) RefreshPropertiesOK();
}

void frmProperties::keyPressEvent(QKeyEvent* event) {
  const bool adds = event->key() == Qt::Key_Insert && cmdFlagAdd.isEnabled();
  const bool removes = event->key() == Qt::Key_Delete && cmdFlagRemove.isEnabled();
  if (!IsPlain(*event) || (!adds && !removes)) {
    QDialog::keyPressEvent(event);
  } else if (adds) {
    AddFlags();
  } else {
    RemoveFlag();
  }
}

void frmProperties::RefreshPropertiesOK() {
  const bool named = !txtName.text().isEmpty();
  cmdOK.setEnabled(named && ValidateComboEntry(cboNPC, kActorTable, true));
}

void frmProperties::RefreshFlagRemove() {
  EnableButton(cmdFlagRemove, flagRows_.ListIndex() != -1, lstFlags);
}

void frmProperties::RefreshInvokeRadius() {
  txtInvokeRadius.setEnabled(chkInvokeRadius.isChecked());
  lblInvokeRadius.setEnabled(chkInvokeRadius.isChecked());
}

void frmProperties::RefreshHoloCallOptions() {
  const bool holoCall = chkHoloCall.isChecked();
  for (QCheckBox* box :
       {&chkNonInteractive, &chkFirstPerson, &chkRandomCamera, &chkCanBeInterupted}) {
    if (holoCall) box->setChecked(false);
    box->setEnabled(!holoCall);
  }
}

void frmProperties::AddFlags() {
  PickFlags(localFlagRefs, false, this);
  // The dialog may have deleted flags from their table, also when it was cancelled.
  std::vector<std::int32_t> gone;
  for (const FlagRef& flag : localFlagRefs) {
    if (GetTable(kFlagTable)->Find(flag.flagID) == nullptr) gone.push_back(flag.flagID);
  }
  for (const std::int32_t flagID : gone) localFlagRefs.Remove(flagID);
  flags_.Populate();
  RefreshFlagRemove();
}

void frmProperties::RemoveFlag() {
  flags_.Delete();
  RefreshFlagRemove();
}

void frmProperties::ToggleFlag() {
  flags_.Toggle();
  RefreshFlagRemove();
}

bool frmProperties::RefuseName(const std::string& text) {
  messages_.Show({"", text, MessageBox::Icon::None, MessageBox::Buttons::Ok});
  SetTab(kGeneralTab);
  txtName.setFocus();
  txtName.selectAll();
  return false;
}

bool frmProperties::IsNameFit() {
  const std::string name = FromQString(txtName.text());
  if (!IsValidName(name)) {
    return RefuseName(
        "Conversation names can only consist of letters, digits, underscore (_) and dash (-).");
  }
  if (name != con_->conName && conFile_.IsConNameInUse(name)) {
    return RefuseName("Conversation Name already in use, please choose another name.");
  }
  return true;
}

bool frmProperties::IsOwnerFit() {
  // The combo takes the focus when the typed name is not wanted, so it has to be in sight.
  if (!ValidateComboEntry(cboNPC, kActorTable, true)) SetTab(kGeneralTab);
  const bool fit = ValidateComboEntry(cboNPC, kActorTable, false);
  RefreshPropertiesOK();
  return fit;
}

bool frmProperties::IsRadiusFit() {
  if (!chkInvokeRadius.isChecked()) return true;
  try {
    static_cast<void>(NumericValue(FromQString(txtInvokeRadius.text())));
    return true;
  } catch (const RuntimeError& error) {
    // A number that the file cannot hold is left to the user to correct.
    messages_.Show(BoxOf(error));
    SetTab(kInvokeTab);
    FocusWholeText(txtInvokeRadius);
    return false;
  }
}

void frmProperties::accept() {
  if (!cmdOK.isEnabled() || !IsNameFit() || !IsOwnerFit() || !IsRadiusFit()) return;
  StoreConversationFields();
  modalResult = 0;
  QDialog::accept();
}

void frmProperties::reject() {
  modalResult = 1;
  QDialog::reject();
}

void frmProperties::StoreConversationFields() {
  con_->conName = FromQString(txtName.text());
  con_->Description = txtDesc.Text();
  con_->NPCID = NPCID();
  con_->notes = txtNotes.Text();
  con_->bInvokeFrob = chkInvokeFrob.isChecked();
  con_->bInvokeBump = chkInvokeBump.isChecked();
  con_->bInvokeSight = chkInvokeSight.isChecked();
  con_->bInvokeRadius = chkInvokeRadius.isChecked();
  con_->bDisplayOnce = chkDisplayOnce.isChecked();
  con_->bHoloCallCon = chkHoloCall.isChecked();
  con_->bFirstPerson = chkFirstPerson.isChecked();
  con_->bNonInteractive = chkNonInteractive.isChecked();
  con_->bRandomCamera = chkRandomCamera.isChecked();
  con_->bCanBeInterrupted = chkCanBeInterupted.isChecked();
  con_->bCannotBeInterrupted = chkCannotBeInterrupted.isChecked();
  con_->invokeRadius = con_->bInvokeRadius ? NumericValue(FromQString(txtInvokeRadius.text())) : 0;
  CopyFlagRefs(localFlagRefs, con_->flagRefs);
}

}  // namespace parlate

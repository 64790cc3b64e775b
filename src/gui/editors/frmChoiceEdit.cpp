// What the dialog does; how it looks stands in frmChoiceEditLayout.cpp.

#include "editors/frmChoiceEdit.h"

#include <QApplication>
#include <QKeyEvent>
#include <utility>

#include "editors/ListSpace.h"
#include "editors/panels/PanelControls.h"
#include "model/TableCombos.h"
#include "model/Tables.h"
#include "model/Vocabulary.h"
#include "platform/FormControls.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

/// A combo that is not to be used has the face of a button.
void SetComboUsable(QtComboBox& combo, bool usable) {
  combo.setEnabled(usable);
  QPalette palette = combo.palette();
  const QPalette::ColorRole role = usable ? QPalette::Base : QPalette::Button;
  palette.setColor(QPalette::Base, QApplication::palette().color(role));
  combo.setPalette(palette);
}

}  // namespace

frmChoiceEdit::frmChoiceEdit(PanelHost& host, AudioFolder audioFolder, QWidget* parent)
    : QDialog(parent), host_(host), audioFolder_(std::move(audioFolder)) {
  SetUpControls();
  BuildLayout();
  ConnectControls();
  cmdOK.setEnabled(false);
  cmdPlayAudio.setEnabled(false);
  RefreshFlagDelete();
  RefreshSkillControls();
}

frmChoiceEdit::~frmChoiceEdit() {
  // The pages go one by one, and none of them is entered any more.
  tabChoice.disconnect(this);
}

void frmChoiceEdit::ConnectControls() {
  connect(&txtChoice, &QLineEdit::textChanged, this, &frmChoiceEdit::RefreshChoiceOK);
  connect(&cboSkillLevels, &QtComboBox::choiceChanged, this, &frmChoiceEdit::RefreshChoiceOK);
  connect(&chkSkill, &QCheckBox::toggled, this, &frmChoiceEdit::RefreshSkillControls);
  connect(&txtAudioFile, &QLineEdit::textChanged, this,
          [this](const QString& text) { cmdPlayAudio.setEnabled(!text.isEmpty()); });
  connect(&cmdSpeechAudio, &QPushButton::clicked, this, &frmChoiceEdit::ChooseAudioFile);
  connect(&cmdPlayAudio, &QPushButton::clicked, this, &frmChoiceEdit::PlayAudio);
  connect(&lstFlags, &MultiColumnList::listIndexChanged, this, &frmChoiceEdit::RefreshFlagDelete);
  connect(&lstFlags, &MultiColumnList::doubleClicked, this, &frmChoiceEdit::ToggleFlag);
  OnSpaceIn(lstFlags, [this] { ToggleFlag(); });
  connect(&cmdFlagAdd, &QPushButton::clicked, this, [this] {
    if (flags_.Add(this)) RefreshFlagDelete();
  });
  connect(&cmdFlagDelete, &QPushButton::clicked, this, &frmChoiceEdit::DeleteFlag);
  connect(&tabChoice, &QTabWidget::currentChanged, this, &frmChoiceEdit::SizeFlagColumns);
  connect(&cmdOK, &QPushButton::clicked, this, &frmChoiceEdit::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmChoiceEdit::reject);
}

bool frmChoiceEdit::AddChoice(const std::shared_ptr<ChoiceItem>& newChoice, QWidget* parent,
                              const std::shared_ptr<Conversation>& conObj) {
  LoadForm(parent, conObj);
  chkShowChoice.setChecked(true);
  return Run(*newChoice);
}

bool frmChoiceEdit::EditChoice(const std::shared_ptr<ChoiceItem>& choice, QWidget* parent,
                               const std::shared_ptr<Conversation>& conObj) {
  LoadForm(parent, conObj);
  ShowChoice(*choice);
  localChoiceItem->Copy(*choice);
  flags_.Populate();
  return Run(*choice);
}

void frmChoiceEdit::LoadForm(QWidget* owner, const std::shared_ptr<Conversation>& conObj) {
  setParent(owner, windowFlags());
  modalResult = 1;
  con = conObj;
  localChoiceItem = std::make_shared<ChoiceItem>();
  txtChoice.clear();
  txtAudioFile.clear();
  chkShowChoice.setChecked(false);
  chkSkill.setChecked(false);
  RefreshSkillControls();
  flags_.SetFlags(localChoiceItem->flagRefs);
  tabChoice.setCurrentIndex(0);
  host_.PopulateLabelCombo(cboJumpLabel);
  cboJumpLabel.SetListIndex(-1);
  RefreshChoiceOK();
  RefreshFlagDelete();
}

void frmChoiceEdit::ShowChoice(const ChoiceItem& choice) {
  txtChoice.setText(ToQString(choice.text));
  cboJumpLabel.SetText(choice.label);
  SetLineText(txtAudioFile, choice.audioFile);
  chkShowChoice.setChecked(choice.bDisplayAsSpeech);
  if (choice.skillID < 0) return;
  chkSkill.setChecked(true);
  SelectComboItemByID(choice.skillID, cboSkills);
  if (choice.skillLevel >= 0) cboSkillLevels.SetListIndex(choice.skillLevel);
}

bool frmChoiceEdit::Run(ChoiceItem& choice) {
  txtChoice.setFocus();
  exec();
  const bool accepted = modalResult == 0;
  if (accepted) StoreChoiceFields(choice);
  localChoiceItem.reset();
  setParent(nullptr, windowFlags());
  return accepted;
}

void frmChoiceEdit::StoreChoiceFields(ChoiceItem& choice) {
  ChoiceItem& local = *localChoiceItem;
  local.text = FromQString(txtChoice.text());
  local.label = cboJumpLabel.Text();
  local.skillID = GetComboItemID(cboSkills);
  local.skillLevel = cboSkillLevels.ListIndex();
  local.bDisplayAsSpeech = chkShowChoice.isChecked();
  local.audioFile = FromQString(txtAudioFile.text());
  choice.Copy(local);
}

void frmChoiceEdit::setVisible(bool visible) {
  QDialog::setVisible(visible);
  if (!visible) return;
  // A dialog that comes up selects the text of its first field.
  PutCaretBehindText(txtChoice);
  SizeFlagColumns();
}

void frmChoiceEdit::RefreshChoiceOK() {
  const bool skill = cboSkills.ListIndex() != -1;
  const bool level = cboSkillLevels.ListIndex() != -1;
  cmdOK.setEnabled(!txtChoice.text().isEmpty() && (!skill || level));
}

void frmChoiceEdit::RefreshFlagDelete() {
  EnableButton(cmdFlagDelete, flagRows_.ListIndex() != -1, lstFlags);
}

void frmChoiceEdit::RefreshSkillControls() {
  const bool wanted = chkSkill.isChecked();
  SetComboUsable(cboSkills, wanted);
  SetComboUsable(cboSkillLevels, wanted);
  lblSkill.setEnabled(wanted);
  lblSkillLevel.setEnabled(wanted);
  cmdEditSkills.setEnabled(wanted);
  if (wanted) {
    PopulateSkillCombo();
    PopulateSkillLevelCombo();
  } else {
    cboSkills.Clear();
    cboSkillLevels.Clear();
  }
  RefreshChoiceOK();
}

void frmChoiceEdit::PopulateSkillCombo() { PopulateCombo(cboSkills, *GetTable(kSkillTable)); }

void frmChoiceEdit::PopulateSkillLevelCombo() {
  PopulateComboFromArray(cboSkillLevels, skillLevelNames);
}

void frmChoiceEdit::DeleteFlag() {
  flags_.Delete();
  RefreshFlagDelete();
}

void frmChoiceEdit::ToggleFlag() {
  flags_.Toggle();
  RefreshFlagDelete();
}

void frmChoiceEdit::ChooseAudioFile() {
  const std::string file = host_.SelectAudioFile();
  if (!file.empty()) SetLineText(txtAudioFile, file);
}

void frmChoiceEdit::PlayAudio() {
  frmPlayAudio player(audioFolder_, this);
  player.PlayWaveFile(FromQString(txtAudioFile.text()), *con);
}

bool frmChoiceEdit::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &lstFlags || event->type() != QEvent::KeyPress) {
    return QDialog::eventFilter(watched, event);
  }
  const auto* key = static_cast<QKeyEvent*>(event);
  if ((key->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  if (key->key() == Qt::Key_Delete) cmdFlagDelete.click();
  if (key->key() == Qt::Key_Insert) cmdFlagAdd.click();
  return key->key() == Qt::Key_Delete || key->key() == Qt::Key_Insert;
}

bool frmChoiceEdit::IsSkillFit() {
  const bool typed = chkSkill.isChecked() && !cboSkills.Text().empty();
  if (!typed || cboSkills.ListIndex() != -1) return true;
  // The combo takes the focus when the typed name is not wanted, so it has to be in sight.
  if (!ValidateComboEntry(cboSkills, kSkillTable, true)) tabChoice.setCurrentWidget(&pageSkills);
  const bool fit = ValidateComboEntry(cboSkills, kSkillTable, false);
  RefreshChoiceOK();
  return fit && cmdOK.isEnabled();
}

void frmChoiceEdit::accept() {
  // The access key of OK takes the focus from the combo, which may ask its question before the
  // button is let go.
  const bool asking = QApplication::activeModalWidget() != this;
  if (asking || !cmdOK.isEnabled() || !IsSkillFit()) return;
  modalResult = 0;
  QDialog::accept();
}

void frmChoiceEdit::reject() {
  modalResult = 1;
  QDialog::reject();
}

}  // namespace parlate

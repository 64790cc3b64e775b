#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <cstdint>
#include <memory>

#include "editors/FlagListEdit.h"
#include "editors/TableCombo.h"
#include "editors/frmPlayAudio.h"
#include "editors/panels/EventPanel.h"
#include "model/Conversation.h"
#include "platform/QtComboBox.h"
#include "shell/ListRows.h"
#include "widgets/MultiColumnList.h"

namespace parlate {

/// Writes one option of a choice event. It works on a copy, which only OK carries to the choice.
class frmChoiceEdit : public QDialog {
  Q_OBJECT

 public:
  /// The event editor offers its labels and audio files; both must outlive the dialog.
  frmChoiceEdit(PanelHost& host, AudioFolder audioFolder, QWidget* parent = nullptr);
  ~frmChoiceEdit() override;

  std::int32_t modalResult = 1;  ///< 0 after OK, 1 after Cancel or when the window is closed.
  std::shared_ptr<ChoiceItem> localChoiceItem;
  std::shared_ptr<Conversation> con;

  /// Shows the dialog for a new choice over `parent`. True if the choice has taken what was
  /// entered, false, with the choice as it was, if the user cancelled.
  bool AddChoice(const std::shared_ptr<ChoiceItem>& newChoice, QWidget* parent,
                 const std::shared_ptr<Conversation>& conObj);
  /// The same for a choice that there is.
  bool EditChoice(const std::shared_ptr<ChoiceItem>& choice, QWidget* parent,
                  const std::shared_ptr<Conversation>& conObj);

  void setVisible(bool visible) override;

 public slots:
  void accept() override;
  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SetUpControls();
  void SetUpGeneralPage();
  void SetUpFlagsPage();
  void SetUpSkillsPage();
  void BuildLayout();
  void BuildGeneralPage();
  void BuildFlagsPage();
  void BuildSkillsPage();
  void ConnectControls();

  /// Everything as in a dialog that was just loaded, over this owner.
  void LoadForm(QWidget* owner, const std::shared_ptr<Conversation>& conObj);
  void ShowChoice(const ChoiceItem& choice);
  /// Shows the dialog modal; whether the choice has taken what was entered.
  bool Run(ChoiceItem& choice);
  void StoreChoiceFields(ChoiceItem& choice);
  void RefreshChoiceOK();
  /// Makes a skill that was typed and not left yet a row, or has it taken back.
  bool IsSkillFit();
  void RefreshFlagDelete();
  void RefreshSkillControls();
  void PopulateSkillCombo();
  void PopulateSkillLevelCombo();
  void DeleteFlag();
  void ToggleFlag();
  void ChooseAudioFile();
  void PlayAudio();
  void SizeFlagColumns();

  PanelHost& host_;
  AudioFolder audioFolder_;
  ListRows flagRows_;

  // In the order in which Tab visits them.
  QTabWidget tabChoice{this};
  QWidget pageGeneral{&tabChoice};
  QLabel Label1{&pageGeneral};
  QLineEdit txtChoice{&pageGeneral};
  QLabel Label15{&pageGeneral};
  QtComboBox cboJumpLabel{&pageGeneral};
  QGroupBox frmShowChoice{&pageGeneral};
  QCheckBox chkShowChoice{&frmShowChoice};
  QLabel Label20{&frmShowChoice};
  QLineEdit txtAudioFile{&frmShowChoice};
  QPushButton cmdSpeechAudio{&frmShowChoice};
  QPushButton cmdPlayAudio{&frmShowChoice};
  QWidget pageFlags{&tabChoice};
  QLabel Label9{&pageFlags};
  MultiColumnList lstFlags{flagRows_, &pageFlags};
  QPushButton cmdFlagAdd{&pageFlags};
  QPushButton cmdFlagDelete{&pageFlags};
  QWidget pageSkills{&tabChoice};
  QGroupBox frmSkill{&pageSkills};
  QCheckBox chkSkill{&frmSkill};
  QLabel lblSkill{&frmSkill};
  QtComboBox cboSkills{&frmSkill, RowOrder::ByName};
  QPushButton cmdEditSkills{&frmSkill};
  QLabel lblSkillLevel{&frmSkill};
  QtComboBox cboSkillLevels{&frmSkill};
  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};

  FlagListEdit flags_{flagRows_, false};
  TableCombo skills_{cboSkills, kSkillTable, cmdEditSkills, [this] { RefreshChoiceOK(); }};
};

}  // namespace parlate

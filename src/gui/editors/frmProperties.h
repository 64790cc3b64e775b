#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <cstdint>

#include "editors/FlagListEdit.h"
#include "editors/InfoPanel.h"
#include "editors/TableCombo.h"
#include "general/Prompts.h"
#include "model/ConversationFile.h"
#include "platform/QtComboBox.h"
#include "platform/TextField.h"
#include "shell/ListRows.h"
#include "widgets/MultiColumnList.h"

namespace parlate {

/// Name, owner, required flags, ways of starting and options of a conversation, which changes on OK
/// only.
class frmProperties : public QDialog {
  Q_OBJECT

 public:
  /// `conFile` is the open file, in which names must not stand twice.
  frmProperties(const ConversationFile& conFile, MessageBoxes& messages, QWidget* parent = nullptr);

  std::int32_t modalResult = 1;  ///< 0 after OK, 1 after Cancel or when the window is closed.
  FlagList localFlagRefs;        ///< The flags as they stand on the form.

  /// Takes a conversation, which must outlive the form, and shows it.
  void SetCon(Conversation& con);
  /// Turns to a tab, counted from 0.
  void SetTab(int index) { tabProperties.setCurrentIndex(index); }
  /// The owner chosen, -1 for none.
  [[nodiscard]] std::int32_t NPCID() const;
  void SetNPCID(std::int32_t id);

 public slots:
  void accept() override;
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void SetUpControls();
  void SetUpGeneral();
  void SetUpInvocation();
  void SetUpOptions();
  void BuildLayout();
  void BuildGeneral();
  void BuildFlags();
  void BuildInvocation();
  void BuildOptions();
  void BuildInfo();
  void Connect();

  void RefreshPropertiesOK();
  void RefreshFlagRemove();
  void RefreshInvokeRadius();
  void RefreshHoloCallOptions();
  void AddFlags();
  void RemoveFlag();
  void ToggleFlag();
  bool RefuseName(const std::string& text);
  bool IsNameFit();
  bool IsOwnerFit();
  bool IsRadiusFit();
  void StoreConversationFields();

  const ConversationFile& conFile_;
  MessageBoxes& messages_;
  Conversation* con_ = nullptr;
  ListRows flagRows_;
  FlagListEdit flags_{flagRows_, false};

  // In the order in which Tab visits them.
  QTabWidget tabProperties{this};

  QWidget pageGeneral{&tabProperties};
  QLabel lblName{&pageGeneral};
  QLineEdit txtName{&pageGeneral};
  QLabel lblNPC{&pageGeneral};
  QtComboBox cboNPC{&pageGeneral};
  QPushButton cmdEditNPCTable{&pageGeneral};
  QLabel lblDesc{&pageGeneral};
  QtTextBox txtDesc{&pageGeneral};
  QLabel lblNotes{&pageGeneral};
  QtTextBox txtNotes{&pageGeneral};

  QWidget pageFlags{&tabProperties};
  QLabel Label2{&pageFlags};
  MultiColumnList lstFlags{flagRows_, &pageFlags};
  QPushButton cmdFlagAdd{&pageFlags};
  QPushButton cmdFlagRemove{&pageFlags};

  QWidget pageInvoke{&tabProperties};
  QLabel Label3{&pageInvoke};
  QCheckBox chkInvokeFrob{&pageInvoke};
  QCheckBox chkInvokeBump{&pageInvoke};
  QCheckBox chkInvokeSight{&pageInvoke};
  QCheckBox chkInvokeRadius{&pageInvoke};
  QLabel lblInvokeRadius{&pageInvoke};
  QLineEdit txtInvokeRadius{&pageInvoke};

  QWidget pageOptions{&tabProperties};
  QLabel Label4{&pageOptions};
  QCheckBox chkDisplayOnce{&pageOptions};
  QCheckBox chkHoloCall{&pageOptions};
  QCheckBox chkFirstPerson{&pageOptions};
  QCheckBox chkNonInteractive{&pageOptions};
  QCheckBox chkRandomCamera{&pageOptions};
  QCheckBox chkCanBeInterupted{&pageOptions};
  QCheckBox chkCannotBeInterrupted{&pageOptions};

  QWidget pageInfo{&tabProperties};
  StampPanels stamps_{pageInfo};

  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};

  TableCombo owner_;  ///< Behind the combo and the button that it serves.
};

}  // namespace parlate

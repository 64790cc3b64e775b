#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <cstdint>

#include "general/Prompts.h"
#include "platform/QtComboBox.h"
#include "settings/ConversationDefaults.h"
#include "shell/ShellView.h"

namespace parlate {

/// What is printed and how. The options are settings and are stored with OK, also when the printer
/// dialog that follows is cancelled.
class frmPrintCons : public QDialog {
  Q_OBJECT

 public:
  frmPrintCons(ConversationDefaults& defaults, MessageBoxes& messages, QWidget* parent = nullptr);

  std::int32_t modalResult = 1;  ///< 0 after OK, 1 after Cancel or when the window is closed.

  /// Which of the two choices can be made, and which is.
  void SetChoice(bool selectedThere, bool bPrintAll);
  [[nodiscard]] PrintChoice Choice() const {
    return {optPrintAll.isChecked(), chkDetailedHeader.isChecked()};
  }

 public slots:
  void accept() override;

 private:
  void SetUpControls();
  void BuildLayout();
  void ShowSettings();
  void StoreSettings(std::int16_t fontSize);
  void RefreshListingOnly();

  ConversationDefaults& defaults_;
  MessageBoxes& messages_;

  // In the order in which Tab visits them.
  QGroupBox fraPrint{this};
  QRadioButton optPrintAll{&fraPrint};
  QCheckBox chkListingOnly{&fraPrint};
  QRadioButton optPrintSelected{&fraPrint};
  QCheckBox chkDetailedHeader{this};
  QCheckBox chkPrintBlankLines{this};
  QCheckBox chkPrintFooters{this};
  QCheckBox chkConPageBreaks{this};
  QCheckBox chkPrintAudioNames{this};
  QCheckBox chkPrintSpeechOnly{this};
  QLabel Label1{this};
  QtComboBox cboFontSizes{this};
  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};
};

}  // namespace parlate

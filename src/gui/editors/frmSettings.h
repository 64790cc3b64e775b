#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cstdint>

#include "general/Prompts.h"
#include "settings/ConversationDefaults.h"

namespace parlate {

/// What the settings dialog asks of the window behind it.
class SettingsHost {
 public:
  virtual ~SettingsHost() = default;
  /// The recent files changed.
  virtual void UpdateLastFiles() = 0;
  /// A setting that colours the events may have changed.
  virtual void UpdateEventsList() = 0;
};

/// The user's name and folders, and the options that ask or highlight. Nothing that is entered is
/// tested: a blank name and a missing folder are accepted.
class frmSettings : public QDialog {
  Q_OBJECT

 public:
  frmSettings(ConversationDefaults& defaults, FileDialogs& fileDialogs, SettingsHost& host,
              QWidget* parent = nullptr);

  std::int32_t modalResult = 1;  ///< 0 after OK, 1 after Cancel or when the window is closed.

 public slots:
  void accept() override;
  void reject() override;

 private:
  void SetUpControls();
  void BuildLayout();
  void ShowValues();
  void UpdateEnabling();
  void Browse(const char* title, const char* filter, QLineEdit& target);
  void ClearLastFiles();

  ConversationDefaults& defaults_;
  FileDialogs& fileDialogs_;
  SettingsHost& host_;

  // In the order in which Tab visits them.
  QLabel Label1{this};
  QLineEdit txtUsername{this};
  QLabel Label3{this};
  QLineEdit txtConPath{this};
  QPushButton cmdBrowseConFilePath0{this};
  QLabel Label4{this};
  QLineEdit txtConBackupPath{this};
  QPushButton cmdBrowseConFilePath1{this};
  QLabel Label2{this};
  QLineEdit txtAudioPath{this};
  QPushButton cmdBrowseConFilePath2{this};
  QFrame Frame1{this};
  QCheckBox chkExpandFlags{&Frame1};
  QCheckBox chkConfirmationConDelete{&Frame1};
  QCheckBox chkConfirmationEventDelete{&Frame1};
  QCheckBox chkHighlightMissingAudio{&Frame1};
  QPushButton cmdClearLastFiles{this};
  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};
};

}  // namespace parlate

#pragma once

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <functional>

#include "editors/InfoPanel.h"
#include "model/ConversationFile.h"
#include "model/SpeakerStats.h"
#include "platform/QtListBox.h"
#include "platform/TextField.h"
#include "shell/ListRows.h"
#include "widgets/MultiColumnList.h"

namespace parlate {

/// What belongs to the whole file: the missions it serves, its audio package, its notes, and who
/// speaks how much in it. The file changes on OK only.
class frmFileProperties : public QDialog {
  Q_OBJECT

 public:
  /// Puts the statistics on paper.
  using StatsPrinter = std::function<void(const SpeakerStats&)>;

  /// `conFile` is the open file. Without `printStats` the button of that name does nothing.
  explicit frmFileProperties(ConversationFile& conFile, QWidget* parent = nullptr,
                             StatsPrinter printStats = {});
  ~frmFileProperties() override;

 public slots:
  void accept() override;

 private:
  void SetUpControls();
  void SetUpMissions();
  void SetUpMisc();
  void SetUpStats();
  void SetUpInfo();
  void BuildLayout();
  void BuildMissions();
  void BuildMisc();
  void BuildStats();
  void BuildInfo();
  void Connect();
  void ShowFields();

  void PopulateFileMissions();
  void PopulateAvailableMissions();
  void RefreshFileButtons();
  enum class Which { Selected, All };
  void Move(QtListBox& from, QtListBox& to, Which which);
  void EnterTab(int index);
  void BuildSpeakerStats();

  ConversationFile& conFile_;
  SpeakerStats stats_;
  StatsPrinter printStats_;
  ListRows statRows_;

  // In the order in which Tab visits them.
  QTabWidget tabProperties{this};

  QWidget pageMissions{&tabProperties};
  QLabel lblMissions{&pageMissions};
  QtListBox lstMissions{&pageMissions, RowOrder::ByName};
  QPushButton cmdAdd{&pageMissions};
  QPushButton cmdAddAll{&pageMissions};
  QPushButton cmdRemove{&pageMissions};
  QPushButton cmdRemoveAll{&pageMissions};
  QLabel lblMissionsAvailable{&pageMissions};
  QtListBox lstMissionsAvailable{&pageMissions, RowOrder::ByName};

  QWidget pageMisc{&tabProperties};
  QLabel lblAudioPackage{&pageMisc};
  QLineEdit txtAudioPackage{&pageMisc};
  QLabel lblNotes{&pageMisc};
  QtTextBox txtNotes{&pageMisc};

  QWidget pageStats{&tabProperties};
  QLabel lblStats{&pageStats};
  MultiColumnList lstStats{statRows_, &pageStats};
  QPushButton cmdPrint{&pageStats};
  QPushButton cmdExport{&pageStats};

  QWidget pageInfo{&tabProperties};
  QFrame SSFrame1{&pageInfo};
  QLabel lblVersion{&SSFrame1};
  QLabel panVersion{&SSFrame1};
  StampPanels stamps_{SSFrame1};

  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};
};

}  // namespace parlate

#include "editors/frmFileProperties.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "model/Tables.h"
#include "platform/FormControls.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

constexpr int kMissionsTab = 0;
constexpr int kMiscTab = 1;
constexpr int kStatsTab = 2;

bool HoldsMission(const ConversationFile& conFile, std::int32_t id) {
  for (std::int32_t i = 0; i < conFile.GetMissionCount(); ++i) {
    if (conFile.GetMission(static_cast<std::int16_t>(i)) == id) return true;
  }
  return false;
}

}  // namespace

frmFileProperties::frmFileProperties(ConversationFile& conFile, QWidget* parent,
                                     StatsPrinter printStats)
    : QDialog(parent), conFile_(conFile), printStats_(std::move(printStats)) {
  SetUpControls();
  BuildLayout();
  ShowFields();
  PopulateFileMissions();
  PopulateAvailableMissions();
  RefreshFileButtons();
  Connect();
}

frmFileProperties::~frmFileProperties() {
  // The pages go one by one, and none of them is entered any more.
  tabProperties.disconnect(this);
}

void frmFileProperties::Connect() {
  for (QtListBox* list : {&lstMissions, &lstMissionsAvailable}) {
    connect(list, &QListWidget::itemSelectionChanged, this, &frmFileProperties::RefreshFileButtons);
  }
  const auto add = [this] { Move(lstMissionsAvailable, lstMissions, Which::Selected); };
  const auto remove = [this] { Move(lstMissions, lstMissionsAvailable, Which::Selected); };
  connect(&cmdAdd, &QPushButton::clicked, this, add);
  connect(&lstMissionsAvailable, &QListWidget::itemDoubleClicked, this, add);
  connect(&cmdAddAll, &QPushButton::clicked, this,
          [this] { Move(lstMissionsAvailable, lstMissions, Which::All); });
  connect(&cmdRemove, &QPushButton::clicked, this, remove);
  connect(&lstMissions, &QListWidget::itemDoubleClicked, this, remove);
  connect(&cmdRemoveAll, &QPushButton::clicked, this,
          [this] { Move(lstMissions, lstMissionsAvailable, Which::All); });
  connect(&txtAudioPackage, &QLineEdit::textChanged, this, &frmFileProperties::RefreshFileButtons);
  connect(&tabProperties, &QTabWidget::currentChanged, this, &frmFileProperties::EnterTab);
  connect(&cmdPrint, &QPushButton::clicked, this, [this] {
    if (printStats_) printStats_(stats_);
  });
  connect(&cmdOK, &QPushButton::clicked, this, &frmFileProperties::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmFileProperties::reject);
}

void frmFileProperties::ShowFields() {
  ShowInfo(panVersion, lblVersion, QString::number(conFile_.versionNum));
  stamps_.Show(conFile_);
  txtAudioPackage.setText(ToQString(conFile_.AudioPackage));
  txtNotes.SetText(conFile_.notes);
}

void frmFileProperties::PopulateFileMissions() {
  lstMissions.Clear();
  for (std::int32_t i = 0; i < conFile_.GetMissionCount(); ++i) {
    const std::int32_t id = conFile_.GetMission(static_cast<std::int16_t>(i));
    lstMissions.AddRow(GetTableItemName(kMissionTable, id), id);
  }
}

void frmFileProperties::PopulateAvailableMissions() {
  lstMissionsAvailable.Clear();
  for (const TableItem& mission : *GetTable(kMissionTable)) {
    if (!HoldsMission(conFile_, mission.ID)) lstMissionsAvailable.AddRow(mission.Name, mission.ID);
  }
}

void frmFileProperties::RefreshFileButtons() {
  cmdOK.setEnabled(lstMissions.ListCount() > 0 && !txtAudioPackage.text().isEmpty());
  if (tabProperties.currentIndex() != kMissionsTab) return;
  EnableButton(cmdAdd, !lstMissionsAvailable.selectedItems().isEmpty(), lstMissionsAvailable);
  EnableButton(cmdAddAll, lstMissionsAvailable.ListCount() > 0, lstMissions);
  EnableButton(cmdRemove, !lstMissions.selectedItems().isEmpty(), lstMissions);
  EnableButton(cmdRemoveAll, lstMissions.ListCount() > 0, lstMissionsAvailable);
}

void frmFileProperties::Move(QtListBox& from, QtListBox& to, Which which) {
  for (int i = from.ListCount() - 1; i >= 0; --i) {
    if (which == Which::Selected && !from.Selected(i)) continue;
    to.AddRow(from.List(i), from.ItemData(i));
    from.RemoveItem(i);
  }
  RefreshFileButtons();
}

void frmFileProperties::EnterTab(int index) {
  if (index == kMiscTab) {
    txtAudioPackage.setFocus();
    txtAudioPackage.end(false);
  }
  // Meant: the rows are counted anew, and grow, each time the tab is entered.
  if (index == kStatsTab) BuildSpeakerStats();
}

void frmFileProperties::BuildSpeakerStats() {
  stats_.BuildSpeakerStats(conFile_);
  std::vector<ListRow> rows;
  rows.reserve(stats_.Rows().size());
  for (const SpeakerRow& speaker : stats_.Rows()) {
    rows.push_back({.text = speaker.name + ";" + std::to_string(speaker.lines),
                    .subText = {},
                    .itemData = speaker.lines,
                    .color = -1});
  }
  statRows_.Assign(std::move(rows));
}

void frmFileProperties::accept() {
  // The keyboard comes here too.
  if (!cmdOK.isEnabled()) return;
  conFile_.SaveMissions(lstMissions);
  conFile_.AudioPackage = FromQString(txtAudioPackage.text());
  conFile_.notes = txtNotes.Text();
  conFile_.SetModified(true, nullptr);
  QDialog::accept();
}

}  // namespace parlate

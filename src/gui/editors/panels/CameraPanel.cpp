#include "editors/panels/CameraPanel.h"

#include <QVBoxLayout>

#include "editors/frmCameraProperties.h"
#include "editors/panels/PanelControls.h"
#include "model/TableCombos.h"
#include "platform/FormControls.h"

namespace parlate {

namespace {

constexpr std::int32_t kPredefined = 0;
constexpr std::int32_t kSpeakers = 1;
constexpr std::int32_t kActor = 2;
constexpr std::int32_t kRandom = 3;

}  // namespace

CameraPanel::CameraPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kMoveCamera, QStringLiteral("Move Camera"), host, parent) {
  SetUpControls();
  BuildLayout();
  optCameraPosition.setChecked(true);
  RefreshCameraControls();
  for (QRadioButton* option : {&optCameraPosition, &optCameraRandom, &optCameraSpecific}) {
    connect(option, &QRadioButton::toggled, this, &CameraPanel::RefreshCameraControls);
  }
  connect(&cmdEditCamera, &QPushButton::clicked, this, &CameraPanel::EditCameraProperties);
  connect(&cboCameraPosition, &QtComboBox::choiceChanged, this, &EventPanel::changed);
  connect(&cboCameraTransition, &QtComboBox::choiceChanged, this, &EventPanel::changed);
}

void CameraPanel::SetUpControls() {
  const QString position = QStringLiteral("Predefined Camera Position:");
  SetUpButton(optCameraPosition, "optCameraPosition", position);
  cboCameraPosition.MakeListOnly();
  NameControl(cboCameraPosition, "cboCameraPosition", position);
  SetUpButton(optCameraRandom, "optCameraRandom", QStringLiteral("Random Camera Position"));
  SetUpButton(optCameraSpecific, "optCameraSpecific", QStringLiteral("Specify Camera Position"));
  SetUpButton(cmdEditCamera, "cmdEditCamera", QStringLiteral("Edit Camera Properties..."));
  cmdEditCamera.setAutoDefault(false);
  SetUpLabel(lblCameraTransition, "lblCameraTransition", QStringLiteral("Camera Transition:"));
  cboCameraTransition.MakeListOnly();
  SetUpField(cboCameraTransition, "cboCameraTransition", lblCameraTransition);
}

void CameraPanel::BuildLayout() {
  auto* rows = new QGridLayout;
  rows->addWidget(&optCameraPosition, 0, 0);
  rows->addWidget(&cboCameraPosition, 0, 1);
  rows->addWidget(&optCameraRandom, 1, 0);
  rows->addWidget(&optCameraSpecific, 2, 0);
  rows->addWidget(&cmdEditCamera, 2, 1, Qt::AlignLeft);
  rows->addWidget(&lblCameraTransition, 3, 0);
  rows->addWidget(&cboCameraTransition, 3, 1);
  rows->setColumnStretch(1, 1);
  auto* panel = new QVBoxLayout(this);
  panel->addLayout(rows);
  panel->addStretch();
}

void CameraPanel::RefreshCameraControls() {
  cboCameraPosition.setEnabled(optCameraPosition.isChecked());
  cmdEditCamera.setEnabled(optCameraSpecific.isChecked());
  emit changed();
}

// Meant: the dialog has no owner, is given no data, and nothing is taken from it.
void CameraPanel::EditCameraProperties() {
  frmCameraProperties properties;
  properties.exec();
}

void CameraPanel::ClearFields() {
  cboCameraPosition.SetListIndex(-1);
  cboCameraTransition.SetListIndex(-1);
}

void CameraPanel::Ready() {
  PopulateComboFromArray(cboCameraTransition, cameraTransitionNames);
  PopulateComboFromArray(cboCameraPosition, cameraPositionNames);
  optCameraPosition.setChecked(true);
}

void CameraPanel::LoadEvent(EventItem& event) {
  const auto& move = Loaded<EventMoveCamera>(event);
  switch (move.cameraType) {
    case kPredefined:
      optCameraPosition.setChecked(true);
      SelectComboItemByID(move.cameraPosition, cboCameraPosition);
      break;
    case kSpeakers:
    case kActor:
      // Meant: no option stands for these types, so such an event cannot be opened.
      throw RuntimeError(RuntimeError::kObjectVariableNotSet);
    case kRandom:
      optCameraRandom.setChecked(true);
      break;
    default:
      break;
  }
  RefreshCameraControls();
  SelectComboItemByID(move.cameraTransition, cboCameraTransition);
}

bool CameraPanel::IsComplete() const {
  return !optCameraPosition.isChecked() || cboCameraPosition.ListIndex() != -1;
}

void CameraPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventMoveCamera>(event).Update(cboCameraPosition, cboCameraTransition,
                                          optCameraPosition.isChecked(),
                                          optCameraSpecific.isChecked());
}

}  // namespace parlate

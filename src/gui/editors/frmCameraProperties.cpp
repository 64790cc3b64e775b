#include "editors/frmCameraProperties.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "model/TableCombos.h"
#include "model/TableItem.h"
#include "platform/FormControls.h"

namespace parlate {

namespace {

constexpr std::array<const char*, 6> kActorOffsets = {"X", "Y", "Z", "Pitch", "Yaw", "Roll"};
constexpr std::array<const char*, 3> kSpeakingOffsets = {"Pitch", "Yaw", "Roll"};

/// The label of a field is named after it.
template <class Field>
void SetUp(Field& field, const QString& name, const char* caption) {
  SetUpLabel(field.label, ("lbl" + name).toLatin1().constData(), QString::fromLatin1(caption));
  SetUpField(field.text, name.toLatin1().constData(), field.label);
}

template <class Field>
void AddTo(QGridLayout& grid, Field& field, int row, int column) {
  grid.addWidget(&field.label, row, column * 2);
  grid.addWidget(&field.text, row, column * 2 + 1);
}

}  // namespace

frmCameraProperties::frmCameraProperties(QWidget* parent) : QDialog(parent) {
  SetUpControls();
  SetUpActorFrame();
  BuildLayout();
  BuildActorFrame();
  connect(&cmdEditNPCTable, &QPushButton::clicked, this,
          [this] { EditTableFromCombo(kActorTable, cboCameraActor); });
  connect(&cmdOK, &QPushButton::clicked, this, &frmCameraProperties::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmCameraProperties::reject);
}

void frmCameraProperties::SetUpControls() {
  NameControl(*this, "frmCameraProperties", QStringLiteral("Camera Properties"));
  setWindowTitle(QStringLiteral("Camera Properties"));
  SetUpButton(optCameraPosition, "optCameraPosition",
              QStringLiteral("Camera Based on Speaking Actors:"));
  optCameraPosition.setChecked(true);
  NameControl(frmSpeaking, "frmSpeaking", optCameraPosition.text());
  SetUp(txtCamDistance, QStringLiteral("txtCamDistance"), "Distance");
  SetUp(txtCamCenter, QStringLiteral("txtCamCenter"), "Center");
  SetUp(txtCamHeight, QStringLiteral("txtCamHeight"), "Height");
  SetUpLabel(lblSpeakingOffsets, "lblSpeakingOffsets", QStringLiteral("Camera Offsets:"));
  for (std::size_t i = 0; i < speakingOffsets.size(); ++i) {
    SetUp(speakingOffsets.at(i), QStringLiteral("Text%1").arg(i + 7), kSpeakingOffsets.at(i));
  }
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&OK"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  cmdOK.setDefault(true);
}

void frmCameraProperties::SetUpActorFrame() {
  SetUpButton(Option1, "Option1", QStringLiteral("Camera Based on Actor Location:"));
  NameControl(frmActor, "frmActor", Option1.text());
  SetUpLabel(lblCameraActor, "lblCameraActor", QStringLiteral("Actor:"));
  SetUpField(cboCameraActor, "cboCameraActor", lblCameraActor);
  SetUpButton(cmdEditNPCTable, "cmdEditNPCTable", QStringLiteral("Edit NPC Table"));
  SetUpLabel(lblActorOffsets, "lblActorOffsets", QStringLiteral("Camera Offsets:"));
  for (std::size_t i = 0; i < actorOffsets.size(); ++i) {
    SetUp(actorOffsets.at(i), QStringLiteral("Text%1").arg(i + 1), kActorOffsets.at(i));
  }
}

void frmCameraProperties::BuildLayout() {
  auto* speaking = new QGridLayout(&frmSpeaking);
  AddTo(*speaking, txtCamDistance, 0, 0);
  AddTo(*speaking, txtCamCenter, 0, 1);
  AddTo(*speaking, txtCamHeight, 0, 2);
  speaking->addWidget(&lblSpeakingOffsets, 1, 0, 1, 6);
  for (int i = 0; i < 3; ++i)
    AddTo(*speaking, speakingOffsets.at(static_cast<std::size_t>(i)), 2, i);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdOK);
  buttons->addWidget(&cmdCancel);

  auto* form = new QVBoxLayout(this);
  form->addWidget(&optCameraPosition);
  form->addWidget(&frmSpeaking);
  form->addWidget(&Option1);
  form->addWidget(&frmActor);
  form->addStretch();
  form->addLayout(buttons);
}

void frmCameraProperties::BuildActorFrame() {
  auto* actor = new QHBoxLayout;
  actor->addWidget(&lblCameraActor);
  actor->addWidget(&cboCameraActor, 1);
  actor->addWidget(&cmdEditNPCTable);

  auto* frame = new QGridLayout(&frmActor);
  frame->addLayout(actor, 0, 0, 1, 6);
  frame->addWidget(&lblActorOffsets, 1, 0, 1, 6);
  for (int i = 0; i < 6; ++i) {
    AddTo(*frame, actorOffsets.at(static_cast<std::size_t>(i)), 2 + i / 3, i % 3);
  }
}

}  // namespace parlate

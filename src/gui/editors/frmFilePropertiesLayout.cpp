// The tabs of the file's properties: captions, and where the controls stand.

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "editors/FormLayouts.h"
#include "editors/InfoPanel.h"
#include "editors/frmFileProperties.h"
#include "platform/FormControls.h"

namespace parlate {

namespace {

constexpr int kSpeakerColumn = 240;
constexpr int kLinesColumn = 80;

}  // namespace

void frmFileProperties::SetUpControls() {
  NameControl(*this, "frmFileProperties", QStringLiteral("Conversation File Properties"));
  setWindowTitle(QStringLiteral("Conversation File Properties"));
  NameControl(tabProperties, "tabProperties", windowTitle());
  SetUpMissions();
  SetUpMisc();
  SetUpStats();
  SetUpInfo();
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&OK"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("Cancel"));
  cmdOK.setDefault(true);
}

void frmFileProperties::SetUpMissions() {
  SetUpLabel(lblMissions, "lblMissions", QStringLiteral("This File:"));
  SetUpField(lstMissions, "lstMissions", lblMissions);
  SetUpLabel(lblMissionsAvailable, "lblMissionsAvailable", QStringLiteral("Available Missions:"));
  SetUpField(lstMissionsAvailable, "lstMissionsAvailable", lblMissionsAvailable);
  for (QtListBox* list : {&lstMissions, &lstMissionsAvailable}) {
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  }
  SetUpButton(cmdAdd, "cmdAdd", QStringLiteral("<-- Add"));
  SetUpButton(cmdAddAll, "cmdAddAll", QStringLiteral("<-- All"));
  SetUpButton(cmdRemove, "cmdRemove", QStringLiteral("Remove -->"));
  SetUpButton(cmdRemoveAll, "cmdRemoveAll", QStringLiteral("All -->"));
}

void frmFileProperties::SetUpMisc() {
  SetUpLabel(lblAudioPackage, "lblAudioPackage", QStringLiteral("Audio Package:"));
  SetUpField(txtAudioPackage, "txtAudioPackage", lblAudioPackage);
  SetUpTextLine(txtAudioPackage);
  SetUpLabel(lblNotes, "lblNotes", QStringLiteral("Notes:"));
  SetUpField(txtNotes, "txtNotes", lblNotes);
}

void frmFileProperties::SetUpStats() {
  SetUpLabel(lblStats, "lblStats", QStringLiteral("Speaker Statistics:"));
  SetUpField(lstStats, "lstStats", lblStats);
  lstStats.SetHeads({"Speaker", "Lines"});
  lstStats.SetColumnWidth(0, kSpeakerColumn);
  lstStats.SetColumnWidth(1, kLinesColumn);
  SetUpButton(cmdPrint, "cmdPrint", QStringLiteral("&Print"));
  SetUpButton(cmdExport, "cmdExport", QStringLiteral("&Export..."));
}

void frmFileProperties::SetUpInfo() {
  NameControl(SSFrame1, "SSFrame1", QStringLiteral("Info"));
  SSFrame1.setFrameShape(QFrame::StyledPanel);
  SetUpInfoPanel(panVersion, "panVersion", lblVersion, QStringLiteral("File Version:"));
}

void frmFileProperties::BuildLayout() {
  BuildMissions();
  BuildMisc();
  BuildStats();
  BuildInfo();
  tabProperties.addTab(&pageMissions, QStringLiteral("Missions"));
  tabProperties.addTab(&pageMisc, QStringLiteral("Misc"));
  tabProperties.addTab(&pageStats, QStringLiteral("Stats"));
  tabProperties.addTab(&pageInfo, QStringLiteral("Info"));
  LayOutTabs(*this, tabProperties, cmdOK, cmdCancel);
}

void frmFileProperties::BuildMissions() {
  auto* buttons = new QVBoxLayout;
  buttons->addStretch();
  for (QPushButton* button : {&cmdAdd, &cmdAddAll, &cmdRemove, &cmdRemoveAll}) {
    buttons->addWidget(button);
  }
  buttons->addStretch();
  auto* page = new QGridLayout(&pageMissions);
  page->addWidget(&lblMissions, 0, 0);
  page->addWidget(&lstMissions, 1, 0);
  page->addLayout(buttons, 1, 1);
  page->addWidget(&lblMissionsAvailable, 0, 2);
  page->addWidget(&lstMissionsAvailable, 1, 2);
  page->setColumnStretch(0, 1);
  page->setColumnStretch(2, 1);
}

void frmFileProperties::BuildMisc() {
  auto* page = new QGridLayout(&pageMisc);
  page->addWidget(&lblAudioPackage, 0, 0);
  page->addWidget(&txtAudioPackage, 0, 1);
  page->addWidget(&lblNotes, 1, 0, 1, 2);
  page->addWidget(&txtNotes, 2, 0, 1, 2);
  page->setColumnStretch(1, 1);
  page->setRowStretch(2, 1);
}

void frmFileProperties::BuildStats() {
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(&cmdPrint);
  buttons->addWidget(&cmdExport);
  buttons->addStretch();
  auto* page = new QVBoxLayout(&pageStats);
  page->addWidget(&lblStats);
  page->addWidget(&lstStats, 1);
  page->addLayout(buttons);
}

void frmFileProperties::BuildInfo() {
  auto* rows = new QFormLayout(&SSFrame1);
  rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  rows->addRow(&lblVersion, &panVersion);
  stamps_.AddTo(*rows);
  auto* page = new QVBoxLayout(&pageInfo);
  page->addWidget(&SSFrame1);
  page->addStretch();
}

}  // namespace parlate

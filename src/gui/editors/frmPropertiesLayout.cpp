// The tabs of the conversation's properties: captions, and where the controls stand.

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "editors/FormLayouts.h"
#include "editors/frmProperties.h"
#include "platform/CodePageInput.h"
#include "platform/FormControls.h"

namespace parlate {

namespace {

constexpr int kRadiusIndent = 20;
constexpr int kFlagColumn = 260;
constexpr int kValueColumn = 80;
constexpr int kTextLines = 4;
constexpr int kMoreWidth = 60;

void SetLines(QPlainTextEdit& box, int lines) {
  box.setMinimumHeight(box.fontMetrics().lineSpacing() * lines + 2 * box.frameWidth() + 8);
}

}  // namespace

void frmProperties::SetUpControls() {
  NameControl(*this, "frmProperties", QStringLiteral("Conversation Properties"));
  setWindowTitle(QStringLiteral("Conversation Properties"));
  NameControl(tabProperties, "tabProperties", windowTitle());
  SetUpGeneral();
  SetUpLabel(Label2, "Label2", QStringLiteral("Flags Required:"));
  SetUpField(lstFlags, "lstFlags", Label2);
  lstFlags.SetHeads({"Flag", "Value"});
  lstFlags.SetColumnWidth(0, kFlagColumn);
  lstFlags.SetColumnWidth(1, kValueColumn);
  SetUpButton(cmdFlagAdd, "cmdFlagAdd", QStringLiteral("&Add"));
  SetUpButton(cmdFlagRemove, "cmdFlagRemove", QStringLiteral("&Delete"));
  SetUpInvocation();
  SetUpOptions();
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&OK"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  cmdOK.setDefault(true);
}

void frmProperties::SetUpGeneral() {
  SetUpLabel(lblName, "lblName", QStringLiteral("Conversation Name:"));
  SetUpField(txtName, "txtName", lblName);
  SetUpTextLine(txtName);
  FilterNameKeys(txtName);
  SetUpLabel(lblNPC, "lblNPC", QStringLiteral("Conversation Owner:"));
  SetUpField(cboNPC, "cboNPC", lblNPC);
  SetUpButton(cmdEditNPCTable, "cmdEditNPCTable", QStringLiteral("Edit NPC Table"));
  SetUpLabel(lblDesc, "lblDesc", QStringLiteral("Description (seen by player):"));
  SetUpField(txtDesc, "txtDesc", lblDesc);
  SetUpLabel(lblNotes, "lblNotes", QStringLiteral("Notes:"));
  SetUpField(txtNotes, "txtNotes", lblNotes);
}

void frmProperties::SetUpInvocation() {
  SetUpLabel(Label3, "Label3", QStringLiteral("Invocation Methods:"));
  SetUpButton(chkInvokeFrob, "chkInvokeFrob", QStringLiteral("PC Frobs NPC"));
  SetUpButton(chkInvokeBump, "chkInvokeBump", QStringLiteral("PC Bumps NPC"));
  SetUpButton(chkInvokeSight, "chkInvokeSight", QStringLiteral("NPC Sees Player"));
  SetUpButton(chkInvokeRadius, "chkInvokeRadius", QStringLiteral("NPC Enters PC Radius"));
  SetUpLabel(lblInvokeRadius, "lblInvokeRadius", QStringLiteral("Distance from Player:"));
  SetUpField(txtInvokeRadius, "txtInvokeRadius", lblInvokeRadius);
}

void frmProperties::SetUpOptions() {
  SetUpLabel(Label4, "Label4", QStringLiteral("Conversation Options:"));
  SetUpButton(chkDisplayOnce, "chkDisplayOnce", QStringLiteral("Display Conversation Only Once"));
  SetUpButton(chkHoloCall, "chkHoloCall", QStringLiteral("HoloCall Conversation"));
  SetUpButton(chkFirstPerson, "chkFirstPerson", QStringLiteral("Remain in First-Person Mode"));
  SetUpButton(chkNonInteractive, "chkNonInteractive",
              QStringLiteral("Non-interactive Conversation"));
  SetUpButton(chkRandomCamera, "chkRandomCamera", QStringLiteral("Random Camera Placement"));
  SetUpButton(chkCanBeInterupted, "chkCanBeInterupted",
              QStringLiteral("Can Be Interrupted By Another Conversation"));
  SetUpButton(chkCannotBeInterrupted, "chkCannotBeInterrupted",
              QStringLiteral("Absolutely CANNOT be Interrupted"));
}

void frmProperties::BuildLayout() {
  BuildGeneral();
  BuildFlags();
  BuildInvocation();
  BuildOptions();
  BuildInfo();
  // Meant: the blanks behind three of the captions.
  tabProperties.addTab(&pageGeneral, QStringLiteral("General  "));
  tabProperties.addTab(&pageFlags, QStringLiteral("Flags  "));
  tabProperties.addTab(&pageInvoke, QStringLiteral("Invoke  "));
  tabProperties.addTab(&pageOptions, QStringLiteral("Options"));
  tabProperties.addTab(&pageInfo, QStringLiteral("Info"));
  LayOutTabs(*this, tabProperties, cmdOK, cmdCancel);
  // Left to themselves the two texts ask for more height than most of them need.
  resize(sizeHint().width() + kMoreWidth, minimumSizeHint().height());
}

void frmProperties::BuildGeneral() {
  auto* page = new QGridLayout(&pageGeneral);
  page->addWidget(&lblName, 0, 0);
  page->addWidget(&txtName, 0, 1, 1, 2);
  page->addWidget(&lblNPC, 1, 0);
  page->addWidget(&cboNPC, 1, 1);
  page->addWidget(&cmdEditNPCTable, 1, 2);
  page->addWidget(&lblDesc, 2, 0, 1, 3);
  page->addWidget(&txtDesc, 3, 0, 1, 3);
  page->addWidget(&lblNotes, 4, 0, 1, 3);
  page->addWidget(&txtNotes, 5, 0, 1, 3);
  page->setColumnStretch(1, 1);
  page->setRowStretch(3, 1);
  page->setRowStretch(5, 1);
  SetLines(txtDesc, kTextLines);
  SetLines(txtNotes, kTextLines);
}

void frmProperties::BuildFlags() {
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(&cmdFlagAdd);
  buttons->addWidget(&cmdFlagRemove);
  buttons->addStretch();
  auto* page = new QVBoxLayout(&pageFlags);
  page->addWidget(&Label2);
  page->addWidget(&lstFlags, 1);
  page->addLayout(buttons);
}

void frmProperties::BuildInvocation() {
  auto* radius = new QHBoxLayout;
  radius->addSpacing(kRadiusIndent);
  radius->addWidget(&lblInvokeRadius);
  radius->addWidget(&txtInvokeRadius);
  radius->addStretch();
  auto* page = new QVBoxLayout(&pageInvoke);
  page->addWidget(&Label3);
  for (QCheckBox* box : {&chkInvokeFrob, &chkInvokeBump, &chkInvokeSight, &chkInvokeRadius}) {
    page->addWidget(box);
  }
  page->addLayout(radius);
  page->addStretch();
}

void frmProperties::BuildOptions() {
  auto* page = new QVBoxLayout(&pageOptions);
  page->addWidget(&Label4);
  for (QCheckBox* box : {&chkDisplayOnce, &chkHoloCall, &chkFirstPerson, &chkNonInteractive,
                         &chkRandomCamera, &chkCanBeInterupted, &chkCannotBeInterrupted}) {
    page->addWidget(box);
  }
  page->addStretch();
}

void frmProperties::BuildInfo() {
  auto* page = new QFormLayout(&pageInfo);
  page->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  stamps_.AddTo(*page);
}

}  // namespace parlate

// How the dialog of a choice looks.

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "editors/frmChoiceEdit.h"
#include "platform/FontSetup.h"
#include "platform/FormControls.h"
#include "platform/TextField.h"

namespace parlate {

namespace {

constexpr int kFieldWidth = 320;

/// Three dots need less room than the toolkit gives a button, which the field beside it can use.
void Narrow(QPushButton& button) {
  button.setMaximumWidth(button.fontMetrics().horizontalAdvance(QStringLiteral("xx...xx")));
}

}  // namespace

void frmChoiceEdit::SetUpControls() {
  NameControl(*this, "frmChoiceEdit", QStringLiteral("Edit Choice"));
  setWindowTitle(QStringLiteral("Edit Choice"));
  NameControl(tabChoice, "tabChoice", QStringLiteral("Edit Choice"));
  SetUpGeneralPage();
  SetUpFlagsPage();
  SetUpSkillsPage();
  // The blanks at the end belong to the captions.
  tabChoice.addTab(&pageGeneral, QStringLiteral("General "));
  tabChoice.addTab(&pageFlags, QStringLiteral("Flags "));
  tabChoice.addTab(&pageSkills, QStringLiteral("Skills"));
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&OK"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  cmdOK.setDefault(true);
}

void frmChoiceEdit::SetUpGeneralPage() {
  SetUpLabel(Label1, "Label1", QStringLiteral("Choice Text:"));
  SetUpField(txtChoice, "txtChoice", Label1);
  SetUpTextLine(txtChoice);
  SetUpLabel(Label15, "Label15", QStringLiteral("Jump to Label:"));
  SetUpField(cboJumpLabel, "cboJumpLabel", Label15);
  NameControl(frmShowChoice, "frmShowChoice", QStringLiteral("Speech"));
  SetUpButton(chkShowChoice, "chkShowChoice",
              QStringLiteral("Display Choice as Speech When Selected"));
  SetUpLabel(Label20, "Label20", QStringLiteral("Audio File:"));
  SetUpField(txtAudioFile, "txtAudioFile", Label20);
  SetUpTextLine(txtAudioFile);
  SetUpButton(cmdSpeechAudio, "cmdSpeechAudio", QStringLiteral("..."));
  cmdSpeechAudio.setAccessibleName(QStringLiteral("Choose Audio File"));
  Narrow(cmdSpeechAudio);
  SetUpButton(cmdPlayAudio, "cmdPlayAudio", QStringLiteral("&Play"));
}

void frmChoiceEdit::SetUpFlagsPage() {
  SetUpLabel(Label9, "Label9", QStringLiteral("Flags Required:"));
  SetUpField(lstFlags, "lstFlags", Label9);
  lstFlags.SetHeads({QStringLiteral("Flag Name"), QStringLiteral("Value")});
  lstFlags.setFont(ListFont());
  lstFlags.installEventFilter(this);
  SetUpButton(cmdFlagAdd, "cmdFlagAdd", QStringLiteral("Add &Flag"));
  SetUpButton(cmdFlagDelete, "cmdFlagDelete", QStringLiteral("&Delete"));
}

void frmChoiceEdit::SetUpSkillsPage() {
  NameControl(frmSkill, "frmSkill", QStringLiteral("Skill"));
  frmSkill.setTitle(QStringLiteral("      "));
  SetUpButton(chkSkill, "chkSkill", QStringLiteral("Requires Skill"));
  SetUpLabel(lblSkill, "lblSkill", QStringLiteral("Skill:"));
  SetUpField(cboSkills, "cboSkills", lblSkill);
  SetUpButton(cmdEditSkills, "cmdEditSkills", QStringLiteral("..."));
  cmdEditSkills.setAccessibleName(QStringLiteral("Edit Skills"));
  cmdEditSkills.setToolTip(QStringLiteral("Edit Skills"));
  Narrow(cmdEditSkills);
  SetUpLabel(lblSkillLevel, "lblSkillLevel", QStringLiteral("at Level:"));
  SetUpField(cboSkillLevels, "cboSkillLevels", lblSkillLevel);
  cboSkillLevels.MakeListOnly();
}

void frmChoiceEdit::BuildLayout() {
  BuildGeneralPage();
  BuildFlagsPage();
  BuildSkillsPage();
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdOK);
  buttons->addWidget(&cmdCancel);

  auto* form = new QVBoxLayout(this);
  form->addWidget(&tabChoice, 1);
  form->addLayout(buttons);
}

void frmChoiceEdit::BuildGeneralPage() {
  txtChoice.setMinimumWidth(kFieldWidth);
  auto* audio = new QHBoxLayout;
  audio->addWidget(&Label20);
  audio->addWidget(&txtAudioFile, 1);
  audio->addWidget(&cmdSpeechAudio);
  audio->addWidget(&cmdPlayAudio);
  auto* spoken = new QVBoxLayout(&frmShowChoice);
  spoken->addWidget(&chkShowChoice);
  spoken->addLayout(audio);

  auto* fields = new QFormLayout;
  fields->addRow(&Label1, &txtChoice);
  fields->addRow(&Label15, &cboJumpLabel);
  auto* page = new QVBoxLayout(&pageGeneral);
  page->addLayout(fields);
  page->addWidget(&frmShowChoice);
  page->addStretch();
}

void frmChoiceEdit::BuildFlagsPage() {
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(&cmdFlagAdd);
  buttons->addWidget(&cmdFlagDelete);
  buttons->addStretch();
  auto* page = new QVBoxLayout(&pageFlags);
  page->addWidget(&Label9);
  page->addWidget(&lstFlags, 1);
  page->addLayout(buttons);
}

void frmChoiceEdit::BuildSkillsPage() {
  auto* skill = new QHBoxLayout;
  skill->addWidget(&cboSkills, 1);
  skill->addWidget(&cmdEditSkills);
  auto* fields = new QFormLayout;
  fields->addRow(&lblSkill, skill);
  fields->addRow(&lblSkillLevel, &cboSkillLevels);
  auto* frame = new QVBoxLayout(&frmSkill);
  frame->addWidget(&chkSkill);
  frame->addLayout(fields);
  auto* page = new QVBoxLayout(&pageSkills);
  page->addWidget(&frmSkill);
  page->addStretch();
}

void frmChoiceEdit::SizeFlagColumns() {
  if (!lstFlags.isVisible()) return;
  // The page has its size only when its layout has run.
  pageFlags.layout()->activate();
  const int width = lstFlags.viewport()->width();
  lstFlags.SetColumnWidth(0, width * 2 / 3);
  lstFlags.SetColumnWidth(1, width - width * 2 / 3);
}

}  // namespace parlate

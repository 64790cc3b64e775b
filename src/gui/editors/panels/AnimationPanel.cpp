#include "editors/panels/AnimationPanel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "editors/panels/PanelControls.h"
#include "model/TableCombos.h"
#include "model/Tables.h"
#include "model/TextNumbers.h"
#include "platform/FormControls.h"
#include "platform/TextField.h"

namespace parlate {

AnimationPanel::AnimationPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kPlayAnimation, QStringLiteral("Play Animation"), host, parent),
      pawn_(cboPawnAnimate, kActorTable, cmdEditNPCTable1, [this] { emit changed(); }) {
  SetUpControls();
  SetUpDuration();
  BuildLayout();
  optAnimPlayOnce.setChecked(true);
  RefreshAnimationControls();
  connect(&txtSeqName, &QLineEdit::textChanged, this, &EventPanel::changed);
  connect(&optAnimPlayOnce, &QRadioButton::toggled, this,
          &AnimationPanel::RefreshAnimationControls);
  connect(&chkAnimTimed, &QCheckBox::toggled, this, &AnimationPanel::RefreshAnimationControls);
}

void AnimationPanel::SetUpControls() {
  SetUpLabel(lblPawnAnimate, "lblPawnAnimate", QStringLiteral("Pawn to Animate:"));
  SetUpField(cboPawnAnimate, "cboPawnAnimate", lblPawnAnimate);
  SetUpFieldButton(cmdEditNPCTable1, "cmdEditNPCTable(1)", QStringLiteral("Edit NPC Table"),
                   lblPawnAnimate);
  SetUpLabel(lblSeqName, "lblSeqName", QStringLiteral("Sequence  to Play:"));
  SetUpField(txtSeqName, "txtSeqName", lblSeqName);
  SetUpTextLine(txtSeqName);
}

void AnimationPanel::SetUpDuration() {
  const QString duration = QStringLiteral("Animation Duration");
  NameControl(fraAnimDuration, "fraAnimDuration", duration);
  fraAnimDuration.setTitle(duration);
  SetUpButton(optAnimPlayOnce, "optAnimPlayOnce", QStringLiteral("Play Once"));
  SetUpButton(optAnimLoop, "optAnimLoop", QStringLiteral("Loop Animation"));
  SetUpButton(chkFinishAnim, "chkFinishAnim", QStringLiteral("Wait for Animation to Finish"));
  SetUpButton(chkAnimTimed, "chkAnimTimed", QStringLiteral("Animation Timed"));
  SetUpLabel(lblAnimTimed0, "lblAnimTimed(0)", QStringLiteral("Play For:"));
  SetUpField(txtAnimLength, "txtAnimLength", lblAnimTimed0);
  txtAnimLength.setAccessibleName(QStringLiteral("Play For: seconds"));
  SetUpTextLine(txtAnimLength);
  SetUpLabel(lblAnimTimed1, "lblAnimTimed(1)", QStringLiteral("seconds"));
}

void AnimationPanel::BuildLayout() {
  QGridLayout* rows = FieldRows();
  AddFieldRow(*rows, lblPawnAnimate, cboPawnAnimate, &cmdEditNPCTable1);
  AddFieldRow(*rows, lblSeqName, txtSeqName);

  auto* length = new QHBoxLayout;
  length->addWidget(&lblAnimTimed0);
  length->addWidget(&txtAnimLength);
  length->addWidget(&lblAnimTimed1);
  length->addStretch();
  auto* duration = new QVBoxLayout(&fraAnimDuration);
  duration->addWidget(&optAnimPlayOnce);
  duration->addWidget(&optAnimLoop);
  duration->addWidget(&chkFinishAnim);
  duration->addWidget(&chkAnimTimed);
  duration->addLayout(length);

  auto* panel = new QVBoxLayout(this);
  panel->addLayout(rows);
  panel->addWidget(&fraAnimDuration);
  panel->addStretch();
}

void AnimationPanel::RefreshAnimationControls() {
  const bool playOnce = optAnimPlayOnce.isChecked();
  if (!playOnce) chkFinishAnim.setChecked(false);
  chkFinishAnim.setEnabled(playOnce);
  const bool timed = chkAnimTimed.isChecked();
  if (!timed) txtAnimLength.clear();
  lblAnimTimed0.setEnabled(timed);
  txtAnimLength.setEnabled(timed);
  lblAnimTimed1.setEnabled(timed);
}

void AnimationPanel::ClearFields() {
  cboPawnAnimate.SetListIndex(-1);
  txtSeqName.clear();
  optAnimPlayOnce.setChecked(true);
  txtAnimLength.clear();
  chkFinishAnim.setChecked(false);
}

void AnimationPanel::Ready() {
  PopulateCombo(cboPawnAnimate, *GetTable(kActorTable));
  optAnimPlayOnce.setChecked(true);
  chkAnimTimed.setChecked(false);
  txtAnimLength.clear();
}

void AnimationPanel::LoadEvent(EventItem& event) {
  const auto& animation = Loaded<EventAnimation>(event);
  SelectComboItemByID(animation.PawnID, cboPawnAnimate);
  SetLineText(txtSeqName, animation.SeqName);
  (animation.playMode == 0 ? optAnimLoop : optAnimPlayOnce).setChecked(true);
  chkFinishAnim.setChecked(animation.bFinishAnim);
  chkAnimTimed.setChecked(animation.playLength > 0);
  txtAnimLength.setText(QString::number(animation.playLength));
  RefreshAnimationControls();
}

bool AnimationPanel::IsComplete() const { return !txtSeqName.text().isEmpty() && pawn_.IsValid(); }

void AnimationPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventAnimation>(event).Update(
      cboPawnAnimate, LineText(txtSeqName), optAnimLoop.isChecked(),
      NumericValue(LineText(txtAnimLength)), chkFinishAnim.isChecked());
}

}  // namespace parlate

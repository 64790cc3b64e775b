#include "mainwindow/frmFind.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "model/TableCombos.h"
#include "model/Vocabulary.h"
#include "platform/FormControls.h"

namespace parlate {

frmFind::frmFind(Shell& shell, QWidget* parent) : QDialog(parent), shell_(shell) {
  SetUpControls();
  BuildLayout();
  PopulateComboFromArray(cboEvents, eventTypeNames);
  cboEvents.InsertItem("<ALL>", 0);
  cboEvents.SetListIndex(0);
  optConAll.setChecked(true);
  RefreshFind();
  Restart();
  connect(&cboFind, &QtComboBox::choiceChanged, this, &frmFind::RefreshFind);
  connect(&cmdFind, &QPushButton::clicked, this, &frmFind::Find);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmFind::reject);
}

void frmFind::SetUpControls() {
  NameControl(*this, "frmFind", QStringLiteral("Find"));
  setWindowTitle(QStringLiteral("Find"));
  SetUpLabel(Label1, "Label1", QStringLiteral("Find What:"));
  SetUpField(cboFind, "cboFind", Label1);
  // A text that was found before is chosen from the list; typing offers none, so Return searches.
  cboFind.setCompleter(nullptr);
  SetUpLabel(Label3, "Label3", QStringLiteral("Events:"));
  SetUpField(cboEvents, "cboEvents", Label3);
  cboEvents.MakeListOnly();
  cboEvents.setMaxVisibleItems(kEventTypeCount + 1);
  SetUpButton(chkMatchCase, "chkMatchCase", QStringLiteral("Match Case"));
  SetUpButton(chkWholeWord, "chkWholeWord", QStringLiteral("Find Whole Word Only"));
  NameControl(Frame1, "Frame1", QStringLiteral("Search"));
  Frame1.setTitle(QStringLiteral("Search"));
  SetUpButton(optConAll, "optConAll", QStringLiteral("All Conversations"));
  SetUpButton(optConCurrent, "optConCurrent", QStringLiteral("Current Conversation"));
  SetUpButton(cmdFind, "cmdFind", QStringLiteral("&Find Next"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Close"));
  cmdFind.setDefault(true);
}

void frmFind::BuildLayout() {
  auto* fields = new QGridLayout;
  fields->addWidget(&Label1, 0, 0);
  fields->addWidget(&cboFind, 0, 1);
  fields->addWidget(&Label3, 1, 0);
  fields->addWidget(&cboEvents, 1, 1);
  fields->setColumnStretch(1, 1);
  cboFind.setMinimumContentsLength(30);

  auto* ways = new QVBoxLayout;
  ways->addWidget(&chkMatchCase);
  ways->addWidget(&chkWholeWord);
  ways->addStretch();
  auto* scope = new QVBoxLayout(&Frame1);
  scope->addWidget(&optConAll);
  scope->addWidget(&optConCurrent);
  auto* options = new QHBoxLayout;
  options->addLayout(ways, 1);
  options->addWidget(&Frame1, 1);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdFind);
  buttons->addWidget(&cmdCancel);

  auto* form = new QVBoxLayout(this);
  form->addLayout(fields);
  form->addLayout(options);
  form->addStretch();
  form->addLayout(buttons);
}

void frmFind::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  cboFind.SetFocus();
  cboFind.lineEdit()->selectAll();
}

void frmFind::RefreshFind() { cmdFind.setEnabled(!cboFind.Text().empty()); }

void frmFind::Restart() {
  shell_.ResetSearch();
  SetFindCaption(QStringLiteral("Find First"));
}

void frmFind::SetFindCaption(const QString& caption) {
  cmdFind.setText(caption);
  cmdFind.setAccessibleName(caption);
}

void frmFind::Find() {
  AddComboHistory(cboFind);
  const bool found = shell_.FindText(cboFind, chkWholeWord.isChecked(), chkMatchCase.isChecked(),
                                     optConAll.isChecked(), cboEvents.ListIndex());
  if (found) {
    SetFindCaption(QStringLiteral("Find Next"));
    emit Hit();
  } else {
    Restart();
  }
}

}  // namespace parlate

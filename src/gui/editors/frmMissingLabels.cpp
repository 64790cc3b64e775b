#include "editors/frmMissingLabels.h"

#include <QHBoxLayout>
#include <QShowEvent>
#include <QVBoxLayout>

#include "platform/FontSetup.h"
#include "platform/FormControls.h"
#include "platform/TwipsConversion.h"

namespace parlate {

namespace {

constexpr int kWidth = 6600;
constexpr int kSavingHeight = 5300;
constexpr int kReportHeight = 4500;

}  // namespace

frmMissingLabels::frmMissingLabels(QWidget* parent) : QDialog(parent) {
  SetUpControls();
  BuildLayout();
  SetUpForm(true);
  connect(&cmdYes, &QPushButton::clicked, this, &frmMissingLabels::accept);
  connect(&cmdNo, &QPushButton::clicked, this, &frmMissingLabels::reject);
  connect(&cmdClose, &QPushButton::clicked, this, &frmMissingLabels::reject);
}

void frmMissingLabels::SetUpControls() {
  const QString title = QStringLiteral("Error - Missing Labels!");
  NameControl(*this, "frmMissingLabels", title);
  setWindowTitle(title);
  SetUpLabel(Label1, "Label1", QStringLiteral("Missing Labels:"));
  SetUpField(lstLabels, "lstLabels", Label1);
  lstLabels.SetHeads({QStringLiteral("Conversation"), QStringLiteral("Label")});
  lstLabels.setFont(ListFont());
  // The blank at the end belongs to the text.
  SetUpLabel(Label2, "Label2",
             QStringLiteral("The labels listed above are referenced in conversations but are not "
                            "defined in any events.  You must correct these label references "
                            "before the conversation will run properly in the game. "));
  Label2.setWordWrap(true);
  NameControl(pnlSaving, "pnlSaving", QStringLiteral("Continue Saving?"));
  SetUpLabel(lblSave, "lblSave", QStringLiteral("Continue Saving?"));
  SetUpButton(cmdYes, "cmdYes", QStringLiteral("&Yes"));
  SetUpButton(cmdNo, "cmdNo", QStringLiteral("&No"));
  SetUpButton(cmdClose, "cmdClose", QStringLiteral("&Close"));
}

void frmMissingLabels::BuildLayout() {
  auto* saving = new QHBoxLayout(&pnlSaving);
  saving->setContentsMargins(0, 0, 0, 0);
  saving->addWidget(&lblSave);
  saving->addStretch();
  saving->addWidget(&cmdYes);
  saving->addWidget(&cmdNo);

  auto* closing = new QHBoxLayout;
  closing->addStretch();
  closing->addWidget(&cmdClose);

  auto* form = new QVBoxLayout(this);
  form->addWidget(&Label1);
  form->addWidget(&lstLabels, 1);
  form->addWidget(&Label2);
  form->addWidget(&pnlSaving);
  form->addLayout(closing);
}

void frmMissingLabels::SetUpForm(bool bSaving) {
  pnlSaving.setVisible(bSaving);
  lblSave.setVisible(bSaving);
  cmdYes.setEnabled(bSaving);
  cmdNo.setEnabled(bSaving);
  cmdClose.setVisible(!bSaving);
  cmdYes.setDefault(bSaving);
  cmdClose.setDefault(!bSaving);
  (bSaving ? cmdYes : cmdClose).setFocus();
  resize(PixelsFromTwips(kWidth), PixelsFromTwips(bSaving ? kSavingHeight : kReportHeight));
}

bool frmMissingLabels::ShowMissingLabels(const std::vector<BadLabelRow>& rows, bool bSaving) {
  if (rows.empty()) return true;
  SetUpForm(bSaving);
  std::vector<ListRow> shown;
  shown.reserve(rows.size());
  for (const BadLabelRow& row : rows) {
    shown.push_back({*row.conversation + ";" + row.label, {}, row.eventKey, -1});
  }
  rows_.Assign(std::move(shown));
  modalResult = 1;
  exec();
  return bSaving && modalResult == 0;
}

void frmMissingLabels::accept() {
  modalResult = 0;
  QDialog::accept();
}

void frmMissingLabels::reject() {
  modalResult = 1;
  QDialog::reject();
}

void frmMissingLabels::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  // The layout has given the list its width by now.
  const int width = lstLabels.viewport()->width();
  lstLabels.SetColumnWidth(0, width * 3 / 5);
  lstLabels.SetColumnWidth(1, width - width * 3 / 5);
}

}  // namespace parlate

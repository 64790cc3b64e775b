#include "editors/frmPrintCons.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>
#include <string>

#include "model/TextNumbers.h"
#include "platform/FormControls.h"

namespace parlate {

namespace {

constexpr const char* kFontSizes[] = {"8", "9", "10", "11", "12", "14", "16", "18", "24"};
constexpr std::int32_t kSmallest = 5;
constexpr std::int32_t kLargest = 24;

}  // namespace

frmPrintCons::frmPrintCons(ConversationDefaults& defaults, MessageBoxes& messages, QWidget* parent)
    : QDialog(parent), defaults_(defaults), messages_(messages) {
  SetUpControls();
  BuildLayout();
  ShowSettings();
  SetChoice(true, true);
  connect(&optPrintAll, &QRadioButton::toggled, this, &frmPrintCons::RefreshListingOnly);
  connect(&cmdOK, &QPushButton::clicked, this, &frmPrintCons::accept);
  connect(&cmdCancel, &QPushButton::clicked, this, &frmPrintCons::reject);
}

void frmPrintCons::SetUpControls() {
  NameControl(*this, "frmPrintCons", QStringLiteral("Print Conversations"));
  setWindowTitle(QStringLiteral("Print Conversations"));
  NameControl(fraPrint, "fraPrint", QStringLiteral("Print Conversations "));
  fraPrint.setTitle(QStringLiteral("Print Conversations "));
  SetUpButton(optPrintAll, "optPrintAll", QStringLiteral("All Conversations"));
  SetUpButton(chkListingOnly, "chkListingOnly", QStringLiteral("Conversation Listing Only"));
  SetUpButton(optPrintSelected, "optPrintSelected", QStringLiteral("Selected Conversation"));
  SetUpButton(chkDetailedHeader, "chkDetailedHeader", QStringLiteral("Print Detailed Header"));
  SetUpButton(chkPrintBlankLines, "chkPrintBlankLines",
              QStringLiteral("Blank Lines Between Events"));
  SetUpButton(chkPrintFooters, "chkPrintFooters", QStringLiteral("Print Page Footers"));
  SetUpButton(chkConPageBreaks, "chkConPageBreaks",
              QStringLiteral("Page Break After Each Conversation"));
  SetUpButton(chkPrintAudioNames, "chkPrintAudioNames", QStringLiteral("Print Audio Filenames"));
  SetUpButton(chkPrintSpeechOnly, "chkPrintSpeechOnly",
              QStringLiteral("Print Only Speech-Related Events"));
  SetUpLabel(Label1, "Label1", QStringLiteral("Font Size:"));
  SetUpField(cboFontSizes, "cboFontSizes", Label1);
  for (const char* size : kFontSizes) cboFontSizes.AddItem(size);
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("&OK"));
  SetUpButton(cmdCancel, "cmdCancel", QStringLiteral("&Cancel"));
  cmdOK.setDefault(true);
}

void frmPrintCons::BuildLayout() {
  auto* what = new QVBoxLayout(&fraPrint);
  what->addWidget(&optPrintAll);
  auto* listing = new QHBoxLayout;
  listing->addSpacing(20);  // it belongs to the choice above it
  listing->addWidget(&chkListingOnly);
  listing->addStretch();
  what->addLayout(listing);
  what->addWidget(&optPrintSelected);

  auto* sizes = new QHBoxLayout;
  sizes->addWidget(&Label1);
  sizes->addWidget(&cboFontSizes);
  sizes->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdOK);
  buttons->addWidget(&cmdCancel);

  auto* form = new QVBoxLayout(this);
  form->addWidget(&fraPrint);
  for (QCheckBox* box : {&chkDetailedHeader, &chkPrintBlankLines, &chkPrintFooters,
                         &chkConPageBreaks, &chkPrintAudioNames, &chkPrintSpeechOnly}) {
    form->addWidget(box);
  }
  form->addLayout(sizes);
  form->addStretch();
  form->addLayout(buttons);
}

void frmPrintCons::ShowSettings() {
  chkListingOnly.setChecked(defaults_.bPrintListingOnly);
  chkDetailedHeader.setChecked(defaults_.bPrintDetailedHeader);
  chkPrintBlankLines.setChecked(defaults_.bPrintBlankLines);
  chkPrintFooters.setChecked(defaults_.bPrintFooters);
  chkConPageBreaks.setChecked(defaults_.bConPageBreaks);
  chkPrintAudioNames.setChecked(defaults_.bPrintAudioNames);
  chkPrintSpeechOnly.setChecked(defaults_.bPrintSpeechOnly);
  cboFontSizes.SetText(std::to_string(defaults_.PrintFontSize));
}

void frmPrintCons::StoreSettings(std::int16_t fontSize) {
  defaults_.bPrintListingOnly = chkListingOnly.isChecked();
  defaults_.bPrintDetailedHeader = chkDetailedHeader.isChecked();
  defaults_.bPrintBlankLines = chkPrintBlankLines.isChecked();
  defaults_.bPrintFooters = chkPrintFooters.isChecked();
  defaults_.bConPageBreaks = chkConPageBreaks.isChecked();
  defaults_.bPrintAudioNames = chkPrintAudioNames.isChecked();
  defaults_.bPrintSpeechOnly = chkPrintSpeechOnly.isChecked();
  defaults_.PrintFontSize = fontSize;
}

void frmPrintCons::SetChoice(bool selectedThere, bool bPrintAll) {
  optPrintSelected.setEnabled(selectedThere);
  (bPrintAll ? optPrintAll : optPrintSelected).setChecked(true);
  RefreshListingOnly();
}

void frmPrintCons::RefreshListingOnly() { chkListingOnly.setEnabled(optPrintAll.isChecked()); }

void frmPrintCons::accept() {
  std::int32_t size = 0;
  try {
    size = NumericValue(cboFontSizes.Text());
  } catch (const RuntimeError&) {
    size = kLargest + 1;  // a number beyond all numbers is no size either
  }
  if (size < kSmallest || size > kLargest) {
    messages_.Show({"Invalid Font Size!", "Font size must be between 5 and 24",
                    MessageBox::Icon::Critical, MessageBox::Buttons::Ok});
    cboFontSizes.SetFocus();
    return;
  }
  StoreSettings(static_cast<std::int16_t>(size));
  modalResult = 0;
  QDialog::accept();
}

}  // namespace parlate

// The dialogs and the editor that the main window opens for the shell.

#include "editors/FlagListEdit.h"
#include "editors/frmFileProperties.h"
#include "editors/frmMissingLabels.h"
#include "editors/frmProperties.h"
#include "general/Paths.h"
#include "mainwindow/frmConvList.h"
#include "printing/TablePages.h"

namespace parlate {

int frmConvList::ShowSettings() {
  frmSettings dialog(Workspace::Current().defaults, dialogs_, *this, isVisible() ? this : nullptr);
  dialog.exec();
  return dialog.modalResult;
}

bool frmConvList::ShowMissingLabels(const std::vector<BadLabelRow>& rows, bool bSaving) {
  frmMissingLabels dialog(this);
  return dialog.ShowMissingLabels(rows, bSaving);
}

int frmConvList::ShowProperties(Conversation& con, int tabIndex) {
  frmProperties dialog(*shell_.GetConFile(), messages_, this);
  dialog.SetCon(con);
  dialog.SetTab(tabIndex);
  dialog.exec();
  return dialog.modalResult;
}

void frmConvList::ShowFileProperties() {
  frmFileProperties dialog(*shell_.GetConFile(), this, [this](const SpeakerStats& stats) {
    if (printers_ == nullptr) return;
    PrintStats(stats, FromUtf8(GetFileOnly(shell_.conFileName)), {*printers_, messages_});
  });
  dialog.exec();
}

bool frmConvList::PickFlags(FlagList& flagRefs) {
  return parlate::PickFlags(flagRefs, false, this);
}

}  // namespace parlate

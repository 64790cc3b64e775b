// The print commands of the main window.

#include "editors/frmPrintCons.h"
#include "mainwindow/frmConvList.h"

namespace parlate {

void frmConvList::ConnectPrintingCommands() {
  On("mnuFilePrint", [this] { shell_.PrintConversations(true, false); });
  On("tlbCon/Print", [this] { shell_.PrintConversations(false, false); });
  On("mnuConPopupPrint", [this] { shell_.PrintConversations(false, true); });
}

std::optional<PrintChoice> frmConvList::ShowPrintOptions(bool selectedThere, bool bPrintAll) {
  frmPrintCons dialog(Workspace::Current().defaults, messages_, this);
  dialog.SetChoice(selectedThere, bPrintAll);
  dialog.exec();
  if (dialog.modalResult != 0) return std::nullopt;
  return dialog.Choice();
}

}  // namespace parlate

// The table editor, as the menu and the small buttons beside the combos of the editors open it.

#include <QApplication>

#include "editors/frmTableEdit.h"
#include "mainwindow/frmConvList.h"
#include "model/TableItem.h"

namespace parlate {

void frmConvList::ConnectTableCommands() {
  Workspace::Current().tableEditor = this;
  On("mnuTableNPCs", [this] { EditTableDialog(kActorTable); });
  On("mnuTableFlags", [this] { EditTableDialog(kFlagTable); });
  On("mnuTableSkills", [this] { EditTableDialog(kSkillTable); });
  On("mnuTableObjects", [this] { EditTableDialog(kObjectTable); });
}

std::int32_t frmConvList::EditTableDialog(std::int32_t tableType) {
  QWidget* active = QApplication::activeWindow();
  frmTableEdit editor(Doors(), active != nullptr ? active : this);
  return editor.EditTable(tableType);
}

}  // namespace parlate

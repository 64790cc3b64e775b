// Menus, popups and toolbar of the main window: names, captions and access keys.

#include <QMenuBar>
#include <QToolButton>
#include <array>

#include "mainwindow/Icons.h"
#include "mainwindow/MenuItem.h"
#include "mainwindow/frmConvList.h"
#include "model/Vocabulary.h"

namespace parlate {

namespace {

constexpr int kPlayAnimationItem = 7;

/// Captions of the items that add or insert an event, by type code.
constexpr std::array<const char*, kEventTypeCount> kEventItemCaptions = {"Speech",
                                                                         "Choice",
                                                                         "Set Flag",
                                                                         "Check Flag",
                                                                         "Check Object",
                                                                         "Transfer Object",
                                                                         "Move Camera",
                                                                         "Play Animation",
                                                                         "Buy/Sell/Trade",
                                                                         "Jump",
                                                                         "Random",
                                                                         "Trigger",
                                                                         "Add/Complete Goal",
                                                                         "Add Note",
                                                                         "Add Skill Points",
                                                                         "Add Credits",
                                                                         "Check Persona",
                                                                         "Comment",
                                                                         "End"};

const QKeySequence kNone;

std::vector<MenuItem> FileItems() {
  return {
      {"mnuFileNew", "&New...", Qt::CTRL | Qt::Key_N},
      {"mnuFileOpen", "&Open...", Qt::CTRL | Qt::Key_O},
      {"mnuFileClose", "&Close"},
      {"mnuDash0", "-"},
      {"mnuFileSave", "&Save", Qt::CTRL | Qt::Key_S},
      {"mnuFileSaveAs", "Save &As...", Qt::CTRL | Qt::Key_A},
      {"mnuDash1", "-"},
      {"mnuFileExport", "&Export..."},
      {"mnuFileImport", "&Import..."},
      {"mnuFileGenerateAudio", "&Generate Audio Filenames"},
      {"mnuDash3", "-"},
      {"mnuFilePrint", "&Print", Qt::CTRL | Qt::Key_P},
      {"mnuDash2", "-"},
      {"mnuFileProperties", "P&roperties"},
      {"mnuFileDash", "-"},
      {"mnuFileLast(0)", "&1 First File"},
      {"mnuFileLast(1)", "&2 Second File"},
      {"mnuFileLast(2)", "&3 Third File"},
      {"mnuFileLast(3)", "&4 Fourth File"},
      {"mnuDash8", "-"},
      {"mnuFileExit", "E&xit"},
  };
}

std::vector<MenuItem> ConversationItems() {
  return {
      {"mnuConAdd", "Add Conversation"},
      {"mnuConDelete", "Delete Conversation"},
      {"mnuConDash", "-"},
      {"mnuConCut", "Cu&t"},
      {"mnuConCopy", "&Copy"},
      {"mnuConPaste", "&Paste"},
      {"mnuConDash2", "-"},
      {"mnuConCheckLabels", "&Check Labels", Qt::CTRL | Qt::Key_L},
      {"mnuConProperties", "&Properties"},
      {"mnuConFind", "&Find", Qt::CTRL | Qt::Key_F},
      {"mnuDash7", "-"},
      {"mnuConExpandAll", "&Expand All"},
      {"mnuConCollapseAll", "C&ollapse All"},
  };
}

std::vector<MenuItem> EventItems() {
  return {
      {"mnuEventsEdit", "&Edit"},     {"mnuEventsDash0", "-"},      {"mnuEventsCut", "Cu&t"},
      {"mnuEventsCopy", "&Copy"},     {"mnuEventsPaste", "&Paste"}, {"mnuEventsDash1", "-"},
      {"mnuEventsDelete", "&Delete"},
  };
}

std::vector<MenuItem> TableItems() {
  return {
      {"mnuTableNPCs", "&Actors/Pawns"},
      {"mnuTableFlags", "&Flags"},
      {"mnuTableSkills", "&Skills"},
      {"mnuTableObjects", "&Objects"},
  };
}

std::vector<MenuItem> ViewItems() {
  return {
      {"mnuViewToolbar", "&Toolbar", kNone, true},
      {"mnuViewStatusBar", "&Status Bar", kNone, true},
      {"mnuViewExpandList", "&Expanded Event List", kNone, true},
      {"mnuViewShowAudioFiles", "Show Audio Files", kNone, true},
      {"mnuOptionsDash", "-"},
      {"mnuViewOptions", "&Options..."},
  };
}

std::vector<MenuItem> HelpItems() {
  return {
      {"mnuHelpContents", "&Contents", Qt::Key_F1},
      {"mnuHelpSearch", "&Search..."},
      {"mnuDash6", "-"},
      {"mnuHelpAbout", "&About Parlate..."},
  };
}

std::vector<MenuItem> ConPopupItems() {
  return {
      {"mnuConPopupAdd", "Add"},
      {"mnuConPopupDelete", "Delete"},
      {"mnuConPopupPrint", "Print"},
      {"mnuConPopupDash", "-"},
      {"mnuConPopupCut", "Cut"},
      {"mnuConPopupCopy", "Copy"},
      {"mnuConPopupPaste", "Paste"},
      {"mnuConPopupDash2", "-"},
      {"mnuConPopupProperties", "Properties"},
      {"mnuDash10", "-"},
      {"mnuConPopupExpandFlags", "Expand Flags"},
      {"mnuConPopupExpandAll", "Expand All"},
      {"mnuConPopupCollapseAll", "Collapse All"},
  };
}

std::vector<MenuItem> EventPopupItems() {
  return {
      {"mnuEventPopupEdit", "Edit"}, {"mnuEventPopupDelete", "Delete"},
      {"mnuEventPopupDash", "-"},    {"mnuEventPopupCut", "Cut"},
      {"mnuEventPopupCopy", "Copy"}, {"mnuEventPopupPaste", "Paste"},
  };
}

std::vector<MenuItem> FlagPopupItems() {
  return {
      {"mnuFlagPopupAdd", "Add Flag"},
      {"mnuFlagPopupRemove", "Remove Flag"},
      {"mnuFlagPopupToggle", "Toggle Flag"},
      {"mnuFlagPopupEdit", "Edit Flags"},
      {"mnuDash11", "-"},
      {"mnuFlagPopupCollapse", "Collapse Flags"},
  };
}

}  // namespace

void frmConvList::BuildMenu(QMenu& menu, const std::vector<MenuItem>& items) {
  for (const MenuItem& item : items) {
    QAction* action =
        item.caption == QLatin1String("-") ? menu.addSeparator() : menu.addAction(item.caption);
    action->setObjectName(item.name);
    action->setShortcut(item.shortcut);
    action->setCheckable(item.checkable);
    action->setMenuRole(QAction::NoRole);
    commands_.insert(item.name, action);
  }
}

void frmConvList::BuildEventTypeMenu(QMenu& menu, const QString& itemName, bool plural) {
  for (int type = 0; type < kEventTypeCount; ++type) {
    QString caption = QString::fromLatin1(kEventItemCaptions[static_cast<std::size_t>(type)]);
    if (plural && type == kPlayAnimationItem) caption += QLatin1Char('s');
    BuildMenu(menu, {{QStringLiteral("%1(%2)").arg(itemName).arg(type), caption}});
  }
}

void frmConvList::BuildMenus() {
  const auto addMenu = [this](auto& parent, const QString& name, const QString& caption) -> QMenu& {
    QMenu* menu = parent.addMenu(caption);
    menu->setObjectName(name);
    menu->menuAction()->setObjectName(name);
    commands_.insert(name, menu->menuAction());
    return *menu;
  };
  QMenuBar& bar = *menuBar();
  bar.setNativeMenuBar(false);
  BuildMenu(addMenu(bar, "mnuFile", "&File"), FileItems());
  for (const char* recent :
       {"mnuFileDash", "mnuFileLast(0)", "mnuFileLast(1)", "mnuFileLast(2)", "mnuFileLast(3)"}) {
    Command(QString::fromLatin1(recent))->setVisible(false);
  }
  BuildMenu(addMenu(bar, "mnuCon", "&Conversation"), ConversationItems());
  QMenu& events = addMenu(bar, "mnuEvents", "Events");
  BuildEventTypeMenu(addMenu(events, "mnuEventsAdd", "&Add"), "mnuEventAdd", true);
  BuildEventTypeMenu(addMenu(events, "mnuEventsInsert", "&Insert"), "mnuEventInsert", false);
  BuildMenu(events, EventItems());
  BuildMenu(addMenu(bar, "mnuTable", "&Tables"), TableItems());
  BuildMenu(addMenu(bar, "mnuView", "&View"), ViewItems());
  BuildMenu(addMenu(bar, "mnuHelp", "&Help"), HelpItems());
}

void frmConvList::BuildPopups() {
  mnuConPopup_.setObjectName(QStringLiteral("mnuConPopup"));
  BuildMenu(mnuConPopup_, ConPopupItems());
  mnuEventPopup_.setObjectName(QStringLiteral("mnuEventPopup"));
  const auto addTypes = [this](const QString& name, const QString& caption, const QString& item) {
    QMenu* menu = mnuEventPopup_.addMenu(caption);
    menu->setObjectName(name);
    menu->menuAction()->setObjectName(name);
    commands_.insert(name, menu->menuAction());
    BuildEventTypeMenu(*menu, item, false);
  };
  addTypes("mnuEventPopupAddEvents", "Add", "mnuEventPopupAddEvent");
  addTypes("mnuEventPopupInsertEvents", "Insert", "mnuEventPopupInsertEvent");
  BuildMenu(mnuEventPopup_, EventPopupItems());
  mnuFlagPopup_.setObjectName(QStringLiteral("mnuFlagPopup"));
  BuildMenu(mnuFlagPopup_, FlagPopupItems());
}

void frmConvList::BuildToolbar() {
  tlbCon_.setObjectName(QStringLiteral("tlbCon"));
  tlbCon_.setWindowTitle(QStringLiteral("Toolbar"));
  tlbCon_.setAccessibleName(QStringLiteral("Toolbar"));
  tlbCon_.setMovable(false);
  tlbCon_.setContextMenuPolicy(Qt::PreventContextMenu);
  const char* const buttons[] = {"New",  "Open",  "Save", "Print", "-", "Cut",
                                 "Copy", "Paste", "-",    "Find",  "-", "Properties"};
  for (const char* button : buttons) {
    const QString key = QString::fromLatin1(button);
    if (key == QLatin1String("-")) {
      tlbCon_.addSeparator();
      continue;
    }
    QAction* action = tlbCon_.addAction(Icon(key.toLower()), key);
    action->setObjectName(key);
    action->setToolTip(key);
    commands_.insert(QStringLiteral("tlbCon/") + key, action);
    if (QWidget* face = tlbCon_.widgetForAction(action)) {
      face->setObjectName(key);
      face->setFocusPolicy(Qt::TabFocus);
      face->setAccessibleName(key);
    }
  }
  pnlFind_.setObjectName(QStringLiteral("pnlFind"));
  pnlFind_.setText(QStringLiteral("Find:"));
  pnlFind_.setBuddy(&cboFind_);
  pnlFind_.setContentsMargins(12, 0, 6, 0);
  cboFind_.setObjectName(QStringLiteral("cboFind"));
  cboFind_.setAccessibleName(pnlFind_.text());
  // Typing offers none of the texts that were found before, so Return searches.
  cboFind_.setCompleter(nullptr);
  cboFind_.setMinimumWidth(190);
  tlbCon_.addWidget(&pnlFind_);
  tlbCon_.addWidget(&cboFind_);
  addToolBar(&tlbCon_);
}

}  // namespace parlate

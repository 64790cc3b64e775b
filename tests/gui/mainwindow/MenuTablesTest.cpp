// What the menu bar, the popups and the toolbar of the real window offer: every item with its
// caption and access key, its shortcut and its place.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QToolButton>

#include "mainwindow/WindowFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using namespace testing_support;

/// One item as the user finds it. A separator has the caption "-", a submenu the shortcut ">".
struct Item {
  std::string name;
  std::string caption;
  std::string shortcut;

  bool operator==(const Item&) const = default;
};

void PrintTo(const Item& item, std::ostream* out) {
  *out << item.name << " \"" << item.caption << "\" " << item.shortcut;
}

using Items = std::vector<Item>;

Item ItemOf(const QAction& action) {
  const std::string name = action.objectName().toStdString();
  if (action.isSeparator()) return {name, "-", ""};
  if (action.menu() != nullptr) return {name, action.text().toStdString(), ">"};
  return {name, action.text().toStdString(), action.shortcut().toString().toStdString()};
}

Items ItemsOf(const QWidget& menu) {
  Items items;
  for (const QAction* action : menu.actions()) items.push_back(ItemOf(*action));
  return items;
}

const Items kBar = {
    {"mnuFile", "&File", ">"},    {"mnuCon", "&Conversation", ">"}, {"mnuEvents", "Events", ">"},
    {"mnuTable", "&Tables", ">"}, {"mnuView", "&View", ">"},        {"mnuHelp", "&Help", ">"},
};

const Items kFile = {
    {"mnuFileNew", "&New...", "Ctrl+N"},
    {"mnuFileOpen", "&Open...", "Ctrl+O"},
    {"mnuFileClose", "&Close", ""},
    {"mnuDash0", "-", ""},
    {"mnuFileSave", "&Save", "Ctrl+S"},
    {"mnuFileSaveAs", "Save &As...", "Ctrl+A"},
    {"mnuDash1", "-", ""},
    {"mnuFileExport", "&Export...", ""},
    {"mnuFileImport", "&Import...", ""},
    {"mnuFileGenerateAudio", "&Generate Audio Filenames", ""},
    {"mnuDash3", "-", ""},
    {"mnuFilePrint", "&Print", "Ctrl+P"},
    {"mnuDash2", "-", ""},
    {"mnuFileProperties", "P&roperties", ""},
    {"mnuFileDash", "-", ""},
    {"mnuFileLast(0)", "&1 First File", ""},
    {"mnuFileLast(1)", "&2 Second File", ""},
    {"mnuFileLast(2)", "&3 Third File", ""},
    {"mnuFileLast(3)", "&4 Fourth File", ""},
    {"mnuDash8", "-", ""},
    {"mnuFileExit", "E&xit", ""},
};

const Items kConversation = {
    {"mnuConAdd", "Add Conversation", ""},
    {"mnuConDelete", "Delete Conversation", ""},
    {"mnuConDash", "-", ""},
    {"mnuConCut", "Cu&t", ""},
    {"mnuConCopy", "&Copy", ""},
    {"mnuConPaste", "&Paste", ""},
    {"mnuConDash2", "-", ""},
    {"mnuConCheckLabels", "&Check Labels", "Ctrl+L"},
    {"mnuConProperties", "&Properties", ""},
    {"mnuConFind", "&Find", "Ctrl+F"},
    {"mnuDash7", "-", ""},
    {"mnuConExpandAll", "&Expand All", ""},
    {"mnuConCollapseAll", "C&ollapse All", ""},
};

const Items kEvents = {
    {"mnuEventsAdd", "&Add", ">"},      {"mnuEventsInsert", "&Insert", ">"},
    {"mnuEventsEdit", "&Edit", ""},     {"mnuEventsDash0", "-", ""},
    {"mnuEventsCut", "Cu&t", ""},       {"mnuEventsCopy", "&Copy", ""},
    {"mnuEventsPaste", "&Paste", ""},   {"mnuEventsDash1", "-", ""},
    {"mnuEventsDelete", "&Delete", ""},
};

const Items kTables = {
    {"mnuTableNPCs", "&Actors/Pawns", ""},
    {"mnuTableFlags", "&Flags", ""},
    {"mnuTableSkills", "&Skills", ""},
    {"mnuTableObjects", "&Objects", ""},
};

const Items kView = {
    {"mnuViewToolbar", "&Toolbar", ""},
    {"mnuViewStatusBar", "&Status Bar", ""},
    {"mnuViewExpandList", "&Expanded Event List", ""},
    {"mnuViewShowAudioFiles", "Show Audio Files", ""},
    {"mnuOptionsDash", "-", ""},
    {"mnuViewOptions", "&Options...", ""},
};

const Items kHelp = {
    {"mnuHelpContents", "&Contents", "F1"},
    {"mnuHelpSearch", "&Search...", ""},
    {"mnuDash6", "-", ""},
    {"mnuHelpAbout", "&About Parlate...", ""},
};

const Items kConPopup = {
    {"mnuConPopupAdd", "Add", ""},
    {"mnuConPopupDelete", "Delete", ""},
    {"mnuConPopupPrint", "Print", ""},
    {"mnuConPopupDash", "-", ""},
    {"mnuConPopupCut", "Cut", ""},
    {"mnuConPopupCopy", "Copy", ""},
    {"mnuConPopupPaste", "Paste", ""},
    {"mnuConPopupDash2", "-", ""},
    {"mnuConPopupProperties", "Properties", ""},
    {"mnuDash10", "-", ""},
    {"mnuConPopupExpandFlags", "Expand Flags", ""},
    {"mnuConPopupExpandAll", "Expand All", ""},
    {"mnuConPopupCollapseAll", "Collapse All", ""},
};

const Items kEventPopup = {
    {"mnuEventPopupAddEvents", "Add", ">"}, {"mnuEventPopupInsertEvents", "Insert", ">"},
    {"mnuEventPopupEdit", "Edit", ""},      {"mnuEventPopupDelete", "Delete", ""},
    {"mnuEventPopupDash", "-", ""},         {"mnuEventPopupCut", "Cut", ""},
    {"mnuEventPopupCopy", "Copy", ""},      {"mnuEventPopupPaste", "Paste", ""},
};

const Items kFlagPopup = {
    {"mnuFlagPopupAdd", "Add Flag", ""},
    {"mnuFlagPopupRemove", "Remove Flag", ""},
    {"mnuFlagPopupToggle", "Toggle Flag", ""},
    {"mnuFlagPopupEdit", "Edit Flags", ""},
    {"mnuDash11", "-", ""},
    {"mnuFlagPopupCollapse", "Collapse Flags", ""},
};

/// The items of a menu of event types, of which the one at 7 is not told alike everywhere.
Items EventTypes(const std::string& name, const std::string& seventh) {
  const std::vector<std::string> captions = {"Speech",
                                             "Choice",
                                             "Set Flag",
                                             "Check Flag",
                                             "Check Object",
                                             "Transfer Object",
                                             "Move Camera",
                                             seventh,
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
  Items items;
  for (const std::string& caption : captions) {
    items.push_back({name + "(" + std::to_string(items.size()) + ")", caption, ""});
  }
  return items;
}

struct MenuTable {
  const char* menu;
  Items items;
};

void PrintTo(const MenuTable& table, std::ostream* out) { *out << table.menu; }

std::vector<MenuTable> MenuTables() {
  return {
      {"mnuFile", kFile},
      {"mnuCon", kConversation},
      {"mnuEvents", kEvents},
      {"mnuEventsAdd", EventTypes("mnuEventAdd", "Play Animations")},
      {"mnuEventsInsert", EventTypes("mnuEventInsert", "Play Animation")},
      {"mnuTable", kTables},
      {"mnuView", kView},
      {"mnuHelp", kHelp},
      {"mnuConPopup", kConPopup},
      {"mnuEventPopup", kEventPopup},
      {"mnuEventPopupAddEvents", EventTypes("mnuEventPopupAddEvent", "Play Animation")},
      {"mnuEventPopupInsertEvents", EventTypes("mnuEventPopupInsertEvent", "Play Animation")},
      {"mnuFlagPopup", kFlagPopup},
  };
}

class Menus : public testing::TestWithParam<MenuTable> {
 protected:
  RunningProgram program;
};

INSTANTIATE_TEST_SUITE_P(, Menus, testing::ValuesIn(MenuTables()),
                         [](const auto& test) { return std::string(test.param.menu); });

TEST_P(Menus, HasItsItemsInTheirOrder) {
  EXPECT_THAT(ItemsOf(program.Find<QMenu>(GetParam().menu)), ElementsAreArray(GetParam().items));
}

using MenuBar = WindowTest;

TEST_F(MenuBar, HasSixMenusAndNoneOfThePopups) {
  RunningProgram program;
  EXPECT_THAT(ItemsOf(*program.Window().menuBar()), ElementsAreArray(kBar));
}

TEST_F(MenuBar, RecentFilesAndTheirDashAreHiddenUntilThereIsOne) {
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  for (const char* recent :
       {"mnuFileDash", "mnuFileLast(0)", "mnuFileLast(1)", "mnuFileLast(2)", "mnuFileLast(3)"}) {
    EXPECT_FALSE(program.Window().Command(recent)->isVisible()) << recent;
  }
  EXPECT_TRUE(program.Window().Command("mnuDash8")->isVisible());
}

TEST_F(MenuBar, OnlyTheFourTogglesCarryACheckMark) {
  RunningProgram program;
  std::vector<std::string> checkable;
  for (const MenuTable& table : MenuTables()) {
    for (const QAction* action : program.Find<QMenu>(table.menu).actions()) {
      if (action->isCheckable()) checkable.push_back(action->objectName().toStdString());
    }
  }
  EXPECT_THAT(checkable, ElementsAre("mnuViewToolbar", "mnuViewStatusBar", "mnuViewExpandList",
                                     "mnuViewShowAudioFiles"));
}

TEST_F(MenuBar, TheToolbarHasItsButtonsAndTheirToolTipsAndThenTheQuickSearch) {
  RunningProgram program;
  auto& toolbar = program.Find<QToolBar>("tlbCon");
  std::vector<std::string> places;
  for (QAction* action : toolbar.actions()) {
    QWidget* face = toolbar.widgetForAction(action);
    const std::string name = face->objectName().toStdString();
    if (action->isSeparator()) {
      places.emplace_back("-");
    } else if (auto* button = qobject_cast<QToolButton*>(face)) {
      places.push_back(name);
      EXPECT_EQ(button->toolTip().toStdString(), name);
      EXPECT_EQ(button->accessibleName().toStdString(), name);
      EXPECT_FALSE(button->icon().isNull()) << name;
    } else {
      places.push_back("(" + name + ")");
    }
  }
  EXPECT_THAT(places, ElementsAre("New", "Open", "Save", "Print", "-", "Cut", "Copy", "Paste", "-",
                                  "Find", "-", "Properties", "(pnlFind)", "(cboFind)"));
  EXPECT_EQ(program.Find<QLabel>("pnlFind").text(), "Find:");
}

}  // namespace
}  // namespace parlate

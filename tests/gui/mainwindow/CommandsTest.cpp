// What each command of the menus, the popups and the toolbar does: one line for each, in the real
// window with a file open, a conversation selected and its second event.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QStatusBar>
#include <QTabWidget>
#include <cctype>
#include <set>

#include "editors/frmTableEdit.h"
#include "mainwindow/WindowFixture.h"
#include "platform/Modal.h"
#include "support/ConversationScript.h"

namespace parlate {
namespace {

using namespace testing_support;

/// What the commands change, as it is before any of them.
struct State {
  std::size_t conversations = 3;
  std::size_t rows = 5;
  bool eventBuffered = false;
  bool conBuffered = false;
  bool modified = false;

  bool operator==(const State&) const = default;
};

void PrintTo(const State& state, std::ostream* out) {
  *out << state.conversations << " conversations, " << state.rows << " rows, event "
       << (state.eventBuffered ? "buffered" : "not buffered") << ", conversation "
       << (state.conBuffered ? "buffered" : "not buffered") << ", "
       << (state.modified ? "modified" : "not modified");
}

State StateOf(RunningProgram& program) {
  const Shell& shell = program.shell();
  const CommandPredicates now = shell.Predicates();
  return {shell.GetConFile()->Conversations.Count(), shell.lstEvents().ListCount(),
          now.eventBuffered, now.conBuffered, shell.GetConFile()->IsModified()};
}

using Step = std::function<void(RunningProgram&)>;

/// A command and what it does.
struct Wire {
  std::string command;
  const char* form = nullptr;               ///< The modal form that it shows.
  std::function<void(QWidget&)> look = {};  ///< What is to be seen on the form.
  Step before = {};                         ///< What the user did first.
  Step after = {};                          ///< What is to be seen then.
  QKeyCombination shortcut = Qt::Key_unknown;
};

void PrintTo(const Wire& wire, std::ostream* out) { *out << wire.command; }

Wire Leaves(const char* command, const State& state, Step before = {}) {
  return {.command = command, .before = std::move(before), .after = [state](RunningProgram& p) {
            EXPECT_EQ(StateOf(p), state);
          }};
}

Wire Shows(const char* command, const char* form, std::function<void(QWidget&)> look = {}) {
  Wire wire = Leaves(command, {});
  wire.form = form;
  wire.look = std::move(look);
  return wire;
}

Wire Does(const char* command, Step after, Step before = {}) {
  return {.command = command, .before = std::move(before), .after = std::move(after)};
}

Wire WithKey(Wire wire, QKeyCombination shortcut) {
  wire.shortcut = shortcut;
  return wire;
}

TreeNode& NodeOf(RunningProgram& p, const char* key) {
  TreeNode* node = p.shell().tvCons().FindNode(key);
  if (node == nullptr) throw std::runtime_error(std::string("no node ") + key);
  return *node;
}

std::string LastQuestion(const RunningProgram& p) {
  return p.messages.shown.empty() ? "" : p.messages.shown.back().text;
}

std::function<void(QWidget&)> AtTab(int tab) {
  return [tab](QWidget& form) { EXPECT_EQ(form.findChild<QTabWidget*>()->currentIndex(), tab); };
}

std::function<void(QWidget&)> OnTable(std::int32_t type) {
  return [type](QWidget& form) { EXPECT_EQ(dynamic_cast<frmTableEdit&>(form).tableType, type); };
}

std::function<void(QWidget&)> Offers(const char* option) {
  return [option](QWidget& form) {
    EXPECT_TRUE(ControlNamed<QRadioButton>(form, option).isChecked());
  };
}

void HasNoFile(RunningProgram& p) { EXPECT_EQ(p.shell().GetConFile(), nullptr); }

std::vector<Wire> FileWires() {
  const auto asked = [](RunningProgram& p) { EXPECT_EQ(p.dialogs.opened.size(), 1U); };
  const auto askedForNewName = [](RunningProgram& p) { EXPECT_EQ(p.dialogs.saved.size(), 1U); };
  const auto cancelled = [](RunningProgram& p) { p.dialogs.Expect(""); };
  const auto change = [](RunningProgram& p) { p.shell().SetModified(true, nullptr); };
  Wire fileNew = Does("mnuFileNew", HasNoFile);
  fileNew.form = "frmFileProperties";
  Wire buttonNew = Does("tlbCon/New", HasNoFile);
  buttonNew.form = "frmFileProperties";
  return {
      WithKey(fileNew, Qt::CTRL | Qt::Key_N),
      buttonNew,
      WithKey(Does("mnuFileOpen", asked, cancelled), Qt::CTRL | Qt::Key_O),
      Does("tlbCon/Open", asked, cancelled),
      Does("mnuFileClose", HasNoFile),
      WithKey(Leaves("mnuFileSave", {}, change), Qt::CTRL | Qt::Key_S),
      Leaves("tlbCon/Save", {}, change),
      WithKey(Does("mnuFileSaveAs", askedForNewName, cancelled), Qt::CTRL | Qt::Key_A),
      Shows("mnuFileExport", "frmExport"),
      Shows("mnuFileImport", "frmImport"),
      Leaves("mnuFileGenerateAudio", {.modified = true}),
      WithKey(Shows("mnuFilePrint", "frmPrintCons", Offers("optPrintAll")), Qt::CTRL | Qt::Key_P),
      Shows("tlbCon/Print", "frmPrintCons", Offers("optPrintSelected")),
      Shows("mnuFileProperties", "frmFileProperties"),
      Leaves("mnuFileLast(0)", {.rows = 0}),
      Does("mnuFileExit", [](RunningProgram& p) { EXPECT_FALSE(p.Window().isVisible()); }),
  };
}

std::vector<Wire> ConversationWires() {
  const auto yes = [](RunningProgram& p) { p.messages.Expect(Answer::Yes); };
  const auto copyBoth = [](RunningProgram& p) {
    p.Choose("mnuConCopy");
    p.Choose("mnuEventsCopy");
  };
  const auto collapse = [](RunningProgram& p) { p.Choose("mnuConCollapseAll"); };
  const auto expanded = [](RunningProgram& p) { EXPECT_TRUE(NodeOf(p, "A1").expanded); };
  const auto collapsed = [](RunningProgram& p) { EXPECT_FALSE(NodeOf(p, "A1").expanded); };
  const auto deleted = [](RunningProgram& p) {
    EXPECT_EQ(StateOf(p), (State{.conversations = 2, .rows = 0, .modified = true}));
    EXPECT_EQ(LastQuestion(p), "Are you sure you wish to Delete this Conversation?");
  };
  return {
      Shows("mnuConAdd", "frmProperties", AtTab(0)),
      Shows("mnuConPopupAdd", "frmProperties", AtTab(0)),
      Does("mnuConDelete", deleted, yes),
      Does("mnuConPopupDelete", deleted, yes),
      // Of the menu's three only Copy is for the conversation.
      Leaves("mnuConCut", {.rows = 4, .eventBuffered = true, .modified = true}),
      Leaves("mnuConCopy", {.conBuffered = true}),
      Leaves("mnuConPaste",
             {.rows = 6, .eventBuffered = true, .conBuffered = true, .modified = true}, copyBoth),
      Leaves("mnuConPopupCut",
             {.conversations = 2, .rows = 0, .conBuffered = true, .modified = true}),
      Leaves("mnuConPopupCopy", {.conBuffered = true}),
      Leaves("mnuConPopupPaste", {.conversations = 4, .conBuffered = true, .modified = true},
             [](RunningProgram& p) { p.Choose("mnuConPopupCopy"); }),
      WithKey(Does(
                  "mnuConCheckLabels",
                  [](RunningProgram& p) {
                    EXPECT_EQ(LastQuestion(p), "All Label References are Valid.");
                  },
                  [](RunningProgram& p) { p.messages.Expect(Answer::Ok); }),
              Qt::CTRL | Qt::Key_L),
      Shows("mnuConProperties", "frmProperties", AtTab(0)),
      Shows("mnuConPopupProperties", "frmProperties", AtTab(0)),
      Shows("tlbCon/Properties", "frmProperties", AtTab(0)),
      WithKey(Shows("mnuConFind", "frmFind"), Qt::CTRL | Qt::Key_F),
      Shows("tlbCon/Find", "frmFind"),
      Does("mnuConExpandAll", expanded, collapse),
      Does("mnuConPopupExpandAll", expanded, collapse),
      Does("mnuConCollapseAll", collapsed),
      Does("mnuConPopupCollapseAll", collapsed),
      Does("mnuConPopupExpandFlags",
           [](RunningProgram& p) { EXPECT_TRUE(NodeOf(p, "C0").expanded); }),
      Does("mnuConPopupPrint", [](RunningProgram& p) { EXPECT_EQ(p.printers.shown, 1); }),
  };
}

std::vector<Wire> FlagWires() {
  const auto pickFlag = [](RunningProgram& p) {
    p.shell().ExpandTreeNodes(true, &NodeOf(p, "C0"));
    p.ClickNode("F2,0");
  };
  const auto removed = [](RunningProgram& p) {
    EXPECT_EQ(p.shell().tvCons().FindNode("F2,0"), nullptr);
    EXPECT_EQ(p.shell().GetConFile()->Conversations.At(0).flagRefs.Count(), 1U);
    EXPECT_EQ(StateOf(p), (State{.modified = true}));
  };
  const auto toggled = [](RunningProgram& p) {
    EXPECT_EQ(NodeOf(p, "F2,0").Text(), "Door = False");
    EXPECT_EQ(StateOf(p), State{});
  };
  const auto collapsed = [](RunningProgram& p) { EXPECT_FALSE(NodeOf(p, "C0").expanded); };
  Wire add = Shows("mnuFlagPopupAdd", "frmFlagList");
  add.before = pickFlag;
  Wire edit = Shows("mnuFlagPopupEdit", "frmProperties", AtTab(1));
  edit.before = pickFlag;
  return {
      add,
      Does("mnuFlagPopupRemove", removed, pickFlag),
      Does("mnuFlagPopupToggle", toggled, pickFlag),
      edit,
      Does("mnuFlagPopupCollapse", collapsed, pickFlag),
  };
}

std::vector<Wire> EventWires() {
  const auto copy = [](RunningProgram& p) { p.Choose("mnuEventsCopy"); };
  const auto yes = [](RunningProgram& p) { p.messages.Expect(Answer::Yes); };
  const auto deleted = [](RunningProgram& p) {
    EXPECT_EQ(StateOf(p), (State{.rows = 4, .modified = true}));
    EXPECT_EQ(LastQuestion(p), "Are you sure you wish to Delete this event?");
  };
  const auto edits = [](RunningProgram& p) {
    auto& editor = p.Find<frmEvent>("frmEvent");
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(ControlNamed<QtComboBox>(editor, "cboEvents").ListIndex(), kComment);
    EXPECT_EQ(ControlNamed<QPlainTextEdit>(editor, "txtComment").toPlainText(), "A comment");
    EXPECT_TRUE(ControlNamed<QWidget>(editor, "cmdAddEvent").isEnabled()) << "it is an edit";
  };
  std::vector<Wire> wires = {
      Does("mnuEventsEdit", edits),
      Does("mnuEventPopupEdit", edits),
      Does("mnuEventsDelete", deleted, yes),
      Does("mnuEventPopupDelete", deleted, yes),
  };
  for (const char* command : {"mnuEventsCut", "mnuEventPopupCut", "tlbCon/Cut"}) {
    wires.push_back(Leaves(command, {.rows = 4, .eventBuffered = true, .modified = true}));
  }
  for (const char* command : {"mnuEventsCopy", "mnuEventPopupCopy", "tlbCon/Copy"}) {
    wires.push_back(Leaves(command, {.eventBuffered = true}));
  }
  for (const char* command : {"mnuEventsPaste", "mnuEventPopupPaste", "tlbCon/Paste"}) {
    wires.push_back(Leaves(command, {.rows = 6, .eventBuffered = true, .modified = true}, copy));
  }
  return wires;
}

std::vector<Wire> OtherWires() {
  const auto firstRow = [](RunningProgram& p) { return p.Events().Rows().Row(0); };
  const auto shown = [](const char* bar, bool visible) {
    return
        [bar, visible](RunningProgram& p) { EXPECT_EQ(p.Find<QWidget>(bar).isVisible(), visible); };
  };
  return {
      Shows("mnuTableNPCs", "frmTableEdit", OnTable(0)),
      Shows("mnuTableFlags", "frmTableEdit", OnTable(2)),
      Shows("mnuTableSkills", "frmTableEdit", OnTable(1)),
      Shows("mnuTableObjects", "frmTableEdit", OnTable(3)),
      Does("mnuViewToolbar", shown("tlbCon", false), shown("tlbCon", true)),
      Does("mnuViewStatusBar", shown("barCon", false), shown("barCon", true)),
      Does(
          "mnuViewExpandList",
          [firstRow](RunningProgram& p) { EXPECT_EQ(firstRow(p).subText, ""); },
          [firstRow](RunningProgram& p) { EXPECT_EQ(firstRow(p).subText, "Hello"); }),
      Does(
          "mnuViewShowAudioFiles",
          [firstRow](RunningProgram& p) { EXPECT_EQ(firstRow(p).text, "Start;Speech;Zoe;"); },
          [firstRow](RunningProgram& p) {
            EXPECT_EQ(firstRow(p).text, "Start;Speech;Zoe;hello.mp3");
          }),
      Shows("mnuViewOptions", "frmSettings"),
      WithKey(Leaves("mnuHelpContents", {}), Qt::Key_F1),
      Leaves("mnuHelpSearch", {}),
      Shows("mnuHelpAbout", "frmAbout"),
  };
}

std::vector<Wire> Wires() {
  std::vector<Wire> all;
  for (const auto& some :
       {FileWires(), ConversationWires(), FlagWires(), EventWires(), OtherWires()}) {
    all.insert(all.end(), some.begin(), some.end());
  }
  return all;
}

std::vector<Wire> WiresWithShortcut() {
  std::vector<Wire> wires = Wires();
  std::erase_if(wires, [](const Wire& wire) { return wire.shortcut.key() == Qt::Key_unknown; });
  return wires;
}

std::string TestName(std::string command) {
  std::erase_if(command,
                [](char each) { return std::isalnum(static_cast<unsigned char>(each)) == 0; });
  return command;
}

class CommandTest : public WindowTest {
 protected:
  void SetUp() override {
    WriteBytes(folder.File("harbour.con"), HarbourFile());
    ASSERT_TRUE(program.Start(folder.File("harbour.con")));
    program.ClickNode("C0");
    program.ClickRow(1);
  }
  void Expect(const Wire& wire, const std::function<void()>& give) {
    if (wire.before) wire.before(program);
    bool came = false;
    if (wire.form != nullptr) {
      WhenFormShows(wire.form, [&](QWidget& form) {
        came = true;
        if (wire.look) wire.look(form);
        form.close();
      });
    }
    give();
    EXPECT_EQ(came, wire.form != nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    if (wire.after) wire.after(program);
  }

  RunningProgram program;
};

class Command : public CommandTest, public testing::WithParamInterface<Wire> {};

INSTANTIATE_TEST_SUITE_P(, Command, testing::ValuesIn(Wires()),
                         [](const auto& test) { return TestName(test.param.command); });

TEST_P(Command, DoesItsWork) {
  Expect(GetParam(), [this] { program.Choose(GetParam().command.c_str()); });
}

class Shortcut : public CommandTest, public testing::WithParamInterface<Wire> {};

INSTANTIATE_TEST_SUITE_P(, Shortcut, testing::ValuesIn(WiresWithShortcut()),
                         [](const auto& test) { return TestName(test.param.command); });

TEST_P(Shortcut, GivesItsCommand) {
  const QKeyCombination keys = GetParam().shortcut;
  Expect(GetParam(), [this, keys] { program.Press(keys.key(), keys.keyboardModifiers()); });
}

/// A menu of event types, and the row in which its events come to stand.
struct TypeMenu {
  const char* item;
  std::size_t row;
};

void PrintTo(const TypeMenu& menu, std::ostream* out) { *out << menu.item; }

class EventTypeMenu : public CommandTest, public testing::WithParamInterface<TypeMenu> {};

INSTANTIATE_TEST_SUITE_P(, EventTypeMenu,
                         testing::Values(TypeMenu{"mnuEventAdd", 5}, TypeMenu{"mnuEventInsert", 1},
                                         TypeMenu{"mnuEventPopupAddEvent", 5},
                                         TypeMenu{"mnuEventPopupInsertEvent", 1}),
                         [](const auto& test) { return std::string(test.param.item); });

TEST_P(EventTypeMenu, OpensTheEditorOnEachTypeAndPutsTheEventInItsPlace) {
  for (int type = 0; type < kEventTypeCount; ++type) {
    program.Choose((std::string(GetParam().item) + "(" + std::to_string(type) + ")").c_str());
    auto& editor = program.Find<frmEvent>("frmEvent");
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(ControlNamed<QtComboBox>(editor, "cboEvents").ListIndex(), type);
  }
  const auto added = std::make_shared<EventItem>();
  added->key = 77;
  added->eventType = kComment;
  added->CreateEventObject(kComment);
  program.shell().UpdateAddEvent(added, true);
  EXPECT_EQ(program.Events().Rows().Row(GetParam().row).itemData, 77);
}

void AddCommandsOf(const QWidget& menu, std::set<std::string>& commands) {
  for (const QAction* action : menu.actions()) {
    if (action->menu() != nullptr) {
      AddCommandsOf(*action->menu(), commands);
    } else if (!action->isSeparator()) {
      commands.insert(action->objectName().toStdString());
    }
  }
}

TEST_F(CommandTest, NoneIsWithoutATest) {
  std::set<std::string> there;
  AddCommandsOf(*program.Window().menuBar(), there);
  for (const QMenu* popup : program.Window().Popups()) AddCommandsOf(*popup, there);
  for (const char* button :
       {"New", "Open", "Save", "Print", "Cut", "Copy", "Paste", "Find", "Properties"}) {
    there.insert(std::string("tlbCon/") + button);
  }
  std::set<std::string> tested = {"mnuFileLast(1)", "mnuFileLast(2)", "mnuFileLast(3)"};
  for (const Wire& wire : Wires()) tested.insert(wire.command);
  for (const char* menu :
       {"mnuEventAdd", "mnuEventInsert", "mnuEventPopupAddEvent", "mnuEventPopupInsertEvent"}) {
    for (int type = 0; type < kEventTypeCount; ++type) {
      tested.insert(std::string(menu) + "(" + std::to_string(type) + ")");
    }
  }
  EXPECT_EQ(there, tested);
}

}  // namespace
}  // namespace parlate

// What the window shows of its state: captions, recent files, and which commands can be given.

#include <functional>
#include <map>
#include <set>

#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

std::map<std::string, bool> AsMap(const std::vector<CommandState>& states) {
  std::map<std::string, bool> map;
  for (const CommandState& state : states) map[std::string(state.control)] = state.enabled;
  return map;
}

std::set<std::string> EnabledUnder(const CommandPredicates& predicates) {
  std::set<std::string> enabled;
  for (const CommandState& state : DecideCommandStates(predicates)) {
    if (state.enabled) enabled.insert(std::string(state.control));
  }
  return enabled;
}

const std::set<std::string> kAlways = {"tlbCon/New", "tlbCon/Open"};
const std::set<std::string> kFile = {"mnuFileClose", "mnuFileProperties", "mnuCon",
                                     "mnuConAdd",    "mnuEvents",         "mnuTable"};
const std::set<std::string> kNodes = {"tlbCon/Print",      "tlbCon/Find",   "cboFind",
                                      "mnuFilePrint",      "mnuFileExport", "mnuFileGenerateAudio",
                                      "mnuConCheckLabels", "mnuConFind"};
const std::set<std::string> kWritableNodes = {"tlbCon/Save", "mnuFileSave", "mnuFileSaveAs",
                                              "mnuFileImport"};
const std::set<std::string> kCon = {"tlbCon/Properties", "mnuConDelete", "mnuConProperties",
                                    "mnuConCut",         "mnuConCopy",   "mnuEventsAdd"};
const std::set<std::string> kEvent = {"tlbCon/Cut",     "tlbCon/Copy",  "mnuEventsInsert",
                                      "mnuEventsEdit",  "mnuEventsCut", "mnuEventsCopy",
                                      "mnuEventsDelete"};
const std::set<std::string> kEventBuffer = {"tlbCon/Paste", "mnuEventsPaste"};
const std::set<std::string> kConBuffer = {"mnuConPaste"};

std::set<std::string> Union(const std::vector<std::set<std::string>>& sets) {
  std::set<std::string> all;
  for (const auto& set : sets) all.insert(set.begin(), set.end());
  return all;
}

TEST(CommandStates, FollowTheirRulesUnderEveryCombinationOfPredicates) {
  constexpr unsigned kCombinations = 1U << 7;
  for (unsigned bits = 0; bits < kCombinations; ++bits) {
    CommandPredicates p;
    p.fileOpen = (bits & 1U) != 0;
    p.hasNodes = (bits & 2U) != 0;
    p.readOnly = (bits & 4U) != 0;
    p.conSelected = (bits & 8U) != 0;
    p.eventSelected = (bits & 16U) != 0;
    p.eventBuffered = (bits & 32U) != 0;
    p.conBuffered = (bits & 64U) != 0;
    std::vector<std::set<std::string>> expected = {kAlways};
    if (p.fileOpen) expected.push_back(kFile);
    if (p.hasNodes) expected.push_back(kNodes);
    if (p.hasNodes && !p.readOnly) expected.push_back(kWritableNodes);
    if (p.conSelected) expected.push_back(kCon);
    if (p.eventSelected) expected.push_back(kEvent);
    if (p.eventBuffered) expected.push_back(kEventBuffer);
    if (p.conBuffered) expected.push_back(kConBuffer);
    EXPECT_EQ(EnabledUnder(p), Union(expected)) << "combination " << bits;
  }
}

TEST(CommandStates, NameEveryCommandOnceAndNoOther) {
  const auto all =
      Union({kAlways, kFile, kNodes, kWritableNodes, kCon, kEvent, kEventBuffer, kConBuffer});
  EXPECT_EQ(DecideCommandStates({}).size(), all.size());
}

using ShellCommands = ShellTest;

TEST_F(ShellCommands, AreDecidedByTheStateOfTheShell) {
  const auto now = [this] { return Window().Predicates(); };
  EXPECT_FALSE(now().fileOpen || now().hasNodes || now().readOnly || now().conSelected ||
               now().eventSelected || now().eventBuffered || now().conBuffered);
  OpenHarbour();
  EXPECT_TRUE(now().fileOpen && now().hasNodes);
  EXPECT_FALSE(now().readOnly || now().conSelected || now().eventSelected);
  Click("C0");
  EXPECT_TRUE(now().conSelected);
  EXPECT_FALSE(now().eventSelected);
  ClickRow(0);
  EXPECT_TRUE(now().eventSelected);
  EXPECT_FALSE(now().eventBuffered || now().conBuffered);
  Window().CopySelectedEvent();
  EXPECT_TRUE(now().eventBuffered);
  EXPECT_FALSE(now().conBuffered);
  Window().CopyConversation();
  EXPECT_TRUE(now().conBuffered);
}

TEST_F(ShellCommands, OfAFileWithoutConversationsAreThoseOfTheFileAlone) {
  Open(FileOf(HarbourTables(), {}));
  auto states = AsMap(DecideCommandStates(Window().Predicates()));
  EXPECT_FALSE(states.at("mnuFileSave") || states.at("tlbCon/Print") || states.at("tlbCon/Find"));
  EXPECT_TRUE(states.at("mnuFileClose") && states.at("mnuFileProperties"));
}

TEST_F(ShellCommands, OfAReadOnlyFileLackSavingAndNothingElse) {
  WriteBytes(Path("harbour.lck"), FileBytes(28).Str("other").Bytes());
  program_.messages.Expect(Answer::Yes);
  OpenHarbour();
  auto states = AsMap(DecideCommandStates(Window().Predicates()));
  EXPECT_FALSE(states.at("mnuFileSave") || states.at("mnuFileSaveAs") ||
               states.at("mnuFileImport") || states.at("tlbCon/Save"));
  EXPECT_TRUE(states.at("mnuConAdd") && states.at("mnuFileExport"));
}

TEST_F(ShellCommands, LoseTheConversationWhenAnActorIsClicked) {
  OpenHarbour();
  Click("C0");
  Click("A1");
  EXPECT_FALSE(AsMap(DecideCommandStates(Window().Predicates())).at("mnuEventsAdd"));
  EXPECT_FALSE(AsMap(Window().EventPopupStates()).at("mnuEventPopupAddEvents"));
}

TEST_F(ShellCommands, OfTheTreesPopupAreOffWithoutAConversationNode) {
  OpenHarbour();
  const auto expectOff = [this] {
    for (const auto& [control, enabled] : AsMap(Window().ConPopupStates())) {
      EXPECT_FALSE(enabled) << control;
    }
  };
  expectOff();
  Click("A1");
  expectOff();
}

TEST_F(ShellCommands, OfTheTreesPopupAreOnAtAConversationNode) {
  OpenHarbour();
  Click("C0");
  const auto states = AsMap(Window().ConPopupStates());
  EXPECT_EQ(states, (std::map<std::string, bool>{{"mnuConPopupPaste", false},
                                                 {"mnuConPopupDelete", true},
                                                 {"mnuConPopupProperties", true},
                                                 {"mnuConPopupPrint", true},
                                                 {"mnuConPopupExpandFlags", true},
                                                 {"mnuConPopupCut", true},
                                                 {"mnuConPopupCopy", true}}));
}

TEST_F(ShellCommands, OfTheTreesPopupExpandFlagsOnlyWhereThereAreSomeFolded) {
  OpenHarbour();
  TreeNode& node = Click("C0");
  Window().ExpandTreeNodes(true, &node);
  EXPECT_FALSE(AsMap(Window().ConPopupStates()).at("mnuConPopupExpandFlags")) << "they are open";
  Window().ExpandTreeNodes(false, &node);
  EXPECT_TRUE(AsMap(Window().ConPopupStates()).at("mnuConPopupExpandFlags"));
  Click("C1");
  EXPECT_FALSE(AsMap(Window().ConPopupStates()).at("mnuConPopupExpandFlags")) << "it has none";
}

TEST_F(ShellCommands, OfTheTreesPopupPasteAConversationWhateverIsSelected) {
  OpenHarbour();
  Click("C0");
  Window().CopyConversation();
  Click("A1");
  EXPECT_TRUE(AsMap(Window().ConPopupStates()).at("mnuConPopupPaste"));
}

TEST_F(ShellCommands, OfTheListsPopupFollowConversationRowAndClipboard) {
  OpenHarbour();
  using States = std::map<std::string, bool>;
  const auto states = [this] { return AsMap(Window().EventPopupStates()); };
  const auto expected = [](bool con, bool event, bool buffered) {
    return States{{"mnuEventPopupAddEvents", con}, {"mnuEventPopupInsertEvents", event},
                  {"mnuEventPopupEdit", event},    {"mnuEventPopupDelete", event},
                  {"mnuEventPopupCut", event},     {"mnuEventPopupCopy", event},
                  {"mnuEventPopupPaste", buffered}};
  };
  EXPECT_EQ(states(), expected(false, false, false));
  Click("C0");
  EXPECT_EQ(states(), expected(true, false, false));
  ClickRow(1);
  EXPECT_EQ(states(), expected(true, true, false));
  Window().CopySelectedEvent();
  Click("A0");
  EXPECT_EQ(states(), expected(false, false, true));
}

TEST_F(ShellCommands, AreUpdatedByTheOperationsThatChangeThem) {
  OpenHarbour();
  const auto updates = [this](const std::function<void()>& operation) {
    const int before = program_.view.commandStateUpdates;
    operation();
    return program_.view.commandStateUpdates > before;
  };
  Click("C0");
  EXPECT_TRUE(updates([this] { Window().SelectConversation(); }));
  ClickRow(1);
  EXPECT_TRUE(updates([this] { Window().UpdateEditEvent(*Window().GetSelectedEvent()); }));
  EXPECT_TRUE(updates([this] { Window().CopySelectedEvent(); }));
  EXPECT_TRUE(updates([this] { Window().PasteEvent(); }));
  EXPECT_TRUE(updates([this] { Window().CutSelectedEvent(); }));
  Window().lstEvents().SetListIndex(1);
  EXPECT_TRUE(updates([this] { Window().DeleteSelectedEvent(true); }));
  const auto comment = std::make_shared<EventItem>();
  comment->SetEventObject(kComment, EventComment{});
  comment->key = Window().SelectedCon()->NextEventKey();
  EXPECT_TRUE(updates([&] { Window().UpdateAddEvent(comment, false); }));
  EXPECT_FALSE(updates([this] { Window().CopyConversation(); })) << "the one that does not";
  EXPECT_TRUE(updates([this] { Window().PasteConversation(); }));
  EXPECT_TRUE(updates([this] { Window().DeleteConversation(true); }));
  EXPECT_TRUE(updates([this] { Window().SaveConFile(false); }));
  EXPECT_TRUE(updates([this] { Window().OpenConFile(Path("harbour.con")); }));
  EXPECT_TRUE(updates([this] { Window().CloseConFile(); }));
}

TEST_F(ShellCommands, CaptionNamesTheProgramAndTheFile) {
  EXPECT_EQ(Window().Caption(), "Parlate");
  OpenHarbour();
  EXPECT_EQ(Window().Caption(), "Parlate - " + Path("harbour.con"));
  Window().SetModified(true, nullptr);
  EXPECT_EQ(Window().Caption(), "Parlate - " + Path("harbour.con")) << "no sign of a change";
  Window().conFileName.clear();
  EXPECT_EQ(Window().Caption(), "Parlate - (New File)");
}

TEST_F(ShellCommands, StatusTextSpeaksOnlyWithNoFileOpen) {
  EXPECT_EQ(Window().StatusText(), "No Conversation Loaded");
  OpenHarbour();
  EXPECT_EQ(Window().StatusText(), "");
}

TEST_F(ShellCommands, RecentFilesAreNumberedFromOne) {
  Defaults().SetLastFiles(0, "/a b/one.con");
  Defaults().SetLastFiles(3, "/four.con");
  EXPECT_EQ(Shell::LastFileCaption(0), "&1  /a b/one.con");
  EXPECT_EQ(Shell::LastFileCaption(1), "");
  EXPECT_EQ(Shell::LastFileCaption(3), "&4  /four.con");
  EXPECT_EQ(Shell::LastFileCaption(4), "");
}

TEST_F(ShellCommands, RecentFileOpensByItsCaption) {
  OpenHarbour();
  Window().CloseConFile();
  Window().OpenLastFile(Shell::LastFileCaption(0));
  EXPECT_EQ(Window().conFileName, Path("harbour.con"));
}

TEST_F(ShellCommands, CheckLabelsSaysThatAllIsWell) {
  OpenHarbour();
  program_.messages.Expect(Answer::Ok);
  Window().CheckLabelsCommand();
  EXPECT_THAT(LastBox(), IsBox("No Errors", "All Label References are Valid.",
                               MessageBox::Icon::None, MessageBox::Buttons::Ok));
}

TEST_F(ShellCommands, CheckLabelsOfAnEmptyTreeIsTrueWithNothingShown) {
  EXPECT_TRUE(Window().ShowMissingLabels(true, true));
  Open(FileOf(HarbourTables(), {}));
  EXPECT_TRUE(Window().ShowMissingLabels(false, true));
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellCommands, CheckLabelsListsWhatIsBrokenInTheOrderOfTheTree) {
  Open(FileOf(HarbourTables(), {Con(0, "Zulu", kZoe, {Jump(1, "", "A", 0), Jump(2, "", "A", 0)}),
                                Con(1, "Alpha", kZoe, {Jump(1, "", "B", 1)})}));
  Click("C0");  // colouring reports too, which the check must not count
  for (const bool goOn : {false, true}) {
    program_.view.ExpectMissingLabels(goOn);
    Window().CheckLabelsCommand();
    const auto& report = program_.view.labelReports.back();
    EXPECT_THAT(report.rows, ElementsAre("Alpha:B", "Zulu:A", "Zulu:A"));
    EXPECT_FALSE(report.saving);
  }
  EXPECT_EQ(BoxCount(), 0U) << "the report never counts as leave to go on";
}

}  // namespace
}  // namespace parlate

// The tree as the user works in it: clicks, folding, flags, and the names of table rows.

#include "model/Tables.h"
#include "support/FakeControls.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class ShellTree : public ShellTest {
 protected:
  ShellTree() { OpenHarbour(); }
  TreeNode& Node(const std::string& key) { return *Window().tvCons().FindNode(key); }
  [[nodiscard]] bool IsModified() { return Window().GetConFile()->IsModified(); }
  std::shared_ptr<Conversation> AddNew(const std::string& name, std::int32_t owner, bool select) {
    auto con = std::make_shared<Conversation>();
    con->key = Window().GetConFile()->NextKey();
    con->conName = name;
    con->NPCID = owner;
    Window().GetConFile()->Conversations.Add(con->key, con);
    Window().TreeViewAddConversation(con, select);
    return con;
  }
};

TEST_F(ShellTree, NodesBearTheKeysAndPicturesOfTheirKind) {
  EXPECT_EQ(Node("A1").Key(), "A1");
  EXPECT_EQ(Node("A1").Image(), "Actor");
  EXPECT_EQ(Node("C0").Key(), "C0");
  EXPECT_EQ(Node("C0").Image(), "Con");
  EXPECT_EQ(Node("F2,0").Key(), "F2,0");
  EXPECT_EQ(Node("F2,0").Image(), "FlagTrue");
  EXPECT_EQ(Node("F3,0").Image(), "FlagFalse");
}

TEST_F(ShellTree, ClickOnAConversationListsItsEvents) {
  Click("C0");
  EXPECT_EQ(Window().SelectedCon().get(), &ConOf(0));
  EXPECT_THAT(RowKeys(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(ShellTree, SecondClickOnAConversationRebuildsItsList) {
  Click("C0");
  ConOf(0).EventRemove(5);
  Click("C0");
  EXPECT_THAT(RowKeys(), ElementsAre(1, 2, 3, 4));
}

TEST_F(ShellTree, ClickOnAFlagListsTheEventsOfItsConversation) {
  Click("F3,0");
  EXPECT_EQ(Window().SelectedCon().get(), &ConOf(0));
  EXPECT_EQ(RowKeys().size(), 5U);
}

TEST_F(ShellTree, ClickOnAnActorEmptiesTheList) {
  Click("C0");
  Click("A1");
  EXPECT_EQ(Window().SelectedCon(), nullptr);
  EXPECT_THAT(RowKeys(), IsEmpty());
}

TEST_F(ShellTree, ClickForgetsTheRowClickedLast) {
  for (const char* key : {"C0", "F2,0", "A1"}) {
    Window().lastClickedRow = 2;
    Click(key);
    EXPECT_EQ(Window().lastClickedRow, -1) << key;
  }
}

TEST_F(ShellTree, SelectingByKeyGoesToTheConversationAndIgnoresAnUnknownOne) {
  Window().SelectConversationByKey("2");
  EXPECT_EQ(Window().tvCons().SelectedItem(), &Node("C2"));
  EXPECT_EQ(Window().SelectedCon().get(), &ConOf(2));
  Click("C1");
  for (const char* unknown : {"77", "", "x", "2,0", "02", "+2", " 2", "2 "}) {
    Window().SelectConversationByKey(unknown);
    EXPECT_EQ(Window().tvCons().SelectedItem(), &Node("C1")) << unknown;
    EXPECT_EQ(Window().SelectedCon().get(), &ConOf(1)) << unknown;
  }
}

TEST_F(ShellTree, NodesAreFoundByTheKeyThatTheyBearAndByNoOther) {
  for (const char* key : {"A1", "C2", "F2,0"}) EXPECT_EQ(Node(key).Key(), key);
  for (const char* other : {"C2,0", "C02", "C-0", "A1,5", "A01", "F2", "F02,0", "F2,00", "F2,0,0",
                            "F2,1", "c2", "C", "2", ""}) {
    EXPECT_EQ(Window().tvCons().FindNode(other), nullptr) << other;
  }
}

TEST_F(ShellTree, FindsConversationsByKeyByNodeAndByName) {
  EXPECT_EQ(Window().GetConFromID(1).get(), &ConOf(1));
  EXPECT_EQ(Window().GetConFromID(-1), nullptr);
  EXPECT_EQ(Window().GetConFromID(9), nullptr);
  EXPECT_EQ(Window().GetCon("C1").get(), &ConOf(1));
  for (const char* other : {"A1", "F1,0", "C9", "C", ""}) {
    EXPECT_EQ(Window().GetCon(other), nullptr) << other;
  }
  EXPECT_EQ(Window().GetConIDFromName(1, "GREETING"), 0);
  EXPECT_EQ(Window().GetConIDFromName(0, "greeting"), -1) << "names are unique per owner only";
  EXPECT_EQ(Window().GetConIDFromName(1, "nobody"), -1);
}

TEST_F(ShellTree, AddedConversationStandsByNameUnderItsOwner) {
  AddNew("Between", 1, false);
  EXPECT_EQ(Window().SelectedCon(), nullptr);
  AddNew("zz", 0, true);
  EXPECT_THAT(TreeLines(),
              ElementsAre("Zoe", "  Arrival", "  Between", "  greeting", "    Door = True",
                          "    Lamp = False", "Alex", "  Leaving", "  zz"));
  EXPECT_EQ(Window().SelectedCon()->conName, "zz");
  EXPECT_EQ(Window().tvCons().SelectedItem()->text, "zz");
}

TEST_F(ShellTree, AddedConversationBringsItsActorAsTheLastOne) {
  AddFixedTableItem(kActorTable, "Anna", 5);
  AddNew("Alone", 5, true);
  EXPECT_EQ(TreeLines().at(7), "Anna") << "actors stand in the order of their first conversation";
  EXPECT_EQ(TreeLines().at(8), "  Alone");
}

TEST_F(ShellTree, ConversationOfAnActorWithNoRowIsRefused) {
  auto con = std::make_shared<Conversation>();
  con->NPCID = 77;
  try {
    Window().TreeViewAddConversation(con, true);
    FAIL() << "no row 77";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), RuntimeError::kInvalidProcedureCall);
  }
  EXPECT_EQ(TreeLines().size(), 7U);
}

TEST_F(ShellTree, ActorsAreRenamedAndFromThenOnStandByName) {
  GetTable(kActorTable)->At(1).Name = "yves";
  Window().TreeViewUpdateActors();
  EXPECT_THAT(TreeLines(), ElementsAre("Alex", "  Leaving", "yves", "  Arrival", "  greeting",
                                       "    Door = True", "    Lamp = False"));
  AddFixedTableItem(kActorTable, "Bob", 5);
  AddNew("Alone", 5, false);
  EXPECT_EQ(TreeLines().at(2), "Bob");
}

TEST_F(ShellTree, ActorsRenamedShowInTheRowsAtOnce) {
  Click("C0");
  GetTable(kActorTable)->At(1).Name = "Yves";
  Window().TreeViewUpdateActors();
  EXPECT_EQ(RowTexts().at(0).substr(0, 18), "Start;Speech;Yves;");
  EXPECT_EQ(Window().tvCons().SelectedItem(), &Node("C0"));
}

TEST_F(ShellTree, SortOfTheActorsOutlivesTheFile) {
  Window().TreeViewUpdateActors();
  Window().OpenConFile(Path("harbour.con"));
  EXPECT_EQ(TreeLines().at(0), "Alex");
}

TEST_F(ShellTree, UpdatingTheActorsOfNoFileDoesNothing) {
  Window().CloseConFile();
  Window().TreeViewUpdateActors();
  EXPECT_TRUE(Window().tvCons().Empty());
  Window().OpenConFile(Path("harbour.con"));
  EXPECT_EQ(TreeLines().at(0), "Zoe") << "the sort was not switched on";
}

TEST_F(ShellTree, FlagsTakeTheNewNamesOfTheirRows) {
  GetTable(kFlagTable)->At(2).Name = "Gate";
  Window().TreeViewUpdateFlagNames();
  EXPECT_EQ(Node("F2,0").Text(), "Gate = True");
  EXPECT_EQ(Node("F3,0").Text(), "Lamp = False");
}

TEST_F(ShellTree, ExpandAllOpensTheFlagsOnlyWithTheSetting) {
  Window().ExpandTreeNodes(false, nullptr);
  EXPECT_FALSE(Node("A1").expanded);
  Window().ExpandTreeNodes(true, nullptr);
  EXPECT_TRUE(Node("A1").expanded && Node("A0").expanded);
  EXPECT_FALSE(Node("C0").expanded);
  Defaults().bExpandFlags = true;
  Window().ExpandTreeNodes(true, nullptr);
  EXPECT_TRUE(Node("C0").expanded);
  EXPECT_FALSE(Node("F2,0").expanded);
}

TEST_F(ShellTree, ExpandAllWithoutTheSettingFoldsNothing) {
  Window().ExpandTreeNodes(true, &Node("C0"));
  Window().ExpandTreeNodes(true, nullptr);
  EXPECT_TRUE(Node("C0").expanded);
}

TEST_F(ShellTree, CollapseAllFoldsEverythingWhateverTheSetting) {
  for (const char* key : {"A1", "C0"}) Window().ExpandTreeNodes(true, &Node(key));
  Window().ExpandTreeNodes(false, nullptr);
  Window().tvCons().Walk([](TreeNode& node) { EXPECT_FALSE(node.expanded) << node.Text(); });
}

TEST_F(ShellTree, ExpandingOneNodeTouchesNoOther) {
  Window().ExpandTreeNodes(false, nullptr);
  program_.view.treeShown.clear();
  Window().ExpandTreeNodes(true, &Node("C0"));
  Window().tvCons().Walk(
      [](TreeNode& node) { EXPECT_EQ(node.expanded, node.Key() == "C0") << node.Text(); });
  EXPECT_THAT(program_.view.treeShown, IsEmpty());
}

TEST_F(ShellTree, ExpandAllHidesTheTreeForTheWalkAndTakesTheSelectionOfANode) {
  Window().tvCons().SetSelectedItem(&Node("C2"));
  program_.view.treeShown.clear();
  Window().ExpandTreeNodes(true, nullptr);
  EXPECT_THAT(program_.view.treeShown, ElementsAre(false, true));
  EXPECT_EQ(Window().SelectedCon().get(), &ConOf(2));
  Window().tvCons().SetSelectedItem(&Node("F2,0"));
  Window().ExpandTreeNodes(true, nullptr);
  EXPECT_EQ(Window().SelectedCon(), nullptr) << "a flag's node is no conversation's";
}

TEST_F(ShellTree, FlagsAlikeShareOneTextHoweverManyConversationsReferToThem) {
  const std::vector<testing_support::FlagFields> flags = {{2, "", true, 0}, {3, "", true, 0}};
  Open(FileOf(HarbourTables(), {Con(0, "a", kZoe, {}, flags), Con(1, "b", kZoe, {}, flags)}));
  EXPECT_EQ(&Node("F2,0").Text(), &Node("F2,1").Text());
  EXPECT_NE(&Node("F2,0").Text(), &Node("F3,0").Text());
  GetTable(kFlagTable)->At(2).Name = "Hatch";
  Window().TreeViewUpdateFlagNames();
  EXPECT_EQ(Node("F2,1").Text(), "Hatch = True");
  EXPECT_EQ(&Node("F2,0").Text(), &Node("F2,1").Text());
}

TEST_F(ShellTree, TogglingByTheCommandLeavesTheFileUnmarked) {
  Click("F2,0");
  Window().ToggleSelectedFlag(false);
  EXPECT_EQ(Node("F2,0").Text(), "Door = False");
  EXPECT_EQ(Node("F2,0").Image(), "FlagFalse");
  EXPECT_FALSE(ConOf(0).flagRefs.At(2).bValue);
  EXPECT_FALSE(IsModified());
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellTree, DoubleClickOnAFlagTogglesItAndMarksTheFile) {
  program_.moment = 45100;
  Window().NodeDoubleClick(Click("F3,0"));
  EXPECT_EQ(Node("F3,0").Text(), "Lamp = True");
  EXPECT_EQ(Node("F3,0").Image(), "FlagTrue");
  EXPECT_TRUE(IsModified());
  EXPECT_EQ(ConOf(0).LastUpdated, 45100);
  EXPECT_EQ(ConOf(0).LastUpdatedBy, kSavedBy);
}

TEST_F(ShellTree, DoubleClickOnAnotherNodeDoesNothing) {
  Window().NodeDoubleClick(Click("C0"));
  Window().NodeDoubleClick(Click("A1"));
  EXPECT_FALSE(IsModified());
  EXPECT_EQ(TreeLines().size(), 7U);
}

TEST_F(ShellTree, RemovingAFlagAsksNothingAndMarksTheFile) {
  Click("F2,0");
  Window().RemoveSelectedFlag();
  EXPECT_THAT(TreeLines(), ElementsAre("Zoe", "  Arrival", "  greeting", "    Lamp = False", "Alex",
                                       "  Leaving"));
  EXPECT_EQ(ConOf(0).flagRefs.Count(), 1U);
  EXPECT_TRUE(IsModified());
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellTree, FlagCommandsWithoutAFlagSelectedDoNothing) {
  Click("C0");
  Window().RemoveSelectedFlag();
  Window().ToggleSelectedFlag(true);
  EXPECT_FALSE(IsModified());
  EXPECT_EQ(ConOf(0).flagRefs.Count(), 2U);
}

TEST_F(ShellTree, FlagsOfAConversationAreRebuiltInTheirOrder) {
  auto flag = std::make_shared<FlagRef>();
  flag->flagID = 2;
  ConOf(0).flagRefs.Remove(2);
  ConOf(0).flagRefs.Add(2, flag);
  Window().TreeViewUpdateConFlags(ConOf(0));
  EXPECT_EQ(TreeLines().at(3), "    Lamp = False");
  EXPECT_EQ(TreeLines().at(4), "    Door = False");
}

TEST_F(ShellTree, ComboOfConversationsStandsInTheOrderOfTheFile) {
  FakeComboBox combo;
  combo.AddItem("old");
  Window().PopulateConvCombo(combo);
  EXPECT_EQ(combo.entries, (std::vector<FakeRow>{{"greeting", 0}, {"Arrival", 1}, {"Leaving", 2}}));
}

TEST_F(ShellTree, QuestionsAboutNamesAndRowsGoToTheOpenFile) {
  EXPECT_TRUE(Window().IsConNameInUse("Arrival"));
  EXPECT_FALSE(Window().IsConNameInUse("ARRIVAL"));
  EXPECT_TRUE(Window().IsTableItemReferenced(2, kFlagTable));
  EXPECT_FALSE(Window().IsTableItemReferenced(1, kSkillTable));
  Window().CloseConFile();
  EXPECT_FALSE(Window().IsConNameInUse("Arrival"));
  EXPECT_FALSE(Window().IsTableItemReferenced(2, kFlagTable));
}

}  // namespace
}  // namespace parlate

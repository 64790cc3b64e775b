// The name and the owner in the conversation's properties.

#include <QClipboard>

#include "editors/PropertiesFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

using FrmPropertiesName = PropertiesTest;

constexpr const char* kBadCharacters =
    "Conversation names can only consist of letters, digits, underscore (_) and dash (-).";
constexpr const char* kNameInUse = "Conversation Name already in use, please choose another name.";

TEST_F(FrmPropertiesName, OkWantsANameAndAnOwner) {
  EXPECT_TRUE(IsEnabled("cmdOK"));
  Name().clear();
  EXPECT_FALSE(IsEnabled("cmdOK"));
  Type(Name(), "a");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  Owner().SetListIndex(-1);
  EXPECT_FALSE(IsEnabled("cmdOK"));
  Owner().SetListIndex(0);
  EXPECT_TRUE(IsEnabled("cmdOK"));
  Type(Owner(), "Nobody");
  EXPECT_FALSE(IsEnabled("cmdOK"));
  Type(Owner(), "Alex");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  EXPECT_EQ(Form().NPCID(), 0);
}

TEST_F(FrmPropertiesName, ANewConversationHasNoOwnerAndCannotBeConfirmed) {
  con_->NPCID = -1;
  con_->conName = "";
  EXPECT_EQ(Form().NPCID(), -1);
  EXPECT_EQ(Owner().Text(), "");
  EXPECT_FALSE(IsEnabled("cmdOK"));
}

TEST_F(FrmPropertiesName, TypingInTheNameDropsWhatNoNameHas) {
  Type(Name(), QStringLiteral(u"A b?c-1_.\u00E4;Z"));
  EXPECT_EQ(Name().text(), "Abc-1_Z");
  QTest::keyClick(&Name(), Qt::Key_Backspace);
  EXPECT_EQ(Name().text(), "Abc-1_");
}

TEST_F(FrmPropertiesName, APastedBlankInTheNameIsRefusedAtOk) {
  QApplication::clipboard()->setText("two words");
  Name().setFocus();
  Name().selectAll();
  QTest::keyClick(&Name(), Qt::Key_V, Qt::ControlModifier);
  ASSERT_EQ(Name().text(), "two words");
  GoTo(kInfo);
  ExpectRefused(kBadCharacters);
  EXPECT_EQ(The<QTabWidget>("tabProperties").currentIndex(), 0);
}

TEST_F(FrmPropertiesName, ANameThatAnotherConversationHasIsRefused) {
  Type(Name(), "other");
  ExpectRefused(kNameInUse);
}

TEST_F(FrmPropertiesName, TheConversationsOwnNamePasses) {
  Click("cmdOK");
  EXPECT_EQ(Form().modalResult, 0);
  EXPECT_EQ(con_->conName, "greeting");
}

TEST_F(FrmPropertiesName, ANameThatDiffersInCaseAlonePasses) {
  Type(Name(), "Other");
  Click("cmdOK");
  EXPECT_EQ(Form().modalResult, 0);
  EXPECT_EQ(con_->conName, "Other");
}

TEST_F(FrmPropertiesName, ATypedOwnerIsAskedAboutWhenTheComboIsLeftAndBecomesARow) {
  Type(Owner(), "Nobody");
  space_.messages.Expect(Answer::Yes);
  QTest::keyClick(&Owner(), Qt::Key_Tab);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !space_.messages.shown.empty(); }));
  const MessageBox& box = space_.messages.shown.back();
  EXPECT_EQ(box.title, "Add Item?");
  EXPECT_EQ(box.text, "This entry does not exist in the table, would you like to add it?");
  EXPECT_TRUE(IsEnabled("cmdOK"));
  Click("cmdOK");
  EXPECT_EQ(con_->NPCID, 2);
  EXPECT_EQ(GetTableItemName(kActorTable, 2), "Nobody");
}

TEST_F(FrmPropertiesName, ATypedOwnerThatIsNotWantedStandsSelectedInTheCombo) {
  Type(Owner(), "Nobody");
  space_.messages.Expect(Answer::No);
  QTest::keyClick(&Owner(), Qt::Key_Tab);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !space_.messages.shown.empty(); }));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Owner().hasFocus(); }));
  EXPECT_EQ(Owner().lineEdit()->selectedText(), "Nobody");
  EXPECT_FALSE(IsEnabled("cmdOK"));
  EXPECT_EQ(GetTable(kActorTable)->Count(), 2U);
}

TEST_F(FrmPropertiesName, TheTableButtonEditsTheActorsAndSelectsTheOneChosenThere) {
  tables_.chosen = 0;
  Click("cmdEditNPCTable");
  EXPECT_THAT(tables_.opened, ElementsAre(kActorTable));
  EXPECT_EQ(Form().NPCID(), 0);
  tables_.user = [this] {
    space_.AddRows(kActorTable, {{7, "New"}});
    return 7;
  };
  Click("cmdEditNPCTable");
  EXPECT_EQ(Owner().Text(), "New");
  EXPECT_TRUE(IsEnabled("cmdOK"));
}

}  // namespace
}  // namespace parlate

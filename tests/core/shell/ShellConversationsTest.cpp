// Renaming a conversation in the tree, and deleting one.

#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

constexpr const char* kBadCharacters =
    "Conversation names can only consist of letters, digits, underscore (_) and dash (-).";
constexpr const char* kNameInUse = "Conversation Name already in use, please choose another name.";
constexpr const char* kBlank = "Conversation Names Cannot Be Blank!";

class ShellRename : public ShellTest {
 protected:
  ShellRename() {
    OpenHarbour();
    Click("C0");
  }
  bool Rename(const std::string& newName) {
    return Window().RenameConversation(*Window().tvCons().FindNode("C0"), newName);
  }
  void ExpectRefused(const std::string& newName, const std::string& text) {
    const std::size_t boxes = BoxCount();
    program_.messages.Expect(Answer::Ok);
    EXPECT_FALSE(Rename(newName));
    EXPECT_EQ(BoxCount(), boxes + 1) << "one reason is given, the first";
    EXPECT_THAT(LastBox(), SaysPlainly(text));
    EXPECT_EQ(ConOf(0).conName, "greeting");
    EXPECT_EQ(Window().tvCons().FindNode("C0")->text, "greeting");
    EXPECT_FALSE(Window().GetConFile()->IsModified());
  }
};

TEST_F(ShellRename, IsForConversationsAlone) {
  const ConversationTree& tree = Window().tvCons();
  EXPECT_TRUE(Window().CanRename(*tree.FindNode("C0")));
  EXPECT_FALSE(Window().CanRename(*tree.FindNode("A1")));
  EXPECT_FALSE(Window().CanRename(*tree.FindNode("F2,0")));
}

TEST_F(ShellRename, TakesTheNameMarksTheFileAndSorts) {
  program_.moment = 45100;
  EXPECT_TRUE(Rename("Aaa_1-2"));
  EXPECT_EQ(ConOf(0).conName, "Aaa_1-2");
  EXPECT_EQ(ConOf(0).LastUpdated, 45100);
  EXPECT_TRUE(Window().GetConFile()->IsModified());
  EXPECT_EQ(TreeLines().at(1), "  Aaa_1-2");
  EXPECT_EQ(TreeLines().at(2), "    Door = True") << "the flags move along";
  EXPECT_EQ(TreeLines().at(4), "  Arrival");
  EXPECT_EQ(Window().tvCons().SelectedItem()->id, 0);
}

TEST_F(ShellRename, TakesTheSameNameInOtherCase) {
  EXPECT_TRUE(Rename("GREETING"));
  EXPECT_EQ(ConOf(0).conName, "GREETING");
}

TEST_F(ShellRename, RefusesEveryOtherCharacter) {
  for (const char* name : {"two words", "a;b", "a.b", "caf\xE9", "a/b"}) {
    ExpectRefused(name, kBadCharacters);
  }
}

TEST_F(ShellRename, LetsABackspaceThrough) { EXPECT_TRUE(Rename("a\bb")); }

TEST_F(ShellRename, RefusesANameInUseByAnyOwnerInAnyCase) {
  ExpectRefused("Arrival", kNameInUse);
  ExpectRefused("ARRIVAL", kNameInUse);
  ExpectRefused("leaving", kNameInUse);
}

TEST_F(ShellRename, RefusesABlankName) { ExpectRefused("", kBlank); }

TEST_F(ShellRename, TestsTheCharactersAheadOfTheUse) {
  ConOf(1).conName = "two words";
  ExpectRefused("two words", kBadCharacters);
}

TEST_F(ShellRename, TestsTheUseAheadOfTheBlankName) {
  ConOf(1).conName.clear();
  ExpectRefused("", kNameInUse);
}

TEST_F(ShellRename, DoesNothingWithNoConversationSelected) {
  Click("A1");
  EXPECT_FALSE(Rename("Other"));
  EXPECT_EQ(ConOf(0).conName, "greeting");
  EXPECT_EQ(BoxCount(), 0U);
}

class ShellDelete : public ShellTest {
 protected:
  ShellDelete() { OpenHarbour(); }
};

TEST_F(ShellDelete, OfAConversationAsks) {
  Click("C0");
  program_.messages.Expect(Answer::No);
  Window().DeleteConversation(false);
  EXPECT_THAT(LastBox(), IsBox("Delete?", "Are you sure you wish to Delete this Conversation?",
                               MessageBox::Icon::Question, MessageBox::Buttons::YesNo));
  EXPECT_EQ(Window().GetConFile()->Conversations.Count(), 3U);
  EXPECT_NE(Window().SelectedCon(), nullptr);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellDelete, OfAConversationTakesItOutOfFileTreeAndListOnYes) {
  Click("C0");
  program_.messages.Expect(Answer::Yes);
  Window().DeleteConversation(false);
  EXPECT_THAT(TreeLines(), ElementsAre("Zoe", "  Arrival", "Alex", "  Leaving"));
  EXPECT_EQ(Window().GetConFile()->Conversations.Find(0), nullptr);
  EXPECT_EQ(Window().SelectedCon(), nullptr);
  EXPECT_THAT(RowKeys(), IsEmpty());
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellDelete, OfAConversationAsksNothingWithoutTheSetting) {
  Defaults().bConfirmationConDelete = false;
  Click("C1");
  Window().DeleteConversation(false);
  EXPECT_EQ(Window().GetConFile()->Conversations.Find(1), nullptr);
}

TEST_F(ShellDelete, OfAConversationWithoutConfirmationAsksNothing) {
  Click("C1");
  Window().DeleteConversation(true);
  EXPECT_EQ(Window().GetConFile()->Conversations.Find(1), nullptr);
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellDelete, OfTheLastConversationOfAnActorRemovesTheActor) {
  Click("C2");
  Window().DeleteConversation(true);
  EXPECT_EQ(Window().tvCons().FindActor(0), nullptr);
  EXPECT_EQ(TreeLines().size(), 5U);
}

TEST_F(ShellDelete, OfAConversationLetsTheJumpsToItPointNowhere) {
  Click("C0");
  Window().DeleteConversation(true);
  EXPECT_EQ(ConOf(2).events.Place(1)->As<EventJump>()->conID, -1);
}

TEST_F(ShellDelete, WithNoConversationSelectedDoesNothing) {
  Click("A1");
  Window().DeleteConversation(false);
  EXPECT_EQ(Window().GetConFile()->Conversations.Count(), 3U);
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellDelete, OfTheConversationOfASelectedFlagTakesTheConversation) {
  Click("F2,0");
  Window().DeleteConversation(true);
  EXPECT_EQ(Window().tvCons().FindConversation(0), nullptr);
  EXPECT_EQ(Window().tvCons().SelectedItem(), nullptr);
}

}  // namespace
}  // namespace parlate

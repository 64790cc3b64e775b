// New files and conversations, and the properties of those that are there.

#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

class ShellNew : public ShellTest {
 protected:
  /// What OK does in the properties of the file.
  void AnswerFilePropertiesWithOk() {
    program_.view.answerFileProperties = [this] { Window().SetModified(true, nullptr); };
  }
};

TEST_F(ShellNew, ANewFileIsKeptWhenItsPropertiesAreConfirmed) {
  AnswerFilePropertiesWithOk();
  EXPECT_TRUE(Window().NewConFile());
  ASSERT_NE(Window().GetConFile(), nullptr);
  EXPECT_EQ(program_.view.filePropertiesShown, 1);
  EXPECT_TRUE(Window().GetConFile()->IsModified());
  EXPECT_EQ(Window().conFileName, "");
  EXPECT_EQ(Window().Caption(), "Parlate - (New File)");
  EXPECT_EQ(Window().GetVersionNum(), 28);
  EXPECT_EQ(Window().GetConFile()->CreatedBy, kSavedBy);
  EXPECT_EQ(Window().GetConFile()->LastUpdated, kSavedAt);
  EXPECT_TRUE(Window().tvCons().Empty());
}

TEST_F(ShellNew, ANewFileIsUndoneWhenItsPropertiesAreCancelled) {
  EXPECT_FALSE(Window().NewConFile());
  EXPECT_EQ(program_.view.filePropertiesShown, 1);
  EXPECT_EQ(Window().GetConFile(), nullptr);
  EXPECT_EQ(Window().Caption(), "Parlate");
  EXPECT_EQ(GetTable(kMissionTable)->Count(), 0U);
  EXPECT_EQ(BoxCount(), 0U) << "there is nothing to save";
}

TEST_F(ShellNew, AnUnsavedFileIsAskedAboutFirstAndKeptOnCancel) {
  OpenHarbour();
  Window().SetModified(true, nullptr);
  program_.messages.Expect(Answer::Cancel);
  EXPECT_FALSE(Window().NewConFile());
  EXPECT_EQ(LastBox().title, "Save Changes?");
  EXPECT_EQ(program_.view.filePropertiesShown, 0);
  EXPECT_EQ(Window().conFileName, Path("harbour.con"));
  EXPECT_EQ(Window().tvCons().NodeCount(), 7U);
}

TEST_F(ShellNew, APropertiesDialogOfANewFileFindsItEmptyWithItsMissionsToChoose) {
  OpenHarbour();
  Click("C0");
  program_.view.answerFileProperties = [this] {
    EXPECT_FALSE(Window().GetConFile()->IsModified());
    EXPECT_EQ(Window().GetConFile()->GetMissionCount(), 0);
    EXPECT_EQ(GetTable(kMissionTable)->Count(), 18U);
    EXPECT_EQ(GetTable(kActorTable)->Count(), 0U);
    EXPECT_EQ(Window().SelectedCon(), nullptr);
    EXPECT_TRUE(Window().tvCons().Empty());
    EXPECT_EQ(Window().lstEvents().ListCount(), 0U);
    EXPECT_TRUE(Window().Predicates().fileOpen);
    EXPECT_FALSE(Window().Predicates().hasNodes);
  };
  EXPECT_FALSE(Window().NewConFile());
}

TEST_F(ShellNew, ANewFileAfterAReadOnlyOneCanBeSaved) {
  WriteBytes(Path("harbour.lck"), FileBytes(28).Str("someone").Bytes());
  program_.messages.Expect(Answer::Yes);
  Open(HarbourFile());
  ASSERT_TRUE(Window().IsReadOnly());
  AnswerFilePropertiesWithOk();
  EXPECT_TRUE(Window().NewConFile());
  EXPECT_FALSE(Window().IsReadOnly());
}

TEST_F(ShellNew, ANewFileTakesTheEventEditorAway) {
  program_.view.editorVisible = true;
  program_.view.answerFileProperties = [this] {
    EXPECT_EQ(program_.view.editorUnloads, 2) << "with the old file, and for the new one";
    EXPECT_FALSE(program_.view.editorVisible);
    Window().SetModified(true, nullptr);
  };
  EXPECT_TRUE(Window().NewConFile());
  EXPECT_EQ(program_.view.editorUnloads, 2);
}

TEST_F(ShellNew, CommandsFollowANewFile) {
  int& updates = program_.view.commandStateUpdates;
  updates = 0;
  program_.view.answerFileProperties = [&] {
    EXPECT_EQ(updates, 2) << "with the old file, and for the new one";
    updates = 0;
    Window().SetModified(true, nullptr);
  };
  EXPECT_TRUE(Window().NewConFile());
  EXPECT_EQ(updates, 1) << "what was entered in the dialog counts, too";
}

class ShellAdd : public ShellTest {
 protected:
  ShellAdd() { OpenHarbour(); }
};

TEST_F(ShellAdd, ANewConversationComesToItsPropertiesWithTheDefaults) {
  program_.view.answerProperties = [](Conversation& con) {
    EXPECT_EQ(con.key, 3);
    EXPECT_EQ(con.NPCID, -1);
    EXPECT_EQ(con.conName, "");
    EXPECT_TRUE(con.bDisplayOnce);
    EXPECT_FALSE(con.bFirstPerson);
    EXPECT_FALSE(con.bNonInteractive);
    EXPECT_FALSE(con.bRandomCamera);
    EXPECT_FALSE(con.bCanBeInterrupted);
    EXPECT_FALSE(con.bCannotBeInterrupted);
    EXPECT_FALSE(con.bHoloCallCon);
    EXPECT_TRUE(con.bInvokeFrob);
    EXPECT_TRUE(con.bInvokeBump);
    EXPECT_FALSE(con.bInvokeRadius);
    EXPECT_FALSE(con.bInvokeSight);
    EXPECT_EQ(con.CreationDate, kSavedAt);
    EXPECT_EQ(con.LastUpdated, kSavedAt);
    EXPECT_EQ(con.CreatedBy, kSavedBy);
    EXPECT_EQ(con.LastUpdatedBy, kSavedBy);
    return 1;
  };
  Window().AddConversation();
  EXPECT_THAT(program_.view.propertyTabs, ElementsAre(0));
}

TEST_F(ShellAdd, ACancelledConversationGivesItsKeyBackAndTheCommandsFollow) {
  int& updates = program_.view.commandStateUpdates;
  program_.view.answerProperties = [&updates](Conversation&) {
    updates = 0;
    return 1;
  };
  Window().AddConversation();
  EXPECT_EQ(updates, 1);
  EXPECT_EQ(Window().GetConFile()->CurrentKey(), 3);
  EXPECT_EQ(Window().GetConFile()->Conversations.Count(), 3U);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellAdd, AConfirmedConversationEntersTheFileAndTheTreeAndIsSelected) {
  program_.view.answerProperties = [](Conversation& con) {
    con.conName = "Berth";
    con.NPCID = 1;
    return 0;
  };
  const int before = program_.view.commandStateUpdates;
  Window().AddConversation();
  EXPECT_EQ(ConOf(3).conName, "Berth");
  EXPECT_EQ(Window().GetConFile()->CurrentKey(), 4);
  EXPECT_EQ(Window().SelectedCon().get(), &ConOf(3));
  EXPECT_EQ(Window().tvCons().SelectedItem(), Window().tvCons().FindNode("C3"));
  EXPECT_THAT(TreeLines(), ElementsAre("Zoe", "  Arrival", "  Berth", "  greeting",
                                       "    Door = True", "    Lamp = False", "Alex", "  Leaving"));
  EXPECT_TRUE(Window().GetConFile()->IsModified());
  EXPECT_GT(program_.view.commandStateUpdates, before);
}

TEST_F(ShellAdd, WithNoFileOpenThereIsNothingToAddTo) {
  ASSERT_TRUE(Window().CloseConFile());
  Window().AddConversation();
  EXPECT_TRUE(program_.view.propertyTabs.empty());
}

class ShellProperties : public ShellTest {
 protected:
  ShellProperties() {
    OpenHarbour();
    Click("C0");
  }
};

TEST_F(ShellProperties, AreThoseOfTheSelectedConversationAtTheTabThatIsAskedFor) {
  const Conversation* shown = nullptr;
  program_.view.answerProperties = [&](Conversation& con) {
    shown = &con;
    return 1;
  };
  Window().EditConversationProperties(1);
  EXPECT_EQ(shown, &ConOf(0));
  EXPECT_THAT(program_.view.propertyTabs, ElementsAre(1));
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellProperties, WithNoConversationSelectedNothingHappens) {
  Click("A1");
  Window().EditConversationProperties(0);
  EXPECT_TRUE(program_.view.propertyTabs.empty());
}

TEST_F(ShellProperties, ANewOwnerMovesTheNodeAndSelectsItThere) {
  Click("C2");
  program_.view.answerProperties = [](Conversation& con) {
    con.NPCID = 1;
    return 0;
  };
  Window().EditConversationProperties(0);
  EXPECT_THAT(TreeLines(), ElementsAre("Zoe", "  Arrival", "  greeting", "    Door = True",
                                       "    Lamp = False", "  Leaving"))
      << "the old owner is left with nothing, and goes";
  EXPECT_EQ(Window().tvCons().SelectedItem(), Window().tvCons().FindNode("C2"));
  EXPECT_EQ(Window().SelectedCon().get(), &ConOf(2));
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellProperties, AnOldOwnerWithOtherConversationsStays) {
  program_.view.answerProperties = [](Conversation& con) {
    con.NPCID = 0;
    return 0;
  };
  Window().EditConversationProperties(0);
  EXPECT_THAT(TreeLines(), ElementsAre("Zoe", "  Arrival", "Alex", "  greeting", "    Door = True",
                                       "    Lamp = False", "  Leaving"));
}

TEST_F(ShellProperties, ANewNameAndNewFlagsShowInTheTree) {
  program_.moment = kSavedAt + 1;
  program_.view.answerProperties = [](Conversation& con) {
    con.conName = "Anchor";
    con.flagRefs.Remove(2);
    return 0;
  };
  Window().EditConversationProperties(0);
  EXPECT_THAT(TreeLines(),
              ElementsAre("Zoe", "  Anchor", "    Lamp = False", "  Arrival", "Alex", "  Leaving"));
  EXPECT_EQ(ConOf(0).LastUpdated, kSavedAt + 1);
  EXPECT_EQ(ConOf(0).LastUpdatedBy, kSavedBy);
}

TEST_F(ShellProperties, FromAFlagTheConversationComesToBeSelected) {
  Click("F2,0");
  program_.view.answerProperties = [](Conversation&) { return 0; };
  Window().EditConversationProperties(1);
  EXPECT_EQ(Window().tvCons().SelectedItem(), Window().tvCons().FindNode("C0"));
}

TEST_F(ShellProperties, FlagsPickedInThePopupShowInTheTreeAndMarkNothing) {
  ConOf(0).flagRefs.Remove(3);
  program_.view.pickFlags = [](FlagList& flags) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = 3;
    flag->bValue = true;
    flags.Add(3, flag);
    return true;
  };
  Window().AddFlags();
  EXPECT_EQ(Window().tvCons().FindNode("F3,0")->Text(), "Lamp = True");
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellProperties, ACancelledPickOfFlagsChangesNothing) {
  const auto before = TreeLines();
  Window().AddFlags();
  EXPECT_EQ(TreeLines(), before);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellProperties, PastingWithNoFileOpenStartsANewOne) {
  Click("C1");
  Window().CopyConversation();
  ASSERT_TRUE(Window().CloseConFile());
  program_.view.answerFileProperties = [this] { Window().SetModified(true, nullptr); };
  Window().PasteConversation();
  ASSERT_NE(Window().GetConFile(), nullptr);
  EXPECT_EQ(ConOf(0).conName, "Arrival");
  EXPECT_EQ(GetTableItemName(kActorTable, ConOf(0).NPCID), "Zoe");
  EXPECT_EQ(Window().SelectedCon().get(), &ConOf(0));
}

TEST_F(ShellProperties, PastingStopsWhenTheNewFileIsDeclined) {
  Window().CopyConversation();
  ASSERT_TRUE(Window().CloseConFile());
  Window().PasteConversation();
  EXPECT_EQ(program_.view.filePropertiesShown, 1);
  EXPECT_EQ(Window().GetConFile(), nullptr);
}

}  // namespace
}  // namespace parlate

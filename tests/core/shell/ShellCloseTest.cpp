// Closing a file, with the question about unsaved changes, and the rescue of a file in memory.

#include "general/Date.h"
#include "general/Paths.h"
#include "model/Tables.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

using ShellClose = ShellTest;

TEST_F(ShellClose, LeavesNothingOfTheFile) {
  OpenHarbour();
  Click("C0");
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_EQ(Window().GetConFile(), nullptr);
  EXPECT_EQ(Window().conFileName, "");
  EXPECT_EQ(Window().SelectedCon(), nullptr);
  EXPECT_THAT(TreeLines(), IsEmpty());
  EXPECT_THAT(RowTexts(), IsEmpty());
  for (std::int32_t type = kActorTable; type <= kMissionTable; ++type) {
    EXPECT_EQ(GetTable(type)->Count(), 0U);
  }
  EXPECT_EQ(Window().GetVersionNum(), -1);
  EXPECT_FALSE(FileExists(Path("harbour.lck")));
}

TEST_F(ShellClose, LeavesTheBrokenLabelsToTheNextLabelCheck) {
  OpenHarbour();
  ConOf(2).events.Place(1)->As<EventJump>()->label = "Nowhere";
  Click("C2");
  const std::size_t reported = Window().badLabels.colBadLabels.size();
  ASSERT_GT(reported, 0U);
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_EQ(Window().badLabels.colBadLabels.size(), reported);
  OpenHarbour();
  EXPECT_TRUE(Window().ShowMissingLabels(false, true));
  EXPECT_THAT(Window().badLabels.colBadLabels, IsEmpty());
}

TEST_F(ShellClose, WithNoFileOpenIsTrueAtOnce) {
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellClose, OfAnUnchangedFileAsksNothing) {
  OpenHarbour();
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_EQ(BoxCount(), 0U);
}

class ShellCloseChanged : public ShellTest {
 protected:
  ShellCloseChanged() {
    OpenHarbour();
    Window().SetModified(true, nullptr);
  }
};

TEST_F(ShellCloseChanged, AsksWhetherToSave) {
  program_.messages.Expect(Answer::Cancel);
  EXPECT_FALSE(Window().CloseConFile());
  EXPECT_THAT(LastBox(), IsBox("Save Changes?",
                               "The current Conversation File has not been saved.  Save Changes "
                               "before closing it?",
                               MessageBox::Icon::Question, MessageBox::Buttons::YesNoCancel));
  EXPECT_NE(Window().GetConFile(), nullptr);
  EXPECT_TRUE(FileExists(Path("harbour.lck")));
  EXPECT_EQ(TreeLines().size(), 7U);
}

TEST_F(ShellCloseChanged, SavesAndClosesOnYes) {
  Window().GetConFile()->notes = "changed";
  program_.messages.Expect(Answer::Yes);
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_EQ(Window().GetConFile(), nullptr);
  Window().OpenConFile(Path("harbour.con"));
  EXPECT_EQ(Window().GetConFile()->notes, "changed");
}

TEST_F(ShellCloseChanged, DropsTheChangesOnNo) {
  program_.messages.Expect(Answer::No);
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_EQ(Window().GetConFile(), nullptr);
  EXPECT_EQ(ReadBytes(Path("harbour.con")), HarbourFile());
}

TEST_F(ShellCloseChanged, KeepsAFileOpenWhoseSaveWasCancelled) {
  Window().conFileName.clear();
  program_.messages.Expect(Answer::Yes);
  program_.dialogs.Expect("");
  EXPECT_FALSE(Window().CloseConFile());
  EXPECT_NE(Window().GetConFile(), nullptr);
}

TEST_F(ShellCloseChanged, KeepsAFileOpenThatCannotBeSavedForItHasNoConversations) {
  for (const std::int32_t key : {0, 1, 2}) {
    Click("C" + std::to_string(key));
    Window().DeleteConversation(true);
  }
  program_.messages.Expect(Answer::Yes);
  EXPECT_FALSE(Window().CloseConFile());
  EXPECT_NE(Window().GetConFile(), nullptr);
}

TEST_F(ShellClose, AsksAboutAChangedReadOnlyFileAndCannotSaveIt) {
  WriteBytes(Path("harbour.lck"), FileBytes(28).Str("other").Bytes());
  program_.messages.Expect(Answer::Yes);
  OpenHarbour();
  Window().SetModified(true, nullptr);
  program_.messages.Expect(Answer::Yes);
  program_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(Window().CloseConFile());
  EXPECT_TRUE(Window().IsReadOnly());
}

// The rescue.

class ShellRescue : public ShellTest {
 protected:
  ShellRescue() { program_.moment = MakeDate(2026, 3, 14, 17, 45, 3); }
};

TEST_F(ShellRescue, WritesTheFileUnderItsNameAndTheMoment) {
  OpenHarbour();
  EXPECT_EQ(Window().WriteRecoveryFile(Path("rescue")), Path("rescue/harbour-20260314-174503.con"));
  EXPECT_EQ(ReadBytes(Path("harbour.con")), HarbourFile()) << "the file itself stays as it is";
}

TEST_F(ShellRescue, OfAFileThatWasNeverSavedHasANameToo) {
  OpenHarbour();
  Window().conFileName.clear();
  EXPECT_EQ(Window().WriteRecoveryFile(Path("rescue")),
            Path("rescue/untitled-20260314-174503.con"));
}

TEST_F(ShellRescue, WithNoFileOpenWritesNothing) {
  EXPECT_EQ(Window().WriteRecoveryFile(Path("rescue")), "");
  EXPECT_FALSE(FolderExists(Path("rescue")));
}

TEST_F(ShellRescue, GivesNoPathWhenItCannotBeWritten) {
  OpenHarbour();
  WriteBytes(Path("rescue"), "in the way");
  EXPECT_EQ(Window().WriteRecoveryFile(Path("rescue")), "");
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellRescue, CanBeOpenedAgain) {
  OpenHarbour();
  const std::string path = Window().WriteRecoveryFile(Path("rescue"));
  Window().OpenConFile(path);
  EXPECT_THAT(TreeLines(), ElementsAre("Zoe", "  Arrival", "  greeting", "    Door = True",
                                       "    Lamp = False", "Alex", "  Leaving"));
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellRescue, OfAFileWithAMissingFlagRowCanBeOpenedAgainWithAllConversations) {
  OpenHarbour();
  RemoveTableItemByName(kFlagTable, "Lamp");
  const std::string path = Window().WriteRecoveryFile(Path("rescue"));
  ASSERT_NE(path, "");
  Window().OpenConFile(path);
  ASSERT_NE(Window().GetConFile(), nullptr);
  EXPECT_EQ(Window().GetConFile()->Conversations.Count(), 3U);
  EXPECT_EQ(Window().tvCons().FindFlag(0, 3)->Text(), "Missing_3 = False");
  EXPECT_NE(Window().tvCons().FindConversation(2), nullptr);
  EXPECT_FALSE(program_.progress.showing) << "the file was read to its end";
}

TEST_F(ShellRescue, OfAFileWithFlagsMissingInItsEventsCanBeListedAgain) {
  const std::vector<FlagFields> door = {{2, "Door", true, 0}};
  Open(FileOf(HarbourTables(), {Con(0, "Gate", kZoe, {SetFlags(1, door)})}));
  auto choice = std::make_shared<ChoiceItem>();
  auto flag = std::make_shared<FlagRef>();
  flag->flagID = 8;
  choice->skillID = -1;
  choice->flagRefs.Add(8, flag);
  auto event = std::make_shared<EventItem>();
  event->key = ConOf(0).NextEventKey();
  event->SetEventObject(kChoice, EventChoice{}).Choices.Add(0, choice);
  ConOf(0).events.Add(event->key, event);
  RemoveTableItemByName(kFlagTable, "Door");
  const std::string path = Window().WriteRecoveryFile(Path("rescue"));
  EXPECT_EQ(GetTable(kFlagTable)->Count(), 1U) << "the tables in memory stay as they were";
  Window().OpenConFile(path);
  Click("C0");
  EXPECT_EQ(RowKeys().size(), 2U);
  EXPECT_NE(GetTable(kFlagTable)->Find(2), nullptr);
  EXPECT_NE(GetTable(kFlagTable)->Find(8), nullptr);
}

TEST_F(ShellRescue, OfAFileWithAMissingActorRowCanBeOpenedAgainWithAllConversations) {
  OpenHarbour();
  RemoveTableItemByName(kActorTable, "Alex");
  const std::string path = Window().WriteRecoveryFile(Path("rescue"));
  ASSERT_NE(path, "");
  Window().OpenConFile(path);
  ASSERT_NE(Window().GetConFile(), nullptr);
  EXPECT_EQ(Window().GetConFile()->Conversations.Count(), 3U);
  EXPECT_FALSE(program_.progress.showing) << "the file was read to its end";
}

}  // namespace
}  // namespace parlate

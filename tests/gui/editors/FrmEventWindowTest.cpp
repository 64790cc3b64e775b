// The main window and the event editor beside it.

#include <gmock/gmock.h>

#include <QProcess>

#include "editors/EventEditorFixture.h"
#include "general/Paths.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using namespace testing_support;

class EventEditorWindow : public EventEditorTest {
 protected:
  [[nodiscard]] std::string Shown() { return TextOf("txtLabel"); }
  /// The labels that a conversation knows.
  [[nodiscard]] static std::vector<std::string> LabelsOf(const Conversation& con) {
    std::vector<std::string> labels;
    for (const LabelItem& label : con.Labels) labels.push_back(label.Name);
    return labels;
  }
};

TEST_F(EventEditorWindow, EveryAddCommandOpensItsPanel) {
  for (const char* menu : {"mnuEventAdd", "mnuEventPopupAddEvent"}) {
    for (std::int32_t type = 0; type < kEventTypeCount; ++type) {
      program_.Choose((std::string(menu) + "(" + std::to_string(type) + ")").c_str());
      EXPECT_EQ(ShownPanel(), type) << menu;
    }
  }
}

TEST_F(EventEditorWindow, EveryInsertCommandOpensItsPanel) {
  program_.ClickRow(2);
  for (const char* menu : {"mnuEventInsert", "mnuEventPopupInsertEvent"}) {
    for (std::int32_t type = 0; type < kEventTypeCount; ++type) {
      program_.Choose((std::string(menu) + "(" + std::to_string(type) + ")").c_str());
      EXPECT_EQ(ShownPanel(), type) << menu;
    }
  }
}

TEST_F(EventEditorWindow, AddAppendsAndInsertPutsAheadOfTheSelectedRow) {
  program_.ClickRow(1);
  program_.Choose("mnuEventInsert(18)");
  Click("cmdUpdate");
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 6, 2, 3, 4, 5));
  program_.ClickRow(2);
  program_.Choose("mnuEventAdd(18)");
  Click("cmdUpdate");
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 6, 2, 3, 4, 5, 7));
}

TEST_F(EventEditorWindow, EditCommandsAndTheDoubleClickOpenTheSelectedEvent) {
  program_.ClickRow(4);
  program_.Choose("mnuEventsEdit");
  EXPECT_EQ(Shown(), "Stop");
  Click("cmdClose");
  program_.Choose("mnuEventPopupEdit");
  EXPECT_TRUE(Editor().isVisible());
  EXPECT_EQ(Shown(), "Stop");
  Click("cmdClose");
  Edit(0);
  EXPECT_EQ(Shown(), "Start");
  EXPECT_EQ(SelectedRow(), 0);
}

TEST_F(EventEditorWindow, AnOpenEditorComesToTheFrontWhenItIsAskedForAndNotWhenItFollows) {
  Edit(0);
  program_.Activate();
  program_.ClickRow(4);
  EXPECT_EQ(Shown(), "Stop");
  EXPECT_TRUE(program_.Window().isActiveWindow()) << "a writer may walk through the list";
  for (const char* command : {"mnuEventsEdit", "mnuEventAdd(0)"}) {
    program_.Activate();
    program_.Choose(command);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Editor())) << command;
  }
}

TEST_F(EventEditorWindow, OpenEditorFollowsTheSelectionAndAHiddenOneDoesNot) {
  Edit(0);
  program_.ClickRow(4);
  EXPECT_EQ(Shown(), "Stop");
  Click("cmdClose");
  program_.ClickRow(0);
  EXPECT_FALSE(Editor().isVisible());
  EXPECT_EQ(Shown(), "Stop");
}

TEST_F(EventEditorWindow, AnEventThatWasAddedShowsInTheListWithItsColour) {
  Add(kComment);
  Type("txtComment", "Note");
  Click("cmdUpdate");
  const ListRow& row = program_.shell().lstEvents().Row(5);
  EXPECT_EQ(row.text, ";Comment;;");
  EXPECT_EQ(row.subText, "Note");
  EXPECT_EQ(row.color, 0xE0E0E0);
  Type("txtLabel", "Here");
  Click("cmdUpdate");
  EXPECT_EQ(program_.shell().lstEvents().Row(5).text, "Here;Comment;;");
  EXPECT_EQ(program_.shell().lstEvents().Row(5).color, 0xC0FFC0);
}

TEST_F(EventEditorWindow, DeletingTheOpenEventGoesOnWithTheRowThatMovedUp) {
  program_.workspace.defaults.bConfirmationEventDelete = false;
  Edit(0);
  program_.Choose("mnuEventsDelete");
  EXPECT_EQ(ShownPanel(), kComment);
  Click("cmdUpdate");
  EXPECT_THAT(KeysInOrder(), ElementsAre(2, 3, 4, 5));
}

TEST_F(EventEditorWindow, UpdateOfAnEventThatWasDeletedHarmsNoOther) {
  program_.workspace.defaults.bConfirmationEventDelete = false;
  Edit(4);
  program_.ClickRow(4);
  ASSERT_EQ(SelectedRow(), -1) << "a click on the selected row takes it back";
  Con().EventRemove(5);
  program_.shell().UpdateEventsList(nullptr);
  const auto before = program_.shell().lstEvents().Row(3).text;
  Type("txtLabel", "Last");
  Click("cmdUpdate");
  EXPECT_EQ(program_.shell().lstEvents().ListCount(), 4U);
  EXPECT_EQ(program_.shell().lstEvents().Row(3).text, before);
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(LabelsOf(Con()), ElementsAre("Start"));
}

TEST_F(EventEditorWindow, ConversationMayGoUnderTheOpenEditor) {
  program_.workspace.defaults.bConfirmationConDelete = false;
  EventOf<EventSpeech>(1).ActorSpeakingToID = 0;
  Edit(0);
  const auto gone = program_.shell().GetConFromID(0);
  const auto event = gone->events.Share(1);
  program_.Choose("mnuConPopupCut");
  EXPECT_THAT(program_.shell().lstEvents().ListCount(), 0U);
  EXPECT_TRUE(Editor().isVisible());
  Type("txtLabel", "Anyone");
  Type("txtSpeech", "Anyone there?");
  Click("cmdUpdate");
  Click("cmdPrevEvent");
  Click("cmdNextEvent");
  EXPECT_EQ(Shown(), "Anyone") << "there is no event to go to";
  Type("txtSpeech", "No?");
  Click("cmdUpdate");
  EXPECT_EQ(event->eventLabel, "Anyone");
  EXPECT_EQ(event->As<EventSpeech>()->speech, "No?");
  EXPECT_THAT(LabelsOf(*gone), UnorderedElementsAre("Anyone", "Stop"));
  Click("cmdAddEvent");
  Click("cmdClose");
  ASSERT_EQ(program_.shell().GetConFile()->Conversations.Count(), 2U);
  EXPECT_THAT(KeysInOrder(1), IsEmpty());
  EXPECT_THAT(LabelsOf(Con(1)), IsEmpty());
  EXPECT_THAT(KeysInOrder(2), ElementsAre(1));
  EXPECT_EQ(EventOf<EventJump>(1, 2).label, "Start");
  EXPECT_THAT(LabelsOf(Con(2)), IsEmpty());
}

TEST_F(EventEditorWindow, ANewEventGoesToTheConversationThatIsSelectedAtItsUpdate) {
  Add(kEnd);
  program_.ClickNode("C1");
  Click("cmdUpdate");
  EXPECT_THAT(KeysInOrder(0), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_EQ(Con(1).events.Count(), 1U);
  program_.ClickNode("C2");
  Click("cmdAddEvent");
  Click("cmdUpdate");
  EXPECT_EQ(Con(2).events.Count(), 2U);
}

TEST_F(EventEditorWindow, WithNoConversationSelectedAnUpdateAddsNothing) {
  Add(kEnd);
  program_.ClickNode("A1");
  ASSERT_EQ(program_.shell().SelectedCon(), nullptr);
  Type("txtLabel", "Nowhere");
  Click("cmdUpdate");
  Click("cmdUpdate");
  EXPECT_THAT(KeysInOrder(0), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_FALSE(Con(0).IsValidLabel("Nowhere")) << "no event bears it";
}

TEST_F(EventEditorWindow, WithNoConversationSelectedAddAndInsertStartNothing) {
  Edit(0);
  program_.ClickNode("A1");
  Click("cmdAddEvent");
  Click("cmdInsertEvent");
  EXPECT_EQ(Label().text(), "Start") << "the event that is shown stays";
}

TEST_F(EventEditorWindow, AnOpenedEventHasItsCaretBehindTheLabelAndNothingSelected) {
  Edit(0);
  EXPECT_EQ(Label().text(), "Start");
  EXPECT_TRUE(Label().hasFocus());
  EXPECT_EQ(Label().selectedText(), "");
  EXPECT_EQ(Label().cursorPosition(), 5);
}

TEST_F(EventEditorWindow, AnEditorThatComesBackToTheFrontLooksWhetherItsActorsAreStillThere) {
  EventOf<EventSpeech>(1).ActorSpeakingToID = 0;
  Edit(0);
  EXPECT_TRUE(CanUpdate());
  program_.Activate();
  GetTable(kActorTable)->Remove(0);
  EXPECT_TRUE(CanUpdate()) << "nobody has looked yet";
  WaitForEditor();
  EXPECT_FALSE(CanUpdate());
}

TEST_F(EventEditorWindow, ACameraThatCannotBeOpenedIsStoredBeforeTheRunEnds) {
  Add(kMoveCamera);
  Click("optCameraSpecific");
  EXPECT_THROW(The<QAbstractButton>("cmdUpdate").click(), RuntimeError);
  const auto& camera = EventOf<EventMoveCamera>(6);
  EXPECT_EQ(camera.cameraType, EventMoveCamera::kActor);
  const std::string rescued = program_.shell().WriteRecoveryFile(folder.File("rescue"));
  EXPECT_FALSE(rescued.empty());
}

TEST_F(EventEditorWindow, SaveAndCloseOfTheFileTakeTheEditorAway) {
  Edit(0);
  program_.Choose("mnuFileSave");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_THAT(program_.Window().findChildren<frmEvent*>(), IsEmpty());
  Edit(0);
  program_.Choose("mnuFileClose");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_THAT(program_.Window().findChildren<frmEvent*>(), IsEmpty());
}

TEST_F(EventEditorWindow, ClosingTheMainWindowClosesTheEditor) {
  Add(kEnd);
  EXPECT_TRUE(program_.Close());
  EXPECT_FALSE(Editor().isVisible());
}

/// Two files in which the same names stand under other IDs.
class PasteThroughTheWindow : public WindowTest {
 protected:
  void SetUp() override {
    WriteBytes(folder.File("from.con"), HarbourFile());
    TableFields tables;
    tables.actors = {{5, "Alex"}, {9, "Bo"}};
    tables.flags = {{1, "Lamp"}};
    tables.skills = {{8, "Swim"}};
    tables.objects = {{2, "Rope"}};
    const std::string into = FileOf(tables, {Con(0, "other", {9, "Bo"}, {End(1, "")})});
    WriteBytes(folder.File("window.con"), into);
    WriteBytes(folder.File("core.con"), into);
    WriteBytes(folder.File("into.con"), into);
  }

  /// Pastes by the command line, at the moment and by the user of the window.
  void PasteByTheCommandLine() {
    const auto file = [this](const char* name) {
      return QString::fromStdString(folder.File(name));
    };
    QProcess tool;
    tool.start(QStringLiteral(PARLATE_CLI),
               {"paste", file("from.con"), "0", file("into.con"), file("cli.con"), "--user",
                "Tester", "--now", QString::number(kSavedAt)});
    EXPECT_TRUE(tool.waitForFinished());
    EXPECT_EQ(tool.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
  }
};

TEST_F(PasteThroughTheWindow, GivesTheBytesOfTheSamePasteInTheCoreAndByTheCommandLine) {
  RunningProgram program;
  ASSERT_TRUE(program.Start(folder.File("from.con")));
  program.ClickNode("C0");
  program.Choose("mnuConPopupCopy");
  program.shell().OpenConFile(folder.File("window.con"));
  program.ClickNode("C0");
  program.Choose("mnuConPopupPaste");
  program.Choose("mnuFileSave");
  const Conversation& pasted = *program.shell().GetConFile()->Conversations.Place(2);
  EXPECT_EQ(GetTableItemName(kActorTable, pasted.NPCID), "Zoe");
  EXPECT_EQ(pasted.events.At(3).As<EventSpeech>()->ActorSpeakerID, 5) << "Alex has another ID here";
  EXPECT_EQ(pasted.flagRefs.Count(), 2U);
  EXPECT_TRUE(program.Close());
  const std::string throughTheWindow = ReadBytes(folder.File("window.con"));

  // The core alone: a file of its own, the clipboard's steps one by one.
  RunningProgram core;
  ASSERT_TRUE(core.Start(folder.File("from.con")));
  Shell& shell = core.shell();
  shell.SelectConversationByKey("0");
  shell.CopyConversation();
  shell.OpenConFile(folder.File("core.con"));
  shell.PasteConversation();
  EXPECT_TRUE(shell.SaveConFile(false));
  EXPECT_EQ(throughTheWindow, ReadBytes(folder.File("core.con")));
  EXPECT_TRUE(core.Close());

  PasteByTheCommandLine();
  EXPECT_EQ(throughTheWindow, ReadBytes(folder.File("cli.con")));
}

}  // namespace
}  // namespace parlate

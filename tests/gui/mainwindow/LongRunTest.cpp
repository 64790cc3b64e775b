// One long run through the windows, from nothing to a conversation with an event of every type,
// and what the file holds of it afterwards.

#include <gmock/gmock.h>

#include "mainwindow/LongRunFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

/// What the writer typed, told by the names of the tables: the numbers differ between files.
class Written {
 public:
  explicit Written(const Conversation& con) : con_(con) {}

  void ExpectAll() const {
    ExpectNewConversation(con_);
    EXPECT_EQ(con_.LastUpdatedBy, "Tester");
    ExpectOrderAndLabels();
    ExpectSpeeches();
    ExpectChoices();
    ExpectFlags();
    ExpectObjects();
    ExpectCamera();
    ExpectActing();
    ExpectJumps();
    ExpectGoalAndNotes();
    ExpectNumbers();
    ExpectTheEnd();
  }

 private:
  template <class Event>
  [[nodiscard]] const Event& At(std::int32_t key) const {
    const auto* event = std::as_const(con_.events.At(key)).As<Event>();
    if (event == nullptr) throw std::runtime_error("an event of another class");
    return *event;
  }
  static const std::string& Actor(std::int32_t id) { return GetTableItemName(kActorTable, id); }
  static const std::string& Object(std::int32_t id) { return GetTableItemName(kObjectTable, id); }

  void ExpectOrderAndLabels() const;
  void ExpectSpeeches() const;
  void ExpectChoices() const;
  void ExpectFlags() const;
  void ExpectObjects() const;
  void ExpectCamera() const;
  void ExpectActing() const;
  void ExpectJumps() const;
  void ExpectGoalAndNotes() const;
  void ExpectNumbers() const;
  void ExpectTheEnd() const;

  const Conversation& con_;
};

void Written::ExpectOrderAndLabels() const {
  std::vector<std::int32_t> keys;
  std::vector<std::int32_t> types;
  std::vector<std::string> labels;
  for (const EventItem& event : con_.events) {
    keys.push_back(event.key);
    types.push_back(event.eventType);
    labels.push_back(event.eventLabel);
  }
  EXPECT_THAT(keys, ElementsAre(1, 2, 4, 5, 6, 7, 8, 9, 10, 11, 23, 12, 13, 14, 15, 16, 17, 18, 19,
                                20, 21, 24, 22));
  EXPECT_THAT(types, ElementsAre(0, 0, 1, 2, 3, 4, 5, 6, 7, 7, 13, 8, 9, 10, 11, 12, 13, 14, 15, 16,
                                 17, 15, 18));
  EXPECT_THAT(labels, ElementsAre("Start", "", "Ask", "", "", "", "Paid", "", "", "", "", "", "",
                                  "", "Gate", "", "", "", "", "", "", "", "Finish"));
  EXPECT_EQ(con_.currentEventKey, 24);
  std::vector<std::string> known;
  for (const LabelItem& label : con_.Labels) known.push_back(label.Name);
  EXPECT_THAT(known, ElementsAre("Start", "Ask", "Paid", "Gate", "Finish"));
}

void Written::ExpectSpeeches() const {
  const auto& first = At<EventSpeech>(1);
  EXPECT_EQ(Actor(first.ActorSpeakerID), "Marta");
  EXPECT_EQ(Actor(first.ActorSpeakingToID), "Zoe");
  EXPECT_EQ(first.speech, "Are you looking for the ferry?");
  EXPECT_EQ(first.audioFile, "Harbour01");
  EXPECT_FALSE(first.bContinued);
  EXPECT_FALSE(first.bBold);
  EXPECT_EQ(first.speechFont, 1);
  const auto& second = At<EventSpeech>(2);
  EXPECT_EQ(Actor(second.ActorSpeakerID), "Zoe");
  EXPECT_EQ(Actor(second.ActorSpeakingToID), "Marta");
  EXPECT_EQ(second.speech, "I am, and I am late.\r\nWhere is it?");
  EXPECT_EQ(second.audioFile, "");
  EXPECT_TRUE(second.bContinued);
  EXPECT_FALSE(second.bBold);
  EXPECT_EQ(second.speechFont, 0);
}

void Written::ExpectChoices() const {
  const auto& event = At<EventChoice>(4);
  EXPECT_TRUE(event.bClearScreen);
  ASSERT_EQ(event.Choices.Count(), 2U);
  const ChoiceItem& pay = *event.Choices.Place(1);
  EXPECT_EQ(pay.text, "Pay the fare");
  EXPECT_EQ(pay.label, "Paid");
  EXPECT_TRUE(pay.bDisplayAsSpeech);
  EXPECT_EQ(pay.audioFile, "Harbour02");
  EXPECT_EQ(GetTableItemName(kSkillTable, pay.skillID), "Swim");
  EXPECT_EQ(pay.skillLevel, 2);
  ASSERT_EQ(pay.flagRefs.Count(), 1U);
  EXPECT_EQ(pay.flagRefs.Place(1)->Desc(), "Door = False");
  const ChoiceItem& walk = *event.Choices.Place(2);
  EXPECT_EQ(walk.ID, pay.ID + 1);
  EXPECT_EQ(walk.text, "Walk away");
  EXPECT_EQ(walk.label, "Finish");
  EXPECT_FALSE(walk.bDisplayAsSpeech);
  EXPECT_EQ(walk.audioFile, "");
  EXPECT_EQ(walk.skillID, -1);
  EXPECT_EQ(walk.flagRefs.Count(), 0U);
}

void Written::ExpectFlags() const {
  const FlagList& set = At<EventSetFlag>(5).flagRefs;
  ASSERT_EQ(set.Count(), 1U);
  EXPECT_EQ(set.Place(1)->Desc(), "Door = True");
  EXPECT_EQ(set.Place(1)->expiration, 3);
  const auto& check = At<EventCheckFlag>(6);
  ASSERT_EQ(check.flagRefs.Count(), 1U);
  EXPECT_EQ(check.flagRefs.Place(1)->Desc(), "Door = False");
  EXPECT_EQ(check.failLabel, "Paid");
}

void Written::ExpectObjects() const {
  const auto& check = At<EventCheckObject>(7);
  EXPECT_EQ(Object(check.objectID), "Ticket");
  EXPECT_EQ(check.failLabel, "Ask");
  const auto& transfer = At<EventTransferObject>(8);
  EXPECT_EQ(Object(transfer.objectID), "Ticket");
  EXPECT_EQ(transfer.transferCount, 2);
  EXPECT_EQ(Actor(transfer.fromPawnID), "Marta");
  EXPECT_EQ(Actor(transfer.toPawnID), "Zoe");
  EXPECT_EQ(transfer.failLabel, "Ask");
}

void Written::ExpectCamera() const {
  const auto& camera = At<EventMoveCamera>(9);
  EXPECT_EQ(camera.cameraType, 0);
  EXPECT_EQ(camera.cameraPosition, 6);
  EXPECT_EQ(camera.cameraTransition, 1);
  EXPECT_EQ(camera.rotationPitch, 0);
  EXPECT_EQ(camera.rotationYaw, 0);
  EXPECT_EQ(camera.rotationRoll, 0);
  EXPECT_EQ(camera.cameraX, 0);
  EXPECT_EQ(camera.cameraY, 0);
  EXPECT_EQ(camera.cameraZ, 0);
  EXPECT_EQ(camera.heightModifier, 0);
  EXPECT_EQ(camera.centerModifier, 0);
  EXPECT_EQ(camera.distanceMultiplier, 0);
}

void Written::ExpectActing() const {
  const auto& looped = At<EventAnimation>(10);
  EXPECT_EQ(Actor(looped.PawnID), "Zoe");
  EXPECT_EQ(looped.SeqName, "Wave");
  EXPECT_EQ(looped.playMode, 0);
  EXPECT_EQ(looped.playLength, 0);
  EXPECT_FALSE(looped.bFinishAnim);
  const auto& timed = At<EventAnimation>(11);
  EXPECT_EQ(Actor(timed.PawnID), "Marta");
  EXPECT_EQ(timed.SeqName, "Bow");
  EXPECT_EQ(timed.playMode, 1);
  EXPECT_EQ(timed.playLength, 12);
  EXPECT_TRUE(timed.bFinishAnim);
  EXPECT_EQ(Actor(At<EventTrade>(12).PawnID), "Marta");
}

void Written::ExpectJumps() const {
  const auto& jump = At<EventJump>(13);
  EXPECT_EQ(jump.label, "Start");
  EXPECT_EQ(jump.conID, con_.key);
  const auto& random = At<EventRandom>(14);
  EXPECT_THAT(random.Labels(), ElementsAre("Start", "Finish"));
  EXPECT_TRUE(random.bCycleEvents);
  EXPECT_TRUE(random.bCycleOnce);
  EXPECT_FALSE(random.bCycleRandom);
  EXPECT_EQ(At<EventTrigger>(15).triggerTag, "OpenGate");
}

void Written::ExpectGoalAndNotes() const {
  const auto& goal = At<EventAddGoal>(16);
  EXPECT_EQ(goal.goalName, "CatchFerry");
  EXPECT_FALSE(goal.bGoalCompleted);
  EXPECT_EQ(goal.goalText, "Catch the last ferry.");
  EXPECT_TRUE(goal.bPrimaryGoal);
  EXPECT_EQ(At<EventAddNote>(17).noteText, "The ferry leaves at seven.");
  EXPECT_EQ(At<EventAddNote>(23).noteText, "Marta sells rope.");
}

void Written::ExpectNumbers() const {
  const auto& points = At<EventAddSkillPoints>(18);
  EXPECT_EQ(points.pointsToAdd, 250);
  EXPECT_EQ(points.awardMessage, "Well swum");
  EXPECT_EQ(At<EventAddCredits>(19).creditsToAdd, -40);
  EXPECT_EQ(At<EventAddCredits>(24).creditsToAdd, -40);
  const auto& persona = At<EventCheckPersona>(20);
  EXPECT_EQ(persona.personaType, 1);
  EXPECT_EQ(persona.condition, 3);
  EXPECT_EQ(persona.value, 50);
  EXPECT_EQ(persona.jumpLabel, "Start");
}

void Written::ExpectTheEnd() const {
  EXPECT_EQ(At<EventComment>(21).commentText, "Ask for a bell here.");
  EXPECT_NE(con_.events.At(22).As<EventEnd>(), nullptr);
}

class LongRun : public LongRunTest {
 protected:
  void WriteIt() {
    ASSERT_NO_FATAL_FAILURE(MakeFile(program_));
    ASSERT_NO_FATAL_FAILURE(AddConversation(program_));
    program_.ClickNode("C0");
    WriteEveryEvent();
    ASSERT_EQ(Con().events.Count(), 22U);
    InsertNote();
    ChangeNote();
    DeleteThirdSpeech();
    CopyAndPasteCredits();
  }

  void ExpectValidLabels() {
    program_.messages.Expect(Answer::Ok);
    program_.Press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(LastBox().title, "No Errors");
    EXPECT_EQ(LastBox().text, "All Label References are Valid.");
  }

  void SaveUnderAName() {
    program_.dialogs.Expect(path_);
    program_.Choose("mnuFileSaveAs");
    ASSERT_EQ(program_.dialogs.saved.size(), 1U);
    EXPECT_FALSE(program_.shell().GetConFile()->IsModified());
  }

  void CloseAndOpen(const std::string& path) {
    program_.Choose("mnuFileClose");
    ASSERT_EQ(program_.shell().GetConFile(), nullptr);
    program_.dialogs.Expect(path);
    program_.Press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_NE(program_.shell().GetConFile(), nullptr);
  }

  void PressInTree(const char* node, Qt::Key key) {
    program_.ClickNode(node);
    program_.Tree().setFocus();
    program_.Press(key, Qt::ControlModifier);
  }
};

TEST_F(LongRun, EveryTypeOfEventIsWrittenSavedReopenedAndPastedIntoAnotherFile) {
  ASSERT_NO_FATAL_FAILURE(WriteIt());
  Written(Con()).ExpectAll();
  ExpectValidLabels();
  ASSERT_NO_FATAL_FAILURE(SaveUnderAName());

  ASSERT_NO_FATAL_FAILURE(CloseAndOpen(path_));
  ExpectNewFile(*program_.shell().GetConFile());
  Written(Con()).ExpectAll();
  ExpectValidLabels();

  PressInTree("C0", Qt::Key_C);
  const std::string harbour = folder.File("harbour.con");
  WriteBytes(harbour, HarbourFile());
  ASSERT_NO_FATAL_FAILURE(CloseAndOpen(harbour));
  PressInTree("C1", Qt::Key_V);
  ASSERT_EQ(program_.shell().GetConFile()->Conversations.Count(), 4U);
  Written(Con(3)).ExpectAll();
  // Rows of the same name are found again, the others come behind them.
  EXPECT_EQ(EventOf<EventSpeech>(1, 3).ActorSpeakingToID, 1);
  EXPECT_EQ(EventOf<EventSetFlag>(5, 3).flagRefs.Place(1)->flagID, 2);
  EXPECT_EQ(Con(3).NPCID, 2);
  EXPECT_EQ(EventOf<EventCheckObject>(7, 3).objectID, 5);

  program_.Choose("mnuFileSave");
  ASSERT_NO_FATAL_FAILURE(CloseAndOpen(harbour));
  Written(Con(3)).ExpectAll();
  EXPECT_TRUE(program_.Close());
}

}  // namespace
}  // namespace parlate

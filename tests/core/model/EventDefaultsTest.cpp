// What a new event of each class holds, what `Update` stores and what `Copy` takes over.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "model/EventItem.h"
#include "model/TextNumbers.h"
#include "support/FakeControls.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::ComboShowing;
using testing_support::ErrorOf;
using testing_support::FakeComboBox;
using testing_support::FakeListBox;
using testing_support::TestWorkspace;

TEST(NewEvent, PointsAtNoActorWhereItsClassSaysSo) {
  EXPECT_EQ(EventSpeech().ActorSpeakerID, -1);
  EXPECT_EQ(EventSpeech().ActorSpeakingToID, -1);
  EXPECT_EQ(EventSpeech().speechFont, 0);
  EXPECT_EQ(EventSpeech().eventType, 0);
  EXPECT_FALSE(EventSpeech().bContinued);
  EXPECT_FALSE(EventSpeech().bBold);
  EXPECT_EQ(EventAnimation().PawnID, -1);
  EXPECT_EQ(EventTrade().PawnID, -1);
}

TEST(NewEvent, HoldsZerosOtherwise) {
  EXPECT_EQ(ChoiceItem().skillID, 0) << "the choice editor sets it ahead of the first save";
  EXPECT_EQ(EventChoice().nextChoiceID, 0);
  EXPECT_EQ(EventTransferObject().transferCount, 0);
  EXPECT_EQ(EventTransferObject().fromPawnID, 0);
  EXPECT_EQ(EventMoveCamera().cameraType, 0);
  EXPECT_EQ(EventMoveCamera().heightModifier, 0.0);
  EXPECT_EQ(EventJump().conID, 0);
  EXPECT_EQ(EventJump().conOwner, 0);
  EXPECT_EQ(EventCheckPersona().value, 0);
  EXPECT_FALSE(EventRandom().bCycleEvents);
  EXPECT_FALSE(EventRandom().bCycleOnce);
  EXPECT_FALSE(EventRandom().bCycleRandom);
  EXPECT_FALSE(EventAddGoal().bGoalCompleted);
}

TEST(NewEvent, HoldsNoTextInASpeechOrAJump) {
  EXPECT_EQ(EventSpeech().speech, "");
  EXPECT_EQ(EventSpeech().audioFile, "");
  EXPECT_EQ(EventJump().label, "");
  EXPECT_EQ(EventJump().conName, "");
}

TEST(NewEvent, OffersNoChoicesAndClearsNoScreen) {
  EXPECT_FALSE(EventChoice().bClearScreen);
  EXPECT_TRUE(EventChoice().Choices.Empty());
}

TEST(ChoiceItem, IsEmptyAndUnspokenWhenNew) {
  const ChoiceItem choice;
  EXPECT_EQ(choice.ID, 0);
  EXPECT_EQ(choice.text, "");
  EXPECT_FALSE(choice.bDisplayAsSpeech);
  EXPECT_EQ(choice.skillLevel, 0);
  EXPECT_EQ(choice.label, "");
  EXPECT_EQ(choice.audioFile, "");
  EXPECT_TRUE(choice.flagRefs.Empty());
}

TEST(EventSpeech, TakesActorsAndFontFromTheCombos) {
  EventSpeech speech;
  speech.Update(ComboShowing(5), ComboShowing(1), "Hello", "hello.mp3", true, false,
                ComboShowing(99, 1));
  EXPECT_EQ(speech.ActorSpeakerID, 5);
  EXPECT_EQ(speech.ActorSpeakingToID, 1);
  EXPECT_EQ(speech.speech, "Hello");
  EXPECT_EQ(speech.audioFile, "hello.mp3");
  EXPECT_TRUE(speech.bBold);
  EXPECT_FALSE(speech.bContinued);
  EXPECT_EQ(speech.speechFont, 1) << "the place in the list, not the number behind it";
  const FakeComboBox none;
  speech.Update(none, none, "", "", false, true, none);
  EXPECT_EQ(speech.ActorSpeakerID, -1);
  EXPECT_EQ(speech.ActorSpeakingToID, -1);
  EXPECT_EQ(speech.speechFont, 0);
  EXPECT_TRUE(speech.bContinued);
}

TEST(EventSpeech, CopiesAllEightFields) {
  EventSpeech source;
  source.Update(ComboShowing(5), ComboShowing(1), "Hello", "hello.mp3", true, true,
                ComboShowing(0, 1));
  source.eventType = 3;
  EventSpeech copy;
  copy.Copy(source);
  EXPECT_EQ(copy.ActorSpeakerID, 5);
  EXPECT_EQ(copy.ActorSpeakingToID, 1);
  EXPECT_EQ(copy.speech, "Hello");
  EXPECT_EQ(copy.audioFile, "hello.mp3");
  EXPECT_TRUE(copy.bContinued);
  EXPECT_TRUE(copy.bBold);
  EXPECT_EQ(copy.speechFont, 1);
  EXPECT_EQ(copy.eventType, 3);
}

std::shared_ptr<ChoiceItem> NewChoice(std::int32_t id) {
  auto choice = std::make_shared<ChoiceItem>();
  choice->ID = id;
  choice->skillID = -1;
  auto flag = std::make_shared<FlagRef>();
  flag->flagID = 2;
  flag->bAdjustedID = true;
  choice->flagRefs.Add(2, flag);
  return choice;
}

TEST(EventChoice, NeverGivesAnIdTwice) {
  EventChoice event;
  EXPECT_EQ(event.nextID(), 0);
  EXPECT_EQ(event.nextID(), 1);
  event.Choices.Add(0, NewChoice(0));
  event.Choices.Add(1, NewChoice(1));
  event.Choices.Remove(1);
  EXPECT_EQ(event.nextID(), 2) << "the ID of a deleted choice stays used";
  event.nextChoiceID = INT32_MAX;
  EXPECT_EQ(ErrorOf([&] { event.nextID(); }), 6);
}

TEST(EventChoice, MissesAudioOfSpokenChoicesOnly) {
  EventChoice event;
  EXPECT_FALSE(event.IsAudioMissing());
  event.Choices.Add(0, NewChoice(0));
  EXPECT_FALSE(event.IsAudioMissing());
  event.Choices.At(0).audioFile = "a.mp3";
  EXPECT_FALSE(event.IsAudioMissing());
  event.Choices.Add(1, NewChoice(1));
  event.Choices.At(1).bDisplayAsSpeech = true;
  EXPECT_TRUE(event.IsAudioMissing());
  event.Choices.At(1).audioFile = "b.mp3";
  EXPECT_FALSE(event.IsAudioMissing());
}

TEST(EventChoice, CopiesChoicesWithFlagListsOfTheirOwn) {
  EventChoice source;
  source.Choices.Add(4, NewChoice(4));
  ChoiceItem& original = source.Choices.At(4);
  original.text = "Yes";
  original.bDisplayAsSpeech = true;
  original.skillID = 1;
  original.skillLevel = 2;
  original.label = "Start";
  original.audioFile = "yes.mp3";
  source.Update(true);
  source.nextChoiceID = 9;
  EventChoice copy;
  copy.Copy(source);
  original.flagRefs.At(2).bValue = true;
  const ChoiceItem& copied = copy.Choices.At(4);
  EXPECT_NE(&copied, &original);
  EXPECT_EQ(copied.ID, 4);
  EXPECT_EQ(copied.text, "Yes");
  EXPECT_TRUE(copied.bDisplayAsSpeech);
  EXPECT_EQ(copied.skillID, 1);
  EXPECT_EQ(copied.skillLevel, 2);
  EXPECT_EQ(copied.label, "Start");
  EXPECT_EQ(copied.audioFile, "yes.mp3");
  EXPECT_NE(&copied.flagRefs.At(2), &original.flagRefs.At(2));
  EXPECT_FALSE(copied.flagRefs.At(2).bValue);
  EXPECT_TRUE(copied.flagRefs.At(2).bAdjustedID);
  EXPECT_TRUE(copy.bClearScreen);
  EXPECT_EQ(copy.nextChoiceID, 9);
}

TEST(ChoiceItem, DropsItsOldFlagsWhenItIsCopiedOver) {
  ChoiceItem target;
  target.flagRefs.Add(7, std::make_shared<FlagRef>());
  target.Copy(*NewChoice(1));
  EXPECT_EQ(target.flagRefs.Count(), 1U);
  EXPECT_NE(target.flagRefs.Find(2), nullptr);
}

TEST(FlagEvents, TakeTheListOverAndCopyItDeep) {
  FlagList flags = NewChoice(0)->flagRefs;
  const FlagRef* handedOver = flags.Find(2);
  EventCheckFlag check;
  check.Update(flags, "End");
  EXPECT_EQ(check.flagRefs.Find(2), handedOver);
  EventSetFlag set;
  set.Update(std::move(flags));
  EXPECT_EQ(set.flagRefs.Find(2), handedOver);
  EventCheckFlag checkCopy;
  checkCopy.Copy(check);
  EventSetFlag setCopy;
  setCopy.Copy(set);
  check.flagRefs.At(2).bValue = true;
  EXPECT_FALSE(checkCopy.flagRefs.At(2).bValue);
  EXPECT_FALSE(setCopy.flagRefs.At(2).bValue);
  EXPECT_EQ(checkCopy.failLabel, "End");
}

TEST(EventJump, NotesOwnerAndNameOfItsTargetOnACopy) {
  TestWorkspace space;
  space.conversations.Add(7, 5, "Leaving");
  EventJump source;
  source.Update("Start", 7);
  source.conName = "stale";
  EventJump copy;
  copy.Copy(source);
  EXPECT_EQ(copy.label, "Start");
  EXPECT_EQ(copy.conID, 7);
  EXPECT_EQ(copy.conOwner, 5);
  EXPECT_EQ(copy.conName, "Leaving");
}

TEST(EventJump, TakesOwnerAndNameFromItsSourceWhenItPointsNowhere) {
  const TestWorkspace space;
  EventJump source;
  source.Update("Start", -1);
  source.conOwner = 3;
  source.conName = "Gone";
  EventJump copy;
  copy.Copy(source);
  EXPECT_EQ(copy.conID, -1);
  EXPECT_EQ(copy.conOwner, 3);
  EXPECT_EQ(copy.conName, "Gone");
}

TEST(EventJump, CannotBeCopiedWhenItsTargetIsUnknown) {
  const TestWorkspace space;
  EventJump source;
  source.Update("Start", 7);
  EventJump copy;
  EXPECT_EQ(ErrorOf([&] { copy.Copy(source); }), 91);
}

TEST(EventJump, LosesALinkToTheConversationThatIsRemoved) {
  EventJump jump;
  jump.conID = 7;
  jump.RemoveConversationLinks(8);
  EXPECT_EQ(jump.conID, 7);
  jump.RemoveConversationLinks(7);
  EXPECT_EQ(jump.conID, -1);
}

TEST(EventRandom, CountsOneLessThanItsLabels) {
  EventRandom random;
  EXPECT_EQ(ErrorOf([&] { (void)random.GetLabelCount(); }), 9) << "there never was a label";
  random.ResizeLabels(2);
  EXPECT_EQ(random.GetLabelCount(), 2);
  random.AssignLabel(0, "One");
  random.AssignLabel(2, "Three");
  EXPECT_EQ(random.GetLabel(0), "One");
  EXPECT_EQ(random.GetLabel(1), "");
  EXPECT_EQ(random.GetLabel(2), "Three");
  EXPECT_EQ(ErrorOf([&] { (void)random.GetLabel(3); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)random.GetLabel(-1); }), 9);
  EXPECT_EQ(ErrorOf([&] { random.AssignLabel(3, "x"); }), 9);
  EXPECT_EQ(ErrorOf([&] { random.AssignLabel(-1, "x"); }), 9);
}

TEST(EventRandom, LosesItsLabelsWhenItIsResized) {
  EventRandom random;
  random.ResizeLabels(1);
  random.AssignLabel(0, "One");
  random.ResizeLabels(2);
  EXPECT_EQ(random.GetLabel(0), "");
  EXPECT_EQ(random.GetLabelCount(), 2);
  EXPECT_EQ(ErrorOf([&] { random.ResizeLabels(-1); }), 9);
  random.ResizeLabels(32768);
  EXPECT_EQ(ErrorOf([&] { (void)random.GetLabelCount(); }), 6) << "beyond 16 bits";
}

TEST(EventRandom, TakesItsLabelsFromTheListAndGivesThemBack) {
  EventRandom random;
  random.Update(FakeListBox({{"One"}, {"Two"}, {"One"}}), true, false, true);
  EXPECT_EQ(random.Labels(), (std::vector<std::string>{"One", "Two", "One"}));
  EXPECT_TRUE(random.bCycleEvents);
  EXPECT_FALSE(random.bCycleOnce);
  EXPECT_TRUE(random.bCycleRandom);
  EventRandom copy;
  copy.Copy(random);
  FakeListBox list({{"old"}});
  copy.PopulateLabelsList(list);
  EXPECT_EQ(list.rows, (std::vector<testing_support::FakeRow>{{"One"}, {"Two"}, {"One"}}));
  EXPECT_TRUE(copy.bCycleRandom);
  EXPECT_EQ(ErrorOf([&] { random.Update(FakeListBox(), false, false, false); }), 9);
}

TEST(EventCheckPersona, TurnsItsValueIntoANumber) {
  EventCheckPersona persona;
  persona.Update(2, 4, " -77 ", "Start");
  EXPECT_EQ(persona.personaType, 2);
  EXPECT_EQ(persona.condition, 4);
  EXPECT_EQ(persona.value, -77);
  EXPECT_EQ(persona.jumpLabel, "Start");
  EXPECT_EQ(ErrorOf([&] { persona.Update(0, 0, "many", ""); }), 13);
  EXPECT_EQ(ErrorOf([&] { persona.Update(0, 0, "", ""); }), 13);
  EXPECT_EQ(ErrorOf([&] { persona.Update(0, 0, "2147483648", ""); }), 6);
}

TEST(NumberOfText, RoundsHalfToEvenAndRefusesWhatIsNoNumber) {
  const std::pair<const char*, std::int32_t> numbers[] = {
      {"12", 12}, {"+5", 5}, {"2.5", 2}, {"3.5", 4}, {"-0.5", 0}, {"1e3", 1000}, {"\t8 ", 8}};
  for (const auto& [text, number] : numbers) EXPECT_EQ(NumberOfText(text), number) << text;
  for (const char* text : {"", " ", "x", "12x", "1 2", "nan", "inf", "+-5", "+", "-"}) {
    EXPECT_EQ(ErrorOf([&] { (void)NumberOfText(text); }), 13) << text;
  }
  EXPECT_EQ(ErrorOf([] { (void)NumberOfText("1e999"); }), 6);
}

TEST(EventMoveCamera, NeverComesToBeBasedOnSpeakersByUpdate) {
  const FakeComboBox position = ComboShowing(0, 6);
  const FakeComboBox transition = ComboShowing(0, 1);
  EventMoveCamera camera;
  camera.cameraType = 1;
  camera.Update(position, transition, true, false);
  EXPECT_EQ(camera.cameraType, 0);
  EXPECT_EQ(camera.cameraPosition, 6);
  EXPECT_EQ(camera.cameraTransition, 1);
  camera.Update(ComboShowing(0, 2), ComboShowing(0, 0), false, true);
  EXPECT_EQ(camera.cameraType, 2);
  EXPECT_EQ(camera.cameraPosition, 6) << "taken for a predefined position only";
  EXPECT_EQ(camera.cameraTransition, 0);
  camera.Update(position, transition, false, false);
  EXPECT_EQ(camera.cameraType, 3);
  camera.Update(FakeComboBox(), FakeComboBox(), true, true);
  EXPECT_EQ(camera.cameraType, 0);
  EXPECT_EQ(camera.cameraPosition, -1);
  EXPECT_EQ(camera.cameraTransition, -1);
}

TEST(EventAddGoal, DropsTextAndPrimaryMarkOfACompletedGoal) {
  EventAddGoal goal;
  goal.Update("Escape", true, "Find it", true);
  EXPECT_EQ(goal.goalName, "Escape");
  EXPECT_TRUE(goal.bGoalCompleted);
  EXPECT_EQ(goal.goalText, "");
  EXPECT_FALSE(goal.bPrimaryGoal);
  goal.Update("Escape", false, "Find it", true);
  EXPECT_EQ(goal.goalText, "Find it");
  EXPECT_TRUE(goal.bPrimaryGoal);
}

TEST(EffectEvents, StoreWhatUpdateIsGiven) {
  EventAnimation animation;
  animation.Update(ComboShowing(5), "Wave", true, 12, true);
  EXPECT_EQ(animation.PawnID, 5);
  EXPECT_EQ(animation.SeqName, "Wave");
  EXPECT_EQ(animation.playMode, 0);
  EXPECT_EQ(animation.playLength, 12);
  EXPECT_TRUE(animation.bFinishAnim);
  animation.Update(FakeComboBox(), "Wave", false, 0, false);
  EXPECT_EQ(animation.PawnID, -1);
  EXPECT_EQ(animation.playMode, 1);
  EventTrade trade;
  trade.Update(ComboShowing(5));
  EXPECT_EQ(trade.PawnID, 5);
  trade.Update(FakeComboBox());
  EXPECT_EQ(trade.PawnID, -1);
  EventTransferObject transfer;
  transfer.Update(4, 3, -1, 2, "End");
  EXPECT_EQ(transfer.objectID, 4);
  EXPECT_EQ(transfer.transferCount, 3);
  EXPECT_EQ(transfer.fromPawnID, -1);
  EXPECT_EQ(transfer.toPawnID, 2);
  EXPECT_EQ(transfer.failLabel, "End");
  EventAddSkillPoints points;
  points.Update(250, "Well done");
  EXPECT_EQ(points.pointsToAdd, 250);
  EXPECT_EQ(points.awardMessage, "Well done");
}

}  // namespace
}  // namespace parlate

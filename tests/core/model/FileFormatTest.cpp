// The bytes of a conversation file against files that were put together by hand.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "support/ConversationScript.h"
#include "support/FileBytes.h"
#include "support/SampleFile.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing_support::FileBytes;
using testing_support::HeaderFields;
using testing_support::OneEventFile;
using testing_support::OpenFile;
using testing_support::SampleFile;
using testing_support::SampleFileSaved;
using testing_support::SampleTables;
using testing_support::TableFields;
using testing_support::TestWorkspace;

class FileFormat : public testing::Test {
 protected:
  void Load(const std::string& bytes) { ASSERT_TRUE(open_.Load(bytes)); }

  TestWorkspace space_;
  OpenFile open_{space_};
};

class FileOfVersion : public FileFormat, public testing::WithParamInterface<int> {};

TEST_P(FileOfVersion, IsSavedAsVersion28WithTheDefaultsOfWhatItLacked) {
  Load(SampleFile(GetParam()));
  EXPECT_EQ(open_.file.versionNum, GetParam());
  EXPECT_EQ(open_.Save(), SampleFileSaved(GetParam()));
}

TEST_P(FileOfVersion, FillsInWhatIsYoungerThanItself) {
  const int version = GetParam();
  Load(SampleFile(version));
  const ConversationFile& file = open_.file;
  EXPECT_EQ(file.AudioPackage, version >= 23 ? "Audio07" : "Audio01");
  EXPECT_EQ(file.GetMissionCount(), version >= 23 ? 2 : 1);
  EXPECT_EQ(file.GetFirstMission(), version >= 17 ? 3 : 0);
  const Conversation& con = *file.Conversations.Place(1);
  EXPECT_EQ(con.Description, version >= 22 ? "She says hello" : "");
  EXPECT_EQ(con.bCanBeInterrupted, version >= 26);
  EXPECT_EQ(con.bCannotBeInterrupted, version >= 28);
  EXPECT_TRUE(con.bHoloCallCon);
  EXPECT_EQ(con.flagRefs.At(2).expiration, version >= 19 ? 4 : 0);
  const auto* choice = open_.Event(1, 2).As<EventChoice>();
  ASSERT_NE(choice, nullptr);
  EXPECT_EQ(choice->Choices.At(3).audioFile, "yes.mp3");
  EXPECT_EQ(choice->Choices.At(3).flagRefs.Count(), 1U);
  EXPECT_EQ(open_.Event(1, 6).As<EventTransferObject>()->transferCount, version >= 27 ? 3 : 1);
  for (const EventItem& event : con.events) {
    if (const auto* random = event.As<EventRandom>()) {
      EXPECT_EQ(random->bCycleEvents, version >= 24);
      EXPECT_EQ(random->bCycleOnce, version >= 24);
      EXPECT_EQ(random->bCycleRandom, version >= 25);
    }
    if (const auto* points = event.As<EventAddSkillPoints>()) {
      EXPECT_EQ(points->awardMessage, version >= 27 ? "Well done" : "");
    }
    const auto* goal = event.As<EventAddGoal>();
    if (goal != nullptr && goal->goalName == "Arrive") {
      EXPECT_EQ(goal->bGoalCompleted, version >= 20);
      EXPECT_EQ(goal->goalText, version >= 20 ? "" : "Old text");
      EXPECT_EQ(goal->bPrimaryGoal, version < 20);
    }
  }
}

TEST_P(FileOfVersion, EndsItsConversationWithAnEnd) {
  Load(SampleFile(GetParam()));
  const auto& events = open_.file.Conversations.Place(1)->events;
  EXPECT_EQ(events.Place(events.Count())->eventType, kEnd);
  EXPECT_EQ(events.Count(), GetParam() == 14                       ? 22U  // no comment
                            : GetParam() == 15                     ? 20U  // no trigger, no goals
                            : GetParam() >= 16 && GetParam() <= 20 ? 21U  // no points, no credits
                            : GetParam() <= 23                     ? 22U  // no persona
                                                                   : 23U);
}

INSTANTIATE_TEST_SUITE_P(From14To28, FileOfVersion, testing::Range(14, 29),
                         [](const auto& tested) { return std::to_string(tested.param); });

TEST_F(FileFormat, ReadsTheHeader) {
  Load(SampleFile(28));
  const ConversationFile& file = open_.file;
  EXPECT_EQ(file.CreationDate, 36526.25);
  EXPECT_EQ(file.CreatedBy, "anna");
  EXPECT_EQ(file.LastUpdated, 36527.5);
  EXPECT_EQ(file.LastUpdatedBy, "ben");
  EXPECT_EQ(file.notes, "file notes");
  EXPECT_EQ(file.GetMission(1), 98);
  EXPECT_EQ(file.CurrentKey(), 12);
  EXPECT_FALSE(file.IsModified());
  EXPECT_EQ(file.Conversations.KeyAt(1), 0);
  EXPECT_EQ(file.Conversations.KeyAt(2), 7);
}

TEST_F(FileFormat, ReadsAConversation) {
  Load(SampleFile(28));
  const Conversation& con = *open_.file.Conversations.Place(1);
  EXPECT_EQ(con.currentEventKey, 60);
  EXPECT_EQ(con.conName, "Greeting");
  EXPECT_EQ(con.CreationDate, 36100.125);
  EXPECT_EQ(con.CreatedBy, "anna");
  EXPECT_EQ(con.LastUpdated, 36101.625);
  EXPECT_EQ(con.LastUpdatedBy, "ben");
  EXPECT_EQ(con.NPCID, 1);
  EXPECT_EQ(con.notes, "her notes");
  EXPECT_TRUE(con.bDisplayOnce && con.bNonInteractive && con.bInvokeFrob && con.bInvokeRadius);
  EXPECT_FALSE(con.bFirstPerson || con.bRandomCamera || con.bInvokeBump || con.bInvokeSight);
  EXPECT_EQ(con.invokeRadius, 320);
  EXPECT_TRUE(con.flagRefs.At(2).bValue);
  EXPECT_FALSE(con.flagRefs.At(3).bValue);
  EXPECT_TRUE(con.IsValidLabel("start"));
  EXPECT_TRUE(con.IsValidLabel("END"));
  EXPECT_EQ(con.Labels.Count(), 2U) << "events without a label add none";
}

TEST_F(FileFormat, ReadsEveryEventType) {
  Load(SampleFile(28));
  const Conversation& con = *open_.file.Conversations.Place(1);
  std::vector<std::int32_t> types;
  for (const EventItem& event : con.events) types.push_back(event.eventType);
  EXPECT_THAT(types, ElementsAre(0, 1, 2, 3, 4, 5, 6, 6, 6, 6, 7, 8, 9, 10, 11, 12, 12, 13, 14, 15,
                                 16, 17, 18));
  EXPECT_EQ(con.events.Place(5)->key, 14);
  EXPECT_EQ(con.events.Place(5)->listPos, 4);
  const auto* speech = open_.Event(1, 1).As<EventSpeech>();
  EXPECT_EQ(speech->ActorSpeakerID, 1);
  EXPECT_EQ(speech->ActorSpeakingToID, -1);
  EXPECT_EQ(speech->speech, "Hello\r\nthere");
  EXPECT_EQ(speech->audioFile, "hello.mp3");
  EXPECT_TRUE(speech->bContinued);
  EXPECT_FALSE(speech->bBold);
  EXPECT_EQ(speech->speechFont, 1);
  const auto* choice = open_.Event(1, 2).As<EventChoice>();
  EXPECT_EQ(choice->nextChoiceID, 5);
  EXPECT_TRUE(choice->bClearScreen);
  EXPECT_EQ(choice->Choices.At(3).text, "Yes");
  EXPECT_TRUE(choice->Choices.At(3).bDisplayAsSpeech);
  EXPECT_EQ(choice->Choices.At(3).skillID, 1);
  EXPECT_EQ(choice->Choices.At(3).skillLevel, 2);
  EXPECT_EQ(choice->Choices.At(3).label, "Start");
  EXPECT_EQ(choice->Choices.At(4).skillID, -1);
  EXPECT_FALSE(choice->Choices.At(4).bDisplayAsSpeech);
  const auto* set = open_.Event(1, 3).As<EventSetFlag>();
  EXPECT_EQ(set->flagRefs.KeyAt(1), 3);
  EXPECT_EQ(set->flagRefs.At(3).expiration, 9);
  EXPECT_EQ(open_.Event(1, 4).As<EventCheckFlag>()->failLabel, "End");
  EXPECT_EQ(open_.Event(1, 5).As<EventCheckObject>()->objectID, 4);
  const auto* transfer = open_.Event(1, 6).As<EventTransferObject>();
  EXPECT_EQ(transfer->objectID, 4);
  EXPECT_EQ(transfer->fromPawnID, -1);
  EXPECT_EQ(transfer->toPawnID, 0);
  EXPECT_EQ(transfer->failLabel, "End");
  const auto* speakers = open_.Event(1, 8).As<EventMoveCamera>();
  EXPECT_EQ(speakers->cameraPosition, 2);
  EXPECT_EQ(speakers->rotationYaw, -20);
  EXPECT_EQ(speakers->heightModifier, 1.5);
  EXPECT_EQ(speakers->centerModifier, -0.25);
  EXPECT_EQ(speakers->distanceMultiplier, 2.0);
  const auto* actor = open_.Event(1, 9).As<EventMoveCamera>();
  EXPECT_EQ(actor->rotationRoll, -3);
  EXPECT_EQ(actor->cameraX, 400);
  EXPECT_EQ(actor->cameraZ, 600);
  EXPECT_EQ(open_.Event(1, 10).As<EventMoveCamera>()->cameraPosition, -1);
  const auto* animation = open_.Event(1, 11).As<EventAnimation>();
  EXPECT_EQ(animation->PawnID, 5);
  EXPECT_EQ(animation->SeqName, "Wave");
  EXPECT_EQ(animation->playMode, 1);
  EXPECT_EQ(animation->playLength, 12);
  EXPECT_TRUE(animation->bFinishAnim);
  EXPECT_EQ(open_.Event(1, 12).As<EventTrade>()->PawnID, 0);
  EXPECT_EQ(open_.Event(1, 13).As<EventJump>()->conID, 7);
  EXPECT_EQ(open_.Event(1, 13).As<EventJump>()->conName, "");
  EXPECT_THAT(open_.Event(1, 14).As<EventRandom>()->Labels(), ElementsAre("Start", "End"));
  EXPECT_EQ(open_.Event(1, 15).As<EventTrigger>()->triggerTag, "Alarm");
  const auto* goal = open_.Event(1, 16).As<EventAddGoal>();
  EXPECT_EQ(goal->goalName, "Escape");
  EXPECT_EQ(goal->goalText, "Find the door");
  EXPECT_TRUE(goal->bPrimaryGoal);
  EXPECT_EQ(open_.Event(1, 18).As<EventAddNote>()->noteText, "A note");
  EXPECT_EQ(open_.Event(1, 19).As<EventAddSkillPoints>()->pointsToAdd, 250);
  EXPECT_EQ(open_.Event(1, 20).As<EventAddCredits>()->creditsToAdd, -50);
  const auto* persona = open_.Event(1, 21).As<EventCheckPersona>();
  EXPECT_EQ(persona->personaType, 2);
  EXPECT_EQ(persona->condition, 3);
  EXPECT_EQ(persona->value, 77);
  EXPECT_EQ(persona->jumpLabel, "Nowhere");
  EXPECT_EQ(open_.Event(1, 22).As<EventComment>()->commentText, "A comment");
}

TEST_F(FileFormat, BeginsEveryFileWithMagicEndMarkAndVersion) {
  const std::string bytes = open_.Save();
  EXPECT_EQ(bytes.substr(0, 25), "Orrivex Conversation File");
  EXPECT_EQ(bytes.substr(25, 5), std::string("\x1A\x1C\0\0\0", 5));
}

TEST_F(FileFormat, WritesANewFileWithNothingInIt) {
  HeaderFields header;
  header.creationDate = header.lastUpdated = testing_support::kSavedAt;
  header.createdBy = header.lastUpdatedBy = testing_support::kSavedBy;
  header.audioPackage = header.notes = "";
  header.missions = {};
  EXPECT_EQ(open_.Save(), FileBytes(28).Start().Header(header).Tables({}).I32(0).I32(0).Bytes());
}

TEST_F(FileFormat, IgnoresTheEndMarkAndWhateverLiesBehindTheLastRecord) {
  std::string bytes = SampleFile(28);
  bytes[25] = 'x';
  Load(bytes + "old bytes of a longer file");
  EXPECT_EQ(open_.Save(), SampleFileSaved(28));
}

TEST_F(FileFormat, KeepsAll256BytesOfEveryText) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(static_cast<unsigned char>(i));
  TableFields tables;
  tables.actors = {{0, all}};
  HeaderFields header;
  header.notes = header.audioPackage = header.createdBy = all;
  const auto compose = [&](const HeaderFields& fields) {
    testing_support::ConversationFields con;
    con.conName = con.description = con.notes = all;
    con.owner = {0, all};
    FileBytes file(28);
    file.Start().Header(fields).Tables(tables).I32(1).I32(1).Conversation(con).I32(1);
    return file.Event(0, 1, kComment, all).Str(all).Bytes();
  };
  Load(compose(header));
  EXPECT_EQ(open_.Event(1, 1).As<EventComment>()->commentText, all);
  header.lastUpdated = testing_support::kSavedAt;
  header.lastUpdatedBy = testing_support::kSavedBy;
  EXPECT_EQ(open_.Save(), compose(header));
}

TEST_F(FileFormat, KeepsExtremeNumbers) {
  const double infinity = std::numeric_limits<double>::infinity();
  FileBytes payload(28);
  payload.I32(1).I32(INT32_MIN).I32(INT32_MAX).I32(INT32_MIN).I32(INT32_MAX).I32(-1);
  payload.F64(infinity).F64(-0.0).F64(std::numeric_limits<double>::denorm_min());
  Load(OneEventFile(28, SampleTables(), kMoveCamera, payload.Bytes()).Bytes());
  EXPECT_TRUE(open_.Save().ends_with(payload.Bytes()));
}

TEST_F(FileFormat, StoresNothingBehindAnAbsentActor) {
  FileBytes payload(28);
  payload.I32(-1).I32(-9).Str("Hm").Str("").Bool(false).Bool(false).I32(0);
  Load(OneEventFile(28, SampleTables(), kSpeech, payload.Bytes()).Bytes());
  EXPECT_EQ(open_.Event(1, 1).As<EventSpeech>()->ActorSpeakingToID, -9);
  EXPECT_TRUE(open_.Save().ends_with(payload.Bytes()));
}

TEST_F(FileFormat, StoresNeitherNameNorLevelBehindAnAbsentSkill) {
  FileBytes payload(28);
  payload.I32(2).Bool(false).I32(2);
  payload.I32(0).Str("Wait").Bool(false).I32(-1).Str("Start").Str("wait.mp3").I32(0);
  payload.I32(1).Str("Go").Bool(true).I32(-7).Str("").Str("").I32(0);
  Load(OneEventFile(28, SampleTables(), kChoice, payload.Bytes()).Bytes());
  const auto& choices = open_.Event(1, 1).As<EventChoice>()->Choices;
  EXPECT_EQ(choices.At(0).label, "Start");
  EXPECT_EQ(choices.At(0).audioFile, "wait.mp3");
  EXPECT_EQ(choices.At(1).skillID, -7);
  choices.At(0).skillLevel = 3;  // left over from a skill that was taken away
  EXPECT_TRUE(open_.Save().ends_with(payload.Bytes()));
}

TEST_F(FileFormat, StoresNoFieldsOfACameraThatItsTypeDoesNotAskFor) {
  Load(OneEventFile(28, SampleTables(), kMoveCamera, FileBytes(28).I32(0).I32(5).I32(1).Bytes())
           .Bytes());
  auto* camera = open_.Event(1, 1).As<EventMoveCamera>();
  camera->cameraX = 7;
  camera->heightModifier = 2;
  const std::string predefined = open_.Save();
  EXPECT_TRUE(predefined.ends_with(FileBytes(28).I32(0).I32(5).I32(1).Bytes()));
  camera->cameraType = 9;
  EXPECT_EQ(open_.Save().size(), predefined.size());
}

TEST_F(FileFormat, StoresNeitherTextNorMarkOfACompletedGoal) {
  Load(OneEventFile(28, SampleTables(), kAddGoal,
                    FileBytes(28).Str("Escape").Bool(false).Str("Find it").Bool(true).Bytes())
           .Bytes());
  open_.Event(1, 1).As<EventAddGoal>()->bGoalCompleted = true;
  const std::string bytes = open_.Save();
  EXPECT_TRUE(bytes.ends_with(FileBytes(28).Str("Escape").Bool(true).Bytes()));
  ClearTables();
  Load(bytes);
  EXPECT_EQ(open_.Event(1, 1).As<EventAddGoal>()->goalText, "");
  EXPECT_FALSE(open_.Event(1, 1).As<EventAddGoal>()->bPrimaryGoal);
}

TEST_F(FileFormat, WritesAnyTrueBooleanAsMinusOne) {
  const auto payload = [](std::int32_t value) {
    return FileBytes(28).I32(1).Str("a").I32(value).I32(0).I32(0).Bytes();
  };
  Load(OneEventFile(28, SampleTables(), kRandomLabel, payload(65536)).Bytes());
  EXPECT_TRUE(open_.Save().ends_with(payload(-1)));
}

TEST_F(FileFormat, TakesTheSameCodeForWhatItMeansInEachVersion) {
  // Code 12 of version 15, with no payload behind it.
  Load(OneEventFile(15, SampleTables(), kEnd, "").Bytes());
  EXPECT_NE(open_.Event(1, 1).As<EventEnd>(), nullptr);
  ClearTables();
  const std::string goal = FileBytes(24).Str("Goal").Bool(true).Bytes();
  Load(OneEventFile(24, SampleTables(), 12, goal).Bytes());
  EXPECT_NE(open_.Event(1, 1).As<EventAddGoal>(), nullptr);
}

TEST_F(FileFormat, KeepsConversationsInTheOrderOfTheTree) {
  Load(SampleFile(28));
  open_.tree.keys = {7, 0};
  const std::string bytes = open_.Save();
  ClearTables();
  Load(bytes);
  EXPECT_EQ(open_.file.Conversations.KeyAt(1), 7);
  EXPECT_EQ(open_.file.Conversations.Place(2)->events.Count(), 23U);
}

TEST_F(FileFormat, KeepsEventsInTheirOrderThoughTheirRowsAndKeysSayAnother) {
  FileBytes file(28);
  file.Start().Header({}).Tables({}).I32(1).I32(1).Conversation({}).I32(3);
  FileBytes events(28);
  events.Event(5, 9, kComment, "").Str("first");
  events.Event(0, 3, kComment, "").Str("second");
  events.Event(2, 7, kComment, "").Str("third");
  Load(file.Raw(events.Bytes()).Bytes());
  const auto& loaded = open_.file.Conversations.Place(1)->events;
  std::vector<std::pair<std::int32_t, std::string>> rows;
  for (const EventItem& event : loaded) {
    rows.emplace_back(event.listPos, event.As<EventComment>()->commentText);
  }
  EXPECT_THAT(rows,
              ElementsAre(std::pair(5, "first"), std::pair(0, "second"), std::pair(2, "third")));
  for (const std::int32_t key : {9, 3, 7}) EXPECT_EQ(loaded.At(key).key, key);
  EXPECT_TRUE(open_.Save().ends_with(events.Bytes()));
}

TEST_F(FileFormat, KeepsTwoEventsOfOneLabelAsOneLabel) {
  testing_support::ConversationFields con;
  FileBytes file(28);
  file.Start().Header({}).Tables({}).I32(1).I32(1).Conversation(con).I32(2);
  file.Event(0, 1, kEnd, "Start").Event(1, 2, kEnd, "START");
  Load(file.Bytes());
  Conversation& loaded = *open_.file.Conversations.Place(1);
  EXPECT_EQ(loaded.Labels.Count(), 1U);
  loaded.EventRemove(2);
  EXPECT_FALSE(loaded.IsValidLabel("Start"));
}

TEST_F(FileFormat, StampsAndSettlesTheFileOnASave) {
  Load(SampleFile(28));
  open_.file.SetModified(true, nullptr);
  space_.moment = 46000.25;
  space_.workspace.defaults.Username = "carl";
  EXPECT_EQ(open_.Save(), SampleFileSaved(28, 46000.25, "carl"));
  EXPECT_FALSE(open_.file.IsModified());
  EXPECT_EQ(open_.file.LastUpdatedBy, "carl");
}

TEST_F(FileFormat, ShowsItsProgressOncePerConversation) {
  Load(testing_support::HarbourFile());
  EXPECT_EQ(open_.progress.caption, "Loading Conversations...");
  EXPECT_THAT(open_.progress.texts, ElementsAre("Tables", "greeting", "Arrival", "Leaving"));
  EXPECT_THAT(open_.progress.tops, ElementsAre(2, 3)) << "the count stands behind the tables";
  EXPECT_THAT(open_.progress.values, ElementsAre(1, 2, 3));
  EXPECT_FALSE(open_.progress.showing);
  open_.progress = {};
  (void)open_.Save();
  EXPECT_EQ(open_.progress.caption, "Saving Conversations...");
  EXPECT_THAT(open_.progress.texts, ElementsAre("Tables", "greeting", "Arrival", "Leaving"));
  EXPECT_THAT(open_.progress.tops, ElementsAre(3));
  EXPECT_THAT(open_.progress.values, ElementsAre(1, 2, 3));
  EXPECT_FALSE(open_.progress.showing);
}

TEST_F(FileFormat, ForgetsTheConversationsThatWereThere) {
  Load(SampleFile(28));
  ClearTables();
  open_.tree.keys.clear();
  Load(SampleFile(20));
  EXPECT_EQ(open_.file.Conversations.Count(), 2U);
}

}  // namespace
}  // namespace parlate

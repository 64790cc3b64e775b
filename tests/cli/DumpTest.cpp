#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "CliRun.h"
#include "support/SampleFile.h"
#include "support/TemporaryFolder.h"

namespace parlate::cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;
using Ordered = nlohmann::ordered_json;

class Dump : public testing::Test {
 protected:
  [[nodiscard]] Ordered Of(const std::string& bytes) const {
    const std::string path = folder_.File("in.con");
    WriteBytes(path, bytes);
    const Ran ran = RunTool({"dump", path});
    EXPECT_EQ(ran.code, 0);
    EXPECT_THAT(ran.err, IsEmpty());
    EXPECT_EQ(ran.out.find('\n'), ran.out.size() - 1) << "one value on one line";
    return Ordered::parse(ran.out);
  }
  static std::vector<std::string> KeysOf(const Ordered& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.items()) keys.push_back(key);
    return keys;
  }

  TemporaryFolder folder_;
};

TEST_F(Dump, HasTheHeaderAndTheTables) {
  const Ordered file = Of(testing_support::SampleFile(28));
  EXPECT_THAT(KeysOf(file), ElementsAre("versionNum", "CreationDate", "CreatedBy", "LastUpdated",
                                        "LastUpdatedBy", "AudioPackage", "notes", "missions",
                                        "currentKey", "tables", "nextTableID", "Conversations"));
  EXPECT_EQ(file["versionNum"], 28);
  EXPECT_EQ(file["CreationDate"], 36526.25);
  EXPECT_EQ(file["CreatedBy"], "anna");
  EXPECT_EQ(file["LastUpdatedBy"], "ben");
  EXPECT_EQ(file["AudioPackage"], "Audio07");
  EXPECT_EQ(file["missions"], Ordered::parse("[3, 98]"));
  EXPECT_EQ(file["currentKey"], 12);
  EXPECT_EQ(file["tables"], Ordered::parse(R"({
    "Actors/Pawn": [{"ID": 1, "Name": "Maya é"}, {"ID": 0, "Name": "Alex"},
                    {"ID": 5, "Name": "Bob"}],
    "Skill": [{"ID": 1, "Name": "Computers"}],
    "Flag": [{"ID": 2, "Name": "Door"}, {"ID": 3, "Name": "Lamp"}],
    "Object": [{"ID": 4, "Name": "Key"}, {"ID": 9, "Name": "Rope"}]})"));
  EXPECT_EQ(file["nextTableID"],
            Ordered::parse(R"({"Actors/Pawn": 6, "Skill": 2, "Flag": 4, "Object": 10})"));
}

TEST_F(Dump, HasEveryFieldOfAConversation) {
  Ordered con = Of(testing_support::SampleFile(28))["Conversations"][0];
  EXPECT_EQ(con["events"].size(), 23U);
  con.erase("events");
  EXPECT_EQ(con, Ordered::parse(R"({
    "key": 0, "conName": "Greeting", "Description": "She says hello", "NPCID": 1,
    "bHoloCallCon": true, "notes": "her notes",
    "flagRefs": [{"flagID": 2, "bValue": true, "expiration": 4},
                 {"flagID": 3, "bValue": false, "expiration": 9}],
    "Labels": ["Start", "End"], "bDisplayOnce": true, "bFirstPerson": false,
    "bNonInteractive": true, "bRandomCamera": false, "bCanBeInterrupted": true,
    "bCannotBeInterrupted": true, "bInvokeBump": false, "bInvokeFrob": true,
    "bInvokeSight": false, "bInvokeRadius": true, "invokeRadius": 320,
    "CreationDate": 36100.125, "CreatedBy": "anna", "LastUpdated": 36101.625,
    "LastUpdatedBy": "ben", "currentEventKey": 60})"));
}

TEST_F(Dump, HasThePayloadOfEveryType) {
  const Ordered events = Of(testing_support::SampleFile(28))["Conversations"][0]["events"];
  const char* const payloads[] = {
      R"({"ActorSpeakerID": 1, "ActorSpeakingToID": -1, "speech": "Hello\r\nthere",
          "audioFile": "hello.mp3", "bContinued": true, "bBold": false, "speechFont": 1})",
      R"({"bClearScreen": true, "Choices": [
           {"ID": 3, "text": "Yes", "bDisplayAsSpeech": true, "skillID": 1, "skillLevel": 2,
            "label": "Start", "audioFile": "yes.mp3",
            "flagRefs": [{"flagID": 2, "bValue": true, "expiration": 4}]},
           {"ID": 4, "text": "No", "bDisplayAsSpeech": false, "skillID": -1, "skillLevel": 0,
            "label": "", "audioFile": "", "flagRefs": []}], "nextChoiceID": 5})",
      R"({"flagRefs": [{"flagID": 3, "bValue": false, "expiration": 9},
                       {"flagID": 2, "bValue": true, "expiration": 4}]})",
      R"({"flagRefs": [{"flagID": 2, "bValue": true, "expiration": 4}], "failLabel": "End"})",
      R"({"objectID": 4, "failLabel": "Start"})",
      R"({"objectID": 4, "transferCount": 3, "fromPawnID": -1, "toPawnID": 0,
          "failLabel": "End"})",
      R"({"cameraType": 0, "cameraPosition": 14, "cameraTransition": 1, "rotationPitch": 0,
          "rotationYaw": 0, "rotationRoll": 0, "cameraX": 0, "cameraY": 0, "cameraZ": 0,
          "heightModifier": 0.0, "centerModifier": 0.0, "distanceMultiplier": 0.0})",
      R"({"cameraType": 1, "cameraPosition": 2, "cameraTransition": 0, "rotationPitch": 10,
          "rotationYaw": -20, "rotationRoll": 30, "cameraX": 0, "cameraY": 0, "cameraZ": 0,
          "heightModifier": 1.5, "centerModifier": -0.25, "distanceMultiplier": 2.0})",
      R"({"cameraType": 2, "cameraPosition": 3, "cameraTransition": 1, "rotationPitch": -1,
          "rotationYaw": -2, "rotationRoll": -3, "cameraX": 400, "cameraY": 500, "cameraZ": 600,
          "heightModifier": 0.0, "centerModifier": 0.0, "distanceMultiplier": 0.0})",
      R"({"cameraType": 3, "cameraPosition": -1, "cameraTransition": 0, "rotationPitch": 0,
          "rotationYaw": 0, "rotationRoll": 0, "cameraX": 0, "cameraY": 0, "cameraZ": 0,
          "heightModifier": 0.0, "centerModifier": 0.0, "distanceMultiplier": 0.0})",
      R"({"PawnID": 5, "SeqName": "Wave", "playMode": 1, "playLength": 12,
          "bFinishAnim": true})",
      R"({"PawnID": 0})",
      R"({"label": "Start", "conID": 7})",
      R"({"labels": ["Start", "End"], "bCycleEvents": true, "bCycleOnce": true,
          "bCycleRandom": true})",
      R"({"triggerTag": "Alarm"})",
      R"({"goalName": "Escape", "bGoalCompleted": false, "goalText": "Find the door",
          "bPrimaryGoal": true})",
      R"({"goalName": "Arrive", "bGoalCompleted": true, "goalText": "", "bPrimaryGoal": false})",
      R"({"noteText": "A note"})",
      R"({"pointsToAdd": 250, "awardMessage": "Well done"})",
      R"({"creditsToAdd": -50})",
      R"({"personaType": 2, "condition": 3, "value": 77, "jumpLabel": "Nowhere"})",
      R"({"commentText": "A comment"})",
      R"({})"};
  ASSERT_EQ(events.size(), std::size(payloads));
  for (std::size_t i = 0; i < events.size(); ++i) {
    EXPECT_THAT(KeysOf(events[i]),
                ElementsAre("listPos", "key", "eventType", "eventLabel", "eventObject"));
    EXPECT_EQ(events[i]["listPos"], i);
    EXPECT_EQ(events[i]["key"], i + 10);
    EXPECT_EQ(events[i]["eventObject"], Ordered::parse(payloads[i]));
  }
  EXPECT_EQ(events[0]["eventLabel"], "Start");
  EXPECT_EQ(events[22]["eventType"], 18);
}

TEST_F(Dump, WritesNullForWhatIsNoNumber) {
  testing_support::HeaderFields header;
  header.creationDate = std::numeric_limits<double>::quiet_NaN();
  header.lastUpdated = -std::numeric_limits<double>::infinity();
  testing_support::FileBytes bytes(28);
  bytes.Start().Header(header).Tables({}).I32(0).I32(0);
  const Ordered file = Of(bytes.Bytes());
  EXPECT_TRUE(file["CreationDate"].is_null());
  EXPECT_TRUE(file["LastUpdated"].is_null());
}

TEST_F(Dump, GivesTheVersionAndTypesOfAnOldFileAsItReadsThem) {
  const Ordered file = Of(testing_support::SampleFile(15));
  EXPECT_EQ(file["versionNum"], 15);
  EXPECT_EQ(file["Conversations"][0]["events"].back()["eventType"], 18);
}

}  // namespace
}  // namespace parlate::cli

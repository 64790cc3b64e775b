#include "cli/Json.h"

#include <string>

#include "general/CodePage.h"

namespace parlate::cli {

namespace {

Json Text(const std::string& codePageText) { return ToUtf8(codePageText); }

bool Bool(Boolean value) { return value; }

Json FlagsToJson(const FlagList& flagRefs) {
  Json list = Json::array();
  for (const FlagRef& flag : flagRefs) {
    list.push_back(
        {{"flagID", flag.flagID}, {"bValue", Bool(flag.bValue)}, {"expiration", flag.expiration}});
  }
  return list;
}

Json ObjectToJson(const EventSpeech& e) {
  return {{"ActorSpeakerID", e.ActorSpeakerID}, {"ActorSpeakingToID", e.ActorSpeakingToID},
          {"speech", Text(e.speech)},           {"audioFile", Text(e.audioFile)},
          {"bContinued", Bool(e.bContinued)},   {"bBold", Bool(e.bBold)},
          {"speechFont", e.speechFont}};
}

Json ObjectToJson(const EventChoice& e) {
  Json choices = Json::array();
  for (const ChoiceItem& choice : e.Choices) {
    choices.push_back({{"ID", choice.ID},
                       {"text", Text(choice.text)},
                       {"bDisplayAsSpeech", Bool(choice.bDisplayAsSpeech)},
                       {"skillID", choice.skillID},
                       {"skillLevel", choice.skillLevel},
                       {"label", Text(choice.label)},
                       {"audioFile", Text(choice.audioFile)},
                       {"flagRefs", FlagsToJson(choice.flagRefs)}});
  }
  return {{"bClearScreen", Bool(e.bClearScreen)},
          {"Choices", choices},
          {"nextChoiceID", e.nextChoiceID}};
}

Json ObjectToJson(const EventSetFlag& e) { return {{"flagRefs", FlagsToJson(e.flagRefs)}}; }

Json ObjectToJson(const EventCheckFlag& e) {
  return {{"flagRefs", FlagsToJson(e.flagRefs)}, {"failLabel", Text(e.failLabel)}};
}

Json ObjectToJson(const EventCheckObject& e) {
  return {{"objectID", e.objectID}, {"failLabel", Text(e.failLabel)}};
}

Json ObjectToJson(const EventTransferObject& e) {
  return {{"objectID", e.objectID},
          {"transferCount", e.transferCount},
          {"fromPawnID", e.fromPawnID},
          {"toPawnID", e.toPawnID},
          {"failLabel", Text(e.failLabel)}};
}

Json ObjectToJson(const EventMoveCamera& e) {
  return {{"cameraType", e.cameraType},
          {"cameraPosition", e.cameraPosition},
          {"cameraTransition", e.cameraTransition},
          {"rotationPitch", e.rotationPitch},
          {"rotationYaw", e.rotationYaw},
          {"rotationRoll", e.rotationRoll},
          {"cameraX", e.cameraX},
          {"cameraY", e.cameraY},
          {"cameraZ", e.cameraZ},
          {"heightModifier", e.heightModifier},
          {"centerModifier", e.centerModifier},
          {"distanceMultiplier", e.distanceMultiplier}};
}

Json ObjectToJson(const EventAnimation& e) {
  return {{"PawnID", e.PawnID},
          {"SeqName", Text(e.SeqName)},
          {"playMode", e.playMode},
          {"playLength", e.playLength},
          {"bFinishAnim", Bool(e.bFinishAnim)}};
}

Json ObjectToJson(const EventTrade& e) { return {{"PawnID", e.PawnID}}; }

Json ObjectToJson(const EventJump& e) { return {{"label", Text(e.label)}, {"conID", e.conID}}; }

Json ObjectToJson(const EventRandom& e) {
  Json labels = Json::array();
  for (const std::string& label : e.Labels()) labels.push_back(Text(label));
  return {{"labels", labels},
          {"bCycleEvents", Bool(e.bCycleEvents)},
          {"bCycleOnce", Bool(e.bCycleOnce)},
          {"bCycleRandom", Bool(e.bCycleRandom)}};
}

Json ObjectToJson(const EventTrigger& e) { return {{"triggerTag", Text(e.triggerTag)}}; }

Json ObjectToJson(const EventAddGoal& e) {
  return {{"goalName", Text(e.goalName)},
          {"bGoalCompleted", Bool(e.bGoalCompleted)},
          {"goalText", Text(e.goalText)},
          {"bPrimaryGoal", Bool(e.bPrimaryGoal)}};
}

Json ObjectToJson(const EventAddNote& e) { return {{"noteText", Text(e.noteText)}}; }

Json ObjectToJson(const EventAddSkillPoints& e) {
  return {{"pointsToAdd", e.pointsToAdd}, {"awardMessage", Text(e.awardMessage)}};
}

Json ObjectToJson(const EventAddCredits& e) { return {{"creditsToAdd", e.creditsToAdd}}; }

Json ObjectToJson(const EventCheckPersona& e) {
  return {{"personaType", e.personaType},
          {"condition", e.condition},
          {"value", e.value},
          {"jumpLabel", Text(e.jumpLabel)}};
}

Json ObjectToJson(const EventComment& e) { return {{"commentText", Text(e.commentText)}}; }

Json ObjectToJson(const EventEnd&) { return Json::object(); }

}  // namespace

Json EventToJson(const EventItem& event) {
  Json object = Json::object();
  event.Visit([&object](const auto& concrete) { object = ObjectToJson(concrete); });
  return {{"listPos", event.listPos},
          {"key", event.key},
          {"eventType", event.eventType},
          {"eventLabel", Text(event.eventLabel)},
          {"eventObject", std::move(object)}};
}

Json ConversationToJson(const Conversation& con) {
  Json events = Json::array();
  for (const EventItem& event : con.events) events.push_back(EventToJson(event));
  Json labels = Json::array();
  for (const LabelItem& label : con.Labels) labels.push_back(Text(label.Name));
  return {{"key", con.key},
          {"conName", Text(con.conName)},
          {"Description", Text(con.Description)},
          {"NPCID", con.NPCID},
          {"bHoloCallCon", Bool(con.bHoloCallCon)},
          {"notes", Text(con.notes)},
          {"events", std::move(events)},
          {"flagRefs", FlagsToJson(con.flagRefs)},
          {"Labels", std::move(labels)},
          {"bDisplayOnce", Bool(con.bDisplayOnce)},
          {"bFirstPerson", Bool(con.bFirstPerson)},
          {"bNonInteractive", Bool(con.bNonInteractive)},
          {"bRandomCamera", Bool(con.bRandomCamera)},
          {"bCanBeInterrupted", Bool(con.bCanBeInterrupted)},
          {"bCannotBeInterrupted", Bool(con.bCannotBeInterrupted)},
          {"bInvokeBump", Bool(con.bInvokeBump)},
          {"bInvokeFrob", Bool(con.bInvokeFrob)},
          {"bInvokeSight", Bool(con.bInvokeSight)},
          {"bInvokeRadius", Bool(con.bInvokeRadius)},
          {"invokeRadius", con.invokeRadius},
          {"CreationDate", con.CreationDate},
          {"CreatedBy", Text(con.CreatedBy)},
          {"LastUpdated", con.LastUpdated},
          {"LastUpdatedBy", Text(con.LastUpdatedBy)},
          {"currentEventKey", con.currentEventKey}};
}

void WriteJson(std::ostream& out, const Json& value) { out << value << '\n'; }

std::ostream& JsonList::Next() {
  if (!first_) out_ << ',';
  first_ = false;
  return out_;
}

}  // namespace parlate::cli

#include "support/EventFields.h"

#include <sstream>

namespace parlate::testing_support {

namespace {

/// Writes one event down, by one call for its class.
class FieldWriter {
 public:
  void operator()(const EventSpeech& e) {
    Put("speaker", e.ActorSpeakerID).Put("to", e.ActorSpeakingToID).Put("speech", e.speech);
    Put("audio", e.audioFile).Put("continued", e.bContinued).Put("bold", e.bBold);
    Put("font", e.speechFont);
  }
  void operator()(const EventChoice& e) {
    Put("clear", e.bClearScreen).Put("next", e.nextChoiceID);
    for (const ChoiceItem& choice : e.Choices) Put(choice);
  }
  void operator()(const EventSetFlag& e) { Put(e.flagRefs); }
  void operator()(const EventCheckFlag& e) { Put(e.flagRefs).Put("goto", e.failLabel); }
  void operator()(const EventCheckObject& e) { Put("object", e.objectID).Put("fail", e.failLabel); }
  void operator()(const EventTransferObject& e) {
    Put("object", e.objectID).Put("count", e.transferCount).Put("from", e.fromPawnID);
    Put("to", e.toPawnID).Put("fail", e.failLabel);
  }
  void operator()(const EventMoveCamera& e) {
    Put("type", e.cameraType).Put("position", e.cameraPosition);
    Put("transition", e.cameraTransition);
  }
  void operator()(const EventAnimation& e) {
    Put("pawn", e.PawnID).Put("sequence", e.SeqName).Put("mode", e.playMode);
    Put("length", e.playLength).Put("finish", e.bFinishAnim);
  }
  void operator()(const EventTrade& e) { Put("pawn", e.PawnID); }
  void operator()(const EventJump& e) { Put("conversation", e.conID).Put("label", e.label); }
  void operator()(const EventRandom& e) {
    Put("cycle", e.bCycleEvents).Put("once", e.bCycleOnce).Put("random", e.bCycleRandom);
    for (const std::string& label : e.Labels()) Put("label", label);
  }
  void operator()(const EventTrigger& e) { Put("tag", e.triggerTag); }
  void operator()(const EventAddGoal& e) {
    Put("name", e.goalName).Put("completed", e.bGoalCompleted).Put("text", e.goalText);
    Put("primary", e.bPrimaryGoal);
  }
  void operator()(const EventAddNote& e) { Put("note", e.noteText); }
  void operator()(const EventAddSkillPoints& e) {
    Put("points", e.pointsToAdd).Put("message", e.awardMessage);
  }
  void operator()(const EventAddCredits& e) { Put("credits", e.creditsToAdd); }
  void operator()(const EventCheckPersona& e) {
    Put("persona", e.personaType).Put("condition", e.condition).Put("value", e.value);
    Put("label", e.jumpLabel);
  }
  void operator()(const EventComment& e) { Put("comment", e.commentText); }
  void operator()(const EventEnd& /*e*/) { text_ << " end"; }

  [[nodiscard]] std::string Text() const { return text_.str(); }

 private:
  FieldWriter& Put(const char* name, std::int32_t value) {
    text_ << ' ' << name << '=' << value;
    return *this;
  }
  FieldWriter& Put(const char* name, Boolean value) {
    text_ << ' ' << name << '=' << BoolToString(value);
    return *this;
  }
  FieldWriter& Put(const char* name, const std::string& value) {
    text_ << ' ' << name << "='";
    for (const char letter : value) {
      if (letter == '\n') text_ << '|';
      if (letter != '\n' && letter != '\r') text_ << letter;
    }
    text_ << '\'';
    return *this;
  }
  FieldWriter& Put(const FlagList& flags) {
    for (const FlagRef& flag : flags) {
      Put("flag", flag.flagID).Put("value", flag.bValue).Put("expiration", flag.expiration);
    }
    return *this;
  }
  void Put(const ChoiceItem& choice) {
    Put("choice", choice.ID).Put("text", choice.text).Put("label", choice.label);
    Put("spoken", choice.bDisplayAsSpeech).Put("audio", choice.audioFile);
    Put("skill", choice.skillID);
    // The level belongs to the skill: without one the file has none.
    if (choice.skillID != -1) Put("level", choice.skillLevel);
    Put(choice.flagRefs);
  }

  std::ostringstream text_;
};

}  // namespace

std::string FieldsOf(const EventItem& event) {
  FieldWriter fields;
  event.Visit([&fields](const auto& object) { fields(object); });
  return std::to_string(event.eventType) + " '" + event.eventLabel + "'" + fields.Text();
}

}  // namespace parlate::testing_support

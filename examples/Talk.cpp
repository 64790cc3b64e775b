#include "Talk.h"

#include <stdexcept>

#include "model/Tables.h"

namespace parlate::example {

namespace {

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

Talk::Talk(Script& script, parlate::Conversation& con, std::int32_t playerID)
    : script_(script), con_(con), playerID_(playerID) {}

Talk& Talk::About(std::string_view description, std::string_view notes) {
  con_.Description = Text(description);
  con_.notes = Text(notes);
  return *this;
}

Talk& Talk::When(std::initializer_list<FlagIs> flags) {
  FillFlags(con_.flagRefs, flags);
  return *this;
}

Talk& Talk::At(std::string_view label) {
  nextLabel_ = Text(label);
  if (!con_.AddLabel(nextLabel_)) throw std::logic_error("label twice: " + nextLabel_);
  return *this;
}

template <class Event>
Talk& Talk::Add(std::int32_t eventType, Event event) {
  auto item = std::make_shared<EventItem>();
  item->listPos = static_cast<std::int32_t>(con_.events.Count());
  const std::int32_t key = con_.NextEventKey();
  item->key = key;
  item->eventLabel = std::exchange(nextLabel_, {});
  item->SetEventObject(eventType, std::move(event));
  last_ = item.get();
  con_.events.Add(key, std::move(item));
  return *this;
}

void Talk::FillFlags(FlagList& list, const std::vector<FlagIs>& flags) {
  for (const FlagIs& wanted : flags) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = script_.Flag(wanted.flag);
    flag->bValue = wanted.value;
    flag->expiration = wanted.expiration;
    list.Add(flag->flagID, flag);
  }
}

std::string Talk::AudioFolder(bool holoCall) const {
  const std::string owner = holoCall ? "HoloMail" : GetTableItemName(kActorTable, con_.NPCID);
  return "Audio01\\" + owner + "\\" + con_.conName + "\\";
}

std::string Talk::AudioOfLine(std::int32_t speaker) {
  return AudioFolder(con_.bHoloCallCon) + GetTableItemName(kActorTable, speaker) +
         TwoDigits(++linesOf_[speaker]) + ".mp3";
}

std::string Talk::AudioOfChoice(std::size_t index) const {
  const auto letter = static_cast<char>('a' + static_cast<int>(index));
  return AudioFolder(false) + "Choice" + TwoDigits(choiceEvents_) + letter + ".mp3";
}

Talk& Talk::Line(std::int32_t speaker, std::int32_t listener, std::string_view speech) {
  EventSpeech event;
  event.ActorSpeakerID = speaker;
  event.ActorSpeakingToID = listener;
  event.speech = Text(speech);
  event.audioFile = AudioOfLine(speaker);
  return Add(kSpeech, std::move(event));
}

Talk& Talk::Says(std::string_view speech) { return Line(con_.NPCID, playerID_, speech); }

Talk& Talk::Player(std::string_view speech) { return Line(playerID_, con_.NPCID, speech); }

Talk& Talk::Say(std::string_view speaker, std::string_view listener, std::string_view speech) {
  return Line(script_.Actor(speaker), script_.Actor(listener), speech);
}

EventSpeech& Talk::LastLine() const {
  auto* speech = last_ == nullptr ? nullptr : last_->As<EventSpeech>();
  if (speech == nullptr) throw std::logic_error("no line to change in " + con_.conName);
  return *speech;
}

Talk& Talk::Continued() {
  LastLine().bContinued = true;
  return *this;
}

Talk& Talk::Bold() {
  LastLine().bBold = true;
  return *this;
}

Talk& Talk::InComputerFont() {
  LastLine().speechFont = 1;
  return *this;
}

Talk& Talk::NotRecorded() {
  LastLine().audioFile.clear();
  return *this;
}

Talk& Talk::Choose(std::initializer_list<Option> options, bool clearScreen) {
  EventChoice event;
  event.bClearScreen = clearScreen;
  ++choiceEvents_;
  for (const Option& option : options) {
    auto choice = std::make_shared<ChoiceItem>();
    choice->ID = event.nextID();
    choice->text = Text(option.text);
    choice->bDisplayAsSpeech = option.spoken;
    choice->skillID = option.skill.empty() ? -1 : script_.Skill(option.skill);
    choice->skillLevel = option.level;
    choice->label = Text(option.goTo);
    if (option.spoken) choice->audioFile = AudioOfChoice(event.Choices.Count());
    FillFlags(choice->flagRefs, option.flags);
    event.Choices.Add(choice->ID, choice);
  }
  return Add(kChoice, std::move(event));
}

Talk& Talk::SetFlags(std::initializer_list<FlagIs> flags) {
  EventSetFlag event;
  FillFlags(event.flagRefs, flags);
  return Add(kSetFlags, std::move(event));
}

Talk& Talk::IfFlags(std::initializer_list<FlagIs> flags, std::string_view goTo) {
  EventCheckFlag event;
  FillFlags(event.flagRefs, flags);
  event.failLabel = Text(goTo);
  return Add(kCheckFlags, std::move(event));
}

Talk& Talk::NeedsObject(std::string_view object, std::string_view elseGoTo) {
  EventCheckObject event;
  event.objectID = script_.Object(object);
  event.failLabel = Text(elseGoTo);
  return Add(kCheckObject, std::move(event));
}

Talk& Talk::Transfer(std::string_view object, std::int32_t count, std::string_view from,
                     std::string_view to, std::string_view failLabel) {
  EventTransferObject event;
  event.objectID = script_.Object(object);
  event.transferCount = count;
  event.fromPawnID = from.empty() ? -1 : script_.Actor(from);
  event.toPawnID = script_.Actor(to);
  event.failLabel = Text(failLabel);
  return Add(kTransferObject, std::move(event));
}

EventMoveCamera Talk::NewCamera(std::int32_t type) {
  EventMoveCamera event;
  event.cameraType = type;
  return event;
}

Talk& Talk::CameraAt(std::int32_t position, bool spline) {
  EventMoveCamera event = NewCamera(EventMoveCamera::kPredefined);
  event.cameraPosition = position;
  event.cameraTransition = spline ? 1 : 0;
  return Add(kMoveCamera, std::move(event));
}

Talk& Talk::CameraAnywhere() { return Add(kMoveCamera, NewCamera(EventMoveCamera::kRandom)); }

Talk& Talk::Animation(std::string_view actor, std::string_view sequence, Play play) {
  EventAnimation event;
  event.PawnID = script_.Actor(actor);
  event.SeqName = Text(sequence);
  event.playMode = play.loop ? 0 : 1;
  event.playLength = play.seconds;
  event.bFinishAnim = play.wait;
  return Add(kPlayAnimation, std::move(event));
}

Talk& Talk::Trade(std::string_view actor) {
  EventTrade event;
  event.PawnID = script_.Actor(actor);
  return Add(kTrade, std::move(event));
}

Talk& Talk::Jump(std::string_view label) {
  EventJump event;
  event.Update(Text(label), con_.key);
  return Add(kJump, std::move(event));
}

Talk& Talk::JumpTo(std::string_view conName, std::string_view label) {
  EventJump event;
  event.Update(Text(label), -1);
  Add(kJump, std::move(event));
  script_.JumpLater(*last_->As<EventJump>(), conName);
  return *this;
}

Talk& Talk::Random(std::initializer_list<std::string_view> labels, bool once, bool random) {
  EventRandom event;
  event.ResizeLabels(static_cast<std::int32_t>(labels.size()) - 1);
  std::int32_t index = 0;
  for (const std::string_view label : labels) event.AssignLabel(index++, Text(label));
  event.bCycleEvents = true;
  event.bCycleOnce = once;
  event.bCycleRandom = random;
  return Add(kRandomLabel, std::move(event));
}

Talk& Talk::AnyOf(std::initializer_list<std::string_view> labels) {
  return Random(labels, false, true);
}

Talk& Talk::OneAfterAnother(std::initializer_list<std::string_view> labels) {
  return Random(labels, true, false);
}

Talk& Talk::Trigger(std::string_view tag) {
  EventTrigger event;
  event.Update(Text(tag));
  return Add(kTrigger, std::move(event));
}

Talk& Talk::Goal(std::string_view name, std::string_view text, bool primary) {
  EventAddGoal event;
  event.Update(Text(name), false, Text(text), primary);
  return Add(kAddGoal, std::move(event));
}

Talk& Talk::GoalDone(std::string_view name) {
  EventAddGoal event;
  event.Update(Text(name), true, {}, false);
  return Add(kAddGoal, std::move(event));
}

Talk& Talk::Note(std::string_view text) {
  EventAddNote event;
  event.noteText = Text(text);
  return Add(kAddNote, std::move(event));
}

Talk& Talk::SkillPoints(std::int32_t points, std::string_view message) {
  EventAddSkillPoints event;
  event.Update(points, Text(message));
  return Add(kAddSkillPoints, std::move(event));
}

Talk& Talk::Credits(std::int32_t credits) {
  EventAddCredits event;
  event.Update(credits);
  return Add(kAddCredits, std::move(event));
}

Talk& Talk::IfPersona(Persona persona, Condition condition, std::int32_t value,
                      std::string_view goTo) {
  EventCheckPersona event;
  event.Update(persona, condition, std::to_string(value), Text(goTo));
  return Add(kCheckPersona, std::move(event));
}

Talk& Talk::Comment(std::string_view text) {
  EventComment event;
  event.Update(Text(text));
  return Add(kComment, std::move(event));
}

Talk& Talk::End() { return Add(kEnd, EventEnd()); }

}  // namespace parlate::example

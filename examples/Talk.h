#pragma once

#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Script.h"
#include "model/Conversation.h"

namespace parlate::example {

/// Skill levels as a choice asks for them.
enum SkillLevel : std::int32_t { kNovice = 0, kIntermediate = 1, kAdvanced = 2, kMaster = 3 };

/// What a persona check looks at, and how it compares.
enum Persona : std::int32_t { kCredits = 0, kHealth = 1, kSkillPoints = 2 };
enum Condition : std::int32_t {
  kLess = 0,
  kLessOrEqual = 1,
  kEqual = 2,
  kGreaterOrEqual = 3,
  kGreater = 4,
};

/// A flag and the value it has, or gets.
struct FlagIs {
  std::string_view flag;
  bool value = true;
  std::int32_t expiration = 0;
};

/// One answer offered to the player. It is spoken, and with an audio file, unless told otherwise.
struct Option {
  std::string_view text;
  std::string_view goTo = {};  ///< Empty goes on with the next event.
  std::string_view skill = {};
  SkillLevel level = kNovice;
  std::vector<FlagIs> flags = {};
  bool spoken = true;
};

/// How an actor plays an animation.
struct Play {
  bool loop = false;
  std::int32_t seconds = 0;
  bool wait = false;
};

/// One conversation, written down event by event. Each call returns the talk, so that a label can
/// stand in front of its event: `talk.At("Fare").Says("Two coins.")`.
class Talk {
 public:
  Talk(Script& script, parlate::Conversation& con, std::int32_t playerID);

  /// The header.
  Talk& About(std::string_view description, std::string_view notes = {});
  Talk& When(std::initializer_list<FlagIs> flags);
  parlate::Conversation& Header() { return con_; }

  /// Names the next event.
  Talk& At(std::string_view label);

  /// The owner to the player, the player to the owner, and anybody to anybody.
  Talk& Says(std::string_view speech);
  Talk& Player(std::string_view speech);
  Talk& Say(std::string_view speaker, std::string_view listener, std::string_view speech);
  /// Change the line that was just said.
  Talk& Continued();
  Talk& Bold();
  Talk& InComputerFont();
  Talk& NotRecorded();

  Talk& Choose(std::initializer_list<Option> options, bool clearScreen = false);
  Talk& SetFlags(std::initializer_list<FlagIs> flags);
  Talk& IfFlags(std::initializer_list<FlagIs> flags, std::string_view goTo);
  Talk& NeedsObject(std::string_view object, std::string_view elseGoTo);
  /// An empty `from` gives the object out of nowhere.
  Talk& Transfer(std::string_view object, std::int32_t count, std::string_view from,
                 std::string_view to, std::string_view failLabel = {});
  Talk& CameraAt(std::int32_t position, bool spline = false);
  Talk& CameraAnywhere();
  Talk& Animation(std::string_view actor, std::string_view sequence, Play play = {});
  Talk& Trade(std::string_view actor);
  Talk& Jump(std::string_view label);
  Talk& JumpTo(std::string_view conName, std::string_view label);
  /// Random order on each round, for ever.
  Talk& AnyOf(std::initializer_list<std::string_view> labels);
  /// One after another, and each only once.
  Talk& OneAfterAnother(std::initializer_list<std::string_view> labels);
  Talk& Trigger(std::string_view tag);
  Talk& Goal(std::string_view name, std::string_view text, bool primary = false);
  Talk& GoalDone(std::string_view name);
  Talk& Note(std::string_view text);
  Talk& SkillPoints(std::int32_t points, std::string_view message);
  Talk& Credits(std::int32_t credits);
  Talk& IfPersona(Persona persona, Condition condition, std::int32_t value, std::string_view goTo);
  Talk& Comment(std::string_view text);
  Talk& End();

 private:
  template <class Event>
  Talk& Add(std::int32_t eventType, Event event);
  void FillFlags(FlagList& list, const std::vector<FlagIs>& flags);
  Talk& Line(std::int32_t speaker, std::int32_t listener, std::string_view speech);
  Talk& Random(std::initializer_list<std::string_view> labels, bool once, bool random);
  EventMoveCamera NewCamera(std::int32_t type);
  [[nodiscard]] EventSpeech& LastLine() const;
  std::string AudioOfLine(std::int32_t speaker);
  [[nodiscard]] std::string AudioOfChoice(std::size_t index) const;
  [[nodiscard]] std::string AudioFolder(bool holoCall) const;

  Script& script_;
  parlate::Conversation& con_;
  std::int32_t playerID_;
  std::string nextLabel_;
  EventItem* last_ = nullptr;
  std::map<std::int32_t, int> linesOf_;  // of each speaker
  int choiceEvents_ = 0;
};

}  // namespace parlate::example

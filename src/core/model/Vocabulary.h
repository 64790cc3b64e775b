#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace parlate {

/// Type codes of the events, as they stand in the file. New types went in ahead of the last two as
/// the format grew, and the numbering is frozen.
enum EventType : std::int32_t {
  kSpeech = 0,
  kChoice = 1,
  kSetFlags = 2,
  kCheckFlags = 3,
  kCheckObject = 4,
  kTransferObject = 5,
  kMoveCamera = 6,
  kPlayAnimation = 7,
  kTrade = 8,
  kJump = 9,
  kRandomLabel = 10,
  kTrigger = 11,
  kAddGoal = 12,
  kAddNote = 13,
  kAddSkillPoints = 14,
  kAddCredits = 15,
  kCheckPersona = 16,
  kComment = 17,
  kEnd = 18,
};

inline constexpr std::int32_t kEventTypeCount = 19;

/// The vocabulary arrays; an index is the code stored in an event.
inline constexpr std::array<std::string_view, 19> eventTypeNames = {"Speech",
                                                                    "Choice",
                                                                    "Set Flags",
                                                                    "Check Flags",
                                                                    "Check Object",
                                                                    "Transfer Object",
                                                                    "Move Camera",
                                                                    "Play Animation",
                                                                    "Buy/Sell/Trade",
                                                                    "Jump",
                                                                    "Random Label",
                                                                    "Trigger",
                                                                    "Add/Complete Goal",
                                                                    "Add Note",
                                                                    "Add Skill Points",
                                                                    "Add Credits",
                                                                    "Check Persona",
                                                                    "Comment",
                                                                    "End"};

// Meant: level 1 is cut short to ten letters wherever it is shown.
inline constexpr std::array<std::string_view, 4> skillLevelNames = {"Novice", "Intermedia",
                                                                    "Advanced", "Master"};

inline constexpr std::array<std::string_view, 2> cameraTransitionNames = {"Jump", "Spline"};

inline constexpr std::array<std::string_view, 15> cameraPositionNames = {
    "Side, Tight",
    "Side, Mid",
    "Side, Above",
    "Side, Above 45 Degrees",
    "Shoulders, Left",
    "Shoulders, Right",
    "Head Shot, Tight",
    "Head Shot, Mid",
    "Head Shot, Left",
    "Head Shot, Right",
    "Head Shot, Slight Right",
    "Head Shot, Slight Left",
    "Straight Above, Looking Down",
    "Straight Below, Looking Up",
    "Below, Looking Up"};

inline constexpr std::array<std::string_view, 2> speechFontNames = {"Normal", "Computer"};

/// Who speaks the choices: the player's character, which has no row of its own.
inline constexpr std::string_view kPlayerName = "MKHollis";

}  // namespace parlate

#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

/// The yardstick of the loader and the saver: the records of a version-28 file as plain structs
/// that hold their texts and lists by value, as one would write them down from the format. Nothing
/// is keyed, looked up, checked, healed or shared. Names that stand beside an ID are kept, as they
/// have to be written again.
namespace parlate::bench::floor {

struct Named {
  std::int32_t id = -1;
  std::string name;
};

struct Flag {
  Named flag;
  bool value = false;
  std::int32_t expiration = 0;
};

struct Speech {
  Named speaker;
  Named listener;
  std::string text;
  std::string audio;
  bool continued = false;
  bool bold = false;
  std::int32_t font = 0;
};

struct Option {
  std::int32_t id = 0;
  std::string text;
  bool spoken = false;
  Named skill;
  std::int32_t level = 0;
  std::string label;
  std::string audio;
  std::vector<Flag> flags;
};

struct Choice {
  std::int32_t nextId = 0;
  bool clears = false;
  std::vector<Option> options;
};

struct SetFlags {
  std::vector<Flag> flags;
};

struct CheckFlags {
  std::vector<Flag> flags;
  std::string label;
};

struct CheckObject {
  Named object;
  std::string label;
};

struct Transfer {
  Named object;
  std::int32_t count = 0;
  Named from;
  Named to;
  std::string label;
};

struct Camera {
  std::int32_t type = 0;
  std::int32_t position = 0;
  std::int32_t transition = 0;
  std::int32_t rotation[3] = {};
  std::int32_t place[3] = {};
  double modifiers[3] = {};
};

struct Animation {
  Named pawn;
  std::string sequence;
  std::int32_t mode = 0;
  std::int32_t length = 0;
  bool finish = false;
};

struct Trade {
  Named pawn;
};

struct Jump {
  std::string label;
  std::int32_t conversation = 0;
};

struct Random {
  std::vector<std::string> labels;
  bool cycles[3] = {};
};

/// A trigger's tag, a note, or a comment.
struct Text {
  std::string text;
};

struct Goal {
  std::string name;
  bool completed = false;
  std::string text;
  bool primary = false;
};

struct Points {
  std::int32_t points = 0;
  std::string message;
};

struct Credits {
  std::int32_t credits = 0;
};

struct Persona {
  std::int32_t type = 0;
  std::int32_t condition = 0;
  std::int32_t value = 0;
  std::string label;
};

struct End {};

struct Event {
  std::int32_t place = 0;
  std::int32_t key = 0;
  std::int32_t type = 0;
  std::string label;
  std::variant<Speech, Choice, SetFlags, CheckFlags, CheckObject, Transfer, Camera, Animation,
               Trade, Jump, Random, Text, Goal, Points, Credits, Persona, End>
      payload;
};

struct Conversation {
  std::int32_t lastEventKey = 0;
  std::int32_t key = 0;
  std::string name;
  std::string description;
  double created = 0;
  std::string createdBy;
  double updated = 0;
  std::string updatedBy;
  Named owner;
  bool holoCall = false;
  std::string notes;
  bool switches[10] = {};
  std::int32_t radius = 0;
  std::vector<Flag> flags;
  std::vector<Event> events;
};

struct File {
  std::int32_t version = 0;
  double created = 0;
  std::string createdBy;
  double updated = 0;
  std::string updatedBy;
  std::string audioPackage;
  std::string notes;
  std::vector<std::int32_t> missions;
  std::vector<Named> tables[4];
  std::int32_t nextKey = 0;
  std::vector<Conversation> conversations;
};

/// Reads a file that is known to be whole. A std::runtime_error if it is none.
[[nodiscard]] File Load(const std::string& path);

/// Puts everything in one buffer and writes it over the file with one call. `expectedSize` is what
/// the buffer is made for. Returns the number of bytes.
std::size_t Save(const File& file, const std::string& path, std::size_t expectedSize);

}  // namespace parlate::bench::floor

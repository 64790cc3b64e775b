#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

/// The yardstick of the loader and the saver: the records of a version-28 file as plain structs
/// that hold their texts and lists by value, as one would write them down from the format. Nothing
/// is keyed, checked, healed or shared. As in the model, a name that stands beside an ID is not
/// kept: it is written from its table, whose rows are taken to be numbered from 0.
namespace parlate::bench::floor {

struct Row {
  std::int32_t id = 0;
  std::string name;
};

struct Flag {
  std::int32_t flag = 0;
  bool value = false;
  std::int32_t expiration = 0;
};

struct Speech {
  std::int32_t speaker = -1;
  std::int32_t listener = -1;
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
  std::int32_t skill = -1;
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
  std::int32_t object = 0;
  std::string label;
};

struct Transfer {
  std::int32_t object = 0;
  std::int32_t count = 0;
  std::int32_t from = -1;
  std::int32_t to = -1;
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
  std::int32_t pawn = -1;
  std::string sequence;
  std::int32_t mode = 0;
  std::int32_t length = 0;
  bool finish = false;
};

struct Trade {
  std::int32_t pawn = -1;
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
  std::variant<End, Speech, Choice, SetFlags, CheckFlags, CheckObject, Transfer, Camera, Animation,
               Trade, Jump, Random, Text, Goal, Points, Credits, Persona>
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
  std::int32_t owner = -1;
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
  std::vector<Row> tables[4];  ///< Actors, flags, skills, objects.
  std::int32_t nextKey = 0;
  std::vector<Conversation> conversations;
};

/// Reads a file that is known to be whole. A std::runtime_error if it is none.
[[nodiscard]] File Load(const std::string& path);

/// Puts everything in one buffer and writes it over the file with one call. `expectedSize` is what
/// the buffer is made for. Returns the number of bytes.
std::size_t Save(const File& file, const std::string& path, std::size_t expectedSize);

}  // namespace parlate::bench::floor

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace parlate::testing_support {

using Rows = std::vector<std::pair<std::int32_t, std::string>>;

/// The four stored tables, in the order of the file.
struct TableFields {
  Rows actors;
  Rows flags;
  Rows skills;
  Rows objects;
};

struct HeaderFields {
  double creationDate = 36526.25;
  std::string createdBy = "anna";
  double lastUpdated = 36527.5;
  std::string lastUpdatedBy = "ben";
  std::string audioPackage = "Audio07";
  std::string notes = "file notes";
  std::vector<std::int32_t> missions = {3, 98};
};

struct FlagFields {
  std::int32_t id = 0;
  std::string name;
  bool value = false;
  std::int32_t expiration = 0;
};

struct ActorFields {
  std::int32_t id = -1;
  std::string name;  ///< In the bytes only for an ID above -1.
};

struct ConversationFields {
  std::int32_t currentEventKey = 0;
  std::int32_t key = 0;
  std::string conName = "Con";
  std::string description;
  double creationDate = 36000.0;
  std::string createdBy = "anna";
  double lastUpdated = 36001.0;
  std::string lastUpdatedBy = "ben";
  ActorFields owner;
  bool holoCall = false;
  std::string notes;
  bool displayOnce = false;
  bool firstPerson = false;
  bool nonInteractive = false;
  bool randomCamera = false;
  bool canBeInterrupted = false;
  bool cannotBeInterrupted = false;
  bool invokeBump = false;
  bool invokeFrob = false;
  bool invokeSight = false;
  bool invokeRadius = false;
  std::int32_t radius = 0;
  std::vector<FlagFields> flags;
};

struct ChoiceFields {
  std::int32_t id = 0;
  std::string text;
  bool spoken = false;
  std::int32_t skillID = -1;
  std::string skillName;
  std::int32_t skillLevel = 0;
  std::string label;
  std::string audioFile;
  std::vector<FlagFields> flags;
};

/// Puts the bytes of a conversation file together by hand, field by field, for any version of the
/// format. It shares nothing with the program's own writer, so the two can be held against each
/// other.
///
/// `layout` is the version that decides which fields there are. `content` is the version that the
/// values come from: a field that is younger has its default. The two differ for the bytes that an
/// old file becomes when it is saved.
class FileBytes {
 public:
  explicit FileBytes(int layout) : FileBytes(layout, layout) {}
  FileBytes(int layout, int content) : layout_(layout), content_(content) {}

  [[nodiscard]] const std::string& Bytes() const { return bytes_; }
  [[nodiscard]] std::size_t Size() const { return bytes_.size(); }
  [[nodiscard]] bool InContent(int since) const { return content_ >= since; }

  FileBytes& Raw(std::string_view bytes);
  FileBytes& I32(std::int32_t value);
  FileBytes& F64(double value);
  FileBytes& Bool(bool value) { return I32(value ? -1 : 0); }
  FileBytes& Str(std::string_view text);
  FileBytes& Actor(const ActorFields& actor);
  FileBytes& Flags(const std::vector<FlagFields>& flags);

  /// Fields that the format has from version `since` on.
  FileBytes& I32Since(int since, std::int32_t value, std::int32_t fallback);
  FileBytes& BoolSince(int since, bool value);
  FileBytes& StrSince(int since, std::string_view value, std::string_view fallback = {});

  /// Magic, end mark and version.
  FileBytes& Start();
  /// What follows the version up to the tables.
  FileBytes& Header(const HeaderFields& header);
  FileBytes& Tables(const TableFields& tables);
  FileBytes& Conversation(const ConversationFields& con);
  FileBytes& Event(std::int32_t listPos, std::int32_t key, std::int32_t type,
                   std::string_view label);
  FileBytes& Choice(const ChoiceFields& choice);

 private:
  int layout_;
  int content_;
  std::string bytes_;
};

/// The code under which a version of the format stores an event type; nothing for a type that the
/// readers of that version cannot come by.
[[nodiscard]] std::optional<std::int32_t> StoredEventType(std::int32_t type, int version);

/// A file with one conversation of one event. `payload` is put behind the event's fields.
[[nodiscard]] FileBytes OneEventFile(int version, const TableFields& tables, std::int32_t type,
                                     std::string_view payload);

/// `bytes` with four of them, at `offset`, replaced by a number.
[[nodiscard]] std::string WithI32At(std::string bytes, std::size_t offset, std::int32_t value);

}  // namespace parlate::testing_support

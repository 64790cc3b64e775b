#pragma once

#include <nlohmann/json.hpp>
#include <ostream>

#include "model/Conversation.h"
#include "model/ConversationFile.h"

namespace parlate::cli {

/// JSON with its keys in the order in which they are put in.
using Json = nlohmann::ordered_json;

/// The whole content of a conversation, of the tables in place, and of the file's header.
[[nodiscard]] Json ConversationToJson(const Conversation& con);
[[nodiscard]] Json EventToJson(const EventItem& event);

/// One value on one line.
void WriteJson(std::ostream& out, const Json& value);

/// A list that is written while it is made: all of it at once can be many times the file.
class JsonList {
 public:
  explicit JsonList(std::ostream& out) : out_(out) { out_ << '['; }
  void Add(const Json& value) { Next() << value; }
  /// For an element that the caller writes.
  std::ostream& Next();
  void Close() { out_ << ']'; }

 private:
  std::ostream& out_;
  bool first_ = true;
};

}  // namespace parlate::cli

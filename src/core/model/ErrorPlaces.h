#pragma once

#include <string>

#include "general/RuntimeError.h"

namespace parlate {

class Conversation;
class EventItem;

/// The name of a conversation for a line that tells of an error: UTF-8, on one line, and cut short
/// where it is very long.
[[nodiscard]] std::string NameInError(const std::string& conName);

/// Put the conversation, or the event of it, in front of the record path. An error of a file or a
/// device is about no one record, and stays as it is.
void AddPlace(RuntimeError& error, const Conversation& con);
void AddPlace(RuntimeError& error, const EventItem& event);

/// Runs the work on a conversation or an event of a file in memory. An error that leaves it learns
/// where it was: conversation "Quarrel" (key 3), event 12.
template <class Record, class Work>
void InPlace(const Record& record, Work work) {
  try {
    work();
  } catch (RuntimeError& error) {
    AddPlace(error, record);
    throw;
  }
}

}  // namespace parlate

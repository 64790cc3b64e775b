#pragma once

#include <cstdint>

#include "model/Conversation.h"
#include "shell/ListRows.h"

namespace parlate {

/// Background colours of event rows, blue-green-red; what each means stands behind it.
enum RowColor : std::int32_t {
  kDefaultRow = -1,
  kBrokenLabelRow = 0xC0C0FF,   ///< Light red: a label that the event names does not exist.
  kMissingAudioRow = 0xFFFFC0,  ///< Light cyan: a spoken line names no audio file.
  kLabelRow = 0xC0FFC0,         ///< Light green: the event bears a label.
  kCommentRow = 0xE0E0E0,       ///< Light grey: a comment.
};

/// The colour of an event's row. Broken labels are reported on the way.
[[nodiscard]] std::int32_t EventRowColor(const Conversation& con, const EventItem& event);

/// The second text of an event's row: empty while the list is not expanded.
[[nodiscard]] std::string EventRowSubText(const EventItem& event);

/// The whole row of an event.
[[nodiscard]] ListRow BuildEventRow(const Conversation& con, const EventItem& event);

}  // namespace parlate

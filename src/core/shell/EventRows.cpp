#include "shell/EventRows.h"

#include "model/Workspace.h"

namespace parlate {

namespace {

bool IsAudioMissing(const EventItem& event) {
  if (const auto* speech = event.As<EventSpeech>()) return speech->IsAudioMissing();
  if (const auto* choice = event.As<EventChoice>()) return choice->IsAudioMissing();
  return false;
}

}  // namespace

std::int32_t EventRowColor(const Conversation& con, const EventItem& event) {
  if (!event.AreLabelsValid(con)) return kBrokenLabelRow;
  const bool highlightAudio = Workspace::Current().defaults.bHighlightMissingAudio;
  if (highlightAudio && IsAudioMissing(event)) return kMissingAudioRow;
  if (!event.eventLabel.empty()) return kLabelRow;
  if (event.eventType == kComment) return kCommentRow;
  return kDefaultRow;
}

std::string EventRowSubText(const EventItem& event) {
  // The text is built either way: a row that cannot be told fails in both views of the list.
  std::string text = event.BuildEventListSubString();
  return Workspace::Current().defaults.ExpandListEnabled ? text : std::string();
}

ListRow BuildEventRow(const Conversation& con, const EventItem& event) {
  ListRow row;
  row.text = event.BuildEventListString();
  row.itemData = event.key;
  row.subText = EventRowSubText(event);
  row.color = EventRowColor(con, event);
  return row;
}

}  // namespace parlate

#include "interchange/ConversationImport.h"

#include <algorithm>
#include <array>

#include "model/Tables.h"
#include "model/Vocabulary.h"

namespace parlate {

namespace {

constexpr std::string_view kConversationBreak = "----------";
constexpr std::string_view kOwner = "Owner:";
constexpr std::string_view kChoiceHead = "CHOICES";
constexpr std::string_view kChoiceField = "CHOICE";
constexpr std::uint64_t kLinesBetweenRepaints = 4096;

bool Holds(const std::string& text, std::string_view searched) {
  return text.find(searched) != std::string::npos;
}

std::string Number(std::size_t number) { return std::to_string(number); }

bool IsOnlyDashes(std::string_view line) {
  return line.find_first_not_of('-') == std::string_view::npos;
}

/// Whether a line that is taken for a text was meant to be what comes behind the text. A text may
/// well stand in brackets, so only the fields of an exported text count.
bool IsFieldOrBreak(std::string line) {
  if (Holds(line, kConversationBreak) && IsOnlyDashes(line)) return true;
  std::string name;
  std::string value;
  if (!ParseImportField(line, name, value)) return false;
  constexpr std::array<std::string_view, 7> kNames = {
      "SPEECH", "COMMENT", kChoiceHead, kChoiceField, "GOAL", "NOTE", "Owner"};
  return std::find(kNames.begin(), kNames.end(), name) != kNames.end();
}

}  // namespace

Boolean ParseImportField(std::string& line, std::string& fieldName, std::string& fieldValue) {
  if (line.empty() || (line.front() != '[' && line.back() != ']')) return false;
  RemoveSpaces(line);
  // A line of one character has nothing between its first and its last.
  const std::string_view whole = line;
  const std::string_view inner = whole.size() < 2 ? "" : whole.substr(1, whole.size() - 2);
  const std::size_t colon = whole.find(':', 1);
  fieldName = inner.substr(0, colon == std::string_view::npos ? colon : colon - 1);
  fieldValue = colon < inner.size() ? inner.substr(colon) : "";
  return true;
}

ConversationImport::ConversationImport(ConversationFile& file, TextReader& text,
                                       ImportListener* listener)
    : file_(file), text_(text), listener_(listener) {
  IndexConversations();
}

void ConversationImport::IndexConversations() {
  const Table& actors = *GetTable(kActorTable);
  for (Conversation& con : file_.Conversations) {
    const TableItem* owner = actors.Find(con.NPCID);
    if (owner != nullptr) conversations_.try_emplace({con.conName, owner->Name}, &con);
  }
}

void ConversationImport::Miss(const Block& block, const std::string& reason) const {
  if (listener_ != nullptr) listener_->NotMatched(block.line, block.text, reason);
}

void ConversationImport::MissBetweenConversations(const std::string& line) {
  if (listener_ == nullptr || gapTold_ || IsOnlyDashes(line)) return;
  Miss({text_.LineNumber(), line}, "stands under no conversation");
  gapTold_ = true;
}

void ConversationImport::MissRest(const std::string& reason) {
  Miss(field_, reason);
  gapTold_ = true;
}

void ConversationImport::MissTextLine(const std::string& text) const {
  if (listener_ == nullptr) return;
  if (text.empty()) Miss(field_, "has no text line");
  if (IsFieldOrBreak(text)) Miss(field_, "takes the next field for its text");
}

void ConversationImport::ReadLine(std::string& line) {
  ReadNonBlankLine(text_, line);
  if (progress_ == nullptr || text_.LineNumber() < nextRepaint_) return;
  nextRepaint_ = text_.LineNumber() + kLinesBetweenRepaints;
  progress_->LetRepaint();
}

void ConversationImport::ImportConversations(ProgressDisplay& progress) {
  progress_ = &progress;
  nextRepaint_ = text_.LineNumber() + kLinesBetweenRepaints;
  progress.Begin("Importing Conversations...", "", static_cast<int>(file_.Conversations.Count()));
  int imported = 0;
  while (!text_.AtEnd()) {
    const Conversation* con = ImportCon();
    if (con != nullptr) progress.Step(con->conName, ++imported);
  }
  if (header_.line == 0)
    Miss({text_.LineNumber(), ""}, "the text names no owner of a conversation");
  progress.End();
  progress_ = nullptr;
  file_.SetModified(true, nullptr);
}

Conversation* ConversationImport::ImportCon() {
  std::string conName;
  std::string ownerName;
  if (!GetImportConHeader(conName, ownerName)) return nullptr;
  const auto found = conversations_.find({conName, ownerName});
  if (found == conversations_.end()) {
    gapTold_ = true;
    Miss(header_, "the file has no conversation \"" + conName + "\" of \"" + ownerName + "\"");
    return nullptr;
  }
  ImportEvents(*found->second);
  return found->second;
}

Boolean ConversationImport::GetImportConHeader(std::string& conName, std::string& ownerName) {
  std::string unused;
  std::string line;
  do {
    ReadLine(line);
    if (!Holds(line, kOwner)) {
      MissBetweenConversations(line);
      continue;
    }
    gapTold_ = false;
    header_.line = text_.LineNumber();
    ParseImportField(line, unused, ownerName);
    header_.text = line;
    ReadLine(line);
    ParseImportField(line, unused, conName);
    return true;
  } while (!text_.AtEnd());
  return false;
}

Boolean ConversationImport::GetNextField(std::string& fieldName, std::string& fieldValue,
                                         std::string& text) {
  std::string& line = field_.text;
  ReadLine(line);
  field_.line = text_.LineNumber();
  if (Holds(line, kConversationBreak)) {
    if (!IsOnlyDashes(line)) MissRest("ten dashes end the conversation");
    return false;
  }
  if (!ParseImportField(line, fieldName, fieldValue)) {
    if (!line.empty()) MissRest("not a field; the rest of the conversation is passed over");
    return false;
  }
  // A line that ended no more than the choices of an event.
  gapTold_ = false;
  if (fieldName == kChoiceHead) return true;
  ReadLine(text);
  MissTextLine(text);
  return true;
}

void ConversationImport::ImportEvents(Conversation& con) {
  std::int16_t pos = 0;
  std::string fieldName;
  std::string fieldValue;
  std::string text;
  while (GetNextField(fieldName, fieldValue, text)) {
    if (fieldName == "SPEECH") {
      ImportSpeechEvent(con.events, pos, text);
    } else if (fieldName == "COMMENT") {
      ImportCommentEvent(con.events, pos, text);
    } else if (fieldName == kChoiceHead) {
      ImportChoiceEvent(con.events, pos, text);
    } else if (fieldName == "GOAL") {
      ImportGoalEvent(con.events, pos, text);
    } else if (fieldName == "NOTE") {
      ImportNoteEvent(con.events, pos, text);
    } else {
      Miss(field_, "no field that is imported here");
    }
  }
}

EventItem* ConversationImport::FindNext(Events& events, std::int16_t& pos, std::int32_t eventType) {
  // A place that 16 bits cannot count is beyond the end of every file.
  while (pos < INT16_MAX) {
    const auto place = static_cast<std::size_t>(++pos);
    if (place > events.Count()) break;
    EventItem& event = *events.Place(place);
    if (event.eventType == eventType) return &event;
  }
  if (listener_ != nullptr) {
    Miss(field_, "no event of the type " +
                     std::string(eventTypeNames[static_cast<std::size_t>(eventType)]) +
                     " is left in the conversation");
  }
  return nullptr;
}

void ConversationImport::ImportSpeechEvent(Events& events, std::int16_t& pos,
                                           const std::string& text) {
  if (auto* speech = Next<EventSpeech>(events, pos, kSpeech)) speech->speech = text;
}

void ConversationImport::ImportCommentEvent(Events& events, std::int16_t& pos,
                                            const std::string& text) {
  if (auto* comment = Next<EventComment>(events, pos, kComment)) comment->commentText = text;
}

void ConversationImport::ImportGoalEvent(Events& events, std::int16_t& pos,
                                         const std::string& text) {
  if (auto* goal = Next<EventAddGoal>(events, pos, kAddGoal)) goal->goalText = text;
}

void ConversationImport::ImportNoteEvent(Events& events, std::int16_t& pos,
                                         const std::string& text) {
  if (auto* note = Next<EventAddNote>(events, pos, kAddNote)) note->noteText = text;
}

void ConversationImport::ImportChoiceEvent(Events& events, std::int16_t& pos, std::string& text) {
  auto* eventChoice = Next<EventChoice>(events, pos, kChoice);
  if (eventChoice == nullptr) return;
  const std::size_t count = eventChoice->Choices.Count();
  const Block head = listener_ == nullptr ? Block() : field_;
  std::string fieldName;
  std::string fieldValue;
  std::size_t place = 1;
  Boolean more;
  do {
    more = GetNextField(fieldName, fieldValue, text);
    if (more) SetChoice(*eventChoice, place++, fieldName, text);
  } while (more && place <= count && !text_.AtEnd());
  if (place <= count) {
    Miss(head, "the event has " + Number(count) + " choices, the text " + Number(place - 1));
  }
}

void ConversationImport::SetChoice(EventChoice& eventChoice, std::size_t place,
                                   const std::string& fieldName, const std::string& text) {
  // Meant: an event without choices takes a field of the text all the same, and drops it.
  if (place > eventChoice.Choices.Count()) {
    Miss(field_, "the event has no choices");
    return;
  }
  // Meant: whatever field comes next is taken until the choices of the event have their texts.
  if (fieldName != kChoiceField) Miss(field_, "taken for the text of choice " + Number(place));
  eventChoice.Choices.Place(place)->text = text;
}

}  // namespace parlate

#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "general/Boolean.h"
#include "general/TextFile.h"
#include "model/ConversationFile.h"

namespace parlate {

/// Hears of what the import passes over in silence.
class ImportListener {
 public:
  virtual ~ImportListener() = default;
  /// `line` is the 1-based number of the line that `block` is or stands for, without its blanks.
  virtual void NotMatched(std::uint64_t line, std::string_view block,
                          const std::string& reason) = 0;
};

/// Brings a text that was exported in full, and corrected, back into the events that it came from.
/// The conversation of a block is found by its name and owner, and its texts go to the events of
/// their types in order. Nothing is added, removed or refused: what cannot be matched is dropped.
///
/// It lives for one import; names of conversations and actors may not change meanwhile.
class ConversationImport {
 public:
  using Events = KeyedCollection<EventItem>;

  ConversationImport(ConversationFile& file, TextReader& text, ImportListener* listener = nullptr);

  /// The whole text, behind the progress dialog. The file counts as changed, also if nothing was.
  void ImportConversations(ProgressDisplay& progress);
  /// The next conversation of the text; nothing if the text has none left or the file lacks it.
  Conversation* ImportCon();
  void ImportEvents(Conversation& con);
  // Each puts `text` in the next event of its type behind the 1-based place `pos`, which comes to
  // stand on it.
  void ImportSpeechEvent(Events& events, std::int16_t& pos, const std::string& text);
  void ImportCommentEvent(Events& events, std::int16_t& pos, const std::string& text);
  /// Reads the texts of the choices itself; `text` comes to be the last of them.
  void ImportChoiceEvent(Events& events, std::int16_t& pos, std::string& text);
  void ImportGoalEvent(Events& events, std::int16_t& pos, const std::string& text);
  void ImportNoteEvent(Events& events, std::int16_t& pos, const std::string& text);
  /// The next field and the line that belongs to it; the head of the choices has none and leaves
  /// `text` as it is. False at the next conversation and at a line that is no field.
  Boolean GetNextField(std::string& fieldName, std::string& fieldValue, std::string& text);
  /// Skips to the next line that names an owner; false if there is none.
  Boolean GetImportConHeader(std::string& conName, std::string& ownerName);

 private:
  /// A line of the text that a report can name.
  struct Block {
    std::uint64_t line = 0;
    std::string text;
  };

  void IndexConversations();
  [[nodiscard]] EventItem* FindNext(Events& events, std::int16_t& pos, std::int32_t eventType);
  template <class Event>
  [[nodiscard]] Event* Next(Events& events, std::int16_t& pos, std::int32_t eventType) {
    EventItem* item = FindNext(events, pos, eventType);
    return item == nullptr ? nullptr : item->As<Event>();
  }
  void SetChoice(EventChoice& eventChoice, std::size_t place, const std::string& fieldName,
                 const std::string& text);
  /// As `ReadNonBlankLine`; lets the interface repaint now and then.
  void ReadLine(std::string& line);
  void Miss(const Block& block, const std::string& reason) const;
  /// The field ends its conversation, and what is skipped behind it needs no word of its own.
  void MissRest(const std::string& reason);
  void MissTextLine(const std::string& text) const;
  void MissBetweenConversations(const std::string& line);

  ConversationFile& file_;
  TextReader& text_;
  ImportListener* listener_;
  ProgressDisplay* progress_ = nullptr;
  std::uint64_t nextRepaint_ = 0;
  /// By name and owner: the first in the collection.
  std::map<std::pair<std::string_view, std::string_view>, Conversation*> conversations_;
  Block field_;           ///< What `GetNextField` read last.
  Block header_;          ///< What `GetImportConHeader` read last.
  bool gapTold_ = false;  ///< The listener knows of the lines up to the next header.
};

/// Takes the blanks out of `line`, in place, and gives what stands between its first and last
/// character: the name up to the first colon and the value behind it. False, with nothing changed,
/// for a line that neither begins with "[" nor ends with "]".
Boolean ParseImportField(std::string& line, std::string& fieldName, std::string& fieldValue);

}  // namespace parlate

#pragma once

#include <cstdint>
#include <string>

#include "general/Boolean.h"
#include "general/KeyedCollection.h"
#include "general/TextFile.h"
#include "model/ConversationFile.h"

namespace parlate {

/// What a walk over the conversations makes of them.
enum ExportMode : std::int32_t {
  kExportDialog = 0,     ///< The full text with headers; the one that can be imported.
  kExportFilenames = 1,  ///< One line for each spoken line, its fields split by "^".
  kGenerateAudio = 2,    ///< Writes nothing; gives every spoken line its audio file.
};

/// How many lines a speaker had so far in a conversation.
struct ExportSpeakerCounter {
  std::int32_t speakerID = 0;
  std::int16_t count = 0;
};

/// Writes conversations as text, or names their audio files. It lives for one walk.
class ExportConversation {
 public:
  /// Every generated name begins with the package.
  explicit ExportConversation(std::string audioPackage);

  void SetExportComments(Boolean bNewExportComments) { bExportComments_ = bNewExportComments; }
  void SetExportMode(std::int32_t newExportMode) { exportMode_ = newExportMode; }
  /// The text to write to; nothing while audio files are named.
  void SetFileNum(TextWriter* newFileNum) { file_ = newFileNum; }
  /// All of a conversation. RuntimeError 5 for an owner or a speaker without an actor row.
  void ExportCon(Conversation& con);
  void ExportHeader();
  void ExportSpeech(EventSpeech& eventSpeech);
  void ExportChoices(EventChoice& eventChoice);
  void ExportComment(const EventComment& eventComment);
  void ExportGoal(const EventAddGoal& eventAddGoal);
  void ExportNote(const EventAddNote& eventAddNote);

 private:
  void BeginConversationExport(Conversation& con);
  [[nodiscard]] std::string BuildSpeechAudioName(std::int32_t speakerID);
  [[nodiscard]] std::string BuildChoiceAudioName(std::int32_t choiceIndex) const;
  [[nodiscard]] std::int16_t NextSpeakerCount(std::int32_t speakerID);
  [[nodiscard]] std::int16_t GetChoiceCounter() const { return choiceCounter_; }
  void NextChoiceCounter();
  void ExportEvent(EventItem& event);
  void ExportChoice(ChoiceItem& choice, std::int32_t choiceIndex);

  std::string audioPackage_;
  TextWriter* file_ = nullptr;
  Conversation* con_ = nullptr;
  std::int32_t exportMode_ = kExportDialog;
  Boolean bExportComments_;
  KeyedCollection<ExportSpeakerCounter> speakerCounters_;
  std::int16_t choiceCounter_ = 0;
  std::string speechAudioPath_;
  std::string holoCallAudioPath_;
};

/// Exports every conversation in the order of the tree, behind the progress dialog. `text` is
/// nothing while audio files are named.
void ExportConversations(ConversationFile& file, TextWriter* text, std::int32_t exportMode,
                         Boolean bExportComments, const FileHost& host);

}  // namespace parlate

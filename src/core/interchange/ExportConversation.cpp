#include "interchange/ExportConversation.h"

#include <memory>
#include <string_view>
#include <utility>

#include "general/Rounding.h"
#include "general/RuntimeError.h"
#include "model/ErrorPlaces.h"
#include "model/Tables.h"
#include "model/Vocabulary.h"

namespace parlate {

namespace {

constexpr std::string_view kConversationBreak =
    "-----------------------------------------------------------------";
constexpr std::string_view kAudioExtension = ".mp3";

/// At least two digits.
std::string TwoDigits(std::int16_t number) {
  const std::string digits = std::to_string(number);
  return digits.size() < 2 ? "0" + digits : digits;
}

/// a, b and so on; behind z come the next characters of the table, up to its end.
char ChoiceLetter(std::int32_t choiceIndex) {
  constexpr std::int32_t kFirst = 97;
  constexpr std::int32_t kLastCharacter = 255;
  if (choiceIndex > kLastCharacter - kFirst) {
    throw RuntimeError(RuntimeError::kInvalidProcedureCall,
                       "there is no letter for choice " + std::to_string(choiceIndex + 1));
  }
  return static_cast<char>(kFirst + choiceIndex);
}

}  // namespace

ExportConversation::ExportConversation(std::string audioPackage)
    : audioPackage_(std::move(audioPackage)) {}

void ExportConversation::ExportCon(Conversation& con) {
  BeginConversationExport(con);
  ExportHeader();
  for (EventItem& event : con.events) {
    InPlace(event, [&] { ExportEvent(event); });
  }
}

void ExportConversation::BeginConversationExport(Conversation& con) {
  con_ = &con;
  speakerCounters_.Clear();
  choiceCounter_ = 0;
  speechAudioPath_ =
      audioPackage_ + "\\" + GetTableItemName(kActorTable, con.NPCID) + "\\" + con.conName + "\\";
  holoCallAudioPath_ = audioPackage_ + "\\HoloMail\\" + con.conName + "\\";
}

void ExportConversation::ExportEvent(EventItem& event) {
  if (auto* speech = event.As<EventSpeech>()) return ExportSpeech(*speech);
  if (auto* choice = event.As<EventChoice>()) return ExportChoices(*choice);
  if (const auto* goal = event.As<EventAddGoal>()) return ExportGoal(*goal);
  if (const auto* note = event.As<EventAddNote>()) return ExportNote(*note);
  if (const auto* comment = event.As<EventComment>()) return ExportComment(*comment);
}

void ExportConversation::ExportHeader() {
  if (exportMode_ != kExportDialog) return;
  file_->WriteLine(kConversationBreak);
  file_->WriteLine("[Owner: ", GetTableItemName(kActorTable, con_->NPCID), "]");
  file_->WriteLine("[Name:  ", con_->conName, "]");
  file_->WriteLine();
}

void ExportConversation::ExportSpeech(EventSpeech& eventSpeech) {
  const std::int32_t speakerID = eventSpeech.ActorSpeakerID;
  if (exportMode_ == kExportDialog) {
    file_->WriteLine("[SPEECH: ", GetTableItemName(kActorTable, speakerID), "]");
    file_->WriteLine(eventSpeech.speech);
    file_->WriteLine();
  } else if (exportMode_ == kExportFilenames) {
    const std::string audioName = BuildSpeechAudioName(speakerID);
    file_->WriteLine(GetTableItemName(kActorTable, speakerID), "^", audioPackage_, "^",
                     con_->conName, "^", eventSpeech.speech, "^", audioName);
  } else {
    eventSpeech.audioFile = BuildSpeechAudioName(speakerID);
  }
}

void ExportConversation::ExportChoices(EventChoice& eventChoice) {
  NextChoiceCounter();
  if (exportMode_ == kExportDialog) {
    file_->WriteLine("[CHOICES:", std::to_string(eventChoice.Choices.Count()), "]");
    file_->WriteLine();
  }
  std::int32_t choiceIndex = 0;
  for (ChoiceItem& choice : eventChoice.Choices) ExportChoice(choice, choiceIndex++);
}

void ExportConversation::ExportChoice(ChoiceItem& choice, std::int32_t choiceIndex) {
  if (exportMode_ == kExportDialog) {
    file_->WriteLine("[CHOICE:]");
    file_->WriteLine(choice.text);
    file_->WriteLine();
  } else if (exportMode_ == kExportFilenames) {
    file_->WriteLine(kPlayerName, "^", audioPackage_, "^", con_->conName, "^", choice.text, "^",
                     BuildChoiceAudioName(choiceIndex));
  } else {
    choice.audioFile = BuildChoiceAudioName(choiceIndex);
  }
}

void ExportConversation::ExportComment(const EventComment& eventComment) {
  if (exportMode_ != kExportDialog || !bExportComments_) return;
  file_->WriteLine("[COMMENT]");
  file_->WriteLine(eventComment.commentText);
  file_->WriteLine();
}

void ExportConversation::ExportGoal(const EventAddGoal& eventAddGoal) {
  if (exportMode_ != kExportDialog || eventAddGoal.bGoalCompleted) return;
  file_->WriteLine("[GOAL:]");
  file_->WriteLine(eventAddGoal.goalText);
  file_->WriteLine();
}

void ExportConversation::ExportNote(const EventAddNote& eventAddNote) {
  if (exportMode_ != kExportDialog) return;
  file_->WriteLine("[NOTE:]");
  file_->WriteLine(eventAddNote.noteText);
  file_->WriteLine();
}

std::string ExportConversation::BuildSpeechAudioName(std::int32_t speakerID) {
  const std::string& path = con_->bHoloCallCon ? holoCallAudioPath_ : speechAudioPath_;
  const std::string number = TwoDigits(NextSpeakerCount(speakerID));
  return (path + GetTableItemName(kActorTable, speakerID) + number).append(kAudioExtension);
}

std::string ExportConversation::BuildChoiceAudioName(std::int32_t choiceIndex) const {
  // Meant: a choice lies in the owner's folder, over the remote link too.
  return (speechAudioPath_ + "Choice" + TwoDigits(GetChoiceCounter()) + ChoiceLetter(choiceIndex))
      .append(kAudioExtension);
}

std::int16_t ExportConversation::NextSpeakerCount(std::int32_t speakerID) {
  ExportSpeakerCounter* counter = speakerCounters_.Find(speakerID);
  if (counter == nullptr) {
    auto added = std::make_shared<ExportSpeakerCounter>();
    added->speakerID = speakerID;
    counter = added.get();
    speakerCounters_.Add(speakerID, std::move(added));
  }
  counter->count = NarrowTo<std::int16_t>(counter->count + 1);
  return counter->count;
}

void ExportConversation::NextChoiceCounter() {
  choiceCounter_ = NarrowTo<std::int16_t>(choiceCounter_ + 1);
}

void ExportConversations(ConversationFile& file, TextWriter* text, std::int32_t exportMode,
                         Boolean bExportComments, const FileHost& host) {
  host.progress.Begin(
      exportMode == kGenerateAudio ? "Generating Audio Filenames..." : "Exporting Conversations...",
      "", NarrowTo<std::int32_t>(file.Conversations.Count()));
  ExportConversation exporter(file.AudioPackage);
  exporter.SetFileNum(text);
  exporter.SetExportMode(exportMode);
  exporter.SetExportComments(bExportComments);
  int step = 0;
  host.tree.WalkConversations([&](std::int32_t key) {
    Conversation& con = file.Conversations.At(key);
    host.progress.Step(con.conName, ++step);
    InPlace(con, [&] { exporter.ExportCon(con); });
  });
  // A text that does not fit on the disk is a failure of the walk, not of what comes after it.
  if (text != nullptr) text->Flush();
  host.progress.End();
}

}  // namespace parlate

// Text out, corrected text in, and the names of the audio files.

#include <memory>

#include "general/BinaryFile.h"
#include "general/TextFile.h"
#include "interchange/AudioPath.h"
#include "interchange/ConversationImport.h"
#include "interchange/ExportConversation.h"
#include "shell/Shell.h"

namespace parlate {

void Shell::ExportConFile(const std::string& fileName, std::int32_t exportMode,
                          Boolean bExportComments) {
  if (fileName.empty() || !conFile_) return;
  std::unique_ptr<FileSink> sink;
  try {
    sink = std::make_unique<FileSink>(fileName, FileSink::Content::Replace);
  } catch (const RuntimeError& error) {
    TellError(error);
    return;
  }
  // Meant: a failure ends the walk without a word. What was written up to there stays in the file,
  // and the progress dialog on the screen.
  ResumeNext([&] {
    TextWriter text(*sink);
    ExportConversations(*conFile_, &text, exportMode, bExportComments, Host());
  });
}

void Shell::ImportConFile(const std::string& fileName) {
  if (fileName.empty() || !conFile_) return;
  std::unique_ptr<FileSource> source;
  try {
    source = std::make_unique<FileSource>(fileName);
  } catch (const RuntimeError& error) {
    TellError(error);
    return;
  }
  // Meant: nothing is said of what does not match, nor of a failure.
  ResumeNext([&] {
    TextReader text(*source);
    ConversationImport(*conFile_, text).ImportConversations(doors_.progress);
  });
  RefreshEventsList();
}

void Shell::GenerateAudioFilenames() {
  if (!conFile_) return;
  ExportConversations(*conFile_, nullptr, kGenerateAudio, false, Host());
  SetModified(true, nullptr);
  RefreshEventsList();
}

std::string Shell::BuildAudioPath(const Conversation& con) const {
  return parlate::BuildAudioPath(con);
}

void Shell::RefreshEventsList() {
  const std::int32_t selected = events_.ListIndex();
  bUpdatingEvents_ = true;
  UpdateEventsList(selectedCon_);
  events_.SetListIndex(selected);
  bUpdatingEvents_ = false;
  UpdateCommandStates();
}

}  // namespace parlate

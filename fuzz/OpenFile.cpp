#include "OpenFile.h"

#include "general/BinaryFile.h"
#include "general/RuntimeError.h"
#include "shell/EventRows.h"

namespace parlate::fuzzing {

OpenFile::OpenFile() {
  workspace.now = [] { return Date{37000.5}; };
  workspace.defaults.Username = "Fuzzer";
  workspace.messages = this;
  showsFlags = true;
}

OpenFile::Result OpenFile::Load(std::string_view bytes) {
  Result result = Result::Damaged;
  ResumeNext([&] {
    MemorySource source(bytes);
    BinaryReader reader(source);
    result = Read(reader) ? Result::Loaded : Result::Refused;
  });
  return result;
}

std::string OpenFile::Save() {
  MemorySink sink;
  Write(sink);
  return sink.Bytes();
}

void OpenFile::BuildAllRows() {
  for (const bool expanded : {false, true}) {
    workspace.defaults.ExpandListEnabled = expanded;
    for (const Conversation& con : file.Conversations) {
      for (const EventItem& event : con.events) {
        ResumeNext([&] { (void)BuildEventRow(con, event); });
      }
    }
  }
}

void OpenFile::TryAllLabels() {
  ResumeNext([&] { (void)CheckAllLabels(); });
}

Answer OpenFile::Show(const MessageBox&) {
  ++messages_;
  return Answer::Ok;
}

}  // namespace parlate::fuzzing

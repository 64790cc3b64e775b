#include "bench/HostedFile.h"

#include <stdexcept>

#include "general/BinaryFile.h"

namespace parlate::bench {

HostedFile::HostedFile() { workspace.defaults.Username = "A Writer"; }

void HostedFile::Load(const std::string& path) {
  FileSource source(path);
  LoadFrom(source);
}

void HostedFile::LoadBytes(std::string_view bytes) {
  MemorySource source(bytes);
  LoadFrom(source);
}

void HostedFile::LoadFrom(ByteSource& source) {
  BinaryReader reader(source);
  Read(reader);
}

void HostedFile::Save(const std::string& path) {
  FileSink sink(path);
  Write(sink);
}

std::string HostedFile::SaveBytes() {
  MemorySink sink;
  Write(sink);
  return sink.Bytes();
}

Answer HostedFile::Show(const MessageBox& box) { throw std::runtime_error(box.text); }

}  // namespace parlate::bench

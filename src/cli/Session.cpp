#include "cli/Session.h"

#include <algorithm>

#include "cli/OutputFile.h"
#include "general/BinaryFile.h"
#include "general/CodePage.h"

namespace parlate::cli {

namespace {

std::unique_ptr<ByteSource> OpenInput(const std::string& path) {
  std::unique_ptr<ByteSource> source;
  NamingFile(path, [&] { source = std::make_unique<FileSource>(path); });
  return source;
}

}  // namespace

void Session::Load(const std::string& path) {
  const std::unique_ptr<ByteSource> source = OpenInput(path);
  NamingFile(path, [&] { LoadFrom(*source); });
}

void Session::LoadFrom(ByteSource& source) {
  BinaryReader reader(source);
  try {
    Read(reader);
  } catch (const Refusal& refusal) {
    throw Refusal(refusal.what() + (" (offset " + std::to_string(reader.Offset()) + ")"));
  }
}

void Session::Save(const std::string& path) {
  OutputFile output(path);
  Write(output);
  output.Commit();
}

void Session::ForEachConversation(const std::function<void(const Conversation&)>& visit) const {
  WalkConversations([&](std::int32_t key) { visit(file.Conversations.At(key)); });
}

Answer Session::Show(const MessageBox& box) {
  std::string line = ToUtf8(box.text);
  std::replace(line.begin(), line.end(), '\n', ' ');
  throw Refusal(line);
}

}  // namespace parlate::cli

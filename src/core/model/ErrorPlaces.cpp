#include "model/ErrorPlaces.h"

#include <algorithm>

#include "general/CodePage.h"
#include "model/Conversation.h"

namespace parlate {

namespace {

bool IsAboutContent(const RuntimeError& error) {
  const int number = error.Number();
  const bool ofFile =
      number >= RuntimeError::kFileNotFound && number <= RuntimeError::kPathNotFound;
  return !ofFile && number != RuntimeError::kPrinterError;
}

}  // namespace

std::string NameInError(const std::string& conName) {
  constexpr std::size_t kMostShown = 60;  // a damaged file can have a name as long as itself
  std::string name = conName.substr(0, kMostShown);
  std::replace_if(
      name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return ToUtf8(name) + (conName.size() > kMostShown ? "..." : "");
}

void AddPlace(RuntimeError& error, const Conversation& con) {
  if (!IsAboutContent(error)) return;
  error.AddRecord("conversation \"" + NameInError(con.conName) + "\" (key " +
                  std::to_string(con.key) + ")");
}

void AddPlace(RuntimeError& error, const EventItem& event) {
  if (IsAboutContent(error)) error.AddRecord("event " + std::to_string(event.key));
}

}  // namespace parlate

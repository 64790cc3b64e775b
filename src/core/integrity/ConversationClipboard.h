#pragma once

#include <cstdint>
#include <memory>

#include "model/ConversationFile.h"

namespace parlate {

/// The program's own clipboard for one conversation. It outlives the file that the conversation
/// came from: the table rows that it names are kept by name, in the table buffer of the workspace.
class ConversationClipboard {
 public:
  [[nodiscard]] bool Holds() const { return conBuffer_ != nullptr; }
  /// Keeps a copy. RuntimeError 5 for a row that is not there.
  void Copy(const Conversation& con);
  /// Keeps the object itself. RuntimeError 5 for a row that is not there.
  void Take(std::shared_ptr<Conversation> con);
  /// Adds what it holds to a file, under a new key and with the rows of the present tables, and
  /// keeps a copy for the next time. A row that the tables lack is added to them.
  std::shared_ptr<Conversation> Paste(ConversationFile& file);
  /// A row's link changed in the open file; what is held follows.
  void ChangeConTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID);

 private:
  std::shared_ptr<Conversation> conBuffer_;
};

}  // namespace parlate

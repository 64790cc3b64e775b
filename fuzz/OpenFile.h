#pragma once

#include <string>
#include <string_view>

#include "shell/WindowlessFile.h"

namespace parlate::fuzzing {

/// A file opened as the window opens it, with nodes for the flags too. What was read ahead of some
/// damage stays. The clock stands, so that two saves of the same content are the same bytes.
class OpenFile final : public WindowlessFile {
 public:
  OpenFile();

  /// How a reading ended.
  enum class Result { Loaded, Refused, Damaged };

  [[nodiscard]] Result Load(std::string_view bytes);
  /// RuntimeError for a reference that cannot be written.
  [[nodiscard]] std::string Save();
  /// Builds the row of every event in both modes of the list. A row that cannot be told is left
  /// out, as in the window.
  void BuildAllRows();
  void TryAllLabels();

  [[nodiscard]] int Messages() const { return messages_; }

 private:
  Answer Show(const MessageBox& box) override;

  int messages_ = 0;
};

}  // namespace parlate::fuzzing

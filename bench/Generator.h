#pragma once

#include <cstdint>
#include <string>

namespace parlate::bench {

/// What a made-up conversation file is like. The same shape gives the same bytes, always.
struct FileShape {
  int conversations = 2000;
  int events = 500;  ///< In each conversation.
  std::uint64_t seed = 1;
};

/// The bytes of a version-28 file: four events in five are spoken lines of about 60 characters,
/// the rest are of all other types. One event in ten bears a label, every label that is named
/// exists, and every row that is named is in its table.
[[nodiscard]] std::string MakeFile(const FileShape& shape);

/// The name that conversation `index`, counted from 0, has in a made-up file.
[[nodiscard]] std::string ConversationName(int index);

}  // namespace parlate::bench

#pragma once

#include <string_view>

namespace parlate::fuzzing {

/// Opens `bytes` as a conversation file and holds the program to its promises: memory in proportion
/// to the file, one message for a refusal and none otherwise, and a file that was loaded and can be
/// saved comes back the same. A promise that is broken ends the program, with a line that says
/// which.
void CheckLoad(std::string_view bytes);

}  // namespace parlate::fuzzing

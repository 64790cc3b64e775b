#pragma once

#include <string>

#include "model/Conversation.h"

namespace parlate {

/// The folder below the user's audio folder where the lines of a conversation lie, as the platform
/// takes it. All conversations over the remote link share one. RuntimeError 5 for an owner without
/// an actor row.
[[nodiscard]] std::string BuildAudioPath(const Conversation& con);

}  // namespace parlate

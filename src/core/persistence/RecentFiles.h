#pragma once

#include <string>

#include "settings/ConversationDefaults.h"

namespace parlate {

/// Puts a path at the head of the four recent files; one that is in the list, without regard to
/// case, moves there. An empty path does nothing.
void AddRecentFile(ConversationDefaults& defaults, const std::string& path);

}  // namespace parlate

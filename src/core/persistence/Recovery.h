#pragma once

#include <string>

#include "model/ConversationFile.h"

namespace parlate {

/// The name of a rescued file: that of the open file without folder and extension, or "untitled",
/// and the moment as year, month, day and time of day. As "harbour-20260314-174503.con". Only what
/// stands behind the last point is the extension.
[[nodiscard]] std::string RecoveryFileName(const std::string& conFileName, Date moment);

/// Writes all conversations of a file to a new file in `folder`, which is made if need be. What a
/// plain save would stumble over, a reference to a missing row, is written without its name; a
/// missing flag gets a row "Missing_" and its ID in the new file, so that this can be opened again.
/// Returns the path, or nothing when the file could not be written whole.
[[nodiscard]] std::string WriteRecovery(ConversationFile& file, const std::string& folder,
                                        const std::string& name);

}  // namespace parlate

#pragma once

#include <string>

#include "support/FileBytes.h"

namespace parlate::testing_support {

/// Who saves the sample file, and when, unless a test says otherwise.
inline constexpr const char* kSavedBy = "tester";
inline constexpr double kSavedAt = 45000.5;

/// The tables of the sample file. IDs have gaps, and names have bytes above 127.
[[nodiscard]] TableFields SampleTables();

/// A file of two conversations, the first of which has an event of every type that the version can
/// store. The conversations stand in the order of the tree.
[[nodiscard]] std::string SampleFile(int version);

/// The bytes that the same file becomes when it is saved: version 28, with the defaults of the
/// fields that the old version lacked.
[[nodiscard]] std::string SampleFileSaved(int version, double savedAt = kSavedAt,
                                          const std::string& savedBy = kSavedBy);

}  // namespace parlate::testing_support

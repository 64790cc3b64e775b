#pragma once

#include <string>

#include "model/EventItem.h"

namespace parlate::testing_support {

/// Type, label and every field of an event that its panel stores, as in "15 'Pay' credits=-40".
/// Tests compare it where no field may be forgotten. A line break in a text stands as "|".
[[nodiscard]] std::string FieldsOf(const EventItem& event);

}  // namespace parlate::testing_support

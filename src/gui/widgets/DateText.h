#pragma once

#include <QString>

#include "general/Date.h"

namespace parlate {

/// A moment as the user's locale writes date and time, to the nearest second. Empty for a number
/// that is no date of our calendar.
[[nodiscard]] QString DateText(Date date);

}  // namespace parlate

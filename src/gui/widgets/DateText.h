#pragma once

#include <QString>

#include "general/Date.h"

namespace parlate {

/// A moment as the user's locale writes date and time, to the nearest second.
[[nodiscard]] QString DateText(Date date);

}  // namespace parlate

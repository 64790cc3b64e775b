#pragma once

#include <functional>

namespace parlate {

/// A moment as OLE Automation counts it: days since 30 December 1899, the time of day as fraction.
using Date = double;

/// The present moment by the local clock.
[[nodiscard]] Date SystemNow();

/// The day count of a local calendar time. Month 1 to 12, day 1 to 31, hour 0 to 23.
[[nodiscard]] Date MakeDate(int year, int month, int day, int hour = 0, int minute = 0,
                            int second = 0);

/// Where the present moment comes from; a test or a tool hands in its own.
using Clock = std::function<Date()>;

}  // namespace parlate

#include "general/Date.h"

#include <chrono>
#include <ctime>

namespace parlate {

namespace {

constexpr double kSecondsOfDay = 86400.0;

/// Days from 30 December 1899 to a date of the proleptic Gregorian calendar.
int DayCount(int year, int month, int day) {
  using namespace std::chrono;
  const sys_days origin = 1899y / December / 30;
  const sys_days date = std::chrono::year{year} / std::chrono::month{static_cast<unsigned>(month)} /
                        std::chrono::day{static_cast<unsigned>(day)};
  return static_cast<int>((date - origin).count());
}

}  // namespace

Date MakeDate(int year, int month, int day, int hour, int minute, int second) {
  const int seconds = (hour * 60 + minute) * 60 + second;
  return DayCount(year, month, day) + seconds / kSecondsOfDay;
}

Date SystemNow() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return MakeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                  local.tm_min, local.tm_sec);
}

}  // namespace parlate

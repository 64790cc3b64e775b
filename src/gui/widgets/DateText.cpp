#include "widgets/DateText.h"

#include <QDateTime>
#include <QLocale>
#include <cmath>

namespace parlate {

namespace {

constexpr double kSecondsOfDay = 86400;
// The years 100 to 9999 lie well within. A file may hold any number as a date.
constexpr double kMostDays = 3e6;

}  // namespace

QString DateText(Date date) {
  if (!std::isfinite(date) || std::abs(date) >= kMostDays) return {};
  // Ahead of the first day the whole part counts backwards, and the time of day still forwards.
  const double days = std::trunc(date);
  const auto seconds = static_cast<qint64>(std::llround(std::abs(date - days) * kSecondsOfDay));
  const QDateTime midnight(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
  const QDateTime moment = midnight.addDays(static_cast<qint64>(days)).addSecs(seconds);
  // Without a time zone: the moment is local time already.
  return QLocale().toString(QDateTime(moment.date(), moment.time()), QLocale::ShortFormat);
}

}  // namespace parlate

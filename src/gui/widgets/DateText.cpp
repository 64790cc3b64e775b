#include "widgets/DateText.h"

#include <QDateTime>
#include <QLocale>
#include <cmath>

namespace parlate {

QString DateText(Date date) {
  constexpr double kSecondsOfDay = 86400;
  // Ahead of the first day the whole part counts backwards, and the time of day still forwards.
  const double days = std::trunc(date);
  const auto seconds = static_cast<qint64>(std::llround(std::abs(date - days) * kSecondsOfDay));
  const QDateTime midnight(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
  const QDateTime moment = midnight.addDays(static_cast<qint64>(days)).addSecs(seconds);
  // Without a time zone: the moment is local time already.
  return QLocale().toString(QDateTime(moment.date(), moment.time()), QLocale::ShortFormat);
}

}  // namespace parlate

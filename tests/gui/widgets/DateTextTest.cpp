#include <gtest/gtest.h>

#include <QLocale>
#include <limits>

#include "widgets/DateText.h"

namespace parlate {
namespace {

class DateTextTest : public ::testing::Test {
 protected:
  DateTextTest() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
  ~DateTextTest() override { QLocale::setDefault(before_); }

 private:
  QLocale before_;
};

TEST_F(DateTextTest, ADateIsShownWithItsTimeAsTheLocaleWritesThem) {
  EXPECT_EQ(DateText(MakeDate(2026, 3, 5, 14, 30)), "05.03.26 14:30");
  QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
  EXPECT_EQ(DateText(MakeDate(2026, 3, 5, 14, 30)), "05/03/2026 14:30");
}

TEST_F(DateTextTest, TheFractionIsTheTimeOfTheDay) {
  EXPECT_EQ(DateText(0), "30.12.99 00:00");
  EXPECT_EQ(DateText(2.5), "01.01.00 12:00");
}

TEST_F(DateTextTest, AheadOfTheFirstDayTheTimeStillRunsForwards) {
  EXPECT_EQ(DateText(-1.25), "29.12.99 06:00");
}

TEST_F(DateTextTest, AMomentIsRoundedToTheSecondAndNotCutOff) {
  EXPECT_EQ(DateText(MakeDate(2026, 3, 5, 14, 30) - 1e-9), "05.03.26 14:30");
}

TEST_F(DateTextTest, ANumberThatIsNoDateShowsAsNothing) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double date : {1e300, -1e300, 1e19, 3e6, -3e6, kInfinity, -kInfinity,
                            std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(DateText(date), "") << date;
  }
}

TEST_F(DateTextTest, TheFirstAndTheLastDayOfTheCalendarAreShown) {
  EXPECT_EQ(DateText(-657434), "01.01.00 00:00") << "of the year 100";
  EXPECT_EQ(DateText(2958465), "31.12.99 00:00") << "of the year 9999";
}

}  // namespace
}  // namespace parlate

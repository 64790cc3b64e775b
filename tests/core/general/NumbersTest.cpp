#include <gtest/gtest.h>

#include <limits>

#include "general/Boolean.h"
#include "general/Date.h"
#include "general/Numbers.h"
#include "general/Rounding.h"

namespace parlate {
namespace {

template <class Statement>
int ErrorOf(Statement statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(FormatDouble, GivesTheFewestDigitsThatAreEnough) {
  EXPECT_EQ(FormatDouble(2), "2");
  EXPECT_EQ(FormatDouble(1.5), "1.5");
  EXPECT_EQ(FormatDouble(-1.25), "-1.25");
  EXPECT_EQ(FormatDouble(0.1), "0.1");
  EXPECT_EQ(FormatDouble(0), "0");
  EXPECT_EQ(FormatDouble(-0.5), "-0.5");
  EXPECT_EQ(FormatDouble(33.3), "33.3");
  EXPECT_EQ(FormatDouble(123456789), "123456789");
}

TEST(FormatDouble, HasAnExponentOnlyForTheVeryLargeAndTheVerySmall) {
  EXPECT_EQ(FormatDouble(100000), "100000");
  EXPECT_EQ(FormatDouble(-100000), "-100000");
  EXPECT_EQ(FormatDouble(999999999999999), "999999999999999");
  EXPECT_EQ(FormatDouble(1e15), "1e+15");
  EXPECT_EQ(FormatDouble(-1.5e15), "-1.5e+15");
  EXPECT_EQ(FormatDouble(0.0001), "0.0001");
  EXPECT_EQ(FormatDouble(-0.00012345678901234567), "-0.00012345678901234567");
  EXPECT_EQ(FormatDouble(0.00001), "1e-05");
  EXPECT_EQ(FormatDouble(std::numeric_limits<double>::denorm_min()), "5e-324");
}

TEST(ParseInt32, TakesAPlainNumberAndNothingElse) {
  EXPECT_EQ(ParseInt32("17"), 17);
  EXPECT_EQ(ParseInt32("-1"), -1);
  EXPECT_EQ(ParseInt32("2147483647"), INT32_MAX);
  for (const char* text : {"", " 1", "1 ", "1x", "2147483648", "1.5", "--1", "+1"}) {
    EXPECT_EQ(ParseInt32(text), std::nullopt) << text;
  }
}

TEST(Rounding, RoundsHalfToEven) {
  EXPECT_EQ(RoundTo<std::int16_t>(0.5), 0);
  EXPECT_EQ(RoundTo<std::int16_t>(1.5), 2);
  EXPECT_EQ(RoundTo<std::int16_t>(2.5), 2);
  EXPECT_EQ(RoundTo<std::int16_t>(-1.5), -2);
  EXPECT_EQ(RoundTo<std::int16_t>(2.4999), 2);
}

TEST(Rounding, RaisesSixOutsideOfTheType) {
  EXPECT_EQ(RoundTo<std::int16_t>(32767.4), 32767);
  EXPECT_EQ(ErrorOf([] { (void)RoundTo<std::int16_t>(32768); }), 6);
  EXPECT_EQ(ErrorOf([] { (void)RoundTo<std::int16_t>(-32769); }), 6);
  EXPECT_EQ(ErrorOf([] { (void)RoundTo<std::int32_t>(std::numeric_limits<double>::quiet_NaN()); }),
            6);
  EXPECT_EQ(NarrowTo<std::int16_t>(32767), 32767);
  EXPECT_EQ(ErrorOf([] { (void)NarrowTo<std::int16_t>(32768); }), 6);
  EXPECT_EQ(ErrorOf([] { (void)NarrowTo<std::int32_t>(std::uint64_t{1} << 40U); }), 6);
}

TEST(Boolean, IsZeroOrMinusOneInMemory) {
  EXPECT_EQ(sizeof(Boolean), 2U);
  EXPECT_EQ(Boolean().Raw(), 0);
  EXPECT_EQ(Boolean(true).Raw(), -1);
  EXPECT_EQ(BoolToString(Boolean(true)), "True");
  EXPECT_EQ(BoolToString(Boolean(false)), "False");
  EXPECT_EQ(BoolToString(std::int16_t{-1}), "True");
  EXPECT_EQ(BoolToString(std::int16_t{1}), "False") << "only -1 is true";
}

TEST(Date, CountsDaysFromTheEndOf1899) {
  EXPECT_EQ(MakeDate(1899, 12, 30), 0.0);
  EXPECT_EQ(MakeDate(1900, 1, 1), 2.0);
  EXPECT_EQ(MakeDate(2000, 1, 1), 36526.0);
  EXPECT_EQ(MakeDate(2000, 3, 1, 18), 36586.75) << "2000 was a leap year";
  EXPECT_EQ(MakeDate(2000, 1, 1, 0, 30), 36526.0 + 1.0 / 48);
  EXPECT_GT(SystemNow(), MakeDate(2020, 1, 1));
}

}  // namespace
}  // namespace parlate

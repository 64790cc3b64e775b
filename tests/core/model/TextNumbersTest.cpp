#include <gtest/gtest.h>

#include "model/TextNumbers.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::ErrorOf;

TEST(NumericValue, IsTheNumberThatATextBeginsWith) {
  EXPECT_EQ(NumericValue("12"), 12);
  EXPECT_EQ(NumericValue("12abc"), 12);
  EXPECT_EQ(NumericValue("12 34"), 12);
  EXPECT_EQ(NumericValue("  7"), 7);
  EXPECT_EQ(NumericValue("-3 days"), -3);
  EXPECT_EQ(NumericValue("+4"), 4);
  EXPECT_EQ(NumericValue("1e3"), 1) << "digits alone count";
}

TEST(NumericValue, IsZeroForATextThatBeginsWithNone) {
  for (const char* text : {"", "   ", "abc", "a12", "-", "+", "+-4", "-+4", ".", "nan", "inf",
                           "-inf", "infinity", "#5"}) {
    EXPECT_EQ(NumericValue(text), 0) << text;
  }
}

TEST(NumericValue, RoundsAFractionHalfToEven) {
  EXPECT_EQ(NumericValue(".5"), 0);
  EXPECT_EQ(NumericValue("1.5"), 2);
  EXPECT_EQ(NumericValue("2.5"), 2);
  EXPECT_EQ(NumericValue("-1.5x"), -2);
}

TEST(NumericValue, OverflowsBeyondThirtyTwoBits) {
  EXPECT_EQ(NumericValue("2147483647"), 2147483647);
  EXPECT_EQ(NumericValue("-2147483648"), -2147483647 - 1);
  EXPECT_EQ(ErrorOf([] { (void)NumericValue("2147483648"); }), 6);
  EXPECT_EQ(ErrorOf([] { (void)NumericValue("-2147483649"); }), 6);
  EXPECT_EQ(ErrorOf([] { (void)NumericValue("99999999999"); }), 6);
}

}  // namespace
}  // namespace parlate

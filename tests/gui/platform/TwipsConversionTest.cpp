#include <gtest/gtest.h>

#include "platform/TwipsConversion.h"

namespace parlate {
namespace {

TEST(TwipsConversion, AnInchIs1440TwipsAnd96Pixels) {
  EXPECT_EQ(PixelsFromTwips(1440), 96);
  EXPECT_EQ(TwipsFromPixels(96), 1440);
  EXPECT_EQ(PixelsFromTwips(4500), 300);
  EXPECT_EQ(PixelsFromTwips(-30), -2);
  EXPECT_EQ(TwipsFromPixels(-2), -30);
}

TEST(TwipsConversion, GoesToTheNearestPixel) {
  EXPECT_EQ(PixelsFromTwips(7), 0);
  EXPECT_EQ(PixelsFromTwips(8), 1);
  EXPECT_EQ(PixelsFromTwips(-7), 0);
  EXPECT_EQ(PixelsFromTwips(-8), -1);
}

TEST(TwipsConversion, AHalfGoesToTheEvenNumber) {
  EXPECT_EQ(PixelsFromTwips(7.5), 0);
  EXPECT_EQ(PixelsFromTwips(22.5), 2);
  EXPECT_EQ(PixelsFromTwips(37.5), 2);
  EXPECT_EQ(TwipsFromPixels(0.5), 8);
  EXPECT_EQ(TwipsFromPixels(0.1), 2);
  EXPECT_EQ(TwipsFromPixels(0.3), 4);
}

TEST(TwipsConversion, TwipsStopAtTheEndsOfSixteenBits) {
  EXPECT_EQ(TwipsFromPixels(2184), 32760);
  EXPECT_EQ(TwipsFromPixels(2185), 32767);
  EXPECT_EQ(TwipsFromPixels(100000), 32767);
  EXPECT_EQ(TwipsFromPixels(-2185), -32768);
  EXPECT_EQ(TwipsFromPixels(-100000), -32768);
  EXPECT_EQ(StoredTwips(32767), 32767);
  EXPECT_EQ(StoredTwips(33000), 32767);
  EXPECT_EQ(StoredTwips(-40000), -32768);
}

TEST(TwipsConversion, EveryPixelOfAScreenComesBack) {
  for (int pixel = -2184; pixel <= 2184; ++pixel) {
    EXPECT_EQ(PixelsFromTwips(TwipsFromPixels(pixel)), pixel);
  }
}

}  // namespace
}  // namespace parlate

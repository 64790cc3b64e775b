#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "general/IDSet.h"

namespace parlate {
namespace {

TEST(IDSet, HoldsWhatWasAddedAndNothingElse) {
  IDSet ids;
  EXPECT_FALSE(ids.Contains(0));
  const auto lowest = std::numeric_limits<std::int32_t>::min();
  const auto highest = std::numeric_limits<std::int32_t>::max();
  for (const std::int32_t id : {0, 5, 65535, 65536, -1, lowest, highest, 5}) ids.Add(id);
  for (const std::int32_t id : {0, 5, 65535, 65536, -1, lowest, highest}) {
    EXPECT_TRUE(ids.Contains(id)) << id;
  }
  for (const std::int32_t id : {1, 4, 6, 65534, 65537, -2, lowest + 1, highest - 1}) {
    EXPECT_FALSE(ids.Contains(id)) << id;
  }
}

}  // namespace
}  // namespace parlate

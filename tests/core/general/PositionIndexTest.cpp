#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "general/PositionIndex.h"

namespace parlate {
namespace {

/// A sequence of numbers whose hashes are poor on purpose: many numbers share one.
class IndexedNumbers {
 public:
  [[nodiscard]] std::uint32_t HashOf(int number) const {
    return static_cast<std::uint32_t>(number) % hashes_;
  }
  [[nodiscard]] auto HashAt() const {
    return [this](std::size_t i) { return HashOf(items[i]); };
  }

  explicit IndexedNumbers(std::uint32_t hashes) : hashes_(hashes) { Rebuild(); }

  void Rebuild() { index_.Rebuild(items.size(), items.size(), HashAt()); }
  void Append(int number) {
    items.push_back(number);
    index_.Append(HashAt());
  }
  [[nodiscard]] std::size_t Find(int number) const {
    return index_.Find(HashOf(number), [&](std::size_t i) { return items[i] == number; });
  }
  [[nodiscard]] bool Covers() const { return index_.Covers(items.size()); }

  std::vector<int> items;

 private:
  std::uint32_t hashes_;
  PositionIndex index_;
};

std::size_t NaiveFind(const std::vector<int>& items, int number) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i] == number) return i;
  }
  return PositionIndex::kNotFound;
}

class PositionIndexOfHashes : public testing::TestWithParam<std::uint32_t> {};

TEST_P(PositionIndexOfHashes, AgreesWithAScanOverThousandsOfRandomOperations) {
  std::mt19937 random(GetParam());
  IndexedNumbers numbers(GetParam());
  for (int step = 0; step < 4000; ++step) {
    const int number = static_cast<int>(random() % 700);
    if (NaiveFind(numbers.items, number) == PositionIndex::kNotFound && random() % 2 == 0) {
      numbers.Append(number);
    } else if (random() % 40 == 0 && !numbers.items.empty()) {
      numbers.items.erase(numbers.items.begin() +
                          static_cast<std::ptrdiff_t>(random() % numbers.items.size()));
      numbers.Rebuild();
    }
    const int sought = static_cast<int>(random() % 700);
    ASSERT_EQ(numbers.Find(sought), NaiveFind(numbers.items, sought)) << "step " << step;
    ASSERT_TRUE(numbers.Covers());
  }
}

INSTANTIATE_TEST_SUITE_P(GoodAndPoor, PositionIndexOfHashes, testing::Values(1U, 7U, 64U, 100000U),
                         [](const auto& hashes) {
                           return "Hashes" + std::to_string(hashes.param);
                         });

TEST(PositionIndex, FindsTheFirstOfTwoEqualItems) {
  IndexedNumbers numbers(16);
  numbers.Append(5);
  numbers.Append(5);
  EXPECT_EQ(numbers.Find(5), 0U);
}

TEST(PositionIndex, CoversNothingOnceItWasCleared) {
  PositionIndex index;
  EXPECT_FALSE(index.Covers(0)) << "an index that was never built has to be built first";
  index.Rebuild(2, 2, [](std::size_t i) { return static_cast<std::uint32_t>(i); });
  EXPECT_TRUE(index.Covers(2));
  EXPECT_FALSE(index.Covers(3));
  index.Clear();
  EXPECT_FALSE(index.Covers(2));
  EXPECT_FALSE(index.Covers(0));
}

}  // namespace
}  // namespace parlate

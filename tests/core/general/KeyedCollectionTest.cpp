#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <vector>

#include "general/KeyedCollection.h"

namespace parlate {
namespace {

using testing::ElementsAre;

struct Thing {
  int value = 0;
};

using Things = KeyedCollection<Thing>;

std::shared_ptr<Thing> NewThing(int value) { return std::make_shared<Thing>(Thing{value}); }

std::vector<int> ValuesOf(const Things& things) {
  std::vector<int> values;
  for (const Thing& thing : things) values.push_back(thing.value);
  return values;
}

int ErrorOf(const std::function<void()>& statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

Things ThreeThings() {
  Things things;
  things.Add(30, NewThing(3));
  things.Add(-10, NewThing(1));
  things.Add(20, NewThing(2));
  return things;
}

TEST(KeyedCollection, KeepsTheOrderOfInsertionAndCountsPlacesFromOne) {
  const Things things = ThreeThings();
  EXPECT_EQ(things.Count(), 3U);
  EXPECT_THAT(ValuesOf(things), ElementsAre(3, 1, 2));
  EXPECT_EQ(things.Place(1)->value, 3);
  EXPECT_EQ(things.Place(3)->value, 2);
  EXPECT_EQ(things.KeyAt(2), -10);
  EXPECT_EQ(things.PlaceOf(20), 3U);
  EXPECT_EQ(things.PlaceOf(99), 0U);
}

TEST(KeyedCollection, PutsAnItemAheadOfAnother) {
  Things things = ThreeThings();
  things.AddBefore(40, NewThing(4), -10);
  things.AddBefore(50, NewThing(5), 30);
  EXPECT_THAT(ValuesOf(things), ElementsAre(5, 3, 4, 1, 2));
  EXPECT_EQ(things.At(20).value, 2);
}

TEST(KeyedCollection, RefusesATakenKeyAndStaysAsItWas) {
  Things things = ThreeThings();
  EXPECT_EQ(ErrorOf([&] { things.Add(20, NewThing(9)); }), 457);
  EXPECT_EQ(ErrorOf([&] { things.AddBefore(30, NewThing(9), 20); }), 457);
  EXPECT_THAT(ValuesOf(things), ElementsAre(3, 1, 2));
}

TEST(KeyedCollection, RaisesFiveForAMissingKeyAndNineForAPlaceOutside) {
  Things things = ThreeThings();
  EXPECT_EQ(ErrorOf([&] { (void)things.At(1); }), 5);
  EXPECT_EQ(ErrorOf([&] { (void)things.Share(1); }), 5);
  EXPECT_EQ(ErrorOf([&] { things.Remove(1); }), 5);
  EXPECT_EQ(ErrorOf([&] { things.AddBefore(9, NewThing(9), 1); }), 5);
  EXPECT_EQ(ErrorOf([&] { (void)things.Place(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)things.Place(4); }), 9);
  EXPECT_EQ(ErrorOf([&] { (void)things.KeyAt(4); }), 9);
  EXPECT_EQ(things.Find(1), nullptr);
  EXPECT_EQ(things.Count(), 3U);
}

TEST(KeyedCollection, SharesAnItemThatOutlivesItsRemoval) {
  Things things = ThreeThings();
  const auto kept = things.Share(20);
  things.Remove(20);
  EXPECT_EQ(kept->value, 2);
  EXPECT_EQ(kept.use_count(), 1);
}

TEST(KeyedCollection, KeepsAKeyThatItsItemNoLongerAgreesWith) {
  Things things = ThreeThings();
  things.At(20).value = 77;
  EXPECT_EQ(things.Find(77), nullptr);
  EXPECT_EQ(things.Find(20)->value, 77);
}

TEST(KeyedCollection, ClearEmptiesItAndFreesTheKeys) {
  Things things = ThreeThings();
  ClearCollection(things);
  EXPECT_TRUE(things.Empty());
  things.Add(30, NewThing(8));
  EXPECT_THAT(ValuesOf(things), ElementsAre(8));
}

TEST(KeyedCollection, WorksOnAfterItsContentWasMovedAway) {
  Things things;
  for (int i = 0; i < 50; ++i) things.Add(i, NewThing(i));
  ASSERT_EQ(things.PlaceOf(49), 50U);
  Things taken = std::move(things);
  EXPECT_EQ(taken.PlaceOf(49), 50U);
  things = Things();
  for (int i = 0; i < 50; ++i) things.Add(i + 100, NewThing(i));
  EXPECT_EQ(things.PlaceOf(149), 50U);
  EXPECT_EQ(things.PlaceOf(49), 0U);
}

/// A plain list of key and value, searched from the front.
class NaiveModel {
 public:
  [[nodiscard]] std::size_t PlaceOf(int key) const {
    const auto at = At(key);
    return at == pairs.end() ? 0 : static_cast<std::size_t>(at - pairs.begin()) + 1;
  }
  bool Add(int key, int value) { return Insert(key, value, pairs.end()); }
  bool AddBefore(int key, int value, int before) {
    return At(before) != pairs.end() && Insert(key, value, At(before));
  }
  bool Remove(int key) {
    if (At(key) == pairs.end()) return false;
    pairs.erase(At(key));
    return true;
  }

  std::vector<std::pair<int, int>> pairs;

 private:
  using Iterator = std::vector<std::pair<int, int>>::const_iterator;
  [[nodiscard]] Iterator At(int key) const {
    return std::find_if(pairs.begin(), pairs.end(), [&](const auto& p) { return p.first == key; });
  }
  bool Insert(int key, int value, Iterator at) {
    if (PlaceOf(key) != 0) return false;
    pairs.insert(at, {key, value});
    return true;
  }
};

void ExpectEqual(const Things& things, const NaiveModel& model) {
  ASSERT_EQ(things.Count(), model.pairs.size());
  for (std::size_t i = 0; i < model.pairs.size(); ++i) {
    ASSERT_EQ(things.KeyAt(i + 1), model.pairs[i].first);
    ASSERT_EQ(things.Place(i + 1)->value, model.pairs[i].second);
    ASSERT_EQ(things.PlaceOf(model.pairs[i].first), i + 1);
  }
}

TEST(KeyedCollection, RemovesAllItemsWhoseKeysPassATestAndFindsTheOthers) {
  Things things;
  for (const int key : {20, 3, 11, 7, 15, 1, 9, 30, 2, 40}) things.Add(key, NewThing(key));
  EXPECT_NE(things.Find(9), nullptr);
  things.RemoveIf([](std::int32_t key) { return key > 8 && key != 30; });
  EXPECT_THAT(ValuesOf(things), ElementsAre(3, 7, 1, 30, 2));
  EXPECT_EQ(things.Find(9), nullptr);
  EXPECT_EQ(things.PlaceOf(30), 4U);
  things.Add(9, NewThing(90));
  EXPECT_EQ(things.At(9).value, 90);
}

TEST(KeyedCollection, AgreesWithAPlainListOverThousandsOfRandomOperations) {
  std::mt19937 random(20010207);
  const auto below = [&random](int limit) { return static_cast<int>(random() % limit); };
  Things things;
  NaiveModel model;
  for (int step = 0; step < 6000; ++step) {
    // Few keys, some of them negative, so that hits and misses of every operation are common.
    const int key = below(120) - 40;
    const int before = below(120) - 40;
    const int operation = below(100);
    if (operation < 50) {
      ASSERT_EQ(ErrorOf([&] { things.Add(key, NewThing(step)); }) == 0, model.Add(key, step));
    } else if (operation < 65) {
      ASSERT_EQ(ErrorOf([&] { things.AddBefore(key, NewThing(step), before); }) == 0,
                model.AddBefore(key, step, before));
    } else if (operation < 98) {
      ASSERT_EQ(ErrorOf([&] { things.Remove(key); }) == 0, model.Remove(key));
    } else if (operation < 99) {
      things.Clear();
      model.pairs.clear();
    } else {
      Things copy = things;
      things = std::move(copy);
    }
    ASSERT_EQ(things.PlaceOf(before), model.PlaceOf(before));
    if (step % 50 == 0) ExpectEqual(things, model);
  }
  ExpectEqual(things, model);
}

TEST(KeyedCollection, FindsEveryOneOfManyKeysAsTheyComeIn) {
  Things things;
  for (int i = 0; i < 3000; ++i) {
    things.Add(i * 65536, NewThing(i));
    ASSERT_EQ(things.At((i / 2) * 65536).value, i / 2);
  }
  EXPECT_EQ(things.Find(1), nullptr);
}

}  // namespace
}  // namespace parlate

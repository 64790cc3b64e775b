#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "general/CodePage.h"
#include "model/LabelCollection.h"

namespace parlate {
namespace {

using testing::ElementsAre;

std::vector<std::string> NamesOf(const LabelCollection& labels) {
  std::vector<std::string> names;
  for (const LabelItem& item : labels) names.push_back(item.Name);
  return names;
}

TEST(LabelCollection, HoldsALabelOnceWhateverItsCase) {
  LabelCollection labels;
  EXPECT_TRUE(labels.Add("Start"));
  EXPECT_FALSE(labels.Add("START"));
  EXPECT_TRUE(labels.Add("\xC9tape"));
  EXPECT_FALSE(labels.Add("\xE9TAPE"));
  EXPECT_TRUE(labels.Contains("sTaRt"));
  EXPECT_THAT(NamesOf(labels), ElementsAre("Start", "\xC9tape"));
}

TEST(LabelCollection, KeepsItsOrderAndRemovesWithoutRegardToCase) {
  LabelCollection labels;
  for (const char* name : {"One", "Two", "Three"}) labels.Add(name);
  labels.Remove("TWO");
  labels.Remove("none");
  EXPECT_THAT(NamesOf(labels), ElementsAre("One", "Three"));
  labels.Add("two");
  EXPECT_THAT(NamesOf(labels), ElementsAre("One", "Three", "two"));
}

TEST(LabelCollection, RemovesASetOfLabelsAtOnce) {
  LabelCollection labels;
  for (const char* name : {"One", "Two", "Three"}) labels.Add(name);
  LabelCollection gone;
  for (const char* name : {"THREE", "one", "other"}) gone.Add(name);
  labels.RemoveAll(gone);
  EXPECT_THAT(NamesOf(labels), ElementsAre("Two"));
  EXPECT_FALSE(labels.Contains("One"));
  labels.Clear();
  EXPECT_EQ(labels.Count(), 0U);
  EXPECT_FALSE(labels.Contains("Two"));
}

TEST(LabelItem, CopiesItsName) {
  LabelItem copy;
  copy.Copy({"Start"});
  EXPECT_EQ(copy.Name, "Start");
}

/// The same labels as a list that is searched from the front.
class NaiveLabels {
 public:
  [[nodiscard]] auto Find(const std::string& label) {
    return std::find_if(names.begin(), names.end(),
                        [&](const std::string& name) { return FoldCase(name) == FoldCase(label); });
  }
  bool Add(const std::string& label) {
    if (Find(label) != names.end()) return false;
    names.push_back(label);
    return true;
  }
  void Remove(const std::string& label) {
    if (Find(label) != names.end()) names.erase(Find(label));
  }

  std::vector<std::string> names;
};

TEST(LabelCollection, AgreesWithAPlainListOverThousandsOfRandomOperations) {
  std::mt19937 random(19991231);
  const auto randomLabel = [&random] {
    // Short labels of few letters in both cases, so that labels meet often.
    static constexpr std::string_view kLetters = "abAB\xE4\xC4\x9F\xFF_";
    std::string label;
    const std::size_t length = random() % 5;
    for (std::size_t i = 0; i < length; ++i) label += kLetters[random() % kLetters.size()];
    return label;
  };
  LabelCollection labels;
  NaiveLabels model;
  for (int step = 0; step < 6000; ++step) {
    const std::string label = randomLabel();
    if (random() % 3 != 0) {
      ASSERT_EQ(labels.Add(label), model.Add(label)) << label;
    } else {
      labels.Remove(label);
      model.Remove(label);
    }
    const std::string sought = randomLabel();
    ASSERT_EQ(labels.Contains(sought), model.Find(sought) != model.names.end()) << sought;
    if (step % 100 == 0) {
      ASSERT_EQ(NamesOf(labels), model.names);
    }
  }
  EXPECT_EQ(NamesOf(labels), model.names);
}

}  // namespace
}  // namespace parlate

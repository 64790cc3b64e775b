// Events of every type, written and changed in the editor, and what the file holds of them.

#include <gmock/gmock.h>

#include <set>

#include "editors/EventWays.h"
#include "support/EventFields.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

constexpr std::int32_t kNewKey = 6;
constexpr int kNewRow = 5;

std::string NameOf(const testing::TestParamInfo<EventWay>& way) { return way.param.name; }

class FrmEventEveryType : public EventWriterTest, public testing::WithParamInterface<EventWay> {
 protected:
  void ExpectFields(const std::string& label, const char* fields) {
    const std::string expected = std::to_string(GetParam().type) + " '" + label + "' " + fields;
    EXPECT_EQ(FieldsOf(Con().events.At(kNewKey)), expected);
    EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5, kNewKey));
    EXPECT_TRUE(Con().IsValidLabel(label));
  }
  void ExpectFieldsAlsoFromTheFile(const std::string& label, const char* fields) {
    ExpectFields(label, fields);
    SaveAndReload();
    ExpectFields(label, fields);
  }
};

TEST_P(FrmEventEveryType, IsKeptAsItWasStoredAndNotAsItWasLeft) {
  const EventWay& way = GetParam();
  Add(way.type);
  Type("txtLabel", "Here");
  way.write(*this);
  ASSERT_TRUE(CanUpdate());
  Click("cmdUpdate");
  ExpectFieldsAlsoFromTheFile("Here", way.written);

  Edit(kNewRow);
  Type("txtLabel", "There");
  way.change(*this);
  ASSERT_TRUE(CanUpdate());
  Click("cmdUpdate");
  ExpectFieldsAlsoFromTheFile("There", way.changed);
  EXPECT_FALSE(Con().IsValidLabel("Here"));

  Edit(kNewRow);
  Type("txtLabel", "Left");
  way.leave(*this);
  Click("cmdClose");
  ExpectFields("There", way.changed);
  EXPECT_FALSE(program_.shell().GetConFile()->IsModified());
}

TEST_P(FrmEventEveryType, AnUpdateOfAnUntouchedEventChangesNoField) {
  const EventWay& way = GetParam();
  Add(way.type);
  way.write(*this);
  Click("cmdUpdate");
  SaveAndReload();
  Edit(kNewRow);
  ASSERT_TRUE(CanUpdate());
  Click("cmdUpdate");
  ExpectFields("", way.written);
}

INSTANTIATE_TEST_SUITE_P(Ways, FrmEventEveryType, testing::ValuesIn(AllEventWays()), NameOf);

TEST(EventWays, LeaveNoTypeOut) {
  std::set<std::int32_t> types;
  for (const EventWay& way : AllEventWays()) types.insert(way.type);
  EXPECT_EQ(types.size(), static_cast<std::size_t>(kEventTypeCount));
}

class FrmEventOwnLabel : public FrmEventEveryType {};

TEST_P(FrmEventOwnLabel, IsNotOfferedToTheEventThatBearsIt) {
  const EventWay& way = GetParam();
  Add(way.type);
  Type("txtLabel", "Here");
  EXPECT_THAT(Entries(way.labelCombo), ElementsAre("Start", "Stop")) << "not stored yet";
  way.write(*this);
  Click("cmdUpdate");
  EXPECT_THAT(Entries(way.labelCombo), ElementsAre("Start", "Stop")) << "just stored";
  Edit(0);
  Edit(kNewRow);
  EXPECT_EQ(TextOf("txtLabel"), "Here");
  EXPECT_THAT(Entries(way.labelCombo), ElementsAre("Start", "Stop")) << "opened again";
  Click("cmdAddEvent");
  EXPECT_THAT(Entries(way.labelCombo), ElementsAre("Start", "Stop", "Here"))
      << "another event can go there";
}

INSTANTIATE_TEST_SUITE_P(Ways, FrmEventOwnLabel, testing::ValuesIn(EventWaysWithLabels()), NameOf);

}  // namespace
}  // namespace parlate

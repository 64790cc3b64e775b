#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "general/BinaryFile.h"
#include "model/FlagRef.h"
#include "model/records/RecordReader.h"
#include "support/FakeControls.h"
#include "support/FileBytes.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::ErrorOf;
using testing_support::FakeListBox;
using testing_support::FakeRow;
using testing_support::FileBytes;
using testing_support::TestWorkspace;

std::shared_ptr<FlagRef> NewFlag(std::int32_t id, bool value, std::int32_t expiration) {
  auto flag = std::make_shared<FlagRef>();
  flag->flagID = id;
  flag->bValue = value;
  flag->expiration = expiration;
  return flag;
}

FlagList DoorAndLamp() {
  FlagList flags;
  flags.Add(3, NewFlag(3, false, 0));
  flags.Add(2, NewFlag(2, true, 4));
  return flags;
}

TEST(FlagRef, IsFalseAndWithoutExpirationWhenNew) {
  const FlagRef flag;
  EXPECT_EQ(flag.flagID, 0);
  EXPECT_FALSE(flag.bValue);
  EXPECT_EQ(flag.expiration, 0);
  EXPECT_FALSE(flag.bAdjustedID);
}

TEST(FlagRef, CopiesItsWorkingMarkToo) {
  const auto source = NewFlag(2, true, 4);
  source->bAdjustedID = true;
  FlagRef copy;
  copy.Copy(*source);
  EXPECT_EQ(copy.flagID, 2);
  EXPECT_TRUE(copy.bValue);
  EXPECT_EQ(copy.expiration, 4);
  EXPECT_TRUE(copy.bAdjustedID);
}

TEST(FlagRef, TellsItsNameAndValueAndItsPicture) {
  TestWorkspace space;
  space.AddSampleTables();
  EXPECT_EQ(NewFlag(2, true, 0)->Desc(), "Door = True");
  EXPECT_EQ(NewFlag(3, false, 0)->Desc(), "Lamp = False");
  EXPECT_EQ(NewFlag(2, true, 0)->Image(), "FlagTrue");
  EXPECT_EQ(NewFlag(2, false, 0)->Image(), "FlagFalse");
  EXPECT_EQ(ErrorOf([] { (void)NewFlag(99, true, 0)->Desc(); }), 5);
}

TEST(FlagList, ReadsAsOneLineWithoutACommaAtItsEnd) {
  TestWorkspace space;
  space.AddSampleTables();
  FlagList flags = DoorAndLamp();
  EXPECT_EQ(BuildFlagsString(flags), "Lamp = False, Door = True");
  flags.Remove(3);
  EXPECT_EQ(BuildFlagsString(flags), "Door = True");
  EXPECT_EQ(BuildFlagsString(FlagList()), "");
}

TEST(FlagList, IsCopiedDeepInPlaceOfWhatWasThere) {
  const FlagList source = DoorAndLamp();
  FlagList target;
  target.Add(9, NewFlag(9, true, 0));
  CopyFlagRefs(source, target);
  ASSERT_EQ(target.Count(), 2U);
  EXPECT_EQ(target.KeyAt(1), 3);
  EXPECT_EQ(target.KeyAt(2), 2);
  EXPECT_NE(&target.At(2), &source.At(2));
  EXPECT_EQ(target.At(2).expiration, 4);
}

TEST(FlagList, TakesTheRowsSelectedInThePicker) {
  FlagList flags = DoorAndLamp();
  const FakeListBox picker({{"Door", 2, true}, {"Lamp", 3, false}, {"Gate", 8, true}});
  SetSelectedFlagRefs(flags, picker, false, 6);
  ASSERT_EQ(flags.Count(), 3U);
  EXPECT_EQ(flags.PlaceOf(2), 2U) << "a flag that was in the list keeps its place";
  EXPECT_FALSE(flags.At(2).bValue);
  EXPECT_EQ(flags.At(2).expiration, 6);
  EXPECT_EQ(flags.At(3).expiration, 0) << "a row that is not selected is left alone";
  EXPECT_EQ(flags.At(8).flagID, 8);
  EXPECT_EQ(flags.At(8).expiration, 6);
}

class FlagListRead : public testing::Test {
 protected:
  void Read(const std::vector<testing_support::FlagFields>& stored) {
    const std::string bytes = FileBytes(28).Flags(stored).Bytes();
    MemorySource source(bytes);
    BinaryReader reader(source);
    RecordReader in{reader, 28, {}};
    LoadFlagRefs(in, flags_);
    EXPECT_EQ(reader.Remaining(), 0U);
  }

  FlagList flags_;
};

TEST_F(FlagListRead, StandsBehindWhatTheListHoldsAlready) {
  flags_.Add(9, NewFlag(9, true, 6));
  Read({{3, "Lamp", false, 0}, {2, "Door", true, 4}});
  ASSERT_EQ(flags_.Count(), 3U);
  EXPECT_EQ(flags_.KeyAt(1), 9);
  EXPECT_EQ(flags_.KeyAt(2), 3);
  EXPECT_EQ(flags_.KeyAt(3), 2);
  EXPECT_EQ(flags_.At(9).expiration, 6) << "what was there is left alone";
  EXPECT_EQ(flags_.At(2).flagID, 2);
  EXPECT_TRUE(flags_.At(2).bValue);
  EXPECT_EQ(flags_.At(2).expiration, 4);
}

TEST_F(FlagListRead, RefusesAFlagThatTheListHoldsAlready) {
  flags_.Add(2, NewFlag(2, false, 6));
  EXPECT_EQ(ErrorOf([this] { Read({{3, "Lamp", false, 0}, {2, "Door", true, 4}}); }), 457);
  EXPECT_EQ(flags_.Count(), 2U);
  EXPECT_EQ(flags_.At(2).expiration, 6);
}

TEST(FlagList, FillsAListWithOrWithoutExpirations) {
  TestWorkspace space;
  space.AddSampleTables();
  FakeListBox list({{"old", 1}});
  PopulateFlagList(DoorAndLamp(), list, true);
  EXPECT_EQ(list.rows, (std::vector<FakeRow>{{"Lamp;False;0", 3}, {"Door;True;4", 2}}));
  PopulateFlagList(DoorAndLamp(), list, false);
  EXPECT_EQ(list.rows, (std::vector<FakeRow>{{"Lamp;False", 3}, {"Door;True", 2}}));
}

TEST(FlagList, KnowsWhichFlagsItRefersToByTheirIdAndNotByKey) {
  FlagList flags = DoorAndLamp();
  EXPECT_TRUE(IsFlagReferenced(flags, 2));
  flags.At(2).flagID = 7;
  EXPECT_FALSE(IsFlagReferenced(flags, 2));
  EXPECT_TRUE(IsFlagReferenced(flags, 7));
}

}  // namespace
}  // namespace parlate

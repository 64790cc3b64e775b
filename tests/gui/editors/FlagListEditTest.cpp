#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "editors/EditorFixture.h"
#include "editors/FlagListEdit.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;

class FlagListEditTest : public ::testing::Test {
 protected:
  FlagListEditTest() {
    TestWorkspace::AddRows(kFlagTable, {{2, "Door"}, {3, "Lamp"}, {5, "Zip"}});
    Hold(3, true, 9);
    Hold(2, false, 0);
    owner_.show();
    owner_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&owner_));
  }

  void Hold(std::int32_t id, bool value, std::int32_t expiration) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = id;
    flag->bValue = value;
    flag->expiration = expiration;
    flags_.Add(id, flag);
  }
  std::vector<std::string> Shown() {
    std::vector<std::string> texts;
    texts.reserve(rows_.ListCount());
    for (std::size_t i = 0; i < rows_.ListCount(); ++i) texts.push_back(rows_.Row(i).text);
    return texts;
  }
  /// Picks every flag that is offered, as not set and with an expiration of 6.
  static void PickAll(QWidget& picker) {
    ControlNamed<QtListBox>(picker, "lstFlags").selectAll();
    ControlNamed<QtComboBox>(picker, "cboFlagValues").SetListIndex(1);
    TextOf(picker, "txtExpiration").setText("6");
    Click(picker, "cmdOK");
  }

  TestWorkspace space_;
  FlagList flags_;
  ListRows rows_;
  QWidget owner_;
};

TEST_F(FlagListEditTest, ShowsTheFlagsInTheirOrderWithoutASelection) {
  FlagListEdit edit(rows_, false);
  edit.SetFlags(flags_);
  EXPECT_THAT(Shown(), ElementsAre("Lamp;True", "Door;False"));
  EXPECT_EQ(rows_.Row(1).itemData, 2);
  EXPECT_EQ(rows_.ListIndex(), -1);
  EXPECT_EQ(&edit.Flags(), &flags_);
  FlagListEdit withExpiration(rows_, true);
  withExpiration.SetFlags(flags_);
  EXPECT_THAT(Shown(), ElementsAre("Lamp;True;9", "Door;False;0"));
}

TEST_F(FlagListEditTest, PickedFlagsJoinTheListAtItsEnd) {
  FlagListEdit edit(rows_, true);
  edit.SetFlags(flags_);
  WhenFormShows("frmFlagList", [this](QWidget& picker) {
    EXPECT_EQ(picker.parentWidget(), &owner_);
    EXPECT_TRUE(TextOf(picker, "txtExpiration").isVisible());
    PickAll(picker);
  });
  EXPECT_TRUE(edit.Add(&owner_));
  EXPECT_THAT(Shown(), ElementsAre("Lamp;True;9", "Door;False;0", "Zip;False;6"));
  EXPECT_EQ(flags_.At(5).expiration, 6);
}

TEST_F(FlagListEditTest, WhereNoExpirationIsOfferedNoneIsStored) {
  FlagListEdit edit(rows_, false);
  edit.SetFlags(flags_);
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    EXPECT_FALSE(TextOf(picker, "txtExpiration").isVisible());
    PickAll(picker);
  });
  EXPECT_TRUE(edit.Add(&owner_));
  EXPECT_EQ(flags_.At(5).expiration, 0);
}

TEST_F(FlagListEditTest, ACancelledPickerChangesNothing) {
  FlagListEdit edit(rows_, false);
  edit.SetFlags(flags_);
  rows_.SetListIndex(1);
  WhenFormShows("frmFlagList", [](QWidget& picker) {
    ControlNamed<QtListBox>(picker, "lstFlags").selectAll();
    Click(picker, "cmdCancel");
  });
  EXPECT_FALSE(edit.Add(&owner_));
  EXPECT_EQ(flags_.Count(), 2U);
  EXPECT_EQ(rows_.ListIndex(), 1);
}

TEST_F(FlagListEditTest, DeleteTakesTheSelectedFlagAndSelectsTheNextOne) {
  Hold(5, true, 0);
  FlagListEdit edit(rows_, false);
  edit.SetFlags(flags_);
  edit.Delete();
  EXPECT_EQ(flags_.Count(), 3U) << "no row is selected";
  rows_.SetListIndex(1);
  edit.Delete();
  EXPECT_THAT(Shown(), ElementsAre("Lamp;True", "Zip;True"));
  EXPECT_EQ(flags_.Find(2), nullptr);
  EXPECT_EQ(rows_.ListIndex(), 1) << "the row that moved up";
  edit.Delete();
  EXPECT_EQ(rows_.ListIndex(), 0) << "the last one";
  edit.Delete();
  EXPECT_EQ(rows_.ListIndex(), -1);
  EXPECT_TRUE(flags_.Empty());
}

TEST_F(FlagListEditTest, ToggleFlipsTheSelectedFlagAndKeepsTheRowSelected) {
  FlagListEdit edit(rows_, true);
  edit.SetFlags(flags_);
  edit.Toggle();
  EXPECT_THAT(Shown(), ElementsAre("Lamp;True;9", "Door;False;0")) << "no row is selected";
  rows_.SetListIndex(1);
  edit.Toggle();
  EXPECT_THAT(Shown(), ElementsAre("Lamp;True;9", "Door;True;0"));
  EXPECT_EQ(rows_.ListIndex(), 1);
  edit.Toggle();
  EXPECT_FALSE(flags_.At(2).bValue);
}

TEST_F(FlagListEditTest, AFlagThatStandsUnderAnotherKeyIsTakenByItsRow) {
  Hold(5, true, 0);
  flags_.At(5).flagID = 2;  // both are Door now, one of them under the key of Zip
  FlagListEdit edit(rows_, false);
  edit.SetFlags(flags_);
  EXPECT_THAT(Shown(), ElementsAre("Lamp;True", "Door;False", "Door;True"));
  rows_.SetListIndex(2);
  edit.Toggle();
  EXPECT_THAT(Shown(), ElementsAre("Lamp;True", "Door;False", "Door;False"));
  EXPECT_FALSE(flags_.At(5).bValue);
  edit.Delete();
  EXPECT_THAT(Shown(), ElementsAre("Lamp;True", "Door;False"));
  EXPECT_EQ(flags_.Find(5), nullptr);
  EXPECT_NE(flags_.Find(2), nullptr);
}

}  // namespace
}  // namespace parlate

#include "editors/panels/CreditsPanel.h"
#include "editors/panels/PanelFixture.h"
#include "editors/panels/SkillPointsPanel.h"

namespace parlate {
namespace {

using namespace testing_support;

using SkillPointsPanelTest = PanelTest<SkillPointsPanel>;
using CreditsPanelTest = PanelTest<CreditsPanel>;

TEST_F(SkillPointsPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 14);
  EXPECT_EQ(panel_.objectName(), "fraEvents(14)");
  EXPECT_EQ(panel_.title(), "Add Skill Points");
  EXPECT_EQ(LabelOf("txtSkillPointsToAdd"), "Number of Skill Points to Add:");
  EXPECT_EQ(LabelOf("txtSkillPointsMessage"), "Optinal Skill Point Award Message:");
  EXPECT_EQ(Spoken("txtSkillPointsMessage"), "Optinal Skill Point Award Message:");
  EXPECT_EQ(TabOrder(), (Names{"txtSkillPointsToAdd", "txtSkillPointsMessage"}));
}

TEST_F(SkillPointsPanelTest, NeedsOnlyTheNumber) {
  EXPECT_FALSE(IsComplete());
  changed_.clear();
  Type("txtSkillPointsMessage", "Well done");
  EXPECT_EQ(changed_.size(), 0);
  EXPECT_FALSE(IsComplete());
  Type("txtSkillPointsToAdd", "5");
  EXPECT_EQ(changed_.size(), 1);
  EXPECT_TRUE(IsComplete());
  Type("txtSkillPointsToAdd", "");
  EXPECT_FALSE(IsComplete());
}

TEST_F(SkillPointsPanelTest, OpeningItEmptiesTheCountOfTheTransferPanelAndKeepsTheMessage) {
  Line("txtSkillPointsToAdd").setText("5");
  Line("txtSkillPointsMessage").setText("left over");
  host_.transferCountsCleared = 0;
  panel_.Ready();
  EXPECT_EQ(host_.transferCountsCleared, 1);
  EXPECT_EQ(TextOf("txtSkillPointsToAdd"), "");
  EXPECT_EQ(TextOf("txtSkillPointsMessage"), "left over");
}

TEST_F(SkillPointsPanelTest, ClearingEmptiesBothFieldsAndNoOther) {
  Line("txtSkillPointsToAdd").setText("5");
  Line("txtSkillPointsMessage").setText("left over");
  host_.transferCountsCleared = 0;
  panel_.ClearFields();
  EXPECT_EQ(TextOf("txtSkillPointsToAdd"), "");
  EXPECT_EQ(TextOf("txtSkillPointsMessage"), "");
  EXPECT_EQ(host_.transferCountsCleared, 0);
}

TEST_F(SkillPointsPanelTest, WhatWasTypedIsStored) {
  Type("txtSkillPointsToAdd", "250");
  Type("txtSkillPointsMessage", "Well done");
  const auto& stored = Stored<EventAddSkillPoints>();
  EXPECT_EQ(stored.pointsToAdd, 250);
  EXPECT_EQ(stored.awardMessage, "Well done");
}

TEST_F(SkillPointsPanelTest, ANumberThatIsNoneIsARunTimeError) {
  Type("txtSkillPointsToAdd", "x");
  EXPECT_EQ(ErrorOf([this] { Stored<EventAddSkillPoints>(); }), RuntimeError::kTypeMismatch);
  Type("txtSkillPointsToAdd", "9999999999");
  EXPECT_EQ(ErrorOf([this] { Stored<EventAddSkillPoints>(); }), RuntimeError::kOverflow);
}

TEST_F(SkillPointsPanelTest, AnEventIsShownAndStoredBackAsItWas) {
  EventAddSkillPoints event;
  event.Update(-7, "Zo\xEB\ris glad");
  Show(event);
  EXPECT_EQ(TextOf("txtSkillPointsToAdd"), "-7");
  EXPECT_EQ(TextOf("txtSkillPointsMessage"), "Zo\xEB\ris glad");
  const auto& stored = Stored<EventAddSkillPoints>();
  EXPECT_EQ(stored.pointsToAdd, -7);
  EXPECT_EQ(stored.awardMessage, "Zo\xEB\ris glad");
}

TEST_F(CreditsPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 15);
  EXPECT_EQ(panel_.objectName(), "fraEvents(15)");
  EXPECT_EQ(panel_.title(), "Add Credits");
  EXPECT_EQ(LabelOf("txtCreditsToAdd"), "Number of Credits to Add (can be negative):");
  EXPECT_EQ(Spoken("txtCreditsToAdd"), "Number of Credits to Add (can be negative):");
}

TEST_F(CreditsPanelTest, NeedsTheNumber) {
  EXPECT_FALSE(IsComplete());
  changed_.clear();
  Type("txtCreditsToAdd", "5");
  EXPECT_EQ(changed_.size(), 1);
  EXPECT_TRUE(IsComplete());
  Type("txtCreditsToAdd", "");
  EXPECT_FALSE(IsComplete());
}

TEST_F(CreditsPanelTest, WhatWasTypedIsStored) {
  Type("txtCreditsToAdd", "-50");
  EXPECT_EQ(Stored<EventAddCredits>().creditsToAdd, -50);
}

TEST_F(CreditsPanelTest, ANumberThatIsNoneIsARunTimeError) {
  Type("txtCreditsToAdd", "5x");
  EXPECT_EQ(ErrorOf([this] { Stored<EventAddCredits>(); }), RuntimeError::kTypeMismatch);
}

TEST_F(CreditsPanelTest, AnEventIsShownAndStoredBackAsItWas) {
  EventAddCredits event;
  event.Update(2147483647);
  Show(event);
  EXPECT_EQ(TextOf("txtCreditsToAdd"), "2147483647");
  EXPECT_EQ(Stored<EventAddCredits>().creditsToAdd, 2147483647);
  panel_.ClearFields();
  EXPECT_EQ(TextOf("txtCreditsToAdd"), "");
}

TEST_F(CreditsPanelTest, ANewEventStartsEmpty) {
  Line("txtCreditsToAdd").setText("5");
  panel_.Ready();
  EXPECT_EQ(TextOf("txtCreditsToAdd"), "");
}

}  // namespace
}  // namespace parlate

#include "editors/panels/PanelFixture.h"
#include "editors/panels/PersonaPanel.h"

namespace parlate {
namespace {

using namespace testing_support;

class PersonaPanelTest : public PanelTest<PersonaPanel> {
 protected:
  static EventCheckPersona Check(std::int32_t type, std::int32_t condition) {
    EventCheckPersona event;
    event.Update(type, condition, "-40", "gone");
    return event;
  }
};

TEST_F(PersonaPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 16);
  EXPECT_EQ(panel_.objectName(), "fraEvents(16)");
  EXPECT_EQ(panel_.title(), "Check Persona");
  const auto* frame = qobject_cast<QGroupBox*>(Button("optPersonaCredits").parentWidget());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->title(), "Attribute to Check:");
  EXPECT_EQ(Caption("optPersonaCredits"), "Credits");
  EXPECT_EQ(Caption("optPersonaHealth"), "Health");
  EXPECT_EQ(Caption("optPersonaSkillPoints"), "Skill Points");
  EXPECT_EQ(LabelOf("cboPersonaCondition"), "Conditon:");
  EXPECT_EQ(The<QLabel>("lblCheckPersonaValue").text(), "Value:");
  EXPECT_EQ(LabelOf("txtPersonaValue"), "Value:");
  EXPECT_EQ(LabelOf("cboPersonaLabel"), "Label to jump to:");
}

TEST_F(PersonaPanelTest, TabGoesThroughThePanelFromTopToBottom) {
  EXPECT_EQ(TabOrder(), (Names{"optPersonaCredits", "cboPersonaCondition", "txtPersonaValue",
                               "cboPersonaLabel"}));
}

TEST_F(PersonaPanelTest, TheConditionsAreTheFiveComparisons) {
  const QtComboBox& conditions = Combo("cboPersonaCondition");
  ASSERT_EQ(conditions.ListCount(), 5);
  EXPECT_EQ(conditions.List(0), " <  (Less Than)");
  EXPECT_EQ(conditions.List(1), " <= (Less Than or Equal To)");
  EXPECT_EQ(conditions.List(2), " =  (Equal To)");
  EXPECT_EQ(conditions.List(3), " >= (Greater Than or Equal To)");
  EXPECT_EQ(conditions.List(4), " >  (Greater Than)");
  for (int i = 0; i < 5; ++i) EXPECT_EQ(conditions.ItemData(i), i);
  EXPECT_FALSE(conditions.isEditable());
}

TEST_F(PersonaPanelTest, ANewEventChecksTheCredits) {
  EXPECT_TRUE(IsSet("optPersonaCredits"));
  EXPECT_EQ(Combo("cboPersonaCondition").ListIndex(), -1);
  EXPECT_EQ(TextOf("txtPersonaValue"), "");
  EXPECT_EQ(Combo("cboPersonaLabel").ListCount(), 3);
  EXPECT_EQ(Combo("cboPersonaLabel").Text(), "");
}

TEST_F(PersonaPanelTest, NeedsConditionValueAndLabel) {
  EXPECT_FALSE(IsComplete());
  Focus(Combo("cboPersonaCondition"));
  QTest::keyClick(&Combo("cboPersonaCondition"), Qt::Key_Down);
  EXPECT_FALSE(IsComplete());
  Type("txtPersonaValue", "50");
  EXPECT_FALSE(IsComplete());
  Type("cboPersonaLabel", "loop");
  EXPECT_TRUE(IsComplete());
  Type("txtPersonaValue", "");
  EXPECT_FALSE(IsComplete());
  Type("txtPersonaValue", "5");
  Combo("cboPersonaCondition").SetListIndex(-1);
  EXPECT_FALSE(IsComplete());
  Combo("cboPersonaCondition").SetListIndex(0);
  Type("cboPersonaLabel", "");
  EXPECT_FALSE(IsComplete());
}

TEST_F(PersonaPanelTest, EveryChangeThatCountsAsksWhetherTheEventIsComplete) {
  changed_.clear();
  Combo("cboPersonaCondition").SetListIndex(2);
  EXPECT_EQ(changed_.size(), 1);
  Line("txtPersonaValue").setText("1");
  EXPECT_EQ(changed_.size(), 2);
  Combo("cboPersonaLabel").SetListIndex(1);
  EXPECT_EQ(changed_.size(), 3);
  Combo("cboPersonaLabel").SetText("x");
  EXPECT_EQ(changed_.size(), 4);
}

TEST_F(PersonaPanelTest, WhatWasTypedIsStored) {
  Click("optPersonaHealth");
  Combo("cboPersonaCondition").SetListIndex(3);
  Type("txtPersonaValue", "50");
  Type("cboPersonaLabel", "loop");
  const auto& stored = Stored<EventCheckPersona>();
  EXPECT_EQ(stored.personaType, 1);
  EXPECT_EQ(stored.condition, 3);
  EXPECT_EQ(stored.value, 50);
  EXPECT_EQ(stored.jumpLabel, "loop");
}

TEST_F(PersonaPanelTest, EachOptionStoresItsType) {
  Type("txtPersonaValue", "1");
  EXPECT_EQ(Stored<EventCheckPersona>().personaType, 0);
  Click("optPersonaSkillPoints");
  EXPECT_EQ(Stored<EventCheckPersona>().personaType, 2);
  Click("optPersonaHealth");
  EXPECT_EQ(Stored<EventCheckPersona>().personaType, 1);
}

TEST_F(PersonaPanelTest, AValueThatIsNoNumberIsARunTimeError) {
  Type("txtPersonaValue", "lots");
  EXPECT_EQ(ErrorOf([this] { Stored<EventCheckPersona>(); }), RuntimeError::kTypeMismatch);
  Type("txtPersonaValue", "-2147483649");
  EXPECT_EQ(ErrorOf([this] { Stored<EventCheckPersona>(); }), RuntimeError::kOverflow);
}

TEST_F(PersonaPanelTest, AnEventIsShownAndStoredBackAsItWas) {
  const std::vector<const char*> options{"optPersonaCredits", "optPersonaHealth",
                                         "optPersonaSkillPoints"};
  for (std::int32_t type = 0; type < 3; ++type) {
    Show(Check(type, 4));
    EXPECT_TRUE(IsSet(options[static_cast<std::size_t>(type)]));
    EXPECT_EQ(Combo("cboPersonaCondition").Text(), " >  (Greater Than)");
    EXPECT_EQ(TextOf("txtPersonaValue"), "-40");
    EXPECT_EQ(Combo("cboPersonaLabel").Text(), "gone");
    EXPECT_EQ(Combo("cboPersonaLabel").ListIndex(), -1);
    const auto& stored = Stored<EventCheckPersona>();
    EXPECT_EQ(stored.personaType, type);
    EXPECT_EQ(stored.condition, 4);
    EXPECT_EQ(stored.value, -40);
    EXPECT_EQ(stored.jumpLabel, "gone");
  }
}

TEST_F(PersonaPanelTest, ClearingEmptiesEveryFieldAndChecksTheCredits) {
  Show(Check(2, 1));
  panel_.ClearFields();
  EXPECT_TRUE(IsSet("optPersonaCredits"));
  EXPECT_EQ(TextOf("txtPersonaValue"), "");
  EXPECT_EQ(Combo("cboPersonaLabel").ListIndex(), -1);
  EXPECT_EQ(Combo("cboPersonaLabel").Text(), "");
  EXPECT_EQ(Combo("cboPersonaCondition").ListIndex(), -1);
}

}  // namespace
}  // namespace parlate

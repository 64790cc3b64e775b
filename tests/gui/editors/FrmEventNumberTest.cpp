// Numbers in the event editor that are none, or that no event can hold: Update tells why, and
// nothing is stored until they are corrected.

#include <gmock/gmock.h>

#include "editors/EventWays.h"
#include "support/EventFields.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

constexpr std::int32_t kNewKey = 6;
constexpr int kNewRow = 5;
constexpr const char* kMismatch = "Error 13: Type mismatch";
constexpr const char* kOverflow = "Error 6: Overflow";

/// A number in a field, how it goes wrong, and what the event holds once it is right.
struct WrongNumber {
  const char* name;
  std::int32_t type;
  WriterSteps writeTheRest;
  const char* field;
  const char* wrong;
  const char* box;
  const char* right;
  const char* written;  ///< As FieldsOf tells it, behind the label.
};

void PrintTo(const WrongNumber& number, std::ostream* out) { *out << number.name; }

void WriteMessage(EventWriterTest& user) { user.Type("txtSkillPointsMessage", "Well swum"); }

void WriteCondition(EventWriterTest& user) {
  user.Click("optPersonaCredits");
  user.Choose("cboPersonaCondition", 3);
  user.Type("cboPersonaLabel", "Start");
}

void WriteTransfer(EventWriterTest& user) {
  user.Type("cboTransferObject", "Key");
  user.Type("cboTransferFrom", "Zoe");
  user.Type("cboTransferTo", "Alex");
}

void WriteAnimation(EventWriterTest& user) {
  user.Type("cboPawnAnimate", "Zoe");
  user.Type("txtSeqName", "Bow");
  user.Click("optAnimPlayOnce");
  user.Click("chkAnimTimed");
}

void NoMore(EventWriterTest& /*user*/) {}

constexpr const char* kPoints = "points=250 message='Well swum'";
constexpr const char* kCheck = "persona=0 condition=3 value=50 label='Start'";
constexpr const char* kTransfer = "object=4 count=2 from=1 to=0 fail=''";
constexpr const char* kLength = "pawn=1 sequence='Bow' mode=1 length=12 finish=False";

constexpr WrongNumber kNumbers[] = {
    {"PointsOfLetters", kAddSkillPoints, WriteMessage, "txtSkillPointsToAdd", "many", kMismatch,
     "250", kPoints},
    {"PointsBeyondTheRange", kAddSkillPoints, WriteMessage, "txtSkillPointsToAdd", "2147483648",
     kOverflow, "250", kPoints},
    {"CreditsOfALetter", kAddCredits, NoMore, "txtCreditsToAdd", "x", kMismatch, "-40",
     "credits=-40"},
    {"CreditsBeyondTheRange", kAddCredits, NoMore, "txtCreditsToAdd", "-2147483649", kOverflow,
     "-2147483648", "credits=-2147483648"},
    {"PersonaOfALetter", kCheckPersona, WriteCondition, "txtPersonaValue", "x", kMismatch, "50",
     kCheck},
    {"PersonaBeyondTheRange", kCheckPersona, WriteCondition, "txtPersonaValue", "3000000000",
     kOverflow, "50", kCheck},
    {"TransferOfNothing", kTransferObject, WriteTransfer, "txtTransferCount", "", kMismatch, "2",
     kTransfer},
    {"TransferOfALetter", kTransferObject, WriteTransfer, "txtTransferCount", "x", kMismatch, "2",
     kTransfer},
    {"TransferBeyondTheRange", kTransferObject, WriteTransfer, "txtTransferCount", "3000000000",
     kOverflow, "2", kTransfer},
    {"AnimationBeyondTheRange", kPlayAnimation, WriteAnimation, "txtAnimLength", "99999999999",
     kOverflow, "12", kLength},
};

class FrmEventNumber : public EventWriterTest, public testing::WithParamInterface<WrongNumber> {
 protected:
  [[nodiscard]] QLineEdit& Field() { return The<QLineEdit>(GetParam().field); }
  [[nodiscard]] bool IsModified() { return program_.shell().GetConFile()->IsModified(); }
  [[nodiscard]] std::string StoredFields() { return FieldsOf(Con().events.At(kNewKey)); }
  /// What is stored with that label when the number is right.
  static std::string RightFields(const std::string& label) {
    return std::to_string(GetParam().type) + " '" + label + "' " + GetParam().written;
  }
  /// Update, with a number that is wrong: it is told, and the field waits to be corrected.
  void ExpectRefusal(const std::function<void()>& update) {
    ASSERT_TRUE(CanUpdate());
    const std::size_t boxes = program_.messages.shown.size();
    program_.messages.Expect(Answer::Ok);
    update();
    ASSERT_EQ(program_.messages.shown.size(), boxes + 1);
    EXPECT_EQ(LastBox().title, "");
    EXPECT_EQ(LastBox().text, GetParam().box);
    EXPECT_EQ(LastBox().icon, MessageBox::Icon::None);
    EXPECT_EQ(LastBox().buttons, MessageBox::Buttons::Ok);
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_TRUE(Field().hasFocus());
    EXPECT_EQ(Field().text(), GetParam().wrong);
    EXPECT_EQ(Field().selectedText(), GetParam().wrong) << "typing goes over it";
  }
  /// Types over the wrong number and presses Update.
  void Correct() {
    QTest::keyClicks(&Field(), QString::fromLatin1(GetParam().right));
    EXPECT_EQ(Field().text(), GetParam().right);
    Click("cmdUpdate");
  }
};

INSTANTIATE_TEST_SUITE_P(, FrmEventNumber, testing::ValuesIn(kNumbers),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(FrmEventNumber, OfANewEventThatIsWrongAddsNothingUntilItIsCorrected) {
  Add(GetParam().type);
  Type("txtLabel", "Here");
  GetParam().writeTheRest(*this);
  Type(GetParam().field, GetParam().wrong);
  ExpectRefusal([this] { Click("cmdUpdate"); });
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_EQ(program_.Events().Rows().ListCount(), 5U);
  EXPECT_FALSE(Con().IsValidLabel("Here"));
  EXPECT_FALSE(IsModified());
  EXPECT_EQ(TextOf("txtLabel"), "Here");
  EXPECT_TRUE(IsEnabled("cboEvents")) << "it is a new event still";

  Correct();
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5, kNewKey)) << "no key was lost";
  EXPECT_EQ(StoredFields(), RightFields("Here"));
  EXPECT_TRUE(Con().IsValidLabel("Here"));
  EXPECT_TRUE(IsModified());
}

TEST_P(FrmEventNumber, OfAStoredEventThatIsWrongLeavesItAsItIsUntilItIsCorrected) {
  Add(GetParam().type);
  Type("txtLabel", "Here");
  GetParam().writeTheRest(*this);
  Type(GetParam().field, GetParam().right);
  Click("cmdUpdate");
  SaveAndReload();
  ASSERT_EQ(StoredFields(), RightFields("Here"));

  Edit(kNewRow);
  Type("txtLabel", "There");
  Type(GetParam().field, GetParam().wrong);
  ExpectRefusal([this] { Click("cmdUpdate"); });
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5, kNewKey));
  EXPECT_EQ(StoredFields(), RightFields("Here"));
  EXPECT_TRUE(Con().IsValidLabel("Here"));
  EXPECT_FALSE(Con().IsValidLabel("There"));
  EXPECT_FALSE(IsModified());
  EXPECT_EQ(SelectedRow(), kNewRow);

  Correct();
  EXPECT_EQ(StoredFields(), RightFields("There"));
  EXPECT_FALSE(Con().IsValidLabel("Here"));
  EXPECT_TRUE(Con().IsValidLabel("There"));
  EXPECT_TRUE(IsModified());
}

TEST_P(FrmEventNumber, ThatIsWrongIsToldAtEachPressAndAlsoToTheReturnKey) {
  Add(GetParam().type);
  GetParam().writeTheRest(*this);
  Type(GetParam().field, GetParam().wrong);
  ExpectRefusal([this] { Click("cmdUpdate"); });
  ExpectRefusal([this] { Press(Qt::Key_Return); });
  EXPECT_THAT(KeysInOrder(), ElementsAre(1, 2, 3, 4, 5));
}

}  // namespace
}  // namespace parlate

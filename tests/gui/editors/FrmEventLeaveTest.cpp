// A name that no table has, and the user who turns to another event without leaving its field.

#include <gmock/gmock.h>

#include "editors/EventEditorFixture.h"

namespace parlate {
namespace {

using testing::Contains;
using namespace testing_support;

struct Field {
  const char* combo;
  std::int32_t eventType;
  std::int32_t tableType;
};

constexpr Field kFields[] = {{"cboActorSpeaker", kSpeech, kActorTable},
                             {"cboActorSpeakingTo", kSpeech, kActorTable},
                             {"cboPawnAnimate", kPlayAnimation, kActorTable},
                             {"cboPawnTrade", kTrade, kActorTable},
                             {"cboTransferFrom", kTransferObject, kActorTable},
                             {"cboTransferTo", kTransferObject, kActorTable},
                             {"cboTransferObject", kTransferObject, kObjectTable},
                             {"cboCheckObject", kCheckObject, kObjectTable}};

void PrintTo(const Field& field, std::ostream* out) { *out << field.combo; }

class FrmEventLeave : public EventEditorTest, public testing::WithParamInterface<Field> {
 protected:
  /// Opens an event of the field's type and types a name in the field that is new to its table.
  void TypeNobody() {
    const auto event = std::make_shared<EventItem>();
    event->key = Con().NextEventKey();
    event->eventType = GetParam().eventType;
    event->CreateEventObject(GetParam().eventType);
    if (auto* check = event->As<EventCheckObject>()) check->objectID = 4;
    if (auto* transfer = event->As<EventTransferObject>()) transfer->objectID = 4;
    program_.shell().UpdateAddEvent(event, true);
    Edit(5);
    Type(GetParam().combo, "Nobody");
  }
  void TurnToAnotherEvent() {
    program_.Activate();
    program_.ClickRow(1);
    QCoreApplication::processEvents();
  }
  void ExpectOneQuestion() {
    ASSERT_EQ(program_.messages.shown.size(), 1U);
    EXPECT_EQ(LastBox().title, "Add Item?");
    EXPECT_EQ(LastBox().text, "This entry does not exist in the table, would you like to add it?");
  }
};

TEST_P(FrmEventLeave, ANewNameIsAddedOnYesBeforeTheOtherEventIsShown) {
  TypeNobody();
  program_.messages.Expect(Answer::Yes);
  TurnToAnotherEvent();
  ExpectOneQuestion();
  EXPECT_NE(FindTableItemByName(GetParam().tableType, "Nobody"), nullptr);
  EXPECT_EQ(ShownPanel(), kComment);
  EXPECT_EQ(The<QtTextBox>("txtComment").Text(), "A comment");
  EXPECT_EQ(SelectedRow(), 1);
  Edit(5);
  EXPECT_EQ(ShownPanel(), GetParam().eventType);
  EXPECT_THAT(Entries(GetParam().combo), Contains("Nobody"));
}

TEST_P(FrmEventLeave, OnNoTheTableStaysAsItIsAndTheOtherEventIsShown) {
  TypeNobody();
  program_.messages.Expect(Answer::No);
  TurnToAnotherEvent();
  ExpectOneQuestion();
  EXPECT_EQ(FindTableItemByName(GetParam().tableType, "Nobody"), nullptr);
  EXPECT_EQ(ShownPanel(), kComment);
  EXPECT_EQ(SelectedRow(), 1);
}

INSTANTIATE_TEST_SUITE_P(Fields, FrmEventLeave, testing::ValuesIn(kFields),
                         [](const auto& field) { return std::string(field.param.combo); });

}  // namespace
}  // namespace parlate

#include <gtest/gtest.h>

#include <string>

#include "model/Conversation.h"
#include "model/ErrorPlaces.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

/// What an error says that is raised at an event of a conversation.
std::string SaidOf(int number) {
  const testing_support::TestWorkspace space;
  Conversation con;
  con.conName = "Caf\xE9";
  con.key = 7;
  EventItem event;
  event.key = 12;
  try {
    InPlace(con, [&] { InPlace(event, [&] { throw RuntimeError(number, "what was wrong"); }); });
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return {};
}

TEST(ErrorPlaces, NameTheConversationAndTheEvent) {
  EXPECT_EQ(SaidOf(RuntimeError::kInvalidProcedureCall),
            "conversation \"Caf\xC3\xA9\" (key 7), event 12, what was wrong");
  EXPECT_EQ(SaidOf(RuntimeError::kOverflow),
            "conversation \"Caf\xC3\xA9\" (key 7), event 12, what was wrong");
  EXPECT_EQ(SaidOf(RuntimeError::kObjectVariableNotSet),
            "conversation \"Caf\xC3\xA9\" (key 7), event 12, what was wrong");
}

TEST(ErrorPlaces, LeaveAnErrorOfAFileOrADeviceAlone) {
  for (const int number :
       {RuntimeError::kFileNotFound, RuntimeError::kDeviceIoError, RuntimeError::kDiskFull,
        RuntimeError::kPathNotFound, RuntimeError::kPrinterError}) {
    EXPECT_EQ(SaidOf(number), "what was wrong") << number;
  }
}

TEST(ErrorPlaces, ShowANameOnOneLineAndNotWithoutEnd) {
  EXPECT_EQ(NameInError("two\r\nlines\tand a half"), "two  lines and a half");
  EXPECT_EQ(NameInError(std::string(60, 'n')), std::string(60, 'n'));
  EXPECT_EQ(NameInError(std::string(61, 'n')), std::string(60, 'n') + "...");
}

}  // namespace
}  // namespace parlate

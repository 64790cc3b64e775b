// Files that are cut short, corrupt, or made to do harm.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "support/FileBytes.h"
#include "support/SampleFile.h"
#include "support/TestWorkspace.h"

namespace {

// The largest single piece of memory that was asked for since it was last set to zero.
std::atomic<std::size_t> largestPiece{0};

void* Allocate(std::size_t size) {
  std::size_t before = largestPiece.load();
  while (before < size && !largestPiece.compare_exchange_weak(before, size)) {
  }
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return std::malloc(size == 0 ? 1 : size);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace parlate {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using testing_support::ConversationFields;
using testing_support::ErrorOf;
using testing_support::FileBytes;
using testing_support::OneEventFile;
using testing_support::OpenFile;
using testing_support::SampleFile;
using testing_support::SampleTables;
using testing_support::TestWorkspace;
using testing_support::WithI32At;

constexpr std::size_t kMagicSize = 25;

struct Outcome {
  bool loaded = false;
  int number = 0;
  std::optional<std::uint64_t> offset;
  std::string path;
  std::string detail;
};

/// Reads the bytes as a file of its own and tells what came of it.
Outcome OutcomeOf(const std::string& bytes) {
  TestWorkspace space;
  OpenFile open(space);
  Outcome outcome;
  try {
    outcome.loaded = open.Load(bytes);
  } catch (const RuntimeError& error) {
    outcome = {false, error.Number(), error.Offset(), error.RecordPath(), error.Detail()};
  }
  return outcome;
}

class FileCutShort : public testing::TestWithParam<int> {};

TEST_P(FileCutShort, IsRefusedWithAPlaceWithinTheFileAtEveryLength) {
  const std::string whole = SampleFile(GetParam());
  ASSERT_TRUE(OutcomeOf(whole).loaded);
  for (std::size_t length = kMagicSize; length < whole.size(); ++length) {
    const Outcome outcome = OutcomeOf(whole.substr(0, length));
    ASSERT_EQ(outcome.number, 62) << "cut to " << length;
    ASSERT_TRUE(outcome.offset) << "cut to " << length;
    ASSERT_LE(*outcome.offset, length);
  }
}

INSTANTIATE_TEST_SUITE_P(OldAndNew, FileCutShort, testing::Values(14, 19, 23, 28),
                         [](const auto& tested) { return std::to_string(tested.param); });

TEST(FileCutShort, WithinTheMagicIsNoConversationFile) {
  const std::string whole = SampleFile(28);
  for (std::size_t length = 0; length < kMagicSize; ++length) {
    TestWorkspace space;
    OpenFile open(space);
    space.messages.Expect(Answer::Ok);
    EXPECT_FALSE(open.Load(whole.substr(0, length)));
    EXPECT_EQ(space.messages.shown[0].text, "This is not a valid Conversation File!!");
  }
}

/// Every place of the file where one of the hostile numbers is not read as what was there.
TEST(DamagedFile, NeverCrashesNorAsksForMuchWhateverNumberStandsAnywhere) {
  const std::string whole = SampleFile(28);
  constexpr std::size_t kMost = 512 * std::size_t{1024};
  for (std::size_t at = 30; at + 4 <= whole.size(); ++at) {
    for (const std::int32_t hostile : {INT32_MAX, -1, 0x00FFFFFF, 32768}) {
      const std::string bytes = WithI32At(whole, at, hostile);
      TestWorkspace space;
      OpenFile open(space);
      largestPiece = 0;
      try {
        open.Load(bytes);
      } catch (const RuntimeError& error) {
        ASSERT_TRUE(error.Offset()) << hostile << " at " << at << ": " << error.what();
        ASSERT_LE(*error.Offset(), bytes.size());
      }
      ASSERT_LT(largestPiece, kMost) << hostile << " at " << at;
    }
  }
}

/// A file that ends in a count or a length, and how the error names the place.
struct Counted {
  std::string name;
  std::string before;
  std::int32_t most;  ///< -1 for the length of a text.
  std::string path;
  std::string what;
};

FileBytes Begun(int conversations) {
  FileBytes file(28);
  file.Start().Header({}).Tables(SampleTables()).I32(1);
  if (conversations > 0) file.I32(1).Conversation({});
  return file;
}

FileBytes InTables(int table) {
  FileBytes file(28);
  file.Start().Header({}).I32(0);
  for (int i = 0; i < table; ++i) file.I32(0);
  return file;
}

std::vector<Counted> CountedPlaces() {
  testing_support::HeaderFields noMissions;
  noMissions.missions = {};
  std::string header = FileBytes(28).Start().Header(noMissions).Bytes();
  header.resize(header.size() - 4);
  ConversationFields con;
  std::string flags = FileBytes(Begun(0)).I32(1).Conversation(con).Bytes();
  flags.resize(flags.size() - 4);
  const std::string event = "conversation 1 of 1, event 1";
  const std::string firstChoice = "conversation 1 of 1, event 1, choice 1";
  const std::string firstFlag = "conversation 1 of 1, event 1, flag 1";
  const auto inEvent = [](std::int32_t type, const FileBytes& payload) {
    return OneEventFile(28, {}, type, payload.Bytes()).Bytes();
  };
  const FileBytes choice = FileBytes(28).I32(0).Bool(false);
  const FileBytes oneChoice =
      FileBytes(28).I32(0).Bool(false).I32(1).I32(0).Str("").Bool(false).I32(-1).Str("").Str("");
  return {
      {"Missions", header, 32767, "header", "missions"},
      {"Actors", InTables(0).Bytes(), 32767, "table Actors/Pawn", "rows"},
      {"Flags", InTables(1).Bytes(), 32767, "table Flag", "rows"},
      {"Skills", InTables(2).Bytes(), 32767, "table Skill", "rows"},
      {"Objects", InTables(3).Bytes(), 32767, "table Object", "rows"},
      {"RowName", FileBytes(InTables(0)).I32(1).I32(0).Bytes(), -1, "table Actors/Pawn, row 1", ""},
      {"Conversations", Begun(0).Bytes(), 32767, "", "conversations"},
      {"ConversationName", FileBytes(Begun(0)).I32(3).I32(0).I32(0).Bytes(), -1,
       "conversation 1 of 3", ""},
      {"ConversationFlags", flags, 32767, "conversation 1 of 1", "flags"},
      {"Events", Begun(1).Bytes(), 32767, "conversation 1 of 1", "events"},
      {"EventLabel", FileBytes(Begun(1)).I32(2).I32(0).I32(1).I32(18).Bytes(), -1, event, ""},
      {"Choices", inEvent(kChoice, choice), 32767, event, "choices"},
      {"ChoiceText", inEvent(kChoice, FileBytes(choice).I32(1).I32(0)), -1, firstChoice, ""},
      {"ChoiceFlags", inEvent(kChoice, oneChoice), 32767, firstChoice, "flags"},
      {"SetFlags", inEvent(kSetFlags, FileBytes(28)), 32767, event, "flags"},
      {"FlagName", inEvent(kCheckFlags, FileBytes(28).I32(1).I32(0)), -1, firstFlag, ""},
      {"Labels", inEvent(kRandomLabel, FileBytes(28)), 32768, event, "labels"},
      {"Label", inEvent(kRandomLabel, FileBytes(28).I32(1)), -1, event, ""},
      {"Comment", inEvent(kComment, FileBytes(28)), -1, event, ""},
  };
}

class CountOrLength : public testing::TestWithParam<Counted> {};

TEST_P(CountOrLength, ThatCannotBeIsRefusedAtItsPlace) {
  const auto& [name, before, most, path, what] = GetParam();
  const bool isText = most < 0;
  const auto refused = [&before = before](std::int32_t value) {
    largestPiece = 0;
    Outcome outcome = OutcomeOf(FileBytes(28).Raw(before).I32(value).Bytes());
    EXPECT_LT(largestPiece, 64 * std::size_t{1024}) << value;
    return outcome;
  };
  for (const std::int32_t value : {isText ? 70000 : most + 1, INT32_MAX, -1, INT32_MIN}) {
    const Outcome outcome = refused(value);
    EXPECT_EQ(outcome.number, value < 0 ? 5 : isText ? 62 : 6) << value;
    EXPECT_EQ(outcome.offset, before.size()) << value;
    EXPECT_EQ(outcome.path, path);
    const std::string number = std::to_string(value);
    if (isText && value > 0) {
      EXPECT_EQ(outcome.detail, "string of " + number + " bytes runs past the end of the file");
    } else if (isText) {
      EXPECT_EQ(outcome.detail, "string has the negative length " + number);
    } else {
      EXPECT_THAT(outcome.detail, AllOf(StartsWith("the count says " + number), HasSubstr(what)));
    }
  }
}

TEST_P(CountOrLength, ThatTheFileIsTooShortForIsRefusedWithoutMuchMemory) {
  const auto& [name, before, most, path, what] = GetParam();
  largestPiece = 0;
  const Outcome outcome = OutcomeOf(FileBytes(28).Raw(before).I32(32767).Bytes());
  EXPECT_EQ(outcome.number, 62);
  EXPECT_LT(largestPiece, 64 * std::size_t{1024});
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, CountOrLength, testing::ValuesIn(CountedPlaces()),
                         [](const auto& tested) { return tested.param.name; });

TEST(DamagedFile, WithTwoEqualKeysIsRefused) {
  const auto two = [](const std::string& record) {
    return FileBytes(28).I32(2).Raw(record).Raw(record).Bytes();
  };
  const std::string con = FileBytes(28).Conversation({}).I32(0).Bytes();
  const std::size_t startOfSecond = Begun(0).Size() + 4 + con.size();
  const std::string event = FileBytes(28).Event(0, 1, kEnd, "").Bytes();
  const std::string flag = FileBytes(28).I32(2).Str("Door").Bool(true).I32(0).Bytes();
  const std::string choice = FileBytes(28).Choice({}).Bytes();
  const std::string twoChoices = FileBytes(28).I32(2).Bool(true).Raw(two(choice)).Bytes();
  const std::pair<std::string, std::string> files[] = {
      {Begun(1).Bytes() + two(event), "conversation 1 of 1, event 2"},
      {OneEventFile(28, {}, kSetFlags, two(flag)).Bytes(), "conversation 1 of 1, event 1, flag 2"},
      {OneEventFile(28, {}, kChoice, twoChoices).Bytes(),
       "conversation 1 of 1, event 1, choice 2"}};
  for (const auto& [bytes, path] : files) {
    const Outcome outcome = OutcomeOf(bytes);
    EXPECT_EQ(outcome.number, 457) << path;
    EXPECT_EQ(outcome.path, path);
    EXPECT_EQ(outcome.offset, bytes.size()) << "the place behind the second record";
  }
  const Outcome outcome = OutcomeOf(Begun(0).Bytes() + two(con));
  EXPECT_EQ(outcome.number, 457);
  EXPECT_EQ(outcome.path, "conversation 2 of 2 (Con)");
  EXPECT_EQ(outcome.offset, startOfSecond) << "a conversation that was read whole is wrong as such";
}

TEST(DamagedFile, WithAnUnknownEventTypeIsRefusedAtTheType) {
  for (const std::int32_t type : {19, -1, INT32_MAX}) {
    const std::string bytes = OneEventFile(28, {}, type, "").Bytes();
    const Outcome outcome = OutcomeOf(bytes);
    EXPECT_EQ(outcome.number, 91);
    EXPECT_EQ(outcome.offset, bytes.size() - 8);
    EXPECT_EQ(outcome.path, "conversation 1 of 1, event 1");
    EXPECT_EQ(outcome.detail, "there is no event type " + std::to_string(type));
  }
}

TEST(DamagedFile, WithARandomEventThatHasNoLabelIsRefused) {
  const Outcome outcome =
      OutcomeOf(OneEventFile(28, {}, kRandomLabel, FileBytes(28).I32(0).Bytes()).Bytes());
  EXPECT_EQ(outcome.number, 9);
  EXPECT_EQ(outcome.path, "conversation 1 of 1, event 1");
}

TEST(DamagedFile, WithTheHighestRowIdOfAllIsRefused) {
  testing_support::TableFields tables;
  tables.skills = {{INT32_MAX, "Last"}};
  const Outcome outcome =
      OutcomeOf(FileBytes(28).Start().Header({}).Tables(tables).I32(0).I32(0).Bytes());
  EXPECT_EQ(outcome.number, 6) << "no ID could follow it";
  EXPECT_EQ(outcome.path, "table Skill");
}

TEST(DamagedFile, KeepsWhatWasReadAndTheProgressDialogOpen) {
  TestWorkspace space;
  OpenFile open(space);
  open.file.SetModified(true, nullptr);
  const std::string whole = SampleFile(28);
  EXPECT_EQ(ErrorOf([&] { open.Load(whole.substr(0, whole.size() - 1)); }), 62);
  EXPECT_EQ(open.file.Conversations.Count(), 1U);
  EXPECT_EQ(open.tree.keys.size(), 1U);
  EXPECT_TRUE(open.progress.showing);
  EXPECT_TRUE(open.file.IsModified()) << "as it was";
}

struct Refused {
  std::int32_t version;
  std::string title;
  std::string text;
};

class RefusedVersion : public testing::TestWithParam<Refused> {};

TEST_P(RefusedVersion, IsToldToTheUser) {
  const auto& [version, title, text] = GetParam();
  TestWorkspace space;
  OpenFile open(space);
  space.messages.Expect(Answer::Ok);
  EXPECT_FALSE(open.Load(WithI32At(SampleFile(28), 26, version)));
  ASSERT_EQ(space.messages.shown.size(), 1U);
  const MessageBox& box = space.messages.shown[0];
  EXPECT_EQ(box.title, title);
  EXPECT_EQ(box.text, text);
  EXPECT_EQ(box.icon, MessageBox::Icon::Critical);
  EXPECT_EQ(box.buttons, MessageBox::Buttons::Ok);
  EXPECT_EQ(open.file.versionNum, version);
  EXPECT_FALSE(open.progress.showing);
}

std::string TooOld(const std::string& version) {
  return "The conversation file you are attempting to load is version " + version +
         ".\nThe last supported version is 14.\n\nThis file CANNOT be loaded.";
}

const std::string kTooNew =
    "The conversation file you are attempting to load was created with a newer version of "
    "Parlate.\n\nThis file CANNOT be loaded.";

INSTANTIATE_TEST_SUITE_P(TooOldOrTooNew, RefusedVersion,
                         testing::Values(Refused{13, "Obsolete Conversation File!", TooOld("13")},
                                         Refused{0, "Obsolete Conversation File!", TooOld("0")},
                                         Refused{-1, "Obsolete Conversation File!", TooOld("-1")},
                                         Refused{29, "Obsolete Parlate!", kTooNew},
                                         Refused{INT32_MAX, "Obsolete Parlate!", kTooNew}));

TEST(RefusedFile, WithAnotherMagicIsToldToTheUserAndEmptiesTheFile) {
  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(SampleFile(28)));
  std::string bytes = SampleFile(28);
  bytes[0] = 'o';
  space.messages.Expect(Answer::Ok);
  EXPECT_FALSE(open.Load(bytes));
  const MessageBox& box = space.messages.shown.at(0);
  EXPECT_EQ(box.title, "Oh shit!");
  EXPECT_EQ(box.text, "This is not a valid Conversation File!!");
  EXPECT_EQ(box.icon, MessageBox::Icon::Critical);
  EXPECT_TRUE(open.file.Conversations.Empty());
}

}  // namespace
}  // namespace parlate

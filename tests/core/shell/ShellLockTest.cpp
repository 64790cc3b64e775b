// The lock beside a file: what is asked when there is one, and what each answer leads to.

#include <filesystem>

#include "general/Paths.h"
#include "support/ShellFixture.h"
#include "support/UnopenableFile.h"

namespace parlate {
namespace {

using namespace testing_support;
using Icon = MessageBox::Icon;
using Buttons = MessageBox::Buttons;

constexpr const char* kOwnTitle = "File already open!";
constexpr const char* kOwnText =
    "This file was previously opened by you and may not have been shut down properly.\n"
    "Do you wish to override the lock?  Selecting 'No' will cause the file to be\n"
    "opened in Read-Only mode, preventing you from saving changes.";

std::string LockOf(const std::string& username) { return FileBytes(28).Str(username).Bytes(); }

class ShellLock : public ShellTest {
 protected:
  ShellLock() { WriteBytes(Path("harbour.con"), HarbourFile()); }

  void OpenLockedBy(const std::string& holder, Answer answer) {
    WriteBytes(Lock(), LockOf(holder));
    program_.messages.Expect(answer);
    Window().OpenConFile(Path("harbour.con"));
  }
  [[nodiscard]] std::string Lock() const { return Path("harbour.lck"); }
};

TEST_F(ShellLock, IsWrittenWithTheUsersNameAndRemovedAtTheEnd) {
  Window().OpenConFile(Path("harbour.con"));
  EXPECT_EQ(ReadBytes(Lock()), LockOf(kSavedBy));
  EXPECT_FALSE(Window().IsReadOnly());
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_FALSE(FileExists(Lock()));
}

TEST_F(ShellLock, TakesItsNameFromThePathUpToTheFirstPoint) {
  std::filesystem::create_directory(Path("data.old"));
  WriteBytes(Path("data.old/Mission1.con"), HarbourFile());
  Window().OpenConFile(Path("data.old/Mission1.con"));
  EXPECT_TRUE(FileExists(Path("data.lck")));
  EXPECT_FALSE(FileExists(Path("data.old/Mission1.lck")));
}

TEST_F(ShellLock, OfTheUsersOwnInOtherCaseIsAskedAbout) {
  OpenLockedBy("TESTER", Answer::Cancel);
  EXPECT_THAT(LastBox(), IsBox(kOwnTitle, kOwnText, Icon::None, Buttons::YesNoCancel));
}

TEST_F(ShellLock, OfTheUsersOwnIsTakenOverOnYes) {
  OpenLockedBy("TESTER", Answer::Yes);
  EXPECT_EQ(ReadBytes(Lock()), LockOf(kSavedBy)) << "the old lock went and a new one came";
  EXPECT_NE(Window().GetConFile(), nullptr);
  EXPECT_FALSE(Window().IsReadOnly());
  Window().CloseConFile();
  EXPECT_FALSE(FileExists(Lock()));
}

TEST_F(ShellLock, TakenOverLeavesNothingOfALongerOneBehind) {
  WriteBytes(Lock(), LockOf("Tester") + "more bytes than the new lock has");
  program_.messages.Expect(Answer::Yes);
  Window().OpenConFile(Path("harbour.con"));
  EXPECT_EQ(ReadBytes(Lock()), LockOf(kSavedBy));
}

TEST_F(ShellLock, OfTheUsersOwnOpensReadOnlyOnNo) {
  OpenLockedBy("Tester", Answer::No);
  EXPECT_TRUE(Window().IsReadOnly());
  EXPECT_NE(Window().GetConFile(), nullptr);
  EXPECT_EQ(ReadBytes(Lock()), LockOf("Tester"));
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_EQ(ReadBytes(Lock()), LockOf("Tester")) << "a reader leaves the lock alone";
  EXPECT_FALSE(Window().IsReadOnly()) << "the mark goes with the file";
}

TEST_F(ShellLock, OfTheUsersOwnStopsTheOpenOnCancel) {
  OpenLockedBy("tester", Answer::Cancel);
  EXPECT_EQ(Window().GetConFile(), nullptr);
  EXPECT_FALSE(Window().IsReadOnly());
  EXPECT_EQ(ReadBytes(Lock()), LockOf("tester"));
}

TEST_F(ShellLock, OfAnotherIsAskedAboutAndOpensReadOnlyOnYes) {
  OpenLockedBy("ben", Answer::Yes);
  EXPECT_THAT(LastBox(), IsBox("File in use!",
                               "This file is currently open by ben.\nDo you wish to open it in "
                               "Read-Only mode?",
                               Icon::None, Buttons::YesNo));
  EXPECT_TRUE(Window().IsReadOnly());
  EXPECT_NE(Window().GetConFile(), nullptr);
  Window().CloseConFile();
  EXPECT_EQ(ReadBytes(Lock()), LockOf("ben"));
}

TEST_F(ShellLock, OfAnotherStopsTheOpenOnNo) {
  OpenLockedBy("ben", Answer::No);
  EXPECT_EQ(Window().GetConFile(), nullptr);
  EXPECT_FALSE(Window().IsReadOnly());
  EXPECT_EQ(ReadBytes(Lock()), LockOf("ben"));
}

TEST_F(ShellLock, ThatCannotBeWrittenIsReportedAndTheOpenGoesOn) {
  std::filesystem::create_directory(Lock());  // a folder can be no lock, and no file to write
  program_.messages.Expect(Answer::Ok);
  Window().OpenConFile(Path("harbour.con"));
  EXPECT_THAT(LastBox(), SaysPlainly("Error Opening Lock File " + Lock() +
                                     ", Error # 75: Path/File access error"));
  EXPECT_NE(Window().GetConFile(), nullptr);
  EXPECT_FALSE(Window().IsReadOnly());
}

TEST_F(ShellLock, ThatCannotBeReadCountsAsNone) {
  const UnopenableFile lock(Lock());
  ASSERT_TRUE(lock.Bound());
  program_.messages.Expect(Answer::Ok);
  Window().OpenConFile(Path("harbour.con"));
  EXPECT_EQ(BoxCount(), 1U) << "no question";
  EXPECT_THAT(LastBox().text, testing::StartsWith("Error Opening Lock File " + Lock()));
  EXPECT_NE(Window().GetConFile(), nullptr);
  EXPECT_FALSE(Window().IsReadOnly());
}

// Two copies of the program meet at one file. Each works within its own workspace, as two
// processes do.
class ShellTwoCopies : public testing::Test {
 protected:
  ShellTwoCopies() { WriteBytes(Con(), HarbourFile()); }
  [[nodiscard]] std::string Con() const { return folder_.File("harbour.con"); }
  [[nodiscard]] std::string Lock() const { return folder_.File("harbour.lck"); }
  template <class Work>
  static auto In(Program& program, Work work) {
    const WorkspaceScope scope(program.workspace);
    return work(*program.shell);
  }
  void Open(Program& program) const {
    In(program, [this](Shell& shell) { shell.OpenConFile(Con()); });
  }
  static bool Close(Program& program) {
    return In(program, [](Shell& shell) { return bool(shell.CloseConFile()); });
  }

  TemporaryFolder folder_;
  Program anna_{"anna"};
  Program ben_{"ben"};
};

TEST_F(ShellTwoCopies, TheSecondWriterIsToldOfTheFirstAndReadsOnly) {
  Open(anna_);
  ben_.messages.Expect(Answer::Yes);
  Open(ben_);
  EXPECT_EQ(ben_.messages.shown.at(0).text,
            "This file is currently open by anna.\nDo you wish to open it in Read-Only mode?");
  EXPECT_FALSE(anna_.shell->IsReadOnly());
  EXPECT_TRUE(ben_.shell->IsReadOnly());
  ben_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(In(ben_, [](Shell& shell) { return bool(shell.SaveConFile(false)); }));
  EXPECT_TRUE(In(anna_, [](Shell& shell) { return bool(shell.SaveConFile(false)); }));
}

TEST_F(ShellTwoCopies, TheReadersLeavingDoesNotFreeTheFile) {
  Open(anna_);
  ben_.messages.Expect(Answer::Yes);
  Open(ben_);
  EXPECT_TRUE(Close(ben_));
  EXPECT_EQ(ReadBytes(Lock()), LockOf("anna"));
  EXPECT_TRUE(Close(anna_));
  EXPECT_FALSE(FileExists(Lock()));
  Open(ben_);
  EXPECT_FALSE(ben_.shell->IsReadOnly());
  EXPECT_EQ(ReadBytes(Lock()), LockOf("ben"));
}

TEST_F(ShellTwoCopies, OfOneUserMeetTheirOwnLock) {
  Program again("ANNA");
  Open(anna_);
  again.messages.Expect(Answer::Yes);
  Open(again);
  EXPECT_EQ(again.messages.shown.at(0).title, kOwnTitle);
  EXPECT_EQ(ReadBytes(Lock()), LockOf("ANNA"));
  EXPECT_TRUE(Close(anna_));
  EXPECT_FALSE(FileExists(Lock())) << "the first copy takes the second one's lock away";
  EXPECT_TRUE(Close(again));
}

TEST_F(ShellTwoCopies, KeepTheirTablesAndTreesApart) {
  Open(anna_);
  ben_.messages.Expect(Answer::Yes);
  Open(ben_);
  EXPECT_TRUE(Close(ben_));
  EXPECT_EQ(ben_.workspace.tables.tables[kActorTable].Count(), 0U);
  EXPECT_EQ(anna_.workspace.tables.tables[kActorTable].Count(), 2U);
  EXPECT_EQ(anna_.shell->tvCons().NodeCount(), 7U);
}

}  // namespace
}  // namespace parlate

#include <gtest/gtest.h>

#include <string>

#include "general/Paths.h"
#include "general/RuntimeError.h"
#include "persistence/LockFile.h"
#include "support/FileBytes.h"
#include "support/TemporaryFolder.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::ErrorOf;
using testing_support::FileBytes;
using testing_support::ReadBytes;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

TEST(LockFile, IsNamedByThePathUpToItsFirstPoint) {
  EXPECT_EQ(GetLockFileName("/data/Mission1.con"), "/data/Mission1.lck");
  EXPECT_EQ(GetLockFileName("/data/Mission1.v2.con"), "/data/Mission1.lck");
  EXPECT_EQ(GetLockFileName("/data.old/Mission1.con"), "/data.lck")
      << "two files in such a folder share a lock, and all users' locks agree";
  EXPECT_EQ(GetLockFileName("/data/Mission1"), "/data/Mission1.lck");
}

TEST(LockFile, HoldsTheNameOfItsWriterAndNothingElse) {
  const TemporaryFolder folder;
  const std::string path = folder.File("Mission1.con");
  WriteLock(path, "Ren\xE9");
  EXPECT_EQ(ReadBytes(folder.File("Mission1.lck")), FileBytes(28).Str("Ren\xE9").Bytes());
  EXPECT_EQ(ReadLockHolder(path), "Ren\xE9");
}

TEST(LockFile, IsReadUpToItsNameWhateverFollows) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("a.lck"), FileBytes(28).Str("anna").Raw("left over").Bytes());
  EXPECT_EQ(ReadLockHolder(folder.File("a.con")), "anna");
}

TEST(LockFile, IsHeldByNobodyWhenThereIsNone) {
  const TemporaryFolder folder;
  EXPECT_EQ(ReadLockHolder(folder.File("a.con")), std::nullopt);
}

TEST(LockFile, IsHeldBySomebodyUnknownWhenItIsCutShort) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("a.lck"), FileBytes(28).I32(10).Raw("an").Bytes());
  WriteBytes(folder.File("b.lck"), "");
  EXPECT_EQ(ReadLockHolder(folder.File("a.con")), "");
  EXPECT_EQ(ReadLockHolder(folder.File("b.con")), "");
}

TEST(LockFile, OfALongerNameLeavesItsEndBehindAShorterOne) {
  const TemporaryFolder folder;
  const std::string path = folder.File("a.con");
  WriteLock(path, "someone with a long name");
  WriteLock(path, "anna");
  EXPECT_EQ(ReadLockHolder(path), "anna");
}

TEST(LockFile, IsRemovedWithErrorsIgnored) {
  const TemporaryFolder folder;
  const std::string path = folder.File("a.con");
  WriteLock(path, "anna");
  RemoveLock(path);
  EXPECT_FALSE(FileExists(folder.File("a.lck")));
  EXPECT_EQ(ErrorOf([&] { RemoveLock(path); }), 0);
}

TEST(LockFile, SaysWhyItCannotBeWritten) {
  const TemporaryFolder folder;
  EXPECT_EQ(ErrorOf([&] { WriteLock(folder.File("none/a.con"), "anna"); }), 76);
}

}  // namespace
}  // namespace parlate

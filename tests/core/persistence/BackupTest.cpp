#include <gtest/gtest.h>

#include <string>

#include "general/Paths.h"
#include "general/RuntimeError.h"
#include "persistence/Backup.h"
#include "support/TemporaryFolder.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing_support::ErrorOf;
using testing_support::ReadBytes;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

TEST(Backup, IsNamedByTheSettingAndTheFilesOwnName) {
  EXPECT_EQ(BackupFileName("/backup/", "/data/Mission1.con"), "/backup/Mission1.con");
  EXPECT_EQ(BackupFileName("/backup", "/data/Mission1.con"), "/backupMission1.con")
      << "nothing is put between the two";
}

TEST(Backup, GoesAsideUnderANameThatEndsInBak) {
  EXPECT_EQ(OlderBackupFileName("/backup/Mission1.con"), "/backup/Mission1.bak");
  EXPECT_EQ(OlderBackupFileName("/backup/Mission1.text"), "/backup/Mission1.tbak");
  EXPECT_EQ(OlderBackupFileName("ab"), "bak");
}

TEST(Backup, MovesTheLastImageInPlaceOfTheOneBefore) {
  const TemporaryFolder folder;
  const std::string file = folder.File("Mission1.con");
  RotateBackup(file);
  EXPECT_FALSE(FileExists(folder.File("Mission1.bak"))) << "there was nothing to move";
  WriteBytes(file, "first");
  RotateBackup(file);
  EXPECT_FALSE(FileExists(file));
  EXPECT_EQ(ReadBytes(folder.File("Mission1.bak")), "first");
  WriteBytes(file, "second");
  RotateBackup(file);
  EXPECT_EQ(ReadBytes(folder.File("Mission1.bak")), "second");
  RotateBackup(file);
  EXPECT_EQ(ReadBytes(folder.File("Mission1.bak")), "second")
      << "without a new image the old one stays";
}

TEST(Backup, MakesItsFolderWithOrWithoutASeparatorAtTheEnd) {
  const TemporaryFolder folder;
  EXPECT_TRUE(EnsureBackupFolder(folder.File("a/b/")));
  EXPECT_TRUE(FolderExists(folder.File("a/b")));
  EXPECT_TRUE(EnsureBackupFolder(folder.File("c/d")));
  EXPECT_TRUE(FolderExists(folder.File("c/d")));
  EXPECT_TRUE(EnsureBackupFolder(folder.File("c/d")));
}

TEST(Backup, SaysWhenItsFolderCannotBeMade) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("taken"), "a file");
  EXPECT_FALSE(EnsureBackupFolder(folder.File("taken/b/")));
  EXPECT_EQ(ErrorOf([&] { EnsureBackupFolder(folder.File("taken")); }), 75)
      << "the plain creation raises";
}

}  // namespace
}  // namespace parlate

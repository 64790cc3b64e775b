#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "general/Paths.h"
#include "general/RuntimeError.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using testing_support::ReadBytes;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

template <class Statement>
int ErrorOf(Statement statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Paths, SplitAtTheLastSeparator) {
  std::string fileName = "before";
  std::string folder = "before";
  SplitPath("/a/b/Mission1.con", fileName, folder);
  EXPECT_EQ(fileName, "Mission1.con");
  EXPECT_EQ(folder, "/a/b/");
  SplitPath("Mission1.con", fileName, folder);
  EXPECT_EQ(fileName, "Mission1.con");
  EXPECT_EQ(folder, "");
  EXPECT_EQ(GetPathOnly("/a/b/"), "/a/b/");
  EXPECT_EQ(GetFileOnly("/a/b/"), "");
  EXPECT_EQ(GetPathOnly("/x"), "/");
  EXPECT_EQ(GetFileOnly("/x"), "x");
  EXPECT_EQ(GetPathOnly(""), "");
}

TEST(Paths, SplitIntoTheVariableThatHoldsThePath) {
  std::string path = "/a/b.con";
  std::string folder;
  SplitPath(path, path, folder);
  EXPECT_EQ(path, "b.con");
  EXPECT_EQ(folder, "/a/");
}

TEST(Paths, CutTheExtensionAtTheFirstPointOfTheWholePath) {
  EXPECT_EQ(StripExtension("/data/Mission1.con"), "/data/Mission1");
  EXPECT_EQ(StripExtension("/data.old/Mission1.con"), "/data");
  EXPECT_EQ(StripExtension("a.b.c"), "a");
  EXPECT_EQ(StripExtension("/data/Mission1"), "/data/Mission1");
  EXPECT_EQ(StripExtension(".con"), "");
}

TEST(CreateDirectoryPath, MakesEachMissingFolderThatASeparatorFollows) {
  const TemporaryFolder folder;
  EXPECT_TRUE(CreateDirectoryPath(folder.File("a/b/c/")));
  EXPECT_TRUE(FolderExists(folder.File("a/b/c")));
  EXPECT_TRUE(CreateDirectoryPath(folder.File("a/b/c/"))) << "folders that are there do no harm";
}

TEST(CreateDirectoryPath, DoesNotMakeALastElementWithoutASeparator) {
  const TemporaryFolder folder;
  EXPECT_TRUE(CreateDirectoryPath(folder.File("a/b")));
  EXPECT_TRUE(FolderExists(folder.File("a")));
  EXPECT_FALSE(FolderExists(folder.File("a/b")));
}

/// Makes a folder the current one for as long as the scope lives.
class CurrentFolder {
 public:
  explicit CurrentFolder(const std::string& path) { std::filesystem::current_path(path); }
  ~CurrentFolder() { std::filesystem::current_path(before_); }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

TEST(CreateDirectoryPath, SkipsTheFirstElement) {
  const TemporaryFolder folder;
  const CurrentFolder current(folder.Path());
  // The first one is the root, so a relative path misses its own first folder.
  EXPECT_TRUE(CreateDirectoryPath("first/"));
  EXPECT_FALSE(FolderExists("first"));
  EXPECT_FALSE(CreateDirectoryPath("first/second/"));
  EXPECT_TRUE(CreateDirectoryPath("/"));
  EXPECT_TRUE(CreateDirectoryPath(""));
  EXPECT_TRUE(CreateDirectoryPath("no-separator"));
}

TEST(CreateDirectoryPath, IsFalseWhenAFolderCannotBeMade) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("taken"), "a file");
  EXPECT_FALSE(CreateDirectoryPath(folder.File("taken/below/")));
}

TEST(CreateDirectoryPath, RaisesNineForMoreThanAHundredPrefixes) {
  std::string path;
  for (int i = 0; i < 100; ++i) path += "/";
  EXPECT_EQ(ErrorOf([&] { CreateDirectoryPath(path); }), 0);
  EXPECT_EQ(ErrorOf([&] { CreateDirectoryPath(path + "/"); }), 9);
}

TEST(Paths, TellFilesFromFolders) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("file"), "");
  EXPECT_TRUE(FileExists(folder.File("file")));
  EXPECT_FALSE(FolderExists(folder.File("file")));
  EXPECT_TRUE(FolderExists(folder.Path()));
  EXPECT_FALSE(FileExists(folder.Path()));
  EXPECT_FALSE(FileExists(folder.File("none")));
  EXPECT_FALSE(FolderExists(folder.File("none")));
}

TEST(Paths, DeleteRenameAndMakeSayWhyTheyFail) {
  const TemporaryFolder folder;
  WriteBytes(folder.File("one"), "1");
  WriteBytes(folder.File("two"), "2");
  EXPECT_EQ(ErrorOf([&] { DeleteFile(folder.File("none")); }), 53);
  EXPECT_EQ(ErrorOf([&] { RenameFile(folder.File("one"), folder.File("two")); }), 58);
  EXPECT_EQ(ReadBytes(folder.File("two")), "2") << "a rename does not take another file's place";
  EXPECT_EQ(ErrorOf([&] { RenameFile(folder.File("none"), folder.File("new")); }), 53);
  RenameFile(folder.File("one"), folder.File("new"));
  EXPECT_EQ(ReadBytes(folder.File("new")), "1");
  DeleteFile(folder.File("new"));
  EXPECT_FALSE(FileExists(folder.File("new")));
  EXPECT_EQ(ErrorOf([&] { MakeFolder(folder.File("none/below")); }), 76);
  EXPECT_EQ(ErrorOf([&] { MakeFolder(folder.File("two")); }), 75);
  MakeFolder(folder.File("made"));
  EXPECT_TRUE(FolderExists(folder.File("made")));
}

}  // namespace
}  // namespace parlate

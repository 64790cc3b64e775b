// What the user meets when the disk or another program takes something away.

#include <filesystem>

#include "general/Paths.h"
#include "support/FileBytes.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

enum class Backups { Off, On };

/// With a backup folder the image there is written first, and must not pass for the save itself.
class ShellFaults : public ShellTest, public testing::WithParamInterface<Backups> {
 protected:
  ShellFaults() {
    if (WithBackups()) Defaults().ConBackupPath = backups_.Path();
    OpenHarbour();
  }
  [[nodiscard]] static bool WithBackups() { return GetParam() == Backups::On; }
  void Change() { Window().SetModified(true, nullptr); }
  void ExpectThatLeavingAsks() {
    EXPECT_TRUE(Window().GetConFile()->IsModified());
    program_.messages.Expect(Answer::No);
    EXPECT_TRUE(Window().CloseConFile());
    EXPECT_EQ(LastBox().title, "Save Changes?");
  }
  void ExpectBackup(const std::string& name) const {
    EXPECT_EQ(FileExists(backups_.File(name)), WithBackups());
  }

  TemporaryFolder backups_;
};

INSTANTIATE_TEST_SUITE_P(, ShellFaults, testing::Values(Backups::Off, Backups::On),
                         [](const auto& test) {
                           return test.param == Backups::On ? "WithBackups" : "WithoutBackups";
                         });

TEST_P(ShellFaults, AFileRemovedWhileItIsOpenIsWrittenAnew) {
  const std::string path = Path("harbour.con");
  Change();
  ASSERT_TRUE(Window().SaveConFile(false));
  const std::string saved = ReadBytes(path);
  std::filesystem::remove(path);
  EXPECT_TRUE(Window().SaveConFile(false));
  EXPECT_EQ(ReadBytes(path), saved);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
  EXPECT_EQ(BoxCount(), 0U);
  ExpectBackup("harbour.con");
}

TEST_P(ShellFaults, AFolderRemovedWhileItsFileIsOpenIsToldAndTheFileStaysChanged) {
  Change();
  std::filesystem::remove_all(folder_.Path());
  program_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_THAT(LastBox(), SaysPlainly("Error 76: Path not found"));
  ExpectBackup("harbour.con");
  ExpectThatLeavingAsks();
}

TEST_P(ShellFaults, AFullDiskEndsTheWritingWithoutAWordAndTheFileStaysChanged) {
  Change();
  Window().conFileName = "/dev/full";
  EXPECT_TRUE(Window().SaveConFile(false)) << "a save that broke off counts as written";
  EXPECT_EQ(BoxCount(), 0U);
  ExpectBackup("full");
  ExpectThatLeavingAsks();
}

TEST_P(ShellFaults, AFolderInPlaceOfAFileIsToldAndNothingIsOpen) {
  const std::string folder = Path("folder.con");
  std::filesystem::create_directory(folder);
  program_.messages.Expect(Answer::Ok);
  Window().OpenConFile(folder);
  EXPECT_THAT(LastBox(), SaysPlainly("Error 75: Path/File access error"));
  EXPECT_EQ(Window().GetConFile(), nullptr);
}

}  // namespace
}  // namespace parlate

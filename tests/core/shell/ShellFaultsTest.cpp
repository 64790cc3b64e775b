// What the user meets when the disk or another program takes something away.

#include <filesystem>

#include "support/FileBytes.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

class ShellFaults : public ShellTest {
 protected:
  ShellFaults() { OpenHarbour(); }
  void Change() { Window().SetModified(true, nullptr); }
};

TEST_F(ShellFaults, AFileRemovedWhileItIsOpenIsWrittenAnew) {
  const std::string path = Path("harbour.con");
  Change();
  ASSERT_TRUE(Window().SaveConFile(false));
  const std::string saved = ReadBytes(path);
  std::filesystem::remove(path);
  EXPECT_TRUE(Window().SaveConFile(false));
  EXPECT_EQ(ReadBytes(path), saved);
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellFaults, AFolderRemovedWhileItsFileIsOpenIsToldAndTheFileStaysChanged) {
  Change();
  std::filesystem::remove_all(folder_.Path());
  program_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_THAT(LastBox(), SaysPlainly("Error 76: Path not found"));
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellFaults, AFullDiskEndsTheWritingWithoutAWordAndTheFileStaysChanged) {
  Change();
  Window().conFileName = "/dev/full";
  EXPECT_TRUE(Window().SaveConFile(false)) << "a save that broke off counts as written";
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_TRUE(Window().GetConFile()->IsModified()) << "so that leaving asks";
  program_.messages.Expect(Answer::No);
  EXPECT_TRUE(Window().CloseConFile());
}

TEST_F(ShellFaults, AFolderInPlaceOfAFileIsToldAndNothingIsOpen) {
  const std::string folder = Path("folder.con");
  std::filesystem::create_directory(folder);
  program_.messages.Expect(Answer::Ok);
  Window().OpenConFile(folder);
  EXPECT_THAT(LastBox(), SaysPlainly("Error 75: Path/File access error"));
  EXPECT_EQ(Window().GetConFile(), nullptr);
}

}  // namespace
}  // namespace parlate

// Files that open in the window, or do not: what is said, and what the window shows then.

#include <QApplication>
#include <QImage>
#include <QWindow>
#include <filesystem>

#include "general/Paths.h"
#include "mainwindow/WindowFixture.h"
#include "support/FileBytes.h"
#include "support/UnopenableFile.h"

namespace parlate {
namespace {

using namespace testing_support;

class Opening : public WindowTest {
 protected:
  [[nodiscard]] std::string Lock() const { return folder.File("sample.lck"); }
  static void ExpectNoFile(RunningProgram& program) {
    EXPECT_EQ(program.shell().GetConFile(), nullptr);
    EXPECT_EQ(program.Window().windowTitle(), "Parlate");
    EXPECT_EQ(program.Find<QLabel>("panStatus").text(), "No Conversation Loaded");
    EXPECT_FALSE(program.Tree().isVisible());
    EXPECT_FALSE(program.Enabled("mnuFileClose"));
  }
  static void ExpectBox(const RunningProgram& program, const std::string& title,
                        const std::string& text, MessageBox::Buttons buttons) {
    ASSERT_EQ(program.messages.shown.size(), 1U);
    EXPECT_EQ(program.messages.shown[0].title, title);
    EXPECT_EQ(program.messages.shown[0].text, text);
    EXPECT_EQ(program.messages.shown[0].icon, MessageBox::Icon::None);
    EXPECT_EQ(program.messages.shown[0].buttons, buttons);
  }
};

/// A lock that ends before the name of its holder does.
struct ShortLock {
  const char* name;
  std::string bytes;
};

class CutShortLock : public Opening, public testing::WithParamInterface<ShortLock> {};

INSTANTIATE_TEST_SUITE_P(
    , CutShortLock,
    testing::Values(ShortLock{"Empty", ""}, ShortLock{"InItsLength", std::string("\x06\x00", 2)},
                    ShortLock{"InItsName", FileBytes(28).I32(6).Raw("Tes").Bytes()}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_P(CutShortLock, IsHeldByNobodyKnownAndAskedAbout) {
  const std::string path = PutSampleFile(28);
  WriteBytes(Lock(), GetParam().bytes);
  RunningProgram program;
  program.messages.Expect(Answer::No);
  ASSERT_TRUE(program.Start(path));
  ExpectBox(program, "File in use!",
            "This file is currently open by .\nDo you wish to open it in Read-Only mode?",
            MessageBox::Buttons::YesNo);
  ExpectNoFile(program);
  EXPECT_EQ(ReadBytes(Lock()), GetParam().bytes);

  program.messages.Expect(Answer::Yes);
  program.shell().OpenConFile(path);
  EXPECT_NE(program.shell().GetConFile(), nullptr);
  EXPECT_TRUE(program.shell().IsReadOnly());
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(ReadBytes(Lock()), GetParam().bytes);
}

TEST_F(Opening, AFileThatIsThereButCannotBeReadIsToldAndLeavesItsLockBehind) {
  const std::string path = folder.File("sample.con");
  const UnopenableFile file(path);
  ASSERT_TRUE(file.Bound());
  RunningProgram program;
  program.messages.Expect(Answer::Ok);
  ASSERT_TRUE(program.Start(path));
  ExpectBox(program, "", "Error 57: Device I/O error", MessageBox::Buttons::Ok);
  ExpectNoFile(program);
  EXPECT_EQ(ReadBytes(Lock()), FileBytes(28).Str("Tester").Bytes());
  EXPECT_FALSE(program.Window().Command("mnuFileLast(0)")->isVisible());
  EXPECT_TRUE(program.Close());
  EXPECT_EQ(ReadBytes(Lock()), FileBytes(28).Str("Tester").Bytes());
}

TEST_F(Opening, AFolderInTheFilesPlaceIsToldTheSameWay) {
  std::filesystem::create_directory(folder.File("sample.con"));
  RunningProgram program;
  program.messages.Expect(Answer::Ok);
  ASSERT_TRUE(program.Start(folder.File("sample.con")));
  ExpectBox(program, "", "Error 75: Path/File access error", MessageBox::Buttons::Ok);
  ExpectNoFile(program);
  EXPECT_TRUE(FileExists(Lock()));
}

TEST_F(Opening, AFileThatIsNotThereIsToldAndTheOpenOneIsClosedBefore) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.messages.Expect(Answer::Ok);
  program.shell().OpenConFile(folder.File("gone.con"));
  ExpectBox(program, "", "Error 53: File not found", MessageBox::Buttons::Ok);
  ExpectNoFile(program);
  EXPECT_FALSE(FileExists(Lock()));
  EXPECT_TRUE(FileExists(folder.File("gone.lck")));
}

TEST_F(Opening, APathIsInTheTitleLetterByLetter) {
  for (const char* name : {"a[*]b.con", "[*][*].con", "c[*]d[*][*][*].con", "100% & more.con"}) {
    const std::string path = PutSampleFile(28, name);
    RunningProgram program;
    ASSERT_TRUE(program.Start(path));
    EXPECT_EQ(program.Window().windowHandle()->title(),
              QString::fromStdString("Parlate - " + path));
    program.shell().SetModified(true, nullptr);
    program.shell().UpdateCommandStates();
    EXPECT_EQ(program.Window().windowHandle()->title(), QString::fromStdString("Parlate - " + path))
        << "it shows no sign of unsaved changes";
    program.messages.Expect(Answer::No);
    EXPECT_TRUE(program.Close());
  }
}

TEST_F(Opening, TurnsTheBlackBackgroundIntoTheColourOfTheForms) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start());
  auto& client = program.Find<QWidget>("client");
  // Left of the tree, where nothing stands on the background.
  const auto seen = [&client] {
    const QImage image = client.grab().toImage();
    return image.pixelColor(1, image.height() / 2);
  };
  const QColor buttonFace = QApplication::palette().color(QPalette::Window);
  ASSERT_NE(buttonFace, QColor(Qt::black));
  EXPECT_EQ(seen(), QColor(Qt::black));
  program.shell().OpenConFile(path);
  EXPECT_EQ(seen(), buttonFace);
  EXPECT_EQ(client.palette().color(QPalette::Window), buttonFace);
  program.Choose("mnuFileClose");
  EXPECT_EQ(seen(), QColor(Qt::black));
}

}  // namespace
}  // namespace parlate

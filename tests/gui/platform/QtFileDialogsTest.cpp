#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "platform/Modal.h"
#include "platform/QtFileDialogs.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using testing_support::ReadBytes;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

constexpr const char* kFilter =
    "Conversation Files (*.con)|*.con|Conversation Backups (*.bak)|*.bak";

QLineEdit& NameBox(const QWidget& dialog) {
  return ControlNamed<QLineEdit>(dialog, "fileNameEdit");
}

void EnterName(QWidget& dialog, const QString& name) {
  QLineEdit& box = NameBox(dialog);
  box.selectAll();
  TypeText(box, name);
  QTest::keyClick(&box, Qt::Key_Return);
}

TEST(NameFilters, EachPairIsOneFilterThatBeginsWithItsCaption) {
  EXPECT_EQ(NameFilters(kFilter), (QStringList{"Conversation Files (*.con) (*.con)",
                                               "Conversation Backups (*.bak) (*.bak)"}));
  EXPECT_EQ(NameFilters("Audio Files (*.wav;*.mp3)|*.wav;*.mp3"),
            QStringList{"Audio Files (*.wav;*.mp3) (*.wav *.mp3)"});
  EXPECT_EQ(NameFilters(""), QStringList());
}

TEST(NameFilters, AllFilesAreAlsoThoseWithoutAPoint) {
  EXPECT_EQ(NameFilters("All Files (*.*)|*.*"), QStringList{"All Files (*.*) (*)"});
}

TEST(DefaultExtension, IsTheFirstThatTheFilterNames) {
  EXPECT_EQ(DefaultExtension(kFilter), "con");
  EXPECT_EQ(DefaultExtension("All Files (*.*)|*.*|Text Files (*.txt)|*.txt"), "txt");
  EXPECT_EQ(DefaultExtension("All Files (*.*)|*.*"), "con");
  EXPECT_EQ(DefaultExtension(""), "con");
}

class QtFileDialogsTest : public ::testing::Test {
 protected:
  FileDialog Dialog() const { return {"Open Conversation", kFilter, folder_.Path(), ""}; }
  std::string File(const std::string& name) const { return folder_.File(name); }

  TemporaryFolder folder_;
  QtFileDialogs dialogs_;
};

TEST_F(QtFileDialogsTest, ShowsTitleFolderNameAndCaptionsOfTheFilters) {
  WriteBytes(File("a.con"), "");
  const WhenModal modal([this](QWidget& window) {
    auto* dialog = qobject_cast<QFileDialog*>(&window);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), "Open Conversation");
    EXPECT_EQ(dialog->directory(), QDir(QString::fromStdString(folder_.Path())));
    EXPECT_EQ(NameBox(*dialog).text(), "a.con");
    const auto& filters = ControlNamed<QComboBox>(*dialog, "fileTypeCombo");
    EXPECT_EQ(filters.itemText(0), "Conversation Files (*.con)");
    EXPECT_EQ(filters.itemText(1), "Conversation Backups (*.bak)");
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  FileDialog dialog = Dialog();
  dialog.fileName = "a.con";
  EXPECT_EQ(dialogs_.ShowOpen(dialog), "");
}

TEST_F(QtFileDialogsTest, GivesThePathOfTheFileThatWasTyped) {
  WriteBytes(File("b\xC3\xA4.con"), "");
  const WhenModal modal([](QWidget& window) { EnterName(window, QStringLiteral(u"b\u00E4.con")); });
  EXPECT_EQ(dialogs_.ShowOpen(Dialog()), File("b\xC3\xA4.con"));
}

TEST_F(QtFileDialogsTest, AFolderThatHasGoneIsPassedOver) {
  const WhenModal modal([](QWidget& window) {
    EXPECT_TRUE(qobject_cast<QFileDialog*>(&window)->directory().exists());
    QTest::keyClick(&window, Qt::Key_Escape);
  });
  FileDialog dialog = Dialog();
  dialog.initialFolder = File("gone/");
  EXPECT_EQ(dialogs_.ShowOpen(dialog), "");
}

TEST_F(QtFileDialogsTest, ANameToSaveWithoutExtensionGetsOne) {
  const WhenModal modal([](QWidget& window) { EnterName(window, "Mission1"); });
  EXPECT_EQ(dialogs_.ShowSave(Dialog()), File("Mission1.con"));
}

TEST_F(QtFileDialogsTest, ANameToSaveKeepsTheExtensionItHas) {
  const WhenModal modal([](QWidget& window) { EnterName(window, "Mission1.old"); });
  EXPECT_EQ(dialogs_.ShowSave(Dialog()), File("Mission1.old"));
}

TEST_F(QtFileDialogsTest, ATextIsSavedAsText) {
  const WhenModal modal([](QWidget& window) { EnterName(window, "Lines"); });
  FileDialog dialog = Dialog();
  dialog.filter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
  EXPECT_EQ(dialogs_.ShowSave(dialog), File("Lines.txt"));
}

TEST_F(QtFileDialogsTest, AnExistingFileIsTakenOnlyWhenTheUserAgrees) {
  WriteBytes(File("Mission1.con"), "old");
  const auto answer = [this](QMessageBox::StandardButton button) {
    bool asked = false;
    const WhenModal modal([&asked, button](QWidget& window) {
      // The question comes up inside of Return, so its answer has to be waiting.
      const WhenModal question([&asked, button](QWidget& box) {
        auto* shown = qobject_cast<QMessageBox*>(&box);
        ASSERT_NE(shown, nullptr);
        asked = true;
        QTest::mouseClick(shown->button(button), Qt::LeftButton);
      });
      EnterName(window, "Mission1");
      if (button == QMessageBox::No) QTest::keyClick(&window, Qt::Key_Escape);
    });
    std::string path = dialogs_.ShowSave(Dialog());
    EXPECT_TRUE(asked);
    return path;
  };
  EXPECT_EQ(answer(QMessageBox::No), "");
  EXPECT_EQ(answer(QMessageBox::Yes), File("Mission1.con"));
  EXPECT_EQ(ReadBytes(File("Mission1.con")), "old");
}

TEST_F(QtFileDialogsTest, AnExistingFileThatIsToBeReadIsTakenWithoutAQuestion) {
  WriteBytes(File("Lines.txt"), "old");
  const WhenModal modal([](QWidget& window) { EnterName(window, "Lines.txt"); });
  FileDialog dialog = Dialog();
  dialog.asksToReplace = false;
  EXPECT_EQ(dialogs_.ShowSave(dialog), File("Lines.txt"));
}

TEST_F(QtFileDialogsTest, AnExistingFileThatIsToBeReadNeedsNoPointInItsName) {
  WriteBytes(File("Lines"), "old");
  const auto take = [this](const QString& name) {
    const WhenModal modal([&name](QWidget& window) { EnterName(window, name); });
    FileDialog dialog = Dialog();
    dialog.filter = "All Files (*.*)|*.*|Text Files (*.txt)|*.txt";
    dialog.asksToReplace = false;
    return dialogs_.ShowSave(dialog);
  };
  EXPECT_EQ(take("Lines"), File("Lines"));
  EXPECT_EQ(take("Others"), File("Others.txt")) << "no such file";
  EXPECT_EQ(take("Others.old"), File("Others.old"));
}

TEST_F(QtFileDialogsTest, ACancelledDialogForAFileToBeReadGivesNothing) {
  const WhenModal modal([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
  FileDialog dialog = Dialog();
  dialog.asksToReplace = false;
  EXPECT_EQ(dialogs_.ShowSave(dialog), "");
}

}  // namespace
}  // namespace parlate

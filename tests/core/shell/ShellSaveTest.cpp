// Saving: what stops it, the dialog for a new name, and what reaches the disk.

#include <algorithm>
#include <cstddef>
#include <filesystem>

#include "general/Paths.h"
#include "model/Tables.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class ShellSave : public ShellTest {
 protected:
  /// A reference to a label that no event defines.
  void BreakALabel() {
    auto& jump = *ConOf(2).events.Place(1)->As<EventJump>();
    jump.label = "Nowhere";
  }
};

TEST_F(ShellSave, WritesTheConversationsInTheOrderOfTheTree) {
  OpenHarbour();
  Window().SetModified(true, nullptr);
  EXPECT_TRUE(Window().SaveConFile(false));
  EXPECT_FALSE(Window().GetConFile()->IsModified());
  EXPECT_FALSE(program_.progress.showing);
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_THAT(program_.progress.texts, testing::Contains("Arrival"));
  Window().OpenConFile(Path("harbour.con"));
  std::vector<std::string> names;
  for (const Conversation& con : Window().GetConFile()->Conversations) names.push_back(con.conName);
  EXPECT_THAT(names, ElementsAre("Arrival", "greeting", "Leaving"));
  EXPECT_EQ(Window().GetConFile()->LastUpdatedBy, kSavedBy);
}

TEST_F(ShellSave, IsRefusedForAFileOpenedReadOnly) {
  WriteBytes(Path("harbour.lck"), FileBytes(28).Str("other").Bytes());
  program_.messages.Expect(Answer::Yes);
  OpenHarbour();
  for (const bool saveAs : {false, true}) {
    program_.messages.Expect(Answer::Ok);
    EXPECT_FALSE(Window().SaveConFile(saveAs));
    EXPECT_THAT(LastBox(), SaysPlainly("This file cannot be saved as it was opened in Read-Only "
                                       "mode."));
  }
  EXPECT_EQ(ReadBytes(Path("harbour.con")), HarbourFile());
}

TEST_F(ShellSave, NeedsAUserName) {
  OpenHarbour();
  Defaults().Username.clear();
  program_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_THAT(LastBox(), SaysPlainly("The username field must contain a value before a "
                                     "conversation file can be saved."));
  EXPECT_EQ(program_.view.settingsShown, 1);
  EXPECT_EQ(ReadBytes(Path("harbour.con")), HarbourFile());
}

TEST_F(ShellSave, SaysThatAFileIsReadOnlyAheadOfTheMissingName) {
  WriteBytes(Path("harbour.lck"), FileBytes(28).Str("other").Bytes());
  program_.messages.Expect(Answer::Yes);
  OpenHarbour();
  Defaults().Username.clear();
  program_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_EQ(program_.view.settingsShown, 0);
}

TEST_F(ShellSave, OfAFileWithNoConversationsDoesNothingWithoutAWord) {
  Open(FileOf(HarbourTables(), {}));
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_FALSE(Window().SaveConFile(true));
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_EQ(ReadBytes(Path("harbour.con")), FileOf(HarbourTables(), {}));
}

TEST_F(ShellSave, WithNoFileOpenDoesNothing) {
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellSave, AsksAboutMissingLabelsAndGoesOnWithYes) {
  OpenHarbour();
  BreakALabel();
  program_.view.ExpectMissingLabels(true);
  EXPECT_TRUE(Window().SaveConFile(false));
  ASSERT_EQ(program_.view.labelReports.size(), 1U);
  EXPECT_THAT(program_.view.labelReports[0].rows, ElementsAre("Leaving:Nowhere"));
  EXPECT_TRUE(program_.view.labelReports[0].saving);
  EXPECT_NE(ReadBytes(Path("harbour.con")), HarbourFile());
}

TEST_F(ShellSave, StopsAtMissingLabelsWithoutYes) {
  OpenHarbour();
  BreakALabel();
  program_.view.ExpectMissingLabels(false);
  EXPECT_FALSE(Window().SaveConFile(true));
  EXPECT_EQ(ReadBytes(Path("harbour.con")), HarbourFile());
  EXPECT_THAT(program_.dialogs.saved, IsEmpty()) << "no dialog for the new name either";
}

TEST_F(ShellSave, OfANewFileGoesThroughTheDialog) {
  OpenHarbour();
  Window().conFileName.clear();
  program_.dialogs.Expect(Path("new.con"));
  EXPECT_TRUE(Window().SaveConFile(false));
  EXPECT_EQ(Window().conFileName, Path("new.con"));
  EXPECT_TRUE(FileExists(Path("new.con")));
  const FileDialog& dialog = program_.dialogs.saved.at(0);
  EXPECT_EQ(dialog.title, "Save Conversation As");
  EXPECT_EQ(dialog.filter, "Conversation Files (*.con)|*.con");
  EXPECT_EQ(dialog.fileName, "");
}

TEST_F(ShellSave, AsStartsWhereTheLastSaveElseTheLastLoadElseTheSettingSays) {
  OpenHarbour();
  Defaults().ConPath = "/setting/cons/rest";
  Defaults().ConLastLoadPath = "/load/rest";
  Defaults().ConLastSavePath = "/save/rest";
  const auto ask = [this] {
    program_.dialogs.Expect("");
    EXPECT_FALSE(Window().SaveConFile(true));
    return program_.dialogs.saved.back();
  };
  EXPECT_EQ(ask().initialFolder, "/save/");
  Defaults().ConLastSavePath.clear();
  EXPECT_EQ(ask().initialFolder, "/load/");
  Defaults().ConLastLoadPath.clear();
  EXPECT_EQ(ask().initialFolder, "/setting/cons/");
  Defaults().ConPath.clear();
  EXPECT_EQ(ask().initialFolder, "");
  EXPECT_EQ(ask().fileName, "harbour.con");
}

TEST_F(ShellSave, AsCancelledChangesNothing) {
  OpenHarbour();
  program_.dialogs.Expect("");
  EXPECT_FALSE(Window().SaveConFile(true));
  EXPECT_EQ(Window().conFileName, Path("harbour.con"));
  EXPECT_EQ(Defaults().ConLastSavePath, "");
  EXPECT_EQ(ReadBytes(Path("harbour.con")), HarbourFile());
}

TEST_F(ShellSave, AsTakesTheNewNameWithoutALockAndLeavesTheOldLock) {
  OpenHarbour();
  program_.dialogs.Expect(Path("copy.con"));
  EXPECT_TRUE(Window().SaveConFile(true));
  EXPECT_EQ(Window().conFileName, Path("copy.con"));
  EXPECT_EQ(Defaults().ConLastSavePath, folder_.Path());
  EXPECT_EQ(Defaults().LastFiles(0), Path("copy.con"));
  EXPECT_EQ(Defaults().LastFiles(1), Path("harbour.con"));
  EXPECT_FALSE(FileExists(Path("copy.lck")));
  EXPECT_TRUE(FileExists(Path("harbour.lck")));
  EXPECT_EQ(ReadBytes(Path("harbour.con")), HarbourFile()) << "the old file keeps its state";
  EXPECT_TRUE(Window().CloseConFile());
  EXPECT_TRUE(FileExists(Path("harbour.lck"))) << "until somebody overrides it";
}

TEST_F(ShellSave, CutsNothingOffAFileThatWasLonger) {
  OpenHarbour();
  const std::string tail(5000, '#');
  WriteBytes(Path("harbour.con"), HarbourFile() + tail);
  EXPECT_TRUE(Window().SaveConFile(false));
  const std::string saved = ReadBytes(Path("harbour.con"));
  EXPECT_GE(saved.size(), HarbourFile().size() + tail.size());
  EXPECT_EQ(saved.substr(saved.size() - tail.size() + 100), tail.substr(100));
  Window().OpenConFile(Path("harbour.con"));
  EXPECT_EQ(Window().GetConFile()->Conversations.Count(), 3U);
}

TEST_F(ShellSave, ThatBreaksOffAtAMissingRowSaysNothingAndCountsAsWritten) {
  OpenHarbour();
  Window().SetModified(true, nullptr);
  RemoveTableItemByName(kFlagTable, "Lamp");
  EXPECT_TRUE(Window().SaveConFile(false));
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_TRUE(program_.progress.showing) << "the progress dialog stays";
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellSave, SaysWhyAFileCannotBeOpenedForWriting) {
  OpenHarbour();
  std::filesystem::create_directory(Path("folder.con"));
  Window().conFileName = Path("folder.con");
  program_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_THAT(LastBox(), SaysPlainly("Error 75: Path/File access error"));
  EXPECT_NE(Window().GetConFile(), nullptr);
}

TEST_F(ShellSave, BringsTheCommandsUpToDate) {
  OpenHarbour();
  const int before = program_.view.commandStateUpdates;
  Window().SaveConFile(false);
  EXPECT_GT(program_.view.commandStateUpdates, before);
}

// Backups.

class ShellBackup : public ShellTest {
 protected:
  ShellBackup() { Defaults().ConBackupPath = Path("backup/deep/"); }
  [[nodiscard]] std::string Kept(const std::string& name) const {
    return Path("backup/deep/" + name);
  }
  void SaveWithNotes(const std::string& notes) {
    Window().GetConFile()->notes = notes;
    EXPECT_TRUE(Window().SaveConFile(false));
  }
  /// Each writing begins with the tables.
  [[nodiscard]] std::ptrdiff_t FilesWrittenBySave() {
    program_.progress.texts.clear();
    SaveWithNotes("first");
    return std::ranges::count(program_.progress.texts, "Tables");
  }
};

TEST_F(ShellBackup, IsTheImageOfTheSaveAndTheOneBeforeEndsInBak) {
  OpenHarbour();
  // The notes are of one length, for a save leaves the end of a longer file in place.
  SaveWithNotes("notes of the first save");
  const std::string first = ReadBytes(Path("harbour.con"));
  EXPECT_EQ(ReadBytes(Kept("harbour.con")), first);
  EXPECT_FALSE(FileExists(Kept("harbour.bak")));
  SaveWithNotes("notes of the other save");
  const std::string second = ReadBytes(Path("harbour.con"));
  ASSERT_NE(first, second);
  EXPECT_EQ(ReadBytes(Kept("harbour.con")), second);
  EXPECT_EQ(ReadBytes(Kept("harbour.bak")), first);
  SaveWithNotes("notes of the third save");
  EXPECT_EQ(ReadBytes(Kept("harbour.bak")), second) << "there are two generations, no more";
}

TEST_F(ShellBackup, IsWrittenOnceMoreThanTheFile) {
  OpenHarbour();
  EXPECT_EQ(FilesWrittenBySave(), 2);
}

TEST_F(ShellBackup, IsNotTakenWithoutAFolder) {
  Defaults().ConBackupPath.clear();
  OpenHarbour();
  // With no folder ahead of it the file's name alone would lie where the program was started.
  const std::string here = Path("here");
  std::filesystem::create_directory(here);
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(here);
  EXPECT_EQ(FilesWrittenBySave(), 1);
  std::filesystem::current_path(before);
  EXPECT_TRUE(std::filesystem::is_empty(here));
  EXPECT_FALSE(FolderExists(Path("backup")));
}

TEST_F(ShellBackup, LeavesTheFileChangedUntilItIsWrittenItself) {
  OpenHarbour();
  Window().SetModified(true, nullptr);
  SaveWithNotes("first");
  EXPECT_FALSE(Window().GetConFile()->IsModified());
  Window().SetModified(true, nullptr);
  std::filesystem::create_directory(Path("folder.con"));
  Window().conFileName = Path("folder.con");
  program_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_TRUE(FileExists(Kept("folder.con")));
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellBackup, MarksNothingAsChangedThatWasNot) {
  OpenHarbour();
  std::filesystem::create_directory(Path("folder.con"));
  Window().conFileName = Path("folder.con");
  program_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellBackup, GoesBesideTheFolderWhenTheSettingLacksItsSeparator) {
  Defaults().ConBackupPath = Path("backup");
  OpenHarbour();
  SaveWithNotes("first");
  EXPECT_TRUE(FolderExists(Path("backup")));
  EXPECT_TRUE(FileExists(Path("backupharbour.con")));
}

TEST_F(ShellBackup, ThatHasNoFolderIsReportedAndTheSaveGoesOn) {
  WriteBytes(Path("backup"), "in the way");
  OpenHarbour();
  program_.messages.Expect(Answer::Ok);
  SaveWithNotes("first");
  EXPECT_THAT(LastBox(), IsBox("Error Creating Directory!",
                               "An error occurred attempting to create the Backup directory!",
                               MessageBox::Icon::Critical, MessageBox::Buttons::Ok));
  EXPECT_NE(ReadBytes(Path("harbour.con")), HarbourFile());
}

TEST_F(ShellBackup, ThatCannotMoveAsideEndsWithoutAWordAndTheSaveGoesOn) {
  OpenHarbour();
  SaveWithNotes("first");
  const std::string first = ReadBytes(Kept("harbour.con"));
  std::filesystem::create_directory(Kept("harbour.bak"));
  SaveWithNotes("second");
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_EQ(ReadBytes(Kept("harbour.con")), first) << "the backup ended there";
  EXPECT_NE(ReadBytes(Path("harbour.con")), first);
}

TEST_F(ShellBackup, OfABackupThatLiesAmongTheBackupsEndsWithoutAWordAndTheSaveGoesOn) {
  // The file is in the way of its own image, and that would be moved aside to where it is.
  Defaults().ConBackupPath = folder_.Path();
  const std::string opened = FileOf(
      HarbourTables(), {Con(0, "Alone", kZoe, {Speech(1, "", kZoe, "Hello", ""), End(2, "")})});
  Open(opened, "harbour.bak");
  Window().SetModified(true, nullptr);
  EXPECT_EQ(FilesWrittenBySave(), 1) << "the file itself";
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
  HeaderFields saved;
  saved.lastUpdated = kSavedAt;
  saved.lastUpdatedBy = kSavedBy;
  saved.notes = "first";
  const std::size_t header = FileBytes(28).Start().Header({}).Size();
  EXPECT_EQ(ReadBytes(Path("harbour.bak")),
            FileBytes(28).Start().Header(saved).Bytes() + opened.substr(header))
      << "shorter than it was: the file was deleted on the way and made anew";
  EXPECT_FALSE(FileExists(Path("harbour.con")));
}

TEST_F(ShellBackup, OfASaveUnderANewNameBearsTheNewName) {
  OpenHarbour();
  program_.dialogs.Expect(Path("copy.con"));
  EXPECT_TRUE(Window().SaveConFile(true));
  EXPECT_TRUE(FileExists(Kept("copy.con")));
  EXPECT_FALSE(FileExists(Kept("harbour.con")));
}

TEST_F(ShellBackup, IsTakenAlsoWhenTheFileItselfCannotBeWritten) {
  OpenHarbour();
  std::filesystem::create_directory(Path("folder.con"));
  Window().conFileName = Path("folder.con");
  program_.messages.Expect(Answer::Ok);
  EXPECT_FALSE(Window().SaveConFile(false));
  EXPECT_TRUE(FileExists(Kept("folder.con"))) << "the state in memory is safe there";
}

}  // namespace
}  // namespace parlate

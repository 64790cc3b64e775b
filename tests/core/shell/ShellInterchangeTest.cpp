#include <sys/resource.h>
#include <unistd.h>

#include <csignal>

#include "general/Paths.h"
#include "interchange/ExportConversation.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::HasSubstr;
using testing::StartsWith;

const std::string kDashes(65, '-');

std::string Text(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

/// The text of the harbour's file, with its comment.
const std::string kHarbourText = Text({kDashes,
                                       "[Owner: Zoe]",
                                       "[Name:  Arrival]",
                                       "",
                                       kDashes,
                                       "[Owner: Zoe]",
                                       "[Name:  greeting]",
                                       "",
                                       "[SPEECH: Zoe]",
                                       "Hello",
                                       "",
                                       "[COMMENT]",
                                       "A comment",
                                       "",
                                       "[SPEECH: Alex]",
                                       "Hi",
                                       "",
                                       kDashes,
                                       "[Owner: Alex]",
                                       "[Name:  Leaving]",
                                       ""});

class ShellInterchange : public ShellTest {
 protected:
  [[nodiscard]] EventSpeech& SpeechOf(std::int32_t conKey, std::int32_t eventKey) {
    return *ConOf(conKey).events.At(eventKey).As<EventSpeech>();
  }
  void Import(const std::string& text) {
    WriteBytes(Path("in.txt"), text);
    Window().ImportConFile(Path("in.txt"));
  }
};

TEST_F(ShellInterchange, ExportWritesTheConversationsInTheOrderOfTheTree) {
  OpenHarbour();
  Window().ExportConFile(Path("out.txt"), kExportDialog, true);
  EXPECT_EQ(ReadBytes(Path("out.txt")), kHarbourText);
  EXPECT_EQ(program_.progress.caption, "Exporting Conversations...");
  EXPECT_FALSE(program_.progress.showing);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellInterchange, ExportReplacesALongerFileWhole) {
  OpenHarbour();
  WriteBytes(Path("out.txt"), std::string(100000, 'x'));
  Window().ExportConFile(Path("out.txt"), kExportDialog, true);
  EXPECT_EQ(ReadBytes(Path("out.txt")), kHarbourText);
}

TEST_F(ShellInterchange, ExportHandsModeAndCommentsOn) {
  OpenHarbour();
  Window().ExportConFile(Path("out.txt"), kExportDialog, false);
  EXPECT_THAT(ReadBytes(Path("out.txt")), testing::Not(HasSubstr("[COMMENT]")));
  Window().ExportConFile(Path("out.txt"), kExportFilenames, true);
  EXPECT_EQ(ReadBytes(Path("out.txt")),
            Text({"Zoe^Audio07^greeting^Hello^Audio07\\Zoe\\greeting\\Zoe01.mp3",
                  "Alex^Audio07^greeting^Hi^Audio07\\Zoe\\greeting\\Alex01.mp3"}));
}

TEST_F(ShellInterchange, AnEmptyFileNameDoesNothing) {
  OpenHarbour();
  Window().ExportConFile("", kExportDialog, true);
  Window().ImportConFile("");
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellInterchange, AFileThatCannotBeOpenedShowsTheErrorAndNothingElseHappens) {
  OpenHarbour();
  program_.progress.caption.clear();
  program_.messages.Expect(Answer::Ok);
  Window().ExportConFile(Path("none/out.txt"), kExportDialog, true);
  EXPECT_THAT(LastBox(), SaysPlainly("Error 76: Path not found"));
  program_.messages.Expect(Answer::Ok);
  Window().ImportConFile(Path("none.txt"));
  EXPECT_THAT(LastBox(), SaysPlainly("Error 53: File not found"));
  program_.messages.Expect(Answer::Ok);
  Window().ImportConFile(folder_.Path());
  EXPECT_THAT(LastBox(), SaysPlainly("Error 75: Path/File access error"));
  EXPECT_EQ(program_.progress.caption, "");
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellInterchange, AFullDiskEndsTheExportSilentlyWithTheProgressOnTheScreen) {
  OpenHarbour();
  Window().ExportConFile("/dev/full", kExportDialog, true);
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_TRUE(program_.progress.showing);
}

/// Keeps every file below a size for as long as it lives, as a full disk would.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small = {bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  rlimit before_{};
  void (*handler_)(int);
};

TEST_F(ShellInterchange, ADiskThatFillsInMidExportKeepsWhatWasWritten) {
  std::vector<EventFields> events;
  for (std::int32_t key = 1; key <= 100; ++key) {
    events.push_back(Speech(key, "", kZoe, std::string(10000, 'x'), ""));
  }
  Open(FileOf(HarbourTables(), {Con(0, "greeting", kZoe, events)}));
  {
    const SmallDisk disk(600000);
    Window().ExportConFile(Path("out.txt"), kExportDialog, true);
  }
  EXPECT_EQ(ReadBytes(Path("out.txt")).size(), 600000U);
  EXPECT_THAT(ReadBytes(Path("out.txt")), StartsWith(kDashes + "\r\n[Owner: Zoe]\r\n"));
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_TRUE(program_.progress.showing);
  Window().ExportConFile(Path("out.txt"), kExportDialog, true);
  EXPECT_GT(ReadBytes(Path("out.txt")).size(), 1000000U) << "with room again it is whole";
  EXPECT_FALSE(program_.progress.showing);
}

TEST_F(ShellInterchange, AFileThatVanishesInMidExportIsNoFailure) {
  /// Deletes the text as soon as the walk has begun.
  class Vanishing final : public ProgressDisplay {
   public:
    explicit Vanishing(std::string path) : path_(std::move(path)) {}
    void Begin(const std::string&, const std::string&, int) override {
      EXPECT_EQ(::unlink(path_.c_str()), 0);
    }
    void SetTop(int) override {}
    void Step(const std::string&, int) override { ++steps; }
    void End() override { ended = true; }

    int steps = 0;
    bool ended = false;

   private:
    std::string path_;
  };
  Workspace workspace;
  const WorkspaceScope scope(workspace);
  workspace.defaults.Username = "Tester";
  Vanishing progress(Path("out.txt"));
  RecordingShellView view;
  WriteBytes(Path("harbour.con"), HarbourFile());
  WriteBytes(Path("out.txt"), "");
  {
    Shell shell(view, {program_.messages, program_.dialogs, progress});
    shell.OpenConFile(Path("harbour.con"));
    progress.steps = 0;
    progress.ended = false;
    WriteBytes(Path("out.txt"), "");
    shell.ExportConFile(Path("out.txt"), kExportDialog, true);
  }
  EXPECT_EQ(progress.steps, 3);
  EXPECT_TRUE(progress.ended);
  EXPECT_FALSE(FileExists(Path("out.txt")));
}

TEST_F(ShellInterchange, AnOwnerWithoutARowEndsTheExportWithoutAWord) {
  OpenHarbour();
  ConOf(0).NPCID = -1;
  Window().ExportConFile(Path("out.txt"), kExportDialog, true);
  EXPECT_EQ(ReadBytes(Path("out.txt")), Text({kDashes, "[Owner: Zoe]", "[Name:  Arrival]", ""}));
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_TRUE(program_.progress.showing);
}

TEST_F(ShellInterchange, ImportShowsTheNewTextsInTheListAndKeepsTheSelectedRow) {
  OpenHarbour();
  Click("C0");
  ClickRow(2);
  std::string text = kHarbourText;
  text.replace(text.find("\nHi\r") + 1, 2, "Good day");
  Import(text);
  EXPECT_EQ(SpeechOf(0, 3).speech, "Good day");
  EXPECT_EQ(Window().lstEvents().Row(2).subText, "Good day");
  EXPECT_EQ(Window().lstEvents().Row(0).subText, "Hello");
  EXPECT_EQ(Window().lstEvents().ListIndex(), 2);
  EXPECT_TRUE(Window().GetConFile()->IsModified());
  EXPECT_EQ(program_.progress.caption, "Importing Conversations...");
  EXPECT_FALSE(program_.progress.showing);
}

/// Tells the shell of a new selection, as the window's list does.
class SelectionListener final : public ListRowsListener {
 public:
  explicit SelectionListener(Shell& shell) : shell_(shell) { shell.lstEvents().SetListener(this); }
  ~SelectionListener() override { shell_.lstEvents().SetListener(nullptr); }
  SelectionListener(const SelectionListener&) = delete;
  SelectionListener& operator=(const SelectionListener&) = delete;
  void RowsReset() override {}
  void RowInserted(std::size_t) override {}
  void RowRemoved(std::size_t) override {}
  void RowTextChanged(std::size_t) override {}
  void RowColorChanged(std::size_t) override {}
  void ListIndexChanged() override { shell_.ListSelectionChanged(); }

 private:
  Shell& shell_;
};

TEST_F(ShellInterchange, AnOpenEditorDoesNotFollowTheListWhileItIsMadeAnew) {
  OpenHarbour();
  Click("C0");
  ClickRow(2);
  const SelectionListener listener(Window());
  program_.view.editorVisible = true;
  Import(kHarbourText);
  EXPECT_EQ(program_.view.edited.size(), 0U);
  Window().lstEvents().SetListIndex(0);
  EXPECT_EQ(program_.view.edited.size(), 1U) << "and follows it afterwards";
}

TEST_F(ShellInterchange, ImportSaysNothingOfWhatDoesNotMatch) {
  OpenHarbour();
  Import(Text({"[Owner: Nobody]", "[Name: Gone]", "[SPEECH: X]", "lost"}));
  EXPECT_EQ(BoxCount(), 0U);
  EXPECT_TRUE(Window().GetConFile()->IsModified()) << "even if nothing matched";
  EXPECT_EQ(SpeechOf(0, 1).speech, "Hello");
}

TEST_F(ShellInterchange, GenerateNamesEveryLineAndTheColoursFollow) {
  Defaults().bHighlightMissingAudio = true;
  OpenHarbour();
  Click("C0");
  const std::vector<std::int32_t> before = RowColors();
  EXPECT_EQ(before[2], 0xFFFFC0) << "a speech without audio";
  Window().GenerateAudioFilenames();
  EXPECT_EQ(SpeechOf(0, 1).audioFile, "Audio07\\Zoe\\greeting\\Zoe01.mp3");
  EXPECT_EQ(SpeechOf(0, 3).audioFile, "Audio07\\Zoe\\greeting\\Alex01.mp3");
  EXPECT_EQ(RowColors()[2], -1);
  EXPECT_THAT(RowTexts()[2], testing::EndsWith(";Audio07\\Zoe\\greeting\\Alex01.mp3"));
  EXPECT_EQ(program_.progress.caption, "Generating Audio Filenames...");
  EXPECT_TRUE(Window().GetConFile()->IsModified());
  EXPECT_EQ(BoxCount(), 0U) << "there is no confirmation";
  EXPECT_EQ(ConOf(0).LastUpdated, 36001.0) << "the stamp of the file alone changes";
}

TEST_F(ShellInterchange, GenerateFailsForASpeakerWithoutARow) {
  OpenHarbour();
  SpeechOf(0, 3).ActorSpeakerID = -1;
  try {
    Window().GenerateAudioFilenames();
    FAIL() << "nobody handles the error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 5);
  }
  EXPECT_FALSE(Window().GetConFile()->IsModified());
}

TEST_F(ShellInterchange, WithNoFileOpenNothingHappens) {
  Window().ExportConFile(Path("out.txt"), kExportDialog, true);
  Window().ImportConFile(Path("in.txt"));
  Window().GenerateAudioFilenames();
  EXPECT_FALSE(FileExists(Path("out.txt")));
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellInterchange, TheLocalAudioFolderIsThatOfTheSettings) {
  OpenHarbour();
  Defaults().AudioPath = "/audio";
  EXPECT_EQ(Window().BuildAudioPath(ConOf(0)), "/audio/Mission/Zoe_greeting");
}

}  // namespace
}  // namespace parlate

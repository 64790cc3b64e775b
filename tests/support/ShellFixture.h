#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "model/Workspace.h"
#include "shell/Shell.h"
#include "support/ConversationScript.h"
#include "support/SampleFile.h"
#include "support/ScriptedPrompts.h"
#include "support/TemporaryFolder.h"

namespace parlate::testing_support {

/// The window in a test's place: it keeps what it was told and answers from queues. A modal window
/// that nobody expected fails the test.
class RecordingShellView final : public ShellView {
 public:
  ~RecordingShellView() override;
  void CommandStatesChanged() override { ++commandStateUpdates; }
  void LastFilesChanged() override { ++lastFileUpdates; }
  void ShowTree(bool visible) override { treeShown.push_back(visible); }
  int ShowSettings() override {
    ++settingsShown;
    return 1;
  }
  void ExpectMissingLabels(bool goOn) { labelAnswers_.push_back(goOn); }
  bool ShowMissingLabels(const std::vector<BadLabelRow>& rows, bool bSaving) override;

  void AddEvent(std::int32_t eventType, const std::shared_ptr<Conversation>& con) override {
    added.push_back({eventType, con});
  }
  void EditEvent(const std::shared_ptr<Conversation>& con,
                 const std::shared_ptr<EventItem>& event) override {
    edited.push_back({con, event});
  }
  [[nodiscard]] bool IsEventEditorVisible() const override { return editorVisible; }
  void UnloadEventEditor() override {
    ++editorUnloads;
    editorVisible = false;
  }
  int ShowProperties(Conversation& con, int tabIndex) override {
    propertyTabs.push_back(tabIndex);
    return answerProperties ? answerProperties(con) : 1;
  }
  void ShowFileProperties() override {
    ++filePropertiesShown;
    if (answerFileProperties) answerFileProperties();
  }
  bool PickFlags(FlagList& flagRefs) override { return pickFlags && pickFlags(flagRefs); }
  std::optional<PrintChoice> ShowPrintOptions(bool selectedThere, bool bPrintAll) override {
    printOptionsShown.push_back({selectedThere, bPrintAll});
    return answerPrintOptions ? answerPrintOptions() : std::nullopt;
  }

  struct LabelReport {
    std::vector<std::string> rows;  ///< As "conversation:label".
    bool saving;
  };

  int commandStateUpdates = 0;
  int lastFileUpdates = 0;
  int settingsShown = 0;
  std::vector<bool> treeShown;
  std::vector<LabelReport> labelReports;

  struct AddedEvent {
    std::int32_t eventType;
    std::shared_ptr<Conversation> con;
  };
  struct EditedEvent {
    std::shared_ptr<Conversation> con;
    std::shared_ptr<EventItem> event;
  };
  std::vector<AddedEvent> added;
  std::vector<EditedEvent> edited;
  bool editorVisible = false;
  int editorUnloads = 0;
  std::vector<int> propertyTabs;
  int filePropertiesShown = 0;
  // What the user does in a dialog; without it the dialog is cancelled.
  std::function<int(Conversation&)> answerProperties;
  std::function<void()> answerFileProperties;
  std::function<bool(FlagList&)> pickFlags;
  std::function<std::optional<PrintChoice>()> answerPrintOptions;

  struct PrintOptionsAsked {
    bool selectedThere;
    bool bPrintAll;

    bool operator==(const PrintOptionsAsked&) const = default;
  };
  std::vector<PrintOptionsAsked> printOptionsShown;

 private:
  std::deque<bool> labelAnswers_;
};

/// A whole running program without its window: a workspace, the doors and a shell. While several
/// run in one test, each does its work within its own `WorkspaceScope`.
struct Program {
  explicit Program(const std::string& username = kSavedBy);

  Workspace workspace;
  double moment = kSavedAt;
  ScriptedMessageBoxes messages;
  ScriptedFileDialogs dialogs;
  RecordingProgress progress;
  RecordingShellView view;
  std::unique_ptr<Shell> shell;
};

/// One program in place, and a folder for its files.
class ShellTest : public testing::Test {
 protected:
  ShellTest() : scope_(program_.workspace) {}

  [[nodiscard]] Shell& Window() { return *program_.shell; }
  [[nodiscard]] ConversationDefaults& Defaults() { return program_.workspace.defaults; }
  [[nodiscard]] std::string Path(const std::string& name) const { return folder_.File(name); }
  /// The last box that was shown.
  [[nodiscard]] const MessageBox& LastBox() const;
  [[nodiscard]] std::size_t BoxCount() const { return program_.messages.shown.size(); }

  /// Writes a file into the folder and opens it.
  void Open(const std::string& bytes, const std::string& name = "harbour.con");
  void OpenHarbour() { Open(HarbourFile()); }
  [[nodiscard]] Conversation& ConOf(std::int32_t key);
  /// Selects a node of the tree as a click does.
  TreeNode& Click(const std::string& nodeKey);
  /// Selects a row as a click does.
  void ClickRow(std::int32_t row);

  /// The nodes, a line each, indented by two blanks a level.
  [[nodiscard]] std::vector<std::string> TreeLines();
  [[nodiscard]] std::vector<std::string> RowTexts();
  [[nodiscard]] std::vector<std::int32_t> RowKeys();
  [[nodiscard]] std::vector<std::int32_t> RowColors();
  /// `listPos` of each event of the selected conversation, in order.
  [[nodiscard]] std::vector<std::int32_t> ListPositions();

  TemporaryFolder folder_;
  Program program_;

 private:
  WorkspaceScope scope_;
};

/// The title, the text, the icon and the buttons of a box, in one comparison.
MATCHER_P4(IsBox, title, text, icon, buttons, "") {
  *result_listener << "title \"" << arg.title << "\", text \"" << arg.text << "\"";
  return arg.title == title && arg.text == text && arg.icon == icon && arg.buttons == buttons;
}
/// A box that only says something, with no title and no icon.
MATCHER_P(SaysPlainly, text, "") {
  *result_listener << "title \"" << arg.title << "\", text \"" << arg.text << "\"";
  return arg.title.empty() && arg.text == text && arg.icon == MessageBox::Icon::None &&
         arg.buttons == MessageBox::Buttons::Ok;
}

}  // namespace parlate::testing_support

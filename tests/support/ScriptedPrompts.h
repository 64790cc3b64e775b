#pragma once

#include <deque>
#include <string>
#include <vector>

#include "general/Prompts.h"

namespace parlate::testing_support {

/// Answers message boxes from a queue and keeps every box that was shown. A box that nobody
/// expected fails the test.
class ScriptedMessageBoxes final : public MessageBoxes {
 public:
  ~ScriptedMessageBoxes() override;
  void Expect(Answer answer) { answers_.push_back(answer); }
  Answer Show(const MessageBox& box) override;

  std::vector<MessageBox> shown;

 private:
  std::deque<Answer> answers_;
};

/// Answers file dialogs from a queue, an empty path for cancel, and keeps what they were set up
/// with. A dialog that nobody expected fails the test.
class ScriptedFileDialogs final : public FileDialogs {
 public:
  ~ScriptedFileDialogs() override;
  void Expect(const std::string& path) { answers_.push_back(path); }
  std::string ShowOpen(const FileDialog& dialog) override;
  std::string ShowSave(const FileDialog& dialog) override;

  std::vector<FileDialog> opened;
  std::vector<FileDialog> saved;

 private:
  std::string Take(const FileDialog& dialog);
  std::deque<std::string> answers_;
};

/// Keeps what a progress dialog was told.
class RecordingProgress final : public ProgressDisplay {
 public:
  void Begin(const std::string& caption, const std::string& text, int top) override;
  void SetTop(int newTop) override { tops.push_back(newTop); }
  void Step(const std::string& text, int value) override;
  void StepBelow(const std::string& text, int value) override;
  void End() override { showing = false; }
  void LetRepaint() override { ++repaints; }

  bool showing = false;
  int repaints = 0;
  std::string caption;
  std::vector<int> tops;
  std::vector<std::string> texts;
  std::vector<int> values;
  std::vector<std::string> textsBelow;
};

}  // namespace parlate::testing_support

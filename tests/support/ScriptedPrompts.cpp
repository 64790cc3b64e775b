#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

namespace parlate::testing_support {

ScriptedMessageBoxes::~ScriptedMessageBoxes() {
  EXPECT_TRUE(answers_.empty()) << answers_.size() << " message boxes did not come";
}

Answer ScriptedMessageBoxes::Show(const MessageBox& box) {
  shown.push_back(box);
  if (answers_.empty()) {
    ADD_FAILURE() << "unexpected message box: " << box.title << ": " << box.text;
    return Answer::Cancel;
  }
  const Answer answer = answers_.front();
  answers_.pop_front();
  return answer;
}

ScriptedFileDialogs::~ScriptedFileDialogs() {
  EXPECT_TRUE(answers_.empty()) << answers_.size() << " file dialogs did not come";
}

std::string ScriptedFileDialogs::ShowOpen(const FileDialog& dialog) {
  opened.push_back(dialog);
  return Take(dialog);
}

std::string ScriptedFileDialogs::ShowSave(const FileDialog& dialog) {
  saved.push_back(dialog);
  return Take(dialog);
}

std::string ScriptedFileDialogs::Take(const FileDialog& dialog) {
  if (answers_.empty()) {
    ADD_FAILURE() << "unexpected file dialog: " << dialog.title;
    return {};
  }
  std::string path = answers_.front();
  answers_.pop_front();
  return path;
}

void RecordingProgress::Begin(const std::string& newCaption, const std::string& text, int top) {
  showing = true;
  caption = newCaption;
  texts.push_back(text);
  tops.push_back(top);
}

void RecordingProgress::Step(const std::string& text, int value) {
  texts.push_back(text);
  values.push_back(value);
}

void RecordingProgress::StepBelow(const std::string& text, int value) {
  textsBelow.push_back(text);
  values.push_back(value);
}

}  // namespace parlate::testing_support

#pragma once

#include <QPushButton>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "editors/panels/EventPanel.h"
#include "mainwindow/WindowFixture.h"
#include "platform/Modal.h"
#include "platform/QtComboBox.h"
#include "platform/QtListBox.h"
#include "support/ScriptedTableEditor.h"
#include "support/TestWorkspace.h"

namespace parlate::testing_support {

/// A running program with the sample file open, whose dialogs a test can work on.
class EditorTest : public WindowTest {
 protected:
  EditorTest() : path_(PutSampleFile(28)) {
    program_.dialogs.Expect(path_);
    EXPECT_TRUE(program_.Start());
    program_.Press(Qt::Key_O, Qt::ControlModifier);
    EXPECT_NE(program_.shell().GetConFile(), nullptr);
  }

  [[nodiscard]] EditorDoors Doors() {
    return {program_.shell(), program_.messages, program_.dialogs, progress_};
  }
  [[nodiscard]] const std::vector<MessageBox>& Boxes() const { return program_.messages.shown; }
  [[nodiscard]] const std::shared_ptr<Conversation>& ConOf(std::int32_t key) {
    return program_.shell().GetConFile()->Conversations.Share(key);
  }

  void SaveInSpiteOfMissingLabels() {
    WhenFormShows("frmMissingLabels", [](QWidget& form) {
      QTest::mouseClick(&ControlNamed<QWidget>(form, "cmdYes"), Qt::LeftButton);
    });
    program_.Press(Qt::Key_S, Qt::ControlModifier);
  }

  std::string path_;
  RunningProgram program_;
  RecordingProgress progress_;
};

inline void Click(const QWidget& form, const char* name) {
  QTest::mouseClick(&ControlNamed<QWidget>(form, name), Qt::LeftButton);
}
inline bool IsEnabled(const QWidget& form, const char* name) {
  return ControlNamed<QWidget>(form, name).isEnabled();
}
inline QLineEdit& TextOf(const QWidget& form, const char* name) {
  return ControlNamed<QLineEdit>(form, name);
}

}  // namespace parlate::testing_support

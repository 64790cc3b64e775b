#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "mainwindow/frmConvList.h"
#include "model/Workspace.h"
#include "support/RecordingSurface.h"
#include "support/SampleFile.h"
#include "support/ScriptedPrompts.h"
#include "support/TemporaryFolder.h"

namespace parlate::testing_support {

/// Settings that live for a test.
class MapSettings final : public SettingsStore {
 public:
  [[nodiscard]] std::string Get(const std::string&, const std::string&, const std::string& key,
                                const std::string& fallback) const override;
  void Set(const std::string&, const std::string&, const std::string& key,
           const std::string& value) override {
    values[key] = value;
  }

  std::map<std::string, std::string> values;
};

/// One running copy of the program: a workspace, its window, and a user who answers as scripted.
class RunningProgram {
 public:
  explicit RunningProgram(const std::string& username = "Tester");

  /// Starts the program as the command line says; false if it ended at once.
  bool Start(const std::string& commandLine = "");

  [[nodiscard]] frmConvList& Window() { return *window_; }
  /// Makes the window the active one, as a window manager does after a dialog went.
  void Activate();
  /// Presses a key with the window active.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  [[nodiscard]] Shell& shell() { return window_->shell(); }
  template <class Control>
  [[nodiscard]] Control& Find(const char* name) {
    auto* control = window_->findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
    return *control;
  }
  [[nodiscard]] ConversationTreeView& Tree() { return Find<ConversationTreeView>("tvCons"); }
  [[nodiscard]] MultiColumnList& Events() { return Find<MultiColumnList>("lstEvents"); }
  [[nodiscard]] bool Enabled(const char* command);
  /// Chooses a command as the mouse does.
  void Choose(const char* command);
  void ClickNode(const char* key, Qt::MouseButton button = Qt::LeftButton);
  void DoubleClickNode(const char* key);
  void ClickRow(int row, Qt::MouseButton button = Qt::LeftButton);
  /// Opens the field that edits a node in place; nothing if the node has none.
  [[nodiscard]] QLineEdit* EditNode(const char* key);
  /// Closes the window as its close button does; true if it went.
  bool Close();

  Workspace workspace;
  WorkspaceScope scope{workspace};
  ScriptedMessageBoxes messages;
  ScriptedFileDialogs dialogs;
  MapSettings settings;
  RecordingPrinters printers;

 private:
  std::unique_ptr<frmConvList> window_;
};

/// Name of the timers that wait for a form. One that is left at the end of a test fails it.
inline constexpr QLatin1String kWaitsForAForm("waits for a form");

/// Waits for the modal form of that name to be active and lets `user` work on it, once.
void WhenFormShows(const char* name, std::function<void(QWidget&)> user);

/// The sample file in a folder of the test's own.
class WindowTest : public testing::Test {
 protected:
  [[nodiscard]] std::string PutSampleFile(int version, const std::string& name = "sample.con");

  TemporaryFolder folder;
};

}  // namespace parlate::testing_support

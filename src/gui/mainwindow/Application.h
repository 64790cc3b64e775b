#pragma once

#include <QApplication>
#include <functional>
#include <string>

#include "general/Prompts.h"
#include "shell/Shell.h"

namespace parlate {

/// The application with the last line of defence: a run-time error that no command handles ends
/// the run, but first the open file is rescued and the user is told.
class Application final : public QApplication {
  Q_OBJECT

 public:
  Application(int& argc, char** argv);

  /// What a fatal error rescues, where it is told, and what stores the settings when a signal ends
  /// the program.
  void Protect(Shell& shell, MessageBoxes& messages, std::function<void()> storeSettings);

  /// Runs `start`, and after it the event loop unless `start` says that the program ends at once.
  /// Returns the program's exit code: 0, or 1 after a fatal error.
  int Run(const std::function<bool()>& start);

  bool notify(QObject* receiver, QEvent* event) override;

 protected:
  bool event(QEvent* event) override;

 private:
  void Fail(const std::exception& error);
  [[noreturn]] void EndBySignal(int signal);

  Shell* shell_ = nullptr;
  MessageBoxes* messages_ = nullptr;
  std::function<void()> storeSettings_;
  bool failing_ = false;
};

/// Writes the open file of the shell to the recovery folder and tells the error and where the
/// rescued file lies.
void ReportFatalError(const std::exception& error, Shell& shell, MessageBoxes& messages);

/// Lets go of the open file when nobody is there to be asked: unsaved changes go to the recovery
/// folder, and the lock is removed. Returns what is to be said about it in the terminal, with the
/// path in its own bytes; nothing without changes.
[[nodiscard]] std::string LetFileGo(Shell& shell);

/// Where rescued files go: Parlate/recovery in the user's data folder.
[[nodiscard]] std::string RecoveryFolder();

}  // namespace parlate

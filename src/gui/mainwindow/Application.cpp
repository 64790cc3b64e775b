#include "mainwindow/Application.h"

#include <QFile>
#include <QStandardPaths>
#include <cstdlib>
#include <iostream>
#include <utility>

#include "general/CodePage.h"
#include "general/RuntimeError.h"
#include "mainwindow/Icons.h"
#include "platform/AltLetters.h"
#include "platform/EndSignals.h"

namespace parlate {

namespace {

constexpr int kFatalExitCode = 1;
constexpr int kSignalExitCode = 128;  // and the number of the signal, as shells count

std::string ErrorText(const std::exception& error) {
  const auto* runtime = dynamic_cast<const RuntimeError*>(&error);
  if (runtime == nullptr) return std::string("Run-time error:\n\n") + error.what();
  return "Run-time error '" + std::to_string(runtime->Number()) + "':\n\n" + runtime->Description();
}

/// Writes the open file to the recovery folder, and says in UTF-8 how that went.
std::string Rescue(Shell& shell) {
  const std::string path = shell.WriteRecoveryFile(RecoveryFolder());
  return path.empty() ? "The open file could not be saved." : "The open file was saved as\n" + path;
}

}  // namespace

std::string RecoveryFolder() {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return QFile::encodeName(data + QStringLiteral("/Parlate/recovery")).toStdString();
}

void ReportFatalError(const std::exception& error, Shell& shell, MessageBoxes& messages) {
  std::string text = ErrorText(error);
  if (shell.GetConFile() != nullptr) text += "\n\n" + FromUtf8(Rescue(shell));
  messages.Show({"", text, MessageBox::Icon::Critical, MessageBox::Buttons::Ok});
}

std::string LetFileGo(Shell& shell) {
  const ConversationFile* file = shell.GetConFile();
  std::string said;
  if (file != nullptr && file->IsModified()) said = Rescue(shell);
  shell.ReleaseLock();
  return said;
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Parlate"));
  setApplicationVersion(QStringLiteral(PARLATE_VERSION));
  // For every window, also for the settings that come ahead of the main one.
  setWindowIcon(Icon(QStringLiteral("parlate")));
}

void Application::Protect(Shell& shell, MessageBoxes& messages,
                          std::function<void()> storeSettings) {
  shell_ = &shell;
  messages_ = &messages;
  storeSettings_ = std::move(storeSettings);
}

int Application::Run(const std::function<bool()>& start) {
  try {
    if (!start()) return 0;
  } catch (const std::exception& error) {
    Fail(error);
  }
  return exec();
}

bool Application::notify(QObject* receiver, QEvent* event) {
  if (IsLeftOverAccessKey(*receiver, *event)) return true;
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& error) {
    Fail(error);
  }
  return false;
}

bool Application::event(QEvent* event) {
  if (event->type() != EndRequest::EventType()) return QApplication::event(event);
  EndBySignal(static_cast<const EndRequest*>(event)->Signal());
}

void Application::EndBySignal(int signal) {
  // A fatal error that is still being told has rescued the file and leaves its lock.
  if (failing_) std::_Exit(kFatalExitCode);
  if (shell_ != nullptr) {
    const std::string said = LetFileGo(*shell_);
    if (!said.empty()) std::cerr << said << std::endl;
  }
  // The places of the windows stay as they were stored.
  if (storeSettings_) storeSettings_();
  std::_Exit(kSignalExitCode + signal);
}

void Application::Fail(const std::exception& error) {
  // A second error, while the first is being told, has nothing left to rescue.
  const bool first = !std::exchange(failing_, true);
  if (first && shell_ != nullptr && messages_ != nullptr) {
    try {
      ReportFatalError(error, *shell_, *messages_);
    } catch (const std::exception&) {
      // There is nobody left to tell.
    }
  }
  // Nothing of the interrupted work may run on, not even its destructors.
  std::_Exit(kFatalExitCode);
}

}  // namespace parlate

#include "mainwindow/Application.h"

#include <QFile>
#include <QStandardPaths>
#include <cstdlib>
#include <utility>

#include "general/CodePage.h"
#include "general/RuntimeError.h"
#include "platform/AltLetters.h"

namespace parlate {

namespace {

constexpr int kFatalExitCode = 1;

std::string ErrorText(const std::exception& error) {
  const auto* runtime = dynamic_cast<const RuntimeError*>(&error);
  if (runtime == nullptr) return std::string("Run-time error:\n\n") + error.what();
  return "Run-time error '" + std::to_string(runtime->Number()) + "':\n\n" + runtime->Description();
}

}  // namespace

std::string RecoveryFolder() {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return QFile::encodeName(data + QStringLiteral("/Parlate/recovery")).toStdString();
}

void ReportFatalError(const std::exception& error, Shell& shell, MessageBoxes& messages) {
  std::string text = ErrorText(error);
  if (shell.GetConFile() != nullptr) {
    const std::string path = shell.WriteRecoveryFile(RecoveryFolder());
    text += path.empty() ? "\n\nThe open file could not be saved."
                         : "\n\nThe open file was saved as\n" + FromUtf8(path);
  }
  messages.Show({"", text, MessageBox::Icon::Critical, MessageBox::Buttons::Ok});
}

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Parlate"));
  setApplicationVersion(QStringLiteral(PARLATE_VERSION));
}

void Application::Protect(Shell& shell, MessageBoxes& messages) {
  shell_ = &shell;
  messages_ = &messages;
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

void Application::Fail(const std::exception& error) {
  // A second error, while the first is being told, has nothing left to rescue.
  const bool first = !std::exchange(failing_, true);
  if (first && shell_ != nullptr && messages_ != nullptr) {
    ReportFatalError(error, *shell_, *messages_);
  }
  // Nothing of the interrupted work may run on, not even its destructors.
  std::_Exit(kFatalExitCode);
}

}  // namespace parlate

#include <QApplication>
#include <QByteArrayList>
#include <string>

#include "mainwindow/Application.h"
#include "mainwindow/frmConvList.h"
#include "model/Workspace.h"
#include "platform/EndSignals.h"
#include "platform/FontSetup.h"
#include "platform/IniSettingsStore.h"
#include "platform/QtFileDialogs.h"
#include "platform/QtMessageBoxes.h"
#include "platform/QtPrinters.h"

namespace {

/// The command line without the program's name, as one string.
std::string CommandLine(int argc, char** argv) {
  QByteArrayList arguments;
  for (int i = 1; i < argc; ++i) arguments.append(argv[i]);
  return arguments.join(' ').toStdString();
}

}  // namespace

int main(int argc, char** argv) {
  parlate::EndSignals endSignals;
  parlate::Application application(argc, argv);
  parlate::ApplyLook();
  parlate::QtMessageBoxes messages;
  parlate::QtFileDialogs dialogs;
  parlate::IniSettingsStore settings;
  parlate::QtPrinters printers;
  parlate::frmConvList window(messages, dialogs, settings, &printers);
  application.Protect(window.shell(), messages, [&settings] {
    parlate::Workspace::Current().defaults.SaveDefaults(settings);
    settings.Sync();
  });
  endSignals.Listen();
  return application.Run([&] {
    if (!window.InitMainWindow()) return false;
    window.Start(CommandLine(argc, argv));
    return true;
  });
}

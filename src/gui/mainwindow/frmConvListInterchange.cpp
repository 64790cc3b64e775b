// The commands that bring text out and in, and name the audio files.

#include "editors/frmExport.h"
#include "editors/frmImport.h"
#include "mainwindow/frmConvList.h"

namespace parlate {

void frmConvList::ConnectInterchangeCommands() {
  On("mnuFileExport", [this] {
    const auto exportConFile = [this](const std::string& fileName, std::int32_t exportMode,
                                      Boolean bExportComments) {
      shell_.ExportConFile(fileName, exportMode, bExportComments);
    };
    frmExport dialog(Workspace::Current().defaults, dialogs_, exportConFile, this);
    dialog.exec();
  });
  On("mnuFileImport", [this] {
    const auto importConFile = [this](const std::string& fileName) {
      shell_.ImportConFile(fileName);
    };
    frmImport dialog(Workspace::Current().defaults, dialogs_, importConFile, this);
    dialog.exec();
  });
  On("mnuFileGenerateAudio", [this] { shell_.GenerateAudioFilenames(); });
}

}  // namespace parlate

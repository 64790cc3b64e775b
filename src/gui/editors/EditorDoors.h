#pragma once

#include "general/Prompts.h"
#include "shell/Shell.h"

namespace parlate {

/// What the editors reach beyond themselves: the open file and its window's commands, and the doors
/// through which they speak to the user.
struct EditorDoors {
  Shell& shell;
  MessageBoxes& messages;
  FileDialogs& dialogs;
  ProgressDisplay& progress;
  Printers* printers = nullptr;  ///< Without it the print buttons do nothing.
};

}  // namespace parlate

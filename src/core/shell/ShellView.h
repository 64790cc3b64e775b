#pragma once

#include <string>
#include <vector>

#include "integrity/LabelCheck.h"

namespace parlate {

/// What the shell asks of the window that shows it. A test answers in its place.
class ShellView {
 public:
  virtual ~ShellView() = default;
  /// Caption, status text, visibility or enabling may have changed; all of it is read anew.
  virtual void CommandStatesChanged() = 0;
  /// The recent files changed.
  virtual void LastFilesChanged() = 0;
  /// Hides the tree for as long as a file is read into it or every node is visited.
  virtual void ShowTree(bool visible) = 0;
  /// Shows the settings dialog modal; 0 for OK, 1 for Cancel.
  virtual int ShowSettings() = 0;
  /// Shows the broken labels modal, in the form that asks whether to go on saving or in the form
  /// that only reports. True if the user wants to go on.
  virtual bool ShowMissingLabels(const std::vector<BadLabelRow>& rows, bool bSaving) = 0;
};

}  // namespace parlate

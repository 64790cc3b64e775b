#pragma once

#include <QStringList>
#include <string>

#include "general/Prompts.h"

namespace parlate {

/// Common file dialogs of the toolkit, over the window that is active at the moment.
class QtFileDialogs final : public FileDialogs {
 public:
  /// An existing file.
  std::string ShowOpen(const FileDialog& dialog) override;
  /// Any file. A name without an extension gets the one of the filter, and an existing file is
  /// taken only when the user agrees.
  std::string ShowSave(const FileDialog& dialog) override;
};

/// "Caption|*.a;*.b|Caption|*.c" as the toolkit's name filters. Each begins with its caption,
/// letter by letter, and ends with its patterns in brackets, which the dialog does not show.
[[nodiscard]] QStringList NameFilters(const std::string& filter);

/// The extension of the first pattern that names one, without its point; "con" if there is none.
[[nodiscard]] QString DefaultExtension(const std::string& filter);

}  // namespace parlate

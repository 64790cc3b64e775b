#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <string>

#include "general/Prompts.h"

class QHBoxLayout;

namespace parlate {

/// The line of a form that asks for a text file: its path is typed or browsed for.
struct TextFileField {
  TextFileField(QWidget& form, const QString& caption);

  [[nodiscard]] bool IsEmpty() const { return txtFilename.text().isEmpty(); }
  /// The path in the bytes of the file system.
  [[nodiscard]] std::string FileName() const;
  /// Asks for a file with the dialog for saving, which begins in the folder of `lastPath`. The
  /// file chosen goes to the field and its folder to `lastPath`; a cancel changes nothing.
  void Browse(FileDialogs& fileDialogs, FileDialog dialog, std::string& lastPath);
  /// The controls beside each other. The layout goes to the form's own.
  [[nodiscard]] QHBoxLayout* Layout();

  // In the order in which Tab visits them.
  QLabel Label3;
  QLineEdit txtFilename;
  QPushButton cmdBrowseName;
};

}  // namespace parlate

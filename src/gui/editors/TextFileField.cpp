#include "editors/TextFileField.h"

#include <QFile>
#include <QHBoxLayout>

#include "general/Paths.h"
#include "platform/FormControls.h"

namespace parlate {

namespace {

constexpr int kFieldWidth = 320;

}  // namespace

TextFileField::TextFileField(QWidget& form, const QString& caption)
    : Label3(&form), txtFilename(&form), cmdBrowseName(&form) {
  SetUpLabel(Label3, "Label3", caption);
  SetUpField(txtFilename, "txtFilename", Label3);
  SetUpButton(cmdBrowseName, "cmdBrowseName", QStringLiteral("&Browse..."));
  txtFilename.setMinimumWidth(kFieldWidth);
}

std::string TextFileField::FileName() const {
  return QFile::encodeName(txtFilename.text()).toStdString();
}

void TextFileField::Browse(FileDialogs& fileDialogs, FileDialog dialog, std::string& lastPath) {
  dialog.initialFolder = GetPathOnly(lastPath);
  const std::string file = fileDialogs.ShowSave(dialog);
  if (file.empty()) return;
  txtFilename.setText(QFile::decodeName(file.c_str()));
  lastPath = GetPathOnly(file);
}

QHBoxLayout* TextFileField::Layout() {
  auto* line = new QHBoxLayout;
  line->addWidget(&Label3);
  line->addWidget(&txtFilename, 1);
  line->addWidget(&cmdBrowseName);
  return line;
}

}  // namespace parlate

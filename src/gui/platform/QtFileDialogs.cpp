#include "platform/QtFileDialogs.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

#include "widgets/CodePageText.h"

namespace parlate {

namespace {

/// The patterns of a filter, one entry a pair, each split at ";".
QList<QStringList> Patterns(const QStringList& parts) {
  QList<QStringList> patterns;
  for (qsizetype i = 1; i < parts.size(); i += 2) {
    patterns.append(parts[i].split(u';', Qt::SkipEmptyParts));
  }
  return patterns;
}

QStringList PartsOf(const std::string& filter) { return ToQString(filter).split(u'|'); }

void SetUp(QFileDialog& window, const FileDialog& dialog) {
  window.setObjectName(QStringLiteral("FileDialog"));
  window.setWindowTitle(ToQString(dialog.title));
  window.setAccessibleName(ToQString(dialog.title));
  // The captions of the filters name their patterns already.
  window.setOption(QFileDialog::HideNameFilterDetails);
  const QStringList filters = NameFilters(dialog.filter);
  if (!filters.isEmpty()) window.setNameFilters(filters);
  const QString folder = QFile::decodeName(dialog.initialFolder.c_str());
  // A folder that has gone would leave the dialog in a place that the user cannot see.
  if (!folder.isEmpty() && QFileInfo(folder).isDir()) window.setDirectory(folder);
  const QString file = QFile::decodeName(dialog.fileName.c_str());
  if (!file.isEmpty()) window.selectFile(file);
}

std::string Run(QFileDialog& window) {
  if (window.exec() != QDialog::Accepted || window.selectedFiles().isEmpty()) return {};
  return QFile::encodeName(window.selectedFiles().constFirst()).toStdString();
}

/// A file that exists is meant as it is named, also without a point in its name.
std::string WithExtension(const std::string& path, const QString& extension) {
  const QFileInfo file(QFile::decodeName(path.c_str()));
  if (path.empty() || file.fileName().contains(u'.') || file.exists()) return path;
  return path + "." + extension.toStdString();
}

}  // namespace

std::string QtFileDialogs::ShowOpen(const FileDialog& dialog) {
  QFileDialog window(QApplication::activeWindow());
  window.setOption(QFileDialog::DontUseNativeDialog);
  window.setAcceptMode(QFileDialog::AcceptOpen);
  window.setFileMode(QFileDialog::ExistingFile);
  SetUp(window, dialog);
  return Run(window);
}

std::string QtFileDialogs::ShowSave(const FileDialog& dialog) {
  QFileDialog window(QApplication::activeWindow());
  window.setOption(QFileDialog::DontUseNativeDialog);
  window.setAcceptMode(QFileDialog::AcceptSave);
  window.setFileMode(QFileDialog::AnyFile);
  const QString extension = DefaultExtension(dialog.filter);
  if (dialog.asksToReplace) window.setDefaultSuffix(extension);
  window.setOption(QFileDialog::DontConfirmOverwrite, !dialog.asksToReplace);
  SetUp(window, dialog);
  const std::string path = Run(window);
  return dialog.asksToReplace ? path : WithExtension(path, extension);
}

QStringList NameFilters(const std::string& filter) {
  const QStringList parts = PartsOf(filter);
  QStringList filters;
  for (qsizetype i = 0; const QStringList& patterns : Patterns(parts)) {
    QStringList shown = patterns;
    // A file without a point in its name is a file too.
    shown.replaceInStrings(QRegularExpression(QStringLiteral("^\\*\\.\\*$")), QStringLiteral("*"));
    filters.append(QStringLiteral("%1 (%2)").arg(parts[2 * i], shown.join(u' ')));
    ++i;
  }
  return filters;
}

QString DefaultExtension(const std::string& filter) {
  static const QRegularExpression namesOne(QStringLiteral("^\\*\\.([^.*?]+)$"));
  for (const QStringList& patterns : Patterns(PartsOf(filter))) {
    for (const QString& pattern : patterns) {
      const auto match = namesOne.match(pattern);
      if (match.hasMatch()) return match.captured(1);
    }
  }
  return QStringLiteral("con");
}

}  // namespace parlate

#include "platform/IniSettingsStore.h"

#include <QDir>
#include <QFile>

namespace parlate {

namespace {

QString KeyOf(const std::string& section, const std::string& key) {
  return QString::fromStdString(section) + u'/' + QString::fromStdString(key);
}

std::unique_ptr<QSettings> Open(const std::string& application) {
  const QString name = QString::fromStdString(application);
  const QByteArray folder = qgetenv("PARLATE_CONFIG_DIR");
  if (folder.isEmpty()) {
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, name);
  }
  const QString file = QDir(QFile::decodeName(folder)).filePath(name + QStringLiteral(".ini"));
  return std::make_unique<QSettings>(file, QSettings::IniFormat);
}

}  // namespace

QSettings& IniSettingsStore::SettingsOf(const std::string& application) const {
  std::unique_ptr<QSettings>& settings = files_[application];
  if (!settings) settings = Open(application);
  return *settings;
}

std::string IniSettingsStore::Get(const std::string& application, const std::string& section,
                                  const std::string& key, const std::string& fallback) const {
  const QVariant value = SettingsOf(application).value(KeyOf(section, key));
  if (!value.isValid()) return fallback;
  // A comma that was written by hand and not quoted makes a list of it.
  if (value.typeId() == QMetaType::QStringList) {
    return value.toStringList().join(QStringLiteral(", ")).toStdString();
  }
  if (value.typeId() == QMetaType::QByteArray) return value.toByteArray().toStdString();
  return value.toString().toStdString();
}

void IniSettingsStore::Set(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& value) {
  const QString text = QString::fromStdString(value);
  const bool readsBack = text.toStdString() == value;
  SettingsOf(application)
      .setValue(KeyOf(section, key),
                readsBack ? QVariant(text) : QVariant(QByteArray::fromStdString(value)));
}

bool IniSettingsStore::Sync() {
  bool stored = true;
  for (const auto& [application, settings] : files_) {
    settings->sync();
    stored = stored && settings->status() == QSettings::NoError;
  }
  return stored;
}

QString IniSettingsStore::FileName(const std::string& application) const {
  return SettingsOf(application).fileName();
}

}  // namespace parlate

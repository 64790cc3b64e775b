#pragma once

#include <QSettings>
#include <QString>
#include <map>
#include <memory>
#include <string>

#include "settings/SettingsStore.h"

namespace parlate {

/// The user's settings in an ini file of the application's name, such as Parlate.ini. It lies in
/// the folder that the environment variable PARLATE_CONFIG_DIR names, or else in the user's
/// configuration folder.
///
/// A value is read back byte by byte, also one that is not UTF-8, such as an old path. A key is
/// compared byte by byte: a trailing blank makes another key.
class IniSettingsStore final : public SettingsStore {
 public:
  [[nodiscard]] std::string Get(const std::string& application, const std::string& section,
                                const std::string& key, const std::string& fallback) const override;
  void Set(const std::string& application, const std::string& section, const std::string& key,
           const std::string& value) override;

  /// Writes what was set. False if a file could not be written or read.
  bool Sync();

  /// Where the settings of an application are kept.
  [[nodiscard]] QString FileName(const std::string& application) const;

 private:
  [[nodiscard]] QSettings& SettingsOf(const std::string& application) const;

  // Opened on first use, by application.
  mutable std::map<std::string, std::unique_ptr<QSettings>> files_;
};

}  // namespace parlate

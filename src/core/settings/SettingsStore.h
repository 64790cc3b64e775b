#pragma once

#include <string>

namespace parlate {

/// The platform's per-user store of texts by application, section and key. All texts are UTF-8.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// The stored value, or `fallback` for a key that is not there.
  [[nodiscard]] virtual std::string Get(const std::string& application, const std::string& section,
                                        const std::string& key,
                                        const std::string& fallback) const = 0;
  virtual void Set(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& value) = 0;
};

}  // namespace parlate

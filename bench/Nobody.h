#pragma once

#include <string>

#include "general/Prompts.h"
#include "settings/SettingsStore.h"

namespace parlate::bench {

/// Gives every question the same answer, chooses no file, and keeps no setting.
class Nobody final : public MessageBoxes, public FileDialogs, public SettingsStore {
 public:
  explicit Nobody(Answer answer) : answer_(answer) {}

  Answer Show(const MessageBox& box) override {
    lastText = box.text;
    return answer_;
  }
  std::string ShowOpen(const FileDialog& /*dialog*/) override { return {}; }
  std::string ShowSave(const FileDialog& /*dialog*/) override { return {}; }
  [[nodiscard]] std::string Get(const std::string& /*application*/, const std::string& /*section*/,
                                const std::string& key,
                                const std::string& fallback) const override {
    return key == "Username" ? "bench" : fallback;
  }
  void Set(const std::string&, const std::string&, const std::string&,
           const std::string&) override {}

  std::string lastText;  ///< Of the last question.

 private:
  Answer answer_;
};

}  // namespace parlate::bench

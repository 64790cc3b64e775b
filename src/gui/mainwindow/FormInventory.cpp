#include "mainwindow/FormInventory.h"

#include "editors/frmFileProperties.h"
#include "editors/frmMissingLabels.h"
#include "editors/frmProperties.h"
#include "editors/frmSettings.h"
#include "mainwindow/frmAbout.h"
#include "mainwindow/frmConvList.h"
#include "mainwindow/frmFind.h"
#include "mainwindow/frmProgress.h"
#include "mainwindow/frmSplash.h"

namespace parlate {

namespace {

/// What the forms ask of the program, with nobody to answer.
class NobodyBehind : public FileDialogs, public SettingsHost {
 public:
  std::string ShowOpen(const FileDialog& /*dialog*/) override { return {}; }
  std::string ShowSave(const FileDialog& /*dialog*/) override { return {}; }
  void UpdateLastFiles() override {}
  void UpdateEventsList() override {}

  ConversationDefaults defaults;
};

/// A form that needs a program behind it brings it along.
class LoadedSettings : private NobodyBehind, public frmSettings {
 public:
  LoadedSettings() : frmSettings(defaults, *this, *this) {}
};

/// The main window with settings of its own, and nobody to answer its questions.
struct NobodyAsked : public MessageBoxes, public FileDialogs, public SettingsStore {
  Answer Show(const MessageBox& /*box*/) override { return Answer::Cancel; }
  std::string ShowOpen(const FileDialog& /*dialog*/) override { return {}; }
  std::string ShowSave(const FileDialog& /*dialog*/) override { return {}; }
  [[nodiscard]] std::string Get(const std::string&, const std::string&, const std::string&,
                                const std::string& fallback) const override {
    return fallback;
  }
  void Set(const std::string&, const std::string&, const std::string&,
           const std::string&) override {}
};

class LoadedConvList : private NobodyAsked, public frmConvList {
 public:
  LoadedConvList() : frmConvList(*this, *this, *this) { shell().UpdateCommandStates(); }
};

/// A file from nothing, with its properties and those of its first conversation.
struct NewFile : private NobodyAsked {
  MessageBoxes& messages = *this;
  ConversationFile conFile;
  Conversation con;
};

class LoadedProperties : private NewFile, public frmProperties {
 public:
  LoadedProperties() : frmProperties(conFile, messages) { SetCon(con); }
};

class LoadedFileProperties : private NewFile, public frmFileProperties {
 public:
  LoadedFileProperties() : frmFileProperties(conFile) {}
};

struct NewWindow {
  LoadedConvList behind;
};

class LoadedFind : private NewWindow, public frmFind {
 public:
  LoadedFind() : frmFind(behind.shell()) {}
};

template <class Form>
FormFactory Factory(const char* name) {
  return {QString::fromLatin1(name), [] { return std::make_unique<Form>(); }};
}

}  // namespace

std::vector<FormFactory> AllForms() {
  return {
      Factory<LoadedConvList>("frmConvList"),
      Factory<frmSplash>("frmSplash"),
      Factory<frmAbout>("frmAbout"),
      Factory<frmProgress>("frmProgress"),
      Factory<frmMissingLabels>("frmMissingLabels"),
      Factory<LoadedSettings>("frmSettings"),
      Factory<LoadedFind>("frmFind"),
      Factory<LoadedProperties>("frmProperties"),
      Factory<LoadedFileProperties>("frmFileProperties"),
  };
}

}  // namespace parlate

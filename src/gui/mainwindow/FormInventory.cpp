#include "mainwindow/FormInventory.h"

#include "editors/frmCameraProperties.h"
#include "editors/frmChoiceEdit.h"
#include "editors/frmEditValue.h"
#include "editors/frmEvent.h"
#include "editors/frmExport.h"
#include "editors/frmFileProperties.h"
#include "editors/frmFlagList.h"
#include "editors/frmImport.h"
#include "editors/frmMissingLabels.h"
#include "editors/frmPlayAudio.h"
#include "editors/frmPrintCons.h"
#include "editors/frmProperties.h"
#include "editors/frmSettings.h"
#include "editors/frmTableEdit.h"
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

class LoadedExport : private NobodyBehind, public frmExport {
 public:
  LoadedExport() : frmExport(defaults, *this, [](const std::string&, std::int32_t, Boolean) {}) {}
};

class LoadedImport : private NobodyBehind, public frmImport {
 public:
  LoadedImport() : frmImport(defaults, *this, [](const std::string&) {}) {}
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

/// The program behind the editors: a main window with nothing open, which stays out of sight.
struct ProgramBehind {
  [[nodiscard]] EditorDoors Doors() { return {window.shell(), nobody, nobody, progress}; }

  NobodyAsked nobody;
  frmConvList window{nobody, nobody, nobody};
  frmProgress progress;
};

class LoadedTableEdit : private ProgramBehind, public frmTableEdit {
 public:
  LoadedTableEdit() : frmTableEdit(ProgramBehind::Doors()) {}
};

/// An event editor without an event.
struct EditorBehind : public ProgramBehind, public PanelHost {
  [[nodiscard]] const std::shared_ptr<Conversation>& CurrentCon() const override { return con; }
  void PopulateLabelCombo(ComboBox& cboLabels) override { cboLabels.Clear(); }
  void PopulateLabelsOf(std::int32_t, ComboBox& cboLabels) override { cboLabels.Clear(); }
  void SelectLabelValue(const std::string&, ComboBox&) override {}
  [[nodiscard]] std::string SelectAudioFile() override { return {}; }
  [[nodiscard]] bool IsEditorVisible() const override { return false; }
  [[nodiscard]] SpeakerPair LastSpeakers() const override { return {}; }
  [[nodiscard]] EditorDoors Doors() override { return ProgramBehind::Doors(); }

  std::shared_ptr<Conversation> con;
};

std::string NoFolder(const Conversation& /*con*/) { return {}; }

class LoadedChoiceEdit : private EditorBehind, public frmChoiceEdit {
 public:
  LoadedChoiceEdit() : frmChoiceEdit(static_cast<PanelHost&>(*this), NoFolder) {}
};

class LoadedEvent : private ProgramBehind, public frmEvent {
 public:
  LoadedEvent() : frmEvent(ProgramBehind::Doors()) {
    AddEvent(kSpeech, std::make_shared<Conversation>());
    hide();
  }
};

class LoadedPlayAudio : public frmPlayAudio {
 public:
  LoadedPlayAudio() : frmPlayAudio(NoFolder) {}
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

class LoadedPrintCons : private NobodyBehind, private NobodyAsked, public frmPrintCons {
 public:
  LoadedPrintCons() : frmPrintCons(defaults, *this) {}
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
      Factory<frmFlagList>("frmFlagList"),
      Factory<frmEditValue>("frmEditValue"),
      Factory<LoadedTableEdit>("frmTableEdit"),
      Factory<LoadedEvent>("frmEvent"),
      Factory<LoadedChoiceEdit>("frmChoiceEdit"),
      Factory<frmCameraProperties>("frmCameraProperties"),
      Factory<LoadedPlayAudio>("frmPlayAudio"),
      Factory<LoadedExport>("frmExport"),
      Factory<LoadedImport>("frmImport"),
      Factory<LoadedFind>("frmFind"),
      Factory<LoadedPrintCons>("frmPrintCons"),
      Factory<LoadedProperties>("frmProperties"),
      Factory<LoadedFileProperties>("frmFileProperties"),
  };
}

}  // namespace parlate

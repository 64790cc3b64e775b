#pragma once

#include <stdexcept>
#include <vector>

#include "editors/panels/EventPanel.h"

namespace parlate::testing_support {

/// An event editor with nothing round the panel: it offers the labels that a test gives it.
class FakePanelHost final : public PanelHost {
 public:
  [[nodiscard]] const std::shared_ptr<Conversation>& CurrentCon() const override { return con; }
  void PopulateLabelCombo(ComboBox& cboLabels) override {
    cboLabels.Clear();
    for (const std::string& label : labels) cboLabels.AddItem(label);
  }
  void PopulateLabelsOf(std::int32_t /*conID*/, ComboBox& cboLabels) override {
    PopulateLabelCombo(cboLabels);
  }
  void SelectLabelValue(const std::string& label, ComboBox& cboLabels) override {
    for (int i = 0; i < cboLabels.ListCount(); ++i) {
      if (cboLabels.List(i) == label) return cboLabels.SetListIndex(i);
    }
    cboLabels.SetText(label);
  }
  [[nodiscard]] std::string SelectAudioFile() override { return {}; }
  [[nodiscard]] bool IsEditorVisible() const override { return true; }
  [[nodiscard]] SpeakerPair LastSpeakers() const override { return {}; }
  [[nodiscard]] EditorDoors Doors() override {
    throw std::logic_error("the panel under test needs no doors");
  }
  void ClearTransferCount() override { ++transferCountsCleared; }

  std::shared_ptr<Conversation> con;
  std::vector<std::string> labels{"start", "End", "loop"};
  int transferCountsCleared = 0;
};

}  // namespace parlate::testing_support

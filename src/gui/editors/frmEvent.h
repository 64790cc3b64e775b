#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <cstdint>
#include <memory>
#include <string>

#include "editors/EditorDoors.h"
#include "editors/panels/AllPanels.h"
#include "platform/QtComboBox.h"

namespace parlate {

/// The window in which one event is created or changed. It stays open beside the main window, and
/// opening another event loads the same window anew.
///
/// Only Update stores what was typed; everything else drops it without a question. The lists of
/// choices and flags are the exception: of an event that exists they change at once.
class frmEvent : public QDialog, public PanelHost {
  Q_OBJECT

 public:
  explicit frmEvent(const EditorDoors& doors, QWidget* owner = nullptr);

  /// Opens the window to create an event. Without a conversation that of the last event stays.
  void AddEvent(std::int32_t eventType, const std::shared_ptr<Conversation>& conObj);
  /// Opens the window on an event.
  void EditEvent(const std::shared_ptr<Conversation>& conObj,
                 const std::shared_ptr<EventItem>& eventItem);
  void PopulateLabelCombo(ComboBox& cboLabels) override;
  /// Fills a combo with the labels of the conversation that the Jump panel shows.
  void PopulateJumpLabelCombo(ComboBox& cboLabels);
  /// Fills a combo with the five comparison operators.
  void PopulateConditionsCombo(ComboBox& cboConditions);
  void SelectLabelValue(const std::string& label, ComboBox& cboLabels) override;
  [[nodiscard]] std::string SelectAudioFile() override;

  /// Notes in the settings where the window stands. To be called when it is given up.
  void StorePosition() const;

  // The rest of PanelHost
  [[nodiscard]] const std::shared_ptr<Conversation>& CurrentCon() const override {
    return currentCon_;
  }
  void PopulateLabelsOf(std::int32_t conID, ComboBox& cboLabels) override;
  [[nodiscard]] bool IsEditorVisible() const override { return isVisible(); }
  [[nodiscard]] SpeakerPair LastSpeakers() const override { return lastSpeakers_; }
  [[nodiscard]] EditorDoors Doors() override { return doors_; }
  void ClearTransferCount() override;

 public slots:
  /// Closing only hides the window.
  void reject() override;

 protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  // Construction
  void SetUpControls();
  void PlaceEventPanels();
  void BuildLayout();
  void ConnectControls();
  void PlaceWindow();

  void ShowEventPanel(std::int32_t eventType);
  void ClearEventFields();
  [[nodiscard]] EventPanel& Panel(std::int32_t eventType) {
    return *panels_[static_cast<std::size_t>(eventType)];
  }
  void RefreshUpdateButton();
  void RefreshNavButtons();

  void Update();
  [[nodiscard]] bool CheckLabelUnique();
  /// Whether what stands in the panel's field for a number is one; if not, the user is told.
  [[nodiscard]] bool CheckNumber();
  [[nodiscard]] bool IsLabelUnique();
  void CommitNewEvent();
  void CommitEditedEvent();
  /// Stores the label, and tells the conversation of it if `bRegister`.
  void UpdateEventLabel(EventItem& eventItem, bool bRegister);
  void UpdateEventObject(EventItem& eventItem);
  [[nodiscard]] std::string Label() const;

  void StartEvent(std::int32_t newAddMode);
  void AddLabelsOf(const Conversation& con, ComboBox& cboLabels) const;
  void PanelKey(void (EventPanel::*pressed)());

  EditorDoors doors_;
  std::shared_ptr<Conversation> currentCon_;
  std::shared_ptr<EventItem> currentEvent_;  ///< Nothing in add mode.
  std::string oldLabel_;          ///< The label when the event was loaded or last stored.
  std::int32_t panelIndex_ = -1;  ///< The panel that is shown.
  std::int32_t bEditMode_ = 0;    ///< 1 for an event that exists.
  SpeakerPair lastSpeakers_;

  // In the order in which Tab visits them.
  QLabel Label18{this};
  QtComboBox cboEvents{this};
  QLabel Label19{this};
  QLineEdit txtLabel{this};
  QStackedWidget panelStack_{this};
  EventPanels panels_ = MakeAllPanels(*this, &panelStack_);
  QPushButton cmdAddEvent{this};
  QPushButton cmdInsertEvent{this};
  QPushButton cmdUpdate{this};
  QPushButton cmdPrevEvent{this};
  QPushButton cmdNextEvent{this};
  QPushButton cmdClose{this};
  // Text fields keep their own Delete: a shortcut is asked only for keys that the focus leaves.
  QShortcut insertKey_{QKeySequence(Qt::Key_Insert), this};
  QShortcut deleteKey_{QKeySequence(Qt::Key_Delete), this};
};

}  // namespace parlate

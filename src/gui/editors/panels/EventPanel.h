#pragma once

#include <QGroupBox>
#include <QLineEdit>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "editors/EditorDoors.h"
#include "general/RuntimeError.h"
#include "model/Controls.h"
#include "model/Conversation.h"

namespace parlate {

/// Who spoke to whom in the speech stored last; -1 for nobody.
struct SpeakerPair {
  std::int32_t speakerID = -1;
  std::int32_t speakingToID = -1;
};

/// What a panel asks of the event editor round it.
class PanelHost {
 public:
  virtual ~PanelHost() = default;
  /// The conversation of the event.
  [[nodiscard]] virtual const std::shared_ptr<Conversation>& CurrentCon() const = 0;
  /// Fills a combo with the labels of the conversation, without that of the event itself.
  virtual void PopulateLabelCombo(ComboBox& cboLabels) = 0;
  /// Fills a combo with the labels of another conversation, or of this one for -1.
  virtual void PopulateLabelsOf(std::int32_t conID, ComboBox& cboLabels) = 0;
  /// Shows a label in a combo that may not hold it.
  virtual void SelectLabelValue(const std::string& label, ComboBox& cboLabels) = 0;
  /// The base name of an audio file that the user chose; empty for none.
  [[nodiscard]] virtual std::string SelectAudioFile() = 0;
  /// Whether the editor is on the screen.
  [[nodiscard]] virtual bool IsEditorVisible() const = 0;
  [[nodiscard]] virtual SpeakerPair LastSpeakers() const = 0;
  [[nodiscard]] virtual EditorDoors Doors() = 0;
  /// Empties the count of the panel that transfers objects.
  virtual void ClearTransferCount() {}
};

/// A field of a panel whose text must be a number.
struct NumberField {
  QLineEdit* field = nullptr;
  /// What makes the number of the text; RuntimeError 6 or 13 when it is none that can be stored.
  std::int32_t (*read)(std::string_view text) = nullptr;
};

/// One panel of the event editor: the controls of one event type. The editor calls the steps in
/// the order of this class; `Ready` may run twice in a row.
class EventPanel : public QGroupBox {
  Q_OBJECT

 public:
  EventPanel(std::int32_t eventType, const QString& caption, PanelHost& host,
             QWidget* parent = nullptr);

  [[nodiscard]] std::int32_t EventType() const { return eventType_; }

  /// Finishes what a field left behind has to ask before the panel shows another event.
  virtual void LeaveFields() {}
  /// Empties every control, whatever panel is shown.
  virtual void ClearFields() = 0;
  /// A fresh start for an event that does not exist yet: lists of its own instead of an event's.
  virtual void BeginNewEvent() {}
  /// Fills the lists and sets the defaults of a new event.
  virtual void Ready() = 0;
  /// Shows the fields of an event that has its object.
  virtual void LoadEvent(EventItem& event) = 0;
  /// Whether the required fields are there, so that the event can be stored.
  [[nodiscard]] virtual bool IsComplete() const = 0;
  /// The field that is tested before the fields are stored, if the panel has one.
  [[nodiscard]] virtual NumberField Number() { return {}; }
  /// Stores the fields; an event without an object is given one.
  virtual void UpdateEvent(EventItem& event) = 0;
  /// The Insert and the Delete key, pressed anywhere in the editor.
  virtual void InsertPressed() {}
  virtual void DeletePressed() {}

 signals:
  /// Whether the event can be stored has to be decided anew.
  void changed();

 protected:
  [[nodiscard]] PanelHost& Host() const { return host_; }

  /// The object of an item as its class; an item without one is given a new one.
  template <class Event>
  [[nodiscard]] Event& ObjectOf(EventItem& event) const {
    if (event.eventObject() == nullptr) event.CreateEventObject(eventType_);
    return Loaded<Event>(event);
  }
  /// The object of an item as its class.
  template <class Event>
  [[nodiscard]] static Event& Loaded(EventItem& event) {
    Event* object = event.As<Event>();
    if (object == nullptr) throw RuntimeError(RuntimeError::kObjectVariableNotSet);
    return *object;
  }

 private:
  std::int32_t eventType_;
  PanelHost& host_;
};

}  // namespace parlate

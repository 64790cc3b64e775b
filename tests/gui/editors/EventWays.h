#pragma once

#include <ostream>
#include <vector>

#include "editors/EventEditorFixture.h"

namespace parlate::testing_support {

/// A user at the editor who takes the steps of a way. Beside the harbour file there are an object
/// Rope (7) and a label Quay in the third conversation.
class EventWriterTest : public EventEditorTest {
 public:
  using EventEditorTest::Click;
  using EventEditorTest::ClickRowOf;
  using EventEditorTest::DoubleClickRowOf;
  using EventEditorTest::PickFlags;
  using EventEditorTest::Press;
  using EventEditorTest::Type;
  using EventEditorTest::WriteChoice;
  using EventEditorTest::WriteSpeech;

  /// Selects a row of a list by the keyboard.
  void Choose(const char* combo, int row);
  void AddRandomLabel(const char* label);

 protected:
  void SetUp() override;
};

using WriterSteps = void (*)(EventWriterTest& user);

/// How a user writes an event, how it is changed afterwards, and what it holds then.
struct EventWay {
  const char* name;
  std::int32_t type;
  /// The combo that offers the labels of the conversation; nothing if the panel has none.
  const char* labelCombo;
  WriterSteps write;
  const char* written;  ///< As FieldsOf tells it, behind the label.
  WriterSteps change;
  const char* changed;
  /// Input that the editor drops unless Update is pressed.
  WriterSteps leave;
};

inline void PrintTo(const EventWay& way, std::ostream* out) { *out << way.name; }

/// At least one way for every type of event.
[[nodiscard]] std::vector<EventWay> AllEventWays();
/// Those whose panel offers labels.
[[nodiscard]] std::vector<EventWay> EventWaysWithLabels();

}  // namespace parlate::testing_support

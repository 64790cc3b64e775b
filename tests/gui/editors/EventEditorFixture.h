#pragma once

#include <QCheckBox>
#include <QLabel>
#include <string>
#include <vector>

#include "editors/frmEvent.h"
#include "mainwindow/WindowFixture.h"
#include "platform/Modal.h"
#include "platform/QtListBox.h"
#include "platform/TextField.h"
#include "support/ConversationScript.h"
#include "widgets/CodePageText.h"
#include "widgets/MultiColumnList.h"

namespace parlate::testing_support {

/// The program with the harbour file open and its first conversation selected, and a user at the
/// event editor.
class EventEditorTest : public WindowTest {
 protected:
  void SetUp() override;

  // The editor
  [[nodiscard]] frmEvent& Editor();
  void WaitForEditor();
  /// Opens the editor by the menu to append an event.
  void Add(std::int32_t eventType);
  /// Opens the editor by a double click on a row.
  void Edit(int row);
  template <class Control>
  [[nodiscard]] Control& The(const char* name) {
    return ControlNamed<Control>(Editor(), name);
  }
  [[nodiscard]] QtComboBox& Combo(const char* name) { return The<QtComboBox>(name); }
  [[nodiscard]] MultiColumnList& List(const char* name) { return The<MultiColumnList>(name); }
  [[nodiscard]] QLineEdit& Label() { return The<QLineEdit>("txtLabel"); }
  [[nodiscard]] bool IsEnabled(const char* name) { return The<QWidget>(name).isEnabled(); }
  [[nodiscard]] bool CanUpdate() { return IsEnabled("cmdUpdate"); }
  [[nodiscard]] bool IsTicked(const char* name) { return The<QCheckBox>(name).isChecked(); }
  [[nodiscard]] std::string TextOf(const char* name) {
    return FromQString(The<QLineEdit>(name).text());
  }
  /// The text of the label before a field.
  [[nodiscard]] QString CaptionOf(const char* name);
  [[nodiscard]] QString ButtonCaption(const char* name) {
    return The<QAbstractButton>(name).text();
  }
  [[nodiscard]] std::vector<std::string> Entries(const char* combo);
  [[nodiscard]] std::vector<std::string> RowsOf(const char* list);
  [[nodiscard]] QStringList Heads(const char* list);
  [[nodiscard]] std::int32_t ShownPanel();

  // The user
  void Click(const char* name);
  void Focus(const char* name);
  /// Replaces the text of a field by the keyboard.
  void Type(const char* name, const char* text);
  /// Presses a key where the focus is.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void ClickRowOf(const char* list, int row);
  void DoubleClickRowOf(const char* list, int row);
  /// Picks flags in the dialog that is about to come.
  static void PickFlags(std::vector<int> rows, const char* expiration = nullptr);
  /// Writes a choice in the dialog that is about to come.
  static void WriteChoice(const char* text, const char* label = "");
  void WriteSpeech(const char* speaker, const char* speakingTo, const char* text);

  // The file
  [[nodiscard]] Conversation& Con(std::int32_t key = 0) {
    return program_.shell().GetConFile()->Conversations.At(key);
  }
  template <class Event>
  [[nodiscard]] Event& EventOf(std::int32_t key, std::int32_t con = 0) {
    Event* event = Con(con).events.At(key).As<Event>();
    if (event == nullptr) throw std::runtime_error("an event of another class");
    return *event;
  }
  [[nodiscard]] std::vector<std::int32_t> KeysInOrder(std::int32_t con = 0);
  [[nodiscard]] std::int32_t SelectedRow() { return program_.shell().lstEvents().ListIndex(); }
  /// The box that was shown last; the test fails if there was none.
  [[nodiscard]] const MessageBox& LastBox() {
    return program_.messages.shown.at(program_.messages.shown.size() - 1);
  }
  /// Saves the file by the menu and opens it again.
  void SaveAndReload();

  RunningProgram program_;
  std::string path_;
};

}  // namespace parlate::testing_support

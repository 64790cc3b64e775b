#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <initializer_list>
#include <string>
#include <vector>

#include "editors/panels/FakePanelHost.h"
#include "model/TableCombos.h"
#include "platform/Modal.h"
#include "platform/QtComboBox.h"
#include "platform/TextField.h"
#include "support/ScriptedTableEditor.h"
#include "support/TestWorkspace.h"
#include "widgets/CodePageText.h"

namespace parlate::testing_support {

/// One panel in a window of its own, with rows in the tables of actors (2, 4) and objects (7, 9).
template <class Panel>
class PanelTest : public ::testing::Test {
 protected:
  PanelTest() {
    TestWorkspace::AddRows(kActorTable, {{4, "Zoe"}, {2, "Bob"}});
    TestWorkspace::AddRows(kObjectTable, {{9, "Lockpick"}, {7, "Keycard"}});
    space_.workspace.tableEditor = &tables_;
    auto* layout = new QVBoxLayout(&window_);
    layout->addWidget(&before_);
    layout->addWidget(&panel_);
    layout->addWidget(&after_);
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    ShowForNew();
  }

  /// As the editor readies a panel for a new event.
  void ShowForNew() {
    panel_.ClearFields();
    panel_.BeginNewEvent();
    panel_.Ready();
    panel_.Ready();
  }
  /// As the editor shows an event.
  template <class Event>
  void Show(Event event) {
    EventItem item;
    item.SetEventObject(panel_.EventType(), std::move(event));
    panel_.Ready();
    panel_.Ready();
    panel_.LoadEvent(item);
  }
  /// The object of a new event in which the fields are stored.
  template <class Event>
  Event& Stored() {
    item_.eventType = panel_.EventType();
    panel_.UpdateEvent(item_);
    EXPECT_EQ(item_.eventType, panel_.EventType());
    Event* stored = item_.As<Event>();
    if (stored == nullptr) {
      ADD_FAILURE() << "the event is of another class";
      std::abort();
    }
    return *stored;
  }

  template <class Control>
  Control& The(const char* name) {
    return ControlNamed<Control>(panel_, name);
  }
  QLineEdit& Line(const char* name) { return The<QLineEdit>(name); }
  QtTextBox& Box(const char* name) { return The<QtTextBox>(name); }
  QtComboBox& Combo(const char* name) { return The<QtComboBox>(name); }
  QAbstractButton& Button(const char* name) { return The<QAbstractButton>(name); }
  bool IsEnabled(const char* name) { return The<QWidget>(name).isEnabled(); }
  bool IsSet(const char* name) { return Button(name).isChecked(); }
  std::string TextOf(const char* name) { return FromQString(Line(name).text()); }
  QString Caption(const char* name) { return Button(name).text(); }
  QString LabelOf(const char* name) {
    for (const QLabel* label : panel_.template findChildren<QLabel*>()) {
      if (label->buddy() == &The<QWidget>(name)) return label->text();
    }
    return {};
  }
  QString Spoken(const char* name) {
    return QAccessible::queryAccessibleInterface(&The<QWidget>(name))->text(QAccessible::Name);
  }

  void Click(const char* name) {
    QAbstractButton& button = Button(name);
    // At the mark of an option or a box, which may be wider than its caption.
    const bool hasMark = button.isCheckable();
    const QPoint at = hasMark ? QPoint(8, button.height() / 2) : button.rect().center();
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, at);
  }
  void Focus(QWidget& field) {
    field.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&field] { return field.hasFocus(); }));
  }
  /// Replaces the text of a field by the keyboard.
  void Type(const char* name, const char* text) {
    auto& field = The<QWidget>(name);
    Focus(field);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, QString::fromLatin1(text));
  }
  /// The fields in the order in which Tab visits them, from the one before the panel on.
  std::vector<std::string> TabOrder() {
    std::vector<std::string> names;
    Focus(before_);
    for (int i = 0; i < 30; ++i) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      if (QApplication::focusWidget() == &after_) return names;
      names.push_back(QApplication::focusWidget()->objectName().toStdString());
    }
    ADD_FAILURE() << "Tab does not leave the panel";
    return names;
  }
  /// Whether the event can be stored, once questions of the last field have been asked.
  bool IsComplete() {
    QCoreApplication::processEvents();
    return panel_.IsComplete();
  }

  TestWorkspace space_;
  ScriptedTableEditor tables_;
  FakePanelHost host_;
  QWidget window_;
  QLineEdit before_{&window_};
  Panel panel_{host_, &window_};
  QLineEdit after_{&window_};
  QSignalSpy changed_{&panel_, &EventPanel::changed};
  EventItem item_;
};

using Names = std::vector<std::string>;

}  // namespace parlate::testing_support

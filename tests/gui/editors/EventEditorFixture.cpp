#include "editors/EventEditorFixture.h"

#include <QPushButton>

namespace parlate::testing_support {

void EventEditorTest::SetUp() {
  path_ = folder.File("harbour.con");
  WriteBytes(path_, HarbourFile());
  ASSERT_TRUE(program_.Start(path_));
  program_.ClickNode("C0");
}

frmEvent& EventEditorTest::Editor() {
  const auto editors = program_.Window().findChildren<frmEvent*>();
  if (editors.isEmpty()) throw std::runtime_error("no editor");
  return *editors.last();
}

void EventEditorTest::WaitForEditor() {
  Editor().activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return Editor().isActiveWindow(); }));
}

void EventEditorTest::Add(std::int32_t eventType) {
  program_.Choose(("mnuEventAdd(" + std::to_string(eventType) + ")").c_str());
  WaitForEditor();
}

void EventEditorTest::Edit(int row) {
  program_.Events().EnsureVisible(row);
  const QPoint at = program_.Events().RowRect(row).center();
  QTest::mouseClick(program_.Events().viewport(), Qt::LeftButton, {}, at);
  QTest::mouseDClick(program_.Events().viewport(), Qt::LeftButton, {}, at);
  WaitForEditor();
}

QString EventEditorTest::CaptionOf(const char* name) {
  for (const QLabel* label : Editor().findChildren<QLabel*>()) {
    if (label->buddy() == &The<QWidget>(name)) return label->text();
  }
  return {};
}

std::vector<std::string> EventEditorTest::Entries(const char* combo) {
  std::vector<std::string> entries;
  entries.reserve(static_cast<std::size_t>(Combo(combo).ListCount()));
  for (int i = 0; i < Combo(combo).ListCount(); ++i) entries.push_back(Combo(combo).List(i));
  return entries;
}

std::vector<std::string> EventEditorTest::RowsOf(const char* list) {
  std::vector<std::string> texts;
  const ListRows& rows = List(list).Rows();
  for (std::size_t i = 0; i < rows.ListCount(); ++i) texts.push_back(rows.Row(i).text);
  return texts;
}

QStringList EventEditorTest::Heads(const char* list) {
  QStringList heads;
  for (int i = 0; i < List(list).ColumnCount(); ++i) heads.append(List(list).Head(i));
  return heads;
}

std::int32_t EventEditorTest::ShownPanel() {
  std::int32_t shown = -1;
  for (const EventPanel* panel : Editor().findChildren<EventPanel*>()) {
    if (!panel->isVisible()) continue;
    EXPECT_EQ(shown, -1) << "two panels at once";
    shown = panel->EventType();
  }
  return shown;
}

void EventEditorTest::Click(const char* name) {
  auto& button = The<QAbstractButton>(name);
  // At the mark of a box, which may be wider than its caption.
  const QPoint mark(8, button.height() / 2);
  QTest::mouseClick(&button, Qt::LeftButton, {}, button.isCheckable() ? mark : QPoint());
}

void EventEditorTest::Focus(const char* name) {
  WaitForEditor();
  The<QWidget>(name).setFocus();
  EXPECT_TRUE(QTest::qWaitFor([&] { return The<QWidget>(name).hasFocus(); })) << name;
}

void EventEditorTest::Type(const char* name, const char* text) {
  Focus(name);
  auto& field = The<QWidget>(name);
  QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&field, Qt::Key_Delete);
  QTest::keyClicks(&field, QString::fromLatin1(text));
}

void EventEditorTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  WaitForEditor();
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void EventEditorTest::ClickRowOf(const char* list, int row) {
  QTest::mouseClick(List(list).viewport(), Qt::LeftButton, {}, List(list).RowRect(row).center());
}

void EventEditorTest::DoubleClickRowOf(const char* list, int row) {
  ClickRowOf(list, row);
  QTest::mouseDClick(List(list).viewport(), Qt::LeftButton, {}, List(list).RowRect(row).center());
}

void EventEditorTest::PickFlags(std::vector<int> rows, const char* expiration) {
  WhenFormShows("frmFlagList", [rows = std::move(rows), expiration](QWidget& form) {
    auto& expirationField = ControlNamed<QLineEdit>(form, "txtExpiration");
    EXPECT_EQ(expirationField.isVisible(), expiration != nullptr);
    for (const int row : rows) ControlNamed<QtListBox>(form, "lstFlags").SetSelected(row, true);
    if (expiration != nullptr) expirationField.setText(QString::fromLatin1(expiration));
    QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdOK"), Qt::LeftButton);
  });
}

void EventEditorTest::WriteChoice(const char* text, const char* label) {
  WhenFormShows("frmChoiceEdit", [text, label](QWidget& form) {
    ControlNamed<QLineEdit>(form, "txtChoice").setText(QString::fromLatin1(text));
    ControlNamed<QtComboBox>(form, "cboJumpLabel").SetText(label);
    QTest::mouseClick(&ControlNamed<QPushButton>(form, "cmdOK"), Qt::LeftButton);
  });
}

void EventEditorTest::WriteSpeech(const char* speaker, const char* speakingTo, const char* text) {
  Type("cboActorSpeaker", speaker);
  Type("cboActorSpeakingTo", speakingTo);
  Type("txtSpeech", text);
}

std::vector<std::int32_t> EventEditorTest::KeysInOrder(std::int32_t con) {
  std::vector<std::int32_t> keys;
  for (const EventItem& event : Con(con).events) keys.push_back(event.key);
  return keys;
}

void EventEditorTest::SaveAndReload() {
  program_.Choose("mnuFileSave");
  program_.shell().OpenConFile(path_);
  program_.ClickNode("C0");
}

}  // namespace parlate::testing_support

#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <functional>
#include <string>
#include <vector>

#include "mainwindow/WindowFixture.h"
#include "platform/Modal.h"
#include "support/ConversationScript.h"
#include "support/FileBytes.h"

namespace parlate::testing_support {

/// What a user does with the controls of the dialog.
class FindUser {
 public:
  explicit FindUser(QWidget& form) : form_(form) {}

  template <class Control>
  Control& The(const char* name) {
    return ControlNamed<Control>(form_, name);
  }
  QtComboBox& Text() { return The<QtComboBox>("cboFind"); }
  QPushButton& Button() { return The<QPushButton>("cmdFind"); }
  void Type(const QString& text) {
    Text().setFocus();
    Text().lineEdit()->selectAll();
    TypeText(Text(), text);
  }
  void Click(const char* name) {
    QTest::mouseClick(&The<QAbstractButton>(name), Qt::LeftButton, {},
                      QPoint(8, The<QAbstractButton>(name).height() / 2));
  }
  void Find() { Click("cmdFind"); }
  std::vector<std::string> History() {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(Text().ListCount()));
    for (int i = 0; i < Text().ListCount(); ++i) texts.push_back(Text().List(i));
    return texts;
  }

 private:
  QWidget& form_;
};

/// Zoe: Arrival (key 1, no events) and greeting (key 0); Alex: Leaving (key 2).
class FindTest : public WindowTest {
 protected:
  FindTest() {
    WriteBytes(folder.File("harbour.con"), HarbourFile());
    EXPECT_TRUE(program_.Start(folder.File("harbour.con")));
  }
  ~FindTest() override { EXPECT_TRUE(program_.Close()); }

  /// Opens the dialog by a command, works on it, and closes it.
  void InDialog(const std::function<void(FindUser&)>& work, const char* command = "tlbCon/Find") {
    bool came = false;
    WhenFormShows("frmFind", [&](QWidget& form) {
      came = true;
      FindUser user(form);
      work(user);
      user.Click("cmdCancel");
    });
    program_.Choose(command);
    EXPECT_TRUE(came);
  }
  QtComboBox& Box() { return program_.Find<QtComboBox>("cboFind"); }
  void TypeInBox(const QString& text) {
    Box().setFocus();
    Box().lineEdit()->selectAll();
    TypeText(Box(), text);
  }
  void Search(const QString& text) {
    TypeInBox(text);
    QTest::keyClick(&Box(), Qt::Key_Return);
  }
  void ExpectAt(std::int32_t conKey, std::int32_t row) {
    ASSERT_NE(program_.shell().SelectedCon(), nullptr);
    EXPECT_EQ(program_.shell().SelectedCon()->key, conKey);
    EXPECT_EQ(program_.shell().lstEvents().ListIndex(), row);
  }
  void ExpectNotFoundBox(std::size_t count) {
    ASSERT_EQ(program_.messages.shown.size(), count);
    EXPECT_EQ(program_.messages.shown.back().title, "Not found");
    EXPECT_EQ(program_.messages.shown.back().text, "Search text not found.");
    EXPECT_EQ(program_.messages.shown.back().icon, MessageBox::Icon::Information);
  }

  RunningProgram program_;
};

}  // namespace parlate::testing_support

#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QTest>
#include <memory>

#include "platform/Modal.h"

namespace parlate::testing_support {

/// A form that comes to the screen when a test first asks for it, and a user's hands on it.
template <class FormClass>
class ShownForm : public ::testing::Test {
 protected:
  // What the form works on is the derived test's, and still there.
  void TearDown() override { form_.reset(); }

  virtual std::unique_ptr<FormClass> MakeForm() = 0;

  FormClass& Form() {
    if (form_) return *form_;
    form_ = MakeForm();
    form_->show();
    form_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    return *form_;
  }
  template <class Control>
  Control& The(const char* name) {
    return ControlNamed<Control>(Form(), name);
  }
  QString Caption(const char* name) { return The<QAbstractButton>(name).text(); }
  QString Label(const char* name) { return The<QLabel>(name).text(); }
  bool IsEnabled(const char* name) { return The<QWidget>(name).isEnabled(); }
  void Click(const char* name) {
    auto& button = The<QAbstractButton>(name);
    // On the box of a box, which is narrower than its caption.
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
  }

  std::unique_ptr<FormClass> form_;
};

}  // namespace parlate::testing_support

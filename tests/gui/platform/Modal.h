#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <functional>

namespace parlate {

/// Waits, while a test blocks in a modal dialog, until that dialog is in front, and acts on it
/// once. To be made before the dialog is shown. A dialog that never comes to the front or does not
/// go away is closed after some seconds, and the test fails.
class WhenModal {
 public:
  explicit WhenModal(std::function<void(QWidget&)> act) : act_(std::move(act)) {
    since_.start();
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
    timer_.start(10);
  }
  ~WhenModal() { EXPECT_TRUE(acted_) << "no dialog came"; }
  WhenModal(const WhenModal&) = delete;
  WhenModal& operator=(const WhenModal&) = delete;

 private:
  static constexpr int kPatienceMs = 10000;

  void Look() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) return;
    if (since_.hasExpired(kPatienceMs)) {
      ADD_FAILURE() << "the dialog did not go away";
      modal->close();
      return;
    }
    if (acted_ || !modal->isActiveWindow()) return;
    acted_ = true;
    act_(*modal);
  }

  std::function<void(QWidget&)> act_;
  QTimer timer_;
  QElapsedTimer since_;
  bool acted_ = false;
};

/// Types a text of any letters, for which QTest::keyClicks knows no keys.
inline void TypeText(QWidget& field, const QString& text) {
  for (const QChar letter : text) {
    QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, letter, Qt::NoModifier);
  }
}

/// The control of that name on a form; the test fails without it.
template <class Control>
Control& ControlNamed(const QWidget& form, const char* name) {
  auto* control = form.findChild<Control*>(QString::fromLatin1(name));
  if (control == nullptr) {
    ADD_FAILURE() << name << " is not on the form";
    std::abort();
  }
  return *control;
}

}  // namespace parlate

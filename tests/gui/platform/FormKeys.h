#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <initializer_list>

namespace parlate {

/// Goes on with Tab from the control that has the focus, and expects the named ones in their order.
inline void ExpectTabVisits(std::initializer_list<const char*> names) {
  for (const char* name : names) {
    ASSERT_NE(QApplication::focusWidget(), nullptr) << "ahead of " << name;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_NE(QApplication::focusWidget(), nullptr) << "at " << name;
    EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), name);
  }
}

/// Leaves the form for another window and comes back to it.
inline void LeaveAndComeBack(QWidget& form) {
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  form.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
}

}  // namespace parlate

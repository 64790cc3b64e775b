#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <memory>

#include "mainwindow/WindowFixture.h"

// What the sound server's library keeps to the end is not ours, nor the guard that the toolkit
// drops when an error leaves a slot, which ends the program outside of the tests.
extern "C" const char* __lsan_default_suppressions();   // NOLINT: the sanitizer gives the name
extern "C" const char* __lsan_default_suppressions() {  // NOLINT
  return "leak:libpulse\nleak:QtSharedPointer::ExternalRefCountData::getAndRef\n";
}

namespace {

/// A form that a test waits for and that does not come is what the test is about, and the next test
/// must not meet its user.
class NobodyStillWaits : public testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo& /*test*/) override {
    const auto timers = qApp->findChildren<QTimer*>(parlate::testing_support::kWaitsForAForm);
    for (QTimer* timer : timers) {
      if (timer->isActive()) {
        ADD_FAILURE() << timer->property("form").toString().toStdString() << " never came";
      }
      delete timer;
    }
  }
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // Listing the tests must not need a screen.
  if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  testing::UnitTest::GetInstance()->listeners().Append(
      std::make_unique<NobodyStillWaits>().release());
  return RUN_ALL_TESTS();
}

#include <gtest/gtest.h>

#include <QApplication>

// What the sound server's library keeps to the end is not ours, nor the guard that the toolkit
// drops when an error leaves a slot, which ends the program outside of the tests.
extern "C" const char* __lsan_default_suppressions();   // NOLINT: the sanitizer gives the name
extern "C" const char* __lsan_default_suppressions() {  // NOLINT
  return "leak:libpulse\nleak:QtSharedPointer::ExternalRefCountData::getAndRef\n";
}

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // Listing the tests must not need a screen.
  if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}

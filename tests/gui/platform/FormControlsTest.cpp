#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "platform/FormControls.h"

namespace parlate {
namespace {

class EnableButtonTest : public testing::Test {
 protected:
  EnableButtonTest() {
    auto* layout = new QVBoxLayout(&window_);
    for (QWidget* widget : std::initializer_list<QWidget*>{&list_, &button_, &other_}) {
      layout->addWidget(widget);
    }
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  QWidget window_;
  QLineEdit list_{&window_};
  QPushButton button_{&window_};
  QPushButton other_{&window_};
};

TEST_F(EnableButtonTest, AButtonThatGoesGreyHandsItsFocusOn) {
  button_.setFocus();
  EnableButton(button_, false, list_);
  EXPECT_FALSE(button_.isEnabled());
  EXPECT_TRUE(list_.hasFocus());
}

TEST_F(EnableButtonTest, AButtonThatStaysLiveKeepsItsFocus) {
  button_.setFocus();
  EnableButton(button_, true, list_);
  EXPECT_TRUE(button_.isEnabled());
  EXPECT_TRUE(button_.hasFocus());
}

TEST_F(EnableButtonTest, TheFocusOfAnotherControlStaysWhereItIs) {
  other_.setFocus();
  EnableButton(button_, false, list_);
  EXPECT_TRUE(other_.hasFocus());
  EnableButton(button_, true, list_);
  EXPECT_TRUE(button_.isEnabled());
  EXPECT_TRUE(other_.hasFocus());
}

}  // namespace
}  // namespace parlate

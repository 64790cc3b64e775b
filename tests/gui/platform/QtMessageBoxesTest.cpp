#include <QAbstractButton>
#include <QMessageBox>

#include "platform/Modal.h"
#include "platform/QtMessageBoxes.h"

namespace parlate {
namespace {

Answer ShowAnd(const MessageBox& box, const std::function<void(QMessageBox&)>& act) {
  const WhenModal modal([&act](QWidget& window) {
    auto* shown = qobject_cast<QMessageBox*>(&window);
    ASSERT_NE(shown, nullptr);
    act(*shown);
  });
  return QtMessageBoxes().Show(box);
}

Answer AnswerToKey(MessageBox::Buttons buttons, Qt::Key key,
                   Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return ShowAnd({"Title", "Text", MessageBox::Icon::Question, buttons},
                 [=](QMessageBox& box) { QTest::keyClick(&box, key, modifiers); });
}

TEST(QtMessageBoxes, ShowsTitleTextAndIcon) {
  ShowAnd({"No Errors", "All <b>Label</b> References\nare Valid\x85", MessageBox::Icon::Critical,
           MessageBox::Buttons::Ok},
          [](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), "No Errors");
            EXPECT_EQ(box.text(), QStringLiteral(u"All <b>Label</b> References\nare Valid\u2026"));
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.icon(), QMessageBox::Critical);
            EXPECT_EQ(box.accessibleName(), "No Errors");
            EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
            box.close();
          });
}

TEST(QtMessageBoxes, ABoxWithoutATitleBearsTheNameOfTheProgram) {
  ShowAnd({"", "Text"}, [](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Parlate");
    EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
    box.close();
  });
}

TEST(QtMessageBoxes, StandsOverTheActiveWindow) {
  QWidget window;
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  ShowAnd({"Title", "Text"}, [&window](QMessageBox& box) {
    EXPECT_EQ(box.parentWidget(), &window);
    box.close();
  });
}

TEST(QtMessageBoxes, ReturnPressesTheFirstButton) {
  EXPECT_EQ(AnswerToKey(MessageBox::Buttons::Ok, Qt::Key_Return), Answer::Ok);
  EXPECT_EQ(AnswerToKey(MessageBox::Buttons::YesNo, Qt::Key_Return), Answer::Yes);
  EXPECT_EQ(AnswerToKey(MessageBox::Buttons::YesNoCancel, Qt::Key_Return), Answer::Yes);
}

TEST(QtMessageBoxes, EscapeIsTheMostCautiousAnswer) {
  EXPECT_EQ(AnswerToKey(MessageBox::Buttons::Ok, Qt::Key_Escape), Answer::Ok);
  EXPECT_EQ(AnswerToKey(MessageBox::Buttons::YesNo, Qt::Key_Escape), Answer::No);
  EXPECT_EQ(AnswerToKey(MessageBox::Buttons::YesNoCancel, Qt::Key_Escape), Answer::Cancel);
}

TEST(QtMessageBoxes, AccessKeysAnswer) {
  EXPECT_EQ(AnswerToKey(MessageBox::Buttons::YesNo, Qt::Key_Y, Qt::AltModifier), Answer::Yes);
  EXPECT_EQ(AnswerToKey(MessageBox::Buttons::YesNoCancel, Qt::Key_N, Qt::AltModifier), Answer::No);
}

TEST(QtMessageBoxes, AClickOnAButtonAnswers) {
  const auto click = [](QMessageBox::StandardButton button) {
    return ShowAnd(
        {"Title", "Text", MessageBox::Icon::None, MessageBox::Buttons::YesNoCancel},
        [button](QMessageBox& box) { QTest::mouseClick(box.button(button), Qt::LeftButton); });
  };
  EXPECT_EQ(click(QMessageBox::Yes), Answer::Yes);
  EXPECT_EQ(click(QMessageBox::No), Answer::No);
  EXPECT_EQ(click(QMessageBox::Cancel), Answer::Cancel);
}

}  // namespace
}  // namespace parlate

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>

#include "platform/AltLetters.h"

namespace parlate {
namespace {

bool Drops(const QObject& receiver, Qt::KeyboardModifiers modifiers, const QString& text,
           QEvent::Type type = QEvent::KeyPress) {
  return IsLeftOverAccessKey(receiver, QKeyEvent(type, Qt::Key_U, modifiers, text));
}

TEST(AltLetters, AnAccessKeyOfAGreyButtonTypesNothingIntoAField) {
  const QLineEdit field;
  EXPECT_TRUE(Drops(field, Qt::AltModifier, "u"));
  EXPECT_TRUE(Drops(field, Qt::AltModifier | Qt::ShiftModifier, "U"));
}

TEST(AltLetters, EverythingElseGoesItsWay) {
  const QLineEdit field;
  EXPECT_FALSE(Drops(field, Qt::NoModifier, "u"));
  EXPECT_FALSE(Drops(field, Qt::ShiftModifier, "U"));
  EXPECT_FALSE(Drops(field, Qt::ControlModifier | Qt::AltModifier, "\u00e9"))
      << "the third level of a keyboard";
  EXPECT_FALSE(Drops(field, Qt::GroupSwitchModifier, "\u00e9"));
  EXPECT_FALSE(Drops(field, Qt::AltModifier, ""));
  EXPECT_FALSE(Drops(field, Qt::AltModifier, "u", QEvent::KeyRelease));
  EXPECT_FALSE(Drops(QListWidget(), Qt::AltModifier, "u"));
}

}  // namespace
}  // namespace parlate

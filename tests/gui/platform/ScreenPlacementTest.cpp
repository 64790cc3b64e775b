#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>

#include "platform/ScreenPlacement.h"

namespace parlate {
namespace {

QRect Room() { return QGuiApplication::primaryScreen()->availableGeometry(); }

TEST(OnScreen, BringsAWindowOfAScreenThatIsGoneIntoSight) {
  const QRect far(QPoint(90000, -90000), QSize(200, 100));
  EXPECT_TRUE(Room().contains(OnScreen(far)));
  EXPECT_EQ(OnScreen(far).size(), far.size());
}

TEST(OnScreen, LeavesAWindowThatIsWholeOnTheScreen) {
  const QRect window(Room().topLeft() + QPoint(10, 20), QSize(200, 100));
  EXPECT_EQ(OnScreen(window), window);
}

TEST(ClearOf, LeavesAWindowThatCoversNothing) {
  const QRect window(Room().topLeft(), QSize(100, 50));
  const QRect place(Room().topLeft() + QPoint(0, 50), QSize(300, 20));
  EXPECT_EQ(ClearOf(window, place), window);
}

TEST(ClearOf, PutsAWindowUnderThePlaceThatItCovers) {
  const QRect place(Room().topLeft() + QPoint(0, 40), QSize(300, 20));
  const QRect window(Room().topLeft() + QPoint(30, 10), QSize(100, 50));
  EXPECT_EQ(ClearOf(window, place),
            QRect(QPoint(window.left(), place.bottom() + 1), QSize(100, 50)));
}

TEST(ClearOf, PutsAWindowOverAPlaceThatHasNoRoomUnderIt) {
  const QRect place(Room().bottomLeft() - QPoint(0, 40), QSize(300, 20));
  const QRect window(Room().bottomLeft() - QPoint(0, 49), QSize(100, 50));
  const QRect clear = ClearOf(window, place);
  EXPECT_EQ(clear, QRect(QPoint(window.left(), place.top() - 50), QSize(100, 50)));
}

TEST(ClearOf, LeavesAWindowThatIsTooHighToBeElsewhere) {
  const QRect place(Room().center(), QSize(300, 20));
  EXPECT_EQ(ClearOf(Room(), place), Room());
}

}  // namespace
}  // namespace parlate

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <string>
#include <vector>

#include "MultiColumnListFixture.h"
#include "widgets/MultiColumnList.h"

namespace parlate {
namespace {

constexpr std::int32_t kLightRed = 0xC0C0FF;
const QRgb kLightRedOnScreen = qRgb(0xFF, 0xC0, 0xC0);

class MultiColumnListPaintingTest : public MultiColumnListTest {
 protected:
  void SetUp() override {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::blue);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    list_.setPalette(palette);
    list_.clearFocus();  // The frame of the focus would stand among the pixels that are counted.
  }

  void GoDark() {
    QPalette palette = list_.palette();
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::Text, Qt::white);
    list_.setPalette(palette);
  }

  QImage Picture() {
    Settle();
    // One pixel of the picture a pixel of the layout, whatever the scale of the screen.
    QImage picture(Area()->size(), QImage::Format_RGB32);
    Area()->render(&picture);
    return picture;
  }

  // A place of a row that no text and no line reaches.
  QRgb ShadeOf(int row) {
    const QRect rect = list_.RowRect(row);
    return Picture().pixel(rect.right() - 4, rect.top() + 2);
  }

  // Letters are smoothed, so few of their pixels have the full colour of the text.
  int CountDark(const QRect& rect) {
    return CountIf(rect, [](QRgb pixel) { return qGray(pixel) < 80; });
  }
  int CountLight(const QRect& rect) {
    return CountIf(rect, [](QRgb pixel) { return qGray(pixel) > 230; });
  }
  int CountPixels(const QRect& rect, QRgb color) {
    return CountIf(rect, [color](QRgb pixel) { return pixel == color; });
  }

 private:
  template <class Predicate>
  int CountIf(const QRect& rect, Predicate counts) {
    const QImage picture = Picture();
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
      for (int x = rect.left(); x <= rect.right(); ++x) count += counts(picture.pixel(x, y));
    }
    return count;
  }
};

TEST_F(MultiColumnListPaintingTest, TheLowByteOfAColorIsItsRed) {
  rows_.AddItem({"plain", "", -1, -1});
  rows_.AddItem({"red", "", -1, kLightRed});
  rows_.AddItem({"blue", "", -1, 0xFF0000});
  EXPECT_EQ(ShadeOf(0), qRgb(255, 255, 255));
  EXPECT_EQ(ShadeOf(1), kLightRedOnScreen);
  EXPECT_EQ(ShadeOf(2), qRgb(0, 0, 255));
}

TEST_F(MultiColumnListPaintingTest, AColorFillsTheSecondTextAsWell) {
  rows_.AddItem({"red", "under", -1, kLightRed});
  const QRect rect = list_.RowRect(0);
  EXPECT_EQ(Picture().pixel(rect.right() - 4, rect.bottom() - 3), kLightRedOnScreen);
  EXPECT_EQ(Picture().pixel(rect.left(), rect.bottom() - 3), kLightRedOnScreen);
}

TEST_F(MultiColumnListPaintingTest, TextIsLegibleOnALightRowInADarkPalette) {
  GoDark();
  rows_.AddItem({"MMMM", "", -1, kLightRed});
  rows_.AddItem({"MMMM", "", -1, -1});
  EXPECT_GT(CountDark(list_.RowRect(0)), 20);
  EXPECT_EQ(CountLight(list_.RowRect(0)), 0);
  EXPECT_GT(CountLight(list_.RowRect(1)), 20);
}

TEST_F(MultiColumnListPaintingTest, TextIsLegibleOnADarkRowInALightPalette) {
  rows_.AddItem({"MMMM", "", -1, 0x400000});
  EXPECT_GT(CountLight(list_.RowRect(0)), 20);
}

TEST_F(MultiColumnListPaintingTest, TheSelectedRowIsHighlightedAndKeepsItsColorAtTheEdge) {
  rows_.AddItem({"red", "", -1, kLightRed});
  rows_.AddItem({"plain", "", -1, -1});
  rows_.SetListIndex(0);
  EXPECT_EQ(ShadeOf(0), qRgb(0, 0, 255));
  const int middle = list_.RowRect(0).center().y();
  EXPECT_EQ(Picture().pixel(2, middle), kLightRedOnScreen);
  rows_.SetListIndex(1);
  EXPECT_EQ(ShadeOf(0), kLightRedOnScreen);
  EXPECT_EQ(ShadeOf(1), qRgb(0, 0, 255));
  EXPECT_EQ(Picture().pixel(2, list_.RowRect(1).center().y()), qRgb(0, 0, 255));
}

TEST_F(MultiColumnListPaintingTest, ALightLineStandsBetweenTheRows) {
  rows_.AddItem({"", "", -1, -1});
  rows_.AddItem({"", "", -1, -1});
  const QRect rect = list_.RowRect(0);
  const int line = qGray(Picture().pixel(rect.center().x(), rect.bottom()));
  EXPECT_LT(line, 250);
  EXPECT_GT(line, 180);
}

TEST_F(MultiColumnListPaintingTest, ATextEndsAtTheRightEdgeOfItsColumn) {
  list_.SetColumnWidth(0, 60);
  rows_.AddItem({"MMMMMMMMMMMMMMMMMMMMMMMMMMMM", "", -1, -1});
  const QRect cell = list_.CellRect(list_.RowRect(0), 0);
  const QRect behind(cell.right() + 1, cell.top(), 200, cell.height() - 1);
  EXPECT_EQ(CountPixels(behind, qRgb(255, 255, 255)), 200 * (cell.height() - 1));
  EXPECT_GT(CountDark(cell), 20);
}

TEST_F(MultiColumnListPaintingTest, ACutTextEndsInAnEllipsis) {
  // The last glyph that fits is the ellipsis: its dots stand on the base line, with nothing above.
  list_.SetColumnWidth(0, 60);
  rows_.AddItem({"MMMMMMMMMMMM", "", -1, -1});
  const QImage cut = Picture();
  rows_.SetText(0, std::string("MMMMMMMMMMMM").substr(0, 1));
  const QRect cell = list_.CellRect(list_.RowRect(0), 0);
  ASSERT_NE(Picture(), cut);
  const QString shown = list_.fontMetrics().elidedText("MMMMMMMMMMMM", Qt::ElideRight, 46);
  ASSERT_TRUE(shown.endsWith(QChar(0x2026)));
  rows_.SetText(0, std::string(static_cast<std::size_t>(shown.size() - 1), 'M') + "\x85");
  EXPECT_EQ(Picture().copy(cell), cut.copy(cell));
}

TEST_F(MultiColumnListPaintingTest, PiecesBehindTheLastColumnAreNotShown) {
  rows_.AddItem({"a;b;c", "", -1, -1});
  const QImage three = Picture();
  rows_.SetText(0, "a;b;c;dddd;eeee");
  EXPECT_EQ(Picture(), three);
}

TEST_F(MultiColumnListPaintingTest, LineBreaksInAColumnAreShownAsBlanks) {
  rows_.AddItem({"one two", "", -1, -1});
  const QImage blank = Picture();
  rows_.SetText(0, "one\rtwo");
  EXPECT_EQ(Picture(), blank);
  EXPECT_EQ(list_.RowRect(0).height(), list_.SingleLineHeight());
}

TEST_F(MultiColumnListPaintingTest, EveryLineOfASecondTextIsDrawnInItsPlace) {
  rows_.AddItem({"", "MMM\r\rMMM", -1, -1});
  const int spacing = list_.fontMetrics().lineSpacing();
  const auto lineAt = [&](int line) {
    return QRect(0, list_.SingleLineHeight() + line * spacing, Area()->width(), spacing);
  };
  EXPECT_GT(CountDark(lineAt(0)), 20);
  EXPECT_EQ(CountPixels(lineAt(1), qRgb(255, 255, 255)), Area()->width() * spacing);
  const QImage picture = Picture();
  EXPECT_EQ(picture.copy(lineAt(2)), picture.copy(lineAt(0)));
}

TEST_F(MultiColumnListPaintingTest, ScrollingByStepsShowsTheSameAsScrollingAtOnce) {
  for (int i = 0; i < 60; ++i) {
    rows_.AddItem(
        {"row " + std::to_string(i), i % 3 == 0 ? "under" : "", -1, i % 4 == 0 ? kLightRed : -1});
  }
  rows_.SetListIndex(7);
  Settle();
  const QImage before = list_.screen()->grabWindow(list_.winId()).toImage();
  for (int value = 0; value <= 120; value += 7) {
    list_.verticalScrollBar()->setValue(value);
    Settle();
  }
  const QImage shifted = list_.screen()->grabWindow(list_.winId()).toImage();
  list_.viewport()->update();
  Settle();
  ASSERT_NE(shifted, before);
  const QImage painted = list_.screen()->grabWindow(list_.winId()).toImage();
  EXPECT_EQ(shifted, painted);
}

class PaintCounter : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    count_ += event->type() == QEvent::Paint;
    return false;
  }
  [[nodiscard]] int Count() const { return count_; }

 private:
  int count_ = 0;
};

TEST_F(MultiColumnListPaintingTest, RecoloringManyRowsIsOneRepaint) {
  AddRows(500);
  PaintCounter counter;
  Area()->installEventFilter(&counter);
  for (std::size_t row = 0; row < 500; ++row) rows_.SetColor(row, kLightRed);
  EXPECT_EQ(counter.Count(), 0);
  ASSERT_TRUE(QTest::qWaitFor([&counter] { return counter.Count() > 0; }));
  Settle();
  EXPECT_EQ(counter.Count(), 1);
  EXPECT_EQ(ShadeOf(0), kLightRedOnScreen);
}

TEST_F(MultiColumnListPaintingTest, TheFocusIsShownAroundTheListUntilARowHasIt) {
  AddRows(3);
  QLineEdit other;
  other.show();
  other.activateWindow();
  other.setFocus();
  ASSERT_TRUE(QTest::qWaitFor([&] { return other.hasFocus(); }));
  const QRect bottomEdge(0, Area()->height() - 1, Area()->width(), 1);
  EXPECT_EQ(CountPixels(bottomEdge, qRgb(0, 0, 255)), 0);
  TakeFocus();
  EXPECT_GT(CountPixels(bottomEdge, qRgb(0, 0, 255)), Area()->width() / 4);
  rows_.SetListIndex(1);
  EXPECT_EQ(CountPixels(bottomEdge, qRgb(0, 0, 255)), 0);
  const QRect rowEdge(0, list_.RowRect(1).top(), Area()->width(), 1);
  EXPECT_GT(CountPixels(rowEdge, qRgb(255, 255, 255)), Area()->width() / 4);
}

TEST_F(MultiColumnListPaintingTest, TheHeadGoesOnToTheEdgeWhereTheColumnsEndShort) {
  Settle();
  auto& heads = *list_.findChild<QHeaderView*>();
  const int end = 3 * kColumnWidth;
  ASSERT_GT(heads.width(), end + 10);
  QImage picture(heads.size(), QImage::Format_RGB32);
  heads.render(&picture);
  for (int y = 0; y < heads.height(); ++y) {
    EXPECT_EQ(picture.pixel(end + 5, y), picture.pixel(end - 10, y)) << y;
  }
}

}  // namespace
}  // namespace parlate

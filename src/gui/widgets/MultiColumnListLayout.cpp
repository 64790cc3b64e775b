#include <QFontMetricsF>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QtMath>
#include <algorithm>
#include <limits>
#include <utility>

#include "widgets/MultiColumnList.h"

namespace parlate {

namespace {

// Room under a wrapped text, so that it does not run into the next row.
constexpr int kSubTextPadding = 5;
// A pixel above the text, one below it, and one for the line between the rows.
constexpr int kRowPadding = 3;
// A bar that comes takes width, which may cost lines: then the rows are measured once more.
constexpr int kMostPasses = 3;

int ToPixels(std::int64_t length) {
  return static_cast<int>(std::min<std::int64_t>(length, std::numeric_limits<int>::max()));
}

}  // namespace

int MultiColumnList::SingleLineHeight() const { return fontMetrics().lineSpacing() + kRowPadding; }

int MultiColumnList::SubTextWidth() const {
  return std::max(0, viewport()->width() - SubTextIndent() - TextMargin());
}

bool MultiColumnList::HeightsAreRight() const {
  return !heightsDirty_ && measuredWidth_ == SubTextWidth();
}

int MultiColumnList::MeasureRow(const ListRow& row) {
  int height = SingleLineHeight();
  if (!row.subText.empty()) {
    const auto lines = static_cast<int>(breaker_.CountLines(row.subText, measuredWidth_));
    height += lines * fontMetrics().lineSpacing() + kSubTextPadding;
  }
  return height;
}

void MultiColumnList::MeasureAllRows() {
  // A long list is sure to get its scroll bar. Shown first, the bar does not cost a second pass.
  if (verticalScrollBar()->maximum() == 0) {
    SetVerticalRange(std::int64_t{SingleLineHeight()} * Count());
  }
  measuredWidth_ = SubTextWidth();
  std::vector<int> heights(rows_.ListCount());
  for (std::size_t row = 0; row < heights.size(); ++row) heights[row] = MeasureRow(rows_.Row(row));
  tops_.Assign(std::move(heights));
  heightsDirty_ = false;
}

void MultiColumnList::ScheduleLayout() {
  layoutDirty_ = true;
  ScheduleRepaint();
  if (isVisible() && !layoutTimer_.isActive()) layoutTimer_.start();
}

void MultiColumnList::UpdateLayout() {
  if (layingOut_ || (!layoutDirty_ && HeightsAreRight())) return;
  const QScopedValueRollback<bool> guard(layingOut_, true);
  layoutDirty_ = false;

  // The row that the user reads stays at the top when a new width moves all others.
  const std::int64_t scrolled = verticalScrollBar()->value();
  const bool keepsTopRow = !heightsDirty_ && !HeightsAreRight() && scrolled < tops_.Total();
  const std::size_t topRow = keepsTopRow ? tops_.RowAt(scrolled) : 0;
  const std::int64_t intoTopRow = keepsTopRow ? scrolled - tops_.Top(topRow) : 0;

  for (int pass = 0; pass < kMostPasses; ++pass) {
    if (!HeightsAreRight()) MeasureAllRows();
    UpdateScrollBars();
    if (HeightsAreRight()) break;
  }
  if (keepsTopRow) {
    const std::int64_t into = std::min<std::int64_t>(intoTopRow, tops_.Height(topRow) - 1);
    verticalScrollBar()->setValue(ToPixels(tops_.Top(topRow) + into));
  }
  if (scrollToSelection_ && isVisible()) {
    scrollToSelection_ = false;
    if (rows_.ListIndex() >= 0) ScrollTo(rows_.ListIndex());
  }
}

void MultiColumnList::SetVerticalRange(std::int64_t height) {
  const int page = viewport()->height();
  verticalScrollBar()->setPageStep(page);
  verticalScrollBar()->setRange(0, ToPixels(std::max<std::int64_t>(0, height - page)));
}

void MultiColumnList::UpdateScrollBars() {
  verticalScrollBar()->setSingleStep(SingleLineHeight());
  const int page = viewport()->width();
  horizontalScrollBar()->setSingleStep(fontMetrics().averageCharWidth());
  horizontalScrollBar()->setPageStep(page);
  horizontalScrollBar()->setRange(0, std::max(0, header_.length() - page));
  SetVerticalRange(tops_.Total());
}

void MultiColumnList::EnsureVisible(int row) {
  UpdateLayout();
  ScrollTo(row);
}

void MultiColumnList::ScrollTo(int row) {
  const auto index = static_cast<std::size_t>(row);
  const std::int64_t top = tops_.Top(index);
  const std::int64_t bottom = top + tops_.Height(index);
  const std::int64_t page = viewport()->height();
  const std::int64_t scrolled = verticalScrollBar()->value();
  if (top < scrolled || bottom - top > page) {
    verticalScrollBar()->setValue(ToPixels(top));
  } else if (bottom > scrolled + page) {
    verticalScrollBar()->setValue(ToPixels(bottom - page));
  }
}

QRect MultiColumnList::RowRect(int row) {
  UpdateLayout();
  const auto index = static_cast<std::size_t>(row);
  if (row < 0 || index >= tops_.Count()) return {};
  const int top = ToPixels(tops_.Top(index)) - verticalScrollBar()->value();
  return {0, top, viewport()->width(), tops_.Height(index)};
}

QRect MultiColumnList::CellRect(const QRect& rowRect, int column) const {
  return {header_.sectionViewportPosition(column), rowRect.top(), header_.sectionSize(column),
          std::min(rowRect.height(), SingleLineHeight())};
}

QRect MultiColumnList::HeadRect(int column) const {
  if (header_.isHidden()) return {};
  return {header_.sectionViewportPosition(column), -header_.height(), header_.sectionSize(column),
          header_.height()};
}

int MultiColumnList::RowAt(QPoint position) {
  UpdateLayout();
  if (!viewport()->rect().contains(position)) return -1;
  const std::size_t row = tops_.RowAt(std::int64_t{verticalScrollBar()->value()} + position.y());
  return row < tops_.Count() ? static_cast<int>(row) : -1;
}

void MultiColumnList::FitColumn(int column) {
  const int most = std::max(viewport()->width() / ColumnCount(), ColumnWidth(column));
  const QFontMetricsF metrics(font(), viewport());
  const int margins = 2 * CellMargin(column);
  int width = header_.isHidden() ? 0 : header_.sectionSizeHint(column);
  for (int row = 0; row < Count() && width < most; ++row) {
    // No character is narrower than a pixel: what is cut off here is beyond the limit anyway.
    const QString text = CellText(row, column).left(most);
    width = std::max(width, qCeil(metrics.horizontalAdvance(text)) + margins);
  }
  SetColumnWidth(column, std::min(width, most));
}

void MultiColumnList::PlaceHeader() {
  const int height = header_.isHidden() ? 0 : header_.sizeHint().height();
  setViewportMargins(0, height, 0, 0);
  const QRect area = viewport()->geometry();
  header_.setGeometry(area.left(), area.top() - height, area.width(), height);
}

void MultiColumnList::ForgetMetrics() {
  breaker_.ForgetWidths();
  measuredWidth_ = -1;
  PlaceHeader();
  ScheduleLayout();
}

void MultiColumnList::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  PlaceHeader();
  ScheduleLayout();
}

void MultiColumnList::showEvent(QShowEvent* event) {
  QAbstractScrollArea::showEvent(event);
  PlaceHeader();
  ScheduleLayout();
}

void MultiColumnList::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  const bool newMetrics =
      event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
  if (newMetrics) {
    ForgetMetrics();
  } else {
    ScheduleRepaint();
  }
}

void MultiColumnList::scrollContentsBy(int dx, int dy) {
  if (dx != 0) header_.setOffset(horizontalScrollBar()->value());
  // The second texts stay where they are when the columns move, and the frame of an empty
  // selection when the rows move: pixels may be shifted only when all of them go together.
  const bool shifts = dx == 0 && !layingOut_ && !layoutDirty_ && rows_.ListIndex() >= 0;
  if (shifts) {
    viewport()->scroll(0, dy);
  } else {
    ScheduleRepaint();
  }
}

}  // namespace parlate

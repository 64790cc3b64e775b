#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "widgets/CodePageText.h"
#include "widgets/MultiColumnList.h"

namespace parlate {

namespace {

constexpr int kTextPadding = 3;
constexpr int kTopPadding = 1;
constexpr int kNarrowestStrip = 4;
constexpr double kSeparatorStrength = 0.15;
constexpr double kDisabledStrength = 0.5;
constexpr int kMiddleGray = 127;

QColor ColorOfBgr(std::int32_t color) {
  return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

QColor Blend(const QColor& over, const QColor& under, double strength) {
  const auto mix = [strength](int top, int bottom) {
    return static_cast<int>(top * strength + bottom * (1 - strength));
  };
  return {mix(over.red(), under.red()), mix(over.green(), under.green()),
          mix(over.blue(), under.blue())};
}

// A row colour keeps its shade in a dark palette, where the palette's text would vanish on it.
QColor TextOn(const QColor& background) {
  return qGray(background.rgb()) > kMiddleGray ? QColor(Qt::black) : QColor(Qt::white);
}

}  // namespace

int MultiColumnList::StripWidth() const {
  return std::max(kNarrowestStrip, fontMetrics().averageCharWidth());
}

int MultiColumnList::TextMargin() const { return StripWidth() + kTextPadding; }

int MultiColumnList::CellMargin(int column) const {
  return column == 0 ? TextMargin() : kTextPadding;
}

int MultiColumnList::SubTextIndent() const {
  return TextMargin() + 2 * fontMetrics().averageCharWidth();
}

void MultiColumnList::ScheduleRepaint() {
  // Recolouring thousands of rows asks thousands of times for the one repaint.
  if (repaintScheduled_) return;
  repaintScheduled_ = true;
  viewport()->update();
}

QPalette::ColorGroup MultiColumnList::ColorGroup() const {
  if (!isEnabled()) return QPalette::Disabled;
  return isActiveWindow() && hasFocus() ? QPalette::Active : QPalette::Inactive;
}

MultiColumnList::RowColors MultiColumnList::ColorsOf(const ListRow& row, bool selected) const {
  const QPalette::ColorGroup group = ColorGroup();
  if (selected) {
    return {palette().color(group, QPalette::Highlight),
            palette().color(group, QPalette::HighlightedText)};
  }
  if (row.color < 0) {
    return {palette().color(group, QPalette::Base), palette().color(group, QPalette::Text)};
  }
  const QColor background = ColorOfBgr(row.color);
  const QColor text = TextOn(background);
  return {background, isEnabled() ? text : Blend(text, background, kDisabledStrength)};
}

void MultiColumnList::paintEvent(QPaintEvent* event) {
  UpdateLayout();
  repaintScheduled_ = false;
  QPainter painter(viewport());
  const QRect dirty = event->rect();
  const std::int64_t scrolled = verticalScrollBar()->value();
  for (std::size_t row = tops_.RowAt(scrolled + dirty.top());
       row < tops_.Count() && tops_.Top(row) <= scrolled + dirty.bottom(); ++row) {
    PaintRow(painter, static_cast<int>(row), dirty);
  }
  if (hasFocus() && rows_.ListIndex() < 0) {
    PaintFocusFrame(painter, viewport()->rect(), palette().color(QPalette::Highlight));
  }
}

void MultiColumnList::PaintRow(QPainter& painter, int index, const QRect& dirty) {
  const ListRow& row = rows_.Row(static_cast<std::size_t>(index));
  const QRect rect = RowRect(index);
  const bool selected = index == rows_.ListIndex();
  const RowColors colors = ColorsOf(row, selected);
  painter.fillRect(rect, colors.background);
  // The highlight covers the colour, which is told by a strip at the edge instead.
  if (selected && row.color >= 0) {
    const QRect strip(rect.left(), rect.top(), StripWidth(), rect.height());
    painter.fillRect(strip, ColorOfBgr(row.color));
  }
  painter.setPen(colors.text);
  PaintColumns(painter, index, rect);
  PaintSubText(painter, row, rect, dirty);
  painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1,
                   Blend(colors.text, colors.background, kSeparatorStrength));
  if (selected && hasFocus()) PaintFocusFrame(painter, rect.adjusted(0, 0, 0, -1), colors.text);
}

void MultiColumnList::PaintColumns(QPainter& painter, int index, const QRect& rect) {
  const QFontMetrics metrics = fontMetrics();
  for (int column = 0; column < ColumnCount(); ++column) {
    const QRect cell =
        CellRect(rect, column).adjusted(CellMargin(column), kTopPadding, -kTextPadding, 0);
    if (cell.width() <= 0 || cell.right() < 0 || cell.left() >= viewport()->width()) continue;
    // No character is narrower than a pixel: what is cut off here could not show, however long.
    const QString text = CellText(index, column).left(cell.width() + 1);
    painter.drawText(cell.left(), cell.top() + metrics.ascent(),
                     metrics.elidedText(text, Qt::ElideRight, cell.width()));
  }
}

// The lines are broken as they were counted, so the text ends where the row does.
void MultiColumnList::PaintSubText(QPainter& painter, const ListRow& row, const QRect& rect,
                                   const QRect& dirty) {
  if (row.subText.empty()) return;
  const QFontMetrics metrics = fontMetrics();
  const int left = rect.left() + SubTextIndent();
  int top = rect.top() + SingleLineHeight();
  for (const TextRange& line : breaker_.Lines(row.subText, measuredWidth_)) {
    if (top > dirty.bottom()) break;
    const int below = top + metrics.lineSpacing();
    if (below > dirty.top()) {
      const std::string_view text(row.subText);
      painter.drawText(left, top + metrics.ascent(),
                       ToSingleLine(text.substr(line.begin, line.end - line.begin)));
    }
    top = below;
  }
}

void MultiColumnList::PaintFocusFrame(QPainter& painter, const QRect& rect, const QColor& color) {
  painter.setPen(QPen(color, 1, Qt::DotLine));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

}  // namespace parlate

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <optional>
#include <utility>

#include "widgets/MultiColumnList.h"

namespace parlate {

namespace {

constexpr int kSidewaysSteps = 8;  // presses of a key that move a list by its width

}  // namespace

void MultiColumnList::SelectByMouse(int row) {
  selectingByMouse_ = true;
  rows_.SetListIndex(row);
  selectingByMouse_ = false;
}

void MultiColumnList::mousePressEvent(QMouseEvent* event) {
  const bool selects = event->button() == Qt::LeftButton || event->button() == Qt::RightButton;
  if (!selects) {
    event->ignore();
    return;
  }
  const int row = RowAt(event->position().toPoint());
  pressedRow_ = event->button() == Qt::LeftButton ? row : -1;
  if (row >= 0) SelectByMouse(row);
}

void MultiColumnList::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) {
    emit contextMenuRequestedAt(event->globalPosition().toPoint(), true);
    return;
  }
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  const int pressed = std::exchange(pressedRow_, -1);
  if (pressed >= 0 && pressed == RowAt(event->position().toPoint())) emit clicked();
}

void MultiColumnList::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    mousePressEvent(event);
    return;
  }
  const int row = RowAt(event->position().toPoint());
  pressedRow_ = -1;
  if (row < 0) return;
  SelectByMouse(row);
  emit doubleClicked();
}

void MultiColumnList::Activate(int row) {
  rows_.SetListIndex(row);
  emit doubleClicked();
}

void MultiColumnList::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  // Platforms ask at the press or at the release of the right button; the release is served here.
  if (event->reason() != QContextMenuEvent::Keyboard) return;
  menuKeyServed_ = true;
  RequestContextMenuByKey();
}

void MultiColumnList::RequestContextMenuByKey() {
  QPoint position(TextMargin(), 0);
  if (rows_.ListIndex() >= 0) {
    EnsureVisible(rows_.ListIndex());
    position.setY(RowRect(rows_.ListIndex()).top() + SingleLineHeight());
  }
  emit contextMenuRequestedAt(viewport()->mapToGlobal(position), false);
}

void MultiColumnList::keyPressEvent(QKeyEvent* event) {
  const bool servedBefore = std::exchange(menuKeyServed_, false);
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const bool isMenuKey = event->key() == Qt::Key_Menu;
  if (isMenuKey || (event->key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier)) {
    // Some platforms make a menu request of the menu key and send the key as well.
    if (!isMenuKey || !servedBefore) RequestContextMenuByKey();
    return;
  }
  if (ServeColumnKey(event->key(), modifiers)) return;
  // With a modifier the same keys are shortcuts of the form.
  const auto row = modifiers == Qt::NoModifier ? RowForKey(event->key()) : std::nullopt;
  if (!row) {
    event->ignore();
    emit keyPressedInList(event);
  } else if (*row >= 0) {
    SelectByKey(*row);
  }
}

bool MultiColumnList::ServeColumnKey(int key, Qt::KeyboardModifiers modifiers) {
  // On some keyboards the plus is on a key with Shift, on others not.
  if (key == Qt::Key_Plus && (modifiers & ~Qt::ShiftModifier) == Qt::ControlModifier) {
    if (header_.isHidden()) return false;
    for (int column = 0; column < ColumnCount(); ++column) FitColumn(column);
    return true;
  }
  const bool sideways = key == Qt::Key_Left || key == Qt::Key_Right;
  if (!sideways || modifiers != Qt::NoModifier || horizontalScrollBar()->maximum() == 0) {
    return false;
  }
  const int step = horizontalScrollBar()->pageStep() / kSidewaysSteps;
  const int scrolled = horizontalScrollBar()->value();
  horizontalScrollBar()->setValue(key == Qt::Key_Left ? scrolled - step : scrolled + step);
  return true;
}

void MultiColumnList::keyReleaseEvent(QKeyEvent* event) {
  menuKeyServed_ = false;
  QAbstractScrollArea::keyReleaseEvent(event);
}

void MultiColumnList::SelectByKey(int row) {
  rows_.SetListIndex(row);
  // The row may be the selected one, scrolled out of sight.
  if (rows_.ListIndex() >= 0) EnsureVisible(rows_.ListIndex());
}

std::optional<int> MultiColumnList::RowForKey(int key) {
  UpdateLayout();
  const int last = Count() - 1;
  const int selected = rows_.ListIndex();
  const bool none = selected < 0;
  switch (key) {
    case Qt::Key_Up:
      return none ? last : std::max(selected - 1, 0);
    case Qt::Key_Down:
      return none ? std::min(0, last) : std::min(selected + 1, last);
    case Qt::Key_Home:
      return std::min(0, last);
    case Qt::Key_End:
      return last;
    case Qt::Key_PageUp:
      return none ? last : RowOnePageUp(selected);
    case Qt::Key_PageDown:
      return none ? std::min(0, last) : RowOnePageDown(selected);
    default:
      return std::nullopt;
  }
}

// A page takes the row at one edge of the list to the other edge, and moves by one row at least.
int MultiColumnList::RowOnePageDown(int from) const {
  const std::int64_t end = tops_.Top(static_cast<std::size_t>(from)) + viewport()->height();
  const auto row = static_cast<int>(tops_.RowAt(end)) - 1;
  return std::min(std::max(row, from + 1), Count() - 1);
}

int MultiColumnList::RowOnePageUp(int from) const {
  const auto index = static_cast<std::size_t>(from);
  const std::int64_t bottom = tops_.Top(index) + tops_.Height(index);
  const std::int64_t begin = bottom - viewport()->height();
  const auto row = begin <= 0 ? 0 : static_cast<int>(tops_.RowAt(begin - 1)) + 1;
  return std::max(std::min(row, from - 1), 0);
}

void MultiColumnList::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  ScheduleRepaint();
  TellOfFocus();
}

void MultiColumnList::focusOutEvent(QFocusEvent* event) {
  menuKeyServed_ = false;
  QAbstractScrollArea::focusOutEvent(event);
  ScheduleRepaint();
}

}  // namespace parlate

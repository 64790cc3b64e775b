#pragma once

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QColor>
#include <QStandardItemModel>
#include <QTimer>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>

#include "shell/LineBreaker.h"
#include "shell/ListRows.h"
#include "widgets/ListHeads.h"
#include "widgets/RowTops.h"

class QPainter;

namespace parlate {

/// A list with columns whose rows may carry a colour and a second text, wrapped under the row.
///
/// It shows the ListRows it was made with and is their only listener; whoever else wants to hear
/// of them takes the signals. Columns and rows count from 0. The selection is a single row or none
/// and lives in the rows: ListRows::SetListIndex selects and scrolls to the row.
class MultiColumnList : public QAbstractScrollArea, private ListRowsListener {
  Q_OBJECT

 public:
  /// The rows must outlive the list, so an owner of both declares them first.
  explicit MultiColumnList(ListRows& rows, QWidget* parent = nullptr);
  ~MultiColumnList() override;

  [[nodiscard]] ListRows& Rows() { return rows_; }
  [[nodiscard]] const ListRows& Rows() const { return rows_; }

  /// Sets the number of columns and their heads. A column that was there keeps its width.
  void SetHeads(const QStringList& heads);
  [[nodiscard]] QString Head(int column) const;
  [[nodiscard]] int ColumnCount() const { return header_.count(); }
  void SetHeadsVisible(bool visible);

  /// Width of a column in pixels, 0 or more.
  [[nodiscard]] int ColumnWidth(int column) const { return header_.sectionSize(column); }
  void SetColumnWidth(int column, int width);
  /// Makes a column as wide as its widest cell and its head need. It grows up to an even share of
  /// the list.
  void FitColumn(int column);

  /// Says in words what a row colour (24-bit blue-green-red) stands for, for those who do not see
  /// it. An empty text takes the meaning back.
  void SetColorMeaning(std::int32_t color, const QString& meaning);
  /// The meaning of a colour; empty if it has none.
  [[nodiscard]] QString ColorMeaning(std::int32_t color) const;

  /// Text of one cell on one line, not elided; empty if the row has fewer columns.
  [[nodiscard]] QString CellText(int row, int column) const;

  /// Second text of a row, its lines split at "\n".
  [[nodiscard]] QString SubText(int row) const;

  /// Where a row stands in the viewport, in pixels; it may lie outside.
  [[nodiscard]] QRect RowRect(int row);
  /// The cell of a column in a row that stands at `rowRect`: its first line, as wide as the column.
  [[nodiscard]] QRect CellRect(const QRect& rowRect, int column) const;
  /// Where a column head stands, in pixels of the viewport: above it, or empty if heads are hidden.
  [[nodiscard]] QRect HeadRect(int column) const;
  /// The row at a point of the viewport, -1 for none.
  [[nodiscard]] int RowAt(QPoint position);
  /// The column at a point of the viewport, -1 for none.
  [[nodiscard]] int ColumnAt(QPoint position) const { return header_.logicalIndexAt(position.x()); }

  /// Height of a row without second text, in pixels.
  [[nodiscard]] int SingleLineHeight() const;

  /// Scrolls as little as it takes to show the row; of a row taller than the list, its top.
  void EnsureVisible(int row);
  /// Does what a double click on the row does.
  void Activate(int row);

 signals:
  /// What the rows tell of changes, for those who cannot listen to them because the list does.
  void rowsReset();
  void rowInserted(int row);
  void rowRemoved(int row);
  /// The selected row changed, by hand or by the rows' SetListIndex.
  void listIndexChanged();
  /// The left button went down and up on the same row.
  void clicked();
  void doubleClicked();
  /// A key that the list has no use for. The event is ignored unless a slot accepts it.
  void keyPressedInList(QKeyEvent* event);
  /// The right button was released, or the menu key or Shift+F10 pressed.
  void contextMenuRequestedAt(QPoint globalPosition, bool byMouse);
  void columnWidthChanged();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  struct RowColors {
    QColor background;
    QColor text;
  };

  void RowsReset() override;
  void RowInserted(std::size_t index) override;
  void RowRemoved(std::size_t index) override;
  void RowTextChanged(std::size_t index) override;
  void RowColorChanged(std::size_t index) override;
  void ListIndexChanged() override;

  // Layout
  void ScheduleLayout();
  void UpdateLayout();
  void MeasureAllRows();
  [[nodiscard]] int MeasureRow(const ListRow& row);
  [[nodiscard]] bool HeightsAreRight() const;
  void UpdateScrollBars();
  void SetVerticalRange(std::int64_t height);
  void ScrollTo(int row);
  void PlaceHeader();
  void ForgetMetrics();
  [[nodiscard]] int SubTextWidth() const;

  // Painting
  void ScheduleRepaint();
  void PaintRow(QPainter& painter, int index, const QRect& dirty);
  void PaintColumns(QPainter& painter, int index, const QRect& rect);
  void PaintSubText(QPainter& painter, const ListRow& row, const QRect& rect, const QRect& dirty);
  static void PaintFocusFrame(QPainter& painter, const QRect& rect, const QColor& color);
  [[nodiscard]] RowColors ColorsOf(const ListRow& row, bool selected) const;
  [[nodiscard]] QPalette::ColorGroup ColorGroup() const;
  [[nodiscard]] int StripWidth() const;
  [[nodiscard]] int TextMargin() const;
  /// What stands left of the text in a cell.
  [[nodiscard]] int CellMargin(int column) const;
  [[nodiscard]] int SubTextIndent() const;

  // Input
  void SelectByMouse(int row);
  void SelectByKey(int row);
  /// The row that a key moves the selection to, -1 in an empty list; nothing for another key.
  [[nodiscard]] std::optional<int> RowForKey(int key);
  [[nodiscard]] int RowOnePageDown(int from) const;
  [[nodiscard]] int RowOnePageUp(int from) const;
  void RequestContextMenuByKey();
  /// Keys that move or fit the columns; false for all others.
  bool ServeColumnKey(int key, Qt::KeyboardModifiers modifiers);

  // Accessibility
  void TellOfSelection();
  void TellOfFocus();
  void TellOfRows(QAccessibleTableModelChangeEvent::ModelChangeType change, int row);

  [[nodiscard]] int Count() const { return static_cast<int>(rows_.ListCount()); }

  ListRows& rows_;
  QStandardItemModel heads_;
  ListHeads header_;
  QTimer layoutTimer_;
  LineBreaker breaker_;
  RowTops tops_;
  std::map<std::int32_t, QString> colorMeanings_;
  int pressedRow_ = -1;
  int measuredWidth_ = 0;     ///< Width of the second texts that the heights belong to.
  bool heightsDirty_ = true;  ///< tops_ says nothing until all rows are measured.
  bool layoutDirty_ = true;   ///< Heights or scroll bars are behind the rows.
  bool layingOut_ = false;
  bool repaintScheduled_ = false;
  bool scrollToSelection_ = false;  ///< Due with the next layout.
  bool selectingByMouse_ = false;
  bool menuKeyServed_ = false;  ///< The platform made a menu request of the key that follows.
};

}  // namespace parlate

#include "widgets/MultiColumnList.h"

#include <QFontMetricsF>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "widgets/CodePageText.h"
#include "widgets/MultiColumnListAccessible.h"

namespace parlate {

namespace {

// Narrow enough to put a column out of the way, wide enough to take hold of again.
constexpr int kNarrowestDraggedColumn = 8;

std::string_view ColumnPart(std::string_view text, int column) {
  for (; column > 0; --column) {
    const std::size_t separator = text.find(';');
    if (separator == std::string_view::npos) return {};
    text.remove_prefix(separator + 1);
  }
  return text.substr(0, text.find(';'));
}

}  // namespace

MultiColumnList::MultiColumnList(ListRows& rows, QWidget* parent)
    : QAbstractScrollArea(parent),
      rows_(rows),
      header_(this),
      breaker_([this](std::string_view word) {
        return QFontMetricsF(font(), viewport()).horizontalAdvance(ToSingleLine(word));
      }) {
  MultiColumnListAccessible::InstallFactory();
  setFocusPolicy(Qt::StrongFocus);
  header_.setModel(&heads_);
  header_.setFocusPolicy(Qt::NoFocus);
  header_.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  header_.setMinimumSectionSize(kNarrowestDraggedColumn);
  header_.setSectionsClickable(false);
  header_.setHighlightSections(false);
  connect(&header_, &QHeaderView::geometriesChanged, this, &MultiColumnList::PlaceHeader);
  connect(&header_, &QHeaderView::sectionResized, this, [this] {
    ScheduleLayout();
    emit columnWidthChanged();
  });
  connect(&header_, &QHeaderView::sectionHandleDoubleClicked, this, &MultiColumnList::FitColumn);
  layoutTimer_.setSingleShot(true);
  connect(&layoutTimer_, &QTimer::timeout, this, &MultiColumnList::UpdateLayout);
  rows_.SetListener(this);
}

MultiColumnList::~MultiColumnList() {
  rows_.SetListener(nullptr);
  header_.disconnect(this);
}

void MultiColumnList::SetHeads(const QStringList& heads) {
  heads_.setColumnCount(static_cast<int>(heads.size()));
  heads_.setHorizontalHeaderLabels(heads);
  TellOfRows(QAccessibleTableModelChangeEvent::ModelReset, -1);
  PlaceHeader();
  ScheduleLayout();
}

QString MultiColumnList::Head(int column) const {
  return heads_.headerData(column, Qt::Horizontal).toString();
}

void MultiColumnList::SetHeadsVisible(bool visible) {
  header_.setVisible(visible);
  PlaceHeader();
}

void MultiColumnList::SetColumnWidth(int column, int width) {
  header_.resizeSection(column, std::max(width, 0));
}

void MultiColumnList::SetColorMeaning(std::int32_t color, const QString& meaning) {
  if (meaning.isEmpty()) {
    colorMeanings_.erase(color);
  } else {
    colorMeanings_[color] = meaning;
  }
}

QString MultiColumnList::ColorMeaning(std::int32_t color) const {
  const auto found = colorMeanings_.find(color);
  return found == colorMeanings_.end() ? QString() : found->second;
}

QString MultiColumnList::CellText(int row, int column) const {
  return ToSingleLine(ColumnPart(rows_.Row(static_cast<std::size_t>(row)).text, column));
}

QString MultiColumnList::SubText(int row) const {
  QString text = ToQString(rows_.Row(static_cast<std::size_t>(row)).subText);
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  return text.replace(u'\r', u'\n');
}

void MultiColumnList::RowsReset() {
  heightsDirty_ = true;
  pressedRow_ = -1;
  ScheduleLayout();
  // Other rows are another text: it is read from its start.
  verticalScrollBar()->setValue(0);
  emit rowsReset();
  TellOfRows(QAccessibleTableModelChangeEvent::ModelReset, -1);
}

void MultiColumnList::RowInserted(std::size_t index) {
  if (!heightsDirty_) tops_.Insert(index, MeasureRow(rows_.Row(index)));
  ScheduleLayout();
  const auto row = static_cast<int>(index);
  emit rowInserted(row);
  TellOfRows(QAccessibleTableModelChangeEvent::RowsInserted, row);
}

void MultiColumnList::RowRemoved(std::size_t index) {
  if (!heightsDirty_) tops_.Remove(index);
  ScheduleLayout();
  const auto row = static_cast<int>(index);
  emit rowRemoved(row);
  TellOfRows(QAccessibleTableModelChangeEvent::RowsRemoved, row);
}

void MultiColumnList::RowTextChanged(std::size_t index) {
  if (!heightsDirty_) tops_.SetHeight(index, MeasureRow(rows_.Row(index)));
  ScheduleLayout();
}

void MultiColumnList::RowColorChanged(std::size_t /*index*/) { ScheduleRepaint(); }

void MultiColumnList::ListIndexChanged() {
  // A row that jumps from under the mouse would have the second click of a double click land on
  // its neighbour, so a row that was pressed stays where it is.
  const bool byMouse = std::exchange(selectingByMouse_, false);
  if (byMouse) {
    ScheduleRepaint();
  } else {
    scrollToSelection_ = true;
    ScheduleLayout();
  }
  TellOfSelection();
  emit listIndexChanged();
}

}  // namespace parlate

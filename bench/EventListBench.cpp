// Times the multi-column list against a QListView that shows the same rows, as one would write it
// with the toolkit's own means. With --check a missed target ends the program with 1.

#include <QAbstractListModel>
#include <QApplication>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <array>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "bench/Comparison.h"
#include "bench/Measure.h"
#include "shell/ListRows.h"
#include "widgets/CodePageText.h"
#include "widgets/MultiColumnList.h"

namespace {

using parlate::ListRow;
using parlate::ListRows;
using parlate::MultiColumnList;
using parlate::bench::Comparison;
using parlate::bench::Median;
using parlate::bench::Milliseconds;

constexpr int kRows = 32767;
constexpr int kRounds = 7;
constexpr int kPages = 40;
constexpr QSize kWide(800, 600);
constexpr QSize kNarrow(640, 600);
constexpr std::array<int, 4> kColumnWidths = {110, 110, 260, 140};

std::string Sentence(unsigned& seed, unsigned words) {
  static constexpr std::array<const char*, 16> kSyllables = {
      "ka",  "lor", "in",  "the", "mor", "sel", "and", "vi",
      "ter", "o",   "ran", "qui", "es",  "ba",  "dun", "ly"};
  std::string text;
  for (unsigned word = 0; word < words; ++word) {
    seed = seed * 1664525U + 1013904223U;
    if (word > 0) text += ' ';
    for (unsigned syllable = 0; syllable <= (seed >> 28U) % 3; ++syllable) {
      text += kSyllables[(seed >> (8U + 4U * syllable)) % kSyllables.size()];
    }
  }
  return text;
}

std::vector<ListRow> MakeRows() {
  std::vector<ListRow> rows;
  rows.reserve(kRows);
  unsigned seed = 1;
  for (int i = 0; i < kRows; ++i) {
    ListRow row;
    row.text =
        "Say;" + Sentence(seed, 2) + ";" + Sentence(seed, 12) + ";Flag = " + std::to_string(i % 50);
    row.subText = Sentence(seed, 10 + seed % 30);
    row.color = i % 3 == 0 ? 0xC0C0FF : -1;
    rows.push_back(std::move(row));
  }
  return rows;
}

constexpr int kSubTextRole = Qt::UserRole;

// Holds its texts as QString from the start: the yardstick is not charged for converting them.
class RowModel : public QAbstractListModel {
 public:
  struct Item {
    QString columns;
    QString subText;
    QColor color;
  };

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
  }

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    const Item& item = items_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole) return item.columns;
    if (role == kSubTextRole) return item.subText;
    if (role == Qt::BackgroundRole && item.color.isValid()) return QBrush(item.color);
    return {};
  }

  void Fill(std::vector<Item> items) {
    beginResetModel();
    items_ = std::move(items);
    endResetModel();
  }

  // One signal for all rows, which is the best that a model can do.
  void Recolor(const QColor& color) {
    for (Item& item : items_) item.color = color;
    emit dataChanged(index(0), index(rowCount({}) - 1), {Qt::BackgroundRole});
  }

 private:
  std::vector<Item> items_;
};

class RowDelegate : public QStyledItemDelegate {
 public:
  explicit RowDelegate(const QListView& view) : view_(view) {}

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override {
    const int width = view_.viewport()->width();
    const int height = option.fontMetrics.lineSpacing() + 3;
    const QString subText = index.data(kSubTextRole).toString();
    if (subText.isEmpty()) return {width, height};
    const QRect wrapped = option.fontMetrics.boundingRect(
        QRect(0, 0, width - kIndent, QWIDGETSIZE_MAX), Qt::TextWordWrap, subText);
    return {width, height + wrapped.height() + 5};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const QVariant background = index.data(Qt::BackgroundRole);
    if (background.isValid()) painter->fillRect(option.rect, background.value<QBrush>());
    const int lineHeight = option.fontMetrics.lineSpacing() + 3;
    const QStringList columns = index.data(Qt::DisplayRole).toString().split(u';');
    int left = option.rect.left();
    for (std::size_t column = 0; column < kColumnWidths.size(); ++column) {
      const int width = kColumnWidths[column];
      const QString text = columns.value(static_cast<qsizetype>(column));
      painter->drawText(QRect(left + 3, option.rect.top(), width - 6, lineHeight), Qt::AlignVCenter,
                        option.fontMetrics.elidedText(text, Qt::ElideRight, width - 6));
      left += width;
    }
    painter->drawText(option.rect.adjusted(kIndent, lineHeight, 0, 0), Qt::TextWordWrap,
                      index.data(kSubTextRole).toString());
  }

 private:
  static constexpr int kIndent = 24;
  const QListView& view_;
};

std::vector<RowModel::Item> MakeItems(const std::vector<ListRow>& rows) {
  std::vector<RowModel::Item> items;
  items.reserve(rows.size());
  for (const ListRow& row : rows) {
    items.push_back({parlate::ToQString(row.text), parlate::ToQString(row.subText),
                     row.color < 0 ? QColor() : QColor(255, 192, 192)});
  }
  return items;
}

// Both sides end every step alike: posted layouts run, then the whole viewport is painted.
void Finish(QAbstractScrollArea& area) {
  QCoreApplication::processEvents();
  area.viewport()->repaint();
}

struct Step {
  const char* name;
  double target;  ///< Highest ratio of our time to the yardstick's.
  std::vector<double> ours;
  std::vector<double> yardstick;
};

double ScrollPages(QAbstractScrollArea& area) {
  QScrollBar& bar = *area.verticalScrollBar();
  bar.setValue(0);
  Finish(area);
  return Milliseconds([&] {
    for (int page = 0; page < kPages; ++page) {
      bar.setValue(bar.value() + bar.pageStep());
      Finish(area);
    }
  });
}

bool Report(const std::array<Step, 4>& steps) {
  std::vector<Comparison> comparisons;
  for (const Step& step : steps) {
    comparisons.push_back(
        {step.name, Median(step.ours), "QListView", Median(step.yardstick), step.target});
  }
  return parlate::bench::Report(comparisons);
}

int TextHeight(const QAbstractScrollArea& area) {
  return area.verticalScrollBar()->maximum() + area.viewport()->height();
}

bool DidItsWork(const QAbstractScrollArea& area, bool did) {
  if (!did) std::fprintf(stderr, "%s did not lay out its rows\n", area.metaObject()->className());
  return did;
}

// A time counts only if the work was done: both must have given every row its room,
bool ShowsAllRows(const QAbstractScrollArea& area) {
  return DidItsWork(area, TextHeight(area) > kRows * 2 * area.fontMetrics().lineSpacing());
}

// and more room in a narrow list, less in a wide one.
bool Rewrapped(const QAbstractScrollArea& area, int heightBefore, const QSize& size) {
  const int height = TextHeight(area);
  return DidItsWork(area, size == kNarrow ? height > heightBefore : height < heightBefore);
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  const bool checks = QApplication::arguments().contains(QStringLiteral("--check"));

  const std::vector<ListRow> rows = MakeRows();
  const std::vector<RowModel::Item> items = MakeItems(rows);

  ListRows listRows;
  MultiColumnList list(listRows);
  list.SetHeads({QStringLiteral("Event"), QStringLiteral("Speaker"), QStringLiteral("Text"),
                 QStringLiteral("Condition")});
  for (int column = 0; column < list.ColumnCount(); ++column) {
    list.SetColumnWidth(column, kColumnWidths[static_cast<std::size_t>(column)]);
  }

  RowModel model;
  QListView view;
  RowDelegate delegate(view);
  view.setModel(&model);
  view.setItemDelegate(&delegate);
  view.setResizeMode(QListView::Adjust);
  view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  // Bars that come and go would have it measure all rows twice.
  view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);

  for (QAbstractScrollArea* area :
       {static_cast<QAbstractScrollArea*>(&list), static_cast<QAbstractScrollArea*>(&view)}) {
    area->resize(kWide);
    area->show();
    Finish(*area);
  }

  std::array<Step, 4> steps = {Step{"fill", 0.25, {}, {}}, Step{"new width", 0.25, {}, {}},
                               Step{"recolour all", 0.05, {}, {}},
                               Step{"scroll a page", 1.0, {}, {}}};
  bool shown = true;
  for (int round = 0; round < kRounds; ++round) {
    std::vector<ListRow> newRows = rows;
    std::vector<RowModel::Item> newItems = items;
    listRows.Clear();
    model.Fill({});
    Finish(list);
    Finish(view);
    steps[0].ours.push_back(Milliseconds([&] {
      listRows.Assign(std::move(newRows));
      Finish(list);
    }));
    steps[0].yardstick.push_back(Milliseconds([&] {
      model.Fill(std::move(newItems));
      Finish(view);
    }));
    shown = shown && ShowsAllRows(list) && ShowsAllRows(view);

    const QSize size = round % 2 == 0 ? kNarrow : kWide;
    const std::array<int, 2> heights = {TextHeight(list), TextHeight(view)};
    steps[1].ours.push_back(Milliseconds([&] {
      list.resize(size);
      Finish(list);
    }));
    steps[1].yardstick.push_back(Milliseconds([&] {
      view.resize(size);
      QCoreApplication::processEvents();
      view.doItemsLayout();  // It would wait for 100 ms otherwise, and is not to be charged for
                             // that.
      view.viewport()->repaint();
    }));
    shown = shown && Rewrapped(list, heights[0], size) && Rewrapped(view, heights[1], size);

    const int shade = 192 + round;
    steps[2].ours.push_back(Milliseconds([&] {
      for (std::size_t row = 0; row < listRows.ListCount(); ++row) {
        listRows.SetColor(row, shade << 16 | 0xC0FF);
      }
      Finish(list);
    }));
    steps[2].yardstick.push_back(Milliseconds([&] {
      model.Recolor(QColor(255, 192, shade));
      Finish(view);
    }));

    steps[3].ours.push_back(ScrollPages(list) / kPages);
    steps[3].yardstick.push_back(ScrollPages(view) / kPages);
  }

  const bool met = Report(steps);
  if (!shown) return 2;
  return checks && !met ? 1 : 0;
}

#include "editors/ColumnShares.h"

#include <QEvent>
#include <algorithm>
#include <numeric>
#include <utility>

namespace parlate {

ColumnShares::ColumnShares(MultiColumnList& list, std::vector<int> shares)
    : list_(list), shares_(std::move(shares)) {
  list_.viewport()->installEventFilter(this);
}

bool ColumnShares::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Resize) return QObject::eventFilter(watched, event);
  const int sum = std::max(1, std::accumulate(shares_.begin(), shares_.end(), 0));
  const int width = list_.viewport()->width();
  for (std::size_t i = 0; i < shares_.size(); ++i) {
    list_.SetColumnWidth(static_cast<int>(i), width * shares_[i] / sum);
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace parlate

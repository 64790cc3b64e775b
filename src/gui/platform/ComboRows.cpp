#include "platform/ComboRows.h"

#include "widgets/CodePageText.h"

namespace parlate {

std::size_t ComboRows::PlaceOf(int index) const {
  const auto at = static_cast<std::size_t>(index);
  return order_ == RowOrder::AsAdded ? at : sorted_[at];
}

ComboRows::Row* ComboRows::At(int index) {
  return index >= 0 && index < Count() ? &rows_[PlaceOf(index)] : nullptr;
}

const ComboRows::Row* ComboRows::At(int index) const {
  return index >= 0 && index < Count() ? &rows_[PlaceOf(index)] : nullptr;
}

void ComboRows::Add(const std::string& text) {
  const int row = IndexForNewRow(
      order_, Count(),
      text, [this](int index) -> const auto& { return rows_[PlaceOf(index)].text; });
  const bool amongTold = row < told_;
  if (amongTold) {
    TellPending();
    beginInsertRows({}, row, row);
    ++told_;
  }
  if (order_ == RowOrder::ByName) {
    sorted_.insert(sorted_.begin() + row, static_cast<std::uint32_t>(rows_.size()));
  }
  rows_.push_back({text, 0});
  if (amongTold) endInsertRows();
}

void ComboRows::Insert(const std::string& text, int index) {
  beginInsertRows({}, index, index);
  if (order_ == RowOrder::AsAdded) {
    rows_.insert(rows_.begin() + index, {text, 0});
  } else {
    sorted_.insert(sorted_.begin() + index, static_cast<std::uint32_t>(rows_.size()));
    rows_.push_back({text, 0});
  }
  ++told_;
  endInsertRows();
}

void ComboRows::Remove(int index) {
  beginRemoveRows({}, index, index);
  const std::size_t place = PlaceOf(index);
  rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(place));
  if (order_ == RowOrder::ByName) {
    sorted_.erase(sorted_.begin() + index);
    for (std::uint32_t& other : sorted_) {
      if (other > place) --other;
    }
  }
  --told_;
  endRemoveRows();
}

void ComboRows::Clear() {
  const bool wasTold = told_ > 0;
  if (wasTold) beginResetModel();
  rows_.clear();
  sorted_.clear();
  told_ = 0;
  if (wasTold) endResetModel();
}

void ComboRows::TellPending() {
  if (telling_ || told_ == Count()) return;
  telling_ = true;
  beginInsertRows({}, told_, Count() - 1);
  told_ = Count();
  endInsertRows();
  telling_ = false;
}

int ComboRows::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  if (!telling_ && told_ < Count()) emit pendingRowsWanted();
  return told_;
}

QVariant ComboRows::data(const QModelIndex& index, int role) const {
  const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
  const Row* row = isText && index.isValid() ? At(index.row()) : nullptr;
  return row == nullptr ? QVariant() : QVariant(ToQString(row->text));
}

}  // namespace parlate

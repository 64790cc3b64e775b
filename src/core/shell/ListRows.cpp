#include "shell/ListRows.h"

#include <utility>

#include "general/RuntimeError.h"

namespace parlate {

namespace {

void RequireIndex(std::size_t index, std::size_t count) {
  if (index >= count) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
}

}  // namespace

const ListRow& ListRows::Row(std::size_t index) const {
  RequireIndex(index, rows_.size());
  return rows_[index];
}

void ListRows::SetListIndex(std::int32_t index) {
  if (index >= 0) RequireIndex(static_cast<std::size_t>(index), rows_.size());
  ChangeListIndex(index < 0 ? -1 : index);
}

void ListRows::ChangeListIndex(std::int32_t index) {
  if (index == listIndex_) return;
  listIndex_ = index;
  if (listener_ != nullptr) listener_->ListIndexChanged();
}

std::size_t ListRows::AddItem(ListRow row) { return InsertItem(std::move(row), rows_.size()); }

std::size_t ListRows::InsertItem(ListRow row, std::size_t index) {
  if (index > rows_.size()) throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
  rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(index), std::move(row));
  if (listIndex_ >= static_cast<std::int32_t>(index)) ++listIndex_;
  if (listener_ != nullptr) listener_->RowInserted(index);
  return index;
}

void ListRows::RemoveItem(std::size_t index) {
  RequireIndex(index, rows_.size());
  const auto removed = static_cast<std::int32_t>(index);
  const bool wasSelected = listIndex_ == removed;
  rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(index));
  if (listIndex_ > removed) --listIndex_;
  if (wasSelected) listIndex_ = -1;
  if (listener_ == nullptr) return;
  listener_->RowRemoved(index);
  if (wasSelected) listener_->ListIndexChanged();
}

void ListRows::RemoveSelectedItem() {
  if (listIndex_ == -1) return;
  const auto removed = static_cast<std::size_t>(listIndex_);
  if (removed + 1 < rows_.size()) {
    SetListIndex(listIndex_ + 1);
  } else if (removed > 0) {
    SetListIndex(listIndex_ - 1);
  }
  RemoveItem(removed);
}

void ListRows::Assign(std::vector<ListRow> rows) {
  const bool hadSelection = listIndex_ != -1;
  rows_ = std::move(rows);
  listIndex_ = -1;
  if (listener_ == nullptr) return;
  listener_->RowsReset();
  if (hadSelection) listener_->ListIndexChanged();
}

void ListRows::SetText(std::size_t index, std::string text) {
  RequireIndex(index, rows_.size());
  rows_[index].text = std::move(text);
  if (listener_ != nullptr) listener_->RowTextChanged(index);
}

void ListRows::SetSubText(std::size_t index, std::string subText) {
  RequireIndex(index, rows_.size());
  if (rows_[index].subText == subText) return;
  rows_[index].subText = std::move(subText);
  if (listener_ != nullptr) listener_->RowTextChanged(index);
}

void ListRows::SetItemData(std::size_t index, std::int32_t value) {
  RequireIndex(index, rows_.size());
  rows_[index].itemData = value;
}

void ListRows::SetColor(std::size_t index, std::int32_t color) {
  RequireIndex(index, rows_.size());
  if (rows_[index].color == color) return;
  rows_[index].color = color;
  if (listener_ != nullptr) listener_->RowColorChanged(index);
}

}  // namespace parlate

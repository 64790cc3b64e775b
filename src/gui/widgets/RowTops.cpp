#include "widgets/RowTops.h"

#include <algorithm>
#include <utility>

namespace parlate {

void RowTops::Assign(std::vector<int> heights) {
  heights_ = std::move(heights);
  tops_.resize(heights_.size() + 1);
  lastSum_ = 0;
}

void RowTops::Insert(std::size_t row, int height) {
  heights_.insert(heights_.begin() + static_cast<std::ptrdiff_t>(row), height);
  tops_.push_back(0);
  lastSum_ = std::min(lastSum_, row);
}

void RowTops::Remove(std::size_t row) {
  heights_.erase(heights_.begin() + static_cast<std::ptrdiff_t>(row));
  tops_.pop_back();
  lastSum_ = std::min(lastSum_, row);
}

void RowTops::SetHeight(std::size_t row, int height) {
  if (heights_[row] == height) return;
  heights_[row] = height;
  lastSum_ = std::min(lastSum_, row);
}

std::int64_t RowTops::Top(std::size_t row) const {
  for (; lastSum_ < row; ++lastSum_) tops_[lastSum_ + 1] = tops_[lastSum_] + heights_[lastSum_];
  return tops_[row];
}

std::size_t RowTops::RowAt(std::int64_t y) const {
  if (y < 0) return 0;
  if (y >= Total()) return heights_.size();
  const auto below = std::upper_bound(tops_.begin(), tops_.end(), y);
  return static_cast<std::size_t>(below - tops_.begin()) - 1;
}

}  // namespace parlate

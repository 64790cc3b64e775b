#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace parlate {

/// Where the rows of a list stand under one another, in pixels from the top of the first row.
/// The sums behind a changed row are made up when somebody asks for a row there, so a run of
/// changes costs one pass.
class RowTops {
 public:
  void Assign(std::vector<int> heights);
  /// Inserts ahead of `row`, or appends if `row` is Count().
  void Insert(std::size_t row, int height);
  void Remove(std::size_t row);
  void SetHeight(std::size_t row, int height);

  [[nodiscard]] std::size_t Count() const { return heights_.size(); }
  [[nodiscard]] int Height(std::size_t row) const { return heights_[row]; }
  /// Top of a row; of Count() it is the height of all rows.
  [[nodiscard]] std::int64_t Top(std::size_t row) const;
  [[nodiscard]] std::int64_t Total() const { return Top(heights_.size()); }
  /// The row that covers `y`; the first for a `y` above it, Count() for one below all rows.
  [[nodiscard]] std::size_t RowAt(std::int64_t y) const;

 private:
  std::vector<int> heights_;
  mutable std::vector<std::int64_t> tops_{0};  ///< One more than the rows; right up to lastSum_.
  mutable std::size_t lastSum_ = 0;
};

}  // namespace parlate

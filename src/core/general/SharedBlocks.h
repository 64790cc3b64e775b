#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>

namespace parlate {

/// Makes shared items of one kind that are likely to live together, several in one allocation. An
/// item is owned like any other; the memory of a block, and what its items hold, is given back with
/// the last of them.
template <class Item>
class SharedBlocks {
 public:
  /// For about `expected` items; further ones are made one by one.
  explicit SharedBlocks(std::size_t expected) : expected_(expected) {}

  [[nodiscard]] std::shared_ptr<Item> Make() {
    if (used_ == size_) StartBlock();
    return {block_, block_.get() + used_++};
  }

 private:
  // Enough that the cost of an allocation vanishes, few enough that a survivor keeps little alive.
  static constexpr std::size_t kMostInBlock = 32;

  void StartBlock() {
    size_ = std::clamp<std::size_t>(expected_, 1, kMostInBlock);
    expected_ -= std::min(expected_, size_);
    block_ = std::make_shared_for_overwrite<Item[]>(size_);
    used_ = 0;
  }

  std::size_t expected_;
  std::shared_ptr<Item[]> block_;
  std::size_t size_ = 0;
  std::size_t used_ = 0;
};

}  // namespace parlate

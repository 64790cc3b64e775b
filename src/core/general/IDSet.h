#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <vector>

namespace parlate {

/// A set of IDs that takes in the same few thousand of them a million times over. IDs are given
/// out from 0 on, so nearly all are small: those are a bit each, and only the others are hashed.
class IDSet {
 public:
  void Add(std::int32_t id) {
    if (IsSmall(id)) {
      small_[static_cast<std::size_t>(id)] = true;
    } else {
      others_.insert(id);
    }
  }

  [[nodiscard]] bool Contains(std::int32_t id) const {
    return IsSmall(id) ? small_[static_cast<std::size_t>(id)] : others_.contains(id);
  }

 private:
  static constexpr std::int32_t kSmallCount = 65536;

  [[nodiscard]] static bool IsSmall(std::int32_t id) { return id >= 0 && id < kSmallCount; }

  std::vector<bool> small_ = std::vector<bool>(kSmallCount);
  std::unordered_set<std::int32_t> others_;
};

}  // namespace parlate

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace parlate {

/// A hash from a key to the position of its item in a sequence that somebody else owns. It holds
/// no keys: the owner hands in the hash of a key and a test of the item at a position.
class PositionIndex {
 public:
  static constexpr std::size_t kNotFound = static_cast<std::size_t>(-1);

  void Clear() {
    slots_.clear();
    count_ = 0;
  }

  /// Whether the index holds every one of `count` items; if not, the owner rebuilds it.
  [[nodiscard]] bool Covers(std::size_t count) const { return count_ == count && !slots_.empty(); }

  /// Makes the index anew for `count` items, with room for `capacity`.
  template <class HashAt>
  void Rebuild(std::size_t count, std::size_t capacity, HashAt hashAt) {
    std::size_t size = 16;
    while (size < capacity * 2) size *= 2;
    slots_.assign(size, 0);
    count_ = 0;
    for (std::size_t i = 0; i < count; ++i) Place(hashAt(i));
  }

  /// Takes in the item that stands at the end of the sequence.
  template <class HashAt>
  void Append(HashAt hashAt) {
    if ((count_ + 1) * 2 > slots_.size()) {
      Rebuild(count_ + 1, (count_ + 1) * 2, hashAt);
    } else {
      Place(hashAt(count_));
    }
  }

  template <class IsAt>
  [[nodiscard]] std::size_t Find(std::uint32_t hash, IsAt isAt) const {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t slot = Spread(hash) & mask; slots_[slot] != 0; slot = (slot + 1) & mask) {
      const std::size_t position = slots_[slot] - 1;
      if (isAt(position)) return position;
    }
    return kNotFound;
  }

 private:
  static std::size_t Spread(std::uint32_t hash) {
    return static_cast<std::size_t>((hash * 0x9E3779B97F4A7C15ULL) >> 32U);
  }

  void Place(std::uint32_t hash) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = Spread(hash) & mask;
    while (slots_[slot] != 0) slot = (slot + 1) & mask;
    slots_[slot] = static_cast<std::uint32_t>(++count_);
  }

  std::vector<std::uint32_t> slots_;  // position + 1; 0 is free
  std::size_t count_ = 0;
};

}  // namespace parlate

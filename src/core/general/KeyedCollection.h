#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "general/PositionIndex.h"
#include "general/RuntimeError.h"

namespace parlate {

/// The ordered, 1-based collection of the model for items whose key is the decimal text of a
/// number. The key is kept as that number. The collection owns its items together with whoever
/// else holds them: a deleted event, say, that an editor still shows.
template <class Item>
class KeyedCollection {
 public:
  using Pointer = std::shared_ptr<Item>;

  template <class Base, class Value>
  class BasicIterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = Value;
    using difference_type = std::ptrdiff_t;
    using pointer = Value*;
    using reference = Value&;

    BasicIterator() = default;
    explicit BasicIterator(Base base) : base_(base) {}
    Value& operator*() const { return *base_->item; }
    Value* operator->() const { return base_->item.get(); }
    BasicIterator& operator++() {
      ++base_;
      return *this;
    }
    BasicIterator operator++(int) {
      BasicIterator before = *this;
      ++base_;
      return before;
    }
    bool operator==(const BasicIterator& other) const { return base_ == other.base_; }

   private:
    Base base_{};
  };

  [[nodiscard]] std::size_t Count() const { return entries_.size(); }
  [[nodiscard]] bool Empty() const { return entries_.empty(); }

  [[nodiscard]] auto begin() { return MakeIterator(entries_.begin()); }
  [[nodiscard]] auto end() { return MakeIterator(entries_.end()); }
  [[nodiscard]] auto begin() const { return MakeIterator(entries_.cbegin()); }
  [[nodiscard]] auto end() const { return MakeIterator(entries_.cend()); }

  /// Makes room for `count` items in all.
  void Reserve(std::size_t count) { entries_.reserve(count); }

  /// Appends; RuntimeError 457 if the key is taken.
  void Add(std::int32_t key, Pointer item) {
    RefuseTaken(key);
    entries_.push_back({key, std::move(item)});
    if (index_.Covers(entries_.size() - 1)) index_.Append(HashAt());
  }

  /// Puts the item ahead of the one with the key `before`; errors 457 and 5.
  void AddBefore(std::int32_t key, Pointer item, std::int32_t before) {
    RefuseTaken(key);
    const auto at = entries_.begin() + static_cast<std::ptrdiff_t>(RequirePosition(before));
    entries_.insert(at, {key, std::move(item)});
    index_.Clear();
  }

  /// Removes the item of a key; RuntimeError 5 if there is none.
  void Remove(std::int32_t key) {
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(RequirePosition(key)));
    index_.Clear();
  }

  void Clear() {
    entries_.clear();
    index_.Clear();
  }

  /// The item of a key, or nothing.
  [[nodiscard]] Item* Find(std::int32_t key) const {
    const std::size_t position = Position(key);
    return position == PositionIndex::kNotFound ? nullptr : entries_[position].item.get();
  }

  /// The item of a key; RuntimeError 5 if there is none.
  [[nodiscard]] Item& At(std::int32_t key) const { return *Share(key); }

  /// The item of a key, shared; RuntimeError 5 if there is none.
  [[nodiscard]] const Pointer& Share(std::int32_t key) const {
    return entries_[RequirePosition(key)].item;
  }

  /// The item at a 1-based place; RuntimeError 9 outside of 1 to `Count`.
  [[nodiscard]] const Pointer& Place(std::size_t place) const {
    return entries_[RequirePlace(place)].item;
  }

  /// The key at a 1-based place; it can differ from what the item says of itself.
  [[nodiscard]] std::int32_t KeyAt(std::size_t place) const {
    return entries_[RequirePlace(place)].key;
  }

  /// The 1-based place of a key, or 0.
  [[nodiscard]] std::size_t PlaceOf(std::int32_t key) const {
    const std::size_t position = Position(key);
    return position == PositionIndex::kNotFound ? 0 : position + 1;
  }

 private:
  struct Entry {
    std::int32_t key;
    Pointer item;
  };

  static constexpr std::size_t kScanLimit = 8;  // up to here a scan beats a hash

  static auto MakeIterator(typename std::vector<Entry>::iterator base) {
    return BasicIterator<decltype(base), Item>(base);
  }
  static auto MakeIterator(typename std::vector<Entry>::const_iterator base) {
    return BasicIterator<decltype(base), const Item>(base);
  }

  [[nodiscard]] auto HashAt() const {
    return [this](std::size_t i) { return static_cast<std::uint32_t>(entries_[i].key); };
  }

  [[nodiscard]] std::size_t Position(std::int32_t key) const {
    const auto isAt = [this, key](std::size_t i) { return entries_[i].key == key; };
    if (entries_.size() <= kScanLimit) {
      for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (isAt(i)) return i;
      }
      return PositionIndex::kNotFound;
    }
    if (!index_.Covers(entries_.size())) {
      index_.Rebuild(entries_.size(), entries_.capacity(), HashAt());
    }
    return index_.Find(static_cast<std::uint32_t>(key), isAt);
  }

  [[nodiscard]] std::size_t RequirePosition(std::int32_t key) const {
    const std::size_t position = Position(key);
    if (position == PositionIndex::kNotFound) {
      throw RuntimeError(RuntimeError::kInvalidProcedureCall,
                         "no element with the key " + std::to_string(key));
    }
    return position;
  }

  [[nodiscard]] std::size_t RequirePlace(std::size_t place) const {
    if (place < 1 || place > entries_.size()) {
      throw RuntimeError(RuntimeError::kSubscriptOutOfRange);
    }
    return place - 1;
  }

  void RefuseTaken(std::int32_t key) const {
    if (Position(key) != PositionIndex::kNotFound) {
      throw RuntimeError(RuntimeError::kKeyAlreadyAssociated,
                         "the key " + std::to_string(key) + " is taken already");
    }
  }

  std::vector<Entry> entries_;
  mutable PositionIndex index_;  // rebuilt on a look-up after an insertion or removal
};

/// Removes every item of a collection.
template <class Item>
void ClearCollection(KeyedCollection<Item>& collection) {
  collection.Clear();
}

}  // namespace parlate

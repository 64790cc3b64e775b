#pragma once

#include <algorithm>
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
/// else holds them: a deleted event, say, that an editor still shows. A copy shares the items.
///
/// Keys come in ascending order as long as nobody inserts in the middle. Until then they are found
/// without an index, which would cost memory for every list of every event.
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

  KeyedCollection() = default;
  ~KeyedCollection() = default;
  KeyedCollection(const KeyedCollection& other)
      : entries_(other.entries_), ascending_(other.ascending_) {}
  KeyedCollection(KeyedCollection&&) noexcept = default;
  KeyedCollection& operator=(const KeyedCollection& other) {
    return *this = KeyedCollection(other);
  }
  KeyedCollection& operator=(KeyedCollection&&) noexcept = default;

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
    const bool ascends = entries_.empty() || (ascending_ && entries_.back().key < key);
    if (!ascends) RefuseTaken(key);
    entries_.push_back({key, std::move(item)});
    ascending_ = ascends;
    if (index_ && index_->Covers(entries_.size() - 1)) index_->Append(HashAt());
  }

  /// Puts the item ahead of the one with the key `before`; errors 457 and 5.
  void AddBefore(std::int32_t key, Pointer item, std::int32_t before) {
    RefuseTaken(key);
    const std::size_t at = RequirePosition(before);
    ascending_ = ascending_ && key < before && (at == 0 || entries_[at - 1].key < key);
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(at), {key, std::move(item)});
    index_.reset();
  }

  /// Removes the item of a key; RuntimeError 5 if there is none.
  void Remove(std::int32_t key) {
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(RequirePosition(key)));
    index_.reset();
  }

  /// Removes every item whose key passes the test, in one pass.
  template <class Test>
  void RemoveIf(Test test) {
    std::erase_if(entries_, [&test](const Entry& entry) { return test(entry.key); });
    index_.reset();
  }

  void Clear() {
    entries_.clear();
    ascending_ = true;
    index_.reset();
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
    if (ascending_) return AscendingPosition(key);
    const auto isAt = [this, key](std::size_t i) { return entries_[i].key == key; };
    if (entries_.size() <= kScanLimit) {
      for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (isAt(i)) return i;
      }
      return PositionIndex::kNotFound;
    }
    if (!index_) index_ = std::make_unique<PositionIndex>();
    if (!index_->Covers(entries_.size())) {
      index_->Rebuild(entries_.size(), entries_.capacity(), HashAt());
    }
    return index_->Find(static_cast<std::uint32_t>(key), isAt);
  }

  [[nodiscard]] std::size_t AscendingPosition(std::int32_t key) const {
    if (entries_.empty() || key < entries_.front().key || key > entries_.back().key) {
      return PositionIndex::kNotFound;
    }
    // Keys are mostly given out one by one, and then the first guess is right.
    const std::int64_t guess = std::int64_t{key} - entries_.front().key;
    if (guess < std::ssize(entries_) && entries_[static_cast<std::size_t>(guess)].key == key) {
      return static_cast<std::size_t>(guess);
    }
    const auto found =
        std::lower_bound(entries_.begin(), entries_.end(), key,
                         [](const Entry& entry, std::int32_t than) { return entry.key < than; });
    if (found->key != key) return PositionIndex::kNotFound;
    return static_cast<std::size_t>(found - entries_.begin());
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
  // Made on the first look-up after an insertion or removal, if the keys do not ascend.
  mutable std::unique_ptr<PositionIndex> index_;
  bool ascending_ = true;
};

/// Removes every item of a collection.
template <class Item>
void ClearCollection(KeyedCollection<Item>& collection) {
  collection.Clear();
}

}  // namespace parlate

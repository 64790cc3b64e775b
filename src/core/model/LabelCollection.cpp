#include "model/LabelCollection.h"

#include <algorithm>

#include "general/CodePage.h"

namespace parlate {

std::size_t LabelCollection::Position(std::string_view label) const {
  if (items_.empty()) return PositionIndex::kNotFound;
  if (!index_.Covers(items_.size())) {
    index_.Rebuild(items_.size(), items_.capacity(),
                   [this](std::size_t i) { return HashNoCase(items_[i].Name); });
  }
  return index_.Find(HashNoCase(label),
                     [&](std::size_t i) { return EqualNoCase(items_[i].Name, label); });
}

bool LabelCollection::Contains(std::string_view label) const {
  return Position(label) != PositionIndex::kNotFound;
}

bool LabelCollection::Add(const std::string& label) {
  if (Contains(label)) return false;
  items_.push_back({label});
  if (index_.Covers(items_.size() - 1)) {
    index_.Append([this](std::size_t i) { return HashNoCase(items_[i].Name); });
  }
  return true;
}

void LabelCollection::Remove(std::string_view label) {
  const std::size_t position = Position(label);
  if (position == PositionIndex::kNotFound) return;
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position));
  index_.Clear();
}

void LabelCollection::RemoveAll(const LabelCollection& labels) {
  std::erase_if(items_, [&](const LabelItem& item) { return labels.Contains(item.Name); });
  index_.Clear();
}

void LabelCollection::Clear() {
  items_.clear();
  index_.Clear();
}

}  // namespace parlate

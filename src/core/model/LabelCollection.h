#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "general/PositionIndex.h"

namespace parlate {

/// One label in use in a conversation.
struct LabelItem {
  std::string Name;

  void Copy(const LabelItem& source) { Name = source.Name; }
};

/// The labels of a conversation in the order of insertion, looked up without regard to case.
class LabelCollection {
 public:
  [[nodiscard]] std::size_t Count() const { return items_.size(); }
  [[nodiscard]] auto begin() const { return items_.begin(); }
  [[nodiscard]] auto end() const { return items_.end(); }

  [[nodiscard]] bool Contains(std::string_view label) const;
  /// False if the label is there already, in whatever case.
  bool Add(const std::string& label);
  /// A label that is not there is no error.
  void Remove(std::string_view label);
  /// Removes every label that is in `labels` in one walk.
  void RemoveAll(const LabelCollection& labels);
  void Clear();

 private:
  [[nodiscard]] std::size_t Position(std::string_view label) const;

  std::vector<LabelItem> items_;
  mutable PositionIndex index_;
};

}  // namespace parlate

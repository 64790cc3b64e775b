#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

#include "model/FlagRef.h"

namespace parlate {

/// What the tree shows for flags. A text is built once however many nodes show it, since a file
/// can refer to one long name from many places at the cost of a few bytes each. Texts are good
/// until a row of the flag table is renamed.
class FlagTexts {
 public:
  /// RuntimeError 5 if the flag's row is gone.
  [[nodiscard]] std::shared_ptr<const std::string> Of(const FlagRef& flag) {
    const std::int64_t key = std::int64_t{flag.flagID} * 2 + (flag.bValue ? 1 : 0);
    std::shared_ptr<const std::string>& text = texts_[key];
    if (!text) text = std::make_shared<const std::string>(flag.Desc());
    return text;
  }

  void Clear() { texts_.clear(); }

 private:
  std::unordered_map<std::int64_t, std::shared_ptr<const std::string>> texts_;
};

}  // namespace parlate

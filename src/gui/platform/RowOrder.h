#pragma once

#include <string>

#include "general/CodePage.h"

namespace parlate {

/// Where a control puts the rows that are added to it.
enum class RowOrder {
  AsAdded,
  ByName,  ///< By their text without regard to case; of equal ones the older stands first.
};

/// The index at which a new row belongs among `count` rows, whose texts `textAt(index)` gives.
template <class TextAt>
[[nodiscard]] int IndexForNewRow(RowOrder order, int count, const std::string& text,
                                 TextAt textAt) {
  if (order == RowOrder::AsAdded) return count;
  int low = 0;
  int high = count;
  while (low < high) {
    const int middle = low + (high - low) / 2;
    if (LessNoCase(text, textAt(middle))) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return low;
}

}  // namespace parlate

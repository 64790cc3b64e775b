#pragma once

#include <cstddef>

namespace parlate::fuzzing {

/// Counts what is allocated with `new` in this program while it is alive, by replaced operators.
/// One at a time.
class AllocationMeter {
 public:
  AllocationMeter();
  ~AllocationMeter();
  AllocationMeter(const AllocationMeter&) = delete;
  AllocationMeter& operator=(const AllocationMeter&) = delete;

  /// The largest sum of bytes that were held at one time, without what was held before.
  [[nodiscard]] std::size_t Peak() const;
};

}  // namespace parlate::fuzzing

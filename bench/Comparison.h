#pragma once

#include <span>
#include <string>

namespace parlate::bench {

/// What was measured beside its yardstick, both in the same unit.
struct Comparison {
  std::string subject;
  double measured = 0;
  std::string yardstick;
  double against = 0;
  double atMost = 0;  ///< Highest ratio; 0 if it is told for comparison alone.

  [[nodiscard]] double Ratio() const { return measured / against; }
  [[nodiscard]] bool Met() const { return atMost == 0 || Ratio() <= atMost; }
};

/// Prints them as a table; false if a ratio is too high.
bool Report(std::span<const Comparison> comparisons, const char* unit = "ms");

}  // namespace parlate::bench

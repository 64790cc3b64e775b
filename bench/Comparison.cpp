#include "bench/Comparison.h"

#include <algorithm>
#include <cstdio>

namespace parlate::bench {

namespace {

constexpr int kLeastWidth = 8;

int Width(std::span<const Comparison> comparisons, std::string Comparison::*text) {
  int width = kLeastWidth;
  for (const Comparison& each : comparisons) {
    width = std::max(width, static_cast<int>((each.*text).size()));
  }
  return width;
}

}  // namespace

bool Report(std::span<const Comparison> comparisons, const char* unit) {
  const int subject = Width(comparisons, &Comparison::subject);
  const int yardstick = Width(comparisons, &Comparison::yardstick);
  std::printf("%-*s %10s  %-*s %10s %8s %8s\n", subject, "", unit, yardstick, "against", unit,
              "ratio", "at most");
  bool met = true;
  for (const Comparison& each : comparisons) {
    met = met && each.Met();
    std::printf("%-*s %10.2f  %-*s %10.2f %8.3f ", subject, each.subject.c_str(), each.measured,
                yardstick, each.yardstick.c_str(), each.against, each.Ratio());
    if (each.atMost == 0) {
      std::printf("%8s\n", "-");
    } else {
      std::printf("%8.2f%s\n", each.atMost, each.Met() ? "" : "  MISSED");
    }
  }
  return met;
}

}  // namespace parlate::bench

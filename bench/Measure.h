#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <type_traits>
#include <vector>

namespace parlate::bench {

template <class Action>
double Milliseconds(Action&& action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

[[nodiscard]] inline double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// Keeps the compiler from leaving out work whose result nobody looks at.
template <class Value>
void Keep(const Value& value) {
  asm volatile("" : : "g"(&value) : "memory");
}

/// Runs `work` in a process of its own and returns its result: each run starts with the heap as it
/// is here, so nobody profits from memory that another run has left behind.
template <class Work>
auto InChild(Work work) -> std::invoke_result_t<Work> {
  using Result = std::invoke_result_t<Work>;
  static_assert(std::is_trivially_copyable_v<Result>);
  int ends[2];
  if (::pipe(ends) != 0) throw std::runtime_error("there is no pipe to be had");
  std::fflush(nullptr);
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("there is no process to be had");
  if (child == 0) {
    int status = EXIT_FAILURE;
    try {
      const Result result = work();
      if (::write(ends[1], &result, sizeof(result)) == sizeof(result)) status = EXIT_SUCCESS;
    } catch (const std::exception& error) {
      std::fprintf(stderr, "%s\n", error.what());
    }
    ::_exit(status);  // what is still alive is not to be taken down in the measured time of another
  }
  ::close(ends[1]);
  Result result{};
  const bool whole = ::read(ends[0], &result, sizeof(result)) == sizeof(result);
  ::close(ends[0]);
  ::waitpid(child, nullptr, 0);
  if (!whole) throw std::runtime_error("a measured process has failed");
  return result;
}

/// Resident memory of this process.
[[nodiscard]] inline std::size_t ResidentBytes() {
  long pages = 0;
  if (std::FILE* statm = std::fopen("/proc/self/statm", "r")) {
    if (std::fscanf(statm, "%*s %ld", &pages) != 1) pages = 0;  // NOLINT: the kernel's own text
    std::fclose(statm);
  }
  return static_cast<std::size_t>(pages) * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

/// The most that has been resident of this process, in kilobytes.
[[nodiscard]] inline double PeakKilobytes() {
  rusage usage{};
  if (::getrusage(RUSAGE_SELF, &usage) != 0) throw std::runtime_error("no usage can be told");
  return static_cast<double>(usage.ru_maxrss);
}

}  // namespace parlate::bench

#include "CheckLoad.h"

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>

#include "AllocationMeter.h"
#include "OpenFile.h"
#include "general/RuntimeError.h"

namespace parlate::fuzzing {

namespace {

void Require(bool kept, const char* promise) {
  if (kept) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

/// What a file of `size` bytes may have the program hold. The smallest records are the dearest: a
/// reference to a missing actor with a short name, some ten bytes, makes a row of a table.
std::size_t MostMemory(std::size_t size) {
  constexpr std::size_t kPerByte = 32;
  constexpr std::size_t kAlways = std::size_t{32} * 1024;
  return kAlways + kPerByte * size;
}

std::optional<std::string> SaveIfPossible(OpenFile& file) {
  std::optional<std::string> bytes;
  ResumeNext([&] { bytes = file.Save(); });
  return bytes;
}

void CheckSaving(OpenFile& file) {
  const std::optional<std::string> first = SaveIfPossible(file);
  if (!first) return;
  OpenFile again;
  Require(again.Load(*first) == OpenFile::Result::Loaded, "what was saved can be loaded");
  const std::optional<std::string> second = SaveIfPossible(again);
  Require(second == first, "what was loaded again is saved as the same bytes");
}

}  // namespace

void CheckLoad(std::string_view bytes) {
  OpenFile file;
  OpenFile::Result result{};
  std::size_t peak = 0;
  {
    const AllocationMeter meter;
    result = file.Load(bytes);
    peak = meter.Peak();
  }
  Require(peak <= MostMemory(bytes.size()), "memory is in proportion to the file");
  Require(file.Messages() == (result == OpenFile::Result::Refused ? 1 : 0),
          "a refusal shows one message, and nothing else shows any");
  // The window goes on with what was read ahead of some damage.
  file.BuildAllRows();
  file.TryAllLabels();
  if (result == OpenFile::Result::Loaded) CheckSaving(file);
}

}  // namespace parlate::fuzzing

// The entry point that libFuzzer calls.

#include <cstddef>
#include <cstdint>

#include "CheckLoad.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  parlate::fuzzing::CheckLoad({reinterpret_cast<const char*>(data), size});
  return 0;
}

#include "AllocationMeter.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

struct Counts {
  bool running = false;
  long held = 0;
  long peak = 0;
};

constinit Counts counts;

void* AllocateOrNot(std::size_t size) noexcept {
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (counts.running && memory != nullptr) {
    counts.held += static_cast<long>(malloc_usable_size(memory));
    counts.peak = std::max(counts.peak, counts.held);
  }
  return memory;
}

void* Allocate(std::size_t size) {
  void* memory = AllocateOrNot(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void Free(void* memory) noexcept {
  if (counts.running && memory != nullptr) {
    counts.held -= static_cast<long>(malloc_usable_size(memory));
  }
  std::free(memory);
}

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return AllocateOrNot(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return AllocateOrNot(size);
}
void operator delete(void* memory) noexcept { Free(memory); }
void operator delete(void* memory, std::size_t) noexcept { Free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { Free(memory); }
void operator delete[](void* memory) noexcept { Free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { Free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { Free(memory); }

namespace parlate::fuzzing {

AllocationMeter::AllocationMeter() { counts = {true, 0, 0}; }

AllocationMeter::~AllocationMeter() { counts.running = false; }

std::size_t AllocationMeter::Peak() const { return static_cast<std::size_t>(counts.peak); }

}  // namespace parlate::fuzzing

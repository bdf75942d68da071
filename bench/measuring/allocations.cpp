#include "bench/measuring/allocations.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

std::uint64_t allocations = 0;

}  // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the linker option --wrap=malloc prescribes these names. It
// redirects calls of malloc to __wrap_malloc, and calls of __real_malloc to malloc.
extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* memory, std::size_t size);

void* __wrap_malloc(std::size_t size) {
  ++allocations;
  return __real_malloc(size);
}

void* __wrap_calloc(std::size_t count, std::size_t size) {
  ++allocations;
  return __real_calloc(count, size);
}

void* __wrap_realloc(void* memory, std::size_t size) {
  ++allocations;
  return __real_realloc(memory, size);
}

}  // extern "C"

void* operator new(std::size_t size) {
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return std::malloc(size == 0 ? 1 : size);
}

void* operator new(std::size_t size, std::align_val_t alignment) {
  ++allocations;
  const auto bytes = static_cast<std::size_t>(alignment);
  void* memory = std::aligned_alloc(bytes, (size + bytes - 1) / bytes * bytes);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { std::free(memory); }
// NOLINTEND(bugprone-reserved-identifier)

namespace kestrin::bench {

std::uint64_t AllocationCount() { return allocations; }

}  // namespace kestrin::bench

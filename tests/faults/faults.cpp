#include "tests/faults/faults.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace kestrin::test {
namespace {

constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();
constexpr long kEverything = std::numeric_limits<long>::max();

Allocations soFar;
std::int64_t firstFailing = kNever;  // the number of an allocation
std::int64_t lastFailing = kNever;
long readableBytes = kEverything;

/// Counts an attempted allocation. Returns whether it fails.
bool AllocationFails() {
  const std::int64_t number = soFar.made++;
  return number >= firstFailing && number <= lastFailing;
}

void* Counted(void* memory) {
  if (memory != nullptr) ++soFar.alive;
  return memory;
}

}  // namespace

Allocations AllocationsSoFar() { return soFar; }

FailingAllocations::FailingAllocations(std::int64_t succeeding, Which which) {
  firstFailing = soFar.made + succeeding;
  lastFailing = which == Which::kOne ? firstFailing : kNever;
}

FailingAllocations::~FailingAllocations() { firstFailing = lastFailing = kNever; }

FailingReads::FailingReads(long readable) { readableBytes = readable; }

FailingReads::~FailingReads() { readableBytes = kEverything; }

}  // namespace kestrin::test

using namespace kestrin::test;

// NOLINTBEGIN(bugprone-reserved-identifier,cppcoreguidelines-owning-memory): the linker defines these names,
// and the functions manage memory.
extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
void* __real_realloc(void* memory, std::size_t size);
void* __real_aligned_alloc(std::size_t alignment, std::size_t size);
void __real_free(void* memory);
std::size_t __real_fread(void* bytes, std::size_t size, std::size_t count, std::FILE* file);
int __real_ferror(std::FILE* file);

void* __wrap_malloc(std::size_t size) { return AllocationFails() ? nullptr : Counted(__real_malloc(size)); }

void* __wrap_calloc(std::size_t count, std::size_t size) {
  return AllocationFails() ? nullptr : Counted(__real_calloc(count, size));
}

void* __wrap_realloc(void* memory, std::size_t size) {
  if (AllocationFails()) return nullptr;
  void* moved = __real_realloc(memory, size);
  return memory == nullptr ? Counted(moved) : moved;
}

void* __wrap_aligned_alloc(std::size_t alignment, std::size_t size) {
  return AllocationFails() ? nullptr : Counted(__real_aligned_alloc(alignment, size));
}

void __wrap_free(void* memory) {
  if (memory != nullptr) --soFar.alive;
  __real_free(memory);
}

/// The readers read single bytes, so items are bytes.
std::size_t __wrap_fread(void* bytes, std::size_t size, std::size_t count, std::FILE* file) {
  if (readableBytes == kEverything) return __real_fread(bytes, size, count, file);
  const long left = std::max(readableBytes - std::ftell(file), 0L);
  return __real_fread(bytes, size, std::min(count, static_cast<std::size_t>(left)), file);
}

int __wrap_ferror(std::FILE* file) { return readableBytes <= std::ftell(file) ? 1 : __real_ferror(file); }

}  // extern "C"

static void* OrRaise(void* memory) {
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void* operator new(std::size_t size) { return OrRaise(std::malloc(size)); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return std::malloc(size); }
void* operator new[](std::size_t size) { return OrRaise(std::malloc(size)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  const auto boundary = static_cast<std::size_t>(alignment);
  return OrRaise(std::aligned_alloc(boundary, (size + boundary - 1) / boundary * boundary));
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { std::free(memory); }
// NOLINTEND(bugprone-reserved-identifier,cppcoreguidelines-owning-memory)

#pragma once

/// @file
/// The memory of the generated scanner.

#include <array>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace kestrin {

/// The scanner cannot continue: out of memory, or a text is too long.
class ScannerError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Owns every block that the automaton allocates. The automaton itself would leak them if an exception
/// interrupted it.
class ScannerMemory {
 public:
  /// Returns null if memory is exhausted.
  [[nodiscard]] void* Allocate(std::size_t size);
  /// Raises ScannerError if memory is exhausted or the text in the buffer is too long.
  [[nodiscard]] void* Reallocate(void* bytes, std::size_t size);
  void Free(void* bytes);

 private:
  struct Freed {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the owner's own deleter
    void operator()(void* bytes) const noexcept { std::free(bytes); }
  };
  using Block = std::unique_ptr<void, Freed>;

  [[nodiscard]] Block& BlockAt(const void* bytes);

  std::array<Block, 8> blocks_{};  // the automaton needs fewer: itself, its buffer, and some housekeeping
};

}  // namespace kestrin

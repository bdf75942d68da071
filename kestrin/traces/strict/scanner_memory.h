#pragma once

/// @file
/// The memory of the strict scanner's automaton.

#include <array>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace kestrin {

/// The scanner cannot go on: its memory, or a text that is too long for it.
class ScannerError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Owns all that the automaton takes: an exception may leave the automaton half made, and it would lose it.
class ScannerMemory {
 public:
  /// Null when there is none.
  [[nodiscard]] void* Allocate(std::size_t size);
  /// Raises ScannerError when there is none, or when the text in the buffer is too long.
  [[nodiscard]] void* Reallocate(void* bytes, std::size_t size);
  void Free(void* bytes);

 private:
  struct Freed {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the owner's own deleter
    void operator()(void* bytes) const noexcept { std::free(bytes); }
  };
  using Block = std::unique_ptr<void, Freed>;

  [[nodiscard]] Block& BlockAt(const void* bytes);

  std::array<Block, 8> blocks_{};  // the automaton itself, its buffer, and a little around it
};

}  // namespace kestrin

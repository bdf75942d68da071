#pragma once

/// @file
/// Memory for a large array of numbers.

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <new>
#include <span>

#include "kestrin/base/huge_pages.h"

namespace kestrin::python {

/// An array of numbers that are not set at first. A large one is in huge pages, which are there in a fifth of
/// the time.
template <class Number>
class NumberBlock {
 public:
  explicit NumberBlock(std::size_t size) : size_(size), block_(Allocate(size * sizeof(Number))) {}

  [[nodiscard]] Number& operator[](std::size_t index) { return block_.get()[index]; }
  [[nodiscard]] std::span<const Number> Numbers() const { return {block_.get(), size_}; }

 private:
  struct Free {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory,cppcoreguidelines-no-malloc): the owner's own deleter
    void operator()(Number* block) const noexcept { std::free(block); }
  };

  static Number* Allocate(std::size_t bytes) {
    const std::size_t alignment = bytes < kHugePage ? alignof(std::max_align_t) : kHugePage;
    const std::size_t rounded = (bytes / alignment + 1) * alignment;
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the unique_ptr owns it
    void* block = std::aligned_alloc(alignment, rounded);
    if (block == nullptr) throw std::bad_alloc();
    if (alignment == kHugePage) PreferHugePages(block, rounded);
    return static_cast<Number*>(block);
  }

  std::size_t size_;
  std::unique_ptr<Number, Free> block_;
};

}  // namespace kestrin::python

#pragma once

/// @file
/// Finding things by name.

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/board/board.h"

namespace kestrin {

/// Replaces each blank of a reference or pin name with "_".
void JoinBlanks(std::string& reference);

/// The hash by which NameIndex looks for a name.
[[nodiscard]] std::size_t HashOf(std::string_view name);

/// Maps names to indexes. Does not copy the names: they must outlive it.
///
/// This is a hash table that probes a few slots only. A name that finds no free slot there is kept in a map,
/// so a file full of names with equal hashes cannot make it slow.
class NameIndex {
 public:
  NameIndex() = default;
  /// Reserves room for a number of names.
  explicit NameIndex(std::size_t names);

  /// Adds a name unless it is already there. Returns the index of the name: the given one if it is new, else
  /// the earlier one.
  Index Add(std::string_view name, Index index);

  [[nodiscard]] std::optional<Index> Find(std::string_view name) const;

 private:
  /// Small, so that many fit into the processor's cache.
  struct Slot {
    const char* text = nullptr;
    std::uint32_t size = 0;
    Index index = kFree;

    [[nodiscard]] std::string_view Name() const { return {text, size}; }
  };

  [[nodiscard]] std::size_t PlaceOf(std::string_view name) const;
  void Grow();

  static constexpr Index kFree = static_cast<Index>(-1);
  static constexpr std::size_t kNoPlace = static_cast<std::size_t>(-1);
  static constexpr std::size_t kProbes = 8;

  std::vector<Slot> slots_;  // their number is a power of two; at most half are taken
  std::size_t taken_ = 0;
  std::map<std::string_view, Index> crowded_;
};

}  // namespace kestrin

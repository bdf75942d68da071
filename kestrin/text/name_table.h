#pragma once

/// @file
/// Tables that are searched by name.

#include <array>
#include <bit>
#include <cstddef>
#include <string_view>

#include "kestrin/base/characters.h"
#include "kestrin/text/ignoring_case.h"

namespace kestrin {

/// Finds the row of a name in constant time, without regard to the case of ASCII letters. A hash table, made
/// at compile time from an array of rows, each with a member `name`.
template <class Row, std::size_t Count>
class NameTable {
 public:
  constexpr explicit NameTable(const Row (&rows)[Count]) {
    for (const Row& row : rows) {
      std::size_t slot = SlotOf(row.name);
      while (slots_[slot] != nullptr) slot = (slot + 1) % kSlots;
      slots_[slot] = &row;
    }
  }

  /// The row of the name; null if there is none.
  [[nodiscard]] constexpr const Row* Find(std::string_view name) const {
    for (std::size_t slot = SlotOf(name); slots_[slot] != nullptr; slot = (slot + 1) % kSlots) {
      const Row* row = slots_[slot];
      if (row->name == name || EqualIgnoringCase(row->name, name)) return row;
    }
    return nullptr;
  }

 private:
  static constexpr std::size_t kSlots = std::bit_ceil(4 * Count);

  /// A hash of the length and two characters: enough to tell the names of a table apart.
  [[nodiscard]] static constexpr std::size_t SlotOf(std::string_view name) {
    if (name.empty()) return 0;
    const auto codeOf = [](char c) { return std::size_t{static_cast<unsigned char>(ToUpper(c))}; };
    return ((name.size() * 33 + codeOf(name[name.size() / 2])) * 33 + codeOf(name.back())) % kSlots;
  }

  std::array<const Row*, kSlots> slots_{};  // null for a free slot
};

}  // namespace kestrin

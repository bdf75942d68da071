#pragma once

/// @file
/// Tables of rows that are found by their names.

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kestrin/base/characters.h"
#include "kestrin/text/ignoring_case.h"

namespace kestrin {

/// Finds the row of a name, whatever the case of its ASCII letters, in the same time however many rows there
/// are. Made from an array of rows at compile time; a row has a member `name`.
template <class ROW, std::size_t COUNT>
class NameTable {
 public:
  constexpr explicit NameTable(const ROW (&rows)[COUNT]) : rows_(rows) {
    for (std::size_t i = 0; i < COUNT; ++i) {
      std::size_t slot = SlotOf(rows[i].name);
      while (slots_[slot] != kFree) slot = (slot + 1) % kSlots;
      slots_[slot] = static_cast<std::uint8_t>(i + 1);
    }
  }

  /// Null when no row has the name.
  [[nodiscard]] constexpr const ROW* Find(std::string_view name) const {
    for (std::size_t slot = SlotOf(name); slots_[slot] != kFree; slot = (slot + 1) % kSlots) {
      const ROW& row = rows_[slots_[slot] - 1];
      if (row.name == name || EqualIgnoringCase(row.name, name)) return &row;
    }
    return nullptr;
  }

 private:
  static constexpr std::size_t kSlots = std::bit_ceil(4 * COUNT);
  static constexpr std::uint8_t kFree = 0;
  static_assert(COUNT < 256, "a slot holds the number of a row in a byte");

  /// Of the length and two characters, which is enough to tell the names of a table apart.
  [[nodiscard]] static constexpr std::size_t SlotOf(std::string_view name) {
    if (name.empty()) return 0;
    const auto codeOf = [](char c) { return std::size_t{static_cast<unsigned char>(ToUpper(c))}; };
    return ((name.size() * 33 + codeOf(name[name.size() / 2])) * 33 + codeOf(name.back())) % kSlots;
  }

  const ROW (&rows_)[COUNT];
  std::array<std::uint8_t, kSlots> slots_{};  // the number of a row, from 1
};

}  // namespace kestrin

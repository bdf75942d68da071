#pragma once

/// @file
/// The fields of differences. They need no context.

#include <array>
#include <string_view>

#include "tool/diff/difference.h"
#include "tool/fields.h"

namespace kestrin::tool {

[[nodiscard]] constexpr std::string_view WordOf(ChangedKind kind) {
  constexpr std::array<std::string_view, 11> kWords{
      "board", "layer", "geometry", "padstack", "via", "component", "property", "net", "pin", "wire", "fill"};
  return kWords[static_cast<std::size_t>(kind)];
}

[[nodiscard]] constexpr std::string_view WordOf(ChangeType type) {
  constexpr std::array<std::string_view, 4> kWords{"added", "removed", "changed", "renamed"};
  return kWords[static_cast<std::size_t>(type)];
}

template <>
inline constexpr auto kFields<Detail> = std::tuple{
    Field{"what", "What changed: \"x\", \"width\", the name of a property.", &Detail::what},
    Field{"before", "Its value before.", &Detail::before},
    Field{"after", "Its value after.", &Detail::after},
};

template <>
inline constexpr auto kFields<Change> = std::tuple{
    Field{"kind", "What the change is about: \"component\", \"net\".",
          [](const Change& change) { return WordOf(change.kind); }},
    Field{"name", "Its name; of a wire or fill that of its net, of a property that of its component.",
          &Change::name},
    Field{"change", "What happened: \"added\", \"removed\", \"changed\" or \"renamed\".",
          [](const Change& change) { return WordOf(change.type); }},
    Field{"details", "What changed in it.", &Change::details},
};

template <>
inline constexpr auto kFields<Difference> = std::tuple{
    Field{"shift", "By how many mm the whole board was moved, if it was.", &Difference::shift},
    Field{"changes", "All changes; a shift is not among them.", &Difference::changes},
};

}  // namespace kestrin::tool

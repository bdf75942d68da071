#pragma once

/// @file
/// What changed between two boards.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "kestrin/board/board.h"

namespace kestrin::tool {

/// What a change is about, in the order in which changes are reported.
enum class ChangedKind : std::uint8_t {
  kBoard,
  kLayer,
  kGeometry,
  kPadstack,
  kVia,
  kComponent,
  kProperty,
  kNet,
  kPin,
  kWire,
  kFill
};

/// A change, as documents name it.
enum class ChangeType : std::uint8_t { kAdded, kRemoved, kChanged, kRenamed };

/// A value before or after a change: nothing, a number or a text.
using Value = std::variant<std::monostate, double, std::string>;

struct Detail {
  std::string what;  ///< a member of the board, the name of a property, or "layer", "width" or "via"
  Value before;
  Value after;
};

struct Change {
  ChangedKind kind;
  std::string name;  ///< of a wire or fill: that of its net; of a property: that of its component
  ChangeType type;
  std::vector<Detail> details;
};

/// All changes between two boards.
struct Difference {
  std::optional<Point> shift;  ///< of the whole board; not contained in the changes
  std::vector<Change> changes;
};

}  // namespace kestrin::tool

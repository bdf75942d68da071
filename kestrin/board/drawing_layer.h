#pragma once

/// @file
/// The layer of a drawing object.

#include <string_view>

namespace kestrin {

class CMGeomDrawObj;

/// The logical layer that a drawing object names; empty if it names none.
[[nodiscard]] std::string_view LayerOf(const CMGeomDrawObj& object);

}  // namespace kestrin

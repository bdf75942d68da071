#pragma once

/// @file
/// The shapes of a scene as few bytes, for the viewer. viewer/shapes.js reads them.
///
/// All numbers are variable-length: seven bits a byte, the lowest first, with the eighth bit set on all bytes
/// but the last. Signed numbers alternate: 0, -1, 1, -2, 2, … A shape is
///
///     points * 8 + (1 if it is a hole) + the change of its owner from the shape before: 0 none, 2 to the
///     next
///       of the same kind, 4 another
///     then, if 4: the signed difference of the owner's number, which is index * 4 + (0 nobody, 1 a net, 2 a
///       component, 3 a pin)
///     then, for each point, x and y as signed differences from the point before
///
/// A number of 0 points means that all points but the first differ as those of the shape before.

#include <cstdint>
#include <span>
#include <string>

#include "tool/draw/path_text.h"
#include "tool/draw/scene.h"

namespace kestrin::tool::draw {

/// Appends a number of variable length.
void AppendNumber(std::string& bytes, std::uint64_t number);
void AppendSigned(std::string& bytes, std::int64_t number);

/// The bytes of the shapes of a batch.
[[nodiscard]] std::string BytesOf(std::span<const Shape> shapes, const Steps& steps);

/// Bytes as text of 85 different characters, 5 for each 4 bytes, the highest first; zeros are added to make
/// the bytes a multiple of 4. The characters, which HTML does not treat specially, come in the order of
/// ASCII.
[[nodiscard]] std::string Base85Of(const std::string& bytes);

}  // namespace kestrin::tool::draw

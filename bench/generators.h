#pragma once

/// @file
/// Export files of any size, for measuring. The same size always gives the same file.

#include <cstdint>
#include <ostream>

namespace kestrin::bench {

/// Writes a Geometry file of whole lines that ends when it has at least so many bytes: a board, its stack-up,
/// padstacks, and components with paths, polygons, arcs, circles, texts and attributes, with points in the
/// line and pending ones. Nothing in it is skipped by an import.
void GenerateGeometry(std::ostream& out, std::int64_t size);

}  // namespace kestrin::bench

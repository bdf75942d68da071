#pragma once

/// @file
/// Large files for measuring, always the same for the same size. Each has the records of a real board in a
/// realistic mix, is about size bytes long and ends with a whole record.

#include <cstdint>
#include <ostream>

namespace kestrin::bench {

/// A Geometry file: a board, its stack-up, padstacks, and components with paths, polygons, arcs, circles,
/// texts and attributes, with points in the line and pending ones.
void GenerateGeometry(std::ostream& out, std::uint64_t size);

/// A Neutral file of one board: nets with pins, components with properties.
void GenerateNeutral(std::ostream& out, std::uint64_t size);

/// A Traces file: half of it VER lines, most of the rest SEG lines, about 24 bytes a line.
void GenerateTraces(std::ostream& out, std::uint64_t size);

}  // namespace kestrin::bench

#pragma once

/// @file
/// Generators of large files for benchmarks. A generated file has a realistic mix of records, is about size
/// bytes long, ends with a complete line, and has the same bytes every time.

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace kestrin::test {

/// Writes a Geometry file: a board, its stack-up, padstacks, and components with paths, polygons, arcs,
/// circles, texts and attributes. Points are in the line or pending, up to about 400 in a list.
void GenerateGeometry(std::ostream& out, std::uint64_t size);

/// Writes a Neutral file of one board: nets with pins, components with properties.
void GenerateNeutral(std::ostream& out, std::uint64_t size);

/// Writes a Tech file: physical layers, then via rules. Real Tech files are a few lines long.
void GenerateTech(std::ostream& out, std::uint64_t size);

/// Writes a Traces file: half of it VER lines, most of the rest SEG lines, about 24 bytes a line.
void GenerateTraces(std::ostream& out, std::uint64_t size);

/// A generator and the ending of its files, without the dot.
struct GeneratedFile {
  std::string_view kind;
  void (*generate)(std::ostream& out, std::uint64_t size);
};

/// In the order in which an import reads them.
inline constexpr GeneratedFile kGeneratedFiles[] = {
    {"tech", &GenerateTech},
    {"neutral", &GenerateNeutral},
    {"geometry", &GenerateGeometry},
    {"traces", &GenerateTraces},
};

/// Writes one file. Returns false if it cannot be written.
[[nodiscard]] bool WriteGenerated(const GeneratedFile& file, const std::string& path, std::uint64_t size);

/// Writes the four files of a board into an existing folder, as board.tech and so on; false when they cannot
/// be written. The files agree: pins lie where tracks begin, and all names and layers exist. The tracks have
/// about so many legs, which is the number of SEG lines.
[[nodiscard]] bool GenerateBoard(const std::string& folder, std::uint64_t legs);

/// How many bytes the four files have for each leg, about.
inline constexpr std::uint64_t kBoardBytesPerLeg = 43;

}  // namespace kestrin::test

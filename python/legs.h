#pragma once

/// @file
/// The legs of tracks, as columns.

#include <cstdint>
#include <tuple>

#include "kestrin/board/board.h"
#include "python/number_block.h"
#include "tool/fields.h"

namespace kestrin::python {

/// A row for each leg: a pair of consecutive points of a track. They are in the order of the tracks.
struct Legs {
  explicit Legs(std::size_t count)
      : x1(count), y1(count), x2(count), y2(count), layer(count), width(count), net(count) {}

  NumberBlock<double> x1;
  NumberBlock<double> y1;
  NumberBlock<double> x2;
  NumberBlock<double> y2;
  NumberBlock<std::int32_t> layer;
  NumberBlock<double> width;
  NumberBlock<std::uint32_t> net;
};

/// Lays out the legs of a board.
[[nodiscard]] Legs LegsOf(const Board& board);

/// The number of legs of the tracks before a track, which may be the one after the last.
[[nodiscard]] std::size_t LegsBefore(const Board& board, std::size_t track);

}  // namespace kestrin::python

template <>
inline constexpr auto kestrin::tool::kFields<kestrin::python::Legs> = std::tuple{
    Field{"x1", "Where the legs begin in mm.", &python::Legs::x1},
    Field{"y1", "Where the legs begin in mm.", &python::Legs::y1},
    Field{"x2", "Where the legs end in mm.", &python::Legs::x2},
    Field{"y2", "Where the legs end in mm.", &python::Legs::y2},
    Field{"layer", "The numbers of their physical layers.", &python::Legs::layer},
    Field{"width", "Their widths in mm; NaN where it is unknown.", &python::Legs::width},
    Field{"net", "Their nets, as indexes into Board.nets.", &python::Legs::net},
};

#pragma once

/// @file
/// Which values of a line of the Geometry file are read as numbers.

#include <cstddef>

#include "kestrin/geometry/bracket_scans.h"
#include "kestrin/geometry/reader_state.h"
#include "kestrin/text/value_kinds.h"

namespace kestrin {

/// Shows those numbers of the current line that are not wholly numbers.
using ShowNumbers = void (*)(ReaderState& state, const NumberAction& action);

/// What a row's lines read as numbers: certain values, and what is in brackets.
struct Reads {
  ValueKinds values;
  ShowNumbers inBrackets = nullptr;
};

///@{
/// The numbers of what ReaderState::TakePoints, TakePoint and FirstBracketed read.
void ShowPoints(ReaderState& state, std::size_t firstValue, const BracketScan& scan,
                const NumberAction& action);
void ShowPoint(ReaderState& state, std::size_t firstValue, const NumberAction& action);
void ShowFirstBracketed(ReaderState& state, NumberKind kind, const NumberAction& action);
///@}

///@{
/// The same as rows name them.
template <std::size_t First, const BracketScan& Scan>
void PointsFrom(ReaderState& state, const NumberAction& action) {
  ShowPoints(state, First, Scan, action);
}
template <std::size_t First>
void PointFrom(ReaderState& state, const NumberAction& action) {
  ShowPoint(state, First, action);
}
template <NumberKind Kind>
void FirstInBrackets(ReaderState& state, const NumberAction& action) {
  ShowFirstBracketed(state, Kind, action);
}
///@}

///@{
/// The numbers of `$$initial`, `$$terminal` and `$$template_path_width`.
void InitialPoints(ReaderState& state, const NumberAction& action);
void TerminalPoints(ReaderState& state, const NumberAction& action);
void PathWidth(ReaderState& state, const NumberAction& action);
///@}

}  // namespace kestrin

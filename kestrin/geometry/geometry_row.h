#pragma once

/// @file
/// The rows of the command and attribute tables.

#include <cstdint>
#include <string_view>

#include "kestrin/geometry/line_numbers.h"
#include "kestrin/geometry/owners.h"
#include "kestrin/geometry/reader_state.h"
#include "kestrin/text/record_table.h"

namespace kestrin {

/// Reads the values of a line. Called only if the owner is there and the line has the values that its row
/// requires.
using GeometryHandler = LineOutcome (*)(ReaderState& state);

/// The owner of a record and the handler that reads it.
struct OwnerAndHandler {
  Owner<ReaderState> owner;
  GeometryHandler read;
};

/// Combines an owner and a handler. The owner passes the field to fill to the handler.
template <class OwnerType, auto Handler>
[[nodiscard]] constexpr OwnerAndHandler To() {
  return {{OwnerType::kRequirement, [](const ReaderState& state) { return OwnerType::Find(state.geometry); }},
          [](ReaderState& state) {
            LineOutcome outcome = LineOutcome::Ignored();
            OwnerType::Lend(state.geometry, [&](auto& member) { outcome = Handler(state, member); });
            return outcome;
          }};
}

/// What a line that is skipped for lack of an owner does to the pending points.
enum class Ownerless : std::uint8_t { kKeepsPoints, kConsumesPoints };

/// A command or an attribute. The first value of an attribute is its name.
struct GeometryRow : Record<ReaderState, GeometryHandler> {
  constexpr GeometryRow(std::string_view itsName, Commas itsCommas, ValueCount itsValues,
                        OwnerAndHandler parts, Ownerless itsOwnerless, Reads reads = {},
                        std::string_view otherRequirement = {})
      : Record(itsName, itsValues, parts.owner, parts.read, reads.values, otherRequirement),
        commas(itsCommas),
        ownerless(itsOwnerless),
        numbersInBrackets(reads.inBrackets) {}
  constexpr GeometryRow(std::string_view itsName, Commas itsCommas, ValueCount itsValues,
                        OwnerAndHandler parts, Reads reads = {}, std::string_view otherRequirement = {})
      : GeometryRow(itsName, itsCommas, itsValues, parts, Ownerless::kKeepsPoints, reads, otherRequirement) {}
  /// A row without an owner.
  constexpr GeometryRow(std::string_view itsName, Commas itsCommas, ValueCount itsValues, Nobody itsOwner,
                        GeometryHandler handler, Reads reads = {}, std::string_view otherRequirement = {})
      : Record(itsName, itsValues, itsOwner, handler, reads.values, otherRequirement),
        commas(itsCommas),
        numbersInBrackets(reads.inBrackets) {}
  /// A row whose lines are ignored.
  constexpr explicit GeometryRow(std::string_view itsName) : Record(itsName) {}

  Commas commas = Commas::kEvery;  ///< the commas that separate its values
  Ownerless ownerless = Ownerless::kKeepsPoints;
  ShowNumbers numbersInBrackets = nullptr;  ///< null if none are read
};

/// Reads a line according to its row. No values may have been cut yet, except for an attribute's name.
[[nodiscard]] inline LineOutcome ReadByRow(const GeometryRow& row, ReaderState& state) {
  if (row.read == nullptr) return LineOutcome::Ignored();
  const OwnerState owner = row.FindOwner(state);
  if (owner == OwnerState::kElsewhere) return LineOutcome::Ignored();
  if (owner == OwnerState::kMissing) {
    if (row.ownerless == Ownerless::kConsumesPoints) state.pending.Clear();
    return LineOutcome::NoOwner(row);
  }
  state.values.ContinueWith(row.commas);
  if (!row.values.AcceptsValuesOf(state.values)) {
    return LineOutcome::WrongValueCount(row, state.values.Count());
  }
  state.rule = &row;
  return row.read(state);
}

}  // namespace kestrin

#pragma once

/// @file
/// The rows of a reader's table. A row says everything about a record: its keyword, how many values it takes,
/// which record it belongs to, the handler that reads it, and which values it reads as numbers.
///
///     {"COMP", Exactly(8), kComponentSection, &NeutralReader::AddComponent, "....ddii"},

#include <cstdint>
#include <string_view>

#include "kestrin/text/value_count.h"
#include "kestrin/text/value_kinds.h"

namespace kestrin {

/// The rule that a record's lines must follow. Messages are made from it: "N_PIN needs at least 5 values, 3
/// found".
struct RecordRule {
  std::string_view name;  ///< the keyword
  ValueCount values;
  std::string_view owner;        ///< the record that it belongs to: "a NET before it"; empty if it needs none
  std::string_view requirement;  ///< what else it needs: "a number in square brackets"
};

/// Whether the record that a line belongs to is there.
enum class OwnerState : std::uint8_t {
  kThere,
  kMissing,    ///< the line is skipped
  kElsewhere,  ///< the line is in a part of the file that is not imported, and is ignored
};

/// The record that other records belong to, such as the net of a pin.
template <class Reader>
struct Owner {
  std::string_view requirement;
  OwnerState (*find)(const Reader& reader);  ///< null if the owner is always there
};

/// The owner of records that belong to the file as a whole.
struct Nobody {
  template <class Reader>
  constexpr operator Owner<Reader>() const {
    return {"", nullptr};
  }
};
inline constexpr Nobody kNobody;

/// A row: a record's keyword, number of values, owner and handler, and which values the handler reads as
/// numbers.
template <class Reader, class Handler>
struct Record : RecordRule {
  constexpr Record(std::string_view itsName, ValueCount itsValues, Owner<Reader> itsOwner, Handler handler,
                   ValueKinds itsKinds = {}, std::string_view otherRequirement = {})
      : RecordRule{itsName, itsValues, itsOwner.requirement, otherRequirement},
        read(handler),
        kinds(itsKinds),
        findOwner_(itsOwner.find) {}
  /// A record that has nothing for the model. Its lines are ignored.
  constexpr explicit Record(std::string_view itsName) : Record(itsName, Any(), kNobody, nullptr) {}

  [[nodiscard]] OwnerState FindOwner(const Reader& reader) const {
    return findOwner_ == nullptr ? OwnerState::kThere : findOwner_(reader);
  }

  Handler read;  ///< null if the record has nothing for the model
  ValueKinds kinds;

 private:
  OwnerState (*findOwner_)(const Reader& reader);
};

}  // namespace kestrin

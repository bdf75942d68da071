#pragma once

/// @file
/// The rows of the tables that readers are made of.
///
///     {"N_PIN", AtLeast(5), kCurrentNet, &NeutralReader::AddPin},

#include <cstdint>
#include <string_view>

#include "kestrin/text/value_count.h"

namespace kestrin {

/// What a record asks of its lines. Messages are made from it: "N_PIN needs at least 5 values, 3 found".
struct RecordRule {
  std::string_view name;  ///< as lines have it
  ValueCount values;
  std::string_view owner;   ///< whom it belongs to: "a NET before it"; empty for nobody
  std::string_view demand;  ///< what else it needs: "a number in square brackets"
};

/// What a reader knows of the record that a line belongs to.
enum class OwnerState : std::uint8_t {
  kThere,
  kMissing,    ///< the line is skipped
  kElsewhere,  ///< the line is in a part of the file that is not read
};

/// Whom records belong to.
template <class Reader>
struct Owner {
  std::string_view demand;
  OwnerState (*find)(const Reader& reader);  ///< null for an owner that is always there
};

/// The owner of records that belong to the whole file.
struct Nobody {
  template <class Reader>
  constexpr operator Owner<Reader>() const {
    return {"", nullptr};
  }
};
inline constexpr Nobody kNobody;

/// All that there is to say about a record: its name, how many values it takes, whom it belongs to, and who
/// reads it.
template <class Reader, class Handler>
struct Record : RecordRule {
  constexpr Record(std::string_view itsName, ValueCount itsValues, Owner<Reader> itsOwner, Handler handler,
                   std::string_view otherDemand = {})
      : RecordRule{itsName, itsValues, itsOwner.demand, otherDemand},
        read(handler),
        findOwner_(itsOwner.find) {}
  /// A record that carries nothing for the model.
  constexpr explicit Record(std::string_view itsName) : Record(itsName, Any(), kNobody, nullptr) {}

  [[nodiscard]] OwnerState FindOwner(const Reader& reader) const {
    return findOwner_ == nullptr ? OwnerState::kThere : findOwner_(reader);
  }

  Handler read;  ///< null where the record carries nothing

 private:
  OwnerState (*findOwner_)(const Reader& reader);
};

}  // namespace kestrin

#pragma once

/// @file
/// Records whose fields are listed.

namespace kestrin {

/// A record with a ForEachField, as in tech_fields.h.
template <class Record>
concept HasFields = requires(const Record& record) {
  ForEachField(record, [](const char*, const auto&) {});
};

}  // namespace kestrin

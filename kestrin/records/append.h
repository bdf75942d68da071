#pragma once

/// @file
/// How readers hand records to lists.

#include <memory>

namespace kestrin {

/// Appends a record to a list that owns its records, and returns it.
template <class ARRAY, class RECORD>
RECORD* Append(ARRAY& list, std::unique_ptr<RECORD> record) {
  list.Add(record.get());
  return record.release();
}

}  // namespace kestrin

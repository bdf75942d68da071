#pragma once

/// @file
/// Appending new records to the lists that own them.

#include <memory>

namespace kestrin {

/// Appends a record to a list, which then owns it. Returns the record.
template <class Array, class Record>
Record* Append(Array& list, std::unique_ptr<Record> record) {
  list.Add(record.get());
  return record.release();
}

}  // namespace kestrin

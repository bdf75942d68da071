#pragma once

/// @file
/// Python's objects for records of the library.

#include <pybind11/pybind11.h>

#include <memory>

#include "python/read_set.h"
#include "tool/fields.h"

namespace kestrin::python {

namespace py = pybind11;

/// A record, with what it belongs to. The record is valid as long as its owner.
template <class Record>
struct Handle {
  SharedOwner owner;
  const Record* record;

  friend bool operator==(const Handle& a, const Handle& b) { return a.record == b.record; }
};

/// Lets only the module make objects of a class. Others would be without a record.
inline void ForbidMaking(const py::handle& type) {
  reinterpret_cast<PyTypeObject*>(type.ptr())->tp_new = nullptr;
}

/// What Python calls a kind of record, and what it is.
struct ClassWords {
  const char* name;
  const char* meaning;
};

/// The words of each kind of record that is a class of the module.
template <class Record>
inline constexpr ClassWords kClass{nullptr, nullptr};

/// A kind of record that is a class of the module.
template <class Record>
concept Bound = kClass<Record>
.name != nullptr;

/// The value of a field. Fields of boards and of files get what they refer to.
template <class Field, class Record>
[[nodiscard]] decltype(auto) ValueOf(const Field& field, const Owner& owner, const Record& record) {
  if constexpr (std::is_invocable_v<decltype(field.getter), const Board&, const Record&>) {
    return field.Of(SetOf(owner).board, record);
  } else if constexpr (std::is_invocable_v<decltype(field.getter), const tool::ExportSet&, const Record&>) {
    return field.Of(SetOf(owner).imported.files, record);
  } else {
    return field.Of(owner, record);
  }
}

}  // namespace kestrin::python

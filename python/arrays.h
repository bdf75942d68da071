#pragma once

/// @file
/// Arrays of numpy that are views of the library's memory.

#include <pybind11/numpy.h>

#include <span>
#include <string>

#include "python/handle.h"

namespace kestrin::python {

/// What Python calls arrays of numbers.
template <class Number>
[[nodiscard]] std::string ArrayType() {
  return "NDArray[" + std::string(py::str(py::dtype::of<Number>())) + ']';
}

/// A view of some memory of an owner. It cannot be written to, and keeps the owner alive.
[[nodiscard]] py::array ViewOf(const SharedOwner& owner, const py::dtype& type,
                               const std::vector<py::ssize_t>& shape, const std::vector<py::ssize_t>& strides,
                               const void* memory);

/// A view of elements that follow each other.
template <class Number>
[[nodiscard]] py::array ViewOf(const SharedOwner& owner, std::span<const Number> numbers) {
  return ViewOf(owner, py::dtype::of<Number>(), {static_cast<py::ssize_t>(numbers.size())}, {sizeof(Number)},
                numbers.data());
}

/// A view of a member of each record, such as &Via::padstack.
template <class Number, class Record>
[[nodiscard]] py::array ViewOf(const SharedOwner& owner, std::span<const Record> records,
                               const Number& memberOfFirst) {
  return ViewOf(owner, py::dtype::of<Number>(), {static_cast<py::ssize_t>(records.size())}, {sizeof(Record)},
                &memberOfFirst);
}

///@{
/// Points with the shape (count, 2), and connections with the shape (count, 2, 2).
[[nodiscard]] py::array ViewOf(const SharedOwner& owner, std::span<const Point> points);
[[nodiscard]] py::array ViewOf(const SharedOwner& owner, std::span<const OpenConnection> open);
///@}

}  // namespace kestrin::python

#include "python/arrays.h"

namespace kestrin::python {
namespace {

// So that lists of them can be viewed as numbers.
static_assert(sizeof(Point) == 2 * sizeof(double));
static_assert(sizeof(OpenConnection) == 2 * sizeof(Point));

/// An object of Python that keeps an owner alive.
py::capsule Keeping(const SharedOwner& owner) {
  auto kept = std::make_unique<SharedOwner>(owner);
  py::capsule keeper(kept.get(), [](void* pointer) {
    const std::unique_ptr<SharedOwner> dropped(static_cast<SharedOwner*>(pointer));
  });
  static_cast<void>(kept.release());
  return keeper;
}

}  // namespace

py::array ViewOf(const SharedOwner& owner, const py::dtype& type, const std::vector<py::ssize_t>& shape,
                 const std::vector<py::ssize_t>& strides, const void* memory) {
  py::array view(type, shape, strides, memory, Keeping(owner));
  view.attr("flags").attr("writeable") = false;
  return view;
}

py::array ViewOf(const SharedOwner& owner, std::span<const Point> points) {
  return ViewOf(owner, py::dtype::of<double>(), {static_cast<py::ssize_t>(points.size()), 2},
                {sizeof(Point), sizeof(double)}, points.data());
}

py::array ViewOf(const SharedOwner& owner, std::span<const OpenConnection> open) {
  return ViewOf(owner, py::dtype::of<double>(), {static_cast<py::ssize_t>(open.size()), 2, 2},
                {sizeof(OpenConnection), sizeof(Point), sizeof(double)}, open.data());
}

}  // namespace kestrin::python

#pragma once

/// @file
/// The copper of a board or a net, as arrays.

#include "python/arrays.h"

namespace kestrin::python {

/// The legs of consecutive tracks.
class Tracks {
 public:
  Tracks(SharedOwner owner, std::span<const Track> tracks);

  [[nodiscard]] std::size_t Size() const { return count_; }

  /// A column of the legs, a view.
  template <class Number>
  [[nodiscard]] py::array Column(NumberBlock<Number> Legs::*column) const {
    const Legs& legs = LegsOf(SetOf(*owner_));
    return ViewOf(owner_, (legs.*column).Numbers().subspan(first_, count_));
  }

 private:
  SharedOwner owner_;
  std::size_t first_ = 0;
  std::size_t count_ = 0;
};

/// Consecutive vias.
struct Vias {
  SharedOwner owner;
  std::span<const Via> vias;
};

void BindCopper(py::module_& module);

}  // namespace kestrin::python

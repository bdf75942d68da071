// The module kestrin._kestrin: what the package kestrin is made of.

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "kestrin/version.h"
#include "python/bind_board.h"
#include "python/bind_compare.h"
#include "python/bind_read.h"
#include "python/errors.h"
#include "python/interruptible.h"

PYBIND11_MODULE(_kestrin, module) {
  using namespace kestrin::python;
  pybind11::options options;
  options.disable_function_signatures();  // the stubs have them
  module.attr("__version__") = kestrin::kVersion;
  // Classes and functions say that they are of the package, where people find them.
  const pybind11::object name = module.attr("__name__");
  module.attr("__name__") = "kestrin";
  BindErrors(module);
  BindBoard(module);
  BindRead(module);
  BindCompare(module);
  BindInterruptible();
  module.attr("__name__") = name;
}

#include "python/errors.h"

#include "python/texts.h"
#include "tool/usage_error.h"

namespace kestrin::python {
namespace {

constexpr char kMeaning[] =
    "A set cannot be read, or its picture not be written.\n\n"
    "file is the path of the file, and line the number of its line, where they are known; else they are "
    "None.";

/// Messages name options of the tool, which are arguments here: "name one with --tech".
py::object InPythonsWords(const std::string& message) {
  return py::module_::import("re").attr("sub")("(?<!\\S)--([a-z]+)", "\\1=", PathOf(message));
}

void Raise(const py::object& type, const py::object& message, const py::object& file,
           const py::object& line) {
  const py::object error = type(message);
  error.attr("file") = file;
  error.attr("line") = line;
  PyErr_SetObject(type.ptr(), error.ptr());
}

}  // namespace

void BindErrors(py::module_& module) {
  py::dict members;
  members["file"] = py::none();
  members["line"] = py::none();
  const auto type = py::reinterpret_steal<py::object>(
      PyErr_NewExceptionWithDoc("kestrin.Error", kMeaning, nullptr, members.ptr()));
  module.attr("Error") = type;
  static const py::handle kError = py::object(type).release();  // a translator has no state; never freed
  py::register_exception_translator([](std::exception_ptr raised) {
    try {
      std::rethrow_exception(std::move(raised));
    } catch (const StoppedError& error) {
      Raise(py::reinterpret_borrow<py::object>(kError), PathOf(error.what()), PathOf(error.File()),
            py::int_(error.Line()));
    } catch (const tool::UsageError& error) {
      const py::object file = error.File().empty() ? py::object(py::none()) : PathOf(error.File());
      Raise(py::reinterpret_borrow<py::object>(kError), InPythonsWords(error.what()), file, py::none());
    }
  });
}

}  // namespace kestrin::python

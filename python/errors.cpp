#include "python/errors.h"

#include <regex>

#include "python/texts.h"
#include "tool/usage_error.h"

namespace kestrin::python {
namespace {

constexpr char kMeaning[] =
    "A set cannot be read, or its picture not be written.\n\n"
    "file is the path of the file, and line the number of its line, where they are known; else they are "
    "None.";

/// Messages name options of the tool, which are arguments here: "name one with --tech".
std::string InPythonsWords(const std::string& message) {
  static const std::regex kOption("(^| )--(tech|neutral|geometry|traces|strict|width|box|view|against)\\b");
  static const std::regex kStep("--width-step");
  return std::regex_replace(std::regex_replace(message, kStep, "width_step"), kOption, "$1$2=");
}

void Raise(const py::object& type, const std::string& message, const py::object& file,
           const py::object& line) {
  const py::object error = type(PathOf(message));
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
      Raise(py::reinterpret_borrow<py::object>(kError), error.what(), PathOf(error.File()),
            py::int_(error.Line()));
    } catch (const tool::UsageError& error) {
      const py::object file = error.File().empty() ? py::object(py::none()) : PathOf(error.File());
      Raise(py::reinterpret_borrow<py::object>(kError), InPythonsWords(error.what()), file, py::none());
    }
  });
}

}  // namespace kestrin::python

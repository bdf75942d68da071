#include "python/python_writer.h"

#include <cmath>
#include <utility>

#include "python/texts.h"

namespace kestrin::python {

void PythonWriter::Key(const char* name) {
  auto known = names_.find(name);
  if (known == names_.end()) known = names_.emplace(name, py::str(name)).first;
  open_.back().key = known->second;
}

void PythonWriter::StartArray(Layout /*layout*/) { open_.push_back({py::list(), {}}); }

void PythonWriter::Double(double value) {
  if (std::isinf(value)) return Utf8(value > 0 ? "Infinity" : "-Infinity");
  Add(py::float_(value));
}

void PythonWriter::String(std::string_view bytes) { Add(TextOf(encoding_, bytes)); }

void PythonWriter::Utf8(std::string_view text) { Add(TextOf(tool::Encoding::kUtf8, text)); }

void PythonWriter::Add(const py::object& value) {
  if (open_.empty()) {
    document_ = value;
    return;
  }
  const Open& parent = open_.back();
  const int failed = parent.key ? PyDict_SetItem(parent.container.ptr(), parent.key.ptr(), value.ptr())
                                : PyList_Append(parent.container.ptr(), value.ptr());
  if (failed != 0) throw py::error_already_set();
}

void PythonWriter::Close() {
  constexpr std::size_t kBetweenLooks = 4096;
  if (++closed_ % kBetweenLooks == 0 && PyErr_CheckSignals() != 0) throw py::error_already_set();
  const py::object complete = std::move(open_.back().container);
  open_.pop_back();
  Add(complete);
}

}  // namespace kestrin::python

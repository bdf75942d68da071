#include "python/texts.h"

#include <cctype>

namespace kestrin::python {
namespace {

/// Takes a new reference. A null pointer means that Python has set an error, which is raised.
py::str Owned(PyObject* text) {
  if (text == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(text);
}

py::ssize_t SizeOf(std::string_view bytes) { return static_cast<py::ssize_t>(bytes.size()); }

}  // namespace

py::str TextOf(tool::Encoding encoding, std::string_view bytes) {
  if (encoding == tool::Encoding::kLatin1)
    return Owned(PyUnicode_DecodeLatin1(bytes.data(), SizeOf(bytes), nullptr));
  if (PyObject* text = PyUnicode_DecodeUTF8(bytes.data(), SizeOf(bytes), nullptr)) return Owned(text);
  PyErr_Clear();  // some bytes are no UTF-8
  tool::SetEncoding(encoding);
  const std::string valid = tool::ToUtf8(bytes);
  return Owned(PyUnicode_DecodeUTF8(valid.data(), SizeOf(valid), nullptr));
}

py::str PathOf(std::string_view path) {
  return Owned(PyUnicode_DecodeFSDefaultAndSize(path.data(), SizeOf(path)));
}

std::string BytesOf(tool::Encoding encoding, const py::str& text) {
  const char* name = encoding == tool::Encoding::kUtf8 ? "utf-8" : "latin-1";
  return py::bytes(text.attr("encode")(name, "replace"));
}

std::string Utf8Of(const py::str& text) { return py::bytes(text.attr("encode")("utf-8", "surrogatepass")); }

std::string SnakeCase(std::string_view name) {
  std::string snake;
  for (const char c : name) {
    const auto letter = static_cast<unsigned char>(c);
    if (std::isupper(letter) != 0) snake += '_';
    snake += static_cast<char>(std::tolower(letter));
  }
  return snake;
}

}  // namespace kestrin::python

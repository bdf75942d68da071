#pragma once

/// @file
/// Texts of files as Python's strings.

#include <pybind11/pybind11.h>

#include <string>
#include <string_view>

#include "python/read_set.h"

namespace kestrin::python {

namespace py = pybind11;

/// The text that bytes of a file are, in the encoding of the files.
[[nodiscard]] py::str TextOf(tool::Encoding encoding, std::string_view bytes);

/// A path as Python's functions for files take it.
[[nodiscard]] py::str PathOf(std::string_view path);

/// The bytes of a file that are a text of the caller.
[[nodiscard]] std::string BytesOf(tool::Encoding encoding, const py::str& text);

/// A text of the caller in UTF-8. Lone surrogates are kept; no text of a file has them.
[[nodiscard]] std::string Utf8Of(const py::str& text);

/// "bottomTurn" as Python writes it: "bottom_turn".
[[nodiscard]] std::string SnakeCase(std::string_view name);

}  // namespace kestrin::python

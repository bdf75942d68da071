#pragma once

/// @file
/// The exception of the module, kestrin.Error.

#include <pybind11/pybind11.h>

#include <cstdint>
#include <stdexcept>
#include <string>

namespace kestrin::python {

/// A reader that stopped before the end of its file. Becomes kestrin.Error.
class StoppedError : public std::runtime_error {
 public:
  StoppedError(const std::string& what, std::string file, std::int64_t line)
      : std::runtime_error(what), file_(std::move(file)), line_(line) {}
  [[nodiscard]] const std::string& File() const { return file_; }
  [[nodiscard]] std::int64_t Line() const { return line_; }

 private:
  std::string file_;
  std::int64_t line_;
};

/// Makes the exception and lets it stand for the tool's errors and StoppedError.
void BindErrors(pybind11::module_& module);

}  // namespace kestrin::python

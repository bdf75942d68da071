#pragma once

/// @file
/// The exception that ends the tool with exit status 2.

#include <stdexcept>
#include <string>
#include <utility>

namespace kestrin::tool {

/// Wrong usage, or a file that cannot be opened. The message says what to do and becomes one line on standard
/// error. Raised before anything is printed.
class UsageError : public std::runtime_error {
 public:
  explicit UsageError(const std::string& what, std::string file = {})
      : std::runtime_error(what), file_(std::move(file)) {}

  /// The path of the file or folder that is the matter; empty if there is none.
  [[nodiscard]] const std::string& File() const { return file_; }

 private:
  std::string file_;
};

}  // namespace kestrin::tool

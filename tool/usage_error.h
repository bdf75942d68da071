#pragma once

/// @file
/// The exception that ends the tool with exit status 2.

#include <stdexcept>

namespace kestrin::tool {

/// Wrong usage, or a file that cannot be opened. The message says what to do and becomes one line on standard
/// error. Raised before anything is printed.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace kestrin::tool

#pragma once

/// @file
/// What ends the tool before it prints anything.

#include <stdexcept>

namespace kestrin::tool {

/// Wrong usage, or a file that cannot be read: one line for standard error, and exit status 2.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace kestrin::tool

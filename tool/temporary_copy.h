#pragma once

/// @file
/// Making a file of what can be read only once.

#include <cstdio>
#include <string>

#include "kestrin/base/file_handle.h"

namespace kestrin::tool {

/// A temporary file with the bytes of standard input, of a pipe or of a stream. It is removed with the
/// object.
class TemporaryCopy {
 public:
  /// Copies the bytes of a path; "-" is standard input. Raises UsageError if they cannot be read or stored.
  explicit TemporaryCopy(const std::string& path);
  /// Copies the rest of a stream, which errors call by a name.
  TemporaryCopy(std::FILE* source, const std::string& name);
  TemporaryCopy(const TemporaryCopy&) = delete;
  TemporaryCopy& operator=(const TemporaryCopy&) = delete;
  ~TemporaryCopy();

  [[nodiscard]] const std::string& Path() const { return path_; }

 private:
  FileHandle copy_;
  std::string path_;
};

}  // namespace kestrin::tool

#pragma once

/// @file
/// A file that is read once, from start to end.

#include <cstddef>

#include "kestrin/base/file_handle.h"

namespace kestrin {

/// A file opened for reading. Returns the bytes as they are on disk. The destructor closes the file.
class InputFile {
 public:
  /// Returns false if the file cannot be opened or is a folder.
  [[nodiscard]] bool Open(const char* path);
  [[nodiscard]] bool IsOpen() const { return file_ != nullptr; }
  void Close() { file_.reset(); }

  /// Reads up to size bytes and returns their number; 0 at the end. After a read error it first returns the
  /// bytes before the error; the next call raises CFileException.
  [[nodiscard]] std::size_t Read(char* bytes, std::size_t size);

 private:
  FileHandle file_;
};

}  // namespace kestrin
